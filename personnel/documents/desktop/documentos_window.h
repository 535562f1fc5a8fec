#pragma once

#include "foundation/desk/desktop/menu_entry.h"
#include "foundation/widgets/desktop/screen_window.h"
#include "personnel/documents/documentos.h"

#include <QTimer>

#include <functional>
#include <optional>
#include <vector>

class QLabel;
class QListWidget;
class QTextBrowser;

namespace winvrx {

class EmployeePicker;
class PaperForm;

/// The window of the documents screen: employees at the left, the papers with the form of the one
/// chosen, and its text as it will be printed at the right. `screen` outlives it.
class DocumentosWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// A screen that is opened from this one.
    struct Neighbour {
        const char* icon;
        QString text;
        QKeySequence key;
        const char* name;
        std::function<void(QWidget* parent)> open;
    };

    DocumentosWindow(Documentos& screen, const std::vector<Neighbour>& neighbours,
                     QWidget* parent = nullptr);

  protected:
    bool mayClose() override;

  private:
    void buildCommands(const std::vector<Neighbour>& neighbours);
    [[nodiscard]] QWidget* buildEmployees();
    [[nodiscard]] QWidget* buildPapers();
    [[nodiscard]] QWidget* buildText();
    void chooseEmployee(std::optional<std::size_t> position);
    void choosePaper(int row);
    void send(bool (Documentos::*command)());
    void showEmployee();
    void showText();

    Documentos& screen_;
    EmployeePicker* employees_ = nullptr;
    QListWidget* papers_ = nullptr;
    PaperForm* form_ = nullptr;
    QTextBrowser* text_ = nullptr;
    QLabel* remark_ = nullptr;
    QTimer textDue_;  ///< the text follows the typing, at a pause
};

/// The documents' command of the main window. `neighbours` are the screens that theirs opens.
[[nodiscard]] MenuEntry documentsEntry(
    const Workplace& at, const DocumentsDesk& desk,
    const std::vector<DocumentosWindow::Neighbour>& neighbours = {});

}  // namespace winvrx
