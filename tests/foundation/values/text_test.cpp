#include "foundation/values/text.h"

#include "foundation/values/faults.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

TEST(Windows1252, EveryByteComesBack) {
    for (int value = 0; value < 256; ++value) {
        const std::string byte(1, static_cast<char>(value));
        const std::string utf8 = decodeWindows1252(byte);
        EXPECT_EQ(characterCount(utf8), 1U) << value;
        const bool control = value < 0x20 || value == 0x7F || value == 0x81 || value == 0x8D ||
                             value == 0x8F || value == 0x90 || value == 0x9D;
        if (control)
            EXPECT_THROW((void)encodeWindows1252(utf8), TextFault) << value;
        else
            EXPECT_EQ(encodeWindows1252(utf8), byte) << value;
    }
}

TEST(Windows1252, RefusesWhatItCannotHold) {
    for (const char* text : {"Ana 😀", "linha\nnova", "tab\tulador", "日本", "\xFF", "cut \xC3"})
        EXPECT_THROW((void)encodeWindows1252(text), TextFault) << text;
}

TEST(Text, WidthsCountCharacters) {
    EXPECT_EQ(fitted("CAÇADOR", 9), "CAÇADOR  ");
    EXPECT_EQ(fitted("CAÇADOR", 3), "CAÇ");
    EXPECT_EQ(firstCharacters("ção", 2), "çã");
    EXPECT_EQ(padded(7, 3), "007");
    EXPECT_EQ(padded(1234, 3), "1234");
}

TEST(Text, SearchIgnoresAccentsAndCase) {
    EXPECT_EQ(foldedForSearch("JOSÉ Conceição"), "jose conceicao");
    EXPECT_TRUE(matchesSearch("001 José da Conceição", "conceicao JOSE"));
    EXPECT_FALSE(matchesSearch("001 José da Conceição", "josé maria"));
    EXPECT_EQ(upperCase("março às 8"), "MARÇO ÀS 8");
}

TEST(Text, CountsAndListsAreWorded) {
    EXPECT_EQ(countOf(0, "dia"), "0 dias");
    EXPECT_EQ(countOf(1, "mês", "meses"), "1 mês");
    EXPECT_EQ(countOf(std::size_t{12}, "mês", "meses"), "12 meses");
    EXPECT_EQ(joined({"", "Taubaté", "", "SP", ""}, "/"), "Taubaté/SP");
    EXPECT_EQ(joined(std::vector<std::string>(), ", "), "");
    EXPECT_EQ(joined(std::vector{7, 40}, "; ", [](int number) { return padded(number, 2); }),
              "07; 40");
}

TEST(Text, AnyBytesCanBeShown) {
    EXPECT_EQ(readableText("  x\xE3\t\x01\x81\x7F\x80 "), "xã····€");
    EXPECT_EQ(readableText(std::string("a\0b", 3)), "a·b");
    EXPECT_EQ(readableText(std::string(90, 'n')), std::string(80, 'n') + "…");
    EXPECT_EQ(readableText("   "), "");
}

}  // namespace
}  // namespace winvrx
