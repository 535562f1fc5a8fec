#include "timecard/punches/leave_marking.h"

#include "timecard/punches/period_record.h"

#include <algorithm>
#include <chrono>
#include <string>

namespace winvrx {

namespace {

constexpr std::size_t kMonthKeyLength = 7;

/// The day as the leaves have it.
PunchLine marked(PunchLine line, Standing standing) {
    if (standing != Standing::OnLeave && standing != Standing::AfterEnd) return line;
    line.clearTimes();
    line.situation = standing == Standing::OnLeave ? kSituationLeave : std::string_view();
    return line;
}

/// A recorded month with the days that are to be marked in it.
struct Card {
    WorkMonth month;
    bool closed = false;
    std::vector<PunchLine> lines;  ///< marked
    std::vector<UnmarkedDay> days;
};

Card cardOf(std::vector<PunchLine> lines, WorkMonth month, bool closed, const LeaveCalendar& leaves,
            const LeavePeriod& days) {
    Card card{month, closed, std::move(lines), {}};
    Date date = firstDay(month);
    for (PunchLine& line : card.lines) {
        PunchLine wanted = days.contains(date) ? marked(line, leaves.standingOn(date)) : line;
        if (wanted != line) {
            const bool onLeave = !line.hasTimes() && line.situation == kSituationLeave;
            card.days.push_back({date, line.hasTimes(), onLeave, closed});
            line = std::move(wanted);
        }
        date = plusDays(date, 1);
    }
    return card;
}

/// The months whose punches stand in the folder, in order of time.
std::vector<WorkMonth> recordedMonths(const Store& store, const EmployeeKey& key,
                                      const LeavePeriod& days) {
    const std::string beginning = key.company.text() + key.employee.text() + "-";
    std::vector<WorkMonth> months;
    const FolderNames names = namesIn(store);
    for (const std::string& name : beginningWith(names, beginning)) {
        const auto month = parseMonthKey(name.substr(beginning.size(), kMonthKeyLength));
        if (month && name == punchFileName(key, *month) && days.touches(*month))
            months.push_back(*month);
    }
    std::ranges::sort(months);
    return months;
}

std::vector<Card> cardsIn(const Store& store, const PayrollLock& payroll, const EmployeeKey& key,
                          const LeaveCalendar& leaves, const LeavePeriod& days) {
    std::vector<Card> cards;
    for (const WorkMonth month : recordedMonths(store, key, days))
        if (auto lines = loadPunches(store, key, month))
            cards.push_back(
                cardOf(std::move(*lines), month, payroll.isClosed(key, month), leaves, days));
    return cards;
}

}  // namespace

std::vector<UnmarkedDay> unmarkedDays(const Store& store, const PayrollLock& payroll,
                                      const EmployeeKey& key, const LeaveCalendar& leaves,
                                      LeavePeriod days) {
    std::vector<UnmarkedDay> unmarked;
    for (const Card& card : cardsIn(store, payroll, key, leaves, days))
        unmarked.insert(unmarked.end(), card.days.begin(), card.days.end());
    return unmarked;
}

int markDays(const Store& store, const PayrollLock& payroll, const EmployeeKey& key,
             const LeaveCalendar& leaves, LeavePeriod days) {
    int marked = 0;
    for (const Card& card : cardsIn(store, payroll, key, leaves, days)) {
        if (card.closed || card.days.empty()) continue;
        const auto before = store.files.read(store.folder.file(punchFileName(key, card.month)));
        std::vector<FileSystem::NewContent> batch;
        PunchFiles(store, payroll, loadMonthSettings(store, card.month))
            .add(batch, key, editedPunchRecord(before.value_or(""), card.month, card.lines));
        // One by one, the card last: cut short, its days are still found unmarked.
        for (const FileSystem::NewContent& one : batch)
            store.files.replace(one.file, one.bytes);
        marked += static_cast<int>(card.days.size());
    }
    return marked;
}

}  // namespace winvrx
