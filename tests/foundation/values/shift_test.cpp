#include "foundation/values/shift.h"

#include "foundation/values/text.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

TEST(Shift, StoredCodesComeBack) {
    for (const Shift shift : kShifts) {
        EXPECT_EQ(parseShift(codeOf(shift)), shift) << codeOf(shift);
        EXPECT_EQ(parseShift(upperCase(codeOf(shift))), shift) << codeOf(shift);
        EXPECT_EQ(codeOf(parseShiftFilter(codeOf(shift)).value()), codeOf(shift));
    }
    for (const Scale scale : kScales) {
        EXPECT_EQ(parseScale(codeOf(scale)), scale) << codeOf(scale);
        EXPECT_EQ(parseScale(codeOf(scale).substr(0, 5)), scale) << codeOf(scale);
    }
    for (const char* text : {"", "unico", "Três", "Todos", "Normal"})
        EXPECT_FALSE(parseShift(text)) << text;
    for (const char* text : {"", "Norm", "5X1 ", "12x"})
        EXPECT_FALSE(parseScale(text)) << text;
}

TEST(Shift, ListTextsAreAlignedAsTheSystemShowsThem) {
    EXPECT_EQ(listTextOf(Shift::Um), "Um     -> Manhã      ");
    EXPECT_EQ(listTextOf(Shift::Tres), "Três   -> Noite      ");
    for (const Shift shift : kShifts)
        EXPECT_EQ(characterCount(listTextOf(shift)), 21U) << codeOf(shift);
    EXPECT_EQ(listTextOf(Scale::TwelveByThirtySix), "12x36 -> Turnos 1 e 3");
}

TEST(Shift, FiltersPassTheirShift) {
    for (const Shift shift : kShifts) {
        EXPECT_TRUE(passes(ShiftFilter::Todos, shift));
        EXPECT_EQ(passes(ShiftFilter::Dois, shift), shift == Shift::Dois) << codeOf(shift);
    }
}

}  // namespace
}  // namespace winvrx
