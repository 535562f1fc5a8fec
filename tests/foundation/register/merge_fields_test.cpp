#include "foundation/register/merge_fields.h"

#include <gtest/gtest.h>

#include <vector>

namespace winvrx {
namespace {

MergeWords wordsOf(const Employee& employee) {
    Company company;
    company.name = "PADARIA {nome}";
    company.city = "Vitória";
    MergeWords words = mergeWords(company, employee);
    putMonth(words, *parseMonthKey("02-2024"));
    return words;
}

TEST(MergeWords, FillTextsOnce) {
    Employee employee;
    employee.name = "JOSÉ";
    employee.city = "Serra";
    struct Case {
        const char* text;
        const char* filled;
    };
    for (const Case& one :
         {Case{"", ""}, Case{"sem palavras }", "sem palavras }"}, Case{"{nome}", "JOSÉ"},
          Case{"a {nome}{rg}, {nome} b", "a JOSÉ, JOSÉ b"}, Case{"{razao}", "PADARIA {nome}"},
          Case{"{cidade_empresa}/{cidade}", "Vitória/Serra"},
          Case{"{mes}: {periodo}", "fevereiro/2024: 01/02/2024 a 29/02/2024"}})
        EXPECT_EQ(wordsOf(employee).filled(one.text), one.filled) << one.text;
}

TEST(MergeWords, AnUnknownWordIsNamed) {
    for (const auto& [text, named] :
         std::vector<std::pair<const char*, const char*>>{{"{nome} {nomes} x", "\"nomes\""},
                                                          {"a {}", "\"\""},
                                                          {"{NOME}", "\"NOME\""},
                                                          {"a {nome", "\"{nome\""}}) {
        try {
            FAIL() << wordsOf({}).filled(text);
        } catch (const UnknownWord& unknown) {
            EXPECT_NE(unknown.explanation().find(named), std::string::npos) << text;
        }
    }
}

TEST(MergeWords, WeeklyRestIsWrittenOut) {
    for (const auto& [stored, shown] :
         std::vector<std::pair<const char*, const char*>>{{"", "domingo"},
                                                          {"dom", "domingo"},
                                                          {"seg", "segunda-feira"},
                                                          {"SÁB", "sábado"},
                                                          {"sab", "sábado"},
                                                          {"???", "domingo"}}) {
        Employee employee;
        employee.restDay = stored;
        EXPECT_EQ(wordsOf(employee).at("descanso"), shown) << stored;
    }
}

}  // namespace
}  // namespace winvrx
