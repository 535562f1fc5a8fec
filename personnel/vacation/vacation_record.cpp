#include "personnel/vacation/vacation_record.h"

#include "foundation/files/record_names.h"
#include "foundation/values/input_checks.h"
#include "foundation/values/text.h"

#include <chrono>

namespace winvrx {

namespace {

constexpr int kMostDays = 99;

int numberIn(const std::string& text) {
    return parseWholeNumber(text, 0, kMostDays).value_or(0);
}

}  // namespace

bool VacationItem::isProvision() const {
    return kind == kProvisionKind;
}

bool VacationItem::isSettled() const {
    return mark == kSettledMark;
}

std::optional<Date> VacationItem::periodFirst() const {
    return parseDate(acquisitionFirst);
}

std::optional<WorkMonth> VacationItem::workMonth() const {
    return parseMonthKey(month);
}

std::optional<LeavePeriod> VacationItem::away() const {
    const auto from = parseDate(first);
    const auto to = parseDate(last);
    if (isProvision() || !from || !to || *to < *from) return std::nullopt;
    return LeavePeriod{*from, *to};
}

int VacationItem::grantedDays() const {
    return numberIn(granted);
}

int VacationItem::soldDays() const {
    return isProvision() ? 0 : numberIn(sold);
}

int VacationItem::days() const {
    const auto period = away();
    if (!period) return 0;
    const auto days = std::chrono::sys_days(period->last) - std::chrono::sys_days(period->first);
    return static_cast<int>(days.count()) + 1;
}

std::optional<std::pair<std::string, WorkMonth>> keyOf(const VacationItem& item) {
    const auto month = item.workMonth();
    if (!month || !item.periodFirst()) return std::nullopt;
    if (!item.isProvision() && (item.kind != kVacationKind || !item.away())) return std::nullopt;
    return std::pair(item.kind, *month);
}

std::string vacationFileName(const EmployeeKey& key) {
    return key.company.text() + std::string(kVacationStem) + key.employee.text();
}

LineFile<VacationItem> vacationFile(const Store& store, const EmployeeKey& key) {
    return LineFile<VacationItem>({store, vacationFileName(key)});
}

VacationLines loadVacations(const Store& store, const EmployeeKey& key, const FolderNames& names) {
    return names.contains(vacationFileName(key)) ? vacationFile(store, key).load()
                                                 : VacationLines();
}

const VacationItem* vacationOf(const VacationLines& lines, WorkMonth month) {
    const VacationLine* line = findLine(lines, std::pair(std::string(kVacationKind), month));
    return line ? &line->record : nullptr;
}

}  // namespace winvrx
