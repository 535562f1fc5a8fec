#include "personnel/payslips/folha_papers.h"

#include "personnel/contract/contracted_employee.h"
#include "personnel/payslips/pay_receipt.h"
#include "personnel/payslips/pay_slips.h"
#include "personnel/payslips/payroll_report.h"
#include "report/printers.h"

namespace winvrx {

namespace {

constexpr std::string_view kPrinting = "IMPRIMINDO";
constexpr std::string_view kAdvanceEvent = "031";

const Message kNotSaved =
    refusal("Gravar Selecionado", "O Item Selecionado ainda não foi Gravado!!");
const Message kPrintPayroll = question(kPrinting, "Confirma Impressão da FOLHA DE PAGAMENTO?");
const Message kPrintSlips = question(
    kPrinting, "Confirma Impressão dos RECIBOS DE PAGAMENTO de Todos os Funcionários da Lista?");
const Message kPrintReceipt = question(kPrinting, "Confirma Impressão do RECIBO DE PAGAMENTO?");
const Message kNoAdvance =
    refusal("Adiantamento de Salário", "Não existem dados para Impressão!!!",
            "O evento 031 não tem valor: digite-o na folha, ou dê-lhe como referência o percentual "
            "do salário.");

/// The sheet with the sum behind each amount, where that is still the amount that is recorded.
PaySheet withMemos(const OpenPayroll& payroll) {
    PaySheet sheet = payroll.sheet;
    if (!payroll.isRecorded) return sheet;
    for (PayLine& line : sheet.lines) {
        const PayLine* now = payroll.now ? payroll.now->find(line.event.code) : nullptr;
        if (now != nullptr && now->amount == line.amount)
            line.memo = now->memo;
        else
            line.memo = {{"Valor gravado", moneyText(line.amount)}};
    }
    return sheet;
}

}  // namespace

bool FolhaPapers::requireEmployee() const {
    return requireContractedEmployee(at_, screen_.selected(), noEmployeeSelected());
}

bool FolhaPapers::requireSaved() const {
    const auto& shown = screen_.folha().shown();
    return (shown && shown->isRecorded && !screen_.folha().isChanged()) ||
           at_.person.refuse(kNotSaved);
}

PaperHeading FolhaPapers::heading() const {
    const Folha& folha = screen_.folha();
    const WorkMonth month = folha.month().month;
    return {screen_.company(), month, folha.run(),
            folha.law().tables.inss.at(firstDay(month)).ceiling()};
}

PaidEmployee FolhaPapers::paid(const Employee& employee, PaySheet sheet) const {
    const Folha& folha = screen_.folha();
    const EmployeeKey key{at_.session.company.value(), employee.employeeCode().value()};
    SheetDues dues = sheetDues(folha.law(), sheet, folha.month().month,
                               loadPayrollFacts(at_.store(), key).facts);
    return {employee, std::move(sheet), std::move(dues)};
}

std::vector<PaidEmployee> FolhaPapers::recorded(std::vector<std::string>& without) const {
    const WorkMonth month = screen_.folha().month().month;
    std::vector<PaidEmployee> people;
    for (const Employee& one : screen_.listed()) {
        const EmployeeKey key{at_.session.company.value(), one.employeeCode().value()};
        if (auto payroll = loadPayroll(at_.store(), key, month, screen_.folha().run()))
            people.push_back(paid(one, std::move(payroll->sheet)));
        else
            without.push_back(one.name);
    }
    return people;
}

bool FolhaPapers::print(const Message& asked, ReportRequest request, Sheets sheetsOf,
                        const PageProgress& progress) const {
    return attempt(at_, printFailed(), [&] {
        if (!requireEmployee() || !requireSaved()) return false;
        std::vector<std::string> without;
        const auto people = recorded(without);
        Message message = asked;
        if (!without.empty())
            message.detail =
                "Sem folha gravada, ficam de fora: " + namesText(without, kMostNames) + ".";
        if (!at_.person.agrees(message)) return false;
        const auto sheets = sheetsOf(heading(), people);
        ReportPages pages(sheets.size(), [&](std::size_t at) { return sheets[at]; });
        request.printerName = loadPrinterName(at_.store());
        return printPages({at_, desk_.engine, progress}, request, pages) == PrintEnd::Done;
    });
}

bool FolhaPapers::printPayroll(const PageProgress& progress) {
    return print(kPrintPayroll, payrollRequest(heading()), payrollSheets, progress);
}

bool FolhaPapers::printSlips(const PageProgress& progress) {
    return print(kPrintSlips, paySlipRequest(heading()), paySlipSheets, progress);
}

bool FolhaPapers::show(const Document& document) const {
    return attempt(at_, documentNotPrinted(), [&] { desk_.writer.show(document); });
}

bool FolhaPapers::showReceipt(bool memos) {
    return attempt(at_, incorrectData(), [&] {
        if (!requireEmployee() || !requireSaved() || !at_.person.agrees(kPrintReceipt))
            return false;
        const OpenPayroll& payroll = *screen_.folha().shown();
        return show(payReceipt(heading(), paid(payroll.month.employee, withMemos(payroll)),
                               at_.clock.today(), memos));
    });
}

bool FolhaPapers::showAdvance() {
    return attempt(at_, incorrectData(), [&] {
        if (!requireEmployee()) return false;
        const auto& shown = screen_.folha().shown();
        const Money advance = shown ? shown->sheet.amountOf(kAdvanceEvent) : Money{};
        if (advance.cents == 0) return at_.person.refuse(kNoAdvance);
        Message asked = kPrintReceipt;
        asked.detail = "Adiantamento de Salário: R$ " + moneyText(advance);
        return at_.person.agrees(asked) &&
               show(advanceReceipt(heading(), *screen_.selected(), advance, at_.clock.today()));
    });
}

}  // namespace winvrx
