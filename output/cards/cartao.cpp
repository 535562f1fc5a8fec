#include "output/cards/cartao.h"

#include "foundation/register/company_register.h"
#include "report/print_pages.h"
#include "timecard/month/selected_month.h"

#include <utility>

namespace winvrx {

namespace {

constexpr auto kPrintTitle = "IMPRIMIR CARTÃO PONTO";

const Message kNoStock = refusal(kPrintTitle, "Selecione um Tipo de Cartão na Lista! ");
const Message kNoEmployee = refusal(kPrintTitle, "Selecione um Funcionário na Lista! ");
const Message kNoMonth = refusal(kPrintTitle, "Informe um Mês de Trabalho!!",
                                 "Escolha-o em \"Mês Trabalho (Todos)\" (Ctrl+M).");

Message confirmOne(ReportOutput output) {
    Message message =
        question(kPrintTitle, "Este Comando Irá Imprimir o Item Selecionado. Deseja Prosseguir?");
    if (output == ReportOutput::Preview)
        message.detail = "Com \"Visualizar\" o cartão só aparece na tela; nada é impresso.";
    else if (output == ReportOutput::PdfFile)
        message.detail = "O cartão vai para um arquivo PDF; nada é impresso.";
    return message;
}

Message confirmOutsiders(const std::vector<std::string>& names) {
    return question(kPrintTitle,
                    "Há Funcionários Inativos antes do Mês de Trabalho ou Admitidos depois dele. "
                    "Deseja Imprimir também os Cartões deles?",
                    namesText(names, kMostNames));
}

}  // namespace

Cartao::Cartao(const Workplace& at, const PrintingDesk& desk, const AlignmentMemory& alignment)
    : at_(at), desk_(desk), alignment_(alignment), list_(at.session.shiftFilter) {}

void Cartao::load() {
    (void)attempt(at_, incorrectData(), [this] {
        company_ = loadCompany(at_.store(), at_.session.company.value());
        const auto selected = loadSelectedMonth(at_.store());
        month_ = selected ? std::optional(selected->month) : std::nullopt;
        stock_ = loadStock(at_.store(), *at_.session.company);
        printer_ = loadPrinterName(at_.store());
        const bool hasUnwritten = choices_.printer != remembered_;
        remembered_ = loadPrinterMemory(at_.store(), *at_.session.company);
        if (!hasUnwritten) choices_.printer = remembered_;
        list_.load(at_.store(), *at_.session.company);
    });
}

bool Cartao::remember() {
    if (choices_.printer == remembered_) return true;
    return attemptWriting(at_, incorrectData(), [this] {
        savePrinterMemory(at_.store(), *at_.session.company, choices_.printer);
        remembered_ = choices_.printer;
    });
}

std::string Cartao::stockLabel() const {
    return stock_ ? std::string(stock_->displayName) : std::string();
}

std::string Cartao::headerPreview(std::optional<std::size_t> position) const {
    if (!month_ || !isShown(position)) return {};
    std::string text;
    (void)attempt(at_, incorrectData(),
                  [&] { text = headerText(loadCard(runMonth(), list_.employees()[*position])); });
    return text;
}

bool Cartao::printOne(std::optional<std::size_t> position, const PrintRun& run) {
    if (!at_.person.agrees(confirmOne(choices_.output))) return false;
    return requireChoices(isShown(position), run) && requirePrintingDrive(at_, wrongDrive()) &&
           print({list_.employees()[*position]}, run);
}

bool Cartao::printAll(const PrintRun& run) {
    if (!requireChoices(!list_.shown().empty(), run) || !requirePrintingDrive(at_, wrongDrive()))
        return false;
    const auto people = list_.people(
        firstDay(*month_), lastDay(*month_),
        [this](const auto& outsiders) { return at_.person.agrees(confirmOutsiders(outsiders)); });
    return !people.empty() && print(people, run);
}

bool Cartao::requireChoices(bool anyEmployee, const PrintRun& run) {
    const Message* refusal = nullptr;
    if (!stock_ || !layoutFor(stock_->code, choices_.printer.tray, LayoutSet::A))
        refusal = &kNoStock;
    else if (!anyEmployee)
        refusal = &kNoEmployee;
    else if (!month_)
        refusal = &kNoMonth;
    if (refusal) at_.person.tell(*refusal);
    if (refusal == &kNoStock && run.chooseStock) run.chooseStock();
    return !refusal;
}

bool Cartao::print(const std::vector<Employee>& people, const PrintRun& run) {
    (void)remember();
    return attempt(at_, printFailed(),
                   [&] { return printCards(at_, desk_, batchOf(people), run); });
}

CardBatch Cartao::batchOf(const std::vector<Employee>& people) const {
    const PrintScaleKey key{printer_.empty() ? desk_.printers.defaultName() : printer_,
                            std::string(stock_->code)};
    const ReportRequest request{.layoutName = {},
                                .title = std::string(kCartaoTitle),
                                .columns = cardColumns(),
                                .printHeader = choices_.printer.printHeader,
                                .alignment = loadAlignment(at_.store(), key, alignment_),
                                .exit = choices_.printer.exit,
                                .noun = cardNoun(),
                                .printerName = printer_,
                                .trays = choices_.printer.trays};
    CardRunMonth month = runMonth();
    if (people.size() > 1) month.names = namesIn(at_.store());
    return {
        .people = people,
        .companyName = company_.name,
        .period = monthKey(*month_),
        .stockCode = std::string(stock_->code),
        .choices = choices_,
        .request = request,
        .rowsOf = [month = std::move(month)](
                      const Employee& one, std::size_t) { return cardRows(loadCard(month, one)); },
        .opening = kPrintTitle};
}

CardRunMonth Cartao::runMonth() const {
    return {at_.store(), at_.session.company.value(), company_,
            loadMonthSettings(at_.store(), *month_)};
}

}  // namespace winvrx
