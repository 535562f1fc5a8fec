#include "foundation/register/dismissal.h"
#include "foundation/register/employee_register.h"
#include "foundation/values/text.h"
#include "personnel/leaves/afastamento.h"
#include "personnel/leaves/leave_types.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace winvrx {

namespace {

constexpr std::string_view kAdd = "Adicionar Afastamento";
constexpr std::string_view kChange = "Alterar Afastamento";
constexpr std::string_view kRemove = "Excluir Afastamento";
constexpr std::string_view kNoItem = "Selecione um Item da Lista de Tipo de Afastamento!";
constexpr std::string_view kScreen = "Afastamento";

const Message kClosed = notice(kScreen,
                               "ATENÇÃO! Não é Possível Alterar Esse Item! Já Foi Gerada a Folha "
                               "de Pagamento para este Funcionário!!");
const Message kBeganBefore = failure(
    kScreen,
    "Não é Permitido Corrigir ou Excluir Registros de Afastamento com início do Mês Anterior ao "
    "Período de Trabalho! ");
const Message kBeginsAfter = failure(
    kScreen,
    "Não é Permitido Corrigir ou Excluir Registros de Afastamento com início do Mês Posterior ao "
    "Período de Trabalho! ");
const Message kProceed =
    riskyQuestion(kScreen, "Deseja Prosseguir Assim Mesmo? ", {}, Buttons::OkCancel);
const Message kConfirmAdd = question(kAdd, "Confirma Adicionar Novo Afastamento?");
const Message kConfirmChange = question(kChange, "Confirma Alterar este Ítem?");
const Message kIdentical = refusal(kChange, "Já Existe um Afastamento com Dados Idênticos.");
const Message kDisregards = refusal(kRemove, "Você está Prestes a Desconsiderar este Afastamento!");
constexpr std::string_view kConfirmDisregard = "Confirma Excluir e Desconsiderar este Afastamento?";
const Message kDeactivates = refusal(kScreen, "Você está Prestes a Desativar este Funionário!");
constexpr std::string_view kConfirmDeactivate = "Confirma Desativar este Funionário?";

/// The card of every month behind the end of a contract is looked at.
constexpr Date kLastOfAll{std::chrono::year{9999}, std::chrono::December, std::chrono::day{31}};

/// Fields that hold dates, with what they are called in a message.
struct DateInput {
    LeaveInput input;
    std::string_view caption;
};
constexpr std::array kDateInputs = {
    DateInput{LeaveInput::FirstDay, "Primeiro dia"},
    DateInput{LeaveInput::LastDay, "Último dia"},
    DateInput{LeaveInput::NoticeGiven, "Comunicação do aviso"},
    DateInput{LeaveInput::NoticeBegins, "Início do aviso"},
    DateInput{LeaveInput::NoticeEnds, "Fim do aviso"},
    DateInput{LeaveInput::LastDayWorked, "Último dia trabalhado"},
    DateInput{LeaveInput::PaymentDue, "Prazo do pagamento"},
};

/// Those that a termination needs; where no notice is owed, none begins.
bool isNeeded(LeaveInput input, const LeaveForm& form) {
    if (input == LeaveInput::FirstDay || input == LeaveInput::LastDay) return false;
    if (input != LeaveInput::NoticeBegins) return true;
    const auto type = terminationTypeOf(form.text(LeaveInput::TerminationType));
    const auto notice = noticeTypeOf(form.text(LeaveInput::NoticeType));
    return !(type && notice && hasNoNotice(*type, *notice));
}

std::string namedText(std::string_view caption, const std::string& text) {
    return std::string(caption) + ": “" + text + "” não é uma data.";
}

/// The leave is named beneath, as the text speaks of the employee only.
Message confirmRemoval(const Leave& leave, bool isInactive) {
    const std::string detail =
        leave.type + ", de " + leave.firstDay + " a " + leave.lastDay + ", será excluído.";
    return riskyQuestion(isInactive ? "Excluindo Afastamento" : kScreen,
                         std::string(isInactive ? kConfirmDisregard : kConfirmDeactivate), detail);
}

Message dropsLines(const std::vector<std::string>& lines) {
    const std::string shown =
        joined(lines, "\n", [](const std::string& line) { return shortened(readableText(line)); });
    return warning(kScreen,
                   lines.size() == 1
                       ? "O arquivo de afastamentos tem uma linha que não é de afastamento e que "
                         "será descartada. Deseja continuar?"
                       : "O arquivo de afastamentos tem " + std::to_string(lines.size()) +
                             " linhas que não são de afastamento e que serão descartadas. Deseja "
                             "continuar?",
                   shown);
}

}  // namespace

bool Afastamento::refuse(std::string_view title, std::string_view text,
                         std::optional<LeaveInput> blamed, std::string detail) {
    blamed_ = blamed;
    return at_.person.refuse(refusal(title, std::string(text), std::move(detail)));
}

bool Afastamento::requireSelection(std::string_view title) {
    blamed_.reset();
    return selected() || refuse(title, "Selecione um Funcionário na Lista!");
}

bool Afastamento::requireOpenMonth() {
    return !payroll_.isClosed(key(), month_.value()) || at_.person.refuse(kClosed);
}

bool Afastamento::confirmPeriod() {
    const auto first = parseDate(file_.leaves.at(*chosen_).record.firstDay);
    if (!first || monthOf(*first) == month_) return true;
    at_.person.tell(monthOf(*first) < *month_ ? kBeganBefore : kBeginsAfter);
    return at_.person.agrees(kProceed);
}

bool Afastamento::requireFilled(std::string_view title) {
    if (form_.text(LeaveInput::Type).empty()) return refuse(title, kNoItem, LeaveInput::Type);
    if (!form_.days())
        return refuse(title, "Preencha a Quantidade de dias do Afastamento!", LeaveInput::Days,
                      finding(LeaveInput::Days));
    for (const LeaveInput input : {LeaveInput::FirstDay, LeaveInput::LastDay})
        if (form_.text(input).empty())
            return refuse(title, "Preencha as Datas de Início e Fim do Afastamento!", input);
    return true;
}

bool Afastamento::requireDates(std::string_view title) {
    for (const auto& [input, caption] : kDateInputs) {
        const bool isRecorded = form_.isTermination() || !isNeeded(input, form_);
        const std::string& text = form_.text(input);
        if (isRecorded && !text.empty() && !parseDate(text))
            return refuse(title, "Data Incorreta.", input, namedText(caption, text));
    }
    if (!form_.period())
        return refuse(title, "Período de data Incorreto.", LeaveInput::LastDay,
                      finding(LeaveInput::LastDay));
    if (!form_.hours())
        return refuse(title, "Dados incorretos!", LeaveInput::Hours, finding(LeaveInput::Hours));
    const std::string hour = form_.leave().homologation;
    if (!hour.empty() && !parseTime(hour))
        return refuse(title, "Dados incorretos!", LeaveInput::Homologation,
                      "Hora da homologação: “" + hour + "” não é uma hora como 09:00.");
    return true;
}

bool Afastamento::requireNew(const StoredLine<Leave>& line) {
    const bool known = std::ranges::any_of(
        file_.leaves, [&](const StoredLine<Leave>& one) { return one.record == line.record; });
    return !known || at_.person.refuse(kIdentical);
}

bool Afastamento::add() {
    return attempt(at_, incorrectData(), [this] {
        if (!requireSelection(kAdd) || !requireFilled(kAdd)) return false;
        if (!at_.person.agrees(kConfirmAdd)) return false;
        if (!requireDates(kAdd)) return false;
        const auto line = leaveLine(form_.leave());
        if (!requireNew(line) || !confirmDroppedLines()) return false;
        const bool ofMonth = form_.period()->touches(month_.value());
        if (!rewrite([&](LeaveFile& file) { file.leaves.push_back(line); },
                     [&] { return !ofMonth || requireOpenMonth(); }))
            return false;
        fill(file_.leaves.size() - 1);
        offerToMark(*form_.period());
        return true;
    });
}

bool Afastamento::change() {
    return attempt(at_, incorrectData(), [this] {
        if (!requireSelection(kChange)) return false;
        if (!chosen_) return refuse(kChange, kNoItem);
        if (!requireOpenMonth() || !confirmPeriod() || !requireFilled(kChange)) return false;
        if (!at_.person.agrees(kConfirmChange) || !requireDates(kChange)) return false;
        const std::size_t place = *chosen_;
        const auto line = leaveLine(form_.leave(), file_.leaves[place].bytes);
        if (!requireNew(line) || !confirmDroppedLines()) return false;
        if (!rewrite([&](LeaveFile& file) { file.leaves[place] = line; },
                     [this] { return requireOpenMonth(); }))
            return false;
        fill(place);
        offerToMark(*form_.period());
        return true;
    });
}

bool Afastamento::remove() {
    return attempt(at_, incorrectData(), [this] {
        if (!requireSelection(kRemove)) return false;
        if (!chosen_) return refuse(kRemove, kNoItem);
        if (!requireOpenMonth() || !confirmPeriod()) return false;
        at_.person.tell(isInactive() ? kDisregards : kDeactivates);
        if (!at_.person.agrees(confirmRemoval(file_.leaves.at(*chosen_).record, isInactive())))
            return false;
        const auto place = static_cast<std::ptrdiff_t>(*chosen_);
        if (!confirmDroppedLines() ||
            !rewrite([&](LeaveFile& file) { file.leaves.erase(file.leaves.begin() + place); },
                     [this] { return requireOpenMonth(); }))
            return false;
        fill(std::nullopt);
        return true;
    });
}

bool Afastamento::changeActivation() {
    const std::string_view title = activationCaption();
    return attempt(at_, incorrectData(), [&] {
        if (!selected()) return refuse(title, "Para Inativar, Selecione um Funcionário!");
        const bool inactivates = !isInactive();
        if (inactivates ? !requireTermination(title) : !requireNoTerminationDocument(title))
            return false;
        if (!requireDismissal(title)) return false;
        if (form_.isLineChanged() && !confirmLeaving()) return false;
        if (!at_.person.agrees(question("Ativar/Inativar", "Confirma  " + std::string(title) +
                                                               "  Funcionário Selecionado?")) ||
            !confirmDroppedLines())
            return false;
        const auto since = parseDate(form_.text(LeaveInput::Dismissal));
        if (!rewrite(
                [&](LeaveFile& file) { file.inactiveSince = inactivates ? since : std::nullopt; }))
            return false;
        const auto place = chosen_;
        loadList(at_.session.company.value(), month_.value());
        if (selected()) fill(place);
        if (const auto end = calendar().contractEnd()) offerToMark({plusDays(*end, 1), kLastOfAll});
        return true;
    });
}

bool Afastamento::requireTermination(std::string_view title) {
    const auto termination = file_.termination();
    if (!termination)
        return refuse(title,
                      "Para Inativar, informe os Dados da Rescisão do Contrato de Trabalho para "
                      "Este Funcionário!",
                      LeaveInput::Type);
    if (!form_.isTermination() && (!form_.isChanged() || form_.text(LeaveInput::Type).empty())) {
        const std::string dismissal = form_.text(LeaveInput::Dismissal);
        fill(termination);
        if (!dismissal.empty()) form_.type(LeaveInput::Dismissal, dismissal);
    }
    if (form_.text(LeaveInput::TerminationType).empty())
        return refuse(title, "Informe o Tipo de Rescisão do Contrato!",
                      LeaveInput::TerminationType);
    if (form_.text(LeaveInput::NoticeType).empty())
        return refuse(title, "Informe o Tipo de Aviso!", LeaveInput::NoticeType);
    for (const auto& [input, caption] : kDateInputs)
        if (isNeeded(input, form_) && !parseDate(form_.text(input)))
            return refuse(title, "Informe as Datas de Rescisão do Contrato!", input,
                          std::string(caption) + ".");
    return true;
}

bool Afastamento::requireDismissal(std::string_view title) {
    const std::string& typed = form_.text(LeaveInput::Dismissal);
    const auto since = parseDate(typed);
    if (typed.empty())
        return refuse(title, "Informe a Data de Demissão do Funcionário!", LeaveInput::Dismissal);
    if (!since)
        return refuse(title, "Informe a Data de Demissão do Funcionário Válida!",
                      LeaveInput::Dismissal);
    const auto admission = form_.admission();
    if (!admission || *since <= *admission)
        return refuse(
            title, "Informe a Data de Demissão do Funcionário Maior que a Data da Admissão!",
            LeaveInput::Dismissal,
            admission ? "Admissão em " + dateText(*admission) + "."
                      : "A admissão do cadastro, “" + selected()->admission + "”, não é uma data.");
    return true;
}

bool Afastamento::requireNoTerminationDocument(std::string_view title) {
    for (const std::string& name : terminationFileNames(key()))
        if (at_.files.exists(at_.session.folder.file(name)))
            return refuse(title,
                          "Não é Permitido Ativar! Já Existe Rescisão do Contrato de Trabalho para "
                          "Este Funcionário!",
                          {}, name);
    return true;
}

bool Afastamento::confirmDroppedLines() {
    return file_.strays.empty() || at_.person.agrees(dropsLines(file_.strays));
}

bool Afastamento::rewrite(const std::function<void(LeaveFile&)>& edit,
                          const std::function<bool()>& isAllowed) {
    const EmployeeKey employee = key();
    const auto hold = holdFolder(at_);
    if (loadLeaveFile(at_.store(), employee) != file_) throw employeeChangedElsewhere("leaves");
    (void)requireRegistered(at_.store(), employee);
    if (!isAllowed()) return false;
    LeaveFile changed = file_;
    edit(changed);
    changed.strays.clear();
    saveLeaveFile(at_.store(), employee, encode(changed), at_.clock.now());
    file_ = std::move(changed);
    list_.mark(*list_.selectedPosition(), marksOf(employee));
    list_.addToSubset(employee.employee);
    return true;
}

}  // namespace winvrx
