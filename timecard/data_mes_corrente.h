#pragma once

#include "foundation/command.h"
#include "timecard/business_days.h"
#include "timecard/month_settings.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

/// The numbers of the screen as they are typed.
struct MonthNumbers {
    std::string minimumPercent;
    std::string maximumPercent;
    std::string nightMinimumPercent;
    std::string nightMaximumPercent;
    std::string thresholdHours;
    std::string closingDay;

    [[nodiscard]] bool operator==(const MonthNumbers&) const = default;
};

/// One typed number: where it goes, which values it takes and what the screen calls it.
struct MonthNumberField {
    std::string MonthNumbers::*typed;
    int OvertimeRules::*rule;  ///< nullptr for the closing day
    int lowest;
    int highest;
    std::string_view caption;

    [[nodiscard]] int valueIn(const MonthSettings& settings) const {
        return rule ? settings.overtime.*rule : settings.closingDay;
    }
    void put(MonthSettings& settings, int value) const {
        (rule ? settings.overtime.*rule : settings.closingDay) = value;
    }
};

inline constexpr std::array kMonthNumberFields = {
    MonthNumberField{&MonthNumbers::minimumPercent, &OvertimeRules::minimumPercent, 0,
                     kHighestPercent, "Hora Extra Índice Mínimo:"},
    MonthNumberField{&MonthNumbers::maximumPercent, &OvertimeRules::maximumPercent, 0,
                     kHighestPercent, "Hora Extra Índice Máximo:"},
    MonthNumberField{&MonthNumbers::nightMinimumPercent, &OvertimeRules::nightMinimumPercent, 0,
                     kHighestPercent, "Hora Extra Noturna Mínima:"},
    MonthNumberField{&MonthNumbers::nightMaximumPercent, &OvertimeRules::nightMaximumPercent, 0,
                     kHighestPercent, "Hora Extra Noturna Máxima:"},
    MonthNumberField{&MonthNumbers::thresholdHours, &OvertimeRules::thresholdHours, 0,
                     kHighestThreshold, "Horas"},
    MonthNumberField{&MonthNumbers::closingDay, nullptr, 1, kHighestClosingDay,
                     "Iníciar todo dia:"},
};

/// The work month's screen: which month is worked on, its holidays, its closing period and its
/// overtime rules.
///
/// Holds one month as the screen shows it. Nothing is written before `record` or `confirm`, and a
/// refusal leaves every file as it was.
class DataMesCorrente {
  public:
    explicit DataMesCorrente(const Workplace& at);

    /// Shows the selected month; the desk's present month where none is selected.
    void open();

    /// The months that the list offers: two years back to one year ahead, and the month shown.
    [[nodiscard]] std::vector<WorkMonth> months() const;
    /// Loads the month's record or its defaults. False when the operator keeps unrecorded changes.
    [[nodiscard]] bool chooseMonth(WorkMonth month);
    /// Goes round the months before, of and after today.
    [[nodiscard]] bool chooseNextReference();

    /// The month as ticked and chosen; its numbers are those recorded, see `numbers`.
    [[nodiscard]] const MonthSettings& settings() const { return settings_; }
    [[nodiscard]] const MonthNumbers& numbers() const { return numbers_; }
    [[nodiscard]] MonthDayCounts counts() const { return countDays(settings_); }

    /// The day of a cell of the holiday grid; nullopt outside the month.
    [[nodiscard]] std::optional<Date> dateOfCell(std::size_t cell) const;
    void tick(Date date, bool holiday);
    /// "Reset."
    void clearTicks();
    /// "Restaurar": the ticks as they are recorded.
    void restoreTicks();
    /// "Gravação": whether recording takes the ticks along. Off, those on record stay.
    void setRecordTicks(bool on);

    void type(const MonthNumberField& field, std::string text);
    /// What is wrong with a number as typed, in one sentence; empty when nothing is.
    [[nodiscard]] std::string findingOf(const MonthNumberField& field) const;
    void setDifferentiatedPercent(bool on);
    void setMode(OvertimeMode mode);
    void setTotalsFormat(TotalsFormat format);
    void setFixedMonth(bool fixed);

    [[nodiscard]] std::string monthCaption() const;           ///< "MARÇO/2024"
    [[nodiscard]] std::string holidayHeading() const;         ///< over the grid
    [[nodiscard]] std::string_view referenceCaption() const;  ///< "Referente ao Mês: …"
    [[nodiscard]] bool refersToPresentMonth() const;
    [[nodiscard]] std::string differentiatedCaption() const;
    [[nodiscard]] std::string modeNotice() const;

    /// True when the screen holds what is not on record.
    [[nodiscard]] bool changed() const;
    /// "Gravar". True when the month was written.
    [[nodiscard]] bool record();
    /// "Confirma": records, and makes the month the selected one.
    [[nodiscard]] bool confirm();
    /// Asks before changes are given up. True when the screen may go on to something else.
    [[nodiscard]] bool mayLeave();

  private:
    void load(WorkMonth month);
    [[nodiscard]] MonthSettings checked() const;
    void write();

    Workplace at_;
    MonthSettings settings_;
    MonthSettings recorded_;
    MonthNumbers numbers_;
    bool switched_ = false;  ///< the differentiated percentage was turned on or off on this screen
};

}  // namespace winvrx
