// What holds of every payroll, tried on random figures; the seed is printed with each run.
#include "personnel/pay/inss.h"
#include "personnel/pay/month_pay.h"
#include "personnel/pay/risk_pay.h"
#include "personnel/pay/termination_pay.h"
#include "personnel/vacation/vacation_pay.h"
#include "tests/support/legal_tables.h"
#include "tests/support/pay_events.h"

#include <gtest/gtest.h>

#include <iostream>
#include <random>

namespace winvrx {
namespace {

using namespace std::chrono_literals;

constexpr int kTries = 800;
constexpr std::int64_t kHighestPay = 1'500'000;

class PayrollProperties : public ::testing::Test {
  protected:
    PayrollProperties() { std::cout << "seed " << seed_ << "\n"; }

    int upTo(int highest) { return std::uniform_int_distribution(0, highest)(random_); }
    Money pay() { return {std::uniform_int_distribution<std::int64_t>(1, kHighestPay)(random_)}; }

    /// A month from 2023 to 2026.
    WorkMonth month() { return 2023y / std::chrono::January + std::chrono::months{upTo(47)}; }

    PayrollSettings settings() {
        PayrollSettings chosen;
        for (const PayrollSetting& one : payrollSettings())
            one.choose(chosen,
                       static_cast<std::size_t>(upTo(static_cast<int>(one.choices.size()) - 1)));
        return chosen;
    }

    MonthPayCase someMonth() {
        MonthPayCase pay{.part = wholeMonth(month())};
        if (upTo(2) == 0) pay.part.first = plusDays(pay.part.first, upTo(27));
        pay.paid = plusDays(pay.part.last, upTo(7));
        pay.salary = this->pay();
        pay.minimum.byDay = std::chrono::minutes{upTo(3000)};
        pay.maximum.byNight = std::chrono::minutes{upTo(600)};
        pay.nightHours = std::chrono::minutes{upTo(6000)};
        pay.unhealthyPercent = upTo(4) * 10;
        pay.isDangerous = upTo(1) == 1;
        pay.absentDays = upTo(3);
        pay.restsLost = upTo(2);
        pay.missing = std::chrono::minutes{upTo(300)};
        pay.days = {25, 6};
        pay.voucherCost = {upTo(30000)};
        pay.advancePercent = upTo(40);
        pay.children = upTo(3);
        pay.dependants = upTo(3);
        return pay;
    }

    LegalTables tables_ = testing::legalTablesIn(WINVRX_LEGAL_FOLDER);
    unsigned seed_ = std::random_device{}();
    std::mt19937 random_{seed_};
};

TEST_F(PayrollProperties, InssAndIncomeTaxNeverFallWhenTheGrossRises) {
    for (int i = 0; i < kTries; ++i) {
        PayrollSettings chosen;
        chosen.inssRounding =
            upTo(1) == 0 ? InssRounding::TruncatedBrackets : InssRounding::RoundedOnce;
        const PayrollLaw law{tables_, chosen};
        const WorkMonth when = month();
        const Money low = pay();
        const Money high = low + Money{1 + (upTo(1) == 0 ? upTo(3) : upTo(100000))};
        const int dependants = upTo(3);
        const auto taxes = [&](Money gross) {
            const Money contribution = inss(law, gross, when).amount;
            return std::pair(contribution, incomeTax(law, {.income = gross,
                                                           .inss = contribution,
                                                           .dependants = dependants,
                                                           .paid = lastDay(when)}));
        };
        const auto [lowInss, lowTax] = taxes(low);
        const auto [highInss, highTax] = taxes(high);
        SCOPED_TRACE(monthKey(when) + " " + moneyText(low) + " " + moneyText(high));
        EXPECT_LE(lowInss, highInss);
        // At a bracket's edge the law's deductions, which have whole cents, let the tax step by
        // one.
        EXPECT_LE(lowTax.due, highTax.due + Money{1});
        EXPECT_GE(lowTax.due, Money{});
    }
}

TEST_F(PayrollProperties, NetIsCreditsLessDebitsAndTwiceIsTheSame) {
    for (int i = 0; i < kTries; ++i) {
        const PayrollSettings chosen = settings();
        const PayrollLaw law{tables_, chosen};
        const MonthPayCase month = someMonth();
        const PayrollEvents events = testing::eventsSaying(month);
        const PaySheet once = paySheet(law, {.month = month}, events);
        const MonthEarnings pay = monthEarnings(law, month);
        const Money lost = (pay.absences + pay.restsLost + pay.missing).amount;
        const Money earned =
            (pay.salary + pay.risk.unhealthy + pay.risk.danger + pay.minimumOvertime +
             pay.maximumNightOvertime + pay.night + pay.restReflex)
                .amount;
        const MonthDeductions taken = monthDeductions(law, month, once.base);
        SCOPED_TRACE(monthKey(month.part.month()) + " " + moneyText(month.salary));
        EXPECT_EQ(once.base, atLeastZero(earned - lost));
        EXPECT_EQ(once.credits, earned + taken.familyQuota.amount);
        EXPECT_EQ(once.net, earned + taken.familyQuota.amount - lost - taken.inss.amount -
                                taken.tax.withheld - taken.voucher.amount - taken.advance.amount);
        const PaySheet twice = paySheet(law, {.month = month}, events);
        EXPECT_EQ(once.net, twice.net);
        EXPECT_EQ(once.find("091")->memo, twice.find("091")->memo);
        EXPECT_EQ(once.find("092")->memo, twice.find("092")->memo);
    }
}

TEST_F(PayrollProperties, AMonthSplitByAnAdmissionNeverExceedsTheWhole) {
    for (int i = 0; i < kTries; ++i) {
        const Money salary = pay();
        const WorkMonth when = month();
        const auto method = static_cast<PartialMonth>(upTo(2));
        Money later = salary;
        for (Date day = firstDay(when); monthOf(day) == when; day = plusDays(day, 1)) {
            const MonthPart part{day, lastDay(when)};
            const Money amount = partialSalary(salary, part, method).amount;
            EXPECT_LE(amount, later) << dateText(day) << " " << moneyText(salary);
            EXPECT_LE(paidShare(part, method), Fraction(1));
            later = amount;
        }
        EXPECT_EQ(
            partialSalary(salary, {firstDay(when), lastDay(when), daysIn(when)}, method).amount,
            Money{});
    }
}

TEST_F(PayrollProperties, TheEndOfAContractAddsUpHoweverItComes) {
    for (int i = 0; i < kTries; ++i) {
        const PayrollSettings chosen = settings();
        const PayrollLaw law{tables_, chosen};
        TerminationCase end{.type = static_cast<TerminationType>(1 + upTo(5)),
                            .notice = static_cast<NoticeType>(1 + upTo(1)),
                            .admission = plusDays(2015y / 1 / 1, upTo(3000)),
                            .given = plusDays(2023y / 6 / 1, upTo(1200))};
        end.salary = pay();
        end.monthsPay = {upTo(1) == 0 ? upTo(200000) : -upTo(2000000)};
        end.before.firstInstalment.net = {upTo(100000)};
        end.overduePeriods = upTo(2);
        end.fgtsAccount = pay();
        const TerminationPay once = terminationPay(law, end);
        SCOPED_TRACE(std::to_string(static_cast<int>(end.type)) + " " + dateText(end.admission) +
                     " " + dateText(end.given) + " " + moneyText(end.salary));
        EXPECT_EQ(once.net, once.gross - once.deductions);
        EXPECT_EQ(once.net, terminationPay(law, end).net);
        EXPECT_LE(once.balance.amount, end.salary);
        EXPECT_GE(once.inssBalance.amount, Money{});
        EXPECT_LE(once.dates.lastDayWorked.value, once.dates.noticeEnds.value);
        // An agreement never gives more than the employer's decision alone.
        if (end.type != TerminationType::WithoutCause) continue;
        end.type = TerminationType::Agreement;
        const TerminationPay agreed = terminationPay(law, end);
        EXPECT_LE(agreed.gross, once.gross);
        EXPECT_LE(agreed.fgtsFine.amount, once.fgtsFine.amount);
    }
}

TEST_F(PayrollProperties, EachTableHoldsFromItsDayOn) {
    const PayrollSettings usual;
    const PayrollLaw law{tables_, usual};
    const auto& wages = tables_.minimumWage.lines();
    for (std::size_t at = 1; at < wages.size(); ++at) {
        const WorkMonth month = monthOf(wages[at].from);
        const WorkMonth before = month - std::chrono::months{1};
        SCOPED_TRACE(monthKey(month));
        EXPECT_EQ(unhealthyPay(law, 100, {}, month).amount, wages[at].amount);
        EXPECT_EQ(unhealthyPay(law, 100, {}, before).amount, wages[at - 1].amount);
    }
    const auto& contributions = tables_.inss.lines();
    for (std::size_t at = 1; at < contributions.size(); ++at) {
        const auto most = [&](std::size_t table, WorkMonth month) {
            SCOPED_TRACE(monthKey(month));
            const Money ceiling = contributions[table].ceiling();
            EXPECT_EQ(inss(law, {kHighestPay}, month).amount, inss(law, ceiling, month).amount);
            EXPECT_LT(inss(law, ceiling - Money{100}, month).amount,
                      inss(law, ceiling, month).amount);
        };
        const WorkMonth month = monthOf(contributions[at].from);
        most(at, month);
        most(at - 1, month - std::chrono::months{1});
    }
    const auto& taxes = tables_.incomeTax.lines();
    for (std::size_t at = 1; at < taxes.size(); ++at) {
        // One real past what the later table exempts is taxed by it, and by no table before it.
        const auto due = [&](Date paid, std::size_t table) {
            return incomeTax(law, {.income = taxes[table].brackets.front().top, .paid = paid}).due;
        };
        SCOPED_TRACE(dateText(taxes[at].from));
        EXPECT_EQ(due(taxes[at].from, at), Money{});
        EXPECT_EQ(due(plusDays(taxes[at].from, -1), at - 1), Money{});
        EXPECT_LE(due(taxes[at].from, at - 1), due(plusDays(taxes[at].from, -1), at));
    }
}

TEST_F(PayrollProperties, AVacationOfTwoMonthsLosesNothing) {
    for (int i = 0; i < kTries; ++i) {
        const Money pay = this->pay();
        const int days = 1 + upTo(29);
        Money sum;
        for (const VacationShare& share :
             sharesByMonth(pay, plusDays(firstDay(month()), upTo(30)), days)) {
            sum = sum + share.amount;
            EXPECT_GE(share.amount, Money{});
        }
        EXPECT_EQ(sum, pay);
    }
}

}  // namespace
}  // namespace winvrx
