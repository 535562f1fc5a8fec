#include "personnel/payslips/run_receipt.h"

#include "foundation/register/company_register.h"
#include "foundation/register/merge_fields.h"
#include "personnel/contract/contracted_employee.h"
#include "personnel/payslips/paid_employee.h"

namespace winvrx {

namespace {

const Message kConfirm = question("IMPRIMINDO", "Confirma Impressão do RECIBO DE PAGAMENTO?");
const Message kNotRecorded =
    refusal("Gravar Selecionado", "O Item Selecionado ainda não foi Gravado!!");

bool isVacation(const OpenPayroll& payroll) {
    return payroll.inputs.vacation.has_value();
}

/// Every line that came to something, an entry each.
std::vector<MergeWords> linesOf(const PaySheet& sheet) {
    std::vector<MergeWords> lines;
    for (const PayLine* line : paidLines(sheet)) {
        MergeWords& words = lines.emplace_back();
        words.put("codigo", line->event.code);
        words.put("evento", line->event.name);
        const std::string amount = "R$ " + moneyText(line->amount);
        words.put("credito", line->event.isEarning() ? amount : "");
        words.put("desconto", line->event.isEarning() ? "" : amount);
    }
    return lines;
}

DocumentWords receiptWords(const Workplace& at, const Company& company,
                           const OpenPayroll& payroll) {
    const Employee& employee = payroll.month.employee;
    const Date today = at.clock.today();
    DocumentWords words = isVacation(payroll)
                              ? vacationWords(company, employee, *payroll.inputs.vacation, today)
                              : DocumentWords{.words = mergeWords(company, employee)};
    MergeWords& put = words.words;
    putMonth(put, payroll.month.settings.month);
    const PaySheet& sheet = payroll.sheet;
    put.put("titulo", std::string(captionOf(payroll.inputs.run)));
    put.put("hoje", dateText(today));
    put.put("ano", std::to_string(static_cast<int>(payroll.month.settings.month.year())));
    put.put("total_creditos", "R$ " + moneyText(sheet.credits));
    put.put("total_descontos", "R$ " + moneyText(sheet.debits));
    put.put("liquido", "R$ " + moneyText(sheet.net));
    put.put("base_fgts", "R$ " + moneyText(sheet.fgtsBase));
    words.lists["eventos"] = linesOf(sheet);
    return words;
}

}  // namespace

bool showRunReceipt(const Workplace& at, const PaperDesk& desk,
                    const std::optional<OpenPayroll>& payroll) {
    return attempt(at, documentNotPrinted(), [&] {
        const Employee* employee = payroll ? &payroll->month.employee : nullptr;
        if (!requireContractedEmployee(at, employee, employeeIsNeeded())) return false;
        if (!payroll->isRecorded) return at.person.refuse(kNotRecorded);
        if (!at.person.agrees(kConfirm)) return false;
        const Company company = loadCompany(at.store(), at.session.company.value());
        const char* name = isVacation(*payroll) ? "recibo-ferias.txt" : "recibo-13.txt";
        desk.writer.show(composed(loadTemplate(at.files, desk.templateFolders(), name),
                                  "RECIBO DE PAGAMENTO", receiptWords(at, company, *payroll)));
        return true;
    });
}

}  // namespace winvrx
