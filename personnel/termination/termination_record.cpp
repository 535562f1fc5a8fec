#include "personnel/termination/termination_record.h"

#include "foundation/values/faults.h"
#include "personnel/leaves/leave_types.h"

namespace winvrx {

namespace {

constexpr std::size_t kNumberLength = 4;  // "01. "
constexpr std::string_view kAgreementText = "Acordo entre Empregado e Empregador (CLT, art. 484-A)";

Fault missing(const std::string& what) {
    return {"termination without " + what,
            "Falta " + what + " na rescisão registrada na tela de Afastamentos."};
}

bool mayBeAgreement(TerminationType type) {
    return type == TerminationType::WithoutCause || type == TerminationType::Resignation;
}

void takeType(TerminationRecord& record, const Leave& leave, bool byAgreement) {
    const auto type = terminationTypeOf(leave.terminationType);
    const auto notice = noticeTypeOf(leave.noticeType);
    if (!type) throw missing("o tipo de rescisão");
    if (!notice) throw missing("o tipo de aviso");
    record.type = *type;
    record.notice = *notice;
    record.typeText = terminationTextOf(leave.terminationType).substr(kNumberLength);
    record.noticeText = noticeTextOf(leave.noticeType).substr(kNumberLength);
    if (!byAgreement || !mayBeAgreement(*type)) return;
    record.type = TerminationType::Agreement;
    record.typeText = kAgreementText;
}

Date givenOn(const Leave& leave) {
    if (const auto given = parseDate(leave.noticeGiven)) return *given;
    if (const auto first = parseDate(leave.firstDay)) return *first;
    throw missing("a data do aviso");
}

/// What stands on record where `recordedType` gives something else was typed there.
void takeTyped(Explained<Date>& date, const std::string& recorded, Date ofRecordedType) {
    const auto typed = parseDate(recorded);
    if (typed && *typed != ofRecordedType) date = {*typed, "Como está registrado no afastamento"};
}

}  // namespace

TerminationRecord terminationRecord(const Leave& leave, Date admission, bool byAgreement) {
    TerminationRecord record;
    takeType(record, leave, byAgreement);
    record.admission = admission;
    const Date given = givenOn(leave);
    if (given < admission)
        throw Fault("notice before the admission", "O aviso é anterior à admissão.");
    record.dates = terminationDates(record.type, record.notice, admission, given);
    const TerminationDates recorded = terminationDates(
        terminationTypeOf(leave.terminationType).value(), record.notice, admission, given);
    takeTyped(record.dates.noticeEnds, leave.noticeEnds, recorded.noticeEnds.value);
    takeTyped(record.dates.lastDayWorked, leave.lastWorked, recorded.lastDayWorked.value);
    record.dates.paymentDue = paymentDue(record.dates.lastDayWorked.value);
    takeTyped(record.dates.paymentDue, leave.paymentDue,
              paymentDue(parseDate(leave.lastWorked).value_or(recorded.lastDayWorked.value)).value);
    if (record.dates.lastDayWorked.value < admission ||
        record.dates.noticeEnds.value < record.dates.lastDayWorked.value)
        throw Fault("termination dates out of order",
                    "As datas da rescisão estão fora de ordem: admissão, último dia trabalhado, "
                    "fim do aviso.");
    return record;
}

}  // namespace winvrx
