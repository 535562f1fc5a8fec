#include "personnel/vacation/vacation_notice.h"

#include "foundation/register/company_register.h"
#include "foundation/register/merge_fields.h"
#include "personnel/contract/contracted_employee.h"

namespace winvrx {

namespace {

constexpr std::string_view kTitle = "IMPRIMINDO";
constexpr const char* kTemplate = "aviso-ferias.txt";
const Message kNothingRecorded =
    refusal("Férias", "Selecione e Grave um Período Aquisitivo de Férias Desejado!");

}  // namespace

DocumentWords vacationWords(const Company& company, const Employee& employee,
                            const VacationItem& item, Date today) {
    DocumentWords words{.words = mergeWords(company, employee)};
    MergeWords& put = words.words;
    const LeavePeriod away = item.away().value();
    put.put("aquisicao_inicio", item.acquisitionFirst);
    put.put("aquisicao_fim", item.acquisitionLast);
    put.put("limite", dateText(periodOf(employee.admissionDate(), item).limit));
    put.put("ferias_inicio", item.first);
    put.put("ferias_fim", item.last);
    put.put("ferias_dias", std::to_string(item.days()));
    put.put("ferias_vendidos", item.soldDays() == 0 ? "" : std::to_string(item.soldDays()));
    put.put("ferias_retorno", dateText(plusDays(away.last, 1)));
    put.put("ferias_aviso", dateText(vacationNoticeDue(away.first)));
    put.put("ferias_pagamento", dateText(vacationPaymentDue(away.first)));
    put.put("com_13", item.hasThirteenth() ? "sim" : "");
    put.put("hoje", dateText(today));
    return words;
}

bool printVacationNotice(const Workplace& at, const PaperDesk& desk, const Employee* employee,
                         const VacationItem* item) {
    return attempt(at, documentNotPrinted(), [&] {
        if (!requireContractedEmployee(at, employee, employeeIsNeeded())) return false;
        if (item == nullptr || item->isProvision()) {
            at.person.tell(kNothingRecorded);
            return false;
        }
        if (!at.person.agrees(question(kTitle, "Confirma Impressão do AVISO DE FÉRIAS?")))
            return false;
        const Company company = loadCompany(at.store(), at.session.company.value());
        desk.writer.print(
            composed(loadTemplate(at.files, desk.templateFolders(), kTemplate), "AVISO DE FÉRIAS",
                     vacationWords(company, *employee, *item, at.clock.today())),
            {});
        return true;
    });
}

}  // namespace winvrx
