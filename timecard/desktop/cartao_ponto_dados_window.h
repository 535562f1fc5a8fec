#pragma once

#include "foundation/desktop/screen_window.h"
#include "timecard/cartao_ponto_dados.h"

#include <array>

class QComboBox;
class QListWidget;
class QRadioButton;
class QToolButton;
class QVBoxLayout;

namespace winvrx {

class HoursSummaryPanel;
class PunchGrid;
class PunchModel;
class SchedulePanel;
class SearchBox;

/// The time-card data window: employees at the left; schedule and punches of the one chosen at the
/// right. Both half-months stand side by side where the window is wide enough.
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

  protected:
    bool mayClose() override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    struct HalfWidgets {
        QWidget* panel = nullptr;
        QLabel* heading = nullptr;
        PunchModel* model = nullptr;
        PunchGrid* grid = nullptr;
    };

    [[nodiscard]] QWidget* buildBody();
    [[nodiscard]] QWidget* buildList();
    [[nodiscard]] QWidget* buildHours();
    [[nodiscard]] QWidget* buildCard();
    [[nodiscard]] QWidget* buildHalf(HalfMonth half);
    [[nodiscard]] QWidget* buildEntryMode();
    void buildCommands();
    void connectList();
    void addEmployeeKeys();

    [[nodiscard]] HalfWidgets& half(HalfMonth half);
    [[nodiscard]] bool isWide() const;
    void showHalf(HalfMonth half);
    void layOutHalves();
    void showList();
    void filterList(const QString& wanted);
    void chooseEmployee(int row);
    void stepEmployee(int step);
    void showCard();
    void showHours();
    void showState();
    void showUnread();
    void commitEditors();
    void apply();
    void save();
    void changeMonth();

    CartaoPontoDados& command_;
    HalfMonth shown_ = HalfMonth::First;
    QComboBox* shift_ = nullptr;
    SearchBox* search_ = nullptr;
    QListWidget* list_ = nullptr;
    QLabel* emptyHint_ = nullptr;
    QLabel* unread_ = nullptr;
    SchedulePanel* schedule_ = nullptr;
    HoursSummaryPanel* hours_ = nullptr;
    std::array<HalfWidgets, 2> halves_{};
    QToolButton* otherHalf_ = nullptr;
    QToolButton* apply_ = nullptr;
};

}  // namespace winvrx
