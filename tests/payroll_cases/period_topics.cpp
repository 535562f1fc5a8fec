#include "personnel/pay/termination_pay.h"
#include "personnel/pay/thirteenth.h"
#include "personnel/pay/vacation_rules.h"
#include "personnel/payroll/pay_sheet.h"
#include "tests/payroll_cases/topics.h"
#include "timecard/month/holidays.h"

#include <array>

namespace winvrx::testing {

namespace {

using In = const CaseInputs&;
using Law = const PayrollLaw&;
using Out = CaseFigures&;

constexpr int kWholeVacation = 30;
constexpr int kMostWorkedNotice = 30;

int twelfthsIn(In in) {
    const Date end = in.dateIfAny({"saida"}).value_or(in.refDay());
    return thirteenthTwelfths(end.year(), in.date({"admissao"}), end);
}

/// The amounts of some events together.
Money sumOf(const PaySheet& sheet, std::initializer_list<std::string_view> codes) {
    Money sum;
    for (const std::string_view code : codes)
        sum = sum + sheet.amountOf(code);
    return sum;
}

PaySheetCase sheetCase(In in, Date paid) {
    PaySheetCase one{.month = {.part = wholeMonth(in.refMonth()), .paid = paid}, .hasMonth = false};
    one.month.salary = in.money({"salario"});
    one.month.dependants = in.wholeOr({"dependentes", "dep_ir"}, 0);
    one.month.alimony = in.moneyOr({"pensao", "pensao_alimenticia"});
    return one;
}

void addTax(Out out, Law law, const IncomeTaxCase& payment) {
    const IncomeTax tax = incomeTax(law, payment);
    out.add("metodo", tax.isSimplified ? "simplificado" : "legal");
    out.add("base_ir", tax.base);
    out.add("imposto_tabela", tax.tableTax);
    out.add("reducao", tax.reduction);
}

void thirteenthTopic(In in, Law law, Out out) {
    const Date paid = in.dateIfAny({"pagamento"}).value_or(secondInstalmentDue(in.refDay().year()));
    PaySheetCase one = sheetCase(in, paid);
    one.thirteenth =
        ThirteenthSheet{.twelfths = in.has("avos") ? in.whole({"avos"}) : twelfthsIn(in),
                        .averages = {in.moneyOr({"medias"})},
                        .paid = paid};
    const PaySheet first = paySheet(law, one, defaultEvents({}));
    one.thirteenth->instalment = Instalment::Second;
    one.thirteenth->firstPaid = first.net;
    const PaySheet second = paySheet(law, one, defaultEvents({}));
    const Money total = sumOf(second, {"017", "020", "022"});
    out.add("total", total);
    out.add("primeira", first.net);
    out.add("inss", second.amountOf("095"));
    addTax(out, law,
           {.kind = TaxedIncome::Thirteenth,
            .income = total,
            .inss = second.amountOf("095"),
            .dependants = one.month.dependants,
            .alimony = one.month.alimony,
            .paid = paid});
    out.add("irrf", second.amountOf("096"));
    out.add("segunda_liquida", second.net);
    out.add("fgts_1a", fgts(law, first.fgtsBase));
    out.add("fgts_2a", fgts(law, second.fgtsBase));
}

void twelfthsTopic(In in, Law, Out out) {
    out.add("avos", twelfthsIn(in));
}

int doubledDays(In in, int days) {
    if (in.has("dias_em_dobro")) return in.whole({"dias_em_dobro"});
    if (in.flag({"dobra"})) return days;
    if (!in.has("inicio") || !in.has("admissao")) return 0;
    const auto period = acquisitionPeriod(in.date({"admissao"}), in.wholeOr({"periodo"}, 1));
    return daysPastLimit(period, in.date({"inicio"}), days);
}

void vacationTopic(In in, Law law, Out out) {
    const int days = in.wholeOr({"dias"}, kWholeVacation);
    const Date paid = in.dateIfAny({"pagamento"}).value_or(in.refDay());
    PaySheetCase one = sheetCase(in, paid);
    one.vacation = VacationSheet{
        .start = in.dateIfAny({"inicio", "competencia"}).value_or(firstDay(in.refMonth())),
        .days = days,
        .soldDays = in.wholeOr({"vendidos"}, 0),
        .doubledDays = doubledDays(in, days),
        .averages = {in.moneyOr({"medias"})},
        .paid = paid};
    const PaySheet sheet = paySheet(law, one, defaultEvents({}));
    out.add("ferias", sumOf(sheet, {"011", "015"}));
    out.add("terco", sheet.amountOf("014"));
    out.add("abono", sheet.amountOf("034"));
    out.add("terco_abono", sheet.amountOf("035"));
    out.add("dobra", sheet.amountOf("036"));
    out.add("tributavel", sheet.fgtsBase);
    out.add("bruto", sheet.credits);
    out.add("inss", sheet.amountOf("093"));
    addTax(out, law,
           {.kind = TaxedIncome::Vacation,
            .income = sheet.fgtsBase,
            .inss = sheet.amountOf("093"),
            .dependants = one.month.dependants,
            .paid = paid});
    out.add("irrf", sheet.amountOf("094"));
    out.add("liquido", sheet.net);
    out.add("fgts", fgts(law, sheet.fgtsBase));
}

void vacationDaysTopic(In in, Law, Out out) {
    out.add("dias", vacationDays(in.whole({"faltas"})));
}

void periodsTopic(In in, Law, Out out) {
    const auto period = acquisitionPeriod(in.date({"admissao"}), in.wholeOr({"periodo"}, 1));
    out.add("aquisitivo_inicio", period.first);
    out.add("aquisitivo_fim", period.last);
    out.add("concessivo_inicio", plusDays(period.last, 1));
    out.add("concessivo_fim", period.limit);
    for (int days = 1; days <= kWholeVacation; ++days)
        out.add("ultimo_inicio_" + std::to_string(days) + "d_sem_dobra", period.lastStart(days));
}

TerminationType typeIn(In in) {
    if (!in.has("tipo") && !in.has("motivo")) return TerminationType::WithoutCause;
    const std::string& word = in.text({"tipo", "motivo"});
    const auto names = [&](std::string_view part) { return word.find(part) != std::string::npos; };
    if (names("acordo") || names("484-a") || names("484-A")) return TerminationType::Agreement;
    if (names("sem_justa") || names("sem justa") || names("dispensa"))
        return TerminationType::WithoutCause;
    if (names("justa")) return TerminationType::JustCause;
    if (names("pedido")) return TerminationType::Resignation;
    if (names("indireta")) return TerminationType::EmployersFault;
    if (names("reciproca")) return TerminationType::MutualFault;
    throw UnknownCase("type " + word);
}

void noticeTopic(In in, Law, Out out) {
    const TerminationType type = typeIn(in);
    const Date admission = in.date({"admissao"});
    const Date given = in.date({"comunicado_e_ultimo_dia", "comunicado", "ultimo_dia"});
    const auto paid = terminationDates(type, NoticeType::Paid, admission, given);
    const auto worked = terminationDates(type, NoticeType::Worked, admission, given);
    out.add("dias", paid.noticeDays.value);
    out.add("fim_projetado_indenizado", paid.noticeEnds.value);
    out.add("prazo_pagamento", paid.paymentDue.value);
    out.add("trabalhado_30_dias_ate", worked.lastDayWorked.value);
    out.add("fim_trabalhado", worked.noticeEnds.value);
    out.add("prazo_pagamento_trabalhado", worked.paymentDue.value);
}

/// "saida" is the last day worked: where notice is worked, it was given so many days before.
TerminationCase terminationCase(In in) {
    TerminationCase end{.type = typeIn(in),
                        .admission = in.date({"admissao"}),
                        .given = in.date({"saida"}),
                        .salary = in.money({"salario"})};
    const std::string notice = in.has("aviso") ? in.text({"aviso"}) : "indenizado";
    if (notice == "trabalhado") {
        end.notice = NoticeType::Worked;
        const int days = noticeDays(end.type, end.admission, end.given).value;
        end.given = plusDays(end.given, -std::min(days, kMostWorkedNotice));
    } else if (notice != "indenizado" && notice != "nao_cumprido" && notice != "nenhum") {
        throw UnknownCase("notice " + notice);
    }
    end.averages = in.moneyOr({"medias"});
    end.overduePeriods = in.wholeOr({"ferias_vencidas"}, 0);
    end.doubledPeriods = in.wholeOr({"ferias_em_dobro"}, 0);
    end.absences = in.wholeOr({"faltas"}, 0);
    end.fgtsAccount = in.moneyOr({"saldo_fgts", "fgts_saldo"});
    end.dependants = in.wholeOr({"dependentes", "dep_ir"}, 0);
    end.paid = in.dateIfAny({"pagamento"});
    return end;
}

void terminationTopic(In in, Law law, Out out) {
    const TerminationPay pay = terminationPay(law, terminationCase(in));
    out.add("aviso_dias", pay.dates.noticeDays.value);
    out.add("fim_projetado", pay.dates.noticeEnds.value);
    out.add("prazo_pagamento", pay.dates.paymentDue.value);
    out.add("avos_13", pay.thirteenthTwelfths);
    out.add("avos_ferias", pay.vacationTwelfths);
    const std::pair<const char*, Money> lines[] = {
        {"saldo", pay.balance.amount},
        {"saldo_salario", pay.balance.amount},
        {"aviso", pay.notice.amount},
        {"aviso_descontado", pay.noticeDeducted.amount},
        {"decimo", pay.thirteenth.amount},
        {"ferias_prop", pay.vacation.amount},
        {"terco", pay.vacationThird.amount},
        {"ferias_vencidas_com_terco", pay.overdue.amount},
        {"inss_saldo", pay.inssBalance.amount},
        {"inss_13", pay.inssThirteenth.amount},
        {"irrf_saldo", pay.taxBalance.withheld},
        {"irrf_13", pay.taxThirteenth.withheld},
        {"fgts", pay.fgts.amount},
        {"bruto", pay.gross},
        {"descontos", pay.deductions},
        {"liquido", pay.net}};
    for (const auto& [name, amount] : lines)
        out.add(name, amount);
    out.addAny("multa", pay.fgtsFine.amount);
}

void movableTopic(In in, Law, Out out) {
    const Date easter =
        easterSunday(in.has("ano") ? std::chrono::year{in.whole({"ano"})} : in.refDay().year());
    const std::pair<const char*, int> days[] = {{"carnaval_segunda", -48}, {"carnaval_terca", -47},
                                                {"cinzas", -46},           {"quarta_cinzas", -46},
                                                {"sexta_santa", -2},       {"pascoa", 0},
                                                {"corpus_christi", 60}};
    for (const auto& [name, offset] : days)
        out.add(name, plusDays(easter, offset));
}

constexpr std::array<std::pair<std::string_view, Topic>, 8> kTopics = {{
    {"decimo_terceiro", thirteenthTopic},
    {"avos_13", twelfthsTopic},
    {"ferias", vacationTopic},
    {"ferias_dias_por_faltas", vacationDaysTopic},
    {"ferias_periodos", periodsTopic},
    {"aviso_previo", noticeTopic},
    {"rescisao", terminationTopic},
    {"feriados_moveis", movableTopic},
}};

}  // namespace

Topic periodTopic(std::string_view name) {
    for (const auto& [known, topic] : kTopics)
        if (known == name) return topic;
    return nullptr;
}

}  // namespace winvrx::testing
