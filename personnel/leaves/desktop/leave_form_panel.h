#pragma once

#include "foundation/widgets/desktop/field.h"
#include "personnel/leaves/leave_form.h"

#include <QWidget>

#include <map>

class QGridLayout;
class QHBoxLayout;
class QLabel;

namespace winvrx {

class Afastamento;

/// The fields of the leave screen: type, days and hours in a row; for a termination its types and
/// dates below, each with the rule that gives it. `command` outlives the panel.
class LeaveFormPanel : public QWidget {
    Q_OBJECT

  public:
    LeaveFormPanel(Afastamento& command, QWidget* parent);

    /// Shows what the command holds.
    void refresh();
    /// The same, but what is typed keeps what is said of it.
    void follow();
    void focus(LeaveInput input);

  signals:
    void edited();

  private:
    void buildLeave(QHBoxLayout& row);
    void buildTermination(QGridLayout& grid);
    [[nodiscard]] Field* make(std::size_t place, QWidget* parent);
    void take(LeaveInput input);
    void finish(LeaveInput input);
    void showField(LeaveInput input);
    void showNotes(LeaveInput input);
    void showParts();

    Afastamento& command_;
    std::map<LeaveInput, Field*> fields_;
    QLabel* period_ = nullptr;  ///< what the whole period meets has no room under one field
};

}  // namespace winvrx
