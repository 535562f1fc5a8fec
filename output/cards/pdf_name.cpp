#include "output/cards/pdf_name.h"

#include "foundation/values/text.h"

namespace winvrx {

namespace {

constexpr std::string_view kOpening = "CARTÃO PONTO ";
constexpr std::string_view kNotInFileNames = "/\\:*?\"<>|";
constexpr std::size_t kLongestSubject = 80;

bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
}

}  // namespace

std::string pdfNameOf(std::string_view subject, WorkMonth month) {
    std::string name(kOpening);
    for (const char c : firstCharacters(trimmed(subject), kLongestSubject))
        name += isControl(c) || kNotInFileNames.find(c) != std::string_view::npos ? '-' : c;
    return name + " " + monthKey(month) + ".pdf";
}

std::string pdfNameOf(const Employee& employee, WorkMonth month) {
    return pdfNameOf(employee.code + " " + employee.name, month);
}

}  // namespace winvrx
