#include "timecard/punches/month_progress.h"

#include "tests/support/test_workplace.h"
#include "timecard/month/month_overview.h"
#include "timecard/month/month_settings.h"
#include "timecard/month/selected_month.h"
#include "timecard/punches/punch_record.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

TEST(MonthProgressTest, EachStepFollowsTheOneBefore) {
    testing::TestWorkplace desk;
    const auto company = *CompanyCode::parse("01");
    const WorkMonth march = *parseMonthKey("03-2024");
    const TimecardCalendar calendar(desk.at);
    const auto now = [&] {
        return monthProgress(desk.store(), company, ShiftFilter::Todos,
                             calendar.overview(desk.at.clock.today()).inWork);
    };
    const auto fill = [&](const char* code) {
        desk.file(punchFileName({company, *EmployeeCode::parse(code)}, march)) = "\r\n";
    };
    const auto expect = [&](int people, bool month, int cards, MonthStep next) {
        const MonthProgress progress = now();
        EXPECT_EQ(progress.employees, people);
        EXPECT_EQ(progress.month.has_value(), month);
        EXPECT_EQ(progress.filledCards, cards);
        EXPECT_EQ(progress.next, next);
    };
    expect(0, false, 0, MonthStep::RegisterEmployees);
    desk.file("01CartaPonto") = "001 ANA\r\n002 JOSE\r\n";
    expect(2, false, 0, MonthStep::ChooseMonth);
    saveSelectedMonth(desk.store(), {march, ShiftFilter::Todos});
    expect(2, false, 0, MonthStep::ChooseMonth);  // chosen, but nobody has looked at its holidays
    MonthSettings settings;
    settings.month = march;
    saveMonthSettings(desk.store(), settings);
    expect(2, true, 0, MonthStep::FillCards);
    fill("001");
    fill("003");  // of nobody on the list
    expect(2, true, 1, MonthStep::FillCards);
    fill("002");
    expect(2, true, 2, MonthStep::PrintCards);
}

}  // namespace
}  // namespace winvrx
