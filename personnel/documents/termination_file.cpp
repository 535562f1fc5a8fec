#include "personnel/documents/termination_file.h"

#include <array>
#include <vector>

namespace winvrx {

namespace {

struct RecordedDate {
    std::string Leave::*member;
    Column column;
};

constexpr std::size_t kWidth = 142;
constexpr std::size_t kItemWidth = 90;
constexpr Column kPrinted{1, 10};
constexpr Column kAdmission{12, 10};
constexpr Column kItem{1, 60};
constexpr Column kCredit{62, 14};
constexpr Column kDebit{77, 14};
constexpr std::array kOfLeave = {
    RecordedDate{&Leave::noticeGiven, {23, 10}},     RecordedDate{&Leave::noticeEnds, {34, 10}},
    RecordedDate{&Leave::lastWorked, {45, 10}},      RecordedDate{&Leave::paymentDue, {56, 10}},
    RecordedDate{&Leave::terminationType, {67, 55}}, RecordedDate{&Leave::noticeType, {123, 20}}};
static_assert(kOfLeave.back().column.end() == kWidth + 1);

}  // namespace

FileSystem::NewContent terminationFile(const Store& store, const EmployeeKey& key,
                                       const PaperKind& kind, const PaperSubject& subject) {
    RecordLine line(kWidth);
    line.put(kPrinted, dateText(subject.today));
    line.put(kAdmission, subject.employee.admission);
    for (const RecordedDate& one : kOfLeave)
        line.put(one.column, *subject.termination.*one.member);
    std::vector<std::string> lines{line.bytes()};
    for (const PaidItem& item : subject.account.items) {
        RecordLine paid(kItemWidth);
        paid.put(kItem, item.words);
        paid.put(kCredit, item.credit);
        paid.put(kDebit, item.debit);
        lines.push_back(paid.bytes());
    }
    const std::string name = std::string(kind.terminationStem) + key.employee.text();
    return {store.folder.companyFile(key.company, name), joinedLines(lines)};
}

}  // namespace winvrx
