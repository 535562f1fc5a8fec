#pragma once

#include "foundation/desk/browser.h"
#include "foundation/desk/command.h"
#include "timecard/month/local_holidays.h"

#include <string>
#include <vector>

namespace winvrx {

/// A line of the list as it is typed.
struct TypedHoliday {
    std::string day;  ///< "25/01" for every year, "25/01/2024" for one
    std::string name;

    [[nodiscard]] bool operator==(const TypedHoliday&) const = default;
};

/// The list of the town's and the state's holidays: include, change and delete lines.
///
/// Holds the list as the screen shows it. A command that is refused or fails leaves list and file
/// as they were, and each reads the file again first. Recorded months do not change with the list.
class Feriados {
  public:
    Feriados(const Workplace& at, Browser& browser) : at_(at), browser_(browser) {}

    void load();
    [[nodiscard]] const std::vector<LocalHolidayLine>& lines() const { return lines_; }

    /// What is wrong with a day as typed, in one sentence; empty when nothing is.
    [[nodiscard]] static std::string findingOf(const std::string& day);

    /// Appends a line. True when it was recorded.
    [[nodiscard]] bool include(const TypedHoliday& typed);
    [[nodiscard]] bool change(std::size_t position, const TypedHoliday& typed);
    [[nodiscard]] bool remove(std::size_t position);
    /// Asks before typed but unrecorded text is left behind. True when it may go.
    [[nodiscard]] bool mayDiscardTyped();
    void help();

  private:
    /// The list on disk; throws Fault when it is not the one that the screen shows.
    [[nodiscard]] std::vector<LocalHolidayLine> linesAsShown() const;
    void save(std::vector<LocalHolidayLine> lines);

    Workplace at_;
    Browser& browser_;
    std::vector<LocalHolidayLine> lines_;
};

}  // namespace winvrx
