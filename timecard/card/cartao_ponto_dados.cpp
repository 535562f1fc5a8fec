#include "timecard/card/cartao_ponto_dados.h"

#include "foundation/register/company_register.h"
#include "foundation/register/employee_queries.h"
#include "foundation/values/text.h"
#include "timecard/card/cell_block.h"
#include "timecard/hours/percent_change.h"
#include "timecard/month/overtime_record.h"
#include "timecard/month/selected_month.h"

#include <algorithm>

namespace winvrx {

namespace {

const Message kSaturdayIsNormal =
    question("HORÁRIO DE TRABALHO", "No SÁBADO Será HORA NORMAL?", {}, Buttons::YesNoCancel);
const Message kNeedsSituation =
    warning("DIGITAÇÃO DO PONTO", "Informe o Tipo de Situação!", {}, Buttons::OkCancel);
const Message kRecordChanges = question(
    "ALTERAÇÃO", "As alterações deste Funcionário ainda não foram gravadas. Deseja gravá-las?", {},
    Buttons::YesNoCancel);

/// ENTER keeps what is recorded of Saturdays, where something is.
Message saturdayQuestion(const StandardSchedule& recorded) {
    Message asked = kSaturdayIsNormal;
    if (recorded.saturday != DaySchedule())
        asked.present = recorded.saturdayIsNormal ? Answer::Yes : Answer::No;
    return asked;
}

Message inPunchEntry(Message message) {
    message.title = "DIGITAÇÃO DO PONTO";
    return message;
}

}  // namespace

CartaoPontoDados::CartaoPontoDados(const Workplace& at, const PunchDesk& desk)
    : at_(at), desk_(desk), list_(at.session.shiftFilter) {
    settings_.month = monthOf(at_.clock.today());
    sheet_ = CardSheet(blankMonth(settings_.month));
}

bool CartaoPontoDados::open() {
    return attempt(at_, incorrectData(), [this] {
        const auto month = requireSelectedMonth(at_);
        if (!month) return false;
        loadList(*at_.session.company, loadMonthSettings(at_.store(), *month));
        return true;
    });
}

void CartaoPontoDados::loadList(const CompanyCode& company, const MonthSettings& settings) {
    const auto lines = EmployeeRegister(at_.store(), company).load();
    std::string name = findCompany(at_.store(), company).value_or(Company()).name;
    const FolderNames names = namesIn(at_.store());
    auto marks = monthMarks(at_.store(), company, settings.month, names, desk_.payroll);
    minutes_ = loadMinutes(at_.store());
    const std::string chosen = company_ == company && selected() ? selected()->code : "";
    company_ = company;
    companyName_ = std::move(name);
    settings_ = settings;
    list_.fill(lines, std::move(marks));
    loadCardOf(chosen);
}

MarkedLeaves CartaoPontoDados::leavesOf(const Employee& employee) const {
    const EmployeeKey key{company_.value(), employee.employeeCode().value()};
    MarkedLeaves found = markedLeaves(at_.store(), key, settings_.month, employee.admissionDate());
    found.marks.closed = desk_.payroll.isClosed(key, settings_.month);
    return found;
}

void CartaoPontoDados::loadCardOf(const std::string& code) {
    position_.reset();
    leaves_ = {};
    overtime_ = settings_.overtime;
    schedule_ = TypedSchedule();
    showPunches(std::nullopt);
    if (const auto position = list_.positionOf(code)) loadCard(*position);
}

void CartaoPontoDados::loadCard(std::size_t position) {
    const Employee& employee = list_.employees().at(position);
    const EmployeeKey key{company_.value(), employee.employeeCode().value()};
    const auto schedule = loadSchedule(at_.store(), key);
    const OvertimeRules overtime = overtimeOf(at_.store(), key, settings_);
    auto punches = findPunchRecord(at_.store(), key, settings_.month);
    MarkedLeaves leaves = leavesOf(employee);
    list_.mark(position, leaves.marks);
    position_ = position;
    leaves_ = std::move(leaves.calendar);
    overtime_ = overtime;
    schedule_ = TypedSchedule(schedule.value_or(StandardSchedule()));
    showPunches(std::move(punches));
}

void CartaoPontoDados::showPunches(std::optional<PunchRecord> record) {
    applied_ = record.has_value();
    unreadLines_ = record ? std::move(record->unread) : std::vector<std::string>();
    sheet_ = CardSheet(record ? std::move(record->days) : blankMonth(settings_.month));
}

bool CartaoPontoDados::narrow(const std::function<void()>& filter) {
    if (!confirmLeaving()) return false;
    return attempt(at_, incorrectData(), [&] {
        const std::string chosen = selected() ? selected()->code : "";
        filter();
        loadCardOf(chosen);
    });
}

bool CartaoPontoDados::select(std::size_t position) {
    if (!confirmLeaving()) return false;
    return attempt(at_, incorrectData(), [&] { loadCard(position); });
}

const Employee* CartaoPontoDados::selected() const {
    return position_ ? &list_.employees()[*position_] : nullptr;
}

EmployeeMarks CartaoPontoDados::marks() const {
    return position_ ? list_.marks(*position_) : EmployeeMarks();
}

EmployeeKey CartaoPontoDados::selectedKey() const {
    return {company_.value(), selected()->employeeCode().value()};
}

std::filesystem::path CartaoPontoDados::punchFile() const {
    return at_.session.folder.file(punchFileName(selectedKey(), settings_.month));
}

bool CartaoPontoDados::requireSelection() {
    if (selected()) return true;
    if (!at_.session.company) return at_.person.refuse(noCompany(at_));
    return at_.person.refuse(company_ ? noEmployeeSelected() : noMonthChosen());
}

std::string CartaoPontoDados::weeklyCaption() const {
    return decimalHours(weeklyHours(schedule_.schedule()), Decimals::One) + " HORAS SEMANAIS";
}

std::string CartaoPontoDados::monthlyCaption() const {
    return decimalHours(monthlyHours(schedule_.schedule()), Decimals::One) + " HORAS MENSAIS";
}

std::string_view CartaoPontoDados::saturdayCaption() const {
    return schedule_.saturdayIsNormal() ? "Sábado(Normal)" : "Sábado(Extra)";
}

bool CartaoPontoDados::saveSchedule() {
    if (!requireSelection()) return false;
    return attempt(at_, incorrectData(), [this] {
        requireReadableSchedule();
        requireScheduleAsShown();
        StandardSchedule schedule = schedule_.schedule();
        if (schedule_.hasSaturdayTimes()) {
            const Answer answer = at_.person.ask(saturdayQuestion(schedule_.recorded()));
            if (answer == Answer::Cancel) return false;
            schedule.saturdayIsNormal = answer == Answer::Yes;
        }
        const auto hold = holdFolder(at_);
        requireScheduleAsShown();
        winvrx::saveSchedule(at_.store(), selectedKey(), schedule);
        schedule_ = TypedSchedule(decodeSchedule(encode(schedule)));
        return true;
    });
}

void CartaoPontoDados::requireScheduleAsShown() const {
    const auto onDisk = loadSchedule(at_.store(), selectedKey());
    if (onDisk.value_or(StandardSchedule()) != schedule_.recorded())
        throw employeeChangedElsewhere("schedule");
}

void CartaoPontoDados::requireReadableSchedule() const {
    if (const auto finding = schedule_.firstFinding())
        throw Fault("standard schedule: " + *finding, *finding);
}

CardDays CartaoPontoDados::days() const {
    const Employee nobody;
    return {sheet_, settings_.month,
            workTerms(settings_, overtime_, schedule_.schedule(), selected() ? *selected() : nobody,
                      leaves_),
            selected() && (applied_ || sheet_.changed())};
}

bool CartaoPontoDados::changePercent(HourCategory category, std::string_view typed) {
    if (!requireSelection()) return false;
    return attempt(at_, incorrectData(), [&] {
        const EmployeeKey key = selectedKey();
        if (!requireOpenMonth() ||
            !winvrx::changePercent(
                at_, {key.company, key.employee, settings_.month, overtime_, category, typed}))
            return false;
        overtime_ = overtimeOf(at_.store(), key, settings_);
        return true;
    });
}

bool CartaoPontoDados::pasteCells(int day, PunchCell cell, std::string_view text) {
    if (!requireEditable()) return false;
    Message refusal = inPunchEntry(incorrectData());
    refusal.detail = paste(sheet_, day, cell, parseCellBlock(text));
    return refusal.detail.empty() || at_.person.refuse(refusal);
}

std::vector<int> CartaoPontoDados::daysWithoutSituation() const {
    const CardDays card = this->days();
    std::vector<int> days;
    for (int day = 1; day <= static_cast<int>(sheet_.lines().size()); ++day) {
        const bool typed = sheet_.line(day) != sheet_.recorded()[static_cast<std::size_t>(day) - 1];
        const Date date = plusDays(firstDay(settings_.month), day - 1);
        const bool saturday = weekdayOf(date) == std::chrono::Saturday;
        const StandardSchedule& schedule = schedule_.recorded();
        const bool scheduled = (saturday ? schedule.saturday : schedule.weekday) != DaySchedule();
        if (typed && scheduled && sheet_.isBlank(day) && card.kindOf(day) == DayKind::Work)
            days.push_back(day);
    }
    return days;
}

bool CartaoPontoDados::confirmBlankDays() {
    const std::vector<int> days = daysWithoutSituation();
    if (days.empty()) return true;
    Message message = kNeedsSituation;
    message.detail =
        joined(days, ", ", [this](int day) { return sheet_.line(day).label; }) +
        (days.size() == 1 ? " ficou" : " ficaram") +
        " sem horas e sem situação. 'OK' grava assim mesmo, 'CANCELAR' volta à digitação.";
    return at_.person.agrees(message);
}

bool CartaoPontoDados::savePunches() {
    if (!requireSelection()) return false;
    return attempt(at_, inPunchEntry(incorrectData()), [this] {
        if (!requireOpenMonth()) return false;
        if (const auto finding = sheet_.firstFinding()) throw Fault("punches typed", *finding);
        if (!confirmBlankDays()) return false;
        const auto hold = holdFolder(at_);
        if (!requireOpenMonth()) return false;
        const auto onDisk = loadPunches(at_.store(), selectedKey(), settings_.month);
        if (onDisk.value_or(blankMonth(settings_.month)) != sheet_.recorded())
            throw employeeChangedElsewhere("punches");
        std::vector<FileSystem::NewContent> batch;
        PunchFiles(at_.store(), desk_.payroll, settings_)
            .add(batch, selectedKey(),
                 editedPunchRecord(at_.files.read(punchFile()).value_or(std::string()),
                                   settings_.month, sheet_.lines()));
        at_.files.replaceAll(batch);
        sheet_.markRecorded();
        applied_ = true;
        return true;
    });
}

bool CartaoPontoDados::saveChanges() {
    return (!schedule_.changed() || saveSchedule()) && (!sheet_.changed() || savePunches());
}

bool CartaoPontoDados::confirmLeaving() {
    if (!changed()) return true;
    const Answer answer = at_.person.ask(kRecordChanges);
    return answer == Answer::No || (answer == Answer::Yes && saveChanges());
}

}  // namespace winvrx
