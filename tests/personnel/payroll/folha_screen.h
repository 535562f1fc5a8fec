#pragma once

#include "personnel/payroll/folha.h"

#include "tests/support/employees.h"
#include "tests/support/legal_tables.h"
#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

#include <set>

namespace winvrx::testing {

/// The payroll screen of a company in March 2026, with a card of ANA.
class FolhaScreen : public ::testing::Test, protected TestWorkplace {
  protected:
    static constexpr WorkMonth kMonth = std::chrono::year{2026} / 3;
    static inline const std::filesystem::path kLegal = "/program/legal";

    FolhaScreen() {
        deliverLegalTables(files, kLegal, WINVRX_LEGAL_FOLDER);
        fillCard("001");
        EXPECT_TRUE(folha.load(kMonth));
    }

    /// A month of full days, of which these are marked as absences; and what else a day has.
    void fillCard(const std::string& code, WorkMonth month = kMonth,
                  const std::set<Date>& absent = {}, const std::string& rest = "") {
        std::string card = "  \r\n";
        for (Date date = firstDay(month); monthOf(date) == month; date = plusDays(date, 1)) {
            const auto weekday = weekdayOf(date);
            if (weekday == std::chrono::Sunday || weekday == std::chrono::Saturday) continue;
            card += dayLabel(date);
            if (absent.contains(date))
                card += std::string(35, ' ') + "Falta\r\n";
            else
                card += "08:0016:00" + rest + "\r\n";
        }
        file("01PadrHor" + code + ".pdx") = "08:0016:00";
        file("01" + code + "-" + monthKey(month) + ".bdx") = card;
    }
    static Employee employee(const char* code, const char* name, const char* salary) {
        Employee one = testing::employee(code, name);
        one.admission = "01/02/2020";
        one.salary = salary;
        return one;
    }

    static constexpr const char* kPayroll = "/data/01fp0000103-2026.bdx";
    Employee ana = employee("001", "ANA", "3.000,00");
    Folha folha{at, kLegal};
};

}  // namespace winvrx::testing
