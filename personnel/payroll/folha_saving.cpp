#include "foundation/register/leave_file.h"
#include "personnel/payroll/contract_end.h"
#include "personnel/payroll/folha.h"

#include <algorithm>
#include <iterator>

namespace winvrx {

namespace {

constexpr std::string_view kTitle = "Folha";
constexpr std::string_view kSaveTitle = "GRAVAR";
constexpr std::string_view kSaveAllTitle = "GRAVAR TODOS";

constexpr std::string_view kNoFirstInstalment = "1º PARCELA DO 13º SALARIO NÃO GERADA!";
const Message kSecondStands = refusal(
    kTitle, "A 1º PARCELA não pode ser reaberta enquanto a 2º PARCELA do ano está gravada.");
const Message kNothingToSave = refusal(kSaveTitle, "Não Há Dados para Gravação!");

/// "\n" and the words before each line that says no event.
std::string unreadText(const OpenPayroll& payroll, std::string_view words) {
    std::string text;
    for (const std::string& line : payroll.unread)
        text += "\n" + std::string(words) + line;
    return text;
}

/// What the end of the contract has to do with a payroll that pays what it pays.
std::string endText(const EndBeside& end, const OpenPayroll& payroll, bool isPrinted) {
    std::string text = end.isActive ? "Há uma rescisão gravada, com o último dia trabalhado em " +
                                          dateText(end.last) + ", e o funcionário está ativo."
                                    : "O contrato terminou em " + dateText(end.last) + ",";
    if (end.pays)
        text += std::string(end.isActive ? " A" : " e a") + " rescisão paga " +
                paidByTheEnd(payroll.inputs.run) +
                ". Gravada esta folha, o cálculo da rescisão desconta o líquido dela, R$ " +
                moneyText(payroll.sheet.net) + ".";
    if (end.isActive)
        text += " Se ele saiu, inative-o antes em Afastamentos; se ficou, exclua ali a rescisão.";
    if (isPrinted)
        text += " O termo da rescisão já foi impresso: imprima-o de novo depois de gravar.";
    return text;
}

Message confirmSave(const OpenPayroll& payroll, std::string detail) {
    constexpr std::string_view kText = "Deseja Gravar Somente o FUNCIONARIO SELECIONADO?";
    if (payroll.isRecorded) {
        detail += std::string(detail.empty() ? "" : "\n") + "A folha já gravada será substituída.";
        detail += unreadText(payroll, "Linha não entendida, que fica como está: ");
    }
    if (detail.empty()) return question(kSaveTitle, std::string(kText));
    return riskyQuestion(kSaveTitle, std::string(kText), std::move(detail));
}

Message confirmReopen(const OpenPayroll& payroll) {
    const Employee& employee = payroll.month.employee;
    const PayrollRun run = payroll.inputs.run;
    std::string detail = "A folha de " + monthTitle(payroll.month.settings.month) + " de " +
                         employee.code + " " + employee.name + " será excluída (" +
                         std::string(captionOf(run)) + ").";
    if (run == PayrollRun::Month)
        detail +=
            " Cadastro, cartão de ponto e afastamentos deste mês voltam a ser alterados "
            "livremente.";
    detail += unreadText(payroll, "Linha não entendida, que se perde com ela: ");
    return riskyQuestion(kTitle, "Deseja Reabrir a Folha de Pagamento deste Mês?", detail);
}

std::string withoutText(PayrollRun run) {
    return run == PayrollRun::Month ? "Sem cartão de ponto, salário ou contrato no mês: "
                                    : "Sem salário ou contrato no mês: ";
}

bool hasAmounts(const PaySheet& sheet) {
    return std::ranges::any_of(sheet.lines,
                               [](const PayLine& line) { return line.amount.cents != 0; });
}

}  // namespace

void Folha::requireUnchanged() const {
    if (bytesOf(shown_->month.employee) != shown_->bytes) throw employeeChangedElsewhere("payroll");
}

void Folha::requireSameVacation() const {
    const auto& vacation = shown_->inputs.vacation;
    if (!vacation) return;
    const auto lines = vacationFile(at_.store(), keyOf(shown_->month.employee)).load();
    const VacationItem* now = vacationOf(lines, month_.month);
    if (now == nullptr || *now != *vacation) throw employeeChangedElsewhere("vacation");
}

std::vector<FileSystem::NewContent> Folha::contentsOf(const OpenPayroll& payroll,
                                                      const FolderNames& names) const {
    const Employee& employee = payroll.month.employee;
    std::vector<FileSystem::NewContent> contents{contentOf(payroll)};
    constexpr auto kFirst = PayrollRun::ThirteenthFirst;
    if (!payroll.inputs.vacation || !payroll.inputs.vacation->hasThirteenth() ||
        recordedInYear(keyOf(employee), kFirst, month_.month, names))
        return contents;
    OpenPayroll first = payroll;
    first.inputs = loadRunInputs(at_.store(), at_.session.company.value(), payroll.month, kFirst,
                                 months_, names);
    if (const auto sheet = sheetOf(first, {}))
        contents.push_back(
            payrollContent(at_.store(), keyOf(employee), month_.month, *sheet, kFirst));
    return contents;
}

bool Folha::requireFirstInstalment() const {
    if (run_ != PayrollRun::ThirteenthSecond ||
        recordedInYear(keyOf(shown_->month.employee), PayrollRun::ThirteenthFirst, month_.month,
                       namesIn(at_.store())))
        return true;
    return at_.person.refuse(refusal(kSaveTitle, std::string(kNoFirstInstalment)));
}

bool Folha::requireNoSecondInstalment() const {
    if (run_ != PayrollRun::ThirteenthFirst ||
        !recordedInYear(keyOf(shown_->month.employee), PayrollRun::ThirteenthSecond, month_.month,
                        namesIn(at_.store())))
        return true;
    return at_.person.refuse(kSecondStands);
}

bool Folha::confirmSaving() const {
    std::string detail;
    if (const auto end = endBeside(shown_->month, shown_->inputs)) {
        const auto papers = terminationFileNames(keyOf(shown_->month.employee));
        const FolderNames names = namesIn(at_.store());
        detail = endText(*end, *shown_, names.contains(papers.front()));
    }
    return at_.person.agrees(confirmSave(*shown_, std::move(detail)));
}

bool Folha::save() {
    if (!shown_ || !hasAmounts(shown_->sheet)) return at_.person.refuse(kNothingToSave);
    if (!requireNotSettled(Change::Record)) return false;
    return attempt(at_, incorrectData(), [&] {
        if (!confirmSaving()) return false;
        const auto hold = holdFolder(at_);
        requireUnchanged();
        requireSameVacation();
        if (!requireFirstInstalment()) return false;
        const auto contents = contentsOf(*shown_, namesIn(at_.store()));
        at_.files.replaceAll(contents);
        asShown_ = contents.front().bytes;
        shown_->now = shown_->sheet;
        shown_->bytes = contents.front().bytes;
        shown_->isRecorded = true;
        return true;
    });
}

bool Folha::computeAll(const std::vector<Employee>& employees, const Progress& progress,
                       std::vector<FileSystem::NewContent>& batch, Unsaved& unsaved) const {
    int done = 0;
    const FolderNames names = namesIn(at_.store());
    for (const Employee& employee : employees) {
        if (names.contains(payrollFileName(keyOf(employee), month_.month, run_)))
            unsaved.recorded.push_back(employee.name);
        else if (const auto seen = glance(employee, names);
                 const auto end = seen.payroll
                                      ? endBeside(seen.payroll->month, seen.payroll->inputs)
                                      : std::nullopt)
            (end->isActive ? unsaved.activeAfterEnd : unsaved.paidByTheEnd)
                .push_back(employee.name);
        else if (seen.payroll)
            std::ranges::move(contentsOf(*seen.payroll, names), std::back_inserter(batch));
        else if (seen.lack == PayrollGlance::Lack::FirstInstalment)
            unsaved.withoutFirst.push_back(employee.name);
        else if (seen.lack == PayrollGlance::Lack::Period)
            unsaved.withoutPeriod.push_back(employee.name);
        else
            unsaved.without.push_back(employee.name);
        if (progress && !progress(++done, static_cast<int>(employees.size()))) return false;
    }
    return true;
}

bool Folha::confirmLeftOut(const Unsaved& unsaved, bool hasBatch) const {
    std::string detail;
    const auto say = [&](const std::string& words, const std::vector<std::string>& names) {
        if (names.empty()) return;
        detail += (detail.empty() ? "" : "\n") + words + namesText(names, kMostNames);
    };
    say(std::string(kNoFirstInstalment) + " ", unsaved.withoutFirst);
    say("Sem férias gravadas para este mês: ", unsaved.withoutPeriod);
    say(withoutText(run_), unsaved.without);
    say("Contrato terminado, a rescisão paga " + paidByTheEnd(run_) + ": ", unsaved.paidByTheEnd);
    say("Rescisão gravada, funcionário ainda ativo: ", unsaved.activeAfterEnd);
    const bool leavesOut = !detail.empty();
    say("Já gravados, ficam como estão: ", unsaved.recorded);
    if (!hasBatch) {
        Message nothing = kNothingToSave;
        nothing.title = kSaveAllTitle;
        nothing.detail = detail;
        return at_.person.refuse(nothing);
    }
    return !leavesOut ||
           at_.person.agrees(question(
               kSaveAllTitle, "Não Há Dados para Gravação! Deseja Prosseguir?", std::move(detail)));
}

bool Folha::saveAll(const std::vector<Employee>& employees, const Progress& progress) {
    if (!at_.person.agrees(
            question(kSaveAllTitle, "Confirma Gravar TODOS OS FUNCIONARIOS DA LISTA?")))
        return false;
    return attempt(at_, incorrectData(), [&] {
        std::vector<FileSystem::NewContent> batch;
        Unsaved unsaved;
        if (!computeAll(employees, progress, batch, unsaved) ||
            !confirmLeftOut(unsaved, !batch.empty()))
            return false;
        const auto hold = holdFolder(at_);
        const FolderNames names = namesIn(at_.store());
        for (const auto& content : batch)
            if (names.contains(content.file.filename().string())) throw changedElsewhere("payroll");
        at_.files.replaceAll(batch);
        return true;
    });
}

bool Folha::reopen() {
    if (!shown_ || !shown_->isRecorded || !requireNotSettled(Change::Restore) ||
        !at_.person.agrees(confirmReopen(*shown_)))
        return false;
    return attemptWriting(at_, incorrectData(), [&] {
        requireUnchanged();
        requireSameVacation();
        if (!requireNoSecondInstalment()) return false;
        (void)reopenPayroll(at_.store(), keyOf(shown_->month.employee), month_.month, run_);
        shown_->bytes.reset();
        shown_->unread.clear();
        shown_->isRecorded = false;
        if (shown_->now) shown_->sheet = *std::move(shown_->now);
        shown_->now.reset();
        // What was typed is now on this screen only.
        const bool isTyped = !typedAmounts(shown_->sheet).empty();
        asShown_ = isTyped ? "" : contentOf(*shown_).bytes;
        return true;
    });
}

}  // namespace winvrx
