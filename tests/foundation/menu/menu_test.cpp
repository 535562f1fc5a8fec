#include "foundation/menu/menu.h"

#include "foundation/register/employee_register.h"
#include "tests/support/test_workplace.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TestWorkplace;

class TwoDrives final : public Drives {
  public:
    [[nodiscard]] std::filesystem::path root(char letter) const override {
        if (letter == 'C') return "/c";
        if (letter == 'D') return "/d";
        return {};
    }
    [[nodiscard]] std::vector<char> letters() const override { return {'C', 'D'}; }
};

struct OnlyCopy final : SingleInstance {
    bool free = true;
    bool claim() override { return free; }
};

struct NoBrowser final : Browser {
    bool openHelp() override { return false; }
};

const std::string kOnC = "/c/Users/Public/Documents/Winvrx/";
const std::string kOnD = "/d/Users/Public/Documents/Winvrx/";
const std::string kEarlier = "/c/Arquivos de programas/Winvrx/CartaPonto";

class MenuTest : public ::testing::Test {
  protected:
    TestWorkplace desk;
    TwoDrives drives;
    OnlyCopy instance;
    NoBrowser browser;

    Menu menu(std::string programFolder = "/opt/winvrx") {
        desk.session = Session{};
        return {desk.at, drives, instance, browser, std::move(programFolder)};
    }
    std::string contentOf(const std::string& path) {
        const auto found = desk.files.content.find(path);
        return found == desk.files.content.end() ? "(missing)" : found->second;
    }
};

TEST_F(MenuTest, SecondCopyEndsAndTouchesNothing) {
    instance.free = false;
    EXPECT_FALSE(menu().start());
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre("O Aplicativo Já está Aberto!"));
    EXPECT_THAT(desk.files.content, IsEmpty());
}

TEST_F(MenuTest, EmptyFolderYieldsTheSampleCompanyAndTheDriveLetter) {
    Menu started = menu();
    ASSERT_TRUE(started.start());
    EXPECT_EQ(contentOf(kOnC + "LocMen.lvc"), "C\r\n");
    ASSERT_EQ(started.companies().size(), 1U);
    EXPECT_EQ(started.companies()[0].record.name, "EMPRESA MODELO LTDA");
    EXPECT_EQ(contentOf(kOnC + "01Empresa").size(), 549U + 2U);
    EXPECT_THAT(desk.person.takeTexts(), IsEmpty());
}

TEST_F(MenuTest, DriveLetterIsReadBack) {
    struct Case {
        std::string memory;
        char expected;
        bool told;
    };
    for (const Case& one :
         {Case{"d\r\n", 'D', false}, Case{"D", 'D', false}, Case{"c\r\n", 'C', false},
          Case{"", 'C', false}, Case{"7\r\n", 'C', false}, Case{"DE\r\n", 'C', false},
          Case{"Q\r\n", 'C', true}}) {
        desk.files.content = {{kOnC + "LocMen.lvc", one.memory}};
        Menu started = menu();
        ASSERT_TRUE(started.start());
        EXPECT_EQ(desk.session.folder.driveLetter(), one.expected) << one.memory;
        EXPECT_EQ(desk.person.takeTexts().size(), one.told ? 1U : 0U) << one.memory;
        EXPECT_EQ(contentOf(kOnD + "01Empresa") != "(missing)", one.expected == 'D');
    }
}

TEST_F(MenuTest, ShareInUseOrNotFound) {
    desk.files.folders = {"//server/office"};
    Menu onShare = menu("\\\\server\\office");
    ASSERT_TRUE(onShare.start());
    EXPECT_EQ(desk.session.folder.path(), "//server/office/Winvrx/");
    EXPECT_TRUE(desk.files.content.contains("//server/office/Winvrx/01Empresa"));

    desk.files.content.clear();
    desk.files.folders.clear();
    Menu cutOff = menu("\\\\server\\office");
    ASSERT_TRUE(cutOff.start());
    EXPECT_EQ(desk.session.folder.path(), kOnC);
    ASSERT_EQ(desk.person.shown.size(), 1U);
    EXPECT_EQ(desk.person.shown[0].title, "Aviso Diretório de Rede");
    EXPECT_EQ(desk.person.shown[0].text, "Diretório de Rede Não Encontrado, ou Rede Desconectada!");
    EXPECT_EQ(desk.person.shown[0].icon, Icon::Critical);
}

TEST_F(MenuTest, SelectingClearsTheWorkMonthEvenTwice) {
    Menu started = menu();
    ASSERT_TRUE(started.start());
    for (int click = 0; click < 2; ++click) {
        desk.files.content[kOnC + "DataIde.ivc"] = "03-2024\r\nTodos\r\n";
        started.select(0);
        EXPECT_EQ(contentOf(kOnC + "DataIde.ivc"), "(missing)");
        EXPECT_EQ(desk.session.company->text(), "01");
    }
}

TEST_F(MenuTest, GuardsRunInOrder) {
    Menu started = menu();
    ASSERT_TRUE(started.start());
    for (const auto command : {MenuCommand::Companies, MenuCommand::Backup, MenuCommand::Help})
        EXPECT_TRUE(started.mayOpen(command));
    EXPECT_FALSE(started.mayOpen(MenuCommand::TimeCard));
    EXPECT_FALSE(started.mayOpen(MenuCommand::Employees));
    EXPECT_THAT(desk.person.takeTexts(),
                ElementsAre("Cadastre Primeiro Uma Empresa!!", "Cadastre Primeiro Uma Empresa!!"));
    started.select(0);
    EXPECT_TRUE(started.mayOpen(MenuCommand::Employees));
    EXPECT_TRUE(started.mayOpen(MenuCommand::WorkMonth));
    for (const auto command : {MenuCommand::TimeCard, MenuCommand::PrintCards,
                               MenuCommand::CardSheet, MenuCommand::Labels, MenuCommand::Payroll})
        EXPECT_FALSE(started.mayOpen(command));
    EXPECT_EQ(desk.person.shown.size(), 5U);
    EXPECT_EQ(desk.person.takeTexts()[0],
              "Não há Dados de Funcionários! Cadastre pelo menos um Funcionário.");
    desk.files.content[kOnC + "01CartaPonto"] = "001 ANA\r\n";
    EXPECT_TRUE(started.mayOpen(MenuCommand::TimeCard));
}

TEST_F(MenuTest, EarlierDataEveryBranch) {
    struct Case {
        std::deque<Answer> answers;
        bool imported;
        bool earlierKept;
    };
    const Answer yes = Answer::Yes, no = Answer::No, ok = Answer::Ok, cancel = Answer::Cancel;
    for (const Case& one : {Case{{yes, ok}, true, false}, Case{{yes, cancel}, false, true},
                            Case{{no, cancel}, false, true}, Case{{no, ok, cancel}, false, true},
                            Case{{no, ok, ok}, false, false}}) {
        desk.files.content = {{kEarlier, "001 JOSÉ\r\n\r\nqualquer\r\n"},
                              {kOnC + "01CartaPonto", "009 ANTES\r\n"}};
        Menu started = menu();
        ASSERT_TRUE(started.start());
        desk.person.answers = one.answers;
        started.offerEarlierData();
        EXPECT_THAT(desk.person.answers, IsEmpty());
        EXPECT_EQ(contentOf(kOnC + "01CartaPonto"),
                  one.imported ? "001 JOSÉ\r\n\r\nqualquer\r\n" : "009 ANTES\r\n");
        EXPECT_EQ(contentOf(kEarlier) != "(missing)", one.earlierKept);
        // What the import replaced is not lost.
        EXPECT_EQ(contentOf(kOnC + "bk-0115-03-2024-10-00.bkp"),
                  one.imported ? "009 ANTES\r\n" : "(missing)");
        for (const Message& message : desk.person.shown)
            EXPECT_EQ(message.title, "Dados de Funcionarios da Versão Anterior");
        desk.person.shown.clear();
    }
}

TEST_F(MenuTest, ExitLeavesNeitherLetterNorMonth) {
    desk.files.content[kOnC + "LocMen.lvc"] = "D\r\n";
    Menu started = menu();
    ASSERT_TRUE(started.start());
    desk.files.content[kOnD + "DataIde.ivc"] = "03-2024\r\n";
    started.exit();
    EXPECT_EQ(contentOf(kOnC + "LocMen.lvc"), "(missing)");
    EXPECT_EQ(contentOf(kOnD + "DataIde.ivc"), "(missing)");
    EXPECT_NE(contentOf(kOnD + "01Empresa"), "(missing)");
}

TEST_F(MenuTest, ADamagedDiskIsToldAndTheRunGoesOn) {
    desk.files.failOn = {"LocMen.lvc", "01Empresa"};
    Menu started = menu();
    EXPECT_TRUE(started.start());
    EXPECT_THAT(started.companies(), IsEmpty());
    EXPECT_EQ(desk.person.takeTexts().size(), 2U);
    EXPECT_EQ(desk.log.entries.size(), 2U);
}

}  // namespace
}  // namespace winvrx
