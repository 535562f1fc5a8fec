#include "output/cards/card_sides.h"

#include "report/pdf_name.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace winvrx {
namespace {

constexpr WorkMonth kMarch = std::chrono::year(2024) / 3;

/// Prints both sides of a stack the way the instructions have it, and looks at the cards then.
TEST(CardSides, TheSecondSideMeetsTheStackAsItLies) {
    using Order = std::vector<std::size_t>;
    for (const CardOutput output : {CardOutput::FaceDown, CardOutput::FaceUp}) {
        // Bottom first: each card comes to lie on the one before.
        Order stack = printOrder(5, CardSide::First, output);
        EXPECT_EQ(stack, (Order{0, 1, 2, 3, 4}));
        const bool turned = stackInstruction(output, 5).starts_with("Vire");
        EXPECT_EQ(turned, output == CardOutput::FaceUp);
        if (turned) std::ranges::reverse(stack);
        // The tray takes the card on top.
        std::ranges::reverse(stack);
        EXPECT_EQ(stack, printOrder(5, CardSide::Second, output));
    }
    EXPECT_EQ(stackInstruction(CardOutput::FaceDown, 1),
              "Vire o cartão e ponha-o de volta na bandeja.");
}

TEST(PdfName, LeadsNowhereElse) {
    struct Case {
        const char* name;
        const char* file;
    };
    for (const Case& one : {Case{"JOSÉ DA SILVA", "CARTÃO PONTO 001 JOSÉ DA SILVA 03-2024.pdf"},
                            Case{"../../etc/x", "CARTÃO PONTO 001 ..-..-etc-x 03-2024.pdf"},
                            Case{"C:\\A*?\"<>|", "CARTÃO PONTO 001 C--A------ 03-2024.pdf"},
                            Case{"A\nB\x7f", "CARTÃO PONTO 001 A-B- 03-2024.pdf"},
                            Case{"", "CARTÃO PONTO 001 03-2024.pdf"}}) {
        Employee employee;
        employee.code = "001";
        employee.name = one.name;
        EXPECT_EQ(pdfNameOf(employee, kMarch), one.file);
        const std::filesystem::path path = std::filesystem::path("/home") / one.file;
        EXPECT_EQ(path.lexically_normal().parent_path(), "/home") << one.name;
    }
    EXPECT_LT(pdfNameOf(std::string(500, 'x'), kMarch).size(), 200U);
}

}  // namespace
}  // namespace winvrx
