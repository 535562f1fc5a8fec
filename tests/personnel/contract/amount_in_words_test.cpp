#include "personnel/contract/amount_in_words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {
namespace {

/// Reads words as a clerk does: adds them up, and multiplies by a thousand at "Mil,". Knows nothing
/// of how they were made. -1 for what nobody would read.
class WordReader {
  public:
    [[nodiscard]] int read(std::string_view words) {
        int done = 0;
        int group = 0;
        bool joins = false;  // behind an " e "
        int last = kNone;
        while (!words.empty()) {
            const std::size_t end = std::min(words.find(' '), words.size());
            const std::string_view word = words.substr(0, end);
            words.remove_prefix(std::min(end + 1, words.size()));
            if (word == "e") {
                if (joins || last == kNone) return -1;
                joins = true;
                continue;
            }
            if (word == "Mil,") {
                if (done > 0 || joins) return -1;
                done = 1000 * (last == kNone ? 1 : group);
                group = 0;
                last = kNone;
                continue;
            }
            const auto found = values_.find(word);
            if (found == values_.end() || joins != (last != kNone)) return -1;
            // Each word of a group is of a lower place than the one before, and "Cem" is alone.
            if (last != kNone && (placeOf(found->second) >= placeOf(last) || last == kOneHundred ||
                                  (last > 9 && last < 20)))
                return -1;
            last = word == "Cem" ? kOneHundred : found->second;
            group += found->second;
            joins = false;
        }
        return joins ? -1 : done + group;
    }

  private:
    static constexpr int kNone = 0;
    static constexpr int kOneHundred = -100;
    static int placeOf(int value) {
        return value == kOneHundred || value > 99 ? 3 : value > 19 ? 2 : 1;
    }

    std::map<std::string, int, std::less<>> values_ = {
        {"Um", 1},           {"Dois", 2},         {"Três", 3},         {"Quatro", 4},
        {"Cinco", 5},        {"Seis", 6},         {"Sete", 7},         {"Oito", 8},
        {"Nove", 9},         {"Dez", 10},         {"Onze", 11},        {"Doze", 12},
        {"Treze", 13},       {"Quatorze", 14},    {"Quinze", 15},      {"Dezesseis", 16},
        {"Dezessete", 17},   {"Dezoito", 18},     {"Dezenove", 19},    {"Vinte", 20},
        {"Trinta", 30},      {"Quarenta", 40},    {"Cinquenta", 50},   {"Sessenta", 60},
        {"Setenta", 70},     {"Oitenta", 80},     {"Noventa", 90},     {"Cem", 100},
        {"Cento", 100},      {"Duzentos", 200},   {"Trezentos", 300},  {"Quatrocentos", 400},
        {"Quinhentos", 500}, {"Seiscentos", 600}, {"Setecentos", 700}, {"Oitocentos", 800},
        {"Novecentos", 900}};
};

TEST(AmountInWords, WritesWhatTheRuleSays) {
    struct Case {
        std::int64_t cents;
        const char* words;
        const char* prose;
    };
    for (const Case& c :
         {Case{0, " Reais ", "Zero Reais"},
          {1, " Reais  e Um Centavos", "Um Centavo"},
          {50, " Reais  e Cinquenta Centavos", "Cinquenta Centavos"},
          {100, "Um Reais ", "Um Real"},
          {2'121, "Vinte e Um Reais  e Vinte e Um Centavos",
           "Vinte e Um Reais e Vinte e Um Centavos"},
          {10'000, "Cem Reais ", "Cem Reais"},
          {10'100, "Cento e Um Reais ", "Cento e Um Reais"},
          {12'000, "Cento e Vinte Reais ", "Cento e Vinte Reais"},
          {99'900, "Novecentos e Noventa e Nove Reais ", "Novecentos e Noventa e Nove Reais"},
          {100'000, "Mil,  Reais ", "Mil Reais"},
          {110'000, "Mil, Cem Reais ", "Mil, Cem Reais"},
          {123'456, "Mil, Duzentos e Trinta e Quatro Reais  e Cinquenta e Seis Centavos",
           "Mil, Duzentos e Trinta e Quatro Reais e Cinquenta e Seis Centavos"},
          {1'500'000, "Quinze Mil,  Reais ", "Quinze Mil Reais"},
          {9'999'999,
           "Noventa e Nove Mil, Novecentos e Noventa e Nove Reais  e Noventa e "
           "Nove Centavos",
           "Noventa e Nove Mil, Novecentos e Noventa e Nove Reais e Noventa e "
           "Nove Centavos"}}) {
        EXPECT_EQ(amountInWords({c.cents}), c.words) << c.cents;
        EXPECT_EQ(amountInProse({c.cents}), c.prose) << c.cents;
    }
    EXPECT_EQ(parseAmountForWords("R$ 1.850,5"), Money{185'050});
    EXPECT_EQ(parseAmountForWords("99.999,99"), kGreatestInWords);
    for (const char* typed : {"100.000,00", "", "mil", "-1,00", "1,2,3"})
        EXPECT_FALSE(parseAmountForWords(typed)) << typed;
}

/// What is read of the cents is read once: behind any reais they are the same words.
TEST(AmountInWords, EveryAmountIsReadBack) {
    static constexpr std::string_view kBetween = " Reais ";
    WordReader reader;
    std::vector<std::string> cents(100);
    for (int count = 1; count < 100; ++count) {
        std::string words = amountInWords({count}).substr(kBetween.size());
        ASSERT_TRUE(words.starts_with(" e ") && words.ends_with(" Centavos")) << words;
        ASSERT_EQ(reader.read(std::string_view(words).substr(3, words.size() - 12)), count);
        cents[static_cast<std::size_t>(count)] = std::move(words);
    }
    for (std::int64_t reais = 0; reais < 100'000; ++reais) {
        const std::string whole = amountInWords({100 * reais});
        ASSERT_TRUE(whole.ends_with(kBetween)) << whole;
        const auto number = std::string_view(whole).substr(0, whole.size() - kBetween.size());
        ASSERT_EQ(reader.read(number), reais) << whole;
        for (std::size_t count = 1; count < cents.size(); ++count) {
            const Money amount{100 * reais + static_cast<std::int64_t>(count)};
            const std::string words = amountInWords(amount);
            if (words.size() != whole.size() + cents[count].size() || !words.starts_with(whole) ||
                !words.ends_with(cents[count]))
                FAIL() << amount.cents << ": " << words;
        }
    }
}

}  // namespace
}  // namespace winvrx
