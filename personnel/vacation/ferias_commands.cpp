#include "foundation/register/employee_register.h"
#include "personnel/leaves/leave_line.h"
#include "personnel/leaves/marking_offer.h"
#include "personnel/pay/reckoning.h"
#include "personnel/vacation/ferias.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

constexpr std::string_view kTitle = "Gravar";
constexpr std::string_view kNotice = "Aviso";
constexpr std::string_view kScreen = "Férias";
constexpr std::string_view kRestoreTitle = "Restaurar Quitação";
constexpr std::string_view kRemoveTitle = "Excluir";
constexpr int kDaysAYear = 365;

const Message kConfirmRecording = question(kTitle, "Confirma Gravação do Item?");
const Message kNoNetTotal = failure(kTitle, "Não há Total Líquido para Gravação do Item?");
const Message kDoubleByLaw =
    failure(kNotice, "Neste Caso o Funcionário Terá Direito por Lei a Multa de Mais uma Férias.!");
const Message kPaidWithoutReceipt = failure(
    kNotice,
    "Caso o Funcionário já Tenha Recebido a Férias correspondente a esse Período sem Recibo, "
    "então Você poderá entrar com o 'Mês de Trabalho' Retroativo para Documentar e Baixar a "
    "Pendencia do Sistema .!");
const Message kProceed = riskyQuestion(kNotice, "Deseja Prosseguir Gravação? ");
constexpr std::string_view kNoPeriod =
    "Ainda Não Existe um Período Aquisitivo de Férias Selecionado!";
constexpr std::string_view kSelectPeriod =
    "Selecione e Grave um Período Aquisitivo de Férias Desejado!";
constexpr std::string_view kSettled =
    "Não é Possível Alterar ou Gravar a Folha de Pagamento de um Período de Aquisição de Férias Já "
    "Quitado!";

constexpr std::string_view kTooFewDays =
    "Não é Possível Emitir Provisão de Férias com Menos de 365 dias no Período Selecionado.!";
constexpr std::string_view kSecondProvision =
    "Não Possível Emitir mais de uma Provisão de Férias no Mesmo Mês de Trabalho.!";
constexpr std::string_view kBeforePeriodEnds =
    "A Data de Início de Férias está Inferior a Data do Término do Período Aquisitivo!";
constexpr std::string_view kPastLimit =
    "A Data de Início de Férias está Inferior a Data de Vencimento da Férias!";
constexpr std::string_view kPastEnd =
    "A Data de Início de Férias está Inferior a Data de Término da Férias!";

bool meets(LeavePeriod one, LeavePeriod other) {
    return one.first <= other.last && other.first <= one.last;
}

std::string periodText(LeavePeriod period) {
    return dateText(period.first) + " a " + dateText(period.last);
}

}  // namespace

bool Ferias::refuse(std::string_view title, std::string_view text,
                    std::optional<VacationInput> blamed, std::string detail) {
    blamed_ = blamed;
    return at_.person.refuse(refusal(title, std::string(text), std::move(detail)));
}

bool Ferias::requirePeriod() {
    blamed_.reset();
    if (!selected()) return at_.person.refuse(noEmployeeSelected());
    if (chosen_) return true;
    at_.person.tell(refusal(kScreen, std::string(kNoPeriod)));
    return refuse(kScreen, kSelectPeriod);
}

bool Ferias::requireItem() {
    if (!requirePeriod()) return false;
    const VacationItem* item = itemOf(*chosenRow());
    return (item && !item->isProvision()) || refuse(kScreen, kSelectPeriod);
}

bool Ferias::requireNotForfeit() {
    const AcquisitionPeriod& period = chosenRow()->period;
    return !period.forfeit ||
           refuse(kScreen, "Este período não dá direito a férias.", {}, forfeitText(period));
}

bool Ferias::requireNotSettled() {
    const VacationItem* item = itemOf(*chosenRow());
    return !item || !item->isSettled() ||
           refuse(kScreen, kSettled, {}, "Use antes 'Restaurar Quitação'.");
}

bool Ferias::requireNotPaid() {
    const VacationItem* item = itemOf(*chosenRow());
    return !item || item->isProvision() || !desk_.netPaid(key(), item->workMonth().value()) ||
           refuse(kScreen, "A folha destas férias já foi gravada. Reabra-a antes em Folha.", {},
                  "Mês de trabalho " + item->month + ".");
}

bool Ferias::requireFilled() {
    if (!form_.first())
        return refuse(kScreen, "Informe a Data de Início das Férias!", VacationInput::First);
    if (!form_.last())
        return refuse(kScreen, "Informe a Data de Término das Férias!", VacationInput::Last);
    return form_.sold() ||
           refuse(kScreen, "Informe a Quantidade de Dias Vendidos!", VacationInput::Sold);
}

bool Ferias::confirmPending() {
    const int pending = overdue(rows_, lastDay(month_.value()));
    if (pending == 0) return true;
    at_.person.tell(failure(kNotice, "Existem " + std::to_string(pending) +
                                         " Férias 'Pendente' para Este Funcionário!!"));
    at_.person.tell(kDoubleByLaw);
    at_.person.tell(kPaidWithoutReceipt);
    return at_.person.agrees(kProceed);
}

bool Ferias::requireDates() {
    const AcquisitionPeriod& period = chosenRow()->period;
    const Date first = form_.first().value();
    if (first < period.last)
        return refuse(kTitle, kBeforePeriodEnds, VacationInput::First,
                      "O período aquisitivo termina em " + dateText(period.last) + ".");
    if (first > period.limit) {
        at_.person.tell(refusal(kTitle, std::string(kPastLimit),
                                "O limite da concessão é " + dateText(period.limit) +
                                    ": as férias são pagas em dobro (CLT, art. 137)."));
        if (!at_.person.agrees(kProceed)) return false;
    }
    return first <= form_.last().value() ||
           refuse(kTitle, kPastEnd, VacationInput::Last, "O término está antes do início.");
}

bool Ferias::requireFractions() {
    const PeriodRow& row = *chosenRow();
    const int sold = form_.sold().value();
    std::vector<int> fractions{form_.days().value()};
    int allSold = sold;
    for (std::size_t at = 0; at < lines_.size(); ++at) {
        const VacationItem& item = lines_[at].record;
        if (row.line == at || item.isProvision() || !lines_[at].key()) continue;
        if (meets(*item.away(), {*form_.first(), *form_.last()}))
            return refuse(kTitle, "Já há férias gravadas nestes dias.", VacationInput::First,
                          periodText(*item.away()) + ".");
        if (item.periodFirst() != row.period.first) continue;
        fractions.push_back(item.days());
        allSold += item.soldDays();
    }
    int left = row.granted - allSold;
    for (const int days : fractions)
        left -= days;
    // What is left may still be taken at once.
    if (left > 0) fractions.push_back(left);
    const auto problem = fractionsProblem(row.granted, fractions, allSold);
    return !problem || refuse(kTitle, *problem, VacationInput::Days);
}

bool Ferias::requireFreeMonth() {
    for (std::size_t at = 0; at < lines_.size(); ++at)
        if (const auto key = lines_[at].key();
            key && chosenRow()->line != at &&
            *key == std::pair(std::string(kVacationKind), *month_))
            return refuse(kTitle, "Já há férias gravadas neste mês de trabalho.", {},
                          "Cada mês de trabalho paga um período de férias.");
    return true;
}

bool Ferias::requireProvision() {
    const AcquisitionPeriod& period = chosenRow()->period;
    const Date last = std::min(period.last, lastDay(*month_));
    if (plusDays(period.first, kDaysAYear - 1) > last)
        return refuse(kTitle, kTooFewDays, {},
                      "O período aquisitivo vai de " + dateText(period.first) + " a " +
                          dateText(period.last) + ".");
    return !findLine(lines_, std::pair(std::string(kProvisionKind), *month_)) ||
           refuse(kTitle, kSecondProvision);
}

bool Ferias::hasClosedMonth(const std::vector<LeavePeriod>& periods) const {
    for (const LeavePeriod& period : periods)
        for (WorkMonth month = monthOf(period.first); month <= monthOf(period.last);
             month += std::chrono::months{1})
            if (desk_.payroll.isClosed(key(), month)) return true;
    return false;
}

VacationItem Ferias::typedItem() const {
    const PeriodRow& row = *chosenRow();
    const int sold = form_.sold().value();
    return {.acquisitionFirst = dateText(row.period.first),
            .acquisitionLast = dateText(row.period.last),
            .kind = std::string(kVacationKind),
            .granted = std::to_string(row.granted),
            .first = dateText(form_.first().value()),
            .last = dateText(form_.last().value()),
            .sold = std::to_string(sold),
            .thirteenth = form_.withThirteenth() ? "S" : "N",
            .month = monthKey(*month_)};
}

VacationItem Ferias::provision() const {
    const PeriodRow& row = *chosenRow();
    const Money salary = parseMoney(selected()->salary).value_or(Money{});
    const Money pay = Sum(salary).over(30).times(row.granted).rounded("Férias").amount;
    const Money third = Sum(pay).over(3).rounded("1/3 de férias").amount;
    return {.acquisitionFirst = dateText(row.period.first),
            .acquisitionLast = dateText(row.period.last),
            .kind = std::string(kProvisionKind),
            .granted = std::to_string(row.granted),
            .thirteenth = "N",
            .month = monthKey(*month_),
            .net = moneyText(pay + third)};
}

void Ferias::write(const std::optional<VacationItem>& item, bool withLeave) {
    const auto hold = holdFolder(at_);
    const EmployeeKey of = key();
    if (requireRegistered(at_.store(), of).record.admission != selected()->admission)
        throw changedElsewhere("employee list");
    LineFile<VacationItem> file = vacationFile(at_.store(), of);
    VacationLines lines = file.load();
    if (lines != lines_) throw employeeChangedElsewhere("vacations");
    const auto place = chosenRow()->line;
    const VacationItem* before = itemOf(*chosenRow());
    const auto out = before ? before->away() : std::nullopt;
    const auto in = item ? item->away() : std::nullopt;
    if (!place)
        lines.push_back(lineOf(*item));
    else if (item)
        lines[*place] = lineOf(*item, lines[*place].bytes);
    else
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(*place));
    // The leave comes first: cut short between both files, the command can be given again.
    const auto leaveOf = [](const std::optional<LeavePeriod>& period) {
        return period ? std::optional(vacationLeave(*period)) : std::nullopt;
    };
    if (withLeave)
        at_.files.replaceAll({replacedLeave(at_.store(), of, leaveOf(out), leaveOf(in))});
    file.save(lines);
}

void Ferias::offerToMark(LeavePeriod days) {
    const LeaveCalendar calendar =
        loadLeaveCalendar(at_.store(), key(), selected()->admissionDate());
    offerMarking(at_, desk_.payroll, key(), calendar, days);
}

bool Ferias::record() {
    return attempt(at_, incorrectData(), [&] {
        if (!requirePeriod() || !requireNotForfeit() || !requireNotSettled() || !requireNotPaid() ||
            !requireFilled() || !at_.person.agrees(kConfirmRecording) || !confirmPending() ||
            !requireDates() || !requireFractions() || !requireFreeMonth())
            return false;
        const VacationItem item = typedItem();
        const LeavePeriod away = item.away().value();
        std::vector<LeavePeriod> periods{away};
        const VacationItem* before = itemOf(*chosenRow());
        if (before && before->away()) periods.push_back(*before->away());
        const bool isClosed = hasClosedMonth(periods);
        write(item, !isClosed);
        if (isClosed)
            at_.person.tell(
                notice(kScreen, "O afastamento das férias não foi gravado.",
                       "A folha de um destes meses já foi gerada: " + periodText(away) + "."));
        else
            offerToMark(away);
        reload();
        return true;
    });
}

bool Ferias::settle() {
    return attempt(at_, incorrectData(), [&] {
        if (!requireItem() || !requireNotSettled() || !at_.person.agrees(kConfirmRecording))
            return false;
        VacationItem item = *itemOf(*chosenRow());
        const Money net = desk_.netPaid(key(), item.workMonth().value()).value_or(Money{});
        if (net.cents == 0) return at_.person.refuse(kNoNetTotal);
        if (!confirmPending()) return false;
        item.mark = kSettledMark;
        item.net = moneyText(net);
        write(item, false);
        reload();
        return true;
    });
}

bool Ferias::restoreSettlement() {
    return attempt(at_, incorrectData(), [&] {
        if (!requireItem()) return false;
        VacationItem item = *itemOf(*chosenRow());
        if (!item.isSettled())
            return refuse(kRestoreTitle, "Este Período de Férias não está Quitado!");
        if (!at_.person.agrees(riskyQuestion(
                kRestoreTitle, "Confirma 'Restaurar Quitação' deste Período?",
                "As férias voltam a '" + statusText(chosenRow()->days, PeriodStatus::ToSettle) +
                    "' e podem ser alteradas.")))
            return false;
        item.mark.clear();
        item.net.clear();
        write(item, false);
        reload();
        return true;
    });
}

bool Ferias::provide() {
    return attempt(at_, incorrectData(), [&] {
        if (!requirePeriod() || !requireNotForfeit() || !at_.person.agrees(kConfirmRecording) ||
            !confirmPending() || !requireProvision())
            return false;
        const PeriodRow row = *chosenRow();
        const VacationItem item = provision();
        rows_[*chosen_].line.reset();
        try {
            write(item, false);
        } catch (...) {
            rows_[*chosen_] = row;
            throw;
        }
        reload();
        return true;
    });
}

bool Ferias::remove() {
    return attempt(at_, incorrectData(), [&] {
        if (!requirePeriod()) return false;
        const VacationItem* item = itemOf(*chosenRow());
        if (!item) return refuse(kRemoveTitle, "Não há férias gravadas neste período.");
        if (!requireNotSettled() || !requireNotPaid()) return false;
        const auto away = item->away();
        const bool isClosed = away && hasClosedMonth({*away});
        std::string detail = item->isProvision()
                                 ? "A provisão de " + item->month + " será excluída."
                                 : "As férias de " + periodText(*away) + " serão excluídas";
        if (away)
            detail += isClosed ? ". O afastamento fica: a folha de um destes meses já foi gerada."
                               : ", com o seu afastamento.";
        if (!at_.person.agrees(riskyQuestion(kRemoveTitle, "Confirma Excluir este Item?", detail)))
            return false;
        write(std::nullopt, away && !isClosed);
        if (away && !isClosed) offerToMark(*away);
        reload();
        return true;
    });
}

}  // namespace winvrx
