#include "personnel/contract/booklet_box.h"

#include "foundation/values/text.h"
#include "personnel/contract/amount_in_words.h"

namespace winvrx {

namespace {

constexpr std::size_t kSalaryLines = 3;
constexpr std::size_t kStreetWidth = 40;
constexpr std::size_t kFunctionWidth = 30;
constexpr std::size_t kSignatureWidth = 52;

std::string centred(std::string_view text) {
    return std::string((kBoxWidth - characterCount(text)) / 2, ' ') + std::string(text);
}

/// The text in as many lines as it needs, cut at blanks.
std::vector<std::string> wrapped(const std::string& text, std::size_t width) {
    std::vector<std::string> lines(1);
    std::string_view rest = text;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(' ', 1), rest.size());
        const std::string_view word = rest.substr(0, end);
        if (characterCount(lines.back()) + characterCount(word) > width && !lines.back().empty())
            lines.emplace_back();
        lines.back() += lines.back().empty() ? trimmed(word) : word;
        rest.remove_prefix(end);
    }
    return lines;
}

std::string recorded(const std::string& inRegister, const std::string& inContract) {
    return inRegister.empty() ? inContract : inRegister;
}

void addSignature(std::vector<std::string>& lines) {
    lines.push_back(std::string(kSignatureWidth, '_'));
    lines.emplace_back(".        Ass. do empregador ou a rogo c/test.");
}

}  // namespace

std::vector<std::string> boxLines(const Company& company, const Employee& employee,
                                  const Contract& contract) {
    const Money salary = parseAmountForWords(contract.salary).value();
    const std::string witnesses = "1._______________________ 2._________________________ ";
    std::vector<std::string> lines = {
        centred("CONTRATO DE TRABALHO"),
        "Empregador: " + company.name,
        "CNPJ/MF: " + company.taxId,
        "Rua: " + fitted(company.address, kStreetWidth) + " UF: " + company.state,
        "Municipio: " + company.city,
        "Esp. do estabelecimento: " + contract.establishment,
        "Cargo: " + fitted(employee.function, kFunctionWidth) + " CBO: " + employee.occupation,
        "Data admissão: " + contract.begins,
        "Registro n.: " + recorded(employee.registration, contract.registration) +
            " Fls./Ficha: " + recorded(employee.sheet, contract.sheet)};
    auto pay = wrapped("Remuneração específicada: R$ " + moneyText(salary) + " (" +
                           std::string(trimmed(amountInWords(salary))) + ")",
                       kBoxWidth);
    pay.resize(std::max(pay.size(), kSalaryLines));
    lines.insert(lines.end(), pay.begin(), pay.end());
    addSignature(lines);
    lines.push_back(witnesses);
    lines.emplace_back("Data Saída: _______/______________________/________ ");
    addSignature(lines);
    lines.push_back(witnesses);
    lines.emplace_back("Com. Dispensa CD N. _________________________________ ");
    return lines;
}

std::vector<std::string> bookletColumns() {
    return {"esquerda", "direita"};
}

ReportRows bookletRows(const std::vector<std::string>& box, BookletPlace place) {
    const bool right = place == BookletPlace::RightAbove || place == BookletPlace::RightBelow;
    const bool below = place == BookletPlace::LeftBelow || place == BookletPlace::RightBelow;
    ReportRows rows(2 * kBoxLines + kLinesBetween, ReportRow(bookletColumns().size()));
    const std::size_t first = below ? kBoxLines + kLinesBetween : 0;
    for (std::size_t line = 0; line < box.size() && first + line < rows.size(); ++line)
        if (!box[line].empty())
            rows[first + line][right ? 1 : 0] =
                std::string(right ? kRightIndent : kLeftIndent, ' ') + box[line];
    return rows;
}

}  // namespace winvrx
