#include "output/stocks/desktop/tipo_ponto_window.h"

#include "output/stocks/desktop/card_pictures.h"
#include "output/stocks/tipo_ponto.h"
#include "report/desktop/qt_report_engine.h"
#include "tests/support/test_workplace.h"
#include "tests/support/window_driver.h"

#include <QAbstractButton>
#include <QFile>
#include <QRadioButton>
#include <QScrollArea>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::RecordedLog;
using testing::TestWorkplace;
using testing::WindowDriver;

/// A user's folder of layouts before the shipped ones.
struct LayoutPlaces {
    QTemporaryDir user;

    [[nodiscard]] std::vector<std::filesystem::path> folders() const {
        return layoutFolders(user.path().toStdString(),
                             QCoreApplication::applicationDirPath().toStdString());
    }

    void write(const char* name, const QByteArray& bytes) const {
        const auto folder = folders().front();
        std::filesystem::create_directories(folder);
        QFile file(folder / name);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            throw std::runtime_error("no layout");
    }
};

class TipoPontoWindowTest : public ::testing::Test {
  protected:
    [[nodiscard]] std::string stored() { return desk_.file("01CartaoDePontoTipo"); }

    static QAbstractButton& option(const WindowDriver& driver, const char* code) {
        return driver.find<QAbstractButton>((std::string("tipoPonto.stocks.") + code).c_str());
    }

    TestWorkplace desk_;
    LayoutPlaces places_;
    CardPictures pictures_{[this] { return places_.folders(); }, desk_.log};
    TipoPonto stocks_{desk_.at};
};

TEST_F(TipoPontoWindowTest, IsChosenByMouseByArrowAndByCode) {
    desk_.file("01CartaoDePontoTipo") = "01Tilibra\r\n";
    TipoPontoWindow window(stocks_, pictures_);
    const WindowDriver driver(window);
    const auto shown = [&] { return driver.find<QLabel>("tipoPonto.current").text(); };
    EXPECT_EQ(shown(), QStringLiteral("Tilibra"));
    EXPECT_EQ(driver.focusName(), "tipoPonto.stocks.01");
    struct Case {
        std::function<void()> act;
        const char* shown;
        const char* stored;
    };
    const Case cases[] = {
        {[&] { QTest::mouseClick(&option(driver, "12"), Qt::LeftButton); }, "SD-N", "12SDN\r\n"},
        {[&] { driver.press(Qt::Key_Right); }, "DATAPRINT", "13DATAPRINT\r\n"},
        {[&] { driver.press(Qt::Key_Up); }, "Real Ponto", "04\r\n"},
        {[&] { driver.typeHere("06"); }, " BMVIX - TRIX", "06 BMVIX - TRIX\r\n"},
        {[&] { driver.typeHere("2"); }, " BMVIX - TRIX", "06 BMVIX - TRIX\r\n"},
        {[&] { driver.typeHere("0"); }, "RHJ", "20RHJ\r\n"},
    };
    for (const Case& one : cases) {
        one.act();
        EXPECT_EQ(shown(), QString::fromUtf8(one.shown));
        EXPECT_EQ(stored(), one.stored);
    }
    EXPECT_EQ(driver.focusName(), "tipoPonto.stocks.20");
    driver.typeHere("14");
    EXPECT_EQ(stored(), "20RHJ\r\n");
    EXPECT_EQ(driver.state(), "⚠ Nenhum cartão tem o código 14.");
    driver.press(Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(TipoPontoWindowTest, AChoiceThatCannotBeStoredIsTakenBack) {
    desk_.file("01CartaoDePontoTipo") = "13DATAPRINT\r\n";
    TipoPontoWindow window(stocks_, pictures_);
    const WindowDriver driver(window);
    desk_.files.failOn.insert("01CartaoDePontoTipo");
    option(driver, "01").click();
    EXPECT_EQ(driver.find<QLabel>("tipoPonto.current").text(), QStringLiteral("DATAPRINT"));
    EXPECT_TRUE(option(driver, "13").isChecked());
    EXPECT_FALSE(option(driver, "01").isChecked());
}

TEST_F(TipoPontoWindowTest, WhatIsNotOfferedLeavesNoOptionChosen) {
    for (const char* line : {"", "14Etiqueta\r\n", "77\r\n"}) {
        desk_.file("01CartaoDePontoTipo") = line;
        TipoPontoWindow window(stocks_, pictures_);
        const QString said =
            window.findChild<QLabel*>(QStringLiteral("tipoPonto.description"))->text();
        EXPECT_EQ(said.contains(QStringLiteral("não é um cartão de ponto")), *line != '\0');
        int options = 0;
        for (const auto* option : window.findChildren<QRadioButton*>()) {
            ++options;
            EXPECT_FALSE(option->isChecked()) << option->objectName().toStdString();
        }
        EXPECT_EQ(options, 16);
    }
}

TEST_F(TipoPontoWindowTest, AllCardsAreInSightAndTheChosenOneOnASmallScreen) {
    desk_.file("01CartaoDePontoTipo") = "20RHJ\r\n";
    struct Case {
        QSize size;
        bool all;
    };
    for (const Case& one : {Case{{1240, 690}, true}, Case{{640, 330}, false}}) {
        TipoPontoWindow window(stocks_, pictures_);
        window.resize(one.size);
        const WindowDriver driver(window);
        EXPECT_EQ(driver.namelessWidgets(), "");
        EXPECT_LE(window.minimumSizeHint().width(), 640);
        EXPECT_LE(window.minimumSizeHint().height(), 330);
        const auto* sight = driver.find<QScrollArea>("tipoPonto.stocks").viewport();
        for (const auto* option : window.findChildren<QRadioButton*>()) {
            if (!one.all && !option->isChecked()) continue;
            const QRect area(option->mapTo(sight, QPoint()), option->size());
            EXPECT_TRUE(sight->rect().contains(area)) << option->objectName().toStdString();
        }
    }
}

TEST_F(TipoPontoWindowTest, ADamagedLayoutIsToldAndTheOthersAreShown) {
    for (const char* damaged : {"madiscenter.rpt", "madisleft.rpt"}) {
        const LayoutPlaces places;
        places.write(damaged, "<svg>");
        desk_.log.entries.clear();
        desk_.file("01CartaoDePontoTipo") = "05\r\n";
        CardPictures pictures([&places] { return places.folders(); }, desk_.log);
        TipoPontoWindow window(stocks_, pictures);
        const WindowDriver driver(window);
        EXPECT_THAT(driver.find<QLabel>("tipoPonto.description").text().toStdString(),
                    HasSubstr(std::string(damaged) + " tem um erro na linha 1: width="));
        EXPECT_FALSE(driver.find("tipoPonto.central").isVisible());
        EXPECT_THAT(desk_.log.entries, ElementsAre(HasSubstr(std::string(damaged) + ":1: ")));
        driver.typeHere("12");
        EXPECT_EQ(driver.find<QLabel>("tipoPonto.description").text(),
                  QStringLiteral("Cartão de 82 x 178 mm, as quinzenas lado a lado."));
        EXPECT_TRUE(driver.find("tipoPonto.central").isVisible());
    }
}

/// Each stock looks like no other, and the two tray positions do.
TEST_F(TipoPontoWindowTest, PicturesTellTheCardsApart) {
    constexpr CardPictures::Scale scale{0.5, 1};
    std::vector<QImage> seen;
    for (const CardStock* stock : TipoPonto::offered()) {
        for (const QPixmap& picture :
             {pictures_.card(*stock, scale), pictures_.sheet(*stock, TrayPosition::Central, scale),
              pictures_.sheet(*stock, TrayPosition::Lateral, scale)}) {
            ASSERT_FALSE(picture.isNull()) << stock->code;
            seen.push_back(picture.toImage());
        }
    }
    for (std::size_t i = 0; i < seen.size(); ++i)
        for (std::size_t j = i + 1; j < seen.size(); ++j)
            EXPECT_NE(seen[i], seen[j]) << i << " " << j;
}

TEST_F(TipoPontoWindowTest, APictureIsKeptUntilItsLayoutChanges) {
    constexpr CardPictures::Scale scale{0.5, 1};
    const CardStock& stock = *findStock("01");
    const QPixmap shipped = pictures_.card(stock, scale);
    CardPictures later([this] { return places_.folders(); }, desk_.log);
    EXPECT_EQ(later.card(stock, scale).cacheKey(), shipped.cacheKey());
    places_.write("tilibcenter.rpt",
                  R"(<svg width="100mm" height="50mm" viewBox="0 0 100 50" data-pitch="4">
                     <g data-block="stock"><rect x="0" y="0" width="40" height="20" fill="red"/></g>
                     </svg>)");
    CardPictures afterwards([this] { return places_.folders(); }, desk_.log);
    const QImage own = afterwards.card(stock, scale).toImage();
    EXPECT_EQ(own.size(), QSize(20, 10));
    EXPECT_EQ(own.pixelColor(10, 5), QColor(Qt::red));
}

}  // namespace
}  // namespace winvrx
