#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "timecard/rotation/cartao_ponto_dados_b.h"

#include <vector>

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QTabWidget;
class QToolButton;

namespace winvrx {

class EmployeePicker;
class RotationGroupPanel;
class WorkTablePanel;

/// The rotations: shift, scale and employees at the left; at the right the work-time table, or the
/// groups with the plan of the one selected.
class CartaoPontoDadosBWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// `command` is open, and outlives the window.
    explicit CartaoPontoDadosBWindow(CartaoPontoDadosB& command, QWidget* parent = nullptr);

  protected:
    [[nodiscard]] bool mayClose() override { return command_.confirmLeaving(); }

  private:
    [[nodiscard]] QWidget* buildSide();
    [[nodiscard]] QLayout* buildScale();
    void buildEmployees();
    [[nodiscard]] QLayout* buildGroupHeading();
    [[nodiscard]] QWidget* buildGroups();
    [[nodiscard]] QWidget* buildPages();
    void buildCommands();

    void startWithAGroup();
    [[nodiscard]] bool showsTable() const;
    void refresh();
    void showPage();
    void chooseGroup();
    void showGroups();
    /// The group changed, or another one is shown.
    void showGroup();
    void showState(const QString& done = {});
    void add();
    void addRelief();
    /// To the next employee, after one was added.
    void goOn();
    void save();

    CartaoPontoDadosB& command_;
    QLabel* sideHeading_ = nullptr;
    QComboBox* scale_ = nullptr;
    EmployeePicker* employees_ = nullptr;
    QWidget* groupPart_ = nullptr;
    QListWidget* groups_ = nullptr;
    QLabel* noGroups_ = nullptr;
    QPushButton* continue_ = nullptr;
    QTabWidget* pages_ = nullptr;
    WorkTablePanel* table_ = nullptr;
    RotationGroupPanel* group_ = nullptr;
    QToolButton* save_ = nullptr;
    QToolButton* restore_ = nullptr;
    std::vector<QToolButton*> groupCommands_;
};

}  // namespace winvrx
