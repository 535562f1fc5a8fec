#include "output/cards/pdf_name.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace winvrx {
namespace {

const PdfNaming kMarch{"CARTÃO PONTO", "03-2024"};

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
