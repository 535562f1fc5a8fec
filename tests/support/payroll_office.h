#pragma once

#include "foundation/register/company.h"
#include "tests/support/employees.h"
#include "tests/support/legal_tables.h"
#include "tests/support/test_workplace.h"
#include "timecard/month/selected_month.h"

namespace winvrx::testing {

/// An office with its month of March 2026: Ana and Bia can be paid, Rui has no salary, Eva no card.
struct PayrollOffice : TestWorkplace {
    static constexpr WorkMonth kMonth = std::chrono::year(2026) / 3;
    inline static const std::filesystem::path kLegal = "/program/legal";

    Employee ana = paid("001", "ANA DA CONCEIÇÃO", "3.000,00");
    Employee bia = paid("002", "BEATRIZ DE ALENCAR GONÇALVES", "6.200,00");
    Employee rui = paid("003", "RUI", "");
    Employee eva = paid("004", "EVA", "2.500,00");

    /// `delivered` has the tables of the law.
    explicit PayrollOffice(const std::filesystem::path& delivered) {
        deliverLegalTables(files, kLegal, delivered);
        Company company = sampleCompany(*parseDate("01/01/2026"));
        company.code = "01";
        company.name = "PADARIA SÃO JOÃO LTDA";
        company.taxId = "12.345.678/0001-95";
        company.address = "RUA DAS FLORES, 10";
        company.district = "CENTRO";
        company.city = "SÃO PAULO";
        company.state = "SP";
        company.postalCode = "01310-100";
        file("01Empresa") = joinedLines({encode(company)});
        ana.dependants = "1";
        bia.shift = "Dois";
        record();
        for (const char* code : {"001", "002", "003"})
            fillCard(code);
        saveSelectedMonth(store(), {kMonth});
    }

    void record() { file("01CartaPonto") = employeeList({ana, bia, rui, eva}); }

    static Employee paid(const char* code, const char* name, const char* salary) {
        Employee one = employee(code, name, {.admission = "01/02/2020"});
        one.salary = salary;
        one.function = "CONFEITEIRA";
        one.socialId = "12012345678";
        one.taxId = "529.982.247-25";
        return one;
    }

    /// A month of full days; on one of them two hours more.
    void fillCard(const std::string& code) {
        std::string card = "  \r\n";
        for (Date date = firstDay(kMonth); monthOf(date) == kMonth; date = plusDays(date, 1)) {
            const auto weekday = weekdayOf(date);
            if (weekday == std::chrono::Sunday || weekday == std::chrono::Saturday) continue;
            card += dayLabel(date) + (dayNumber(date) == 10 ? "08:0018:00" : "08:0016:00") + "\r\n";
        }
        file("01PadrHor" + code + ".pdx") = "08:0016:00";
        file("01" + code + "-03-2026.bdx") = card;
    }

    [[nodiscard]] bool isRecorded(const char* code) const {
        return files.content.contains(std::string("/data/01fp00") + code + "03-2026.bdx");
    }
};

}  // namespace winvrx::testing
