#include "timecard/punches/list_application.h"

#include "foundation/files/file_faults.h"
#include "foundation/register/employee_list.h"
#include "foundation/values/text.h"
#include "timecard/punches/application_checks.h"
#include "timecard/punches/punch_application.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

/// In the order of Remark.
constexpr std::array<std::string_view, 9> kRemarkTexts = {
    "Não aplicado, folha fechada: ",
    "Não aplicado, inativo antes do mês: ",
    "Não aplicado, escala de revezamento sem grupo: ",
    "Não aplicado, admissão depois do mês: ",
    "Não aplicado, registro que não pode ser lido: ",
    "Código repetido no cadastro, vale o primeiro: ",
    "Não está mais no cadastro: ",
    "Aplicado sem horas, não tem horário de trabalho: ",
    "Aplicado com afastamento: ",
};

void requireReadable(const LeaveCalendar& leaves) {
    if (!leaves.unread().empty())
        throw Fault(
            "leave line: " + leaves.unread().front(),
            "Um afastamento não tem datas que possam ser lidas: " + leaves.unread().front());
}

void requireReadable(const StandardSchedule& schedule) {
    if (std::ranges::any_of(schedule.unread, [](const auto& bytes) { return !bytes.empty(); }))
        throw Fault("standard schedule holds what is no time",
                    "O horário de trabalho tem uma hora que não existe. Corrija-o primeiro.");
}

void requireReadable(const RotationMonth& rotation) {
    if (!rotation.finding.empty()) throw Fault("work table of a rotation", rotation.finding);
}

/// The weekday that the record names for the rest; nullopt where it names none.
std::optional<std::chrono::weekday> ownRestDay(const Employee& employee) {
    if (employee.restDay.empty()) return std::nullopt;
    return weeklyRestOf(employee);
}

/// Makes the hours of the rotation those that worked time is compared with; true when they change.
bool takeRotation(StandardSchedule& schedule, const RotationMonth& rotation) {
    const StandardSchedule before = schedule;
    schedule.weekday = rotation.weekday;
    schedule.saturday = rotation.saturday;
    schedule.saturdayIsNormal = true;
    schedule.unread = {};
    return schedule != before;
}

}  // namespace

ListApplication::ListApplication(const Store& store, const PunchDesk& desk, ApplicationOrder order)
    : store_(store),
      desk_(desk),
      order_(std::move(order)),
      punchFiles_(store, desk.payroll, order_.settings) {}

std::optional<ListApplication::Remark> ListApplication::hindrance(
    const Employee& employee, const EmployeeCode& code, const LeaveCalendar& leaves) const {
    const WorkMonth month = order_.settings.month;
    if (closed_.contains(code)) return Remark::Closed;
    if (const auto end = leaves.contractEnd(); end && *end < firstDay(month))
        return Remark::Inactive;
    if (lacksGroup(employee, rotationOf(employee, code) != nullptr)) return Remark::NoGroup;
    if (const auto admission = requireAdmission(employee); admission && *admission > lastDay(month))
        return Remark::AdmittedLater;
    return std::nullopt;
}

const RotationMonth* ListApplication::rotationOf(const Employee& employee,
                                                 const EmployeeCode& code) const {
    if (employee.scaleOr() == Scale::Normal) return nullptr;
    if (!rotations_) rotations_ = desk_.rotation.monthsOf(order_.company, order_.settings.month);
    const auto found = rotations_->find(code);
    return found == rotations_->end() ? nullptr : &found->second;
}

StandardSchedule ListApplication::scheduleOf(const EmployeeCode& code,
                                             const RotationMonth* rotation) const {
    if (order_.common && !rotation) return *order_.common;
    return loadSchedule(store_, {order_.company, code}).value_or(StandardSchedule());
}

void ListApplication::fillOne(Batch& batch, const Employee& employee, const EmployeeCode& code,
                              const LeaveCalendar& leaves) {
    const RotationMonth* rotation = rotationOf(employee, code);
    if (rotation) requireReadable(*rotation);
    StandardSchedule schedule = scheduleOf(code, rotation);
    const bool replaced = rotation ? takeRotation(schedule, *rotation) : order_.common.has_value();
    requireReadable(schedule);
    requireReadable(leaves);
    Application application{.schedule = schedule,
                            .leaves = leaves,
                            .restDay = restByCalendar(employee),
                            .situation = order_.situation};
    if (rotation) application.rotation = RotationTerms{*rotation, ownRestDay(employee)};
    if (order_.minutes == Minutes::Varied)
        application.spread = [&](const DaySchedule& day, Date date) {
            return variation_.vary(day, {order_.company, code}, date);
        };
    std::string record = punchRecordBytes(filledMonth(application, order_.settings));
    if (replaced) batch.push_back(withSchedule(store_, {order_.company, code}, schedule));
    punchFiles_.add(batch, {order_.company, code}, std::move(record));
    if (leavesWorkBlank(schedule)) remarks_[Remark::NoTimes].push_back(employee.name);
    if (leaves.touches(order_.settings.month)) remarks_[Remark::OnLeave].push_back(employee.name);
    filled_.insert(code);
}

void ListApplication::look() {
    FolderNames names = namesIn(store_);
    closed_ = desk_.payroll.closedIn(order_.company, order_.settings.month, names);
    withLeaves_ = employeesWithLeaveFile(order_.company, names);
    rotations_.reset();
    punchFiles_.lookAmong(std::move(names));
}

LeaveCalendar ListApplication::leavesOf(const Employee& employee, const EmployeeCode& code) const {
    if (!withLeaves_.contains(code)) return {{}, employee.admissionDate()};
    try {
        return loadLeaveCalendar(store_, {order_.company, code}, employee.admissionDate());
    } catch (const FileFault& fault) {
        throw Fault(fault.what(), fault.explanation());  // concerns him only
    }
}

void ListApplication::take(Batch& batch, const Employee& employee, const EmployeeCode& code) {
    const std::size_t before = batch.size();
    try {
        const LeaveCalendar leaves = leavesOf(employee, code);
        if (const auto reason = hindrance(employee, code, leaves))
            remarks_[*reason].push_back(employee.name);
        else
            fillOne(batch, employee, code, leaves);
    } catch (const FileFault&) {
        throw;
    } catch (const Fault& fault) {
        batch.resize(before);
        remarks_[Remark::Unreadable].push_back(employee.name + " (" + fault.explanation() + ")");
    }
}

std::optional<ListApplication::Batch> ListApplication::fill(const std::vector<EmployeeCode>& codes,
                                                            const Progress& progress) {
    filled_.clear();
    remarks_.clear();
    std::map<EmployeeCode, Employee> people;
    for (EmployeeLine& line : EmployeeRegister(store_, order_.company).load())
        if (const auto code = line.key()) people.emplace(*code, std::move(line.record));
    look();
    Batch batch;
    std::set<EmployeeCode> seen;
    int done = 0;
    for (const EmployeeCode& code : codes) {
        const auto person = people.find(code);
        if (!seen.insert(code).second)
            remarks_[Remark::Repeated].push_back(code.text());
        else if (person == people.end())
            remarks_[Remark::Gone].push_back(code.text());
        else
            take(batch, person->second, code);
        if (progress && !progress(++done, static_cast<int>(codes.size()))) return std::nullopt;
    }
    return batch;
}

std::string ListApplication::remarks(std::size_t mostNames) const {
    return joined(remarks_, "\n", [&](const auto& one) {
        return std::string(kRemarkTexts[static_cast<std::size_t>(one.first)]) +
               namesText(one.second, mostNames);
    });
}

}  // namespace winvrx
