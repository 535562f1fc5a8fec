#pragma once

#include "foundation/register/company.h"
#include "foundation/values/text.h"
#include "output/mirrors/hours_reports.h"
#include "tests/support/employee_desk.h"
#include "tests/support/employees.h"
#include "tests/support/recording_engine.h"
#include "tests/support/test_browser.h"
#include "tests/support/test_printers.h"
#include "timecard/month/month_settings.h"
#include "timecard/month/selected_month.h"

namespace winvrx::testing {

/// In groups are those whom the test names.
struct TestRotation final : RotationCalendar {
    std::set<std::string> inGroups;
    [[nodiscard]] RotationMonths monthsOf(const CompanyCode&, WorkMonth) const override {
        RotationMonths months;
        for (const EmployeeCode& code : codesOf(inGroups))
            months[code] = {};
        return months;
    }
};

/// A bakery in the first days of March 2024: Ana with overtime by day and night, an absence and a
/// leave; José, of the longest name, without a record; month and holiday chosen.
struct HoursOffice {
    static constexpr WorkMonth kMarch = std::chrono::year(2024) / 3;

    TestWorkplace desk;
    TestEditor editor;
    TestSpreadsheet spreadsheet;
    TestBrowser browser;
    RecordingEngine engine;
    TestRotation rotation;
    TestPrinters printers;
    HoursReports reports{desk.at, {editor, spreadsheet, browser, engine, printers, rotation}};

    HoursOffice() {
        Company company = sampleCompany(*parseDate("01/01/2024"));
        company.code = "01";
        company.name = "PADARIA SÃO JOÃO LTDA";
        company.taxId = "12.345.678/0001-95";
        desk.file("01Empresa") = joinedLines({encode(company)});
        Employee ana = employee("001", "ANA DA CONCEIÇÃO", {.admission = "01/02/2020"});
        ana.function = "CONFEITEIRA";
        ana.taxId = "529.982.247-25";
        Employee jose = employee("002", "JOSÉ DE ALENCAR GONÇALVES FILH",
                                 {.shift = "Dois", .admission = "04/03/2024"});
        jose.function = "AJUDANTE DE PRODUÇÃO";
        desk.file("01CartaPonto") = employeeList({ana, jose});
        desk.file("01PadrHor001.pdx") = "08:0012:0013:0017:00";
        desk.file("01001-03-2024.bdx") =
            "  \r\n01/sex/mar08:0012:0013:0018:00\r\n02/s\xE1"
            "b/mar08:0010:00\r\n"
            "04/seg/mar                                   Falta Injustifi\r\n"
            "05/ter/mar08:0312:0013:0017:0021:0023:30     \r\n";
        desk.file("01configAf001") =
            "006 F\xC9"
            "RIAS                    06/03/2024  25/03/2024  020 Dias e 0 Horas\r\n**** "
            "\r\n";
        setFormat(TotalsFormat::HoursAndMinutes);
        saveSelectedMonth(desk.store(), {kMarch});
        reports.load();
    }

    void setFormat(TotalsFormat format) {
        MonthSettings march;
        march.month = kMarch;
        march.overtime.totalsFormat = format;
        march.overtime.nightMaximumPercent = 120;
        march.setHoliday(*parseDate("29/03/2024"), true);
        saveMonthSettings(desk.store(), march);
    }
};

}  // namespace winvrx::testing
