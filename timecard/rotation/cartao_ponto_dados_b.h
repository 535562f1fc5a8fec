#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/employee_list.h"
#include "report/report_request.h"
#include "timecard/month/month_settings.h"
#include "timecard/rotation/group_draft.h"
#include "timecard/rotation/group_work.h"
#include "timecard/rotation/month_groups.h"
#include "timecard/rotation/rotation_sheet.h"
#include "timecard/rotation/work_table_edit.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace winvrx {

class ReportEngine;
class TextEditor;

/// What the rotations ask of other subjects; all outlive the commands.
struct RotationDesk {
    const PayrollLock& payroll;
    TextEditor& editor;
    ReportEngine& engine;
};

/// The screen "Quadro de Horário de  Trabalho": the work-time table of each shift and scale, and
/// the groups of the rotations in the work month.
///
/// Holds the table shown and one group as it is being edited; both are seen before anything is
/// recorded. A refusal or a failure leaves every record as it was, and the typed stays.
class CartaoPontoDadosB {
  public:
    CartaoPontoDadosB(const Workplace& at, const RotationDesk& desk);

    /// Loads month, employees, table and groups. False when no company or no month is chosen.
    [[nodiscard]] bool open();
    [[nodiscard]] const std::optional<CompanyCode>& company() const { return company_; }
    [[nodiscard]] const std::string& companyName() const { return heading_.name; }
    [[nodiscard]] const MonthSettings& settings() const { return settings_; }

    /// Shift and scale say whose table and which groups and employees are shown. False when the
    /// operator stays with unrecorded changes, or the scale bars the shift.
    [[nodiscard]] bool filterBy(ShiftFilter shift) { return narrow(shift, scale()); }
    [[nodiscard]] bool filterBy(Scale scale) { return narrow(list_.shift(), scale); }
    [[nodiscard]] ShiftFilter shift() const { return list_.shift(); }
    [[nodiscard]] Scale scale() const { return workTable_.table().scale; }

    [[nodiscard]] WorkTableEdit& workTable() { return workTable_; }
    [[nodiscard]] const WorkTableEdit& workTable() const { return workTable_; }

    /// Those of shift and scale.
    [[nodiscard]] EmployeeList& list() { return list_; }
    [[nodiscard]] const EmployeeList& list() const { return list_; }
    /// "GRUPO-001", or "S/GRUPO! …" for who is on a rotation scale without a group.
    [[nodiscard]] std::string captionOf(std::size_t position) const;
    /// Selects the group of the employee at `position`; told when he is in none.
    [[nodiscard]] bool selectGroupOf(std::size_t position);

    /// Those of shift and scale, in the order of their numbers, as they are shown: without those
    /// who may not stay in them. With the scale "Normal" of both rotation scales.
    [[nodiscard]] std::vector<RotationGroup> shownGroups() const;
    /// What is said of the month's groups: who had to leave one, and lines that nobody understands.
    [[nodiscard]] const std::vector<std::string>& notes() const { return month_.notes(); }

    /// The month that the groups could go on from; nullopt when this one has groups, or none before
    /// it has.
    [[nodiscard]] std::optional<WorkMonth> continuableFrom() const {
        return month_.continuableFrom();
    }
    /// Asks, and records this month's groups with the rhythm of that month.
    [[nodiscard]] bool continueGroups();

    /// The group being edited; nullopt when none is selected.
    [[nodiscard]] const std::optional<RotationGroup>& group() const { return draft_; }
    [[nodiscard]] bool groupChanged() const;
    /// Why the group cannot be recorded; empty when it can.
    [[nodiscard]] std::string groupFinding() const;
    [[nodiscard]] bool changed() const { return workTable_.changed() || groupChanged(); }
    /// False when the operator stays with unrecorded changes.
    [[nodiscard]] bool selectGroup(int number);
    /// "Criar Novo Grupo", of the shift and scale shown.
    [[nodiscard]] bool newGroup();
    /// "Adicionar =>" and "Adicionar Funcionários Folguista", by positions in the list.
    [[nodiscard]] bool add(const std::vector<std::size_t>& positions);
    [[nodiscard]] bool addReliefWorker(std::size_t position);
    /// What is done to the group being edited alone.
    [[nodiscard]] GroupDraft draft() { return {draft_, settings_.month}; }

    /// The month of the group being edited; empty when none is.
    [[nodiscard]] RotationView view() const;
    /// Punches of the month stand for one of its members.
    [[nodiscard]] bool applied() const;

    /// "Gravar Grupo". Where its punches were applied it asks, and applies them again.
    [[nodiscard]] bool saveGroup();
    /// "EXCLUIR GRUPO" and, for those shown, "EXCLUIR GRUPOS"; applied punches go along.
    [[nodiscard]] bool removeGroup();
    [[nodiscard]] bool removeGroups();
    /// Deletes the month's punches of the group's members.
    [[nodiscard]] bool removePunches();

    /// "FolhaRevezamento.txt" of the groups shown, in the desktop's editor.
    [[nodiscard]] bool printText();
    /// The same as pages of the report engine, one a group.
    [[nodiscard]] bool printSheets(ReportOutput output);

    /// Asks before typed but unrecorded changes are left behind.
    [[nodiscard]] bool confirmLeaving() { return !changed() || at_.person.agrees(discardTyped()); }

  private:
    void load(const CompanyCode& company, const MonthSettings& settings);
    void showGroups();  ///< again, as they are on disk
    /// The group being edited as it is on record now; none where it is gone.
    void keepDraft();
    [[nodiscard]] bool narrow(ShiftFilter shift, Scale scale);
    /// Of the month, without the one being edited.
    [[nodiscard]] std::vector<RotationGroup> otherGroups() const;
    /// As he is shown; nullptr when he is in none.
    [[nodiscard]] const RotationGroup* groupOfMember(const Employee& employee) const;
    [[nodiscard]] bool isEdited(const RotationGroup& group) const {
        return draft_ && draft_->number == group.number;
    }
    [[nodiscard]] bool requireGroup();
    [[nodiscard]] GroupWork work() const;
    [[nodiscard]] bool requireOpenMonths(const std::vector<EmployeeCode>& employees);
    [[nodiscard]] bool addMembers(const std::function<Refusal(RotationGroup&)>& adding);
    [[nodiscard]] bool confirmRecording(const std::vector<EmployeeCode>& reapplied);
    void record(const std::vector<EmployeeCode>& reapplied);
    /// Of the groups shown; empty when the operator was told why there are none.
    [[nodiscard]] std::vector<RotationSheet> requireSheets();
    [[nodiscard]] bool remove(const std::vector<RotationGroup>& groups, const std::string& title,
                              bool groupsToo);

    Workplace at_;
    RotationDesk desk_;
    std::optional<CompanyCode> company_;
    Company heading_;
    MonthSettings settings_;
    EmployeeList list_;
    WorkTableEdit workTable_;
    MonthGroups month_;
    std::optional<RotationGroup> draft_;
};

}  // namespace winvrx
