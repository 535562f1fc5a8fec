#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "timecard/card/cartao_ponto_dados.h"

#include <array>

class QLabel;
class QRadioButton;
class QToolButton;

namespace winvrx {

class ApplicationBar;
class EmployeePicker;
class HalfMonthPanel;
class HoursSummaryPanel;
class SchedulePanel;

/// The time-card data window: employees at the left; schedule, application and punches of the one
/// chosen at the right. Both half-months stand side by side where the window is wide enough.
class CartaoPontoDadosWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// A `command` that could not be opened leads to the month's settings. It outlives the window.
    explicit CartaoPontoDadosWindow(CartaoPontoDados& command, QWidget* parent = nullptr);

    /// Hides the window while it is whole: an open cell reports back when it loses the focus.
    ~CartaoPontoDadosWindow() override;

    /// Shows again what the command holds.
    void refresh();

  signals:
    /// "Configurações Feriados e Horas extras": whoever listens shows that window, opens the
    /// command again and refreshes this one.
    void monthSettingsRequested();
    /// "Afastamentos" of the employee selected, if one is: the same for that window.
    void leavesRequested();
    /// "+ Quadro Horário e Escala de Revezamento": the same for the rotations.
    void rotationRequested();
    /// "Espelho do Ponto": the same for the mirrors and the hours reports.
    void mirrorRequested();
    /// "Resumo Folha de Ponto": the same for the month's hours at a glance.
    void summaryRequested();

  protected:
    bool mayClose() override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    [[nodiscard]] QWidget* buildSide();
    [[nodiscard]] QWidget* buildCard();
    [[nodiscard]] QRadioButton* buildEntryMode(const QString& text, const QString& objectName,
                                               Qt::Key key);
    void buildCommands();
    void connectEmployees();
    void connectGrid(HalfMonth half);
    void addEmployeeKeys();

    [[nodiscard]] HalfMonthPanel& half(HalfMonth half) const;
    [[nodiscard]] bool isWide() const;
    void showHalf(HalfMonth half);
    /// With both halves in view a click goes to the other one without F6.
    void followCursor(HalfMonth half);
    void layOutHalves();
    void chooseEmployee(std::size_t position);
    void showCard();
    void showSheet();
    /// Goes to the day that an edit was taken back on or made again.
    void showEdit(std::optional<int> day);
    void showHours();
    void showState();
    void showStatus();
    void commitEditors();
    bool apply();
    void applyToAll();
    void save();
    /// Emits the signal once nothing is left unrecorded.
    void leaveFor(void (CartaoPontoDadosWindow::*requested)());

    CartaoPontoDados& command_;
    HalfMonth shown_ = HalfMonth::First;
    QWidget* side_ = nullptr;
    EmployeePicker* employees_ = nullptr;
    HoursSummaryPanel* hours_ = nullptr;
    SchedulePanel* schedule_ = nullptr;
    ApplicationBar* application_ = nullptr;
    QLabel* unread_ = nullptr;
    std::array<HalfMonthPanel*, 2> halves_{};
    QToolButton* otherHalf_ = nullptr;
};

}  // namespace winvrx
