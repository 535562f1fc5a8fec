#pragma once

#include "timecard/rotation/work_table_edit.h"

#include <QWidget>

#include <array>

class QGridLayout;
class QLabel;

namespace winvrx {

class Field;

/// The work-time table of a shift and scale: seven rows of four times, and their sum.
class WorkTablePanel : public QWidget {
    Q_OBJECT

  public:
    explicit WorkTablePanel(WorkTableEdit& edit, QWidget* parent = nullptr);

    /// Shows the table as it is typed.
    void refresh();
    void takeFocus();

  signals:
    void edited();

  private:
    [[nodiscard]] QGridLayout* buildTimes();
    [[nodiscard]] Field* buildTime(std::size_t row, std::size_t cell);
    void showTotals();

    WorkTableEdit& edit_;
    QLabel* whose_ = nullptr;
    QLabel* weekly_ = nullptr;
    QLabel* finding_ = nullptr;
    std::array<std::array<Field*, kRowTimes>, kTableRows> times_{};
};

}  // namespace winvrx
