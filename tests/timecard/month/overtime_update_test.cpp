#include "timecard/month/overtime_update.h"

#include "tests/support/employee_desk.h"
#include "timecard/month/data_mes_corrente.h"
#include "timecard/month/overtime_record.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using testing::EmployeeDesk;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

const OvertimeProgress kPatient = [](std::size_t, std::size_t) { return true; };

/// The month's screen of March 2024 over three employees, of whom one works nights.
struct OvertimeOfAll : ::testing::Test {
    EmployeeDesk desk;
    DataMesCorrente screen{desk.at};

    void SetUp() override {
        Employee night = EmployeeDesk::employee("003", "CAIO");
        night.shift = "Tres";
        desk.record("01", {EmployeeDesk::employee("001", "ANA"),
                           EmployeeDesk::employee("002", "BIA"), night});
        screen.open();
        screen.type(kMonthNumberFields[0], "60");
    }
    [[nodiscard]] std::string recordOf(const char* employee) {
        const auto found = desk.files.content.find("/data/01MedHorExtr" + std::string(employee));
        return found == desk.files.content.end() ? "none" : found->second;
    }
};

const std::string kMarchLine = "03-2024 60  50  100 100\r\n";

TEST_F(OvertimeOfAll, EveryListedEmployeeGetsTheRulesOfTheScreen) {
    desk.file("01MedHorExtr002") = "02-2024 55  50  100 100\r\n";
    desk.person.answers = {Answer::Yes};
    EXPECT_EQ(screen.updateAll(kPatient), (OvertimeUpdate{3, 3}));
    ASSERT_EQ(desk.person.shown.size(), 1U);
    EXPECT_EQ(desk.person.shown[0].title, "ALTERAÇÃO");
    EXPECT_EQ(desk.person.shown[0].text,
              "Confirma Atualizar as Horas Extras de MARÇO/2024 p/Todos os Funcionários da Lista?");
    EXPECT_THAT(desk.person.shown[0].detail, HasSubstr("3 funcionários recebem"));
    EXPECT_EQ(recordOf("001"), kMarchLine);
    EXPECT_EQ(recordOf("002"), "02-2024 55  50  100 100\r\n" + kMarchLine);
    EXPECT_FALSE(desk.files.content.contains("/data/03-2024ds.rdx"));
    EXPECT_TRUE(screen.changed());
}

TEST_F(OvertimeOfAll, TheFilterSaysWhoIsInTheList) {
    desk.session.shiftFilter = ShiftFilter::Tres;
    desk.file("01CartaPonto") +=
        "??? NINGU\xC9M\r\n" + encode(EmployeeDesk::employee("001", "ANA"));
    desk.person.answers = {Answer::Yes};
    EXPECT_EQ(screen.updateAll(kPatient), (OvertimeUpdate{1, 1}));
    EXPECT_EQ(recordOf("001"), "none");
    EXPECT_EQ(recordOf("003"), kMarchLine);
    desk.session.shiftFilter = ShiftFilter::Todos;
    desk.person.answers = {Answer::Yes};
    EXPECT_EQ(screen.updateAll(kPatient), (OvertimeUpdate{3, 3}));
}

TEST_F(OvertimeOfAll, RefusedCancelledOrFailingItChangesNothing) {
    const auto before = desk.files.content;
    EXPECT_FALSE(screen.updateAll(kPatient));  // answered with no
    desk.person.answers = {Answer::Yes};
    EXPECT_EQ(screen.updateAll([](std::size_t, std::size_t) { return false; }),
              (OvertimeUpdate{0, 3}));
    desk.person.takeTexts();
    screen.type(kMonthNumberFields[0], "sessenta");
    EXPECT_FALSE(screen.updateAll(kPatient));
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre("Dados incorretos!"));
    screen.type(kMonthNumberFields[0], "60");
    desk.session.shiftFilter = ShiftFilter::Dois;
    EXPECT_FALSE(screen.updateAll(kPatient));
    EXPECT_THAT(desk.person.takeTexts(),
                ElementsAre("Não há Dados de Funcionários! Cadastre pelo menos um Funcionário."));
    desk.session.company.reset();
    EXPECT_FALSE(screen.updateAll(kPatient));
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre("Cadastre Primeiro Uma Empresa!!"));
    EXPECT_EQ(desk.files.content, before);
}

TEST_F(OvertimeOfAll, AClosedMonthStaysAsItIsAndIsNamed) {
    desk.file("01fp0000203-2024.bdx") = "";
    desk.file("01fp0000102-2024.bdx") = "";
    desk.file("01MedHorExtr002") = "03-2024 70  50  100 100\r\n";
    screen.open();
    EXPECT_EQ(screen.ownRulesNotice(), "") << "nothing that could be made equal";
    screen.type(kMonthNumberFields[0], "60");
    desk.person.answers = {Answer::Yes};
    EXPECT_EQ(screen.updateAll(kPatient), (OvertimeUpdate{2, 2, 1}));
    EXPECT_THAT(desk.person.shown[0].detail, HasSubstr("2 funcionários recebem"));
    EXPECT_THAT(desk.person.shown[0].detail, HasSubstr("Ficam como estão, folha fechada: 002 BIA"));
    EXPECT_EQ(recordOf("002"), "03-2024 70  50  100 100\r\n");
    EXPECT_EQ(recordOf("003"), kMarchLine);
    for (const char* name : {"01fp0000103-2024.bdx", "01fp0000303-2024.bdx"})
        desk.file(name) = "";
    desk.person.shown.clear();
    EXPECT_FALSE(screen.updateAll(kPatient));
    EXPECT_THAT(desk.person.takeTexts(),
                ElementsAre("A folha de pagamento deste mês já foi gerada para todos os "
                            "funcionários da lista: não há o que atualizar."));
}

TEST_F(OvertimeOfAll, CancelledOnTheWayItLeavesWholeEmployeesAndCanBeGivenAgain) {
    std::vector<Employee> many;
    for (int code = 1; code <= 200; ++code)
        many.push_back(
            EmployeeDesk::employee(EmployeeCode::fromNumber(code)->text().c_str(), "ALGUEM"));
    desk.record("01", many);
    desk.file("01MedHorExtr007") = kMarchLine;
    std::vector<std::size_t> told;
    desk.person.answers = {Answer::Yes, Answer::Yes};
    const auto cut = screen.updateAll([&told](std::size_t done, std::size_t total) {
        told.push_back(done);
        return done < total / 2;
    });
    EXPECT_THAT(told, ElementsAre(1U, 65U, 129U));
    EXPECT_EQ(cut, (OvertimeUpdate{129, 200}));
    std::size_t written = 0;
    for (const Employee& one : many) {
        const std::string record = recordOf(one.code.c_str());
        EXPECT_TRUE(record == kMarchLine || record == "none") << record;
        if (record == kMarchLine) ++written;
    }
    EXPECT_EQ(written, 129U);
    EXPECT_EQ(screen.updateAll(kPatient), (OvertimeUpdate{200, 200}));
    EXPECT_EQ(recordOf("200"), kMarchLine);
}

TEST_F(OvertimeOfAll, TheScreenSaysWhoGoesByOtherFigures) {
    EXPECT_EQ(screen.ownRulesNotice(), "");
    desk.file("01MedHorExtr001") = kMarchLine;
    desk.file("01MedHorExtr002") = "02-2024 55  50  100 100\r\n";
    desk.file("01MedHorExtr003") = "03-2024 70  50  100 100\r\n";
    screen.open();
    EXPECT_THAT(screen.ownRulesNotice(), HasSubstr("2 funcionários da lista têm"));
    screen.type(kMonthNumberFields[0], "60");
    EXPECT_THAT(screen.ownRulesNotice(), HasSubstr("1 funcionário da lista tem"));
    desk.person.answers = {Answer::Yes};
    ASSERT_TRUE(screen.updateAll(kPatient));
    EXPECT_EQ(screen.ownRulesNotice(), "");
    EXPECT_THAT(ownPercentsOfList(desk.at, 2024y / 2), ::testing::SizeIs(1));
    EXPECT_THAT(ownPercentsOfList(desk.at, 2024y / 5), IsEmpty());
}

}  // namespace
}  // namespace winvrx
