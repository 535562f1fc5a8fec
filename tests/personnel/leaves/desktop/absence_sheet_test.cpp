#include "personnel/leaves/absence_report.h"
#include "tests/support/employees.h"
#include "tests/support/leave_files.h"
#include "tests/support/printed_text.h"
#include "tests/support/saving_engine.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using namespace testing;

TEST(AbsenceSheet, ShowsEachLeaveBesideTheDaysOfItsMonth) {
    ReportDesk desk;
    desk.office.file("01Empresa") = encodeWindows1252("01 PADARIA SÃO JOÃO LTDA");
    std::vector<Employee> people;
    for (int number = 1; number <= 31; ++number) {
        const std::string code = padded(number, 3);
        people.push_back(
            employee(code, "MARIA APARECIDA DA CONCEIÇÃO E", {.admission = "01/02/2020"}));
        desk.office.file("01configAf" + code) =
            number == 31
                ? leaveBytes({leave("008 RESCISÃO_CONTRATO_TRABALHO", "20/03/2024", "20/03/2024")},
                             "20/03/2024")
                : leaveBytes({vacation("04/03/2024", "23/03/2024")});
    }
    desk.office.file("01CartaPonto") = employeeList(people);
    SavingEngine engine(desk);
    ASSERT_TRUE(previewAbsences({desk.office.at, engine}, std::chrono::year(2024) / 3))
        << ::testing::PrintToString(desk.log.entries);
    const auto words = printedWords(desk.pdf());
    EXPECT_EQ(words.back().page, 1);
    const PrintedWord heading = winvrx::testing::wordOf(words, QStringLiteral("23"));
    int signs = 0;
    for (const PrintedWord& word : words) {
        signs += word.text == QStringLiteral("F") ? 1 : 0;
        EXPECT_GE(word.left, 7 * kPointsPerMillimetre) << word.text.toStdString();
        EXPECT_LE(word.right, 290 * kPointsPerMillimetre) << word.text.toStdString();
        EXPECT_LE(word.bottom, 203 * kPointsPerMillimetre) << word.text.toStdString();
        if (word.text == QStringLiteral("F")) {
            EXPECT_LT(word.left, heading.right);
        }
    }
    EXPECT_EQ(signs, 30 * 20);
    EXPECT_TRUE(
        printedText(desk.pdf()).contains(QStringLiteral("31 afastamentos de 31 funcionários")));
}

}  // namespace
}  // namespace winvrx
