#pragma once

#include "foundation/files/folder_names.h"
#include "foundation/register/company.h"
#include "foundation/register/employee.h"
#include "foundation/register/leave_calendar.h"
#include "report/report_engine.h"
#include "timecard/hours/hours.h"
#include "timecard/month/month_settings.h"
#include "timecard/punches/punch_record.h"
#include "timecard/schedule/standard_schedule.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What stands on a card: the header block and one row for each of its 31 lines.

namespace winvrx {

inline constexpr int kCardLines = 31;

/// The times of a day, in the order of the card.
inline constexpr std::array kPunchTimes = {&PunchLine::morningEntry,   &PunchLine::morningExit,
                                           &PunchLine::afternoonEntry, &PunchLine::afternoonExit,
                                           &PunchLine::extraEntry,     &PunchLine::extraExit};

/// The columns of `Tabela_base` for a card. Header values stand in every row of a card; day values
/// in the row of their day.
inline constexpr std::array<std::string_view, 26> kCardColumns = {
    // header block
    "razao", "cnpj", "registro", "ctps", "admissao", "funcao", "periodo", "descanso", "horario",
    "refeicao", "nome", "codigo", "mes",
    // one day
    "linha", "dia", "semana", "ent1", "sai1", "ent2", "sai2", "ent3", "sai3", "horas", "situacao",
    // the card's sums
    "total", "quinzena"};

/// The same, as a request and the layouts take them.
[[nodiscard]] const std::vector<std::string>& cardColumns();

/// "cartão", "cartões".
[[nodiscard]] PageNoun cardNoun();

/// Position of a column of kCardColumns. A name that is no column does not compile.
[[nodiscard]] consteval std::size_t cardColumn(std::string_view name) {
    for (std::size_t at = 0; at < kCardColumns.size(); ++at)
        if (kCardColumns[at] == name) return at;
    throw "no such column";
}

/// All that one card is made of.
struct CardData {
    Company company;
    Employee employee;
    MonthSettings settings;                         ///< with the employee's own overtime figures
    std::optional<StandardSchedule> schedule;       ///< nullopt: none was recorded
    std::optional<std::vector<PunchLine>> punches;  ///< nullopt: none were applied
    LeaveCalendar leaves = {};                      ///< with the admission
};

/// What the cards of a run have in common.
struct CardRunMonth {
    Store store;
    CompanyCode companyCode;
    Company company;
    MonthSettings settings;
    /// Of the folder, to tell who has leaves or percentages of his own; nullopt: each card looks.
    std::optional<FolderNames> names = {};
};

/// Reads an employee's card of the month. Throws FileFault.
[[nodiscard]] CardData loadCard(const CardRunMonth& run, const Employee& employee);

/// The header block as the screen shows it, captions included, in lines.
[[nodiscard]] std::string headerText(const CardData& card);

/// The word for a day without times: its mark, or what the calendar makes of it. Empty on a working
/// day.
[[nodiscard]] std::string situationOf(const PunchLine& line, Date date, const WorkTerms& terms);

/// Always kCardLines rows. Punches, "horas" and the situation stand only on days of the month
/// within the contract; a situation only where the day has no times,
/// "Falta Injustificada" as "Falta Inj.". "total" is the month's sum and
/// "quinzena" the sum of the row's own half of the month. Without punches a row has its header
/// values and day labels only.
[[nodiscard]] ReportRows cardRows(const CardData& card);

}  // namespace winvrx
