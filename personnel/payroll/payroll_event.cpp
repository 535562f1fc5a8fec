#include "personnel/payroll/payroll_event.h"

#include "foundation/files/record_names.h"
#include "foundation/values/text.h"
#include "timecard/hours/hours_summary.h"

#include <algorithm>
#include <span>

namespace winvrx {

namespace {

constexpr std::size_t kFlags = 8;
constexpr int kHighestReference = 999;
constexpr std::size_t kNameWidth = 20;

/// The misspelling of 031 is the system's own. Of the four events of overtime, name and rate are
/// put in.
constexpr std::array<std::string_view, kDefaultEvents> kDefaults = {
    "001 SALARIO BASE         1220,01111000", "002 INSALUBRIDADE        1000,01111000",
    "003 PERICULOSIDADE       1000,01111000", "004 SALARIO FAMILIA      1000,00001000",
    "005                      1050,01111000", "006                      1100,01111000",
    "007 HORA NOTURNA         1000,01111111", "008                      1050,01111000",
    "009                      1100,01111000", "010 DSR REFLEX.HORA EXTR 1000,01111000",
    "091 INSS                 0000,00001000", "092 IRRF                 0000,00001000",
    "025 VALE TRANSPORTES     0006,00001000", "026 HORAS FALTA          0000,00001000",
    "031 ADIANTAM. SALARARIO  0001,00001000", "013 1/3 INSALUBR FÉRIAS  1000,01110100",
    "011 SALARIO BASE FERIAS  1000,01110100", "012 INSALUBRIDADE FÉRIAS 1000,01110100",
    "014 1/3 FÉRIAS           1000,01110100", "015 MED.HORA EXTRA FÉRIA 1000,01110100",
    "016 PERICULOSIDADE       1000,01110100", "093 INSS S/FERIAS        0000,00000100",
    "094 IRRF S/FERIAS        0000,00000100", "017 13ºSALARIO INTEGRAL  1000,01110010",
    "018 INSALUBR ADIANTADO   1000,01110010", "019 13ºSALAR ADIANTADO   1000,00000010",
    "020 INSALUBR INTEGRAL    1000,01110010", "021 MED.HOR.EXTR.ADIANTA 1000,01110010",
    "022 MED.HOR.EXTR.INTEGR  1000,01110010", "033 PERICULO ADIANTADO   1000,01110010",
    "095 INSS S/13ºSAL        0000,00000010", "096 IRRF S/13ºSAL        0000,00000010",
    "032 DESC 13ºSALAR ADIANT 0000,00000010"};

struct OvertimeEvent {
    std::string_view code;
    HourCategory category;
};
constexpr std::array kOvertimeEvents = {OvertimeEvent{"005", HourCategory::ExtraMinimum},
                                        OvertimeEvent{"006", HourCategory::ExtraMaximum},
                                        OvertimeEvent{"008", HourCategory::NightExtraMinimum},
                                        OvertimeEvent{"009", HourCategory::NightExtraMaximum}};

void composeOvertime(PayrollEvent& event, const OvertimeRules& rates) {
    for (const OvertimeEvent& overtime : kOvertimeEvents) {
        if (overtime.code != event.code) continue;
        event.name = firstCharacters(upperCase(captionOf(overtime.category, rates)), kNameWidth);
        event.reference = padded(rates.*percentOf(overtime.category), 3);
    }
}

std::string flagsOf(const NewEvent& said) {
    const auto flag = [&](PayrollKind payroll) {
        return std::ranges::find(said.payrolls, payroll) != said.payrolls.end() ? "1" : "0";
    };
    return std::string(said.isEarning ? "0111" : "0000") + flag(PayrollKind::Month) +
           flag(PayrollKind::Vacation) + flag(PayrollKind::Thirteenth) + "0";
}

std::string ownEventsName(const EmployeeKey& key) {
    return key.company.text() + key.employee.text() + std::string(kEmployeeEventListStem);
}

PayrollEvents linesOf(std::span<const std::string_view> texts) {
    PayrollEvents events;
    for (const std::string_view text : texts)
        events.push_back(lineFrom<PayrollEvent>(encodeWindows1252(text)));
    return events;
}

}  // namespace

int PayrollEvent::referenceNumber() const {
    return parseWholeNumber(reference, 0, kHighestReference).value_or(0);
}

bool PayrollEvent::belongsTo(PayrollKind payroll) const {
    switch (payroll) {
        case PayrollKind::Month:
            return hasFlag(5);
        case PayrollKind::Vacation:
            return hasFlag(6);
        case PayrollKind::Thirteenth:
            return hasFlag(7);
    }
    return false;
}

std::optional<EventCode> keyOf(const PayrollEvent& event) {
    const bool isKind = event.kind == "0" || event.kind == "1";
    const bool hasFlags =
        event.flags.size() == kFlags && event.flags.find_first_not_of("01") == std::string::npos;
    return isKind && hasFlags ? EventCode::parse(event.code) : std::nullopt;
}

std::optional<PayrollEvent> newEvent(const NewEvent& said, const PayrollEvents& existing) {
    std::set<EventCode> taken = keysOf(existing);
    taken.merge(keysOf(defaultEvents({})));
    taken.merge(keysOf(vacationExtras()));
    taken.merge(keysOf(factEvents()));
    const auto code = lowestFreeCode(taken);
    if (!code) return std::nullopt;
    return PayrollEvent{.code = code->text(),
                        .name = std::string(firstCharacters(trimmed(said.name), kNameWidth)),
                        .kind = said.isEarning ? "1" : "0",
                        .reference = padded(said.reference, 3),
                        .flags = flagsOf(said)};
}

PayrollEvents defaultEvents(const OvertimeRules& rates) {
    PayrollEvents events;
    for (const std::string_view line : kDefaults) {
        const std::string bytes = encodeWindows1252(line);
        PayrollEvent event = decode<PayrollEvent>(bytes);
        composeOvertime(event, rates);
        events.push_back(lineOf(event, bytes));
    }
    return events;
}

PayrollEvents vacationExtras() {
    return linesOf(kVacationExtras);
}

PayrollEvents factEvents() {
    return linesOf(kFactEvents);
}

LineFile<PayrollEvent> companyEvents(const Store& store, const CompanyCode& company) {
    return LineFile<PayrollEvent>({store, company, kEventListStem});
}

LineFile<PayrollEvent> employeeEvents(const Store& store, const EmployeeKey& key) {
    return LineFile<PayrollEvent>({store, ownEventsName(key)});
}

PayrollEvents loadEvents(const Store& store, const EmployeeKey& key, const PayrollEvents& companys,
                         const OvertimeRules& rates, const FolderNames& names) {
    PayrollEvents events;
    if (names.contains(ownEventsName(key))) events = employeeEvents(store, key).load();
    if (events.empty()) events = companys;
    return events.empty() ? defaultEvents(rates) : events;
}

}  // namespace winvrx
