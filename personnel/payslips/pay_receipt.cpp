#include "personnel/payslips/pay_receipt.h"

#include "foundation/values/text.h"
#include "personnel/payroll/payroll_event.h"

#include <algorithm>

namespace winvrx {

namespace {

const std::string kTitle = "RECIBO DE PAGAMENTO";
const std::string kMemoTitle = "MEMÓRIA DE CÁLCULO";
constexpr int kTitleSize = 16;
constexpr int kCellSize = 10;
constexpr int kSignatureLength = 45;
constexpr int kNameWidth = 57;  // millimetres
constexpr int kAmountWidth = 28;

Paragraph bold(std::string text) {
    return {.text = std::move(text), .bold = true};
}

Paragraph amountCell(Money amount) {
    return {.text = "R$ " + moneyText(amount), .side = Paragraph::Side::Right, .points = kCellSize};
}

/// "março de 2026".
std::string monthInWords(WorkMonth month) {
    return std::string(monthName(month.month())) + " de " +
           std::to_string(static_cast<int>(month.year()));
}

class Receipt {
  public:
    explicit Receipt(const Employee& employee) : document_{kTitle + " - " + employee.name, {}} {}

    void add(Paragraph paragraph) { document_.blocks.emplace_back(std::move(paragraph)); }

    void addHeading(const PaperHeading& heading, Date issued, const std::string& what) {
        add({.text = kTitle,
             .side = Paragraph::Side::Center,
             .bold = true,
             .points = kTitleSize,
             .below = 4});
        add({.text = "Data Emissão do Documento: " + dateText(issued),
             .side = Paragraph::Side::Right});
        add({.text = monthInWords(heading.month), .side = Paragraph::Side::Right});
        if (!what.empty()) add({.text = what, .side = Paragraph::Side::Right, .bold = true});
    }

    void addParties(const Company& company, const Employee& employee) {
        add(bold("Dados da Empresa"));
        add({.text = "Nome: " + company.name});
        add({.text = "Endereço: " + company.address + " - CEP: " + company.postalCode});
        add({.text = "CNPJ: " + company.taxId, .below = 3});
        add(bold("Dados do Sócio"));
        add({.text = "Nome: " + employee.name});
        add({.text = "Cargo: " + employee.function});
        add({.text = "NIT: " + employee.socialId, .below = 4});
    }

    void addEvents(const std::vector<const PayLine*>& lines) {
        DocumentTable table{{kNameWidth, kAmountWidth, kNameWidth, kAmountWidth}, {}};
        table.rows.push_back({bold("CRÉDITOS"), {}, bold("DESCONTOS"), {}});
        for (const PayLine* line : lines) {
            const Paragraph name{.text = line->event.code + " " + line->event.name,
                                 .points = kCellSize};
            if (line->event.isEarning())
                table.rows.push_back({name, amountCell(line->amount), {}, {}});
            else
                table.rows.push_back({{}, {}, name, amountCell(line->amount)});
        }
        document_.blocks.emplace_back(std::move(table));
    }

    void addTotals(Money credits, Money debits) {
        const auto total = [&](const char* label, Money amount) {
            add(bold(label + moneyText(amount)));
        };
        add({.points = 6});
        total("TOTAL CRÉDITOS:                     R$ ", credits);
        total("TOTAL DÉBITOS:                     R$ ", debits);
        total("TOTAL LÍQUIDO:                     R$ ", credits - debits);
    }

    void addSignature() {
        add({.text = "\n\n" + std::string(kSignatureLength, '_'), .side = Paragraph::Side::Center});
        add({.text = "(Assinatura do Sócio)", .side = Paragraph::Side::Center});
    }

    void addMemos(const PaperHeading& heading, const PaidEmployee& one) {
        add({.text = kMemoTitle,
             .side = Paragraph::Side::Center,
             .bold = true,
             .points = kTitleSize,
             .startsPage = true,
             .below = 4});
        add({.text = one.employee.code + " " + one.employee.name + " · " + heading.period(),
             .below = 3});
        for (const PayLine* line : paidLines(one.sheet)) {
            add(bold(line->event.code + " " + line->event.name + ": R$ " +
                     moneyText(line->amount)));
            for (const MemoLine& sum : line->memo)
                add({.text = memoText(sum)});
        }
        add(bold("FGTS (não é descontado): R$ " + moneyText(one.dues.fgts.amount)));
        for (const MemoLine& sum : one.dues.fgts.memo)
            add({.text = memoText(sum)});
    }

    [[nodiscard]] Document take() && { return std::move(document_); }

  private:
    Document document_;
};

}  // namespace

Document payReceipt(const PaperHeading& heading, const PaidEmployee& one, Date issued, bool memos) {
    Receipt receipt(one.employee);
    receipt.addHeading(heading, issued,
                       heading.run == PayrollRun::Month ? "" : std::string(captionOf(heading.run)));
    receipt.addParties(heading.company, one.employee);
    receipt.addEvents(paidLines(one.sheet));
    receipt.addTotals(one.sheet.credits, one.sheet.debits);
    receipt.addSignature();
    if (memos) receipt.addMemos(heading, one);
    return std::move(receipt).take();
}

Document advanceReceipt(const PaperHeading& heading, const Employee& employee, Money advance,
                        Date issued) {
    PayLine line{decode<PayrollEvent>(encodeWindows1252(kAdvanceReceiptLine)), advance};
    // Taken off at the end of the month; on this paper it is what the employee is given.
    line.event.kind = "1";
    Receipt receipt(employee);
    receipt.addHeading(heading, issued, "Adiantamento de Salário");
    receipt.addParties(heading.company, employee);
    receipt.addEvents({&line});
    receipt.addTotals(advance, {});
    receipt.addSignature();
    return std::move(receipt).take();
}

}  // namespace winvrx
