#pragma once

#include "tests/support/employee_desk.h"
#include "tests/support/leave_files.h"
#include "tests/support/recording_engine.h"
#include "tests/support/test_punch_desk.h"
#include "timecard/month/selected_month.h"
#include "timecard/rotation/cartao_ponto_dados_b.h"
#include "timecard/rotation/rotation_records.h"

#include <gtest/gtest.h>

namespace winvrx::testing {

inline EmployeeCode code(int number) {
    return *EmployeeCode::fromNumber(number);
}

inline const CompanyCode kCompany = *CompanyCode::parse("01");

/// Nine porters on 5 x 1 in the single shift, four on 12 x 36 at night, and one on none; March 2024
/// is chosen and Good Friday ticked.
struct RotationScreen : ::testing::Test {
    TestWorkplace desk;
    TestLocks locks;
    TestEditor editor;
    RecordingEngine engine;
    CartaoPontoDadosB screen{desk.at, {locks, editor, engine}};

    void SetUp() override {
        using namespace std::chrono_literals;
        desk.file("01CartaPonto") = employeeList(people());
        choose(2024y / 3);
    }

    [[nodiscard]] static std::vector<Employee> people() {
        std::vector<Employee> people;
        for (int number = 1; number <= 14; ++number) {
            const std::string scale = number <= 9 ? "5x1" : number <= 13 ? "12x36" : "Norma";
            people.push_back(
                employee(code(number).text(), "E" + std::to_string(number),
                         {number > 9 && number < 14 ? "Tres" : "Unico", scale, "01/02/2020"}));
        }
        return people;
    }

    void choose(WorkMonth month) {
        MonthSettings settings;
        settings.month = month;
        settings.setHoliday(*parseDate("29/03/2024"), true);
        saveMonthSettings(desk.store(), settings);
        saveSelectedMonth(desk.store(), {month, ShiftFilter::Todos});
        ASSERT_TRUE(screen.open());
    }

    void show(ShiftFilter shift, Scale scale) {
        ASSERT_TRUE(screen.filterBy(shift));
        ASSERT_TRUE(screen.filterBy(scale));
    }

    /// Who bears the number, in the list shown.
    [[nodiscard]] std::size_t at(int number) {
        return screen.list().positionOf(code(number).text()).value();
    }

    /// A new group of 5 x 1 in the single shift, off from `day` on, with those numbers.
    void draw(const std::vector<int>& numbers, int day, int relief = 0, int reliefDay = 0) {
        show(ShiftFilter::Unico, Scale::FiveByOne);
        ASSERT_TRUE(screen.newGroup());
        for (const int number : numbers)
            ASSERT_TRUE(screen.add({at(number)}));
        screen.draft().setFirstDayOff(day);
        if (relief == 0) return;
        ASSERT_TRUE(screen.addReliefWorker(at(relief)));
        screen.draft().setReliefDayOff(0, reliefDay);
    }

    [[nodiscard]] bool save() {
        desk.person.answers = {Answer::Yes};
        return screen.saveGroup();
    }

    [[nodiscard]] std::string recorded() { return desk.file("01GRUPO-032024.rdx"); }
    [[nodiscard]] std::vector<std::string> shown() { return desk.person.takeTexts(); }
};

}  // namespace winvrx::testing
