#include "report/printers.h"

#include "foundation/values/text.h"

#include <algorithm>
#include <iterator>

namespace winvrx {

namespace {

constexpr int kNumberDigits = 3;
constexpr std::size_t kNameWidth = 30;

}  // namespace

std::string printerEntry(std::size_t number, std::string_view name) {
    const std::size_t width = std::max(kNameWidth, characterCount(name));
    return padded(static_cast<int>(number), kNumberDigits) + " " + fitted(name, width);
}

std::vector<std::string> printersMeant(const std::vector<std::string>& installed,
                                       std::string_view name) {
    if (std::ranges::find(installed, name) != installed.end()) return {std::string(name)};
    std::vector<std::string> meant;
    std::ranges::copy_if(installed, std::back_inserter(meant), [name](const std::string& one) {
        return trimmed(one) == name || trimmed(firstCharacters(one, kNameWidth)) == name;
    });
    return meant;
}

std::string printerProblem(const std::vector<std::string>& installed, std::string_view name) {
    const std::size_t count = printersMeant(installed, name).size();
    if (count == 0) return "A impressora " + std::string(name) + " não foi encontrada.";
    if (count == 1) return {};
    return "Há mais de uma impressora cujo nome começa com " + std::string(name) +
           ". Escolha-a de novo em \"Selecionar Impressora\".";
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
