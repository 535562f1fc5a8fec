#include "personnel/termination/rescisao.h"

#include "personnel/payroll/statement_page.h"

namespace winvrx {

namespace {

void addLines(Statement& page, const std::vector<TerminationLine>& lines, bool isCredit) {
    for (const TerminationLine& line : lines) {
        StatementLine item{.words = line.words, .quantity = line.quantity};
        (isCredit ? item.credit : item.debit) = moneyText(line.amount);
        page.lines.push_back(std::move(item));
        page.addMemo(line.memo);
    }
}

/// What the page says.
Statement statementOf(const TerminationSheet& sheet, const std::vector<Rescisao::Term>& terms) {
    Statement page{.title = "Cálculo da rescisão",
                   .about = sheet.employee.code + " " + sheet.employee.name,
                   .fileName = "Rescisao-" + sheet.employee.code + ".pdf"};
    for (const Rescisao::Term& term : terms)
        page.lines.push_back({.words = term.name + ": " + term.value});
    page.addHeading("Créditos");
    addLines(page, sheet.credits, true);
    page.addHeading("Descontos");
    addLines(page, sheet.debits, false);
    page.addHeading("Totais");
    page.addTotal("Total de créditos", sheet.gross);
    page.addTotal("Total de descontos", sheet.deductions);
    page.addTotal("Líquido a receber", sheet.net);
    page.addHeading("Depósitos na conta do FGTS, que não entram no líquido");
    addLines(page, sheet.deposits, true);
    if (!sheet.remarks.empty()) page.addHeading("Observações");
    for (const std::string& remark : sheet.remarks)
        page.lines.push_back({.memo = remark});
    return page;
}

}  // namespace

bool Rescisao::load() {
    sheet_.reset();
    return attempt(at_, refusal(kTerminationTitle, "Não é Possível Calcular a Rescisão!"), [this] {
        sheet_ =
            loadTerminationSheet(at_.store(), legalFolder_, at_.session.company.value(), employee_);
    });
}

std::vector<Rescisao::Term> Rescisao::terms() const {
    const TerminationRecord& record = sheet_.value().record;
    const TerminationDates& dates = record.dates;
    return {
        {"Tipo", record.typeText, ""},
        {"Aviso", record.noticeText, dates.noticeDays.rule},
        {"Admissão", dateText(record.admission), ""},
        {"Data do aviso", dateText(dates.noticeGiven.value), dates.noticeGiven.rule},
        {"Último dia trabalhado", dateText(dates.lastDayWorked.value), dates.lastDayWorked.rule},
        {"Fim do contrato", dateText(dates.noticeEnds.value), dates.noticeEnds.rule},
        {"Pagamento até", dateText(dates.paymentDue.value), dates.paymentDue.rule},
        {"Salário", moneyText(sheet_->salary), ""}};
}

bool Rescisao::preview() const {
    return previewStatement({at_, engine_}, statementOf(sheet_.value(), terms()));
}

}  // namespace winvrx
