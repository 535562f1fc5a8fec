#include "personnel/payroll/eventos.h"

#include "foundation/values/text.h"

namespace winvrx {

namespace {

constexpr std::string_view kTitle = "Eventos";
constexpr std::string_view kRestoreTitle = "RESTAURAR PADRÃO";

const Message kNoName = refusal(kTitle, "Informe um Nome de Evento!");
const Message kNoFreeCode =
    refusal(kTitle, "Dado Incorreto!", "Todos os códigos de evento, de 001 a 999, estão em uso.");
const Message kConfirmChange = question(kTitle, "Confirma Alteração do Evento Selecionado?");
const Message kConfirmRestore =
    riskyQuestion(kRestoreTitle, "Confirma a 'Restaurar Padrão' da Lista de Eventos?");
const Message kConfirmRestoreOne =
    riskyQuestion(kRestoreTitle, "Deseja Restaurar Padrão Somente para o FUNCIONARIO SELECIONADO?");

}  // namespace

Eventos::Eventos(const Workplace& at, const OvertimeRules& rates,
                 std::optional<EmployeeCode> employee)
    : ListCommands(at, {.change = kConfirmChange}), rates_(rates), employee_(std::move(employee)) {}

bool Eventos::includeNew(const NewEvent& said) {
    if (trimmed(said.name).empty()) return refuse(kNoName);
    const auto event = newEvent(said, lines_);
    return event ? include(*event) : refuse(kNoFreeCode);
}

bool Eventos::restoreDefault() {
    return run(incorrectData(), [&] {
        return at_.person.agrees(employee_ ? kConfirmRestoreOne : kConfirmRestore) &&
               rewrite([&](Lines& lines) { lines = defaultEvents(rates_); });
    });
}

LineFile<PayrollEvent> Eventos::file() const {
    const CompanyCode company = at_.session.company.value();
    return employee_ ? employeeEvents(at_.store(), {company, *employee_})
                     : companyEvents(at_.store(), company);
}

Eventos::Lines Eventos::read() const {
    const CompanyCode company = at_.session.company.value();
    Lines lines = file().load();
    if (lines.empty() && employee_) lines = companyEvents(at_.store(), company).load();
    const Lines usual = defaultEvents(rates_);
    // A list that was shown and is gone is not to be taken for one that was never recorded.
    return lines.empty() && (lines_.empty() || lines_ == usual) ? usual : lines;
}

void Eventos::reread() {
    lines_.clear();
    ListCommands::reread();
}

ListRow Eventos::rowOf(const PayrollEvent& event) const {
    const std::string kind(event.isEarning() ? kEarningCaption : kDeductionCaption);
    return {{event.code, event.name, kind, event.reference}, event.code + " " + event.name};
}

PayrollEvent Eventos::completed(const PayrollEvent& typed) const {
    PayrollEvent event = typed;
    const auto column = fieldHolding(kPayrollEventFields, &PayrollEvent::name).column;
    event.name = std::string(firstCharacters(trimmed(typed.name), column.width));
    event.reference = padded(typed.referenceNumber(), 3);
    return event;
}

bool Eventos::requireAcceptable(const PayrollEvent& typed, const Line* before) {
    if (typed.name.empty()) return refuse(kNoName);
    if (before != nullptr && keyOf(typed) != before->key()) throw changedElsewhere("event");
    return keyOf(typed).has_value() || refuse(incorrectData());
}

Message Eventos::inclusionOf(const PayrollEvent& event) const {
    const std::string line = decodeWindows1252(encode(event));
    return question(kTitle, "Confirma Inclusão deste Evento (" + line + ") ?");
}

}  // namespace winvrx
