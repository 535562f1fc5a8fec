#include "personnel/payroll/folha.h"

#include "timecard/month/holiday_offer.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::string_view kTitle = "Folha";
constexpr std::string_view kSaveTitle = "GRAVAR";
constexpr std::string_view kSaveAllTitle = "GRAVAR TODOS";

const Message kNoCard =
    question(kTitle, "Planilha de Ponto não Preenchida! Deseja ir para a Planilha de Ponto?");
const Message kNothingToSave = refusal(kSaveTitle, "Não Há Dados para Gravação!");

Message noSalary(const Employee& employee) {
    const std::string salary = employee.salary.empty() ? moneyText({}) : employee.salary;
    return refusal(kTitle, "Erro! Valor do Salário deste Funcionário = R$ " + salary +
                               "!     Clique no Botão Funcionário e Altere o Valor do Salário.");
}

Message confirmSave(const OpenPayroll& payroll) {
    constexpr std::string_view kText = "Deseja Gravar Somente o FUNCIONARIO SELECIONADO?";
    if (!payroll.isRecorded) return question(kSaveTitle, std::string(kText));
    return riskyQuestion(kSaveTitle, std::string(kText), "A folha já gravada será substituída.");
}

Message confirmReopen(const OpenPayroll& payroll) {
    const Employee& employee = payroll.month.employee;
    return riskyQuestion(kTitle, "Deseja Reabrir a Folha de Pagamento deste Mês?",
                         "A folha de " + monthTitle(payroll.month.settings.month) + " de " +
                             employee.code + " " + employee.name +
                             " será excluída. Cadastro, cartão de ponto e afastamentos deste mês "
                             "voltam a ser alterados livremente.");
}

Message noContractDays(const Employee& employee, WorkMonth month) {
    Message message = incorrectData();
    message.detail =
        "O contrato de " + employee.name + " não tem dias em " + monthTitle(month) + ".";
    return message;
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

bool Folha::load(WorkMonth month) {
    shown_.reset();
    return attempt(at_, incorrectData(), [&] {
        const Store store = at_.store();
        tables_ = loadLegalTables(store, legalFolder_);
        companyEvents_ = companyEvents(store, at_.session.company.value()).load();
        settings_ = loadPayrollSettings(store, at_.session.company.value()).settings;
        auto record = findMonthRecord(store, month);
        month_ = record ? std::move(record->settings)
                        : proposedSettings(month, offeredHolidays(store, month));
    });
}

std::vector<std::string> Folha::warnings() const {
    return tables_.warnings(month_.month, lastDay(month_.month));
}

EmployeeKey Folha::keyOf(const Employee& employee) const {
    return {at_.session.company.value(), employee.employeeCode().value()};
}

std::optional<std::string> Folha::bytesOf(const Employee& employee) const {
    const Store store = at_.store();
    return store.files.read(store.folder.file(payrollFileName(keyOf(employee), month_.month)));
}

FileSystem::NewContent Folha::contentOf(const Employee& employee, const PaySheet& sheet) const {
    return payrollContent(at_.store(), keyOf(employee), month_.month, sheet);
}

std::optional<PaySheet> Folha::sheetOf(const OpenPayroll& payroll,
                                       const TypedAmounts& typed) const {
    const PayrollLaw law{tables_, settings_};
    const auto month = monthCase(law, payroll.month, lastDay(month_.month));
    if (!month) return std::nullopt;
    return paySheet(law, {.month = *month}, payroll.events, typed);
}

OpenPayroll Folha::inputsOf(const Employee& employee, const FolderNames& names) const {
    const Store store = at_.store();
    OpenPayroll payroll;
    payroll.month = loadEmployeeMonth(store, at_.session.company.value(), employee, month_, names);
    payroll.events = loadEvents(
        store, keyOf(employee), companyEvents_,
        payroll.month.hours ? payroll.month.hours->terms.overtime : month_.overtime, names);
    return payroll;
}

PayrollGlance Folha::glance(const Employee& employee, const FolderNames& names) const {
    using enum PayrollGlance::Lack;
    OpenPayroll payroll = inputsOf(employee, names);
    const bool canBePaid = payroll.month.hours && salaryOf(employee);
    if (names.contains(payrollFileName(keyOf(employee), month_.month))) {
        payroll.bytes = bytesOf(employee);
        if (auto recorded = loadPayroll(at_.store(), keyOf(employee), month_.month)) {
            payroll.sheet = std::move(recorded->sheet);
            payroll.isRecorded = true;
            if (canBePaid) payroll.now = sheetOf(payroll, typedAmounts(payroll.sheet));
            return {Nothing, std::move(payroll)};
        }
    }
    if (!payroll.month.hours) return {Card};
    if (!canBePaid) return {Salary};
    auto sheet = sheetOf(payroll, {});
    if (!sheet) return {Contract};
    payroll.sheet = *std::move(sheet);
    return {Nothing, std::move(payroll)};
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

bool Folha::save() {
    if (!shown_ || !hasAmounts(shown_->sheet)) {
        at_.person.tell(kNothingToSave);
        return false;
    }
    if (!at_.person.agrees(confirmSave(*shown_))) return false;
    return attemptWriting(at_, incorrectData(), [&] {
        requireUnchanged();
        auto content = contentOf(shown_->month.employee, shown_->sheet);
        at_.files.replaceAll({content});
        asShown_ = content.bytes;
        shown_->now = shown_->sheet;
        shown_->bytes = std::move(content.bytes);
        shown_->isRecorded = true;
    });
}

bool Folha::computeAll(const std::vector<Employee>& employees, const Progress& progress,
                       std::vector<FileSystem::NewContent>& batch, Unsaved& unsaved) const {
    int done = 0;
    const FolderNames names = namesIn(at_.store());
    for (const Employee& employee : employees) {
        if (names.contains(payrollFileName(keyOf(employee), month_.month)))
            unsaved.recorded.push_back(employee.name);
        else if (const auto seen = glance(employee, names); seen.payroll)
            batch.push_back(contentOf(employee, seen.payroll->sheet));
        else
            unsaved.without.push_back(employee.name);
        if (progress && !progress(++done, static_cast<int>(employees.size()))) return false;
    }
    return true;
}

bool Folha::confirmLeftOut(const Unsaved& unsaved, bool hasBatch) const {
    std::string detail;
    if (!unsaved.recorded.empty())
        detail = "Já gravados, ficam como estão: " + namesText(unsaved.recorded, kMostNames);
    if (!hasBatch) {
        Message nothing = kNothingToSave;
        nothing.title = kSaveAllTitle;
        nothing.detail = detail;
        at_.person.tell(nothing);
        return false;
    }
    if (unsaved.without.empty()) return true;
    detail.insert(0, "Sem cartão de ponto, salário ou contrato no mês: " +
                         namesText(unsaved.without, kMostNames) + (detail.empty() ? "" : "\n"));
    return at_.person.agrees(question(
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
        (void)reopenPayroll(at_.store(), keyOf(shown_->month.employee), month_.month);
        shown_->bytes.reset();
        shown_->isRecorded = false;
        if (shown_->now) shown_->sheet = *std::move(shown_->now);
        shown_->now.reset();
        // What was typed is now on this screen only.
        const bool isTyped = !typedAmounts(shown_->sheet).empty();
        asShown_ = isTyped ? "" : contentOf(shown_->month.employee, shown_->sheet).bytes;
    });
}

}  // namespace winvrx
