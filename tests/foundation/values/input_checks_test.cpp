#include "foundation/values/input_checks.h"

#include "foundation/values/tax_id.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

struct IdCase {
    const char* typed;
    IdCheck expected;
};

TEST(TaxId, CnpjInBothForms) {
    for (const IdCase& c : {IdCase{"", IdCheck::Empty},
                            {"../-", IdCheck::Empty},
                            {"11.222.333/0001-81", IdCheck::Valid},
                            {"11222333000181", IdCheck::Valid},
                            {"11 222 333 0001 81", IdCheck::Valid},
                            {"11.222.333/0001-8", IdCheck::TooShort},
                            {"11.222.333/0001-80", IdCheck::Wrong},
                            {"11.222.333/0001-91", IdCheck::Wrong},
                            {"12.ABC.345/01DE-35", IdCheck::Valid},
                            {"12abc34501de35", IdCheck::Valid},
                            {"12.ABC.345/01DE-53", IdCheck::Wrong},
                            {"12.ABC.345/01DE-3X", IdCheck::Wrong},
                            {"12.ÇBC.3", IdCheck::Wrong},
                            {"112223330001810", IdCheck::Wrong},
                            {"00000000000000", IdCheck::Wrong}})
        EXPECT_EQ(checkCnpj(c.typed), c.expected) << c.typed;
}

TEST(TaxId, Cpf) {
    for (const IdCase& c : {IdCase{"529.982.247-25", IdCheck::Valid},
                            {"52998224725", IdCheck::Valid},
                            {"529.982.247-2", IdCheck::TooShort},
                            {"529.982.247-52", IdCheck::Wrong},
                            {"529.982.247-24", IdCheck::Wrong},
                            {"111.111.111-11", IdCheck::Wrong},
                            {"529A", IdCheck::Wrong},
                            {"529982247250", IdCheck::Wrong}})
        EXPECT_EQ(checkCpf(c.typed), c.expected) << c.typed;
}

TEST(TaxId, Pis) {
    for (const IdCase& c : {IdCase{"170.33259.50-4", IdCheck::Valid},
                            {"17033259504", IdCheck::Valid},
                            {"170.33259.50-5", IdCheck::Wrong},
                            {"170.3325", IdCheck::TooShort}})
        EXPECT_EQ(checkPis(c.typed), c.expected) << c.typed;
}

TEST(TaxId, OneFieldForEither) {
    for (const IdCase& c : {IdCase{"52998224725", IdCheck::Valid},
                            {"529.982.247-25", IdCheck::Valid},
                            {"529.982.247-24", IdCheck::Wrong},
                            {"11222333000", IdCheck::TooShort},
                            {"11.222.333/0001-81", IdCheck::Valid},
                            {"11.222.333/0001-82", IdCheck::Wrong},
                            {"11.222.333/0001-8", IdCheck::TooShort}})
        EXPECT_EQ(checkCnpjOrCpf(c.typed), c.expected) << c.typed;
}

TEST(InputChecks, DatesFromTheKeypadAreCompleted) {
    struct Case {
        const char* typed;
        const char* completed;
    };
    for (const Case& c : {Case{"12032024", "12/03/2024"},
                          {"1/3/2024", "01/03/2024"},
                          {"12-03-2024", "12/03/2024"},
                          {"29.2.2024", "29/02/2024"},
                          {"12/03/2024", "12/03/2024"},
                          {"31022024", "31022024"},
                          {"1/3/24", "1/3/24"},
                          {"120324", "120324"},
                          {"1/2/3/2024", "1/2/3/2024"},
                          {"//2024", "//2024"},
                          {"", ""},
                          {"ontem", "ontem"}})
        EXPECT_EQ(completedDate(c.typed), c.completed) << c.typed;
}

TEST(InputChecks, YearsOfTwoDigitsLieInThePast) {
    const Date today = *parseDate("15/03/2024");
    struct Case {
        const char* typed;
        const char* birth;
        const char* contract;
    };
    for (const Case& c : {Case{"15/3/80", "15/03/1980", "15/03/1980"},
                          {"15.3.1980", "15/03/1980", "15/03/1980"},
                          {"150380", "15/03/1980", "15/03/1980"},
                          {"15/3/24", "15/03/2024", "15/03/2024"},
                          {"16/3/24", "16/03/1924", "16/03/2024"},
                          {"15/3/25", "15/03/1925", "15/03/2025"},
                          {"16/3/25", "16/03/1925", "16/03/1925"},
                          {"29/2/00", "29/02/2000", "29/02/2000"},
                          {"310280", "310280", "310280"}}) {
        EXPECT_EQ(completedPastDate(c.typed, today), c.birth) << c.typed;
        EXPECT_EQ(completedContractDate(c.typed, today), c.contract) << c.typed;
    }
}

TEST(InputChecks, HintsSayNothingTooEarly) {
    struct Case {
        const char* typed;
        const char* typing;
        const char* left;
    };
    const auto none = "Esta data não existe no calendário.";
    const auto form = "Digite a data como dd/mm/aaaa.";
    for (const Case& c : {Case{"", "", ""},
                          {"12/03/2024", "", ""},
                          {"12032024", "", ""},
                          {"12/0", "", form},
                          {"31/02/2024", none, none},
                          {"31022024", "", none},
                          {"12/03/24", "", ""},
                          {"31/02/24", "", none},
                          {"ontem", form, form}}) {
        EXPECT_EQ(dateHint(c.typed, Entry::Typing).text, c.typing) << c.typed;
        EXPECT_EQ(dateHint(c.typed, Entry::Left).text, c.left) << c.typed;
    }
    EXPECT_EQ(cpfHint("529982247", Entry::Typing), Hint{});
    EXPECT_EQ(cpfHint("529982247", Entry::Left).text, "CPF incompleto.");
    EXPECT_EQ(cpfHint("52998224725", Entry::Typing).tone, Hint::Tone::Good);
}

TEST(InputChecks, TextsThatNoRecordHoldsAreNamed) {
    EXPECT_EQ(textHint("JOSÉ – “aspas” €"), Hint{});
    for (const char* text : {"Ana 😀", "duas\nlinhas", "tab\t", "日本"})
        EXPECT_EQ(textHint(text).tone, Hint::Tone::Warning) << text;
}

TEST(InputChecks, NumbersAreBroughtIntoTheirForm) {
    struct Case {
        std::string (*completed)(std::string_view);
        const char* typed;
        const char* text;
    };
    for (const Case& c : {Case{completedCpf, "52998224725", "529.982.247-25"},
                          {completedCpf, "529.982.247-25", "529.982.247-25"},
                          {completedCpf, "5299822472", "5299822472"},
                          {completedCpf, "529982247ab", "529982247ab"},
                          {punctuatedCpf, "5299", "529.9"},
                          {punctuatedCpf, "529982247251", "529982247251"},
                          {punctuatedCnpjOrCpf, "11222333000", "112.223.330-00"},
                          {punctuatedCnpjOrCpf, "112.223.330-001", "11.222.333/0001"},
                          {punctuatedCnpjOrCpf, "12abc345", "12.ABC.345"},
                          {punctuatedCnpjOrCpf, "ISENTO", "ISENTO"},
                          {punctuatedCnpj, "123.456.789/0001-99", "123.456.789/0001-99"},
                          {completedPostalCode, "12080700", "12080-700"},
                          {completedPostalCode, "1208070", "1208070"},
                          {completedMoney, "1850", "R$ 1.850,00"},
                          {completedMoney, "R$1.234.567,8", "R$ 1.234.567,80"},
                          {completedMoney, "0,05", "R$ 0,05"},
                          {completedMoney, "1.85", "1.85"},
                          {completedMoney, "-3", "-3"},
                          {completedMoney, "1,234", "1,234"},
                          {completedMoney, ".123", ".123"},
                          {completedMoney, "9999999999999", "9999999999999"},
                          {completedMoney, "", ""}})
        EXPECT_EQ(c.completed(c.typed), c.text) << c.typed;
}

TEST(InputChecks, AnOccupationHasSixDigits) {
    EXPECT_EQ(occupationHint("521110", Entry::Left), Hint{});
    EXPECT_EQ(occupationHint("5211-10", Entry::Left), Hint{});
    EXPECT_EQ(occupationHint("5211", Entry::Typing), Hint{});
    EXPECT_EQ(occupationHint("5211", Entry::Left).text, "O CBO tem seis algarismos.");
    EXPECT_EQ(occupationHint("52a", Entry::Typing).text, "O CBO tem seis algarismos.");
}

}  // namespace
}  // namespace winvrx
