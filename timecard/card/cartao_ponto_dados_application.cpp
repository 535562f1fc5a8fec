#include "foundation/files/folder_names.h"
#include "foundation/values/text.h"
#include "timecard/card/cartao_ponto_dados.h"
#include "timecard/punches/application_checks.h"
#include "timecard/punches/punch_application.h"

#include <algorithm>

// "Aplicar Ponto" and "Aplicar Ponto p/Todos".

namespace winvrx {

namespace {

const Message kClosedMonth =
    refusal("DIGITAÇÃO DO PONTO",
            "ATENÇÃO! Não é Possível Alterar o Ponto! Já Foi Gerada a Folha de Pagamento para este "
            "Funcionário!!");
const Message kScheduleNotRecorded = question(
    "Aplicação de Pontos",
    "O Horário de Trabalho foi alterado e ainda não foi gravado. Deseja gravá-lo e aplicá-lo?");

std::string summaryOf(int filled, std::size_t asked) {
    return "Ponto aplicado para " + std::to_string(filled) + " de " +
           countOf(asked, "funcionário") + ".";
}

/// "Turno: Unico", "Turno: Unico, Escala: 5x1".
std::string descriptionOf(const EmployeeList& list) {
    std::string text = "Turno: " + std::string(codeOf(list.shift()));
    if (list.scale()) text.append(", Escala: ").append(codeOf(*list.scale()));
    return text;
}

}  // namespace

bool CartaoPontoDados::requireEditable() {
    return requireSelection() && (!closed() || at_.person.refuse(kClosedMonth));
}

bool CartaoPontoDados::requireOpenMonth() {
    MarkedLeaves leaves = leavesOf(*selected());
    list_.mark(*position_, leaves.marks);
    leaves_ = std::move(leaves.calendar);
    return requireEditable();
}

bool CartaoPontoDados::chooseMinutes(Minutes minutes) {
    if (minutes == minutes_) return true;
    return attemptWriting(at_, incorrectData(), [&] {
        saveMinutes(at_.store(), minutes);
        minutes_ = minutes;
    });
}

void CartaoPontoDados::setSituationToApply(std::string_view situation) {
    situationToApply_ = meantSituation(trimmed(situation));
}

void CartaoPontoDados::requireStorableSituation() const {
    if (const std::string finding = findingOf(PunchCell::Situation, situationToApply_);
        !finding.empty())
        throw Fault("situation to apply", finding);
}

ApplicationOrder CartaoPontoDados::applicationOrder() const {
    return {.company = company_.value(),
            .settings = settings_,
            .minutes = minutes_,
            .situation = situationToApply_,
            .common = std::nullopt};
}

bool CartaoPontoDados::saveTypedSchedule() {
    return !schedule_.changed() || (at_.person.agrees(kScheduleNotRecorded) && saveSchedule());
}

bool CartaoPontoDados::confirmApplication() {
    const EmployeeKey key = selectedKey();
    const bool inGroup =
        selected()->scaleOr() != Scale::Normal &&
        desk_.rotation.monthsOf(key.company, settings_.month).contains(key.employee);
    return winvrx::confirmApplication(
        at_.person, {.employee = *selected(),
                     .month = settings_.month,
                     .applied = applied_,
                     .edited = sheet_.changed(),
                     .inGroup = inGroup,
                     .lacksSituation = !inGroup && leavesWorkBlank(schedule_.schedule()) &&
                                       situationToApply_.empty(),
                     .onLeave = marks().onLeave,
                     .inactive = marks().isInactiveBefore(settings_.month)});
}

bool CartaoPontoDados::applyPunches() {
    if (!requireSelection()) return false;
    return attempt(at_, incorrectData(), [this] {
        if (!requireOpenMonth()) return false;
        const auto before = at_.files.read(punchFile());
        applied_ = applied_ || before;
        if (!confirmApplication()) return false;
        requireStorableSituation();
        requireReadableSchedule();
        if (!saveTypedSchedule()) return false;
        const auto hold = holdFolder(at_);
        requireScheduleAsShown();
        if (at_.files.read(punchFile()) != before) throw employeeChangedElsewhere("punches");
        if (!requireOpenMonth()) return false;
        ListApplication application(at_.store(), desk_, applicationOrder());
        ListApplication::Batch batch;
        application.fillOne(
            batch, *selected(), selectedKey().employee,
            loadLeaveCalendar(at_.store(), selectedKey(), selected()->admissionDate()));
        at_.files.replaceAll(batch);
        filledCards_ = application.filled();
        showApplied();
        return true;
    });
}

void CartaoPontoDados::showApplied() {
    if (selected()->scaleOr() != Scale::Normal) return loadCard(*position_);
    showPunches(findPunchRecord(at_.store(), selectedKey(), settings_.month));
}

bool CartaoPontoDados::confirmListApplication(const std::vector<std::size_t>& positions,
                                              bool sameHours) {
    const auto differs = [&](std::size_t position) {
        const Employee& one = list_.employees().at(position);
        const Employee& first = list_.employees().at(positions.front());
        return one.shiftOr() != first.shiftOr() || one.scaleOr() != first.scaleOr();
    };
    const FolderNames names = namesIn(at_.store());
    const auto isApplied = [&](std::size_t position) {
        const EmployeeCode code = list_.employees().at(position).employeeCode().value();
        return names.contains(punchFileName({company_.value(), code}, settings_.month));
    };
    const bool chosen = selected() && !positions.empty();
    return winvrx::confirmListApplication(
        at_.person,
        {.selected = chosen ? selected() : nullptr,
         .month = settings_.month,
         .onLeave = chosen && marks().onLeave,
         .sameHours = sameHours,
         .listed = chosen && std::ranges::count(positions, *position_) > 0,
         .lacksSchedule = leavesWorkBlank(schedule_.schedule()),
         .mixed = std::ranges::any_of(positions, differs),
         .everyShift = list_.shift() == ShiftFilter::Todos,
         .description = descriptionOf(list_),
         .employees = positions.size(),
         .applied = static_cast<std::size_t>(std::ranges::count_if(positions, isApplied)),
         .edited = sheet_.changed()});
}

bool CartaoPontoDados::applyToAll(bool sameHours, const ListApplication::Progress& progress) {
    if (!company_) return requireSelection();
    return attempt(at_, incorrectData(), [&] {
        const auto positions = list_.shown();
        if (!confirmListApplication(positions, sameHours)) return false;
        requireStorableSituation();
        requireReadableSchedule();
        if (!saveTypedSchedule()) return false;
        return fillAll(positions, sameHours, progress);
    });
}

bool CartaoPontoDados::fillAll(const std::vector<std::size_t>& positions, bool sameHours,
                               const ListApplication::Progress& progress) {
    std::vector<EmployeeCode> codes;
    for (const std::size_t position : positions)
        codes.push_back(list_.employees().at(position).employeeCode().value());
    const auto hold = holdFolder(at_);
    requireScheduleAsShown();
    ApplicationOrder order = applicationOrder();
    if (sameHours) order.common = schedule_.recorded();
    ListApplication application(at_.store(), desk_, std::move(order));
    const auto batch = application.fill(codes, progress);
    if (!batch) return false;
    at_.files.replaceAll(*batch);
    filledCards_ = application.filled();
    if (application.hasFilled(selectedKey().employee)) showApplied();
    if (const std::string remarks = application.remarks(kMostNames); !remarks.empty()) {
        const std::string all = application.remarks(codes.size());
        if (all != remarks) at_.log.write("punches of a list: " + all);
        at_.person.tell(
            notice("Aplicação de Pontos", summaryOf(filledCards_, codes.size()), remarks));
    }
    return true;
}

}  // namespace winvrx
