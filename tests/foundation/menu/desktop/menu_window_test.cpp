#include "foundation/menu/desktop/menu_window.h"

#include "foundation/files/desktop/system_drives.h"
#include "foundation/menu/desktop/command_tile.h"
#include "tests/support/memory_settings.h"
#include "tests/support/test_workplace.h"
#include "tests/support/window_driver.h"

#include <QListWidget>
#include <QPushButton>
#include <QScreen>

#include <gmock/gmock.h>

#include <stdexcept>

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
    mutable int confirmed = 0;
    [[nodiscard]] bool confirmOffered() const override { return ++confirmed > 0; }
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

    MenuEntries entries() {
        const auto opens = [this](const char* name) {
            return [this, name](QWidget*) { opened_.emplace_back(name); };
        };
        const QString group = QStringLiteral("Cadastros");
        return {{.group = group,
                 .tile = {"employees", QStringLiteral("&Funcionários"), "menu.employees.open",
                          Qt::Key_F3},
                 .needs = MenuNeeds::Company,
                 .open = opens("employees"),
                 .state = [](const MonthProgress* progress) -> QString {
                     if (!progress) throw std::runtime_error("no progress");
                     return QString::number(progress->employees);
                 }},
                {.group = group,
                 .tile = {"card", QStringLiteral("&Dados"), "menu.timecard.open", Qt::Key_F5},
                 .needs = MenuNeeds::Employees,
                 .open = opens("card")},
                {.group = group,
                 .tile = {"leave", QStringLiteral("Afastamentos"), "menu.leaves.open"}}};
    }

    std::optional<MonthProgress> progress() {
        ++progressAsked_;
        if (!desk_.session.company) return std::nullopt;
        MonthProgress progress;
        progress.employees = 12;
        return progress;
    }

    testing::TestWorkplace desk_;
    FolderDrives drives_{"/c"};
    OnlyCopy instance_;
    NoticesOf calendar_;
    testing::MemorySettings settings_;
    Menu menu_{desk_.at, drives_, instance_, settings_, "/opt/winvrx"};
    std::vector<std::string> opened_;
    int progressAsked_ = 0;
    MenuWindow window_{menu_, desk_.at, calendar_, entries(),
                       [this](std::optional<WorkMonth>) { return progress(); }};
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

TEST_F(MenuWindowTest, EnterOnTheCompanyInUseConfirmsTheMonthOffered) {
    settings_.kept["empresa"] = "01";
    calendar_.answer.offered = *parseMonthKey("02-2024");
    ASSERT_TRUE(window_.start());
    const WindowDriver driver(window_);
    const auto& offer = driver.find<QPushButton>("menu.confirmMonth");
    EXPECT_EQ(offer.text().toStdString(), "Confirmar fevereiro/2024 ↵");
    EXPECT_EQ(driver.focusName(), "menu.search");
    driver.press(Qt::Key_Return);
    EXPECT_EQ(calendar_.confirmed, 1);
    driver.find<QListWidget>("menu.companies").setFocus();
    driver.press(Qt::Key_Enter);
    EXPECT_EQ(calendar_.confirmed, 2);
    driver.type("menu.search", "pao mel");
    driver.press(Qt::Key_Return);
    EXPECT_EQ(desk_.session.company->text(), "02");
    EXPECT_EQ(calendar_.confirmed, 2);
    calendar_.answer.offered.reset();
    window_.refresh();
    EXPECT_FALSE(offer.isVisible());
    driver.press(Qt::Key_Return);
    EXPECT_EQ(calendar_.confirmed, 2);
}

/// The highlight says which company the next command works on, whatever the arrows look at.
TEST_F(MenuWindowTest, TheHighlightIsAlwaysTheCompanyInUse) {
    ASSERT_TRUE(window_.start());
    const WindowDriver driver(window_);
    auto& list = driver.find<QListWidget>("menu.companies");
    const auto highlighted = [&list] {
        std::string texts;
        for (const QListWidgetItem* item : list.selectedItems())
            texts += item->text().left(2).toStdString();
        return texts;
    };
    EXPECT_EQ(highlighted(), "");
    menu_.select(0);
    window_.refresh();
    EXPECT_EQ(highlighted(), "01");
    list.setFocus();
    driver.press(Qt::Key_Down);
    EXPECT_EQ(list.currentRow(), 1);
    driver.type("menu.search", "pao mel");
    EXPECT_EQ(highlighted(), "01");
    EXPECT_EQ(desk_.session.company->text(), "01");
    desk_.files.content[kFolder + "DataIde.ivc"] = "03-2024\r\n";
    desk_.files.failOn = {"DataIde.ivc"};
    driver.press(Qt::Key_Return);
    EXPECT_EQ(highlighted(), "01");
    desk_.files.failOn.clear();
    driver.press(Qt::Key_Return);
    EXPECT_EQ(highlighted(), "02");
    EXPECT_EQ(desk_.session.company->text(), "02");
}

TEST_F(MenuWindowTest, SaysThatItLoadsBeforeItReads) {
    std::string seen;
    desk_.files.content[kFolder + "LocMen.lvc"] = "Q";  // a drive that is missing is told
    desk_.person.onAsk = [&] {
        EXPECT_TRUE(window_.isVisible());
        seen = WindowDriver(window_).find<QLabel>("menu.today").text().toStdString();
    };
    ASSERT_TRUE(window_.start());
    EXPECT_EQ(seen, "15/03/2024 · Aguarde...");
}

TEST_F(MenuWindowTest, AsksForTheProgressOnceARefreshAndLeavesOutWhatFails) {
    ASSERT_TRUE(window_.start());
    const WindowDriver driver(window_);
    const auto state = [&driver] {
        return driver.find<CommandTile>("menu.employees.open").accessibleDescription();
    };
    EXPECT_EQ(state(), QString());
    menu_.select(1);
    progressAsked_ = 0;
    window_.refresh();
    EXPECT_EQ(progressAsked_, 1);
    EXPECT_EQ(state(), QStringLiteral("12"));
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

TEST_F(MenuWindowTest, ASmallScreenScrollsAndCutsNoTitle) {
    ASSERT_TRUE(window_.start());
    EXPECT_EQ(window_.size(), window_.size().boundedTo(window_.screen()->availableSize()));
    for (const QSize size : {QSize(1240, 690), QSize(1024, 640), QSize(800, 480)}) {
        window_.resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(window_.size(), size);
        for (const auto* tile : window_.findChildren<CommandTile*>())
            EXPECT_GE(tile->width(), tile->sizeHint().width()) << size.width();
        for (const auto* label : window_.findChildren<QLabel*>()) {
            const int needed = label->buddy() ? label->sizeHint().width() : 0;
            EXPECT_GE(label->width(), needed) << label->text().toStdString();
        }
    }
}

}  // namespace
}  // namespace winvrx
