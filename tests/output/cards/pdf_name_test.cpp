#include "output/cards/card_run.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace winvrx {
namespace {

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
        EXPECT_EQ(pdfNameOf("CARTÃO PONTO", std::string("001 ") + one.name, "03-2024"), one.file);
        const std::filesystem::path path = std::filesystem::path("/home") / one.file;
        EXPECT_EQ(path.lexically_normal().parent_path(), "/home") << one.name;
    }
    EXPECT_LT(pdfNameOf("CARTÃO PONTO", std::string(500, 'x'), "03-2024").size(), 200U);
}

}  // namespace
}  // namespace winvrx
