#include "personnel/leaves/afastamento.h"

#include "foundation/desk/list_screen.h"
#include "foundation/register/company_register.h"
#include "foundation/register/dismissal.h"
#include "foundation/register/employee_register.h"
#include "foundation/values/text.h"
#include "personnel/leaves/leave_findings.h"
#include "personnel/leaves/marking_offer.h"
#include "timecard/month/selected_month.h"
#include "timecard/punches/leave_marking.h"

#include <vector>

namespace winvrx {

namespace {

constexpr std::string_view kTitle = "Afastamento";
const Message kInactive = notice(kTitle, "Funcionário Inativo.!");
/// Those with times.
std::vector<Date> timedOf(const std::vector<UnmarkedDay>& days) {
    std::vector<Date> dates;
    for (const UnmarkedDay& day : days)
        if (day.hasTimes) dates.push_back(day.date);
    return dates;
}

}  // namespace

Afastamento::Afastamento(const Workplace& at, const PayrollLock& payroll)
    : at_(at), payroll_(payroll), list_(at.session.shiftFilter) {}

bool Afastamento::open() {
    return attempt(at_, incorrectData(), [this] {
        const auto month = requireSelectedMonth(at_);
        if (!month) return false;
        loadList(*at_.session.company, *month);
        return true;
    });
}

void Afastamento::loadList(const CompanyCode& company, WorkMonth month) {
    const auto lines = EmployeeRegister(at_.store(), company).load();
    std::string title = titleOf(loadCompanies(at_.store()), company);
    const FolderNames names = namesIn(at_.store());
    auto marks = monthMarks(at_.store(), company, month, names, payroll_);
    companyTitle_ = std::move(title);
    month_ = month;
    list_.fill(lines, std::move(marks));
    list_.setSubset(employeesWithLeaveFile(company, names));
    show(selected() ? loadLeaveFile(at_.store(), key()) : LeaveFile());
}

bool Afastamento::narrow(const std::function<void()>& filter) {
    if (!confirmLeaving()) return false;
    return attempt(at_, incorrectData(), [&] {
        filter();
        show(selected() ? std::move(file_) : LeaveFile());
    });
}

bool Afastamento::filterBy(ShiftFilter shift) {
    return narrow([&] { list_.filterBy(shift); });
}

bool Afastamento::showOnlyWithLeaves(bool only) {
    return narrow([&] { list_.showOnlySubset(only); });
}

std::string Afastamento::periodCaption() const {
    if (!month_) return {};
    return "Período : " + dateText(firstDay(*month_)) + " á " + dateText(lastDay(*month_));
}

std::string_view Afastamento::activationCaption() const {
    return isInactive() ? "Reativar" : "Inativar";
}

EmployeeKey Afastamento::keyOf(const Employee& employee) const {
    return {at_.session.company.value(), employee.employeeCode().value()};
}

bool Afastamento::select(std::size_t position) {
    if (!confirmLeaving()) return false;
    return attempt(at_, incorrectData(), [&] {
        const EmployeeKey key = keyOf(list_.employees().at(position));
        LeaveFile file = loadLeaveFile(at_.store(), key);
        list_.mark(position, marksOf(key));
        list_.select(position);
        show(std::move(file));
        if (isInactive()) at_.person.tell(kInactive);
    });
}

bool Afastamento::select(const EmployeeCode& employee) {
    if (!list_.positionOf(employee.text()) && !filterBy(ShiftFilter::Todos)) return false;
    const auto position = list_.positionOf(employee.text());
    return position && select(*position);
}

EmployeeMarks Afastamento::marksOf(const EmployeeKey& key) const {
    EmployeeMarks marks = markedLeaves(at_.store(), key, month_).marks;
    marks.closed = payroll_.isClosed(key, month_.value());
    return marks;
}

void Afastamento::show(LeaveFile file) {
    file_ = std::move(file);
    fill(std::nullopt);
}

void Afastamento::fill(std::optional<std::size_t> place) {
    const auto admission = selected() ? selected()->admissionDate() : std::nullopt;
    chosen_ = place;
    form_ = place ? LeaveForm(file_.leaves.at(*place).record, admission) : LeaveForm(admission);
    form_.showDismissal(file_.inactiveSince);
    punches_.clear();
    blamed_.reset();
}

bool Afastamento::choose(std::size_t place) {
    if (!requireSelection(kTitle) || !confirmLeaving()) return false;
    return attempt(at_, incorrectData(), [&] {
        const bool open = requireOpenMonth();
        fill(open ? std::optional(place) : std::nullopt);
        return open;
    });
}

bool Afastamento::begin() {
    if (!confirmLeaving()) return false;
    fill(std::nullopt);
    return true;
}

LeaveCalendar Afastamento::calendarOf(const LeaveFile& file) const {
    return {encode(file), selected() ? selected()->admissionDate() : std::nullopt};
}

std::string Afastamento::contradiction() const {
    return selected() ? dismissalContradiction(*selected(), file_.inactiveSince) : std::string();
}

void Afastamento::lookForPunches() {
    punches_.clear();
    const auto period = form_.period();
    if (!selected() || !period) return;
    LeaveFile planned{.inactiveSince = file_.inactiveSince};
    planned.leaves.push_back(leaveLine(form_.leave()));
    try {
        const auto days =
            timedOf(unmarkedDays(at_.store(), payroll_, key(), calendarOf(planned), *period));
        if (!days.empty()) punches_ = "Já há horas no cartão em " + datesText(days) + ".";
    } catch (const std::exception& fault) {
        at_.log.write(std::string("punches of a leave not looked up: ") + fault.what());
    }
}

std::string Afastamento::finding(LeaveInput input) const {
    const std::string found = findingFor(input, form_, file_, chosen_);
    return input == LeaveInput::FirstDay ? joined({found, punches_}, " ") : found;
}

void Afastamento::offerToMark(LeavePeriod days) {
    offerMarking(at_, payroll_, key(), calendar(), days);
}

bool Afastamento::confirmLeaving() {
    return !form_.isChanged() || at_.person.agrees(discardTyped());
}

}  // namespace winvrx
