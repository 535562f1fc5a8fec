#pragma once

#include "foundation/files/line_file.h"
#include "foundation/values/codes.h"

#include <array>
#include <string>
#include <string_view>

// What was typed for an employee's papers, to be offered again: "01DadosDoc001", a line for each
// input. Children of the salary-family term and what the register has no column for stand here.

namespace winvrx {

struct RememberedInput {
    std::string name;
    std::string text;
};

inline constexpr std::array kRememberedFields = {
    RecordField<RememberedInput>{&RememberedInput::name, {1, 24}, "Campo"},
    RecordField<RememberedInput>{&RememberedInput::text, {26, 200}, "Texto"},
};

template <>
struct RecordLayout<RememberedInput> : LineLayout<kRememberedFields, 225> {};

/// nullopt for a line without a name, which is kept as it stands.
[[nodiscard]] std::optional<std::string> keyOf(const RememberedInput& input);

/// The file of one employee. All functions throw FileFault.
class PaperMemory {
  public:
    PaperMemory(const Store& store, const EmployeeKey& key);

    /// nullopt for what was never typed; empty for what was emptied.
    [[nodiscard]] std::optional<std::string> text(std::string_view name) const;
    /// Throws TextFault.
    void keep(std::string_view name, const std::string& text);
    /// What the file holds with everything kept since it was read.
    [[nodiscard]] FileSystem::NewContent content() const { return file_.contentOf(lines_); }

  private:
    LineFile<RememberedInput> file_;
    LineFile<RememberedInput>::Lines lines_;
};

}  // namespace winvrx
