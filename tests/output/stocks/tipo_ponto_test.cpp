#include "output/stocks/tipo_ponto.h"

#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace winvrx {
namespace {

using testing::TestWorkplace;

struct Desk : TestWorkplace {};

constexpr const char* kSetting = "/data/01CartaoDePontoTipo";

struct KnownStock {
    const char* code;
    const char* shown;
    const char* line;
    const char* stemA;
    const char* stemB;
};

/// What the cards have been known by since the first of them.
constexpr KnownStock kKnownCards[] = {
    {"01", "Tilibra", "01Tilibra", "tilib", "tilib"},
    {"02", "SD", "02SD", "sd", "sd"},
    {"03", "Dimep/TopData", "03Dimep/Topdata", "dimep", "dimep"},
    {"04", "Real Ponto", "04", "realponto", "realponto"},
    {"05", "MADIS", "05", "madis", "madis"},
    {"06", " BMVIX - TRIX", "06 BMVIX - TRIX", "Bmvix", "Bmvix"},
    {"07", "Tamoio", "07Tamoio", "tamoio", "tamoio"},
    {"09", "CartaoPontoA", "09CartaoPontoA", "cartaopontoa", "CartaoPontoA"},
    {"10", "DISNIBRA", "10DISNIBRA", "disnibra", "DISNIBRA"},
    {"11", "DIPONTO", "11DIPONTO", "DIPONTO", "DIPONTO"},
    {"12", "SD-N", "12SDN", "SDN", "SDN"},
    {"13", "DATAPRINT", "13DATAPRINT", "dataprint", "dataprint"},
    {"16", "CARTAO-CEU", "16CARTAO-CEU", "cartaoceu", "cartaoceu"},
    {"17", "SAO DOM", "17SAO DOM", "tamoio_EX", "tamoio_EX"},
    {"19", "ORTEP", "19ORTEP", "ORTEP", "ORTEP"},
    {"20", "RHJ", "20RHJ", "RHJ", "RHJ"},
};

TEST(CardStock, EachHasItsThreeNamesAndFourLayouts) {
    const auto central = TrayPosition::Central;
    const auto lateral = TrayPosition::Lateral;
    for (const KnownStock& known : kKnownCards) {
        SCOPED_TRACE(known.code);
        const CardStock* stock = findStock(known.code);
        ASSERT_NE(stock, nullptr);
        EXPECT_TRUE(stock->offered);
        EXPECT_EQ(stock->displayName, known.shown);
        EXPECT_EQ(settingLineOf(*stock), known.line);
        const std::string a = known.stemA;
        const std::string b = known.stemB;
        EXPECT_EQ(layoutFor(known.code, central, LayoutSet::A), a + "center.rpt");
        EXPECT_EQ(layoutFor(known.code, lateral, LayoutSet::A), a + "left.rpt");
        EXPECT_EQ(layoutFor(known.code, central, LayoutSet::B), b + "center.rpt");
        EXPECT_EQ(layoutFor(known.code, lateral, LayoutSet::B), b + "left.rpt");
    }
}

TEST(CardStock, IsSearchedInThisOrder) {
    EXPECT_TRUE(std::ranges::equal(kPrintOrder, kKnownCards, {}, {}, &KnownStock::code));
}

TEST(CardStock, WhatIsNoTimeCardHasANameOnly) {
    for (const auto& [code, name] : {std::pair{"08", "Lados"}, std::pair{"14", "Etiqueta"},
                                     std::pair{"15", "Espelho"}, std::pair{"18", "LadosPonto"}}) {
        ASSERT_NE(findStock(code), nullptr) << code;
        EXPECT_FALSE(findStock(code)->offered) << code;
        EXPECT_EQ(findStock(code)->displayName, name);
        for (const LayoutSet set : {LayoutSet::A, LayoutSet::B})
            EXPECT_EQ(layoutFor(code, TrayPosition::Central, set), std::nullopt) << code;
    }
    for (const char* code : {"", "0", "1", "21", "99", "01 ", "tilib"}) {
        EXPECT_EQ(findStock(code), nullptr) << code;
        EXPECT_EQ(layoutFor(code, TrayPosition::Lateral, LayoutSet::B), std::nullopt) << code;
    }
}

TEST(TipoPonto, OffersWhatTheCardPrintKnows) {
    std::vector<std::string_view> codes;
    for (const CardStock* stock : TipoPonto::offered())
        codes.push_back(stock->code);
    EXPECT_EQ(codes, std::vector(kPrintOrder.begin(), kPrintOrder.end()));
}

TEST(TipoPonto, ChoosingWritesOneLineAndShowsTheName) {
    for (const KnownStock& known : kKnownCards) {
        Desk desk;
        desk.file("01CartaoDePontoTipo") = "01Tilibra\r\nfurther line\r\n";
        TipoPonto screen(desk.at);
        screen.load();
        EXPECT_TRUE(screen.choose(*findStock(known.code)));
        EXPECT_EQ(screen.label(), known.shown);
        EXPECT_EQ(desk.files.content.at(kSetting), std::string(known.line) + "\r\n");

        TipoPonto reopened(desk.at);
        reopened.load();
        EXPECT_EQ(reopened.label(), known.shown);
    }
}

TEST(TipoPonto, UnknownOrMissingCodeLeavesTheLabelEmpty) {
    for (const char* content : {"", "\r\n", "77Outro\r\n", "Tilibra\r\n", " 1Tilibra\r\n"}) {
        Desk desk;
        desk.file("01CartaoDePontoTipo") = content;
        TipoPonto screen(desk.at);
        screen.load();
        EXPECT_EQ(screen.label(), "") << content;
    }
    Desk desk;
    TipoPonto screen(desk.at);
    screen.load();
    EXPECT_EQ(screen.label(), "");
    EXPECT_TRUE(desk.person.shown.empty());
}

TEST(TipoPonto, AChoiceMadeElsewhereMeanwhileStands) {
    Desk desk;
    desk.file("01CartaoDePontoTipo") = "05\r\n";
    TipoPonto screen(desk.at);
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
    TipoPonto screen(desk.at);
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
        const CardStock* stock = loadStock(desk.store(), *desk.session.company);
        const bool known = std::string_view(line).starts_with("01");
        EXPECT_EQ(stock != nullptr, known) << line;
        EXPECT_EQ(layoutFor(line, TrayPosition::Central, LayoutSet::A), std::nullopt) << line;
    }
}

}  // namespace
}  // namespace winvrx
