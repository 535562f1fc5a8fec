#include "foundation/menu/menu.h"

#include "foundation/register/employee_register.h"
#include "tests/support/memory_settings.h"
#include "tests/support/test_workplace.h"

#include <gmock/gmock.h>

#include <functional>

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

const std::string kOnC = "/c/Users/Public/Documents/Winvrx/";
const std::string kOnD = "/d/Users/Public/Documents/Winvrx/";
const std::string kEarlier = "/c/Arquivos de programas/Winvrx/CartaPonto";

class MenuTest : public ::testing::Test {
  protected:
    TestWorkplace desk;
    TwoDrives drives;
    OnlyCopy instance;
    testing::MemorySettings settings;

    Menu menu(std::string programFolder = "/opt/winvrx") {
        desk.session = Session{};
        return {desk.at, drives, instance, settings, std::move(programFolder)};
    }
    std::string contentOf(const std::string& path) {
        const auto found = desk.files.content.find(path);
        return found == desk.files.content.end() ? "(missing)" : found->second;
    }
};

TEST_F(MenuTest, SecondCopyEndsAndTouchesNothing) {
    instance.free = false;
    EXPECT_FALSE(menu().claimRun());
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre("O Aplicativo Já está Aberto!"));
    EXPECT_THAT(desk.files.content, IsEmpty());
}

TEST_F(MenuTest, EmptyFolderYieldsTheSampleCompanyAndTheDriveLetter) {
    Menu started = menu();
    started.load();
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
        started.load();
        EXPECT_EQ(desk.session.folder.driveLetter(), one.expected) << one.memory;
        EXPECT_EQ(desk.person.takeTexts().size(), one.told ? 1U : 0U) << one.memory;
        EXPECT_EQ(contentOf(kOnD + "01Empresa") != "(missing)", one.expected == 'D');
    }
}

TEST_F(MenuTest, DataOfANewerProgramIsTold) {
    desk.files.content = {{kOnC + "VersaoDados", "99.0.0\r\n"}};
    menu().load();
    const auto told = desk.person.takeTexts();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_THAT(told[0], ::testing::HasSubstr("versão mais nova do programa, a 99.0.0."));
    EXPECT_EQ(contentOf(kOnC + "VersaoDados"), "99.0.0\r\n");
}

TEST_F(MenuTest, ShareInUseOrNotFound) {
    desk.files.folders = {"//server/office"};
    Menu onShare = menu("\\\\server\\office");
    onShare.load();
    EXPECT_EQ(desk.session.folder.path(), "//server/office/Winvrx/");
    EXPECT_TRUE(desk.files.content.contains("//server/office/Winvrx/01Empresa"));

    desk.files.content.clear();
    desk.files.folders.clear();
    // Also told once only when the letter on record leads on to another drive.
    desk.files.content[kOnC + "LocMen.lvc"] = "D\r\n";
    Menu cutOff = menu("\\\\server\\office");
    cutOff.load();
    EXPECT_EQ(desk.session.folder.path(), kOnD);
    ASSERT_EQ(desk.person.shown.size(), 1U);
    EXPECT_EQ(desk.person.shown[0].title, "Aviso Diretório de Rede");
    EXPECT_EQ(desk.person.shown[0].text, "Diretório de Rede Não Encontrado, ou Rede Desconectada!");
    EXPECT_EQ(desk.person.shown[0].icon, Icon::Critical);
}

TEST_F(MenuTest, SelectingClearsTheWorkMonthEvenTwice) {
    Menu started = menu();
    started.load();
    for (int click = 0; click < 2; ++click) {
        desk.files.content[kOnC + "DataIde.ivc"] = "03-2024\r\nTodos\r\n";
        started.select(0);
        EXPECT_EQ(contentOf(kOnC + "DataIde.ivc"), "(missing)");
        EXPECT_EQ(desk.session.company->text(), "01");
    }
}

/// In two companies and a line that is not understood; in one, it is selected whatever was kept.
TEST_F(MenuTest, TheCompanyAndTheMonthUsedLastComeBack) {
    const auto lineOf = [](const char* code) {
        Company company;
        company.code = code;
        return encode(company) + "\r\n";
    };
    const std::string two = lineOf("??") + lineOf("01") + lineOf("02");
    struct Case {
        std::string companies;
        const char* company;
        const char* month;
        const char* selected;
    };
    for (const Case& one :
         {Case{two, "02", "02-2024", "02"}, Case{two, "03", "junk", ""}, Case{two, "", "", ""},
          Case{lineOf("??") + lineOf("07"), "02", "", "07"}}) {
        desk.files.content[kOnC + "01Empresa"] = one.companies;
        desk.files.content[kOnC + "DataIde.ivc"] = "03-2024\r\n";
        settings.kept = {{"empresa", one.company}, {"mes", one.month}};
        Menu started = menu();
        started.load();
        started.selectAsBefore();
        const auto& company = desk.session.company;
        EXPECT_EQ(company ? company->text() : "", one.selected);
        EXPECT_EQ(contentOf(kOnC + "DataIde.ivc"), company ? "(missing)" : "03-2024\r\n");
        EXPECT_EQ(desk.session.lastMonth, parseMonthKey(one.month));
        started.select(1);
        desk.session.lastMonth = parseMonthKey("12-2023");
        started.exit();
        EXPECT_EQ(settings.value("empresa"), one.companies == two ? "01" : "07");
        EXPECT_EQ(settings.value("mes"), "12-2023");
    }
}

TEST_F(MenuTest, GuardsRunInOrder) {
    Menu started = menu();
    started.load();
    EXPECT_TRUE(started.require(MenuNeeds::Nothing));
    EXPECT_FALSE(started.require(MenuNeeds::Employees));
    EXPECT_FALSE(started.require(MenuNeeds::Company));
    EXPECT_THAT(desk.person.takeTexts(),
                ElementsAre("Cadastre Primeiro Uma Empresa!!", "Cadastre Primeiro Uma Empresa!!"));
    started.select(0);
    EXPECT_TRUE(started.require(MenuNeeds::Company));
    EXPECT_FALSE(started.require(MenuNeeds::Employees));
    EXPECT_THAT(desk.person.takeTexts(),
                ElementsAre("Não há Dados de Funcionários! Cadastre pelo menos um Funcionário."));
    desk.files.content[kOnC + "01CartaPonto"] = "001 ANA\r\n";
    EXPECT_TRUE(started.require(MenuNeeds::Employees));
}

/// What fails on the way leaves drive and company as they were.
TEST_F(MenuTest, AFailedSelectionOrMoveChangesNothing) {
    struct Case {
        const char* failing;
        std::function<void(Menu&)> command;
    };
    for (const Case& one : {Case{"DataIde.ivc", [](Menu& menu) { menu.select(1); }},
                            Case{"LocMen.lvc", [](Menu& menu) { menu.useDrive('D'); }},
                            Case{"", [](Menu& menu) { menu.useDrive('Q'); }}}) {
        desk.files.content = {{kOnC + "01Empresa", "01 UM\r\n02 DOIS\r\n"}};
        Menu started = menu();
        started.load();
        started.select(0);
        desk.files.content[kOnC + "DataIde.ivc"] = "03-2024\r\n";
        desk.files.failOn = {one.failing};
        one.command(started);
        desk.files.failOn.clear();
        EXPECT_EQ(desk.session.company->text(), "01") << one.failing;
        EXPECT_EQ(desk.session.folder.path(), kOnC) << one.failing;
        EXPECT_EQ(contentOf(kOnC + "DataIde.ivc"), "03-2024\r\n") << one.failing;
        EXPECT_EQ(desk.person.takeTexts().size(), 1U) << one.failing;
    }
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
        started.load();
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

/// A list that was taken over and could not be deleted is not asked about again, nor does it ever
/// replace what was typed since. An older one is asked about only when the newer was not taken.
TEST_F(MenuTest, EarlierDataIsDealtWithOnce) {
    const std::string second = "/c/Program Files/Winvrx/CartaPonto";
    const std::size_t asksToImport = 2;
    const std::size_t asksToDiscard = 3;
    struct Case {
        std::deque<Answer> answers;
        bool stuck;  ///< the lists cannot be deleted
        std::size_t told;
        std::size_t toldNextTime;  ///< of the older list, which is there yet: nothing is taken
    };
    const Answer yes = Answer::Yes, no = Answer::No, ok = Answer::Ok;
    for (const Case& one :
         {Case{{yes, ok}, false, asksToImport, 2}, Case{{yes, ok}, true, asksToImport + 1, 2},
          Case{{no, ok, ok, yes, ok}, false, asksToDiscard + asksToImport, 0},
          Case{{no, ok, ok, no, ok, ok}, true, 2 * (asksToDiscard + 1), 0}}) {
        SCOPED_TRACE(::testing::PrintToString(one.answers));
        desk.files.content = {{kEarlier, "001 JOSÉ\r\n"}, {second, "002 ANA\r\n"}};
        Menu started = menu();
        started.load();
        desk.person.answers = one.answers;
        if (one.stuck) desk.files.failRemovesOn = {"CartaPonto"};
        started.offerEarlierData();
        EXPECT_EQ(desk.person.takeTexts().size(), one.told);
        desk.files.content[kOnC + "01CartaPonto"] = "009 DEPOIS\r\n";
        Menu next = menu();
        next.load();
        next.offerEarlierData();
        EXPECT_EQ(desk.person.takeTexts().size(), one.toldNextTime);
        EXPECT_EQ(contentOf(kOnC + "01CartaPonto"), "009 DEPOIS\r\n");
        EXPECT_EQ(contentOf(kOnC + "BaseAnterior") != "(missing)", one.stuck);
        desk.files.failRemovesOn.clear();
    }
}

/// Whoever may not write on the local disk still works on the share.
TEST_F(MenuTest, AShareNeedsNoRightsToTheLocalFolder) {
    desk.files.folders = {"//server/office"};
    desk.files.failOn = {"LocMen.lvc"};
    Menu onShare = menu("\\\\server\\office");
    onShare.load();
    EXPECT_EQ(desk.session.folder.path(), "//server/office/Winvrx/");
    EXPECT_EQ(onShare.companies().size(), 1U);
    EXPECT_THAT(desk.person.takeTexts(), IsEmpty());
}

TEST_F(MenuTest, ExitLeavesTheFilesOfTheRunInNoFolderItUsed) {
    desk.files.content[kOnC + "LocMen.lvc"] = "D\r\n";
    Menu started = menu();
    started.load();
    for (const std::string& folder : {kOnC, kOnD}) {
        desk.files.content[folder + "DataIde.ivc"] = "03-2024\r\n";
        desk.files.content[folder + "LocMen.lvc"] = "D\r\n";
    }
    started.useDrive('C');
    started.exit();
    for (const std::string& folder : {kOnC, kOnD}) {
        EXPECT_EQ(contentOf(folder + "LocMen.lvc"), "(missing)");
        EXPECT_EQ(contentOf(folder + "DataIde.ivc"), "(missing)");
        EXPECT_NE(contentOf(folder + "01Empresa"), "(missing)");
    }
}

TEST_F(MenuTest, ADamagedDiskIsToldAndTheRunGoesOn) {
    desk.files.failOn = {"LocMen.lvc", "01Empresa"};
    Menu started = menu();
    started.load();
    EXPECT_THAT(started.companies(), IsEmpty());
    EXPECT_EQ(desk.person.takeTexts().size(), 2U);
    EXPECT_EQ(desk.log.entries.size(), 2U);
}

}  // namespace
}  // namespace winvrx
