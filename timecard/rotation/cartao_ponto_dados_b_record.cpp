// Recording, continuing and deleting the month's groups.
#include "foundation/values/text.h"
#include "timecard/rotation/cartao_ponto_dados_b.h"

#include <algorithm>
#include <iterator>

namespace winvrx {

namespace {

const std::string kByHand =
    "As alterações feitas à mão nestes cartões serão substituídas pelo ponto da escala: ";

const Message kMoveStart = riskyQuestion(
    "MOVER INICIO DA FOLGA",
    "Já foi Aplicado PONTO para Esta ESCALA! Para MOVER O DIA DO INICIO DA FOLGA Você deverá "
    "Aplicar Ponto Novamente. Se Deseja MOVER o DIA DO INICIO DA FOLGA Clique em 'OK' Senão não "
    "deseja MOVER, Clique em 'CANCELAR'!",
    {}, Buttons::OkCancel);
const Message kChangeApplied = riskyQuestion(
    "Aplicação Ponto",
    "Já foi Aplicado PONTO para Esta ESCALA! Se Deseja Gravar o GRUPO e Aplicar Ponto Novamente "
    "Clique em 'OK', Senão, Clique em 'CANCELAR'!",
    {}, Buttons::OkCancel);
const Message kRemoveGroup =
    warning("EXCLUIR GRUPO", "Tem Certeza que Deseja EXCLUIR Todos os Itens deste GRUPO?");
const Message kRemovesPunches = warning(
    "EXCLUIR PONTO",
    "Esta Operação irá Excluir o PONTO dos funcionários desta ESCALA! Para Desistir Clique em "
    "'CANCELAR'!",
    {}, Buttons::OkCancel);
const Message kPayrollClosed = refusal(
    kGroupTitle,
    "Não é Possível Realizar Esta Operação!! Já Existe Folha de Pagamento Fechada  para este "
    "Funcionário!");
const Message kNoGroups = refusal("EXCLUIR GRUPOS", "Não há GRUPOS na lista.");
const Message kNoPunches =
    refusal("EXCLUIR PONTO", "Nenhum funcionário do grupo tem ponto no mês.");

std::string namesOf(const std::vector<EmployeeCode>& employees, const MemberNames& names) {
    std::vector<std::string> texts;
    for (const EmployeeCode& code : employees)
        texts.push_back(nameOf(names, code));
    return namesText(texts, kMostNames);
}

std::string listOf(const std::vector<RotationGroup>& groups) {
    std::vector<std::string> texts;
    for (const RotationGroup& group : groups)
        texts.push_back(groupName(group.number));
    return namesText(texts, kMostNames);
}

}  // namespace

GroupWork CartaoPontoDadosB::work() const {
    return {at_, desk_.payroll, company_.value(), settings_};
}

bool CartaoPontoDadosB::requireOpenMonths(const std::vector<EmployeeCode>& employees) {
    const auto closed = closedAmong(work(), employees);
    if (closed.empty()) return true;
    Message message = kPayrollClosed;
    message.detail = namesOf(closed, month_.names());
    return at_.person.refuse(message);
}

bool CartaoPontoDadosB::applied() const {
    return draft_ && !appliedAmong(work(), draft_->members()).empty();
}

bool CartaoPontoDadosB::confirmRecording(const std::vector<EmployeeCode>& reapplied) {
    const auto recorded = month_.recorded(draft_->number);
    const bool moved = recorded && recorded->firstDayOff != draft_->firstDayOff;
    Message asked = !reapplied.empty()
                        ? (moved ? kMoveStart : kChangeApplied)
                        : question(recorded ? "ALTERAÇÃO" : "INCLUSÃO",
                                   "Confirma Gravar o " + groupName(draft_->number) + "?");
    if (!reapplied.empty()) asked.detail = kByHand + namesOf(reapplied, month_.names()) + ".";
    const RotationView shown = view();
    const std::string gaps = shown.gaps.empty() ? "" : shown.gaps + ".";
    asked.detail = joined({asked.detail, gaps, joined(shown.remarks, "\n")}, "\n");
    return at_.person.agrees(asked);
}

bool CartaoPontoDadosB::saveGroup() {
    if (!requireGroup()) return false;
    return attempt(at_, incorrectData(), [this] {
        if (const Refusal refused = recordingRefusal(*draft_, settings_.month))
            return at_.person.refuse(*refused);
        const auto recorded = month_.recorded(draft_->number);
        auto changed = changedMembers(recorded ? &*recorded : nullptr, *draft_, settings_.month);
        if (!requireOpenMonths(changed)) return false;
        std::erase_if(changed, [this](const auto& code) { return !draft_->contains(code); });
        const auto reapplied = appliedAmong(work(), changed);
        if (!confirmRecording(reapplied)) return false;
        const auto hold = holdFolder(at_);
        if (appliedAmong(work(), changed) != reapplied || !closedAmong(work(), changed).empty())
            throw changedElsewhere("cards of the group", "O ponto do grupo foi alterado");
        record(reapplied);
        return true;
    });
}

void CartaoPontoDadosB::record(const std::vector<EmployeeCode>& reapplied) {
    GroupLines lines = month_.linesAsRead(at_.store(), {*draft_});
    for (const RotationGroup& other : groupsIn(lines))
        for (const EmployeeCode& code : draft_->members())
            if (other.number != draft_->number && other.contains(code) &&
                month_.strayReason(code, other).empty())
                throw changedElsewhere("rotation groups", "Os grupos foram alterados");
    auto line = std::ranges::find_if(
        lines, [this](const GroupLine& one) { return one.key() == draft_->number; });
    if (line == lines.end()) line = lines.emplace(lines.end());
    *line = lineOf(recordOf(*draft_), std::move(line->bytes));
    std::string remarks;
    ListApplication::Batch batch;
    if (!reapplied.empty()) batch = reappliedCards(work(), {*draft_}, reapplied, remarks);
    // The cards first: cut short between the two, the command given again still finds the change.
    if (!batch.empty()) at_.files.replaceAll(batch);
    at_.files.replaceAll({month_.file(at_.store()).contentOf(lines)});
    showGroups();
    if (!remarks.empty())
        at_.person.tell(notice("Aplicação de Pontos", "O grupo foi gravado.", remarks));
}

bool CartaoPontoDadosB::continueGroups() {
    const auto from = continuableFrom();
    if (!from) return false;
    const Message asked =
        question("CONTINUAR GRUPOS", "Não há grupos em " + monthTitle(settings_.month) +
                                         ". Deseja continuar os de " + monthTitle(*from) +
                                         ", com o mesmo ritmo de folgas?");
    return at_.person.agrees(asked) &&
           attemptWriting(at_, incorrectData(), [&] { month_.continueFrom(at_.store(), *from); });
}

bool CartaoPontoDadosB::remove(const std::vector<RotationGroup>& groups, const std::string& title,
                               bool groupsToo) {
    return attempt(at_, incorrectData(), [&] {
        std::vector<EmployeeCode> members;
        for (const RotationGroup& group : groups)
            std::ranges::move(group.members(), std::back_inserter(members));
        const auto applied = appliedAmong(work(), members);
        if (!requireOpenMonths(groupsToo ? members : applied)) return false;
        Message asked = kRemoveGroup;
        asked.title = title;
        asked.detail = listOf(groups) + ".";
        if (groupsToo && !at_.person.agrees(asked)) return false;
        if (!groupsToo && applied.empty()) return at_.person.refuse(kNoPunches);
        Message punches = kRemovesPunches;
        punches.detail = namesOf(applied, month_.names()) + ".";
        if (!applied.empty() && !at_.person.agrees(punches)) return false;
        const auto hold = holdFolder(at_);
        GroupLines lines = month_.linesAsRead(at_.store(), groups);
        if (!closedAmong(work(), members).empty())
            throw changedElsewhere("payroll", "A folha foi fechada");
        at_.keepStateBefore((groupsToo ? "excluir " : "excluir o ponto de ") + listOf(groups) +
                            " da empresa " + company_->text() + " " + heading_.name);
        winvrx::removePunches(work(), applied);
        if (groupsToo) {
            std::erase_if(lines, [&](const GroupLine& line) {
                return std::ranges::any_of(
                    groups, [&](const RotationGroup& group) { return line.key() == group.number; });
            });
            at_.files.replaceAll({month_.file(at_.store()).contentOf(lines)});
            draft_.reset();
        }
        showGroups();
        return true;
    });
}

bool CartaoPontoDadosB::removeGroup() {
    if (!requireGroup()) return false;
    if (const auto recorded = month_.recorded(draft_->number))
        return remove({*recorded}, "EXCLUIR GRUPO", true);
    if (!at_.person.agrees(kRemoveGroup)) return false;
    draft_.reset();
    return true;
}

bool CartaoPontoDadosB::removeGroups() {
    std::vector<RotationGroup> groups;
    for (const RotationGroup& shown : shownGroups())
        if (const auto recorded = month_.recorded(shown.number)) groups.push_back(*recorded);
    return groups.empty() ? at_.person.refuse(kNoGroups) : remove(groups, "EXCLUIR GRUPOS", true);
}

bool CartaoPontoDadosB::removePunches() {
    return requireGroup() && remove({*draft_}, "EXCLUIR PONTO", false);
}

}  // namespace winvrx
