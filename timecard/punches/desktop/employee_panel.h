#pragma once

#include "timecard/punches/cartao_ponto_dados.h"

#include <QWidget>

#include <vector>

class QComboBox;
class QLabel;
class QListWidget;

namespace winvrx {

class SearchBox;

/// The employees of the card screen: shift, search and list. An employee on leave or with a closed
/// month has a second line that says so.
class EmployeePanel : public QWidget {
    Q_OBJECT

  public:
    explicit EmployeePanel(const CartaoPontoDados& command, QWidget* parent = nullptr);

    /// Shows the command's list; keeps what is searched for.
    void refresh();
    /// Puts the cursor on the employee that the command holds, whose marks may have changed.
    void showSelected();
    /// The previous or next employee shown.
    void step(int by);
    /// Places in the command's list of those that the search shows.
    [[nodiscard]] std::vector<std::size_t> shown() const;
    void focusList();

  signals:
    void shiftChosen(winvrx::ShiftFilter filter);
    void employeeChosen(std::size_t position);
    /// ENTER or a double click on an employee.
    void opened();

  private:
    void buildShift();
    void buildList();
    [[nodiscard]] QString lineOf(std::size_t position) const;
    void filter(const QString& wanted);
    void showEmptyHint();

    const CartaoPontoDados& command_;
    QComboBox* shift_;
    SearchBox* search_;
    QListWidget* list_;
    QLabel* emptyHint_;
};

}  // namespace winvrx
