#include "personnel/payroll/folha.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::string_view kTitle = "Folha";

const Message kNoCard =
    question(kTitle, "Planilha de Ponto não Preenchida! Deseja ir para a Planilha de Ponto?");
const Message kFirstBeforeSecond =
    refusal(kTitle, "Antes de Gerar a 2º Parcela  DO 13º, grave a 1º PARCELA!!");
const Message kNoPeriod =
    refusal(kTitle, "Ainda Não Existe um Período Aquisitivo de Férias Selecionado!");
const Message kSelectPeriod =
    refusal(kTitle, "Selecione e Grave um Período Aquisitivo de Férias Desejado!");
const Message kSettledSave =
    refusal(kTitle,
            "Não é Possível Alterar ou Gravar a Folha de Pagamento de um Período de Aquisição de "
            "Férias Já Quitado!");
const Message kUnsettleToSave = question(
    kTitle,
    "Para Alterar ou Gravar, é Necessário 'Restaurar Quitação' na Tela de Período de Aquisição de "
    "Férias! Deseja Fazer Isso Agora?");
const Message kSettledRestore = refusal(
    kTitle,
    "Não é Possível 'Restaurar' a Folha de Pagamento de um Período de Aquisição de Férias Já "
    "Quitado!");
const Message kUnsettleToRestore = question(
    kTitle,
    "Para 'Restaurar' é Necessário 'Restaurar Quitação' na Tela de Período de Aquisição de Férias! "
    "Deseja Fazer Isso Agora?");

Message noSalary(const Employee& employee) {
    const std::string salary = employee.salary.empty() ? moneyText({}) : employee.salary;
    return refusal(kTitle, "Erro! Valor do Salário deste Funcionário = R$ " + salary +
                               "!     Clique no Botão Funcionário e Altere o Valor do Salário.");
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
    if (inputs.run == PayrollRun::Vacation && !inputs.vacation) return Period;
    return salaryOf(payroll.month.employee) ? Nothing : Salary;
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

FileSystem::NewContent Folha::contentOf(const OpenPayroll& payroll) const {
    return payrollContent(at_.store(), keyOf(payroll.month.employee), month_.month, payroll.sheet,
                          run_, payroll.bytes.value_or(std::string()));
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
        if (seen.payroll) asShown_ = contentOf(*seen.payroll).bytes;
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
        case PayrollGlance::Lack::Period:
            return openPeriods(employee);
        case PayrollGlance::Lack::FirstInstalment:
            at_.person.tell(kFirstBeforeSecond);
            break;
        case PayrollGlance::Lack::Salary:
            at_.person.tell(noSalary(employee));
            break;
        case PayrollGlance::Lack::Contract:
            at_.person.tell(noContractDays(employee, month_.month));
    }
    return Opening::Refused;
}

Folha::Opening Folha::openPeriods(const Employee& employee) {
    at_.person.tell(kNoPeriod);
    at_.person.tell(kSelectPeriod);
    desk_.showPeriods(employee);
    const auto lack = show(employee);
    return lack == PayrollGlance::Lack::Nothing && shown_ ? Opening::Opened : Opening::Refused;
}

bool Folha::requireNotSettled(Change change) {
    const auto& vacation = shown_->inputs.vacation;
    if (!vacation || !vacation->isSettled()) return true;
    const bool restores = change == Change::Restore;
    at_.person.tell(restores ? kSettledRestore : kSettledSave);
    if (at_.person.agrees(restores ? kUnsettleToRestore : kUnsettleToSave)) {
        const Employee employee = shown_->month.employee;
        desk_.showPeriods(employee);
        (void)show(employee);
    }
    return false;
}

bool Folha::compute(const TypedAmounts& typed) {
    if (!requireNotSettled(Change::Record)) return false;
    return attempt(at_, incorrectData(), [&] {
        auto sheet = sheetOf(*shown_, typed);
        if (!sheet) return at_.person.refuse(noContractDays(shown_->month.employee, month_.month));
        shown_->sheet = *std::move(sheet);
        return true;
    });
}

bool Folha::isChanged() const {
    return shown_ && contentOf(*shown_).bytes != asShown_;
}

}  // namespace winvrx
