#pragma once

#include "foundation/register/company_register.h"
#include "foundation/register/employee_register.h"
#include "output/cards/cartao.h"
#include "output/stocks/card_alignment.h"
#include "tests/support/employees.h"
#include "tests/support/leave_files.h"
#include "tests/support/recording_engine.h"
#include "tests/support/test_browser.h"
#include "tests/support/test_printers.h"
#include "tests/support/test_punch_desk.h"
#include "tests/support/test_workplace.h"
#include "timecard/month/selected_month.h"

#include <gtest/gtest.h>

namespace winvrx::testing {

using Texts = std::vector<std::string>;

/// Three employees, the second one of the afternoon; March 2024; the stock of this setting line.
inline void fillPrintingDesk(TestWorkplace& desk, const char* stock) {
    Company company;
    company.code = "01";
    company.name = "EMPRESA MODELO LTDA";
    desk.file("01Empresa") = encode(company) + "\r\n";
    const std::string longAgo = "01/02/2020";
    desk.file("01CartaPonto") =
        employeeList({employee("001", "JOSÉ DA SILVA", {.admission = longAgo}),
                      employee("002", "ANA PAULA", {.shift = "Dois", .admission = longAgo}),
                      employee("003", "RUI BARBOSA", {.shift = "Tres", .admission = longAgo})});
    desk.file("01CartaoDePontoTipo") = std::string(stock) + "\r\n";
    saveSelectedMonth(desk.store(), {std::chrono::year(2024) / 3, ShiftFilter::Todos});
}

/// Stock "RHJ", and an engine that prints nothing.
class CartaoTest : public ::testing::Test {
  protected:
    CartaoTest() {
        fillPrintingDesk(desk, "20RHJ");
        screen.choices().output = ReportOutput::Printer;
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
    RecordingEngine engine;
    TestPrinters printers;
    AlignmentMemory alignment;
    TestBrowser browser;
    Cartao screen{desk.at, {browser, engine, printers}, alignment};
};

class CartaoOpened : public CartaoTest {
  protected:
    CartaoOpened() { screen.load(); }
};

}  // namespace winvrx::testing
