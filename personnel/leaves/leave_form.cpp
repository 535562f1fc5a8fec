#include "personnel/leaves/leave_form.h"

#include "foundation/values/text.h"
#include "personnel/leaves/leave_types.h"

#include <algorithm>
#include <utility>

namespace winvrx {

namespace {

constexpr std::string_view kDaysWord = " Dias e ";
constexpr std::string_view kHoursWord = " Horas";
constexpr int kDaysDigits = 3;

struct StoredInput {
    LeaveInput input;
    std::string Leave::*member;
    bool isOfTermination = true;
};

/// What is recorded as it stands in its field.
constexpr std::array kStoredInputs = {
    StoredInput{LeaveInput::Type, &Leave::type, false},
    StoredInput{LeaveInput::FirstDay, &Leave::firstDay, false},
    StoredInput{LeaveInput::LastDay, &Leave::lastDay, false},
    StoredInput{LeaveInput::TerminationType, &Leave::terminationType},
    StoredInput{LeaveInput::NoticeType, &Leave::noticeType},
    StoredInput{LeaveInput::NoticeGiven, &Leave::noticeGiven},
    StoredInput{LeaveInput::NoticeBegins, &Leave::noticeBegins},
    StoredInput{LeaveInput::NoticeEnds, &Leave::noticeEnds},
    StoredInput{LeaveInput::LastDayWorked, &Leave::lastWorked},
    StoredInput{LeaveInput::PaymentDue, &Leave::paymentDue},
    StoredInput{LeaveInput::Homologation, &Leave::homologation},
};

/// In the order in which one follows from the other.
constexpr std::array kWorkedOut = {LeaveInput::NoticeGiven, LeaveInput::NoticeBegins,
                                   LeaveInput::NoticeEnds,  LeaveInput::LastDayWorked,
                                   LeaveInput::PaymentDue,  LeaveInput::Homologation,
                                   LeaveInput::LastDay,     LeaveInput::Dismissal};

bool isWorkedOut(LeaveInput input) {
    return std::ranges::find(kWorkedOut, input) != kWorkedOut.end();
}

/// Days and hours of a duration, without zeros in front; what cannot be read is empty.
std::array<std::string, 2> readDuration(std::string_view stored) {
    std::array<std::string, 2> numbers;
    std::string rest = foldedForSearch(stored);
    for (std::size_t one = 0; one < numbers.size(); ++one) {
        const std::string word = foldedForSearch(trimmed(one == 0 ? kDaysWord : kHoursWord));
        const std::size_t end = rest.find(word);
        if (end == std::string::npos) break;
        if (const auto number = parseWholeNumber(rest.substr(0, end), 0, kMostLeaveDays))
            numbers[one] = std::to_string(*number);
        rest.erase(0, end + word.size());
    }
    return numbers;
}

}  // namespace

LeaveForm::LeaveForm(const Leave& stored, std::optional<Date> admission) : admission_(admission) {
    for (const StoredInput& one : kStoredInputs)
        put(one.input, stored.*one.member);
    auto [days, hours] = readDuration(stored.duration);
    put(LeaveInput::Days, std::move(days));
    put(LeaveInput::Hours, std::move(hours));
    if (text(LeaveInput::Days).empty()) followDays(LeaveInput::LastDay);
    if (!parseTime(stored.homologation))
        std::swap(unreadHour_, texts_[place(LeaveInput::Homologation)]);
    for (const LeaveInput input : kWorkedOut)
        typedOver_[place(input)] = !text(input).empty();
    workOut();
    shown_ = texts_;
}

bool LeaveForm::isTermination() const {
    Leave leave;
    leave.type = text(LeaveInput::Type);
    return leave.isTermination();
}

std::optional<Date> LeaveForm::date(LeaveInput input) const {
    return parseDate(text(input));
}

std::optional<int> LeaveForm::days() const {
    return parseWholeNumber(text(LeaveInput::Days), 0, kMostLeaveDays);
}

std::optional<int> LeaveForm::hours() const {
    if (text(LeaveInput::Hours).empty()) return 0;
    return parseWholeNumber(text(LeaveInput::Hours), 0, kMostLeaveHours);
}

void LeaveForm::type(LeaveInput input, std::string_view typed) {
    put(input, std::string(trimmed(typed)));
    typedOver_[place(input)] = isWorkedOut(input) && !text(input).empty();
    followDays(input);
    workOut();
}

void LeaveForm::showDismissal(std::optional<Date> date) {
    const bool unchanged = !isChanged();
    if (date) put(LeaveInput::Dismissal, dateText(*date));
    typedOver_[place(LeaveInput::Dismissal)] = date.has_value();
    workOut();
    if (unchanged) shown_ = texts_;
}

/// The last day follows from the first one and the days; the days from both dates. A leave of no
/// days, but hours, begins and ends on the same one.
void LeaveForm::followDays(LeaveInput typed) {
    const auto first = date(LeaveInput::FirstDay);
    const auto last = date(LeaveInput::LastDay);
    const bool byDays = typed == LeaveInput::Days || (typed == LeaveInput::FirstDay && days());
    if (byDays && first && days()) {
        if (isTermination() && typed == LeaveInput::FirstDay &&
            !typedOver_[place(LeaveInput::LastDay)])
            return;
        put(LeaveInput::LastDay, dateText(plusDays(*first, std::max(*days(), 1) - 1)));
        typedOver_[place(LeaveInput::LastDay)] = true;
    } else if ((typed == LeaveInput::LastDay || typed == LeaveInput::FirstDay) && first && last &&
               *first <= *last && !(days() == 0 && *first == *last)) {
        put(LeaveInput::Days, std::to_string(LeavePeriod{*first, *last}.days()));
    }
}

void LeaveForm::give(LeaveInput input, std::string value, std::string rule) {
    const std::size_t at = place(input);
    workedOut_[at] = {std::move(value), std::move(rule)};
    if (texts_[at] == workedOut_[at].value) typedOver_[at] = false;
    if (!typedOver_[at]) texts_[at] = workedOut_[at].value;
}

void LeaveForm::workOut() {
    const auto before = std::exchange(workedOut_, {});
    if (isTermination()) workOutDates();
    // What was worked out from inputs that no longer stand goes with them.
    for (const LeaveInput input : kWorkedOut)
        if (const std::size_t at = place(input);
            workedOut_[at].value.empty() && !typedOver_[at] && !before[at].value.empty())
            texts_[at].clear();
    if (isTermination() && !typedOver_[place(LeaveInput::LastDay)]) followDays(LeaveInput::LastDay);
}

void LeaveForm::workOutDates() {
    const auto type = terminationTypeOf(text(LeaveInput::TerminationType));
    const auto notice = noticeTypeOf(text(LeaveInput::NoticeType));
    if (type || notice)
        give(LeaveInput::Homologation, std::string(kHomologationHour), "Hora da homologação");
    if (const auto first = date(LeaveInput::FirstDay))
        give(LeaveInput::NoticeGiven, dateText(*first), "Primeiro dia do afastamento");
    const auto given = date(LeaveInput::NoticeGiven);
    if (type && notice && given && admission_ && *admission_ <= *given) {
        const TerminationDates dates = terminationDates(*type, *notice, *admission_, *given);
        const auto& begins = dates.noticeBegins;
        workedOut_[place(LeaveInput::NoticeType)].rule = dates.noticeDays.rule;
        give(LeaveInput::NoticeBegins, begins.value ? dateText(*begins.value) : "", begins.rule);
        give(LeaveInput::NoticeEnds, dateText(dates.noticeEnds.value), dates.noticeEnds.rule);
        give(LeaveInput::LastDayWorked, dateText(dates.lastDayWorked.value),
             dates.lastDayWorked.rule);
    }
    if (const auto worked = date(LeaveInput::LastDayWorked)) {
        const Explained<Date> due = paymentDue(*worked);
        give(LeaveInput::PaymentDue, dateText(due.value), due.rule);
    }
    if (const auto end = date(LeaveInput::NoticeEnds)) {
        give(LeaveInput::LastDay, dateText(*end), "Fim do aviso");
        give(LeaveInput::Dismissal, dateText(*end), "Fim do contrato");
    }
}

bool LeaveForm::isLineChanged() const {
    auto line = texts_;
    line[place(LeaveInput::Dismissal)] = shown_[place(LeaveInput::Dismissal)];
    return line != shown_;
}

bool LeaveForm::isTypedOver(LeaveInput input) const {
    return typedOver_[place(input)] && !workedOut_[place(input)].rule.empty();
}

std::string LeaveForm::rule(LeaveInput input) const {
    const Explained<std::string>& why = workedOut_[place(input)];
    if (!isTypedOver(input)) return why.rule;
    return (why.value.empty() ? "nenhuma" : why.value) + ": " + why.rule;
}

Leave LeaveForm::leave() const {
    Leave leave;
    for (const StoredInput& one : kStoredInputs)
        if (!one.isOfTermination || isTermination()) leave.*one.member = text(one.input);
    if (leave.homologation == kHomologationHour) leave.homologation = unreadHour_;
    if (const auto count = days())
        leave.duration = padded(*count, kDaysDigits) + std::string(kDaysWord) +
                         std::to_string(hours().value_or(0)) + std::string(kHoursWord);
    return leave;
}

}  // namespace winvrx
