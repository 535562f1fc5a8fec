#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/employee_list.h"
#include "timecard/card/card_days.h"
#include "timecard/month/month_settings.h"
#include "timecard/punches/list_application.h"
#include "timecard/schedule/typed_schedule.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// The time-card data screen: the standard schedule of each employee of the selected company and
/// the punches of the work month.
///
/// Holds the employee list and the card of the employee chosen. A refusal or a failure leaves every
/// record as it was, and what was typed stays on the screen.
class CartaoPontoDados {
  public:
    CartaoPontoDados(const Workplace& at, const PunchDesk& desk);

    /// Loads the work month and the list; the filter stays, at first that of the main window, and
    /// so does the employee chosen before if the list has him. False when no company or no month
    /// is chosen.
    [[nodiscard]] bool open();
    [[nodiscard]] const std::optional<CompanyCode>& company() const { return company_; }
    [[nodiscard]] const std::string& companyName() const { return companyName_; }
    [[nodiscard]] const MonthSettings& settings() const { return settings_; }
    [[nodiscard]] EmployeeList& list() { return list_; }
    [[nodiscard]] const EmployeeList& list() const { return list_; }
    /// False when the operator stays with unrecorded changes.
    [[nodiscard]] bool filterBy(ShiftFilter shift) {
        return narrow([&] { list_.filterBy(shift); });
    }
    [[nodiscard]] bool filterBy(std::optional<Scale> scale) {
        return narrow([&] { list_.filterBy(scale); });
    }

    /// Loads the card of the employee at `position` of the list. False when the operator stays with
    /// unrecorded changes, or it cannot be read.
    [[nodiscard]] bool select(std::size_t position);
    [[nodiscard]] std::optional<std::size_t> selectedPosition() const { return position_; }
    [[nodiscard]] const Employee* selected() const;  ///< nullptr when there is none
    [[nodiscard]] EmployeeMarks marks() const;       ///< none when there is none selected

    [[nodiscard]] TypedSchedule& schedule() { return schedule_; }
    [[nodiscard]] const TypedSchedule& schedule() const { return schedule_; }
    [[nodiscard]] std::string weeklyCaption() const;   ///< "44,0 HORAS SEMANAIS"
    [[nodiscard]] std::string monthlyCaption() const;  ///< "220,0 HORAS MENSAIS"
    [[nodiscard]] std::string_view saturdayCaption() const;
    [[nodiscard]] bool saveSchedule();

    /// True when the employee has a punch record for the month.
    [[nodiscard]] bool applied() const { return applied_; }
    /// "Minutos Fixos" or "Minutos Variados", for the whole installation.
    [[nodiscard]] Minutes minutes() const { return minutes_; }
    [[nodiscard]] bool chooseMinutes(Minutes minutes);
    /// The situation that an application gives to days of work without times.
    void setSituationToApply(std::string_view situation);

    /// "Aplicar Ponto": fills the month from the standard schedule.
    [[nodiscard]] bool applyPunches();
    /// "Aplicar Ponto p/Todos" for those whom the list shows: each card from the employee's own
    /// schedule or, with `sameHours`, from that of the one selected, which becomes his. Who cannot
    /// be filled stays as he is and is named at the end; cancelling leaves everyone as he was.
    [[nodiscard]] bool applyToAll(bool sameHours, const ListApplication::Progress& progress = {});
    /// How many cards the last application filled.
    [[nodiscard]] int filledCards() const { return filledCards_; }

    /// Lines of the record that stand for no day, as they can be shown; they are kept.
    [[nodiscard]] const std::vector<std::string>& unreadLines() const { return unreadLines_; }

    /// The month is closed for the employee selected: "Folha Fechada".
    [[nodiscard]] bool closed() const { return marks().closed; }
    /// False when the month is closed, which the operator is then told.
    [[nodiscard]] bool requireEditable();
    /// Puts the cells of a spreadsheet into the sheet, from `day` and `cell` on. False when that
    /// is refused.
    [[nodiscard]] bool pasteCells(int day, PunchCell cell, std::string_view text);
    [[nodiscard]] CardSheet& sheet() { return sheet_; }
    [[nodiscard]] const CardSheet& sheet() const { return sheet_; }
    /// As they stand on the screen; they live as long as the sheet.
    [[nodiscard]] CardDays days() const;
    /// The days of work that typing has left without times and without a situation.
    [[nodiscard]] std::vector<int> daysWithoutSituation() const;
    /// Changes a percentage of extra hours of the employee, in a month that is not closed.
    [[nodiscard]] bool changePercent(HourCategory category, std::string_view typed);
    [[nodiscard]] bool savePunches();

    /// Records the schedule and the punches, each when it was changed. False when one was refused.
    [[nodiscard]] bool saveChanges();
    [[nodiscard]] bool changed() const { return schedule_.changed() || sheet_.changed(); }
    /// Asks whether unrecorded changes are to be recorded. True when the screen may go on to
    /// something else: they are recorded or given up.
    [[nodiscard]] bool confirmLeaving();

  private:
    void loadList(const CompanyCode& company, const MonthSettings& settings);
    [[nodiscard]] bool narrow(const std::function<void()>& filter);
    /// Shows the card of who bears the code, a blank one if the list has nobody who does.
    void loadCardOf(const std::string& code);
    void loadCard(std::size_t position);
    void showPunches(std::optional<PunchRecord> record);
    [[nodiscard]] MarkedLeaves leavesOf(const Employee& employee) const;
    [[nodiscard]] bool requireSelection();
    /// Tells the operator when the month of the employee selected is closed now.
    [[nodiscard]] bool requireOpenMonth();
    void requireReadableSchedule() const;
    void requireScheduleAsShown() const;
    void requireStorableSituation() const;
    /// Offers to record a schedule that was typed. False when it stays unrecorded.
    [[nodiscard]] bool saveTypedSchedule();
    [[nodiscard]] bool confirmApplication();
    [[nodiscard]] bool confirmListApplication(const std::vector<std::size_t>& positions,
                                              bool sameHours);
    [[nodiscard]] ApplicationOrder applicationOrder() const;
    [[nodiscard]] bool fillAll(const std::vector<std::size_t>& positions, bool sameHours,
                               const ListApplication::Progress& progress);
    /// Shows what was written for the employee selected: of who rotates also the schedule.
    void showApplied();
    [[nodiscard]] bool confirmBlankDays();
    [[nodiscard]] EmployeeKey selectedKey() const;
    [[nodiscard]] std::filesystem::path punchFile() const;

    Workplace at_;
    PunchDesk desk_;
    std::optional<CompanyCode> company_;
    std::string companyName_;
    MonthSettings settings_;
    OvertimeRules overtime_;
    EmployeeList list_;
    std::optional<std::size_t> position_;
    LeaveCalendar leaves_;  ///< of the employee selected
    TypedSchedule schedule_;
    CardSheet sheet_;
    std::vector<std::string> unreadLines_;
    Minutes minutes_ = Minutes::Fixed;
    std::string situationToApply_;
    int filledCards_ = 0;
    bool applied_ = false;
};

}  // namespace winvrx
