#pragma once

#include "foundation/files/record_file.h"
#include "foundation/values/shift.h"
#include "timecard/schedule/standard_schedule.h"

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The work-time table of a shift and scale ("Quadro de Horário de  Trabalho"): seven rows, Monday
// to Friday, "Sábado (?)" and "Domingo", of four times each. A company's tables are the lines of
// `er.rdx`; a table that is not on record is the standard one.

namespace winvrx {

inline constexpr std::size_t kTableRows = 7;
inline constexpr std::size_t kRowTimes = 4;

/// In the order of the rows.
inline constexpr std::array<std::string_view, kTableRows> kTableRowNames = {
    "Segunda", "Terça", "Quarta", "Quinta", "Sexta", "Sábado (?)", "Domingo"};

/// The times of one row as typed: morning entry and exit, afternoon entry and exit.
using TableRow = std::array<std::string, kRowTimes>;

struct WorkTable {
    Shift shift = Shift::Unico;
    Scale scale = Scale::Normal;
    std::array<TableRow, kTableRows> rows;

    [[nodiscard]] bool operator==(const WorkTable&) const = default;
};

/// "Restaurar Padrão". A 12 x 36 has every other day of the week, as three rows.
[[nodiscard]] WorkTable standardTable(Shift shift, Scale scale);

/// What stands in a row; a text that is no time counts as blank.
[[nodiscard]] DaySchedule timesOf(const TableRow& row);
/// The times of a working day. In a rotation every day of the week is worked: one whose row is
/// blank has the times of the nearest row before it that is not, around the week. Blank when all
/// are.
[[nodiscard]] DaySchedule timesOn(const WorkTable& table, std::chrono::weekday weekday);
/// The sum of the rows.
[[nodiscard]] std::chrono::seconds weeklyHours(const WorkTable& table);

/// Why the table cannot be recorded or applied, in one sentence; nullopt when it can. A text that
/// is no time, half a pair, or, in a rotation, days from Monday to Friday that differ: the hours
/// compare each working day with one schedule.
[[nodiscard]] std::optional<std::string> findingIn(const WorkTable& table);

/// Columns of a line of `er.rdx`. The layout's one place; docs/record-layouts.md shows it.
inline constexpr Column kTableShift{1, 5};
inline constexpr Column kTableScale{7, 5};
inline constexpr std::size_t kTableTimesStart = 13;
inline constexpr std::size_t kTimeWidth = 5;
inline constexpr std::size_t kTableWidth =
    kTableTimesStart - 1 + kTableRows * kRowTimes * kTimeWidth;
static_assert(kTableWidth == 152);

/// Built upon `existing`: a column that says the same keeps its bytes.
[[nodiscard]] std::string encode(const WorkTable& table, std::string existing = {});
/// nullopt for a line that names no shift or no scale.
[[nodiscard]] std::optional<WorkTable> decodeTable(std::string_view lineBytes);

/// The first line of the company's file for shift and scale, else the standard table.
[[nodiscard]] WorkTable loadTable(const Store& store, const CompanyCode& company, Shift shift,
                                  Scale scale);
/// Other lines stay as they are.
void saveTable(const Store& store, const CompanyCode& company, const WorkTable& table);

}  // namespace winvrx
