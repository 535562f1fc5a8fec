#include "personnel/payroll/payroll_facts.h"

#include "foundation/files/record_file.h"
#include "foundation/files/record_names.h"
#include "foundation/values/text.h"

#include <array>

namespace winvrx {

namespace {

constexpr int kMostPeriods = 9;
constexpr int kWhole = 100;  // per cent

template <typename Value>
struct Inner {
    using Type = Value;
};
template <typename Value>
struct Inner<std::optional<Value>> {
    using Type = Value;
};

std::string textOf(const std::optional<Money>& amount) {
    return amount ? moneyText(*amount) : std::string();
}
std::string textOf(Money amount) {
    return amount.cents == 0 ? std::string() : moneyText(amount);
}
std::string textOf(const Fraction& percent) {
    return percent == Fraction(0) ? std::string() : decimalText(percent, 2);
}
std::string textOf(std::optional<int> count) {
    return count ? std::to_string(*count) : std::string();
}
std::string textOf(bool yes) {
    return yes ? std::string(kYes) : std::string();
}

template <typename Value>
std::optional<Value> read(std::string_view text);
template <>
std::optional<Money> read(std::string_view text) {
    return parseMoney(text);
}
template <>
std::optional<Fraction> read(std::string_view text) {
    const auto percent = parseDecimal(text);
    if (!percent || *percent < Fraction(0) || *percent > Fraction(kWhole)) return std::nullopt;
    return percent;
}
template <>
std::optional<int> read(std::string_view text) {
    return parseWholeNumber(text, 0, kMostPeriods);
}
template <>
std::optional<bool> read(std::string_view text) {
    if (text == kYes) return true;
    return text == kNo ? std::optional(false) : std::nullopt;
}

template <auto Member>
constexpr PayrollFact fact(std::string_view key, std::string_view title, std::string_view effect,
                           FactKind kind) {
    return {key,
            title,
            effect,
            kind,
            [](const PayrollFacts& facts) { return textOf(facts.*Member); },
            [](PayrollFacts& facts, std::string_view text) {
                using Value = std::remove_reference_t<decltype(facts.*Member)>;
                const auto said = read<typename Inner<Value>::Type>(trimmed(text));
                if (!said && !trimmed(text).empty()) return false;
                facts.*Member = said ? Value(*said) : Value{};
                return true;
            }};
}

using F = PayrollFacts;
using enum FactKind;

constexpr std::array kFacts = {
    fact<&F::voucherPerDay>("vale-dia", "Passagens por dia (R$)",
                            "Desconta o menor entre 6% e o custo dos dias trabalhados; 0,00 é sem "
                            "vale-transporte.",
                            Amount),
    fact<&F::alimony>("pensao", "Pensão alimentícia por mês (R$)",
                      "Por decisão judicial: é descontada e reduz a base do IRRF.", Amount),
    fact<&F::alimonyOfGross>("pensao-bruto", "Pensão alimentícia (% do bruto)",
                             "Dos créditos tributáveis, menos faltas; soma-se ao valor por mês.",
                             Percent),
    fact<&F::alimonyOfNet>("pensao-liquido", "Pensão alimentícia (% do líquido)",
                           "Do bruto menos INSS e IRRF, e este já sem a própria pensão.", Percent),
    fact<&F::privatePension>("previdencia", "Previdência privada por mês (R$)",
                             "É descontada e reduz a base do IRRF.", Amount),
    fact<&F::isApprentice>("aprendiz", "Aprendiz", "FGTS de 2% no lugar de 8%.", YesNo),
    fact<&F::averages>("medias", "Média mensal de variáveis (R$)",
                       "Na rescisão, no lugar da média das horas extras dos cartões.", Amount),
    fact<&F::fgtsAccount>("fgts-saldo", "Saldo do FGTS para a rescisão (R$)",
                          "Do extrato da conta: a multa é sobre ele e o depósito da rescisão.",
                          Amount),
    fact<&F::overduePeriods>("ferias-vencidas", "Férias vencidas (períodos)",
                             "Na rescisão, períodos completos ainda não gozados.", Count),
    fact<&F::doubledPeriods>(
        "ferias-em-dobro", "Férias em dobro (períodos)",
        "Na rescisão, quantos dos vencidos passaram do limite (CLT, art. 137).", Count),
    fact<&F::endsByAgreement>("acordo", "Rescisão por acordo (CLT, art. 484-A)",
                              "Metade do aviso indenizado e multa de 20%; vale para a rescisão sem "
                              "justa causa ou o pedido de demissão registrado.",
                              YesNo),
};

/// False, and nothing taken, for a line that says no fact.
bool takeFactLine(PayrollFacts& facts, std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) return false;
    for (const PayrollFact& fact : kFacts)
        if (trimmed(line.substr(0, equals)) == fact.key)
            return fact.take(facts, line.substr(equals + 1));
    return false;
}

}  // namespace

std::span<const PayrollFact> payrollFactTable() {
    return kFacts;
}

std::string payrollFactsName(const EmployeeKey& key) {
    return key.company.text() + std::string(kPayrollFactsStem) + key.employee.text();
}

RecordedFacts loadPayrollFacts(const Store& store, const EmployeeKey& key) {
    RecordedFacts recorded;
    for (const std::string& line : RecordFile(store, payrollFactsName(key)).values())
        if (!line.empty() && !takeFactLine(recorded.facts, line)) recorded.unread.push_back(line);
    return recorded;
}

void savePayrollFacts(const Store& store, const EmployeeKey& key, const PayrollFacts& facts) {
    std::vector<std::string> lines;
    for (const PayrollFact& fact : kFacts)
        if (const std::string text = fact.text(facts); !text.empty())
            lines.push_back(encodeWindows1252(std::string(fact.key) + " = " + text));
    RecordFile file(store, payrollFactsName(key));
    PayrollFacts ignored;
    for (std::string& bytes : file.lines())
        if (!bytes.empty() && !takeFactLine(ignored, decodeWindows1252(bytes)))
            lines.push_back(std::move(bytes));
    file.rewrite(lines);
}

}  // namespace winvrx
