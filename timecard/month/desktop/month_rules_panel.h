#pragma once

#include "timecard/month/data_mes_corrente.h"

#include <QWidget>

#include <array>

class QGridLayout;
class QLabel;
class QRadioButton;
class QVBoxLayout;

namespace winvrx {

class Field;
class WrappedCheckBox;

/// The month's closing period, overtime rules and format of totals.
class MonthRulesPanel : public QWidget {
    Q_OBJECT

  public:
    explicit MonthRulesPanel(DataMesCorrente& command, QWidget* parent = nullptr);

    /// Shows the command's month.
    void refresh();

  signals:
    /// The operator changed something; the command holds it already.
    void edited();

  private:
    void addClosing(QVBoxLayout& column);
    void addOvertime(QVBoxLayout& column);
    void addTotals(QVBoxLayout& column);
    void addNumber(QGridLayout& grid, int row, int column, std::size_t place);
    [[nodiscard]] QRadioButton* addChoice(const QString& caption, const QString& objectName);
    void connectNumbers();
    void connectChoices();
    void takeNote();
    void showTexts();

    DataMesCorrente& command_;
    QRadioButton* fixedMonth_ = nullptr;
    QRadioButton* startDay_ = nullptr;
    WrappedCheckBox* differentiated_ = nullptr;
    QRadioButton* bothLevels_ = nullptr;
    QRadioButton* singleLevel_ = nullptr;
    QLabel* period_ = nullptr;
    QLabel* modeNotice_ = nullptr;
    QLabel* ownRules_ = nullptr;
    QRadioButton* clockTotals_ = nullptr;
    QRadioButton* decimalTotals_ = nullptr;
    std::array<Field*, kMonthNumberFields.size()> numbers_{};
};

}  // namespace winvrx
