#include "personnel/documents/paper_subject.h"

#include "foundation/register/company_register.h"
#include "foundation/register/leave_file.h"
#include "foundation/values/tax_id.h"
#include "foundation/values/text.h"
#include "personnel/leaves/leave_form.h"
#include "personnel/leaves/leave_types.h"
#include "personnel/leaves/termination_dates.h"
#include "personnel/payroll/settings_file.h"
#include "timecard/month/selected_month.h"

#include <array>

namespace winvrx {

namespace {

using Subject = PaperSubject;
constexpr auto kResigned = TerminationType::Resignation;

struct Offer {
    std::string_view input;
    std::string (*text)(const Subject& subject);
};

/// A text that is the same for everyone.
struct Usual {
    std::string_view input;
    std::string_view text;
};

/// Of a notice given today.
TerminationDates reckonedDates(const Subject& subject, TerminationType type) {
    const auto admission = subject.employee.admissionDate();
    const Date start = admission && *admission <= subject.today ? *admission : subject.today;
    return terminationDates(type, NoticeType::Worked, start, subject.today);
}

std::string optionalDate(const std::optional<Date>& date) {
    return date ? dateText(*date) : std::string();
}

/// A day that the termination on record says, else one reckoned from a notice given today.
template <std::string Leave::*Recorded, auto Reckoned,
          TerminationType Type = TerminationType::WithoutCause>
std::string dayOf(const Subject& subject) {
    return subject.termination ? *subject.termination.*Recorded
                               : optionalDate((reckonedDates(subject, Type).*Reckoned).value);
}

std::string timeOf(const Subject& subject, TimePair DaySchedule::*half,
                   std::optional<TimeOfDay> TimePair::*end) {
    if (!subject.schedule) return {};
    const auto& time = (*subject.schedule).*half.*end;
    return time ? timeText(*time) : std::string();
}

std::string lastExit(const Subject& subject) {
    const std::string evening = timeOf(subject, &DaySchedule::afternoon, &TimePair::exit);
    return evening.empty() ? timeOf(subject, &DaySchedule::morning, &TimePair::exit) : evening;
}

std::string dismissalOf(const Subject& subject) {
    const bool justCause =
        subject.termination &&
        terminationTypeOf(subject.termination->terminationType) == TerminationType::JustCause;
    return justCause ? "justa_causa" : "sem_justa_causa";
}

std::string noticeOf(const Subject& subject) {
    const bool paid =
        subject.termination && noticeTypeOf(subject.termination->noticeType) == NoticeType::Paid;
    return paid ? "indenizado" : "trabalhado";
}

template <TerminationType Type>
std::string reckonedDays(const Subject& subject) {
    return std::to_string(reckonedDates(subject, Type).noticeDays.value);
}

std::string noticeDaysOf(const Subject& subject) {
    if (!subject.termination) return reckonedDays<TerminationType::WithoutCause>(subject);
    const auto type = terminationTypeOf(subject.termination->terminationType);
    const auto admission = subject.employee.admissionDate();
    const auto given = parseDate(subject.termination->noticeGiven);
    if (!type || !admission || !given || *given < *admission) return {};
    return std::to_string(noticeDays(*type, *admission, *given).value);
}

std::string hourOfRatification(const Subject& subject) {
    const bool isSaid = subject.termination && !subject.termination->homologation.empty();
    return isSaid ? subject.termination->homologation : std::string(kHomologationHour);
}

constexpr std::array kUsual = {Usual{"reducao", "a_escolher"},
                               Usual{"cumprimento", "cumprir"},
                               Usual{"entrada_12x36", "07:00"},
                               Usual{"saida_12x36", "19:00"},
                               Usual{"intervalo", "usufruido"},
                               Usual{"modalidade_compensacao", "semanal"},
                               Usual{"horas_extras", "2"},
                               Usual{"percentual", "50"},
                               Usual{"percentual_viagem", "25"},
                               Usual{"pagamento_viagem", "dinheiro"},
                               Usual{"dias_semana", "de segunda a sexta-feira"},
                               Usual{"ausencia", "sem_desconto"},
                               Usual{"nacionalidade", "brasileira"},
                               Usual{"forma_pagamento", "depósito em conta bancária"},
                               Usual{"minutos_refeicao", "60"},
                               Usual{"minutos_intervalo", "30"}};

const std::array kOffers = {
    Offer{"regime",
          [](const Subject& s) { return std::string(s.isDomestic ? "domestico" : "clt"); }},
    Offer{"data", [](const Subject& s) { return dateText(s.today); }},
    Offer{"vigencia", [](const Subject& s) { return dateText(s.today); }},
    Offer{"dia_saida", [](const Subject& s) { return dateText(s.today); }},
    Offer{"modalidade", dismissalOf},
    Offer{"tipo_aviso", noticeOf},
    Offer{"dias_aviso", noticeDaysOf},
    Offer{"inicio_aviso", dayOf<&Leave::noticeBegins, &TerminationDates::noticeBegins>},
    Offer{"fim_aviso", dayOf<&Leave::noticeEnds, &TerminationDates::noticeEnds>},
    Offer{"ultimo_dia", dayOf<&Leave::lastWorked, &TerminationDates::lastDayWorked>},
    Offer{"dias_pedido", reckonedDays<kResigned>},
    Offer{"inicio_pedido", dayOf<&Leave::noticeBegins, &TerminationDates::noticeBegins, kResigned>},
    Offer{"ultimo_pedido", dayOf<&Leave::lastWorked, &TerminationDates::lastDayWorked, kResigned>},
    Offer{"pagamento_ate", dayOf<&Leave::paymentDue, &TerminationDates::paymentDue>},
    Offer{
        "pago_em",
        [](const Subject& s) { return s.termination ? s.termination->paymentDue : std::string(); }},
    Offer{"hora_homologacao", hourOfRatification},
    Offer{"entrada",
          [](const Subject& s) { return timeOf(s, &DaySchedule::morning, &TimePair::entry); }},
    Offer{"intervalo_inicio",
          [](const Subject& s) {
              const bool hasMeal = !timeOf(s, &DaySchedule::afternoon, &TimePair::exit).empty();
              return hasMeal ? timeOf(s, &DaySchedule::morning, &TimePair::exit) : std::string();
          }},
    Offer{"intervalo_fim",
          [](const Subject& s) { return timeOf(s, &DaySchedule::afternoon, &TimePair::entry); }},
    Offer{"saida", lastExit},
    Offer{"vales_inicio", [](const Subject& s) { return dateText(firstDay(s.month)); }},
    Offer{"vales_fim", [](const Subject& s) { return dateText(lastDay(s.month)); }},
    Offer{"periodo_inicio", [](const Subject& s) { return dateText(firstDay(s.month)); }},
    Offer{"periodo_fim", [](const Subject& s) { return dateText(lastDay(s.month)); }},
    Offer{"desconto_em", [](const Subject& s) { return dateText(lastDay(s.month)); }},
    Offer{"ano", [](const Subject& s) { return padded(int{s.today.year()}, 4); }},
    Offer{"fgts_opcao", [](const Subject& s) { return s.employee.admission; }},
};

}  // namespace

PaperSubject loadSubject(const Store& store, const EmployeeKey& key, const Employee& employee,
                         Date today) {
    PaperSubject subject{loadCompany(store, key.company), employee, today, monthOf(today)};
    // A company has a CNPJ; who employs at home has a CPF.
    subject.isDomestic = loadPayrollSettings(store, key.company).settings.isDomesticEmployer ||
                         checkCpf(subject.company.taxId) == IdCheck::Valid;
    if (const auto selected = loadSelectedMonth(store)) subject.month = selected->month;
    if (const auto schedule = loadSchedule(store, key)) subject.schedule = schedule->weekday;
    const LeaveFile leaves = loadLeaveFile(store, key);
    if (const auto place = leaves.termination()) subject.termination = leaves.leaves[*place].record;
    return subject;
}

std::string offeredText(const PaperSubject& subject, std::string_view input) {
    for (const Offer& offer : kOffers)
        if (offer.input == input) return offer.text(subject);
    for (const Usual& usual : kUsual)
        if (usual.input == input) return std::string(usual.text);
    return {};
}

}  // namespace winvrx
