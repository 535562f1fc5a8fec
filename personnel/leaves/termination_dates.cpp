#include "personnel/leaves/termination_dates.h"

#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr int kBaseDays = 30;
constexpr int kDaysPerYear = 3;
constexpr int kMostDays = 90;
constexpr int kMostWorkedDays = 30;
constexpr int kPaymentDays = 10;

Explained<int> fullNotice(Date admission, Date given) {
    const int years = fullYearsOfService(admission, given);
    const int owed = kBaseDays + kDaysPerYear * years;
    std::string rule = "30 + 3 × " + countOf(years, "ano") + " = " + countOf(owed, "dia");
    if (owed > kMostDays) rule += ", no máximo " + std::to_string(kMostDays);
    return {std::min(owed, kMostDays), rule + ", Lei 12.506/2011"};
}

std::string after(std::string_view what, Date date, int count) {
    return std::string(what) + " " + dateText(date) + " + " + countOf(count, "dia");
}

void endAtOnce(TerminationDates& dates, TerminationType type) {
    const Date given = dates.noticeGiven.value;
    const std::string rule = type == TerminationType::JustCause
                                 ? "Justa causa: sem aviso prévio, CLT art. 482"
                                 : "Aviso não cumprido pelo empregado, CLT art. 487 § 2º";
    dates.noticeBegins = {std::nullopt, rule};
    dates.noticeEnds = {given, rule};
    dates.lastDayWorked = {given, rule};
}

int workedDays(const TerminationDates& dates, NoticeType notice) {
    return notice == NoticeType::Worked ? std::min(dates.noticeDays.value, kMostWorkedDays) : 0;
}

/// By agreement the days that are paid and not worked count half.
void halvePaidDays(Explained<int>& notice, int worked) {
    const int half = (notice.value - worked + 1) / 2;
    if (half == 0) return;
    notice.value = worked + half;
    notice.rule +=
        "; por acordo, metade do que é indenizado = " + countOf(half, "dia") + ", CLT art. 484-A";
}

void runNotice(TerminationDates& dates, TerminationType type, NoticeType notice) {
    const int worked = workedDays(dates, notice);
    if (type == TerminationType::Agreement) halvePaidDays(dates.noticeDays, worked);
    const Date given = dates.noticeGiven.value;
    const int owed = dates.noticeDays.value;
    dates.noticeBegins = {plusDays(given, 1), "Dia seguinte ao da comunicação, que não se conta"};
    dates.noticeEnds = {plusDays(given, owed), after("Comunicação", given, owed)};
    dates.lastDayWorked = {plusDays(given, worked), after("Comunicação", given, worked)};
    if (notice == NoticeType::Paid) {
        dates.noticeEnds.rule += ", data projetada, CLT art. 487 § 1º";
        dates.lastDayWorked.rule = "Aviso indenizado: o dia da comunicação";
        return;
    }
    // Who resigns has no time off to look for other work.
    if (type != TerminationType::Resignation)
        dates.lastDayWorked.rule += ", 2 horas a menos por dia ou 7 dias corridos, CLT art. 488";
    if (owed > worked)
        dates.noticeEnds.rule += "; " + countOf(owed - worked, "dia") + " indenizados";
}

}  // namespace

int fullYearsOfService(Date admission, Date date) {
    const Date next = plusDays(date, 1);
    const int years = static_cast<int>(next.year()) - static_cast<int>(admission.year());
    const bool beforeAnniversary =
        std::pair(next.month(), next.day()) < std::pair(admission.month(), admission.day());
    return std::max(0, years - (beforeAnniversary ? 1 : 0));
}

/// Paid or worked, the contract of a resigning employee is not projected past his last day.
bool hasNoNotice(TerminationType type, NoticeType notice) {
    return type == TerminationType::JustCause ||
           (type == TerminationType::Resignation && notice == NoticeType::Paid);
}

Explained<int> noticeDays(TerminationType type, Date admission, Date given) {
    switch (type) {
        case TerminationType::JustCause:
            return {0, "Justa causa: sem aviso prévio, CLT art. 482"};
        case TerminationType::Resignation:
            return {kBaseDays, "Pedido de demissão: 30 dias, CLT art. 487"};
        case TerminationType::MutualFault: {
            const Explained<int> full = fullNotice(admission, given);
            const int half = (full.value + 1) / 2;
            return {half, full.rule + "; metade por culpa recíproca = " + countOf(half, "dia") +
                              ", CLT art. 484, Súmula 14 do TST"};
        }
        case TerminationType::WithoutCause:
        case TerminationType::EmployersFault:
        case TerminationType::Agreement:
            break;
    }
    return fullNotice(admission, given);
}

TerminationDates terminationDates(TerminationType type, NoticeType notice, Date admission,
                                  Date given) {
    TerminationDates dates;
    dates.noticeDays = noticeDays(type, admission, given);
    dates.noticeGiven = {given, "Dia da comunicação"};
    if (hasNoNotice(type, notice))
        endAtOnce(dates, type);
    else
        runNotice(dates, type, notice);
    dates.paymentDue = paymentDue(dates.lastDayWorked.value);
    return dates;
}

Explained<Date> paymentDue(Date lastDayWorked) {
    return {plusDays(lastDayWorked, kPaymentDays),
            after("Último dia trabalhado", lastDayWorked, kPaymentDays) + ", CLT art. 477 § 6º"};
}

}  // namespace winvrx
