#include "personnel/documents/paper_memory.h"

#include "foundation/files/record_names.h"

namespace winvrx {

std::optional<std::string> keyOf(const RememberedInput& input) {
    return input.name.empty() ? std::nullopt : std::optional(input.name);
}

PaperMemory::PaperMemory(const Store& store, const EmployeeKey& key)
    : file_({store, key.company, std::string(kPaperInputsStem) + key.employee.text()}),
      lines_(file_.load()) {}

std::optional<std::string> PaperMemory::text(std::string_view name) const {
    const auto* line = findLine(lines_, std::string(name));
    return line ? std::optional(line->record.text) : std::nullopt;
}

void PaperMemory::keep(std::string_view name, const std::string& text) {
    const RememberedInput input{std::string(name), text};
    for (auto& line : lines_)
        if (line.record.name == name) {
            line = lineOf(input, line.bytes);
            return;
        }
    lines_.push_back(lineOf(input));
}

}  // namespace winvrx
