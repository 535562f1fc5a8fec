#include "timecard/punches/application_checks.h"

#include "foundation/values/faults.h"
#include "foundation/values/text.h"

namespace winvrx {

namespace {

const Message kAlreadyApplied =
    refusal("Aplicação Ponto", "Já Existem Dados de Ponto Aplicados para Esse Funcionário! .");
const Message kReplaceApplied = riskyQuestion(
    "Aplicação Ponto",
    "Se Prosseguir, Irá Perder todas as Alterações Feitas para este Funcionário. Deseja Substituir "
    "os Dados Já Aplicados.",
    {}, Buttons::OkCancel);
const Message kRotationScale =
    refusal("Aplicação de Ponto", "Este Funcionário foi definido como ESCALA DE REVEZAMENTO!!!");
const Message kAddToRotation = refusal(
    "Aplicação de Ponto", "Portanto é Necessário PRIMEIRO adicioná-lo na ESCALA DE REVEZAMENTO!!!",
    "Ctrl+E abre + Quadro Horário e Escala de Revezamento.");
const std::string kNoScheduleTimes = "O horário de trabalho não tem horas de segunda a sexta";
const Message kNoSituation = question(
    "Situação",
    "Você não informou a Situação para Essa Operação! Se deseja Informar Clique em 'CANCELAR', "
    "Senão, Clique em 'OK' para Prosseguir",
    kNoScheduleTimes + ": os dias ficarão sem horas.", Buttons::OkCancel);
const Message kHasLeave = question(
    "Afastamento",
    "Este Funcionário possui Informação de Afastamento! Se Deseja desistir Clique em 'CANCELAR', "
    "Senão, Clique em 'OK' para Prosseguir",
    {}, Buttons::OkCancel);
const Message kInactive = question(
    "Aplicação Ponto",
    "Este Funcionário está Inativo desde antes do Mês de Trabalho! Se Deseja desistir Clique em "
    "'CANCELAR', Senão, Clique em 'OK' para Prosseguir",
    {}, Buttons::OkCancel);
const Message kAdmissionTooLate =
    failure("Analise de Datas",
            "A data de Admissão deste Funcionário não está dentro Período do "
            "Mês de de Aplicação de Ponto!");
const Message kConfirmApplication = question(
    "Aplicação de Pontos",
    "Confirma Aplicação de Ponto de ENTRADA e SAÍDA conforme o Padrão para o Item Selecionado?");

const std::string kSameHoursTitle = "HORÁRIO DE TRABALHO IGUAL PARA TODOS";
const Message kModelOnLeave =
    refusal("Afastamento", "Escolha ou Selecione outro Funcionário que não tenha Afastamento!");
const Message kNoEmployeeLine = refusal("Descrição do Item", "Selecione Outro ITEM!!!");
const Message kMixedList = failure(
    kSameHoursTitle,
    "ERRO!! Existe TURNOS e ESCALA diferente na Lista, Portanto não é possível padronizar HORÁRIO "
    "DE TRABALHO IGUAL PARA TODOS!");
const Message kEveryShift = failure(
    kSameHoursTitle,
    "ERRO!! O TURNO selecionado não pode ser <Todos>, Portanto Selecione um turno Específico!");
Message modelLacksSchedule(const Employee& model) {
    return failure(kSameHoursTitle, kNoScheduleTimes + ".",
                   "Grave primeiro o horário de " + model.code + " " + model.name +
                       ", ou selecione outro funcionário.");
}

Message modelNotListed(const Employee& model) {
    Message message = kNoEmployeeLine;
    message.detail = model.code + " " + model.name +
                     " não está na lista mostrada. Limpe a pesquisa ou selecione um funcionário da "
                     "lista.";
    return message;
}

const Message kErasesAll = warning(
    "Aplicação Ponto",
    "Esta Operação Irá Apagar Todos os Dados Já Existentes, Se Houverem Alterações Serão Perdidas "
    "e Substituidas Pelo Ponto Padrão.",
    {}, Buttons::OkCancel);
const Message kCertainToReplace = riskyQuestion(
    "Aplicação Ponto???", "Tem Certeza que Deseja Substituir as Alterações Já Aplicadas.", {},
    Buttons::OkCancel);
const Message kConfirmSameHours = riskyQuestion(
    kSameHoursTitle,
    "Confirma HORÁRIO DE TRABALHO IGUAL PARA TODOS com BASE no FUNCIONÁRIO SELECIONADO?");

Message confirmList(const std::string& description) {
    return question(
        "Aplicação de Pontos",
        "Confirma Aplicação de Ponto de ENTRADA e SAÍDA conforme o Padrão para Todos os Itens "
        "do " +
            description + " da Lista?");
}

Message confirmation(const ListApplicationCase& asked) {
    Message message = asked.sameHours ? kConfirmSameHours : confirmList(asked.description);
    if (asked.sameHours)
        message.detail =
            "O horário é o de " + asked.selected->code + " " + asked.selected->name + ". ";
    message.detail += "A lista tem " + countOf(asked.employees, "funcionário") + ".";
    return message;
}

/// Says how much there is to lose. Where it is nothing, ENTER carries on.
Message withLoss(Message message, const ListApplicationCase& asked) {
    const std::string month = monthTitle(asked.month);
    message.carriesOn = asked.applied == 0 && !asked.edited;
    if (message.carriesOn)
        message.detail = "Nenhum cartão da lista tem ponto em " + month + ": nada se perde.";
    else if (asked.applied > 0)
        message.detail = std::to_string(asked.applied) + " de " + std::to_string(asked.employees) +
                         " cartões da lista já " + (asked.applied == 1 ? "tem" : "têm") +
                         " ponto em " + month + ".";
    return message;
}

bool confirmReplacement(Operator& person, const ApplicationCase& asked) {
    if (!asked.applied && !asked.edited) return true;
    if (asked.applied) person.tell(kAlreadyApplied);
    return person.agrees(kReplaceApplied);
}

bool requireAdmittedBy(Operator& person, const Employee& employee, WorkMonth month) {
    const auto admission = requireAdmission(employee);
    return !admission || *admission <= lastDay(month) || person.refuse(kAdmissionTooLate);
}

}  // namespace

std::optional<Date> requireAdmission(const Employee& employee) {
    const auto admission = employee.admissionDate();
    if (!employee.admission.empty() && !admission)
        throw Fault("admission date: " + employee.admission,
                    "A data de admissão \"" + employee.admission +
                        "\" não existe. Corrija-a no cadastro do funcionário.");
    return admission;
}

bool lacksGroup(const Employee& employee, bool inGroup) {
    return employee.scaleOr() != Scale::Normal && !inGroup;
}

bool confirmApplication(Operator& person, const ApplicationCase& asked) {
    if (!confirmReplacement(person, asked)) return false;
    if (lacksGroup(asked.employee, asked.inGroup)) {
        person.tell(kRotationScale);
        return person.refuse(kAddToRotation);
    }
    if (asked.lacksSituation && !person.agrees(kNoSituation)) return false;
    if (asked.onLeave && !person.agrees(kHasLeave)) return false;
    if (asked.inactive && !person.agrees(kInactive)) return false;
    return requireAdmittedBy(person, asked.employee, asked.month) &&
           person.agrees(kConfirmApplication);
}

bool confirmListApplication(Operator& person, const ListApplicationCase& asked) {
    if (asked.onLeave) return person.refuse(kModelOnLeave);
    if (!asked.selected) return person.refuse(kNoEmployeeLine);
    const Employee& model = *asked.selected;
    if (asked.sameHours && !asked.listed) return person.refuse(modelNotListed(model));
    if (!requireAdmittedBy(person, model, asked.month)) return false;
    if (asked.sameHours && asked.mixed) return person.refuse(kMixedList);
    if (asked.sameHours && asked.everyShift) return person.refuse(kEveryShift);
    if (asked.sameHours && asked.lacksSchedule) return person.refuse(modelLacksSchedule(model));
    return person.agrees(withLoss(kErasesAll, asked)) &&
           person.agrees(withLoss(kCertainToReplace, asked)) && person.agrees(confirmation(asked));
}

}  // namespace winvrx
