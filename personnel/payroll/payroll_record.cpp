#include "personnel/payroll/payroll_record.h"

#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

RecordFile fileOf(const Store& store, const EmployeeKey& key, WorkMonth month, PayrollRun run) {
    return {store, payrollFileName(key, month, run)};
}

std::string lineOfPay(const PayLine& line) {
    RecordedPayLine record{line.event, moneyText(line.amount),
                           std::string(line.isTyped ? kTypedMark : "")};
    return encode(record);
}

std::optional<PayLine> payLineFrom(std::string_view bytes) {
    const auto record = decode<RecordedPayLine>(bytes);
    const auto amount = parseMoney(record.amount);
    if (!keyOf(record) || !amount) return std::nullopt;
    return PayLine{record, *amount, record.typed == kTypedMark};
}

bool isUnread(std::string_view bytes) {
    return !trimmed(bytes).empty() && !payLineFrom(bytes);
}

/// The lines of the sheet, among them, at the places where they stood, those that nobody
/// understands.
std::vector<std::string> linesOf(const PaySheet& sheet, const std::vector<std::string>& before) {
    std::vector<std::string> lines;
    std::ranges::transform(sheet.lines, std::back_inserter(lines), lineOfPay);
    for (std::size_t at = 0; at < before.size(); ++at)
        if (isUnread(before[at]))
            lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(std::min(at, lines.size())),
                         before[at]);
    return lines;
}

/// Where the month stands in the name: behind company, "fp" and the five digits of the employee.
constexpr std::size_t kMonthStart = 9;
constexpr std::size_t kMonthLength = 7;

}  // namespace

std::optional<RecordedPayroll> loadPayroll(const Store& store, const EmployeeKey& key,
                                           WorkMonth month, PayrollRun run) {
    const RecordFile file = fileOf(store, key, month, run);
    if (!file.exists()) return std::nullopt;
    RecordedPayroll payroll;
    for (const std::string& bytes : file.lines()) {
        if (auto line = payLineFrom(bytes)) payroll.sheet.lines.push_back(*std::move(line));
        if (isUnread(bytes)) payroll.unread.push_back(readableText(bytes));
    }
    addUp(payroll.sheet);
    return payroll;
}

std::optional<Money> vacationNetPaid(const Store& store, const EmployeeKey& key, WorkMonth month) {
    const auto recorded = loadPayroll(store, key, month, PayrollRun::Vacation);
    return recorded ? std::optional(recorded->sheet.net) : std::nullopt;
}

TypedAmounts typedAmounts(const PaySheet& sheet) {
    TypedAmounts typed;
    for (const PayLine& line : sheet.lines)
        if (line.isTyped) typed.emplace(keyOf(line.event).value(), line.amount);
    return typed;
}

FileSystem::NewContent payrollContent(const Store& store, const EmployeeKey& key, WorkMonth month,
                                      const PaySheet& sheet, PayrollRun run,
                                      std::string_view before) {
    return {store.folder.file(payrollFileName(key, month, run)),
            joinedLines(linesOf(sheet, splitLines(before)))};
}

bool reopenPayroll(const Store& store, const EmployeeKey& key, WorkMonth month, PayrollRun run) {
    return fileOf(store, key, month, run).remove();
}

std::vector<WorkMonth> recordedMonths(const EmployeeKey& key, const FolderNames& names,
                                      PayrollRun run) {
    std::vector<WorkMonth> months;
    for (const std::string& name : beginningWith(names, key.company.text())) {
        if (!isFileOfAnyRun(name) || name.size() < kMonthStart + kMonthLength) continue;
        const auto month = parseMonthKey(std::string_view(name).substr(kMonthStart, kMonthLength));
        if (month && name == payrollFileName(key, *month, run)) months.push_back(*month);
    }
    std::ranges::sort(months);
    return months;
}

}  // namespace winvrx
