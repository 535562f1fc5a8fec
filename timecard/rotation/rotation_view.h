#pragma once

#include "timecard/month/month_settings.h"
#include "timecard/rotation/rotation_checks.h"

#include <map>
#include <string>
#include <vector>

namespace winvrx {

/// "001 ANA", by code.
using MemberNames = std::map<EmployeeCode, std::string>;
/// "001 ANA"; the code alone where nobody has it.
[[nodiscard]] std::string nameOf(const MemberNames& names, const EmployeeCode& employee);

/// A group's month as a grid: people down, days across.
struct RotationView {
    struct Day {
        Date date{};
        std::string weekday;  ///< "dom"
        bool sunday = false;
        bool holiday = false;  ///< ticked
    };
    struct Cell {
        Turn turn = Turn::Work;
        std::string letter;  ///< "F", "R", "A", "T" for work on a holiday; empty for other work
        std::string word;    ///< "Folga", "No lugar de 002 BIA"
    };
    struct Row {
        EmployeeCode employee;
        std::string name;  ///< "001 ANA"
        bool relief = false;
        std::vector<Cell> cells;  ///< one for each day
    };
    struct Foot {
        int working = 0;
        bool gap = false;
        std::string word;  ///< of a gap: "SEM FOLGUISTA"
    };

    std::vector<Day> days;
    std::vector<Row> rows;
    std::vector<Foot> coverage;
    std::string gaps;                  ///< "Dias descobertos: 03, 09 (SEM FOLGUISTA)", or empty
    std::vector<std::string> remarks;  ///< on Sundays and on the month before, a sentence each
};

/// `before` are the groups of the month before.
[[nodiscard]] RotationView viewOf(const RotationGroup& group, const MonthSettings& settings,
                                  const MemberNames& names, const Absence& absent,
                                  const std::vector<RotationGroup>& before);

/// The laws behind the remarks on Sundays, and what the register does not know.
[[nodiscard]] std::string sundayExplanation();

}  // namespace winvrx
