#pragma once

#include "personnel/pay/legal_file.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

namespace winvrx {

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
        throw LegalTableFault("no " + name_ + " for " + dateText(date), lackText(date));
    }

    /// "Não há salário mínimo para 01/02/2020: a tabela começa em 01/03/2020."
    [[nodiscard]] std::string lackText(Date date) const {
        return "Não há " + name_ + " para " + dateText(date) + ": a tabela " +
               (lines_.empty() ? "está vazia."
                               : "começa em " + dateText(lines_.front().from) + ".");
    }

  private:
    std::string name_;
    std::vector<Line> lines_;
};

}  // namespace winvrx
