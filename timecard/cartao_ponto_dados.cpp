#include "timecard/cartao_ponto_dados.h"

#include "foundation/company_register.h"
#include "timecard/hours.h"
#include "timecard/overtime_record.h"
#include "timecard/punch_application.h"
#include "timecard/selected_month.h"

#include <algorithm>

namespace winvrx {

namespace {

const Message kNoCompany{"Aviso", "Cadastre Primeiro Uma Empresa!!", Icon::Exclamation};
const Message kNoMonth{"Aviso", "Informe um Mês de Trabalho!!", Icon::Exclamation};
const Message kNoEmployee{"Aviso", "Selecione um Funcionário na Lista!", Icon::Exclamation};
const Message kSaturdayIsNormal{"HORÁRIO DE TRABALHO", "No SÁBADO Será HORA NORMAL?",
                                Icon::Question, Buttons::YesNo};
const Message kAlreadyApplied{"Aplicação Ponto",
                              "Já Existem Dados de Ponto Aplicados para Esse Funcionário! .",
                              Icon::Exclamation};
const Message kReplaceApplied{
    "Aplicação Ponto",
    "Se Prosseguir, Irá Perder todas as Alterações Feitas para este Funcionário. Deseja Substituir "
    "os Dados Já Aplicados.",
    Icon::Question, Buttons::OkCancel};
const Message kRotationScale{"Aplicação de Ponto",
                             "Este Funcionário foi definido como ESCALA DE REVEZAMENTO!!!",
                             Icon::Exclamation};
const Message kAddToRotation{
    "Aplicação de Ponto", "Portanto é Necessário PRIMEIRO adicioná-lo na ESCALA DE REVEZAMENTO!!!",
    Icon::Exclamation};
const Message kAdmissionTooLate{"Analise de Datas",
                                "A data de Admissão deste Funcionário não está dentro Período do "
                                "Mês de de Aplicação de Ponto!",
                                Icon::Critical};
const Message kConfirmApplication{
    "Aplicação de Pontos",
    "Confirma Aplicação de Ponto de ENTRADA e SAÍDA conforme o Padrão para o Item Selecionado?",
    Icon::Question, Buttons::YesNo};
const Message kScheduleNotRecorded{
    "Aplicação de Pontos",
    "O Horário de Trabalho foi alterado e ainda não foi gravado. Deseja gravá-lo e aplicá-lo?",
    Icon::Question, Buttons::YesNo};
const Message kRecordChanges{
    "ALTERAÇÃO", "As alterações deste Funcionário ainda não foram gravadas. Deseja gravá-las?",
    Icon::Question, Buttons::YesNoCancel};

constexpr std::string_view kWeekly = " HORAS SEMANAIS";
constexpr std::string_view kMonthly = " HORAS MENSAIS";
constexpr std::string_view kSaturdayNormal = "Sábado(Normal)";
constexpr std::string_view kSaturdayExtra = "Sábado(Extra)";
constexpr std::string_view kChangedElsewhere =
    "Este registro foi alterado por outro computador. Selecione o funcionário novamente.";

std::string nameOf(const Workplace& at, const CompanyCode& code) {
    for (const CompanyLine& line : loadCompanies(at.files, at.session.folder))
        if (line.code() == code) return line.company.name;
    return {};
}

Message inPunchEntry(Message message) {
    message.title = "DIGITAÇÃO DO PONTO";
    return message;
}

}  // namespace

CartaoPontoDados::CartaoPontoDados(const Workplace& at) : at_(at) {
    settings_.month = monthOf(at_.clock.today());
    sheet_ = CardSheet(blankMonth(settings_.month));
}

bool CartaoPontoDados::open() {
    return attempt(at_, incorrectData(), [this] {
        if (!at_.session.company) {
            at_.person.tell(kNoCompany);
            return false;
        }
        const auto selected = loadSelectedMonth(at_.files, at_.session.folder);
        if (!selected) {
            at_.person.tell(kNoMonth);
            return false;
        }
        loadList(*at_.session.company,
                 loadMonthSettings(at_.files, at_.session.folder, selected->month),
                 selected->shiftFilter);
        return true;
    });
}

void CartaoPontoDados::loadList(const CompanyCode& company, const MonthSettings& settings,
                                ShiftFilter filter) {
    const auto lines = EmployeeRegister(at_.files, at_.session.folder, company).load();
    std::string name = nameOf(at_, company);
    const std::string chosen = company_ == company && selected() ? selected()->code : "";
    company_ = company;
    companyName_ = std::move(name);
    settings_ = settings;
    filter_ = filter;
    employees_ = employeesOf(lines, filter);
    position_.reset();
    overtime_ = settings_.overtime;
    schedule_ = TypedSchedule();
    sheet_ = CardSheet(blankMonth(settings_.month));
    unreadLines_.clear();
    applied_ = false;
    const auto found = std::find_if(employees_.begin(), employees_.end(),
                                    [&](const Employee& one) { return one.code == chosen; });
    if (found != employees_.end()) loadCard(static_cast<std::size_t>(found - employees_.begin()));
}

void CartaoPontoDados::loadCard(std::size_t position) {
    const EmployeeCode code = employees_.at(position).employeeCode().value();
    const CompanyCode& company = company_.value();
    const auto schedule = loadSchedule(at_.files, at_.session.folder, company, code);
    const OvertimeRules overtime =
        overtimeOf(at_.files, at_.session.folder, company, code, settings_);
    auto punches = loadPunches(at_.files, at_.session.folder, company, code, settings_.month);
    unreadLines_ = unreadPunchLines(at_.files, at_.session.folder, company, code, settings_.month);
    position_ = position;
    overtime_ = overtime;
    schedule_ = TypedSchedule(schedule.value_or(StandardSchedule()));
    applied_ = punches.has_value();
    sheet_ = CardSheet(punches ? std::move(*punches) : blankMonth(settings_.month));
}

bool CartaoPontoDados::filterBy(ShiftFilter filter) {
    if (!mayLeave()) return false;
    return attempt(at_, incorrectData(), [&] {
        loadList(company_.value(), settings_, filter);
        return true;
    });
}

bool CartaoPontoDados::select(std::size_t position) {
    if (!mayLeave()) return false;
    return attempt(at_, incorrectData(), [&] {
        loadCard(position);
        return true;
    });
}

const Employee* CartaoPontoDados::selected() const {
    return position_ ? &employees_[*position_] : nullptr;
}

EmployeeCode CartaoPontoDados::selectedCode() const {
    return selected()->employeeCode().value();
}

bool CartaoPontoDados::requireSelection() {
    if (!selected()) at_.person.tell(kNoEmployee);
    return selected() != nullptr;
}

std::string CartaoPontoDados::weeklyCaption() const {
    return decimalHours(weeklyHours(schedule_.schedule()), Decimals::One).append(kWeekly);
}

std::string CartaoPontoDados::monthlyCaption() const {
    return decimalHours(monthlyHours(schedule_.schedule()), Decimals::One).append(kMonthly);
}

std::string_view CartaoPontoDados::saturdayCaption() const {
    return schedule_.saturdayIsNormal() ? kSaturdayNormal : kSaturdayExtra;
}

bool CartaoPontoDados::saveSchedule() {
    if (!requireSelection()) return false;
    return attempt(at_, incorrectData(), [this] {
        requireReadableSchedule();
        requireScheduleAsShown();
        StandardSchedule schedule = schedule_.schedule();
        if (schedule_.hasSaturdayTimes())
            schedule.saturdayIsNormal = at_.person.agrees(kSaturdayIsNormal);
        const auto hold = holdFolder(at_);
        requireScheduleAsShown();
        winvrx::saveSchedule(at_.files, at_.session.folder, company_.value(), selectedCode(),
                             schedule);
        schedule_ = TypedSchedule(decodeSchedule(encode(schedule)));
        return true;
    });
}

void CartaoPontoDados::requireScheduleAsShown() const {
    const auto onDisk =
        loadSchedule(at_.files, at_.session.folder, company_.value(), selectedCode());
    if (onDisk.value_or(StandardSchedule()) != schedule_.recorded())
        throw Fault("schedule changed on disk", std::string(kChangedElsewhere));
}

void CartaoPontoDados::requireReadableSchedule() const {
    if (const auto finding = schedule_.firstFinding())
        throw Fault("standard schedule: " + *finding, *finding);
}

bool CartaoPontoDados::passesApplicationChecks() {
    if (applied_ || sheet_.changed()) {
        if (applied_) at_.person.tell(kAlreadyApplied);
        if (!at_.person.agrees(kReplaceApplied)) return false;
    }
    if (selected()->scaleOr() != Scale::Normal) {
        at_.person.tell(kRotationScale);
        at_.person.tell(kAddToRotation);
        return false;
    }
    if (!selected()->admission.empty() && !selected()->admissionDate())
        throw Fault("admission date: " + selected()->admission,
                    "A data de admissão \"" + selected()->admission +
                        "\" não existe. Corrija-a no cadastro do funcionário.");
    if (const auto admission = selected()->admissionDate();
        admission && *admission > lastDay(settings_.month)) {
        at_.person.tell(kAdmissionTooLate);
        return false;
    }
    requireReadableSchedule();
    if (!at_.person.agrees(kConfirmApplication)) return false;
    return !schedule_.changed() || (at_.person.agrees(kScheduleNotRecorded) && saveSchedule());
}

bool CartaoPontoDados::applyPunches() {
    if (!requireSelection()) return false;
    return attempt(at_, incorrectData(), [this] {
        const CompanyCode& company = company_.value();
        const auto file =
            at_.session.folder.file(punchFileName(company, selectedCode(), settings_.month));
        const auto before = at_.files.read(file);
        applied_ = applied_ || before;
        if (!passesApplicationChecks()) return false;
        const auto hold = holdFolder(at_);
        requireScheduleAsShown();
        if (at_.files.read(file) != before)
            throw Fault("punches changed on disk", std::string(kChangedElsewhere));
        const auto lines =
            filledMonth(schedule_.recorded(), settings_, selected()->admissionDate());
        at_.files.replace(file, punchRecordBytes(lines));
        loadCard(*position_);
        return true;
    });
}

DayKind CartaoPontoDados::kindOf(int day) const {
    const Date date = plusDays(firstDay(settings_.month), day - 1);
    switch (meaningOf(sheet_.line(day).situation)) {
        case DayMeaning::Leave:
            return DayKind::Leave;
        case DayMeaning::Missing:
            return DayKind::Absence;
        case DayMeaning::Excused:
            return DayKind::Excused;
        case DayMeaning::Holiday:
            return DayKind::Holiday;
        case DayMeaning::WeeklyRest:
            return settings_.isHoliday(date) ? DayKind::Holiday : DayKind::WeeklyRest;
        case DayMeaning::Work:
            break;
    }
    if (settings_.isHoliday(date)) return DayKind::Holiday;
    return weekdayOf(date) == std::chrono::Sunday ? DayKind::WeeklyRest : DayKind::Work;
}

WorkTerms CartaoPontoDados::terms() const {
    return workTerms(settings_, overtime_, schedule_.schedule(),
                     selected() ? *selected() : Employee());
}

std::string CartaoPontoDados::totalOf(int day) const {
    const Date date = plusDays(firstDay(settings_.month), day - 1);
    const auto worked = dayHours(sheet_.line(day), date, terms()).worked();
    return worked.count() == 0 ? std::string() : formatted(worked, overtime_.totalsFormat);
}

std::string CartaoPontoDados::totalOf(HalfMonth half) const {
    const HourTotals totals = periodHours(sheet_.lines(), firstDay(settings_.month), terms(), half);
    return formatted(totals.worked(), overtime_.totalsFormat);
}

bool CartaoPontoDados::savePunches() {
    if (!requireSelection()) return false;
    return attemptWriting(at_, inPunchEntry(incorrectData()), [this] {
        if (const auto finding = sheet_.firstFinding()) throw Fault("punches typed", *finding);
        const CompanyCode& company = company_.value();
        const auto onDisk =
            loadPunches(at_.files, at_.session.folder, company, selectedCode(), settings_.month);
        if (onDisk.value_or(blankMonth(settings_.month)) != sheet_.recorded())
            throw Fault("punches changed on disk", std::string(kChangedElsewhere));
        winvrx::savePunches(at_.files, at_.session.folder, company, selectedCode(), settings_.month,
                            sheet_.lines());
        sheet_.markRecorded();
        applied_ = true;
        return true;
    });
}

bool CartaoPontoDados::saveChanges() {
    return (!schedule_.changed() || saveSchedule()) && (!sheet_.changed() || savePunches());
}

bool CartaoPontoDados::mayLeave() {
    if (!changed()) return true;
    const Answer answer = at_.person.ask(kRecordChanges);
    if (answer == Answer::Cancel) return false;
    if (answer == Answer::No) return true;
    return saveChanges();
}

}  // namespace winvrx
