#include "output/tipo_ponto.h"

#include "tests/support/test_browser.h"
#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

#include <set>

namespace winvrx {
namespace {

using testing::TestBrowser;
using testing::TestWorkplace;

struct Desk : TestWorkplace {
    TestBrowser browser;
};

constexpr const char* kSetting = "/data/01CartaoDePontoTipo";

TEST(CardStock, LayoutFollowsStockTrayAndSet) {
    struct Case {
        const char* code;
        TrayPosition tray;
        LayoutSet set;
        std::optional<std::string> layout;
    };
    const auto central = TrayPosition::Central;
    const auto lateral = TrayPosition::Lateral;
    for (const Case& one : {
             Case{"01", central, LayoutSet::A, "tilibcenter.rpt"},
             Case{"06", lateral, LayoutSet::B, "Bmvixleft.rpt"},
             Case{"09", central, LayoutSet::A, "cartaopontoacenter.rpt"},
             Case{"09", lateral, LayoutSet::B, "CartaoPontoAleft.rpt"},
             Case{"10", lateral, LayoutSet::A, "disnibraleft.rpt"},
             Case{"10", central, LayoutSet::B, "DISNIBRAcenter.rpt"},
             Case{"17", central, LayoutSet::A, "tamoio_EXcenter.rpt"},
             Case{"17", lateral, LayoutSet::B, "tamoio_EXleft.rpt"},
             Case{"20", lateral, LayoutSet::A, "RHJleft.rpt"},
             Case{"08", central, LayoutSet::A, std::nullopt},
             Case{"14", central, LayoutSet::A, std::nullopt},
             Case{"15", central, LayoutSet::B, std::nullopt},
             Case{"18", central, LayoutSet::A, std::nullopt},
             Case{"99", central, LayoutSet::A, std::nullopt},
             Case{"", central, LayoutSet::A, std::nullopt},
         })
        EXPECT_EQ(layoutFor(one.code, one.tray, one.set), one.layout) << one.code;
}

TEST(CardStock, SetsDifferInTwoStocksOnly) {
    std::set<std::string> differing;
    for (const CardStock& stock : kCardStocks)
        if (layoutFor(stock.code, TrayPosition::Central, LayoutSet::A) !=
            layoutFor(stock.code, TrayPosition::Central, LayoutSet::B))
            differing.emplace(stock.code);
    EXPECT_EQ(differing, (std::set<std::string>{"09", "10"}));
}

TEST(TipoPonto, OffersWhatTheCardPrintKnows) {
    std::vector<std::string_view> codes;
    for (const CardStock* stock : TipoPonto::offered())
        codes.push_back(stock->code);
    EXPECT_EQ(codes, std::vector(kPrintOrder.begin(), kPrintOrder.end()));
}

TEST(TipoPonto, ChoosingWritesOneLineAndShowsTheName) {
    struct Case {
        const char* code;
        const char* line;
        const char* label;
    };
    for (const Case& one :
         {Case{"01", "01Tilibra\r\n", "Tilibra"},
          Case{"03", "03Dimep/Topdata\r\n", "Dimep/TopData"}, Case{"04", "04\r\n", "Real Ponto"},
          Case{"05", "05\r\n", "MADIS"}, Case{"06", "06 BMVIX - TRIX\r\n", " BMVIX - TRIX"},
          Case{"12", "12SDN\r\n", "SD-N"}}) {
        Desk desk;
        desk.file("01CartaoDePontoTipo") = "01Tilibra\r\nfurther line\r\n";
        TipoPonto screen(desk.at, desk.browser);
        screen.load();
        EXPECT_TRUE(screen.choose(*findStock(one.code)));
        EXPECT_EQ(screen.label(), one.label);
        EXPECT_EQ(desk.files.content.at(kSetting), one.line);

        TipoPonto reopened(desk.at, desk.browser);
        reopened.load();
        EXPECT_EQ(reopened.label(), one.label);
    }
}

TEST(TipoPonto, UnknownOrMissingCodeLeavesTheLabelEmpty) {
    for (const char* content : {"", "\r\n", "77Outro\r\n", "Tilibra\r\n", " 1Tilibra\r\n"}) {
        Desk desk;
        desk.file("01CartaoDePontoTipo") = content;
        TipoPonto screen(desk.at, desk.browser);
        screen.load();
        EXPECT_EQ(screen.label(), "") << content;
    }
    Desk desk;
    TipoPonto screen(desk.at, desk.browser);
    screen.load();
    EXPECT_EQ(screen.label(), "");
    EXPECT_TRUE(desk.person.shown.empty());
}

TEST(TipoPonto, AChoiceMadeElsewhereMeanwhileStands) {
    Desk desk;
    desk.file("01CartaoDePontoTipo") = "05\r\n";
    TipoPonto screen(desk.at, desk.browser);
    screen.load();
    desk.file("01CartaoDePontoTipo") = "12SDN\r\n";
    EXPECT_FALSE(screen.choose(*findStock("01")));
    EXPECT_EQ(desk.files.content.at(kSetting), "12SDN\r\n");
    ASSERT_EQ(desk.person.shown.size(), 1U);
    EXPECT_EQ(desk.person.shown[0].detail,
              "O tipo de cartão foi alterado por outro computador. Abra a tela novamente.");
}

TEST(TipoPonto, FailedChoiceIsToldAndTheFormerOneStands) {
    Desk desk;
    desk.file("01CartaoDePontoTipo") = "05\r\n";
    TipoPonto screen(desk.at, desk.browser);
    screen.load();
    desk.files.failOn.insert("01CartaoDePontoTipo");
    EXPECT_FALSE(screen.choose(*findStock("01")));
    EXPECT_EQ(screen.label(), "MADIS");
    EXPECT_EQ(desk.person.takeTexts(), (std::vector<std::string>{"Dados incorretos!"}));
    EXPECT_EQ(desk.files.content.at(kSetting), "05\r\n");
}

TEST(TipoPonto, AStoredStockNamesNoLayoutOutside) {
    for (const char* line : {"../../x", "/e", "..", "01/../x", "1 ", "\xB2\xB3", "\t1", "0"}) {
        Desk desk;
        desk.file("01CartaoDePontoTipo") = line;
        const CardStock* stock = loadStock(desk.files, desk.session);
        const bool known = std::string_view(line).starts_with("01");
        EXPECT_EQ(stock != nullptr, known) << line;
        EXPECT_EQ(layoutFor(line, TrayPosition::Central, LayoutSet::A), std::nullopt) << line;
    }
}

}  // namespace
}  // namespace winvrx
