#include "personnel/payroll/folha_screen.h"

#include "foundation/register/company_register.h"
#include "foundation/register/employee_register.h"
#include "personnel/payroll/contract_end.h"
#include "timecard/month/selected_month.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace winvrx {

namespace {

Message noAmount(std::string_view typed) {
    Message message = incorrectData();
    message.detail = "\"" + std::string(typed) + "\" não é um valor em reais, como 1.234,56.";
    return message;
}

/// By the number of the lack.
constexpr std::array<std::string_view, 6> kLacks = {
    "",
    "Planilha de Ponto não preenchida neste mês.",
    "1º parcela do 13º salário ainda não gravada neste ano.",
    "Sem férias gravadas para este mês.",
    "Sem salário no cadastro.",
    "O contrato não tem dias neste mês."};

}  // namespace

bool FolhaScreen::open() {
    isOpen_ = attempt(at_, incorrectData(), [this] {
        const auto month = requireSelectedMonth(at_);
        if (!month || !folha_.load(*month, folha_.run())) return false;
        const CompanyCode& code = at_.session.company.value();
        company_ = loadCompany(at_.store(), code);
        list_.fill(EmployeeRegister(at_.store(), code).load(),
                   monthMarks(at_.store(), code, *month, namesIn(at_.store()), locks_));
        show(position());
        return true;
    });
    return isOpen_;
}

const OvertimeRules& FolhaScreen::overtime() const {
    const auto& shown = folha_.shown();
    return shown && shown->month.hours ? shown->month.hours->terms.overtime
                                       : folha_.month().overtime;
}

std::vector<Employee> FolhaScreen::listed() const {
    std::vector<Employee> employees;
    for (const std::size_t position : list_.shown())
        employees.push_back(list_.employees()[position]);
    return employees;
}

std::string_view FolhaScreen::activity(const Employee& employee) const {
    const auto position = list_.positionOf(employee.code);
    return activityOf(employee, position ? list_.marks(*position) : EmployeeMarks{});
}

void FolhaScreen::show(std::optional<std::size_t> position) {
    list_.select(position);
    lack_ = position ? folha_.show(*selected()) : PayrollGlance::Lack::Nothing;
}

bool FolhaScreen::narrow(const std::function<void()>& filter) {
    if (!confirmLeaving()) return false;
    filter();
    show(position());
    return true;
}

bool FolhaScreen::filterBy(ShiftFilter shift) {
    return narrow([&] { list_.filterBy(shift); });
}

bool FolhaScreen::filterBy(std::optional<Scale> scale) {
    return narrow([&] { list_.filterBy(scale); });
}

bool FolhaScreen::chooseRun(PayrollRun run) {
    if (!isOpen_ || !confirmLeaving() || !folha_.load(folha_.month().month, run)) return false;
    show(position());
    return true;
}

bool FolhaScreen::select(std::size_t position) {
    if (!confirmLeaving()) return false;
    show(position);
    return true;
}

std::string FolhaScreen::standing() const {
    const auto& shown = folha_.shown();
    if (!position()) return {};
    if (!shown) return std::string(kLacks.at(static_cast<std::size_t>(lack_)));
    if (folha_.isChanged()) return "Alterações não gravadas";
    if (!shown->unread.empty()) return "⚠ Gravada com linhas não entendidas: " + shown->unread[0];
    const auto end = endBeside(shown->month, shown->inputs);
    const std::string last = end ? dateText(end->last) : "";
    if (end && end->isActive && !shown->isRecorded)
        return "Aberta: há uma rescisão gravada, de " + last + ", e o funcionário está ativo";
    if (!shown->isRecorded)
        return end ? "Aberta: a rescisão de " + last + " paga " + paidByTheEnd(folha_.run())
                   : "Aberta: ainda não gravada";
    if (!hasMovedOn(*shown) && end && end->pays)
        return "Gravada: a rescisão de " + last + " desconta o líquido dela";
    if (!hasMovedOn(*shown))
        return folha_.run() == PayrollRun::Month ? "Gravada: mês fechado para este funcionário"
                                                 : "Gravada";
    return shown->now ? "Gravada; hoje o líquido seria R$ " + moneyText(shown->now->net)
                      : "Gravada; hoje não poderia ser calculada";
}

std::vector<std::string> FolhaScreen::memo(std::size_t line) const {
    const OpenPayroll& shown = folha_.shown().value();
    const PayLine& of = shown.sheet.lines.at(line);
    const PayLine* computed = &of;
    std::vector<std::string> texts;
    if (shown.isRecorded && !folha_.isChanged()) {
        texts.push_back("Valor gravado: " + moneyText(of.amount));
        computed = shown.now ? shown.now->find(of.event.code) : nullptr;
        if (computed != nullptr && computed->amount != of.amount)
            texts.push_back("Hoje seria: " + moneyText(computed->amount));
    }
    if (computed != nullptr)
        std::ranges::transform(computed->memo, std::back_inserter(texts), memoText);
    if (texts.empty()) texts.emplace_back("Nada a calcular neste mês; um valor pode ser digitado.");
    return texts;
}

NamedAmounts FolhaScreen::figures() const {
    if (!folha_.shown()) return {};
    const OpenPayroll& shown = *folha_.shown();
    return namedAmounts(
        shown.sheet, sheetDues(folha_.law(), shown.sheet, folha_.month().month, shown.month.facts));
}

Folha::Opening FolhaScreen::compute() {
    if (!position()) {
        at_.person.tell(noEmployeeSelected());
        return Folha::Opening::Refused;
    }
    if (folha_.shown()) return Folha::Opening::Opened;
    return folha_.open(*selected());
}

void FolhaScreen::refresh() {
    show(position());
}

bool FolhaScreen::type(const EventCode& event, std::string_view amount) {
    if (!folha_.shown()) return false;
    TypedAmounts typed = typedAmounts(folha_.shown()->sheet);
    typed.erase(event);
    if (!amount.empty()) {
        const auto money = parseMoney(amount);
        if (!money) return at_.person.refuse(noAmount(amount));
        typed.emplace(event, *money);
    }
    return folha_.compute(typed);
}

void FolhaScreen::readMarks() {
    (void)attempt(at_, incorrectData(), [this] {
        const auto closed = locks_.closedIn(at_.session.company.value(), folha_.month().month,
                                            namesIn(at_.store()));
        for (std::size_t at = 0; at < list_.employees().size(); ++at) {
            EmployeeMarks marks = list_.marks(at);
            marks.closed = closed.contains(list_.employees()[at].employeeCode().value());
            list_.mark(at, marks);
        }
    });
}

bool FolhaScreen::save() {
    const bool done = folha_.save();
    if (done) readMarks();
    return done;
}

bool FolhaScreen::saveAll(const Folha::Progress& progress) {
    if (!confirmLeaving()) return false;
    const bool done = folha_.saveAll(listed(), progress);
    readMarks();
    show(position());
    return done;
}

bool FolhaScreen::reopen() {
    const bool done = folha_.reopen();
    if (done) readMarks();
    return done;
}

bool FolhaScreen::confirmLeaving() {
    return !folha_.isChanged() || at_.person.agrees(discardTyped());
}

}  // namespace winvrx
