#pragma once

#include "tests/support/employees.h"
#include "tests/support/leave_files.h"
#include "tests/support/test_punch_desk.h"
#include "tests/support/test_workplace.h"
#include "timecard/card/cartao_ponto_dados.h"
#include "timecard/month/selected_month.h"

#include <gtest/gtest.h>

namespace winvrx::testing {

inline const std::string kPunches = "01001-03-2024.bdx";
inline const std::string kSchedule = "01PadrHor001.pdx";
inline const std::string kLeaves = "01configAf001";
inline const char* const kConfirm =
    "Confirma Aplicação de Ponto de ENTRADA e SAÍDA conforme o Padrão para o Item Selecionado?";

inline Employee employee(const char* code, const char* name, const char* shift, const char* scale) {
    return employee(code, name, {shift, scale, "01/02/2020"});
}

/// A company of three, with March 2024 chosen and Good Friday ticked.
struct CardScreen : ::testing::Test {
    TestWorkplace desk;
    TestPunchDesk asked;
    CartaoPontoDados screen{desk.at, asked.desk};

    void SetUp() override {
        using namespace std::chrono_literals;
        hire({employee("001", "ANA", "Unico", "Norma"), employee("002", "BIA", "Dois", "12x36"),
              employee("003", "CAIO", "Unico", "Norma")});
        MonthSettings march;
        march.month = 2024y / 3;
        march.setHoliday(*parseDate("29/03/2024"), true);
        saveMonthSettings(desk.store(), march);
        saveSelectedMonth(desk.store(), {2024y / 3, ShiftFilter::Todos});
    }

    void hire(const std::vector<Employee>& people) {
        desk.file("01CartaPonto") = employeeList(people);
    }

    void openOn(std::size_t position) {
        ASSERT_TRUE(screen.open());
        ASSERT_TRUE(screen.select(position));
    }

    void typeSchedule(std::vector<const char*> times) {
        for (std::size_t i = 0; i < times.size(); ++i)
            screen.schedule().type(i, times[i]);
    }

    [[nodiscard]] std::vector<std::string> titles() const {
        std::vector<std::string> titles;
        for (const Message& message : desk.person.shown)
            titles.push_back(message.title);
        return titles;
    }

    /// What was shown since the last call, each as "sign title: text"; the signs are "i", "?", "!"
    /// and "x".
    [[nodiscard]] std::vector<std::string> takeShown() {
        std::vector<std::string> shown;
        for (const Message& message : desk.person.shown)
            shown.push_back(std::string(1, " i?!x"[static_cast<std::size_t>(message.icon)]) + " " +
                            message.title + ": " + message.text);
        desk.person.shown.clear();
        return shown;
    }
};

}  // namespace winvrx::testing
