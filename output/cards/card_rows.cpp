#include "output/cards/card_rows.h"

#include "foundation/values/text.h"
#include "timecard/hours/hours.h"
#include "timecard/punches/situation.h"

#include <chrono>

namespace winvrx {

namespace {

constexpr int kFirstHalfEnd = 15;

std::string pairText(const TimePair& pair) {
    if (!pair.entry && !pair.exit) return {};
    const auto shown = [](const std::optional<TimeOfDay>& time) {
        return time ? timeText(*time) : std::string();
    };
    return "Ent:" + shown(pair.entry) + " Saí:" + shown(pair.exit);
}

DaySchedule weekdaySchedule(const CardData& card) {
    return card.schedule ? card.schedule->weekday : DaySchedule();
}

CardRow headerRow(const CardData& card) {
    const Employee& employee = card.employee;
    CardRow row;
    row[cardColumn("razao")] = card.company.name;
    row[cardColumn("cnpj")] = card.company.taxId;
    row[cardColumn("registro")] = employee.registration;
    row[cardColumn("ctps")] = employee.workBooklet;
    row[cardColumn("admissao")] = employee.admission;
    row[cardColumn("funcao")] = employee.function;
    row[cardColumn("periodo")] = periodText(card.settings.month);
    row[cardColumn("descanso")] = restDayText(employee);
    row[cardColumn("horario")] = scheduleText(weekdaySchedule(card));
    row[cardColumn("refeicao")] = mealText(weekdaySchedule(card));
    row[cardColumn("nome")] = employee.name;
    row[cardColumn("codigo")] = employee.code;
    row[cardColumn("mes")] = monthTitle(card.settings.month);
    return row;
}

bool hasTimes(const PunchLine& line) {
    for (const std::string* time : {&line.morningEntry, &line.morningExit, &line.afternoonEntry,
                                    &line.afternoonExit, &line.extraEntry, &line.extraExit})
        if (!trimmed(*time).empty()) return true;
    return false;
}

/// The word for a day without times.
std::string situationOf(const CardData& card, const PunchLine& line, Date date) {
    if (const auto stored = trimmed(line.situation); !stored.empty()) {
        const Situation* known = findSituation(stored);
        const bool unjustified = known && known->word == kSituationUnjustified;
        return std::string(unjustified ? kSituationUnjustifiedShort : stored);
    }
    if (card.settings.isHoliday(date)) return std::string(kSituationHoliday);
    const auto weekday = weekdayOf(date);
    if (weekday == std::chrono::Sunday || weekday == weeklyRestOf(card.employee))
        return std::string(kSituationWeeklyRest);
    return {};
}

void putTimes(CardRow& row, const PunchLine& line) {
    row[cardColumn("ent1")] = line.morningEntry;
    row[cardColumn("sai1")] = line.morningExit;
    row[cardColumn("ent2")] = line.afternoonEntry;
    row[cardColumn("sai2")] = line.afternoonExit;
    row[cardColumn("ent3")] = line.extraEntry;
    row[cardColumn("sai3")] = line.extraExit;
}

/// Fills in the rows from the punches, then the sums that only the last of them completes.
class PunchWriter {
  public:
    PunchWriter(const CardData& card, std::vector<CardRow>& rows)
        : card_(card),
          terms_(workTerms(card.settings, card.settings.overtime,
                           card.schedule.value_or(StandardSchedule()), card.employee)),
          rows_(rows) {}

    void write(const PunchLine& line, Date date) {
        CardRow& row = rows_[static_cast<std::size_t>(dayNumber(date) - 1)];
        if (!hasTimes(line)) {
            row[cardColumn("situacao")] = situationOf(card_, line, date);
            return;
        }
        putTimes(row, line);
        const std::chrono::seconds worked = dayHours(line, date, terms_).worked();
        if (worked > worked.zero()) row[cardColumn("horas")] = shown(worked);
        (dayNumber(date) <= kFirstHalfEnd ? firstHalf_ : secondHalf_) += worked;
    }

    void writeSums() {
        for (std::size_t at = 0; at < rows_.size(); ++at) {
            rows_[at][cardColumn("total")] = shown(firstHalf_ + secondHalf_);
            rows_[at][cardColumn("quinzena")] =
                shown(at < static_cast<std::size_t>(kFirstHalfEnd) ? firstHalf_ : secondHalf_);
        }
    }

  private:
    [[nodiscard]] std::string shown(std::chrono::seconds duration) const {
        return formatted(duration, card_.settings.overtime.totalsFormat);
    }

    const CardData& card_;
    WorkTerms terms_;
    std::vector<CardRow>& rows_;
    std::chrono::seconds firstHalf_{0};
    std::chrono::seconds secondHalf_{0};
};

}  // namespace

std::string restDayText(const Employee& employee) {
    return std::string(weekdayName(weeklyRestOf(employee)));
}

std::string scheduleText(const DaySchedule& schedule) {
    const std::string morning = pairText(schedule.morning);
    const std::string afternoon = pairText(schedule.afternoon);
    return morning + (morning.empty() || afternoon.empty() ? "" : " ") + afternoon;
}

std::string mealText(const DaySchedule& schedule) {
    if (!schedule.morning.exit || !schedule.afternoon.entry) return {};
    return timeText(*schedule.morning.exit) + " às " + timeText(*schedule.afternoon.entry);
}

std::string periodText(WorkMonth month) {
    return dateText(firstDay(month)) + " a " + dateText(lastDay(month));
}

std::string headerText(const CardData& card) {
    const Employee& employee = card.employee;
    std::string text = "Razão: " + card.company.name;
    text += "\nCnpj: " + card.company.taxId;
    text += " - Reg.: " + employee.registration;
    text += " CTPS: " + employee.workBooklet;
    text += "\nAdmiss: " + employee.admission;
    text += "\nFunção: " + employee.function;
    text += "\nPeríodo.: " + periodText(card.settings.month);
    text += " - Descanso Semanal: " + restDayText(employee);
    text += "\n" + scheduleText(weekdaySchedule(card));
    text += " - Inter.Refei.: " + mealText(weekdaySchedule(card));
    return text;
}

std::vector<CardRow> cardRows(const CardData& card) {
    std::vector<CardRow> rows(kCardLines, headerRow(card));
    for (int line = 1; line <= kCardLines; ++line)
        rows[static_cast<std::size_t>(line - 1)][cardColumn("linha")] = std::to_string(line);

    const WorkMonth month = card.settings.month;
    const Date from = card.employee.admissionDate().value_or(firstDay(month));
    PunchWriter writer(card, rows);
    for (int day = 1; day <= daysIn(month); ++day) {
        const Date date = plusDays(firstDay(month), day - 1);
        const auto at = static_cast<std::size_t>(day - 1);
        rows[at][cardColumn("dia")] = padded(day, 2);
        rows[at][cardColumn("semana")] = weekdayShort(weekdayOf(date));
        if (card.punches && date >= from) writer.write(card.punches->at(at), date);
    }
    if (card.punches) writer.writeSums();
    return rows;
}

}  // namespace winvrx
