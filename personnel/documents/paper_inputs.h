#pragma once

#include "foundation/values/input_checks.h"
#include "personnel/documents/paper_kinds.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// What each paper asks for beside the registers: its form. An input's name is its word in the
// paper's text; a date and an amount have "<name>_extenso" too, and a choice a word "<name>_<code>"
// for each of its codes, which holds "sim" for the one chosen.

namespace winvrx {

enum class InputType { Text, Date, Time, Money, Number, Choice };

struct PaperInput {
    std::string_view name;
    std::string_view caption;
    InputType type = InputType::Date;
    std::size_t width = 10;
    std::vector<Choice> (*choices)() = nullptr;
    int least = 0;  ///< of a number
    int most = 9999;
};

/// Asked for every paper, and remembered once for the employee.
[[nodiscard]] std::span<const PaperInput> commonInputs();
/// Those of the paper alone, in the order in which they are typed.
[[nodiscard]] std::span<const PaperInput> inputsOf(Paper paper);
/// The common ones, then the paper's own.
[[nodiscard]] std::vector<PaperInput> allInputsOf(Paper paper);

/// What speaks against a text typed for the input, in one sentence; empty for what fits.
[[nodiscard]] std::string findingOf(const PaperInput& input, const std::string& text);

/// Of the salary-family term; the inputs are "filho1", "nascimento1" and so on.
inline constexpr int kMostChildren = 6;

}  // namespace winvrx
