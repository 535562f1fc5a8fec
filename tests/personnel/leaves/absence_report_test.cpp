#include "personnel/leaves/absence_report.h"

#include "personnel/leaves/month_absences.h"
#include "tests/support/employee_desk.h"
#include "tests/support/leave_files.h"
#include "tests/support/recording_engine.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace winvrx {
namespace {

using namespace testing;
using namespace std::chrono_literals;
using ::testing::ElementsAre;

constexpr WorkMonth kMarch = 2024y / 3;

struct AbsenceDesk : ::testing::Test, TestWorkplace {
    RecordingEngine engine;
    TestEditor editor;

    void SetUp() override {
        std::vector<Employee> people;
        for (const char* code : {"001", "002", "003", "004", "005"})
            people.push_back(
                employee(code, (std::string("NOME ") + code).c_str(), {.admission = "01/02/2020"}));
        file("01CartaPonto") = employeeList(people);
    }

    std::vector<MonthAbsence> absences(WorkMonth month) {
        return absencesIn(store(), *session.company, month);
    }
    /// "..F" for each day of the month.
    static std::string daysOf(const MonthAbsence& one) {
        std::string text;
        for (const AbsentDay day : one.days)
            text += day == AbsentDay::No ? '.' : day == AbsentDay::Whole ? 'X' : 'x';
        return text;
    }
};

TEST_F(AbsenceDesk, EachLeaveOfTheMonthHasItsDays) {
    Leave hours = leave("007 ATESTADO_DECALRAÇÃO", "08/03/2024", "08/03/2024");
    hours.duration = "000 Dias e 4 Horas";
    Leave ended = leave("008 RESCISÃO_CONTRATO_TRABALHO", "01/03/2024", "20/03/2024");
    ended.lastWorked = "20/03/2024";
    file("01configAf001") = leaveBytes({vacation("20/12/2023", "02/03/2024"), hours});
    file("01configAf003") = leaveBytes({ended}, "20/03/2024");
    file("01configAf004") = leaveBytes({vacation("01/04/2024", "30/04/2024")});
    file("01configAf005") = "006 f\xE9rias\r\nnota\r\n**** \r\n";
    file("01configAf009") = leaveBytes({vacation("01/03/2024", "02/03/2024")});
    file("02configAf002") = leaveBytes({vacation("01/03/2024", "02/03/2024")});
    std::vector<std::string> shown;
    for (const MonthAbsence& one : absences(kMarch))
        shown.push_back(one.employee.code + " " + wordOf(one.leave) + " " + daysOf(one));
    EXPECT_THAT(shown, ElementsAre("001 FÉRIAS XX" + std::string(29, '.'),
                                   "001 ATESTADO DECALRAÇÃO .......x" + std::string(23, '.'),
                                   "003 RESCISÃO CONTRATO TRABALHO " + std::string(20, '.') +
                                       std::string(11, 'X'),
                                   "005 férias "));
    // The month after, the end of the contract lasts; the month before, it is not known of.
    EXPECT_EQ(absences(2024y / 4).front().daysAway(), 30);
    EXPECT_EQ(absences(2024y / 2).size(), 2U);
    EXPECT_EQ(absences(2023y / 12).front().daysAway(), 12);

    ASSERT_TRUE(showAbsences(at, editor, kMarch));
    EXPECT_EQ(editor.opened, std::vector<std::string>{"01RelAfastamentos.txt"});
    const auto lines = splitLines(decodeWindows1252(file("01RelAfastamentos.txt")));
    ASSERT_EQ(lines.size(), 11U);
    for (std::size_t at = 2; at < lines.size(); ++at)
        EXPECT_EQ(characterCount(lines[at]), 140U) << at;
    EXPECT_EQ(
        lines[3],
        "--------------------------------+-----------------------------------------------+----"
        "-----------------------+------------------------------|");
    EXPECT_EQ(
        lines[4],
        "Nome do Funcionário             | Descrição do Afastamento                      |    "
        "Data de Início         |       Data de Término        |");
    EXPECT_EQ(
        lines[7],
        "NOME 001                        | 007 ATESTADO_DECALRAÇÃO  000 Dias e 4 Horas   |    "
        "08/03/2024             |       08/03/2024             |");
}

TEST_F(AbsenceDesk, ThirtyOneRowsFillASheetAndTheRestGoesToTheNext) {
    std::vector<Leave> many;
    for (int day = 1; day <= 31; ++day) {
        const std::string date = dateText(plusDays(firstDay(kMarch), day - 1));
        many.push_back(vacation(date.c_str(), date.c_str()));
    }
    file("01configAf002") = leaveBytes(many);
    ASSERT_TRUE(previewAbsences({at, engine}, kMarch));
    ASSERT_EQ(engine.jobs.at(0).cards.size(), 1U);
    many.push_back(vacation("30/03/2024", "31/03/2024"));
    file("01configAf002") = leaveBytes(many);
    ASSERT_TRUE(previewAbsences({at, engine}, kMarch));
    const auto& job = engine.jobs.at(1);
    EXPECT_EQ(job.request.layoutName, kAbsenceLayout);
    EXPECT_EQ(job.request.pdfPath, "Ausencias-01-03-2024.pdf");
    ASSERT_EQ(job.cards.size(), 2U);
    const ReportRow& row = job.cards[1].at(0);
    const auto value = [&](const char* column) {
        const auto& names = job.request.columns;
        EXPECT_EQ(row.size(), names.size());
        return row.at(static_cast<std::size_t>(std::ranges::find(names, column) - names.begin()));
    };
    EXPECT_EQ(value("resumo"), "32 afastamentos de 1 funcionário");
    EXPECT_EQ(value("folha"), "2 de 2");
    EXPECT_EQ(value("nome"), "NOME 002");
    EXPECT_EQ(value("dias"), "2");
    EXPECT_EQ(value("semana31") + value("dia31") + value("d31") + value("d29"), "D31F");
}

TEST_F(AbsenceDesk, NobodyAwayAndLeavesThatCannotBeReadAreTold) {
    EXPECT_FALSE(previewAbsences({at, engine}, kMarch));
    EXPECT_FALSE(showAbsences(at, editor, kMarch));
    file("01configAf003") = leaveBytes({});
    files.failOn = {"01configAf003"};
    EXPECT_FALSE(previewAbsences({at, engine}, kMarch));
    EXPECT_TRUE(person.shown.back().detail.starts_with("003 NOME 003: "))
        << person.shown.back().detail;
    const std::string nobody = "Nenhum funcionário tem afastamento neste mês.";
    EXPECT_THAT(person.takeTexts(), ElementsAre(nobody, nobody, "Dados incorretos!"));
    EXPECT_TRUE(engine.jobs.empty() && editor.opened.empty());
    files.failOn.clear();
    file("01configAf003") = leaveBytes({vacation("01/03/2024", "02/03/2024")});
    editor.works = false;
    EXPECT_FALSE(showAbsences(at, editor, kMarch));
    EXPECT_THAT(person.takeTexts(), ElementsAre("Não há programa que abra este arquivo."));
}

}  // namespace
}  // namespace winvrx
