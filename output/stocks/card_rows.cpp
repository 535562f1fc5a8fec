#include "output/stocks/card_rows.h"

#include "foundation/values/text.h"
#include "timecard/month/overtime_record.h"
#include "timecard/punches/situation.h"
#include "timecard/schedule/schedule_words.h"

#include <chrono>
#include <utility>

namespace winvrx {

namespace {

constexpr int kFirstHalfEnd = 15;

/// The header block as the screen shows it.
constexpr std::string_view kHeaderText =
    "Razão: {razao}\n"
    "Cnpj: {cnpj} - Reg.: {registro} CTPS: {ctps}\n"
    "Admiss: {admissao}\n"
    "Função: {funcao}\n"
    "Período.: {periodo} - Descanso Semanal: {descanso}\n"
    "{horario} - Inter.Refei.: {refeicao}";

MergeWords headerWords(const CardData& card) {
    MergeWords words = mergeWords(card.company, card.employee);
    putMonth(words, card.settings.month);
    putSchedule(words, card.schedule ? card.schedule->weekday : DaySchedule());
    return words;
}

ReportRow headerRow(const CardData& card) {
    const MergeWords words = headerWords(card);
    ReportRow row(kCardColumns.size());
    for (std::size_t at = 0; at < cardColumn("linha"); ++at)
        row[at] = words.at(kCardColumns[at]);
    return row;
}

std::string shortened(std::string situation) {
    const Situation* known = findSituation(situation);
    const bool unjustified = known && known->word == kSituationUnjustified;
    return unjustified ? std::string(kSituationUnjustifiedShort) : situation;
}

/// Fills in the rows from the punches, then the sums that only the last of them completes.
class PunchWriter {
  public:
    PunchWriter(const CardData& card, ReportRows& rows)
        : card_(card),
          terms_(workTerms(card.settings, card.settings.overtime,
                           card.schedule.value_or(StandardSchedule()), card.employee, card.leaves)),
          rows_(rows) {}

    void write(const PunchLine& line, Date date) {
        ReportRow& row = rows_[static_cast<std::size_t>(dayNumber(date) - 1)];
        if (!line.hasTimes()) {
            row[cardColumn("situacao")] = shortened(situationOf(line, date, terms_));
            return;
        }
        for (std::size_t at = 0; at < kPunchTimes.size(); ++at)
            row[cardColumn("ent1") + at] = line.*kPunchTimes[at];
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
    ReportRows& rows_;
    std::chrono::seconds firstHalf_{0};
    std::chrono::seconds secondHalf_{0};
};

}  // namespace

const std::vector<std::string>& cardColumns() {
    static const std::vector<std::string> names(kCardColumns.begin(), kCardColumns.end());
    return names;
}

PageNoun cardNoun() {
    return {"cartão", "cartões"};
}

std::string situationOf(const PunchLine& line, Date date, const WorkTerms& terms) {
    if (const auto stored = trimmed(line.situation); !stored.empty()) return std::string(stored);
    if (meaningOn(line, date, terms) == DayMeaning::Leave) return std::string(kSituationLeave);
    if (terms.isHoliday(date)) return std::string(kSituationHoliday);
    const auto weekday = weekdayOf(date);
    if (weekday == std::chrono::Sunday || weekday == terms.restDay)
        return std::string(kSituationWeeklyRest);
    return {};
}

CardData loadCard(const CardRunMonth& run, const Employee& employee) {
    const EmployeeKey key{run.companyCode, employee.employeeCode().value()};
    const auto mayHave = [&](const std::string& name) {
        return !run.names || run.names->contains(key.company.text() + name);
    };
    MonthSettings settings = run.settings;
    if (mayHave(overtimeFileName(key.employee)))
        settings.overtime = overtimeOf(run.store, key, settings);
    return {.company = run.company,
            .employee = employee,
            .settings = std::move(settings),
            .schedule = loadSchedule(run.store, key),
            .punches = loadPunches(run.store, key, run.settings.month),
            .leaves = mayHave(leaveFileName(key.employee))
                          ? loadLeaveCalendar(run.store, key, employee.admissionDate())
                          : LeaveCalendar({}, employee.admissionDate())};
}

std::string headerText(const CardData& card) {
    return headerWords(card).filled(kHeaderText);
}

ReportRows cardRows(const CardData& card) {
    ReportRows rows(kCardLines, headerRow(card));
    for (int line = 1; line <= kCardLines; ++line)
        rows[static_cast<std::size_t>(line - 1)][cardColumn("linha")] = std::to_string(line);

    const WorkMonth month = card.settings.month;
    PunchWriter writer(card, rows);
    for (int day = 1; day <= daysIn(month); ++day) {
        const Date date = plusDays(firstDay(month), day - 1);
        const auto at = static_cast<std::size_t>(day - 1);
        rows[at][cardColumn("dia")] = padded(day, 2);
        rows[at][cardColumn("semana")] = weekdayShort(weekdayOf(date));
        if (card.punches && isWithinContract(card.leaves.standingOn(date)))
            writer.write(card.punches->at(at), date);
    }
    if (card.punches) writer.writeSums();
    return rows;
}

}  // namespace winvrx
