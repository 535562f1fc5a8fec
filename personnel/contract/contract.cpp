#include "personnel/contract/contract.h"

#include "foundation/values/text.h"
#include "personnel/contract/amount_in_words.h"

#include <algorithm>
#include <chrono>

namespace winvrx {

namespace {

constexpr int kMostDays = 99;

/// 0 for an empty text; nullopt for what is no count of days.
std::optional<int> daysIn(const std::string& text) {
    return text.empty() ? std::optional(0) : parseWholeNumber(text, 1, kMostDays);
}

std::optional<Date> lastOf(const std::optional<Date>& begins, int days) {
    if (!begins || days <= 0) return std::nullopt;
    return plusDays(*begins, days - 1);
}

class Judge {
  public:
    explicit Judge(const Contract& contract) : contract_(contract) {}

    Findings<Contract> findings() {
        if (!contract_.kind.empty() && !contract_.kindOf())
            find(&Contract::kind, "não é um tipo conhecido.");
        judgeDate(&Contract::begins);
        judgeDate(&Contract::signedOn);
        if (!contract_.salary.empty() && !parseAmountForWords(contract_.salary))
            find(&Contract::salary, "“" + contract_.salary + "” não é um valor até " +
                                        moneyText(kGreatestInWords) + ".");
        if (contract_.hasTrial()) judgeTrial();
        if (contract_.kindOf() == ContractKind::FixedTerm) judgeTerm();
        return std::move(findings_);
    }

  private:
    void find(std::string Contract::*member, std::string text) {
        findings_.push_back({member, std::move(text)});
    }

    void judgeDate(std::string Contract::*member) {
        const std::string& text = contract_.*member;
        if (!text.empty() && !parseDate(text)) find(member, "“" + text + "” não é uma data.");
    }

    void judgeTrial() {
        const auto days = daysIn(contract_.trialDays);
        const auto more = daysIn(contract_.extensionDays);
        if (!days) find(&Contract::trialDays, "informe de 1 a 90 dias.");
        if (!more) find(&Contract::extensionDays, "informe de 1 a 89 dias, ou deixe em branco.");
        if (!days || !more) return;
        if (*days == 0 && contract_.kindOf() == ContractKind::Trial)
            find(&Contract::trialDays, "informe quantos dias dura a experiência.");
        if (*days == 0 && *more > 0)
            find(&Contract::extensionDays, "não há experiência para prorrogar.");
        if (*days > kLongestTrial || *days + *more > kLongestTrial)
            find(*days > kLongestTrial ? &Contract::trialDays : &Contract::extensionDays,
                 "experiência e prorrogação passam de 90 dias.");
    }

    void judgeTerm() {
        judgeDate(&Contract::ends);
        if (contract_.ends.empty()) find(&Contract::ends, "informe o último dia do prazo.");
        if (contract_.reason.empty())
            find(&Contract::reason,
                 "diga o serviço transitório ou a atividade que justifica o "
                 "prazo.");
        const auto begins = parseDate(contract_.begins);
        const auto ends = parseDate(contract_.ends);
        if (!begins || !ends) return;
        if (*ends < *begins) find(&Contract::ends, "termina antes de começar.");
        const auto years = *begins + std::chrono::years(kLongestTermYears);
        const Date limit = years.ok() ? years : Date(years.year() / years.month() / 28);
        if (*ends >= limit) find(&Contract::ends, "passa de dois anos.");
    }

    const Contract& contract_;
    Findings<Contract> findings_;
};

}  // namespace

std::optional<ContractKind> Contract::kindOf() const {
    const auto found = std::ranges::find(kContractKinds, kind);
    if (found == kContractKinds.end()) return std::nullopt;
    return static_cast<ContractKind>(found - kContractKinds.begin());
}

bool Contract::hasTrial() const {
    return kindOf() == ContractKind::Trial || kindOf() == ContractKind::Domestic;
}

std::optional<Date> Contract::trialEnd() const {
    return hasTrial() ? lastOf(parseDate(begins), daysIn(trialDays).value_or(0)) : std::nullopt;
}

std::optional<Date> Contract::extendedEnd() const {
    const auto first = trialEnd();
    const int more = daysIn(extensionDays).value_or(0);
    return first && more > 0 ? std::optional(plusDays(*first, more)) : std::nullopt;
}

std::optional<Date> Contract::lastDay() const {
    if (kindOf() == ContractKind::FixedTerm) return parseDate(ends);
    const auto extended = extendedEnd();
    return extended ? extended : trialEnd();
}

Findings<Contract> wrongIn(const Contract& contract) {
    return Judge(contract).findings();
}

Findings<Contract> doubtsAbout(const Contract& contract, const Employee& employee) {
    Findings<Contract> found;
    const auto admission = employee.admissionDate();
    const auto begins = parseDate(contract.begins);
    if (admission && begins && *admission != *begins)
        found.push_back(
            {&Contract::begins, "a admissão do cadastro é " + employee.admission + "."});
    const auto paid = parseMoney(employee.salary);
    const auto agreed = parseMoney(contract.salary);
    if (paid && agreed && *paid != *agreed)
        found.push_back({&Contract::salary, "o salário do cadastro é " + employee.salary + "."});
    return found;
}

}  // namespace winvrx
