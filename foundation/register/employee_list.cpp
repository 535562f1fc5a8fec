#include "foundation/register/employee_list.h"

#include "foundation/files/file_faults.h"
#include "foundation/values/text.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <span>

namespace winvrx {

std::vector<std::string> textsOf(const EmployeeMarks& marks) {
    std::vector<std::string> texts;
    if (marks.onLeave) texts.emplace_back("COLABORADOR COM AFASTAMENTO!!!");
    if (marks.closed) texts.emplace_back("Folha Fechada");
    if (marks.inactiveSince) texts.push_back("Inativo desde " + dateText(*marks.inactiveSince));
    if (marks.unreadable) texts.emplace_back("Os afastamentos não podem ser lidos");
    return texts;
}

std::string_view activityOf(const Employee& employee, const EmployeeMarks& marks) {
    if (marks.inactiveSince) return "Inativo";
    if (employee.status == kDeletedStatus) return kDeletedStatus;
    return marks.unreadable ? "Ilegível" : "Ativo";
}

MarkedLeaves markedLeaves(const Store& store, const EmployeeKey& key,
                          std::optional<WorkMonth> month, std::optional<Date> admission) {
    try {
        MarkedLeaves found{loadLeaveCalendar(store, key, admission), {}};
        found.marks.onLeave = month && found.calendar.touches(*month);
        found.marks.inactiveSince = found.calendar.inactiveSince();
        found.marks.contractEnd = found.calendar.contractEnd();
        return found;
    } catch (const FileFault&) {
        return {{{}, admission}, {.unreadable = true}};
    }
}

std::string namesText(const std::vector<std::string>& names, std::size_t most) {
    std::string text = joined(std::span(names).first(std::min(names.size(), most)), ", ");
    if (names.size() > most) text += " e mais " + std::to_string(names.size() - most);
    return text;
}

EmployeeList::Marks EmployeeList::leaveMarks(const Store& store, const CompanyCode& company,
                                             const FolderNames& names,
                                             std::optional<WorkMonth> month) {
    Marks marks;
    for (const EmployeeCode& code : employeesWithLeaveFile(company, names))
        marks.emplace(code, markedLeaves(store, {company, code}, month).marks);
    return marks;
}

EmployeeMarks EmployeeList::marksOf(const Marks& marks, const EmployeeCode& code) {
    const auto found = marks.find(code);
    return found == marks.end() ? EmployeeMarks() : found->second;
}

void EmployeeList::load(const Store& store, const CompanyCode& company,
                        std::optional<WorkMonth> month) {
    fill(EmployeeRegister(store, company).load(),
         leaveMarks(store, company, namesIn(store), month));
}

void EmployeeList::fill(const std::vector<EmployeeLine>& lines, Marks marks) {
    everyone_ = employeesOf(lines, ShiftFilter::Todos);
    marks_ = std::move(marks);
    filter();
}

void EmployeeList::filterBy(ShiftFilter shift) {
    shift_ = shift;
    filter();
}

void EmployeeList::filterBy(std::optional<Scale> scale) {
    scale_ = scale;
    filter();
}

void EmployeeList::setSubset(std::set<EmployeeCode> codes) {
    subset_ = std::move(codes);
    filter();
}

void EmployeeList::addToSubset(const EmployeeCode& code) {
    if (subset_.insert(code).second && positionOf(code.text())) ++inSubset_;
}

void EmployeeList::showOnlySubset(bool only) {
    onlySubset_ = only;
    filter();
}

bool EmployeeList::isInSubset(const Employee& one) const {
    return subset_.contains(one.employeeCode().value());
}

const Employee* EmployeeList::selected() const {
    return selected_ ? &employees_.at(*selected_) : nullptr;
}

void EmployeeList::filter() {
    const std::string former = selected() ? selected()->code : "";
    employees_.clear();
    std::ranges::copy_if(everyone_, std::back_inserter(employees_), [this](const Employee& one) {
        return passes(shift_, one.shiftOr()) && (!scale_ || one.scaleOr() == *scale_);
    });
    const auto isIn = [this](const Employee& one) { return isInSubset(one); };
    inAll_ = employees_.size();
    inSubset_ = static_cast<std::size_t>(std::ranges::count_if(employees_, isIn));
    if (onlySubset_) std::erase_if(employees_, std::not_fn(isIn));
    selected_ = positionOf(former);
}

bool EmployeeList::isShown(std::size_t position) const {
    if (position >= employees_.size()) return false;
    if (search_.empty()) return true;
    std::string text = searchedText(employees_[position]);
    for (const std::string& mark : textsOf(marks(position)))
        text += mark + " ";
    return matchesSearch(text, search_);
}

std::vector<std::size_t> EmployeeList::shown() const {
    std::vector<std::size_t> positions;
    for (std::size_t position = 0; position < employees_.size(); ++position)
        if (isShown(position)) positions.push_back(position);
    return positions;
}

std::vector<Employee> EmployeeList::people(
    Date first, Date last,
    const std::function<bool(const std::vector<std::string>& names)>& areMeant) const {
    std::vector<Employee> everyone;
    std::vector<Employee> within;
    std::vector<std::string> others;
    for (const std::size_t position : shown()) {
        const Employee& one = everyone.emplace_back(employees_[position]);
        const auto end = marks(position).contractEnd;
        const auto admission = one.admissionDate();
        if ((end && *end < first) || (admission && *admission > last))
            others.push_back(one.name);
        else
            within.push_back(one);
    }
    return others.empty() || areMeant(others) ? everyone : within;
}

std::optional<std::size_t> EmployeeList::positionOf(std::string_view code) const {
    const auto found = std::ranges::find(employees_, code, &Employee::code);
    if (found == employees_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - employees_.begin());
}

bool EmployeeList::isTicked(std::size_t position) const {
    return ticked_.contains(employees_.at(position).code);
}

void EmployeeList::tick(std::size_t position, bool on) {
    if (on)
        ticked_.insert(employees_.at(position).code);
    else
        ticked_.erase(employees_.at(position).code);
}

void EmployeeList::tickShown(bool on) {
    for (const std::size_t position : shown())
        tick(position, on);
}

std::vector<Employee> EmployeeList::ticked() const {
    std::vector<Employee> people;
    std::ranges::copy_if(employees_, std::back_inserter(people),
                         [this](const Employee& one) { return ticked_.contains(one.code); });
    return people;
}

EmployeeMarks EmployeeList::marks(std::size_t position) const {
    return marksOf(marks_, employees_.at(position).employeeCode().value());
}

void EmployeeList::mark(std::size_t position, const EmployeeMarks& marks) {
    marks_[employees_.at(position).employeeCode().value()] = marks;
}

}  // namespace winvrx
