#include "personnel/pay/absences.h"
#include "personnel/pay/employer_dues.h"
#include "personnel/pay/income_tax.h"
#include "personnel/pay/inss.h"
#include "personnel/pay/month_pay.h"
#include "personnel/pay/usual_deductions.h"
#include "tests/payroll_cases/topics.h"
#include "tests/support/pay_events.h"
#include "timecard/month/holiday_offer.h"

#include <array>

namespace winvrx::testing {

namespace {

using In = const CaseInputs&;
using Law = const PayrollLaw&;
using Out = CaseFigures&;

constexpr int kDaysAMonth = 30;
constexpr int kVoucherPercent = 6;

MonthSettings nationalMonth(WorkMonth month) {
    return proposedSettings(month, calendarHolidays(month));
}

void addTax(Out out, const IncomeTax& tax, const char* base = "base") {
    out.add("metodo", tax.isSimplified ? "simplificado" : "legal");
    out.add(base, tax.base);
    out.add("imposto_tabela", tax.tableTax);
    out.add("reducao", tax.reduction);
    out.add("irrf", tax.withheld);
    out.add("irrf_antes_dispensa", tax.due);
}

void inssTopic(In in, Law law, Out out) {
    out.add("inss", inss(law, in.money({"base", "salario", "remuneracao"}), in.refMonth()));
}

void incomeTaxTopic(In in, Law law, Out out) {
    const Date paid = in.dateIfAny({"pagamento"}).value_or(in.refDay());
    const Date competence = in.dateIfAny({"competencia"}).value_or(in.refDay());
    const Money income = in.money({"rendimento", "salario"});
    const Money contribution =
        in.moneyOr({"inss_informado", "inss"}, inss(law, income, monthOf(competence)).amount);
    out.add("inss", contribution);
    addTax(out,
           incomeTax(law, {.income = income,
                           .inss = contribution,
                           .dependants = in.wholeOr({"dependentes", "dep_ir"}, 0),
                           .alimony = in.moneyOr({"pensao", "pensao_alimenticia"}),
                           .privatePension = in.moneyOr({"previdencia", "previdencia_privada"}),
                           .paid = paid}));
}

void overtimeTopic(In in, Law law, Out out) {
    const HourBase base{in.money({"salario"}) + in.moneyOr({"adicionais"}), in.divisor()};
    out.addDecimal("valor_hora_4dec", hourValue(law, base) / 100);
    Money extra;
    for (const int percent : in.extraPercents()) {
        const std::string digits = std::to_string(percent);
        const Reckoning pay = overtimePay(law, base, percent, in.hours({"h" + digits}), "");
        out.add("he" + digits, pay);
        extra = extra + pay.amount;
    }
    const Money night = in.moneyOr({"noturno", "adicional_noturno"});
    const Reckoning reflex =
        restReflex({extra, night, in.moneyOr({"comissoes"})}, in.wholeOr({"dias_uteis"}, 0),
                   in.wholeOr({"descansos"}, 0));
    out.add("dsr", reflex);
    out.add("total", extra + reflex.amount);
}

void nightTopic(In in, Law law, Out out) {
    const HourBase base{in.money({"salario"}) + in.moneyOr({"adicionais"}), in.divisor()};
    const auto clock = in.hours({"horas_relogio", "horas", "horas_noturnas"}) +
                       std::chrono::minutes{in.wholeOr({"minutos_relogio", "minutos"}, 0)};
    PayrollSettings plain = law.settings;
    plain.nightHourIsReduced = false;
    PayrollSettings rural = plain;
    rural.nightWork = NightWork::Rural;
    out.addDecimal("valor_hora_4dec", hourValue(law, base) / 100);
    out.addDecimal("horas_reduzidas_4dec", nightHours(law, clock));
    out.add("adicional_20", nightPremium(law, base, clock));
    out.add("sem_reducao", nightPremium({law.tables, plain}, base, clock));
    out.add("adicional_25", nightPremium({law.tables, rural}, base, clock));
    const Money extra = nightOvertimePay(law, base, 50, clock, "").amount;
    for (const char* name : {"he_noturna", "he50_noturna", "hora_extra_noturna", "extra_noturna"})
        out.addAny(name, extra);
}

void unhealthyTopic(In in, Law law, Out out) {
    const Fraction percent = in.number({"grau", "percentual"});
    out.add("valor", in.has("base") || in.has("salario_minimo")
                         ? unhealthyPay(percent, in.money({"base", "salario_minimo"}))
                         : unhealthyPay(law, percent, in.moneyOr({"salario"}), in.refMonth()));
}

void dangerTopic(In in, Law, Out out) {
    out.add("valor", dangerPay(in.money({"salario_base", "salario"})));
}

void absenceTopic(In in, Law, Out out) {
    const Money salary = in.money({"salario", "salario_base"});
    const int rests = in.wholeOr({"dsr_perdidos", "semanas_com_falta", "dsr_perd"}, 0) +
                      in.wholeOr({"feriados_perdidos", "feriados"}, 0);
    const Reckoning days = daysLost(salary, in.wholeOr({"faltas"}, 0), "");
    const Reckoning lost = daysLost(salary, rests, "");
    out.add("desc_falta", days);
    out.add("desc_faltas", days);
    out.add("desc_dsr", lost);
    out.add("total", days.amount + lost.amount);
}

void delayTopic(In in, Law law, Out out) {
    const auto time = std::chrono::minutes{in.wholeOr({"minutos"}, 0)} + in.hours({"horas"});
    out.add("desconto", timeLost(law, {in.money({"salario"}), in.divisor()}, time));
}

/// The part of the month that "dias", or "admissao" and "saida", leave.
Fraction shareOf(In in, Law law) {
    if (const auto admission = in.dateIfAny({"admissao"}); admission || in.has("saida")) {
        const auto end = in.dateIfAny({"saida"});
        const WorkMonth month = monthOf(admission ? *admission : *end);
        const auto part = employedPart(month, admission.value_or(firstDay(month)), end);
        return part ? paidShare(*part, law.settings.partialMonth) : Fraction(0);
    }
    return {in.wholeOr({"dias", "dias_trabalhados"}, kDaysAMonth), kDaysAMonth};
}

void voucherTopic(In in, Law law, Out out) {
    const Money salary = in.money({"salario_base", "salario"});
    const Fraction share = shareOf(in, law);
    out.add("teto_6", transportVoucher(salary, std::nullopt, kVoucherPercent, share));
    out.add("desconto",
            transportVoucher(salary, in.money({"custo", "vt_custo"}), kVoucherPercent, share));
}

void advanceTopic(In in, Law, Out out) {
    out.add("valor", salaryAdvance(in.money({"salario"}), in.numberOr({"percentual"}, 40)));
}

void partialMonthTopic(In in, Law law, Out out) {
    const Money salary = in.money({"salario"});
    const auto end = in.dateIfAny({"saida", "demissao", "desligamento"});
    const auto first = in.dateIfAny({"admissao"});
    const WorkMonth month = first ? monthOf(*first) : end ? monthOf(*end) : in.refMonth();
    const auto part = employedPart(month, first.value_or(firstDay(month)), end);
    if (!part) throw UnknownCase("dates");
    const auto by = [&](PartialMonth method) {
        return partialSalary(salary, *part, method).amount;
    };
    out.addAny("dias_corridos", by(PartialMonth::CalendarDays));
    out.addAny("comercial", by(PartialMonth::CommercialDays));
    out.addAny("dias_" + std::to_string(part->calendarDays()) + "_sobre",
               by(PartialMonth::MonthLength));
    out.add("dias", part->calendarDays());
    out.add("valor", by(law.settings.partialMonth));
}

void familyTopic(In in, Law law, Out out) {
    out.add("valor", familyQuota(law, in.money({"remuneracao", "salario"}),
                                 in.wholeOr({"filhos"}, 1), in.refMonth(), shareOf(in, law)));
}

MonthPayCase payslipCase(In in, Law law) {
    const WorkMonth month = in.refMonth();
    const auto part = employedPart(month, in.dateIfAny({"admissao"}).value_or(firstDay(month)),
                                   in.dateIfAny({"saida"}));
    if (!part) throw UnknownCase("dates");
    MonthPayCase pay{.part = *part, .paid = in.dateIfAny({"pagamento"}).value_or(in.refDay())};
    pay.salary = in.money({"salario"});
    pay.divisor = in.divisor();
    pay.minimum = {50, 50, in.hours({"h50"}), in.hours({"h50_noturnas"})};
    pay.maximum = {100, 100, in.hours({"h100"}), in.hours({"h100_noturnas"})};
    pay.nightHours = in.hours({"noturnas_relogio"});
    pay.unhealthyPercent = in.numberOr({"insal_pct"}, 0);
    pay.isDangerous = in.flag({"peric"});
    pay.absentDays = in.wholeOr({"faltas"}, 0);
    pay.restsLost = in.wholeOr({"dsr_perd", "dsr_perdidos"}, 0);
    pay.missing = std::chrono::minutes{in.wholeOr({"atraso_min"}, 0)};
    const MonthDayCounts counts = countPayDays(law, nationalMonth(month));
    pay.days = {in.wholeOr({"dias_uteis"}, counts.businessDays),
                in.wholeOr({"descansos"}, counts.restDays)};
    pay.voucherCost = in.moneyOr({"vt_custo"});
    pay.advancePercent = in.numberOr({"adiant_pct"}, 0);
    pay.children = in.wholeOr({"filhos"}, 0);
    pay.dependants = in.wholeOr({"dep_ir", "dependentes"}, 0);
    pay.alimony = in.moneyOr({"pensao", "pensao_alimenticia"});
    if (in.flag({"aprendiz"})) pay.fgtsRate = FgtsRate::Apprentice;
    return pay;
}

void payslipTopic(In in, Law law, Out out) {
    const MonthPayCase month = payslipCase(in, law);
    const PaySheet sheet = paySheet(law, {.month = month}, eventsSaying(month));
    const MonthEarnings pay = monthEarnings(law, month);
    addTax(out, monthDeductions(law, month, sheet.base).tax, "base_ir");
    out.add("dias_uteis", month.days.businessDays);
    out.add("descansos", month.days.restDays);
    const std::pair<const char*, Money> lines[] = {
        {"salario", pay.salary.amount},
        {"periculosidade", pay.risk.danger.amount},
        {"insalubridade", pay.risk.unhealthy.amount},
        {"he50", pay.minimumOvertime.amount},
        {"he100", pay.maximumOvertime.amount},
        {"he50_noturna", pay.minimumNightOvertime.amount},
        {"he100_noturna", pay.maximumNightOvertime.amount},
        {"noturno", pay.night.amount},
        {"dsr", pay.restReflex.amount},
        {"faltas", pay.absences.amount},
        {"dsr_perdido", pay.restsLost.amount},
        {"atrasos", pay.missing.amount},
        {"base", sheet.base},
        {"sal_familia", sheet.amountOf("004")},
        {"vt", sheet.amountOf("025")},
        {"adiantamento", sheet.amountOf("031")},
        {"fgts", fgts(law, sheet.fgtsBase, month.fgtsRate).amount},
        {"inss", sheet.amountOf("091")},
        {"irrf", sheet.amountOf("092")},
        {"liquido", sheet.net}};
    for (const auto& [name, amount] : lines)
        out.add(name, amount);
}

void guideTopic(In in, Law law, Out out) {
    const DomesticGuide guide =
        domesticGuide(law, in.money({"salario", "base", "remuneracao"}), in.refMonth());
    out.add("inss_empregado", guide.employee);
    out.add("patronal_8", guide.employer);
    out.add("gilrat_08", guide.accident);
    out.add("fgts_8", guide.fgts);
    out.add("reserva_32", guide.reserve);
    out.add("total", guide.total);
    out.add("vencimento", guide.due);
}

void dayCountTopic(In in, Law law, Out out) {
    const MonthDayCounts counts = countPayDays(law, nationalMonth(in.refMonth()));
    out.add("dias_uteis", counts.businessDays);
    out.add("descansos", counts.restDays);
}

constexpr std::array<std::pair<std::string_view, Topic>, 15> kTopics = {{
    {"inss", inssTopic},
    {"irrf", incomeTaxTopic},
    {"horas_extras_dsr", overtimeTopic},
    {"adicional_noturno", nightTopic},
    {"insalubridade", unhealthyTopic},
    {"periculosidade", dangerTopic},
    {"faltas", absenceTopic},
    {"atraso", delayTopic},
    {"vale_transporte", voucherTopic},
    {"adiantamento", advanceTopic},
    {"salario_proporcional", partialMonthTopic},
    {"salario_familia", familyTopic},
    {"holerite", payslipTopic},
    {"domestico_dae", guideTopic},
    {"dias_uteis_dsr", dayCountTopic},
}};

}  // namespace

Topic monthTopic(std::string_view name) {
    for (const auto& [known, topic] : kTopics)
        if (known == name) return topic;
    return nullptr;
}

}  // namespace winvrx::testing
