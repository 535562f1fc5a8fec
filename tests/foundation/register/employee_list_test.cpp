#include "foundation/register/employee_list.h"

#include "tests/support/memory_files.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

Employee employee(const char* code, const char* name, const char* shift, const char* scale) {
    Employee one;
    one.code = code;
    one.name = name;
    one.shift = shift;
    one.scale = scale;
    return one;
}

TEST(EmployeeList, ShowsThoseOfShiftScaleAndSearch) {
    Employee ana = employee("001", "ANA", "Unico", "Norma");
    ana.taxId = "529.982.247-25";
    Employee jose = employee("002", "JOSÉ", "DOIS", "5x1");
    jose.function = "Açougueiro";
    EmployeeList list(ShiftFilter::Todos);
    list.fill({lineOf(ana), lineOf(jose), lineOf(employee("003", "RUI", "?", "12x36")),
               lineOf(employee("X", "EVA", "Unico", "Norma"))},
              {{*EmployeeCode::parse("001"), {.inactiveSince = parseDate("10/02/2024")}}});
    struct Case {
        ShiftFilter shift;
        std::optional<Scale> scale;
        const char* search;
        const char* codes;
    };
    for (const Case& c : {Case{ShiftFilter::Todos, std::nullopt, "", "001 002 003 "},
                          Case{ShiftFilter::Unico, std::nullopt, "", "001 003 "},
                          Case{ShiftFilter::Um, std::nullopt, "", ""},
                          Case{ShiftFilter::Unico, Scale::TwelveByThirtySix, "", "003 "},
                          Case{ShiftFilter::Todos, Scale::Normal, "", "001 "},
                          Case{ShiftFilter::Todos, std::nullopt, "jose", "002 "},
                          Case{ShiftFilter::Todos, std::nullopt, "acougueiro 002", "002 "},
                          Case{ShiftFilter::Todos, std::nullopt, "52998224725", "001 "},
                          Case{ShiftFilter::Todos, std::nullopt, "inativo", "001 "},
                          Case{ShiftFilter::Dois, std::nullopt, "ana", ""}}) {
        list.filterBy(c.shift);
        list.filterBy(c.scale);
        list.searchFor(c.search);
        std::string codes;
        for (const std::size_t position : list.shown())
            codes += list.employees()[position].code + " ";
        EXPECT_EQ(codes, c.codes) << codeOf(c.shift) << " " << c.search;
    }
}

TEST(EmployeeList, TheOneSelectedStaysByHisCodeAsLongAsTheListHasHim) {
    const auto ana = lineOf(employee("001", "ANA", "Unico", "Normal"));
    const auto rui = lineOf(employee("003", "RUI", "Dois", "Normal"));
    EmployeeList list(ShiftFilter::Todos);
    EXPECT_EQ(list.selected(), nullptr);
    list.fill({ana, rui});
    list.select(1);
    list.filterBy(ShiftFilter::Dois);
    EXPECT_EQ(list.selectedPosition(), 0U);
    list.fill({lineOf(employee("002", "EVA", "Dois", "Normal")), rui});
    ASSERT_EQ(list.selectedPosition(), 1U);
    EXPECT_EQ(list.selected()->code, "003");
    list.filterBy(ShiftFilter::Unico);
    list.filterBy(ShiftFilter::Todos);
    EXPECT_EQ(list.selected(), nullptr);
}

TEST(EmployeeMarks, AreThoseOfTheCompanyAndNoOneFileHidesTheOthers) {
    testing::MemoryFiles files;
    files.content["/data/01configAf001"] = "**** 10/02/2024\r\n";
    files.content["/data/01configAf002"] = "**** \r\n";
    files.content["/data/01configAf003"] = "**** 10/02/2024\r\n";
    files.content["/data/02configAf002"] = "**** 10/02/2024\r\n";
    files.content["/data/01configAfx"] = "**** 10/02/2024\r\n";
    files.failOn = {"01configAf003"};
    const Store store{files, DataFolder('C', "/data")};
    const auto marks = EmployeeList::leaveMarks(store, CompanyCode::parse("01").value(),
                                                namesIn(store), std::nullopt);
    EXPECT_EQ(marks.size(), 3U);
    std::string activities;
    for (const char* code : {"001", "002", "003", "004"})
        activities.append(activityOf({}, EmployeeList::marksOf(marks, *EmployeeCode::parse(code))))
            .append(" ");
    EXPECT_EQ(activities, "Inativo Ativo Ilegível Ativo ");
}

}  // namespace
}  // namespace winvrx
