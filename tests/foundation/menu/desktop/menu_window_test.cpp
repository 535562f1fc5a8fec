#include "foundation/menu/desktop/menu_window.h"

#include "foundation/files/desktop/system_drives.h"
#include "foundation/menu/desktop/command_tile.h"
#include "tests/support/test_browser.h"
#include "tests/support/test_workplace.h"
#include "tests/support/window_driver.h"

#include <QListWidget>

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::WindowDriver;

struct OnlyCopy final : SingleInstance {
    bool claim() override { return true; }
};

class NoticesOf final : public MonthCalendar {
  public:
    MonthOverview answer;
    [[nodiscard]] MonthOverview overview(Date) const override { return answer; }
};

const std::string kFolder = "/c/Users/Public/Documents/Winvrx/";

class MenuWindowTest : public ::testing::Test {
  protected:
    MenuWindowTest() {
        desk_.session = Session{};
        calendar_.answer.month = monthOf(desk_.clock.today());
        std::string lines;
        for (const auto& [code, name] :
             {std::pair("01", "EMPRESA MODELO LTDA"), std::pair("02", "PADARIA PÃO DE MEL"),
              std::pair("??", "LINHA ESTRANHA")}) {
            Company company;
            company.code = code;
            company.name = name;
            lines += encode(company) + "\r\n";
        }
        desk_.files.content[kFolder + "01Empresa"] = lines;
    }

    std::vector<MenuEntry> entries() {
        const auto opens = [this](const char* name) {
            return [this, name](QWidget*) { opened_.emplace_back(name); };
        };
        const QString group = QStringLiteral("Cadastros");
        return {
            {MenuCommand::Employees, group, QStringLiteral("menu.employees.open"),
             QStringLiteral("employees"), QStringLiteral("&Funcionários"), Qt::Key_F3,
             opens("employees"), nullptr},
            {MenuCommand::TimeCard, group, QStringLiteral("menu.timecard.open"),
             QStringLiteral("card"), QStringLiteral("&Dados"), Qt::Key_F5, opens("card"), nullptr},
            {MenuCommand::Leaves,
             group,
             QStringLiteral("menu.leaves.open"),
             QStringLiteral("leave"),
             QStringLiteral("Afastamentos"),
             {},
             nullptr,
             nullptr}};
    }

    testing::TestWorkplace desk_;
    FolderDrives drives_{"/c"};
    OnlyCopy instance_;
    testing::TestBrowser browser_;
    NoticesOf calendar_;
    Menu menu_{desk_.at, drives_, instance_, browser_, "/opt/winvrx"};
    std::vector<std::string> opened_;
    MenuWindow window_{menu_, desk_.at, calendar_, entries(), [] { return std::nullopt; }};
};

TEST_F(MenuWindowTest, SearchAndEnterSelectACompany) {
    ASSERT_TRUE(window_.start());
    const WindowDriver driver(window_);
    desk_.files.content[kFolder + "DataIde.ivc"] = "03-2024\r\nTodos\r\n";
    driver.type("menu.search", "pao mel");
    driver.press(Qt::Key_Return);
    ASSERT_TRUE(desk_.session.company);
    EXPECT_EQ(desk_.session.company->text(), "02");
    EXPECT_FALSE(desk_.files.content.contains(kFolder + "DataIde.ivc"));
    EXPECT_EQ(driver.find<QLabel>("menu.company").text().toStdString(), "02  PADARIA PÃO DE MEL");
}

TEST_F(MenuWindowTest, ALineWithoutACodeIsShownButCannotBeSelected) {
    ASSERT_TRUE(window_.start());
    const WindowDriver driver(window_);
    auto& list = driver.find<QListWidget>("menu.companies");
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.item(2)->flags(), Qt::NoItemFlags);
    EXPECT_FALSE(list.item(2)->toolTip().isEmpty());
}

TEST_F(MenuWindowTest, CommandsRunTheirGuardsAndUnbuiltOnesAreDisabled) {
    ASSERT_TRUE(window_.start());
    const WindowDriver driver(window_);
    EXPECT_FALSE(driver.find<CommandTile>("menu.leaves.open").isEnabled());
    driver.press(Qt::Key_F3);
    EXPECT_THAT(desk_.person.takeTexts(), ElementsAre("Cadastre Primeiro Uma Empresa!!"));
    EXPECT_THAT(opened_, IsEmpty());
    menu_.select(1);
    driver.press(Qt::Key_F5);
    EXPECT_THAT(desk_.person.takeTexts(),
                ElementsAre("Não há Dados de Funcionários! Cadastre pelo menos um Funcionário."));
    driver.press(Qt::Key_F3);
    desk_.files.content[kFolder + "02CartaPonto"] = "001 ANA\r\n";
    QTest::mouseClick(&driver.find<CommandTile>("menu.timecard.open"), Qt::LeftButton);
    EXPECT_THAT(opened_, ElementsAre("employees", "card"));
}

TEST_F(MenuWindowTest, NoticesAndCountsFollowTheMonth) {
    ASSERT_TRUE(window_.start());
    const WindowDriver driver(window_);
    EXPECT_TRUE(driver.find<QLabel>("menu.notices").text().isEmpty());
    calendar_.answer.businessDays = 25;
    calendar_.answer.restDays = 6;
    window_.refresh();
    EXPECT_EQ(driver.find<QLabel>("menu.counts").text().toStdString(),
              "Dias úteis 25 · DSR 6 (sugestão)");
    calendar_.answer.recorded = true;
    calendar_.answer.notices = {"Hoje é o TERCEIRO Dia Últil do Mes"};
    window_.refresh();
    EXPECT_EQ(driver.find<QLabel>("menu.counts").text().toStdString(), "Dias úteis 25 · DSR 6");
    EXPECT_EQ(driver.find<QLabel>("menu.notices").text().toStdString(),
              "Hoje é o TERCEIRO Dia Últil do Mes");
}

TEST_F(MenuWindowTest, OffersTheShiftsAndClosesCleanly) {
    ASSERT_TRUE(window_.start());
    const WindowDriver driver(window_);
    auto& shift = driver.find<QComboBox>("menu.shift");
    QStringList offered;
    for (int i = 0; i < shift.count(); ++i)
        offered.append(shift.itemText(i));
    EXPECT_EQ(offered.join(u' ').toStdString(), "Unico Dois Tres Todos");
    EXPECT_EQ(desk_.session.shiftFilter, ShiftFilter::Todos);
    shift.setCurrentText(QStringLiteral("Dois"));
    EXPECT_EQ(desk_.session.shiftFilter, ShiftFilter::Dois);
    EXPECT_TRUE(desk_.files.content.contains(kFolder + "LocMen.lvc"));
    window_.close();
    EXPECT_FALSE(desk_.files.content.contains(kFolder + "LocMen.lvc"));
}

}  // namespace
}  // namespace winvrx
