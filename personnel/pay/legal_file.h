#pragma once

#include "foundation/values/date.h"
#include "foundation/values/faults.h"
#include "personnel/pay/fraction.h"

#include <string>
#include <string_view>
#include <vector>

// The text files of figures that the law sets. The first line names the columns, a line that begins
// with "#" is a remark, every other one is a figure that is valid from a month or a day on:
//
//     desde; salário mínimo; fonte
//     01/2026; 1.621,00; Decreto 12.797/2025
//
// A line that cannot be understood is refused with file, line and cause: no figure is guessed.

namespace winvrx {

class LegalTableFault : public Fault {
  public:
    using Fault::Fault;
};

/// A line of such a file being read: its cells one after the other, the last is the source.
class LegalLine {
  public:
    LegalLine(std::string file, int number, std::vector<std::string> cells)
        : file_(std::move(file)), number_(number), cells_(std::move(cells)) {}

    /// "mm/yyyy"
    [[nodiscard]] Date takeMonth();
    /// "dd/mm/yyyy"
    [[nodiscard]] Date takeDay();
    [[nodiscard]] Money takeMoney();
    [[nodiscard]] Fraction takeNumber();
    /// Throws where the line does not end with its source.
    void requireSource();

    /// Whether only the source is left.
    [[nodiscard]] bool isAtSource() const { return next_ + 1 >= cells_.size(); }

    /// Whether `count` cells are left before the source.
    [[nodiscard]] bool hasLeft(std::size_t count) const {
        return next_ + count + 1 == cells_.size();
    }

    [[nodiscard]] LegalTableFault fault(const std::string& cause) const;

  private:
    [[nodiscard]] const std::string& take(std::string_view what);

    std::string file_;
    int number_;
    std::vector<std::string> cells_;
    std::size_t next_ = 0;
};

/// The lines of figures in a file's bytes, UTF-8 or Windows-1252; `file` is the name for faults.
[[nodiscard]] std::vector<LegalLine> legalLines(std::string_view file, std::string_view bytes);

}  // namespace winvrx
