#pragma once

#include "personnel/pay/legal_file.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

namespace winvrx {

/// Where a day lies among the lines of a table.
enum class TableCoverage { BeforeFirst, Within, PastLast };

/// The lines of one kind, by the day from which they are valid.
template <typename Line>
class DatedTable {
  public:
    DatedTable() = default;
    explicit DatedTable(std::string name) : name_(std::move(name)) {}

    /// Takes a line; one that is valid from the same day gives way.
    void add(Line line) {
        const auto place = std::ranges::lower_bound(lines_, line.from, {}, &Line::from);
        if (place != lines_.end() && place->from == line.from)
            *place = std::move(line);
        else
            lines_.insert(place, std::move(line));
    }

    [[nodiscard]] const std::vector<Line>& lines() const { return lines_; }
    [[nodiscard]] const std::string& name() const { return name_; }

    /// nullptr before the first line.
    [[nodiscard]] const Line* find(Date date) const {
        const auto next = std::ranges::upper_bound(lines_, date, {}, &Line::from);
        return next == lines_.begin() ? nullptr : &*std::prev(next);
    }

    /// Throws LegalTableFault before the first line, naming from when the table goes.
    [[nodiscard]] const Line& at(Date date) const {
        if (const Line* line = find(date)) return *line;
        throw LegalTableFault("no " + name_ + " for " + dateText(date),
                              "Não há " + name_ + " para " + dateText(date) + ": " + beginning());
    }

    /// Past the last line is a day of a later year than that line: such figures are set anew each
    /// year.
    [[nodiscard]] TableCoverage coverageOf(Date date) const {
        if (!find(date)) return TableCoverage::BeforeFirst;
        return date.year() > lines_.back().from.year() ? TableCoverage::PastLast
                                                       : TableCoverage::Within;
    }

    /// "a tabela começa em 01/03/2020."
    [[nodiscard]] std::string beginning() const {
        if (lines_.empty()) return "a tabela está vazia.";
        return "a tabela começa em " + dateText(lines_.front().from) + ".";
    }

  private:
    std::string name_;
    std::vector<Line> lines_;
};

}  // namespace winvrx
