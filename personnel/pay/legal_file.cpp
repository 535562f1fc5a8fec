#include "personnel/pay/legal_file.h"

#include "foundation/values/csv.h"

namespace winvrx {

namespace {

constexpr std::string_view kFirstColumn = "desde";

template <typename Value>
Value required(std::optional<Value> value, const LegalLine& line, const std::string& cell,
               const char* form) {
    if (!value) throw line.fault("\"" + cell + "\" não é " + form + ".");
    return *value;
}

}  // namespace

LegalTableFault LegalLine::fault(const std::string& cause) const {
    const std::string place = file_ + ", linha " + std::to_string(number_);
    return {"legal table " + place, "Tabela legal " + place + ": " + cause};
}

const std::string& LegalLine::take(std::string_view what) {
    if (next_ >= cells_.size() || cells_[next_].empty())
        throw fault("falta " + std::string(what) + ".");
    return cells_[next_++];
}

Date LegalLine::takeMonth() {
    const std::string& cell = take("o mês de início");
    return required(parseDate("01/" + cell), *this, cell, "um mês mm/aaaa");
}

Date LegalLine::takeDay() {
    const std::string& cell = take("o dia de início");
    return required(parseDate(cell), *this, cell, "uma data dd/mm/aaaa");
}

Money LegalLine::takeMoney() {
    const std::string& cell = take("um valor");
    return required(parseMoney(cell), *this, cell, "um valor em reais");
}

Fraction LegalLine::takeNumber() {
    const std::string& cell = take("um número");
    const Fraction number = required(parseDecimal(cell), *this, cell, "um número");
    if (number < Fraction(0)) throw fault("\"" + cell + "\" é menor que zero.");
    return number;
}

void LegalLine::requireSource() {
    (void)take("a fonte");
    if (next_ != cells_.size()) throw fault("há colunas a mais depois da fonte.");
}

std::vector<LegalLine> legalLines(std::string_view file, std::string_view bytes) {
    std::vector<LegalLine> lines;
    int number = 0;
    for (auto& cells : parseCsv(bytes)) {
        ++number;
        const bool isRemark = cells.front().starts_with('#');
        const bool isBlank = cells.size() == 1 && cells.front().empty();
        if (number == 1 && cells.front() != kFirstColumn)
            throw LegalLine(std::string(file), number, {})
                .fault("a primeira linha deve começar com \"desde;\".");
        if (number > 1 && !isRemark && !isBlank)
            lines.emplace_back(std::string(file), number, std::move(cells));
    }
    return lines;
}

}  // namespace winvrx
