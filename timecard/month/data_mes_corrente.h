#pragma once

#include "foundation/desk/command.h"
#include "timecard/month/business_days.h"
#include "timecard/month/holiday_offer.h"
#include "timecard/month/month_numbers.h"
#include "timecard/month/overtime_update.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace winvrx {

/// A ticked day as the list "Feriados:" shows it.
struct ListedHoliday {
    Date date{};
    std::string name;  ///< empty for a day that no calendar knows
};

/// The work month's screen: which month is worked on, its holidays, its closing period and its
/// overtime rules.
///
/// Holds one month as the screen shows it. Nothing is written before `record` or `confirm`, and a
/// refusal leaves every file as it was.
class DataMesCorrente {
  public:
    explicit DataMesCorrente(const Workplace& at);

    /// Shows the selected month; where none is, the one confirmed last, else the present one.
    void open();

    /// The months that the list offers: two years back to one year ahead, and the month shown.
    [[nodiscard]] std::vector<WorkMonth> months() const;
    /// Loads the month's record; where there is none, the defaults and an empty grid. False when
    /// the operator keeps unrecorded changes.
    [[nodiscard]] bool chooseMonth(WorkMonth month);
    /// Goes round the months before, of and after today.
    [[nodiscard]] bool chooseNextReference();

    /// The month as ticked and chosen; its numbers are those recorded, see `numbers`.
    [[nodiscard]] const MonthSettings& settings() const { return settings_; }
    [[nodiscard]] const MonthNumbers& numbers() const { return numbers_; }
    [[nodiscard]] MonthDayCounts counts() const { return countDays(settings_); }
    /// Whether the month has a record.
    [[nodiscard]] bool isRecorded() const { return onDisk_.has_value(); }
    /// Lines of the record that are not understood; they are kept.
    [[nodiscard]] const std::vector<UnreadLine>& unreadLines() const { return unread_; }

    /// The day of a cell of the holiday grid; nullopt outside the month.
    [[nodiscard]] std::optional<Date> dateOfCell(std::size_t cell) const;
    void tick(Date date, bool holiday) { settings_.setHoliday(date, holiday); }
    /// "Reset."
    void clearTicks() { settings_.holidayCells.fill(false); }
    /// "Restaurar": the ticks as they are recorded.
    void restoreTicks();
    /// "Gravação": whether recording takes the ticks along. Off, those on record stay.
    void setRecordTicks(bool on) { settings_.recordTicks = on; }

    /// "Feriados:": the ticked days of the month.
    [[nodiscard]] std::vector<ListedHoliday> holidays() const;
    /// What the calendar and the user's list hold of the month and nobody has ticked.
    [[nodiscard]] std::vector<Holiday> untickedHolidays() const;
    [[nodiscard]] std::string nameOf(Date date) const { return holidayNames(offer_, date); }
    /// Ticks what is offered ticked: the holidays by law and those of the user's list.
    void tickOffer();
    /// The user's list was changed: the month is offered what it holds now.
    void reloadOffer();

    /// The month whose rules a month without a record may take over: the last recorded before it,
    /// as long as they differ from those shown.
    [[nodiscard]] std::optional<WorkMonth> offeredRules() const;
    /// Takes over the overtime rules and the closing period of `offeredRules`.
    void takeOfferedRules();

    void type(const MonthNumberField& field, std::string text) {
        numbers_.*field.typed = std::move(text);
    }
    /// What is wrong with a number as typed, in one sentence; empty when nothing is.
    [[nodiscard]] std::string findingOf(const MonthNumberField& field) const;
    void setDifferentiatedPercent(bool on);
    void setMode(OvertimeMode mode) { settings_.overtime.mode = mode; }
    void setTotalsFormat(TotalsFormat format) { settings_.overtime.totalsFormat = format; }
    void setFixedMonth(bool fixed) { settings_.fixedMonth = fixed; }

    [[nodiscard]] std::string monthCaption() const;    ///< "MARÇO/2024"
    [[nodiscard]] std::string holidayHeading() const;  ///< over the grid
    /// Says, as long as the month's ticks are not on record, that offered holidays are not ticked
    /// or that the ticks were not recorded; empty when there is nothing to say.
    [[nodiscard]] std::string_view offerNotice() const;
    [[nodiscard]] std::string_view referenceCaption() const;  ///< "Referente ao Mês: …"
    [[nodiscard]] bool refersToPresentMonth() const;
    [[nodiscard]] std::string differentiatedCaption() const;
    [[nodiscard]] std::string modeNotice() const;
    /// "21/02/2024 a 20/03/2024"; empty while the closing day is no number of its range.
    [[nodiscard]] std::string closingPeriodText() const;
    /// Says how many listed employees have percentages of their own in the month that are not those
    /// of the screen; empty for none.
    [[nodiscard]] std::string ownRulesNotice() const;

    /// True when the screen holds what is not on record.
    [[nodiscard]] bool changed() const;
    /// "Gravar". True when the month was written.
    [[nodiscard]] bool record();
    /// "Confirma": records, and makes the month the selected one. Asks once about holidays that are
    /// offered to a month without recorded ticks and are not ticked.
    [[nodiscard]] bool confirm();
    /// "Atualizar p/Todos os Funcionários", with the percentages as the screen shows them; see
    /// updateOvertimeOfList.
    [[nodiscard]] std::optional<OvertimeUpdate> updateAll(const OvertimeProgress& progress);
    /// Asks before changes are given up. True when the screen may go on to something else.
    [[nodiscard]] bool mayLeave();

  private:
    void load(WorkMonth month);
    void takeRecord(std::optional<MonthRecord> record);
    void write();
    /// What tickOffer would tick.
    [[nodiscard]] std::vector<Holiday> openOffer() const;
    [[nodiscard]] bool hasRecordedTicks() const { return onDisk_ && onDisk_->recordTicks; }
    /// False when the operator wants to look at them first.
    [[nodiscard]] bool settleOpenOffer();

    Workplace at_;
    MonthSettings settings_;
    MonthNumbers numbers_;
    MonthSettings opened_;                 ///< what the screen showed before it was changed
    std::optional<MonthSettings> onDisk_;  ///< the record as it was read or written
    std::vector<UnreadLine> unread_;
    std::vector<Holiday> offer_;
    std::optional<MonthSettings> model_;         ///< whose rules are offered
    std::vector<OvertimePercents> ownPercents_;  ///< of listed employees, in this month
    bool offerSettled_ = false;                  ///< the operator was asked about offered holidays
    bool switched_ = false;  ///< the differentiated percentage was turned on or off on this screen
};

}  // namespace winvrx
