#pragma once

#include "foundation/company_register.h"
#include "foundation/employee_register.h"
#include "output/cartao.h"
#include "output/print_settings.h"
#include "tests/support/recording_engine.h"
#include "tests/support/test_browser.h"
#include "tests/support/test_printers.h"
#include "tests/support/test_workplace.h"
#include "timecard/selected_month.h"

#include <gtest/gtest.h>

namespace winvrx::testing {

using Texts = std::vector<std::string>;

/// Three employees, the second one of the afternoon; March 2024; stock "RHJ".
class CartaoTest : public ::testing::Test {
  protected:
    CartaoTest() {
        Company company;
        company.code = "01";
        company.name = "EMPRESA MODELO LTDA";
        desk.file("01Empresa") = encode(company) + "\r\n";
        desk.file("01CartaPonto") = encode(employee("001", "JOSÉ DA SILVA", "Unico")) + "\r\n" +
                                    encode(employee("002", "ANA PAULA", "Dois")) + "\r\n" +
                                    encode(employee("003", "RUI BARBOSA", "Tres")) + "\r\n";
        desk.file("01CartaoDePontoTipo") = "20RHJ\r\n";
        saveSelectedMonth(desk.files, desk.session.folder,
                          {std::chrono::year(2024) / 3, ShiftFilter::Todos});
        screen.choices().output = ReportOutput::Printer;
    }

    static Employee employee(const char* code, const char* name, const char* shift) {
        Employee employee;
        employee.code = code;
        employee.name = name;
        employee.shift = shift;
        return employee;
    }

    /// Names on the cards of all jobs, in order of printing.
    Texts printed() const {
        Texts names;
        for (const auto& job : engine.jobs)
            for (const auto& card : job.cards)
                names.push_back(card.front()[cardColumn("nome")]);
        return names;
    }

    TestWorkplace desk;
    TestBrowser browser;
    RecordingEngine engine;
    TestPrinters printers;
    AlignmentMemory alignment;
    Cartao screen{desk.at, {browser, engine, printers, alignment}};
};

class CartaoOpened : public CartaoTest {
  protected:
    CartaoOpened() { screen.load(); }
};

}  // namespace winvrx::testing
