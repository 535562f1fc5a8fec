#include "personnel/vacation/ferias.h"

#include "foundation/register/company_register.h"
#include "foundation/register/employee_register.h"
#include "foundation/values/text.h"
#include "personnel/leaves/leave_line.h"
#include "personnel/leaves/leave_types.h"
#include "personnel/vacation/due_vacations.h"
#include "timecard/month/business_days.h"
#include "timecard/month/selected_month.h"

#include <algorithm>

namespace winvrx {

Ferias::Ferias(const Workplace& at, FeriasDesk desk)
    : at_(at), desk_(std::move(desk)), list_(at.session.shiftFilter) {}

bool Ferias::open() {
    return attempt(at_, incorrectData(), [this] {
        const auto month = requireSelectedMonth(at_);
        if (!month) return false;
        loadList(*at_.session.company, *month);
        return true;
    });
}

void Ferias::loadList(const CompanyCode& company, WorkMonth month) {
    const auto lines = EmployeeRegister(at_.store(), company).load();
    std::string title = titleOf(loadCompanies(at_.store()), company);
    const FolderNames names = namesIn(at_.store());
    auto marks = monthMarks(at_.store(), company, month, names, desk_.payroll);
    const auto due = dueVacations(at_.store(), company, lines, names, today());
    companyTitle_ = std::move(title);
    month_ = month;
    months_ = {};
    std::set<EmployeeCode> subset;
    for (const EmployeeDue& one : due)
        subset.insert(one.employee);
    list_.fill(lines, std::move(marks));
    list_.setSubset(std::move(subset));
    show(selectedPosition());
}

bool Ferias::narrow(const std::function<void()>& filter) {
    if (!confirmLeaving()) return false;
    return attempt(at_, incorrectData(), [&] {
        filter();
        show(selectedPosition());
    });
}

bool Ferias::filterBy(ShiftFilter shift) {
    return narrow([&] { list_.filterBy(shift); });
}

bool Ferias::showOnlyDue(bool only) {
    return narrow([&] { list_.showOnlySubset(only); });
}

EmployeeKey Ferias::key() const {
    return {at_.session.company.value(), list_.selected()->employeeCode().value()};
}

bool Ferias::select(std::size_t position) {
    if (!confirmLeaving()) return false;
    return attempt(at_, incorrectData(), [&] { show(position); });
}

bool Ferias::select(const EmployeeCode& employee) {
    if (!list_.positionOf(employee.text()) && list_.showsOnlySubset() && !showOnlyDue(false))
        return false;
    if (!list_.positionOf(employee.text()) && !filterBy(ShiftFilter::Todos)) return false;
    const auto position = list_.positionOf(employee.text());
    return position && select(*position);
}

void Ferias::show(std::optional<std::size_t> position) {
    list_.select(position);
    reload();
}

void Ferias::reload() {
    lines_.clear();
    rows_.clear();
    if (const auto admission = selected() ? selected()->admissionDate() : std::nullopt) {
        const FolderNames names = namesIn(at_.store());
        lines_ = loadVacations(at_.store(), key(), names);
        leaves_ = loadLeaveCalendar(at_.store(), key(), admission);
        rows_ = periodRows(
            acquisitionCount(*admission, leaves_, lines_), lastDay(month_.value()), lines_,
            [&](const AcquisitionPeriod& period) { return grantedDays(period, names); });
    }
    const auto pending =
        std::ranges::find(rows_, PeriodStatus::Pending, &PeriodRow::status) - rows_.begin();
    fill(pending < std::ssize(rows_) ? std::optional(static_cast<std::size_t>(pending))
                                     : std::nullopt);
}

int Ferias::grantedDays(const AcquisitionPeriod& period, const FolderNames& names) {
    const auto history = loadCardHistory(at_.store(), at_.session.company.value(), *selected(),
                                         {period.first, period.last}, months_, names);
    return vacationDays(static_cast<int>(history.absences.size()));
}

void Ferias::fill(std::optional<std::size_t> row) {
    chosen_ = row;
    blamed_.reset();
    form_ = {};
    if (!row || rows_[*row].period.forfeit) return;
    const VacationItem* item = itemOf(rows_[*row]);
    form_ = item && !item->isProvision() ? VacationForm(*item) : VacationForm(rows_[*row].days);
}

bool Ferias::choose(std::size_t row) {
    if (!confirmLeaving()) return false;
    fill(row);
    return true;
}

const PeriodRow* Ferias::chosenRow() const {
    return chosen_ ? &rows_[*chosen_] : nullptr;
}

const VacationItem* Ferias::itemOf(const PeriodRow& row) const {
    return row.line ? &lines_[*row.line].record : nullptr;
}

bool Ferias::hasLeaveOf(const PeriodRow& row) const {
    const VacationItem* item = itemOf(row);
    const auto away = item ? item->away() : std::nullopt;
    return away && std::ranges::any_of(leaves_.leaves(), [&](const DatedLeave& leave) {
               return leaveTypeOf(leave.leave.type) == kVacationLeave &&
                      leave.period.first == away->first && leave.period.last == away->last;
           });
}

std::string Ferias::dueText() const {
    const auto admission = selected() ? selected()->admissionDate() : std::nullopt;
    if (!admission) return {};
    const auto due = dueVacation(acquisitionCount(*admission, leaves_, lines_), today(), lines_);
    if (!due) return {};
    return "Vencem em " + std::to_string(kDueWithinDays) + " dias: " + std::to_string(due->days) +
           " dias do período de " + dateText(due->period.first) + " a " +
           dateText(due->period.last) + ", com início até " + dateText(due->lastStart) +
           " para não pagar em dobro.";
}

/// CLT, art. 134 par. 3: neither of the two days that follow is one of rest. Where the month cannot
/// be read nothing is said of it.
bool Ferias::beginsBeforeRest(Date first) {
    try {
        for (const int days : {1, 2}) {
            const Date date = plusDays(first, days);
            if (isRestDay(months_.of(at_.store(), monthOf(date)), date)) return true;
        }
    } catch (const std::exception& fault) {
        at_.log.write(std::string("rest days after a vacation's start not read: ") + fault.what());
    }
    return false;
}

std::vector<std::string> Ferias::planNotes() {
    std::vector<std::string> notes;
    const PeriodRow* row = chosenRow();
    if (!row) return notes;
    if (row->period.forfeit) return {forfeitText(row->period)};
    notes.push_back("Limite da concessão: " + dateText(row->period.limit) +
                    ". Último início sem dobra: " + dateText(row->period.lastStart(row->days)) +
                    ".");
    const auto first = form_.first();
    const auto days = form_.days();
    if (!first || !days || *days < 1) return notes;
    notes.push_back("Aviso até " + dateText(vacationNoticeDue(*first)) +
                    " (CLT, art. 135), pagamento até " + dateText(vacationPaymentDue(*first)) +
                    " (art. 145).");
    if (vacationNoticeDue(*first) < today() && row->status == PeriodStatus::Pending)
        notes.push_back("⚠ O prazo do aviso já passou.");
    if (const int past = daysPastLimit(row->period, *first, *days); past > 0)
        notes.push_back("⚠ Depois do limite, " + countOf(past, "dia é pago", "dias são pagos") +
                        " em dobro (CLT, art. 137).");
    if (form_.sold().value_or(0) > 0)
        notes.push_back("O abono é pedido até " + dateText(saleRequestDue(row->period)) +
                        " (CLT, art. 143).");
    if (beginsBeforeRest(*first))
        notes.push_back(
            "⚠ As férias não começam nos dois dias antes de feriado ou repouso (CLT, art. 134).");
    return notes;
}

bool Ferias::confirmLeaving() {
    return !form_.isChanged() || at_.person.agrees(discardTyped());
}

}  // namespace winvrx
