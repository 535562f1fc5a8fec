#include "output/cards/pdf_name.h"

#include "foundation/values/text.h"

namespace winvrx {

namespace {

constexpr std::string_view kNotInFileNames = "/\\:*?\"<>|";
constexpr std::size_t kLongestSubject = 80;

bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
}

}  // namespace

std::string pdfNameOf(std::string_view subject, const PdfNaming& naming) {
    std::string name = naming.title + " ";
    for (const char c : firstCharacters(trimmed(subject), kLongestSubject))
        name += isControl(c) || kNotInFileNames.find(c) != std::string_view::npos ? '-' : c;
    return name + " " + naming.period + ".pdf";
}

std::string pdfNameOf(const Employee& employee, const PdfNaming& naming) {
    return pdfNameOf(employee.code + " " + employee.name, naming);
}

}  // namespace winvrx
