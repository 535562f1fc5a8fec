#include "personnel/contract/contrato_trabalho.h"

#include "foundation/desk/document_template.h"
#include "foundation/register/company_register.h"
#include "personnel/contract/amount_in_words.h"
#include "personnel/contract/contract_file.h"
#include "personnel/contract/contract_words.h"
#include "personnel/contract/contracted_employee.h"
#include "report/print_pages.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::string_view kTitle = "Contrato de Trabalho";
const std::string kPrintTitle = "Imprimir Contrato de Trabalho CTPS";

Message wrongAmount(const std::string& typed) {
    const auto amount = parseMoney(typed);
    return refusal(
        "Valor", "Valor Digitado Incorreto!",
        amount ? "O maior valor que se escreve por extenso é " + moneyText(kGreatestInWords) + "."
               : "Digite um valor como 1.850,00.");
}

}  // namespace

ContratoTrabalho::ContratoTrabalho(const Workplace& at, const ContractDesk& desk)
    : at_(at),
      desk_(desk),
      list_(at.session.shiftFilter),
      calibration_(at, desk.engine, std::string(kTitle)) {}

bool ContratoTrabalho::load() {
    return attempt(at_, incorrectData(), [this] {
        const CompanyCode& company = at_.session.company.value();
        company_ = loadCompany(at_.store(), company);
        list_.load(at_.store(), company);
        if (!selected() && !list_.shown().empty()) list_.select(list_.shown().front());
        readSelected();
        endingTrials_ = endingTrialsText(at_.store(), company, at_.clock.today());
        return loadPrinter();
    });
}

bool ContratoTrabalho::loadPrinter() {
    return attempt(at_, incorrectData(), [this] {
        printer_ = loadPrinterName(at_.store());
        calibration_.load({printer_.empty() ? desk_.printers.defaultName() : printer_,
                           std::string(kBookletPaper)},
                          {.printerName = printer_});
    });
}

bool ContratoTrabalho::select(std::optional<std::size_t> position) {
    const auto before = list_.selectedPosition();
    list_.select(position);
    const bool read = attempt(at_, incorrectData(), [this] { readSelected(); });
    if (!read) list_.select(before);
    return read;
}

void ContratoTrabalho::readSelected() {
    const auto line = selected() ? loadContract(at_.store(), key()) : std::nullopt;
    contract_ = line         ? line->record
                : selected() ? proposedContract(at_.store(), company_, key(), *selected())
                             : Contract();
    bytes_ = line ? std::optional(line->bytes) : std::nullopt;
    blamed_ = nullptr;
}

EmployeeKey ContratoTrabalho::key() const {
    return {at_.session.company.value(), selected()->employeeCode().value()};
}

Findings<Contract> ContratoTrabalho::findings(const Contract& typed) const {
    auto found = wrongIn(typed);
    if (const Employee* one = selected())
        std::ranges::move(doubtsAbout(typed, *one), std::back_inserter(found));
    return found;
}

bool ContratoTrabalho::refuse(const Message& message, std::string Contract::*blamed) {
    blamed_ = blamed;
    return at_.person.refuse(message);
}

bool ContratoTrabalho::requireEmployee() {
    blamed_ = nullptr;
    return selected() || refuse(noEmployeeSelected());
}

bool ContratoTrabalho::requireSalary(const Contract& typed) {
    return parseAmountForWords(typed.salary) ||
           refuse(wrongAmount(typed.salary), &Contract::salary);
}

bool ContratoTrabalho::requireSound(const Contract& typed) {
    if (const auto missing = missingIn(typed); !missing.empty())
        return refuse(refusal(kTitle, "Dados incorretos!", missingText(missing)),
                      missing.front().member);
    if (!requireSalary(typed)) return false;
    auto wrong = wrongIn(typed);
    std::ranges::move(unstorableIn(typed, contract_), std::back_inserter(wrong));
    return wrong.empty() || refuse(refusal(kTitle, "Dados incorretos!", captioned(wrong.front())),
                                   wrong.front().member);
}

bool ContratoTrabalho::confirmSaving(const Contract& typed) {
    constexpr std::string_view kText =
        "Confirma Gravar o Contrato de Trabalho do Funcionário Selecionado?";
    const std::string doubts = joined(doubtsAbout(typed, *selected()), "\n", captioned<Contract>);
    const std::string detail =
        joined({isRecorded() ? "O contrato já gravado será substituído." : "", doubts}, "\n");
    return at_.person.agrees(isRecorded() ? riskyQuestion(kTitle, std::string(kText), detail)
                                          : question(kTitle, std::string(kText), detail));
}

void ContratoTrabalho::requireUnchanged() const {
    const auto line = loadContract(at_.store(), key());
    if ((line ? std::optional(line->bytes) : std::nullopt) != bytes_)
        throw employeeChangedElsewhere("contract");
    (void)requireRegistered(at_.store(), key());
}

bool ContratoTrabalho::save(const Contract& typed) {
    if (!requireEmployee() || !requireSound(typed) || !confirmSaving(typed)) return false;
    return attemptWriting(at_, incorrectData(), [&] {
        requireUnchanged();
        saveContract(at_.store(), key(), typed, bytes_.value_or(std::string()));
        readSelected();
        endingTrials_ = endingTrialsText(at_.store(), key().company, at_.clock.today());
    });
}

bool ContratoTrabalho::remove() {
    if (!requireEmployee()) return false;
    if (!isRecorded())
        return refuse(
            refusal(kTitle, "Não Existe Contrato de Trabalho Gerado para este Funcionário!!"));
    if (!at_.person.agrees(riskyQuestion(
            kTitle, "Confirma Excluir o Contrato de Trabalho do Funcionário Selecionado?",
            selected()->code + " " + selected()->name + ": " + contract_.kind + ", desde " +
                contract_.begins + ".")))
        return false;
    return attemptWriting(at_, incorrectData(), [&] {
        requireUnchanged();
        (void)at_.files.remove(at_.session.folder.file(contractFileName(key())));
        readSelected();
        endingTrials_ = endingTrialsText(at_.store(), key().company, at_.clock.today());
    });
}

bool ContratoTrabalho::printBox(const Contract& typed, BookletPlace place, ReportOutput output) {
    if (!requireEmployee() || !requireSalary(typed) || !loadPrinter()) return false;
    if (output == ReportOutput::Printer &&
        !at_.person.agrees(question(
            kPrintTitle,
            "Imprimir Página " + std::string(kBookletPlaces[static_cast<std::size_t>(place)]) + "?",
            "Ponha a carteira aberta na impressora, com a borda de cima à frente e no meio da "
            "bandeja.")))
        return false;
    const ReportRequest request{.layoutName = std::string(kBookletLayout),
                                .title = kPrintTitle,
                                .columns = bookletColumns(),
                                .alignment = {.scale = calibration_.scale()},
                                .noun = {"página", "páginas"},
                                .output = output,
                                .printerName = printer_};
    ReportPages page(
        1, [&](std::size_t) { return bookletRows(boxLines(company_, *selected(), typed), place); });
    return printPages({at_, desk_.engine}, request, page) == PrintEnd::Done;
}

bool ContratoTrabalho::showText(const Contract& typed) {
    blamed_ = nullptr;
    return attempt(at_, documentNotPrinted(), [&] {
        if (!requireContractedEmployee(at_, selected(), noEmployeeSelected())) return false;
        if (!isRecorded() || typed != contract_)
            return refuse(refusal(kTitle, "Dados incorretos!",
                                  "Grave o contrato antes: o texto é o do contrato gravado."));
        if (!contract_.kindOf())
            return refuse(
                refusal(kTitle, "Dados incorretos!", "O contrato gravado não diz de que tipo é."),
                &Contract::kind);
        const auto source =
            loadTemplate(at_.files, desk_.templateFolders(), contractTemplateName(contract_));
        desk_.writer.show(composed(source, "Contrato de trabalho - " + selected()->name,
                                   {.words = contractWords(company_, *selected(), contract_)}));
        return true;
    });
}

std::string endingTrialsText(const Store& store, const CompanyCode& company, Date today) {
    const auto ending = endingTrials(store, company, today);
    if (ending.empty()) return {};
    const std::string last = dateText(ending.back().lastDay);
    if (ending.size() == 1)
        return "Experiência de " + ending.front().employee.name + " até " + last;
    return std::to_string(ending.size()) + " experiências terminam até " + last;
}

}  // namespace winvrx
