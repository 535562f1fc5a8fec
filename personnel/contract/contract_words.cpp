#include "personnel/contract/contract_words.h"

#include "foundation/files/folder_names.h"
#include "foundation/files/record_names.h"
#include "foundation/values/text.h"
#include "personnel/contract/amount_in_words.h"
#include "personnel/contract/contract_file.h"
#include "timecard/schedule/standard_schedule.h"

#include <array>

namespace winvrx {

namespace {

constexpr std::array<std::string_view, kContractKinds.size()> kTemplates = {
    "contrato-indeterminado.txt", "contrato-experiencia.txt", "contrato-prazo.txt",
    "contrato-domestico.txt", "contrato-intermitente.txt"};

std::string textOf(const std::optional<Date>& date) {
    return date ? dateText(*date) : std::string();
}

std::string textOf(const TimePair& pair) {
    return pair.complete() ? "das " + timeText(*pair.entry) + " às " + timeText(*pair.exit) : "";
}

/// "segunda a sexta, das 08:00 às 12:00 e das 13:00 às 17:00; sábado, das 08:00 às 12:00".
std::string textOf(const StandardSchedule& schedule) {
    const auto textOfDay = [](std::string_view name, const DaySchedule& day) {
        const std::string times = joined({textOf(day.morning), textOf(day.afternoon)}, " e ");
        return times.empty() ? times : std::string(name) + ", " + times;
    };
    return joined(
        {textOfDay("segunda a sexta", schedule.weekday), textOfDay("sábado", schedule.saturday)},
        "; ");
}

std::string addressOf(const Company& company) {
    const std::string place = joined({company.address, company.district, company.city}, ", ");
    return joined({place, company.state}, "/");
}

std::string cut(const std::string& text, std::string Contract::*member) {
    const std::size_t width = fieldHolding(kContractFields, member).column.width;
    return std::string(trimmed(firstCharacters(text, width)));
}

/// Of the company's other contracts, the last one by name.
std::optional<Contract> neighbour(const Store& store, const CompanyCode& company) {
    const FolderNames names = namesIn(store);
    std::optional<Contract> found;
    std::optional<EmployeeCode> last;
    const std::string beginning = company.text() + std::string(kContractStem);
    for (const std::string& name : beginningWith(names, beginning))
        if (const auto code = EmployeeCode::parse(name.substr(beginning.size()))) last = code;
    if (last)
        if (const auto line = loadContract(store, {company, *last})) found = line->record;
    return found;
}

}  // namespace

std::string contractTemplateName(const Contract& contract) {
    return std::string(kTemplates[static_cast<std::size_t>(contract.kindOf().value())]);
}

MergeWords contractWords(const Company& company, const Employee& employee,
                         const Contract& contract) {
    MergeWords words = mergeWords(company, employee);
    if (employee.registration.empty()) words.put("registro", contract.registration);
    if (employee.sheet.empty()) words.put("ficha", contract.sheet);
    const auto amount = parseAmountForWords(contract.salary);
    words.put("salario", contract.salary);
    words.put("salario_extenso", amount ? amountInProse(*amount) : std::string());
    words.put("tipo_contrato", contract.kind);
    words.put("inicio", contract.begins);
    words.put("dias_experiencia", contract.trialDays);
    words.put("fim_experiencia", textOf(contract.trialEnd()));
    words.put("dias_prorrogacao", contract.extensionDays);
    words.put("fim_prorrogacao", textOf(contract.extendedEnd()));
    words.put("fim_prazo", contract.ends);
    words.put("motivo", contract.reason);
    words.put("local_trabalho", contract.workplace);
    words.put("horario", contract.schedule);
    words.put("estabelecimento", contract.establishment);
    words.put("data_assinatura", contract.signedOn);
    const auto day = parseDate(contract.signedOn);
    const std::string month = day ? std::string(monthName(day->month())) : std::string();
    const std::string year = day ? std::to_string(static_cast<int>(day->year())) : std::string();
    words.put("mes_assinatura", month);
    words.put("ano_assinatura", year);
    words.put("data_extenso",
              day ? std::to_string(dayNumber(*day)) + " de " + month + " de " + year : month);
    return words;
}

Contract proposedContract(const Store& store, const Company& company, const EmployeeKey& key,
                          const Employee& employee) {
    Contract contract;
    contract.kind = kContractKinds[static_cast<std::size_t>(ContractKind::Indefinite)];
    contract.begins = employee.admission;
    contract.signedOn = employee.admission;
    contract.salary = employee.salary;
    contract.workplace = cut(addressOf(company), &Contract::workplace);
    if (const auto schedule = loadSchedule(store, key))
        contract.schedule = cut(textOf(*schedule), &Contract::schedule);
    if (const auto other = neighbour(store, key.company)) {
        contract.workplace = other->workplace;
        contract.establishment = other->establishment;
    }
    return contract;
}

}  // namespace winvrx
