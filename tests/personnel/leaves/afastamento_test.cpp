#include "tests/personnel/leaves/afastamento_screen.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::IsEmpty;

TEST_F(AfastamentoTest, EachObstacleEndsAnInclusionInItsOrder) {
    struct Case {
        Typing keys;
        Answers answers;
        Texts texts;
        std::optional<LeaveInput> blamed = {};
    };
    const Typing all = {{Type, ""}, {Days, ""}, {FirstDay, ""}, {LastDay, ""}};
    for (const Case& c : {
             Case{all, {}, {kNoItem}, Type},
             Case{{{Type, "006 FÉRIAS"}}, {}, {kNoDays}, Days},
             Case{{{Type, "006 FÉRIAS"}, {Days, "dez"}}, {}, {kNoDays}, Days},
             Case{{{Type, "006 FÉRIAS"}, {Days, "3"}}, {}, {kNoDates}, FirstDay},
             Case{{{Type, "006 FÉRIAS"}, {Days, "3"}, {LastDay, "20/03/2024"}},
                  {},
                  {kNoDates},
                  FirstDay},
             Case{kCertificate, {kNo}, {kConfirmAdd}},
             Case{{{Type, "006 FÉRIAS"},
                   {FirstDay, "31/02/2024"},
                   {LastDay, "31/03/2024"},
                   {Days, "3"}},
                  {kYes},
                  {kConfirmAdd, "Data Incorreta."},
                  FirstDay},
             Case{{{Type, "006 FÉRIAS"},
                   {FirstDay, "20/03/2024"},
                   {LastDay, "19/03/2024"},
                   {Days, ""},
                   {Days, "0"},
                   {LastDay, "19/03/2024"}},
                  {kYes},
                  {kConfirmAdd, "Período de data Incorreto."},
                  LastDay},
             Case{{{Type, "006 FÉRIAS"}, {FirstDay, "20/03/2024"}, {Days, "0"}, {Hours, "30"}},
                  {kYes},
                  {kConfirmAdd, "Dados incorretos!"},
                  Hours},
             Case{{{Type, "006 FÉRIAS"}, {FirstDay, "10/03/2024"}, {Days, "10"}},
                  {kYes},
                  {kConfirmAdd, kIdentical}},
         }) {
        record({kVacation});
        const std::string before = file();
        start();
        type(c.keys);
        desk_.person.answers = c.answers;
        EXPECT_FALSE(screen_.add());
        EXPECT_EQ(told(), titled("Adicionar Afastamento", c.texts));
        EXPECT_EQ(screen_.blamed(), c.blamed) << c.texts.back();
        EXPECT_EQ(file(), before);
        desk_.person.answers = {kYes};
    }
}

TEST_F(AfastamentoTest, RecordsALeaveAndChoosesIt) {
    start();
    EXPECT_EQ(screen_.list().count(true), 0U);
    type(kCertificate);
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.add());
    const std::string line =
        "007 ATESTADO_DECALRA\xC7\xC3O       20/03/2024  22/03/2024  003 Dias e 0 Horas  ";
    EXPECT_EQ(file(), line + std::string(211 - line.size(), ' ') + "\r\n**** \r\n");
    EXPECT_EQ(screen_.chosen(), 0U);
    EXPECT_FALSE(screen_.form().isChanged());
    EXPECT_EQ(screen_.list().count(true), 1U);
    EXPECT_TRUE(screen_.list().marks(0).onLeave);

    type({{Days, "5"}});
    desk_.person.shown.clear();
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.change());
    EXPECT_EQ(told(), Texts{"Alterar Afastamento: " + kConfirmChange});
    EXPECT_THAT(file(), ::testing::StartsWith("007 ATESTADO_DECALRA\xC7\xC3O       20/03/2024  "
                                              "24/03/2024  005 Dias e 0 Horas"));
    desk_.person.answers = {kYes};
    EXPECT_FALSE(screen_.change());
    EXPECT_EQ(told(), (Texts{"Alterar Afastamento: " + kConfirmChange,
                             "Alterar Afastamento: " + kIdentical}));
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.remove());
    EXPECT_EQ(desk_.person.shown.back().detail,
              "007 ATESTADO_DECALRAÇÃO, de 20/03/2024 a 24/03/2024, será excluído.");
    EXPECT_EQ(told(), (Texts{"Afastamento: Você está Prestes a Desativar este Funionário!",
                             "Afastamento: Confirma Desativar este Funionário?"}));
    EXPECT_EQ(file(), "**** \r\n");
    EXPECT_EQ(screen_.chosen(), std::nullopt);
}

TEST_F(AfastamentoTest, ChangeAndDeletionWarnOfAnotherMonth) {
    struct Case {
        const char* first;
        Answers answers;
        Texts changed;
        bool done;
    };
    for (const Case& c : {
             Case{"29/02/2024", {kCancel}, {kBefore, kProceed}, false},
             Case{"29/02/2024", {kOk, kYes}, {kBefore, kProceed, kConfirmChange}, true},
             Case{"01/04/2024", {kCancel}, {kAfter, kProceed}, false},
             Case{"01/03/2024", {kYes}, {kConfirmChange}, true},
             Case{"31/03/2024", {kNo}, {kConfirmChange}, false},
         }) {
        record({leave("006 FÉRIAS", c.first, "40")});
        const std::string before = file();
        start();
        ASSERT_TRUE(screen_.choose(0));
        type({{Days, "41"}});
        desk_.person.answers = c.answers;
        EXPECT_EQ(screen_.change(), c.done) << c.first;
        if (c.changed[0] != kConfirmChange) {
            ASSERT_FALSE(desk_.person.shown.empty());
            EXPECT_EQ(desk_.person.shown[0].icon, Icon::Critical);
            EXPECT_EQ(desk_.person.shown[1].buttons, Buttons::OkCancel);
        }
        EXPECT_EQ(desk_.person.takeTexts(), c.changed);
        EXPECT_EQ(file() == before, !c.done);
        if (c.done) continue;
        desk_.person.answers = {c.answers[0], kNo};
        EXPECT_FALSE(screen_.remove());
        EXPECT_EQ(desk_.person.takeTexts()[0],
                  c.changed[0] == kConfirmChange ? "Você está Prestes a Desativar este Funionário!"
                                                 : c.changed[0]);
        EXPECT_EQ(file(), before);
        desk_.person.answers = {kYes};
        EXPECT_TRUE(screen_.begin());
    }
}

TEST_F(AfastamentoTest, NeedsAnItemForChangeAndDeletion) {
    start();
    EXPECT_FALSE(screen_.change());
    EXPECT_FALSE(screen_.remove());
    EXPECT_EQ(told(),
              (Texts{"Alterar Afastamento: " + kNoItem, "Excluir Afastamento: " + kNoItem}));
    EXPECT_TRUE(screen_.showOnlyWithLeaves(true));
    EXPECT_FALSE(screen_.add());
    EXPECT_FALSE(screen_.choose(0));
    EXPECT_FALSE(screen_.changeActivation());
    EXPECT_EQ(told(), (Texts{"Adicionar Afastamento: Selecione um Funcionário na Lista!",
                             "Afastamento: Selecione um Funcionário na Lista!",
                             "Inativar: Para Inativar, Selecione um Funcionário!"}));
}

TEST_F(AfastamentoTest, AClosedMonthBarsChoosingAndIsAskedAgainAtRecording) {
    record({kVacation});
    start();
    desk_.locks.closed = {"001"};
    EXPECT_FALSE(screen_.choose(0));
    EXPECT_EQ(desk_.person.shown.at(0).icon, Icon::Information);
    EXPECT_EQ(told(), Texts{"Afastamento: " + kClosed});
    EXPECT_EQ(screen_.chosen(), std::nullopt);
    EXPECT_EQ(screen_.form().text(Type), "");

    const std::string before = file();
    for (const bool removes : {false, true}) {
        desk_.locks.closed.clear();
        ASSERT_TRUE(screen_.choose(0));
        type({{Days, "12"}});
        desk_.person.answers = {kYes};
        // The payroll is generated elsewhere while the operator reads the question.
        desk_.person.onAsk = [this] { desk_.locks.closed = {"001"}; };
        EXPECT_FALSE(removes ? screen_.remove() : screen_.change());
        EXPECT_EQ(desk_.person.takeTexts().back(), kClosed);
        EXPECT_EQ(file(), before);
        desk_.person.onAsk = {};
        desk_.person.answers = {kYes};
        EXPECT_TRUE(screen_.begin());
        desk_.person.shown.clear();
    }
    type(kCertificate);
    desk_.person.answers = {kYes};
    EXPECT_FALSE(screen_.add());
    EXPECT_EQ(desk_.person.takeTexts().back(), kClosed);
    type({{FirstDay, "20/04/2024"}});
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.add()) << "another month than the closed one";
}

TEST_F(AfastamentoTest, TellsOfLinesThatARewriteDrops) {
    const std::string stray = "nota do contador";
    record({kVacation});
    file() = stray + "\r\n\r\n006 f\xE9rias\r\n" + file();
    const std::string before = file();
    start();
    EXPECT_EQ(screen_.file().leaves.size(), 2U);
    type(kCertificate);
    desk_.person.answers = {kYes, kNo};
    EXPECT_FALSE(screen_.add());
    EXPECT_EQ(desk_.person.shown.back().detail, stray);
    EXPECT_EQ(file(), before);
    desk_.person.answers = {kYes, kYes};
    EXPECT_TRUE(screen_.add());
    EXPECT_THAT(file(), ::testing::StartsWith("006 f\xE9rias\r\n006 F\xC9RIAS "));
    EXPECT_THAT(file(), ::testing::Not(::testing::HasSubstr(stray)));
    desk_.person.shown.clear();
    type({{Days, "4"}});
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.change());
    EXPECT_EQ(desk_.person.shown.size(), 1U) << "nothing is left to be dropped";
}

TEST_F(AfastamentoTest, ChangesALineOfAnotherProgram) {
    const std::string beginning = "006 f\xE9rias" + std::string(20, ' ');
    file() = beginning + "28/02/2024  01/03/2024";
    start();
    desk_.person.answers = {kYes};
    ASSERT_TRUE(screen_.choose(0));
    EXPECT_EQ(screen_.form().text(Days), "3");
    EXPECT_FALSE(screen_.form().isChanged());
    type({{Days, "4"}});
    desk_.person.answers = {kOk, kYes};
    EXPECT_TRUE(screen_.change());
    const std::string line = beginning + "28/02/2024  02/03/2024  004 Dias e 0 Horas";
    EXPECT_EQ(file(), line + std::string(211 - line.size(), ' ') + "\r\n**** \r\n");
}

TEST_F(AfastamentoTest, RefusesWhenAnotherComputerChangedTheFile) {
    record({kVacation});
    start();
    type(kCertificate);
    desk_.person.answers = {kYes};
    desk_.person.onAsk = [this] {
        record({kVacation, leave("003 AUXILIO_DOENÇA", "01/05/2024", "9")});
    };
    EXPECT_FALSE(screen_.add());
    desk_.person.onAsk = {};
    EXPECT_EQ(desk_.person.takeTexts().back(), "Dados incorretos!");
    EXPECT_EQ(parseLeaveFile(file()).leaves.size(), 2U);
    EXPECT_EQ(screen_.form().text(FirstDay), "20/03/2024") << "what was typed stays";

    ASSERT_TRUE((desk_.person.answers = {kYes}, screen_.select(0)));
    type(kCertificate);
    desk_.record("01", {one("002", "BIA")});
    desk_.person.answers = {kYes};
    EXPECT_FALSE(screen_.add()) << "the employee is gone";
    EXPECT_EQ(parseLeaveFile(file()).leaves.size(), 2U);
}

TEST_F(AfastamentoTest, ListsEveryoneOrThoseWithAFile) {
    record({}, "**** ");
    start();
    EXPECT_EQ(screen_.list().count(false), 2U);
    EXPECT_EQ(screen_.list().count(true), 1U);
    EXPECT_THAT(screen_.file().leaves, IsEmpty());
    EXPECT_FALSE(screen_.isInactive());
    EXPECT_EQ(screen_.periodCaption(), "Período : 01/03/2024 á 31/03/2024");
    EXPECT_TRUE(screen_.showOnlyWithLeaves(true));
    EXPECT_EQ(screen_.list().employees().size(), 1U);
    EXPECT_EQ(screen_.list().selectedPosition(), 0U);
    EXPECT_TRUE(screen_.showOnlyWithLeaves(false));
    type(kCertificate);
    desk_.person.answers = {kNo};
    EXPECT_FALSE(screen_.select(1)) << "what is typed would be lost";
    EXPECT_EQ(screen_.list().selectedPosition(), 0U);
    desk_.person.answers = {kYes};
    EXPECT_TRUE(screen_.select(EmployeeCode::parse("002").value()));
    EXPECT_EQ(screen_.selected()->name, "BIA");
    EXPECT_TRUE(screen_.filterBy(ShiftFilter::Tres));
    EXPECT_EQ(screen_.selected(), nullptr);
    EXPECT_TRUE(screen_.select(EmployeeCode::parse("001").value())) << "of a shift not listed";
    desk_.files.content.erase("/data/DataIde.ivc");
    EXPECT_FALSE(screen_.open());
    EXPECT_EQ(desk_.person.takeTexts().back(), "Informe um Mês de Trabalho!!");
}

}  // namespace
}  // namespace winvrx
