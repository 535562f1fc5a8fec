#include "personnel/payroll/folha.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::string_view kTitle = "Folha";
constexpr std::string_view kSaveTitle = "GRAVAR";
constexpr std::string_view kSaveAllTitle = "GRAVAR TODOS";

const Message kNoCard =
    question(kTitle, "Planilha de Ponto não Preenchida! Deseja ir para a Planilha de Ponto?");
const Message kFirstBeforeSecond =
    refusal(kTitle, "Antes de Gerar a 2º Parcela  DO 13º, grave a 1º PARCELA!!");
constexpr std::string_view kNoFirstInstalment = "1º PARCELA DO 13º SALARIO NÃO GERADA!";
const Message kSecondStands = refusal(
    kTitle, "A 1º PARCELA não pode ser reaberta enquanto a 2º PARCELA do ano está gravada.");
const Message kNothingToSave = refusal(kSaveTitle, "Não Há Dados para Gravação!");

Message noSalary(const Employee& employee) {
    const std::string salary = employee.salary.empty() ? moneyText({}) : employee.salary;
    return refusal(kTitle, "Erro! Valor do Salário deste Funcionário = R$ " + salary +
                               "!     Clique no Botão Funcionário e Altere o Valor do Salário.");
}

Message confirmSave(const OpenPayroll& payroll) {
    constexpr std::string_view kText = "Deseja Gravar Somente o FUNCIONARIO SELECIONADO?";
    if (!payroll.isRecorded) return question(kSaveTitle, std::string(kText));
    std::string detail = "A folha já gravada será substituída.";
    for (const std::string& line : payroll.unread)
        detail += "\nLinha não entendida, que se perde: " + line;
    return riskyQuestion(kSaveTitle, std::string(kText), detail);
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
    return riskyQuestion(kTitle, "Deseja Reabrir a Folha de Pagamento deste Mês?", detail);
}

std::string withoutText(PayrollRun run) {
    return run == PayrollRun::Month ? "Sem cartão de ponto, salário ou contrato no mês: "
                                    : "Sem salário ou contrato no mês: ";
}

Message noContractDays(const Employee& employee, WorkMonth month) {
    Message message = incorrectData();
    message.detail =
        "O contrato de " + employee.name + " não tem dias em " + monthTitle(month) + ".";
    return message;
}

/// What keeps the sheet from being computed; whether the contract has days, the sheet shows.
PayrollGlance::Lack lackOf(const OpenPayroll& payroll) {
    using enum PayrollGlance::Lack;
    const RunInputs& inputs = payroll.inputs;
    if (inputs.run == PayrollRun::Month && !payroll.month.hours) return Card;
    if (inputs.run == PayrollRun::ThirteenthSecond && !inputs.firstPaid) return FirstInstalment;
    return salaryOf(payroll.month.employee) ? Nothing : Salary;
}

bool hasAmounts(const PaySheet& sheet) {
    return std::ranges::any_of(sheet.lines,
                               [](const PayLine& line) { return line.amount.cents != 0; });
}

}  // namespace

bool hasMovedOn(const OpenPayroll& payroll) {
    if (!payroll.isRecorded || !payroll.now) return payroll.isRecorded;
    const auto amount = [](const PayLine& line) { return std::pair(line.event.code, line.amount); };
    return !std::ranges::equal(payroll.sheet.lines, payroll.now->lines, {}, amount, amount);
}

bool Folha::load(WorkMonth month, PayrollRun run) {
    shown_.reset();
    run_ = run;
    return attempt(at_, incorrectData(), [&] {
        const Store store = at_.store();
        tables_ = loadLegalTables(store, legalFolder_);
        companyEvents_ = companyEvents(store, at_.session.company.value()).load();
        settings_ = loadPayrollSettings(store, at_.session.company.value()).settings;
        months_ = {};
        month_ = months_.of(store, month);
    });
}

std::vector<std::string> Folha::warnings() const {
    return tables_.warnings(month_.month, paymentDay(run_, month_.month));
}

EmployeeKey Folha::keyOf(const Employee& employee) const {
    return {at_.session.company.value(), employee.employeeCode().value()};
}

std::optional<std::string> Folha::bytesOf(const Employee& employee) const {
    const Store store = at_.store();
    return store.files.read(
        store.folder.file(payrollFileName(keyOf(employee), month_.month, run_)));
}

FileSystem::NewContent Folha::contentOf(const Employee& employee, const PaySheet& sheet) const {
    return payrollContent(at_.store(), keyOf(employee), month_.month, sheet, run_);
}

std::optional<PaySheet> Folha::sheetOf(const OpenPayroll& payroll,
                                       const TypedAmounts& typed) const {
    const auto one = runCase(law(), payroll.month, payroll.inputs, payroll.events);
    if (!one) return std::nullopt;
    return paySheet(law(), *one, payroll.events, typed);
}

OpenPayroll Folha::inputsOf(const Employee& employee, const FolderNames& names) const {
    const Store store = at_.store();
    const CompanyCode company = at_.session.company.value();
    OpenPayroll payroll;
    payroll.month = loadEmployeeMonth(store, company, employee, month_, names);
    payroll.inputs = loadRunInputs(store, company, payroll.month, run_, months_, names);
    payroll.events = loadEvents(
        store, keyOf(employee), companyEvents_,
        payroll.month.hours ? payroll.month.hours->terms.overtime : month_.overtime, names);
    return payroll;
}

PayrollGlance Folha::glance(const Employee& employee, const FolderNames& names) const {
    OpenPayroll payroll = inputsOf(employee, names);
    const auto lack = lackOf(payroll);
    if (names.contains(payrollFileName(keyOf(employee), month_.month, run_))) {
        payroll.bytes = bytesOf(employee);
        if (auto recorded = loadPayroll(at_.store(), keyOf(employee), month_.month, run_)) {
            payroll.sheet = std::move(recorded->sheet);
            payroll.unread = std::move(recorded->unread);
            payroll.isRecorded = true;
            if (lack == PayrollGlance::Lack::Nothing)
                payroll.now = sheetOf(payroll, typedAmounts(payroll.sheet));
            return {PayrollGlance::Lack::Nothing, std::move(payroll)};
        }
    }
    if (lack != PayrollGlance::Lack::Nothing) return {lack};
    auto sheet = sheetOf(payroll, {});
    if (!sheet) return {PayrollGlance::Lack::Contract};
    payroll.sheet = *std::move(sheet);
    return {PayrollGlance::Lack::Nothing, std::move(payroll)};
}

PayrollGlance::Lack Folha::show(const Employee& employee) {
    shown_.reset();
    auto lack = PayrollGlance::Lack::Nothing;
    (void)attempt(at_, incorrectData(), [&] {
        PayrollGlance seen = glance(employee, namesIn(at_.store()));
        lack = seen.lack;
        if (seen.payroll) asShown_ = contentOf(employee, seen.payroll->sheet).bytes;
        shown_ = std::move(seen.payroll);
    });
    return lack;
}

Folha::Opening Folha::open(const Employee& employee) {
    switch (show(employee)) {
        case PayrollGlance::Lack::Nothing:
            return shown_ ? Opening::Opened : Opening::Refused;
        case PayrollGlance::Lack::Card:
            return at_.person.agrees(kNoCard) ? Opening::ToTimeCard : Opening::Refused;
        case PayrollGlance::Lack::FirstInstalment:
            at_.person.tell(kFirstBeforeSecond);
            return Opening::Refused;
        case PayrollGlance::Lack::Salary:
            at_.person.tell(noSalary(employee));
            return Opening::Refused;
        case PayrollGlance::Lack::Contract:
            at_.person.tell(noContractDays(employee, month_.month));
            return Opening::Refused;
    }
    return Opening::Refused;
}

bool Folha::compute(const TypedAmounts& typed) {
    return attempt(at_, incorrectData(), [&] {
        auto sheet = sheetOf(*shown_, typed);
        if (!sheet) {
            at_.person.tell(noContractDays(shown_->month.employee, month_.month));
            return false;
        }
        shown_->sheet = *std::move(sheet);
        return true;
    });
}

bool Folha::isChanged() const {
    return shown_ && contentOf(shown_->month.employee, shown_->sheet).bytes != asShown_;
}

void Folha::requireUnchanged() const {
    if (bytesOf(shown_->month.employee) != shown_->bytes) throw employeeChangedElsewhere("payroll");
}

bool Folha::requireFirstInstalment() const {
    if (run_ != PayrollRun::ThirteenthSecond ||
        recordedInYear(keyOf(shown_->month.employee), PayrollRun::ThirteenthFirst, month_.month,
                       namesIn(at_.store())))
        return true;
    at_.person.tell(refusal(kSaveTitle, std::string(kNoFirstInstalment)));
    return false;
}

bool Folha::requireNoSecondInstalment() const {
    if (run_ != PayrollRun::ThirteenthFirst ||
        !recordedInYear(keyOf(shown_->month.employee), PayrollRun::ThirteenthSecond, month_.month,
                        namesIn(at_.store())))
        return true;
    at_.person.tell(kSecondStands);
    return false;
}

bool Folha::save() {
    if (!shown_ || !hasAmounts(shown_->sheet)) {
        at_.person.tell(kNothingToSave);
        return false;
    }
    if (!at_.person.agrees(confirmSave(*shown_))) return false;
    return attemptWriting(at_, incorrectData(), [&] {
        requireUnchanged();
        if (!requireFirstInstalment()) return false;
        auto content = contentOf(shown_->month.employee, shown_->sheet);
        at_.files.replaceAll({content});
        asShown_ = content.bytes;
        shown_->now = shown_->sheet;
        shown_->bytes = std::move(content.bytes);
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
        else if (const auto seen = glance(employee, names); seen.payroll)
            batch.push_back(contentOf(employee, seen.payroll->sheet));
        else if (seen.lack == PayrollGlance::Lack::FirstInstalment)
            unsaved.withoutFirst.push_back(employee.name);
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
    say(withoutText(run_), unsaved.without);
    const bool leavesOut = !detail.empty();
    say("Já gravados, ficam como estão: ", unsaved.recorded);
    if (!hasBatch) {
        Message nothing = kNothingToSave;
        nothing.title = kSaveAllTitle;
        nothing.detail = detail;
        at_.person.tell(nothing);
        return false;
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
    if (!shown_ || !shown_->isRecorded || !at_.person.agrees(confirmReopen(*shown_))) return false;
    return attemptWriting(at_, incorrectData(), [&] {
        requireUnchanged();
        if (!requireNoSecondInstalment()) return false;
        (void)reopenPayroll(at_.store(), keyOf(shown_->month.employee), month_.month, run_);
        shown_->bytes.reset();
        shown_->isRecorded = false;
        if (shown_->now) shown_->sheet = *std::move(shown_->now);
        shown_->now.reset();
        // What was typed is now on this screen only.
        const bool isTyped = !typedAmounts(shown_->sheet).empty();
        asShown_ = isTyped ? "" : contentOf(shown_->month.employee, shown_->sheet).bytes;
        return true;
    });
}

}  // namespace winvrx
