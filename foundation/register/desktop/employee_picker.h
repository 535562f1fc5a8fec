#pragma once

#include "foundation/register/employee_list.h"

#include <QWidget>

#include <array>
#include <functional>
#include <span>

class QBoxLayout;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace winvrx {

class SearchBox;

/// Every shift that a list can be narrowed to.
inline constexpr std::array kAllShiftFilters = {
    ShiftFilter::Todos, ShiftFilter::Unico, ShiftFilter::Um, ShiftFilter::Dois, ShiftFilter::Tres};

/// The employees that a screen works on: shift and scale, search, list. Marks and what else is to
/// be said of an employee stand in lines under his name. An empty list says what to do next.
class EmployeePicker : public QWidget {
    Q_OBJECT

  public:
    struct Traits {
        QString screen;  ///< the prefix of the object names: "card.employees", "card.search"
        std::span<const ShiftFilter> shifts = kMenuShiftFilters;
        bool scales = false;  ///< offers the scales as a filter too
        /// Narrows the list by itself when a filter is chosen, and then says narrowed().
        bool narrows = false;
        bool ticks = false;  ///< each employee can be ticked, with the mouse or SPACE
        /// Offers everyone or only the list's subset: its object name and its caption, where "%1"
        /// is how many they are. Not offered without a caption.
        QString subsetName = {};
        QString subsetCaption = {};
        /// A second line; none when empty.
        std::function<QString(const Employee&)> details = {};
    };

    /// `list` outlives the widget. The picker tells it what is searched for; the filters, where it
    /// does not narrow by itself, are set by who listens, and then shown by refresh().
    EmployeePicker(EmployeeList& list, Traits traits, QWidget* parent);

    /// Shows the list again, on the employee whom it was on, or on the first one shown.
    void refresh();
    /// What stands in place of an empty list; an empty text leaves that to the picker. The filters
    /// can then not be changed.
    void setHint(const QString& text);
    /// Puts the cursor on the employee, whose marks may have changed, without employeeChosen().
    void select(std::optional<std::size_t> position);
    [[nodiscard]] std::optional<std::size_t> selected() const;
    /// Goes to the first employee shown when the search hides the one selected.
    void selectShown();
    /// The previous or next employee shown.
    void step(int by);
    void focusList();

  signals:
    void shiftChosen(winvrx::ShiftFilter shift);
    void subsetChosen(bool only);
    void scaleChosen(std::optional<winvrx::Scale> scale);
    void employeeChosen(std::size_t position);
    /// An employee was ticked or is no longer.
    void ticked();
    /// Another text is searched for.
    void searched();
    /// By a filter or a search; an employee who is shown is selected, if there is one.
    void narrowed();
    /// ENTER or a double click on an employee.
    void opened();

  private:
    void buildFilters(QBoxLayout& column);
    [[nodiscard]] QComboBox* buildFilter(const QString& name, const QString& spokenName);
    [[nodiscard]] QComboBox* buildScale();
    [[nodiscard]] QRadioButton* buildSubset(const QString& name, bool only);
    void buildList(QBoxLayout& column);
    template <typename Filter>
    void choose(Filter filter);
    void buildEmptyHint(QBoxLayout& column);
    [[nodiscard]] QString textOf(std::size_t position) const;
    void showFilters();
    void narrow();
    [[nodiscard]] QString emptyText() const;

    EmployeeList& list_;
    Traits traits_;
    QString hint_;
    QRadioButton* everyone_ = nullptr;
    QRadioButton* subset_ = nullptr;
    QComboBox* shift_ = nullptr;
    QComboBox* scale_ = nullptr;
    SearchBox* search_ = nullptr;
    QListWidget* rows_ = nullptr;
    QLabel* empty_ = nullptr;
    QPushButton* everyShift_ = nullptr;
};

}  // namespace winvrx
