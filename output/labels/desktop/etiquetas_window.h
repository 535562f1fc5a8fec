#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "output/cards/desktop/card_entries.h"
#include "output/labels/etiquetas.h"

#include <functional>

class QListWidget;

namespace winvrx {

class EmployeePicker;
class Field;
class OptionGroup;
class OutputChoice;
class SheetView;

/// The screens that the label screen opens. Each returns when its screen is closed.
struct EtiquetasWindowDesk {
    std::function<void(QWidget* parent)> openTexts = {};
    std::function<void(QWidget* parent)> openPrinters = {};
    std::function<void(QWidget* parent)> openCalibration = {};
    std::function<void(QWidget* parent)> openStock = {};
};

/// The label screen: employees at the left, texts in the middle, the sheet at the right.
class EtiquetasWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// `labels` outlives the window; it is read again when the window opens.
    EtiquetasWindow(Etiquetas& labels, EtiquetasWindowDesk desk, QWidget* parent = nullptr);

  private:
    void buildCommands();
    void buildClosingButtons();
    [[nodiscard]] QWidget* buildPeople(QWidget* parent);
    [[nodiscard]] QWidget* buildTexts(QWidget* parent);
    [[nodiscard]] QWidget* buildSheet(QWidget* parent);
    [[nodiscard]] QWidget* buildNumbers(QWidget* parent);
    void connectAll();

    void visit(const std::function<void(QWidget*)>& screen);
    void print(bool (Etiquetas::*give)(const PrintRun& run));
    void showTexts();
    void showContext();
    void takeNumbers();

    Etiquetas& labels_;
    EtiquetasWindowDesk desk_;
    EmployeePicker* people_ = nullptr;
    OptionGroup* kind_ = nullptr;
    QListWidget* texts_ = nullptr;
    OptionGroup* sheets_ = nullptr;
    SheetView* sheet_ = nullptr;
    Field* copies_ = nullptr;
    Field* day_ = nullptr;
    OutputChoice* output_ = nullptr;
};

/// The labels' command of the main window.
[[nodiscard]] MenuEntry labelsEntry(const Workplace& at, const CardPrintingDesk& desk);

}  // namespace winvrx
