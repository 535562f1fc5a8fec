#pragma once

#include "timecard/card/cartao_ponto_dados.h"

#include <QFrame>

#include <array>

class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace winvrx {

class Field;

/// The standard schedule of the employee chosen: eight times, the weekly and monthly hours.
class SchedulePanel : public QFrame {
    Q_OBJECT

  public:
    explicit SchedulePanel(CartaoPontoDados& command, QWidget* parent = nullptr);

    /// Shows the command's employee and schedule.
    void refresh();

  signals:
    void edited();
    /// "Gravar Horário" was pressed.
    void saveRequested();

  private:
    void buildTexts();
    void buildSave();
    [[nodiscard]] QGridLayout* buildTimes();
    [[nodiscard]] Field* buildTime(std::size_t position);
    void take(std::size_t position);
    void showTotals();
    [[nodiscard]] QString employeeFacts() const;

    CartaoPontoDados& command_;
    QLabel* name_ = nullptr;
    QLabel* facts_ = nullptr;
    std::array<Field*, kScheduleTimes> times_{};
    QLabel* saturday_ = nullptr;
    QLabel* weekly_ = nullptr;
    QLabel* monthly_ = nullptr;
    QLabel* hint_ = nullptr;
    QCheckBox* second_ = nullptr;
    QPushButton* save_ = nullptr;
};

}  // namespace winvrx
