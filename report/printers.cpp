#include "report/printers.h"

#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr int kNumberDigits = 3;
constexpr std::size_t kBeforeName = 4;
constexpr std::size_t kNameWidth = 30;

std::string shortName(std::string_view name) {
    return std::string(trimmed(firstCharacters(name, kNameWidth)));
}

}  // namespace

std::string printerEntry(std::size_t number, std::string_view name) {
    return padded(static_cast<int>(number), kNumberDigits) + " " + fitted(name, kNameWidth);
}

std::string printerOfEntry(std::string_view entry) {
    const std::size_t before = firstCharacters(entry, kBeforeName).size();
    return shortName(entry.substr(before));
}

std::optional<std::string> installedPrinter(const std::vector<std::string>& installed,
                                            std::string_view name) {
    if (std::ranges::find(installed, name) != installed.end()) return std::string(name);
    const auto isMeant = [name](const std::string& one) { return shortName(one) == name; };
    const auto found = std::ranges::find_if(installed, isMeant);
    if (found == installed.end() || std::ranges::count_if(installed, isMeant) > 1)
        return std::nullopt;
    return *found;
}

std::string loadPrinterName(const Store& store) {
    const auto values = RecordFile(store, kPrinterName).values();
    return values.empty() || values.front() == kDefaultPrinter ? std::string() : values.front();
}

void savePrinterName(const Store& store, const std::string& name) {
    RecordFile(store, kPrinterName)
        .rewriteValues({name.empty() ? std::string(kDefaultPrinter) : name});
}

}  // namespace winvrx
