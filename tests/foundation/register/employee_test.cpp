#include "foundation/register/employee_register.h"

#include "foundation/files/file_faults.h"
#include "tests/support/memory_files.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace winvrx {
namespace {

using testing::MemoryFiles;

const DataFolder kFolder('C', "/data");
const CompanyCode kCompany = *CompanyCode::parse("01");

Clock::Moment at(const char* date, const char* time) {
    return {*parseDate(date), *parseTime(time)};
}

EmployeeLine lineOf(const char* code, const char* shift = "Unico") {
    Employee employee;
    employee.code = code;
    employee.shift = shift;
    return {encode(employee), employee};
}

TEST(Employee, EveryFieldStandsAtItsColumn) {
    // Starting positions that other readers of the file rely upon.
    const std::vector<std::size_t> starts = {1,   5,   36,  57,  64,  67,  133, 153,
                                             169, 183, 188, 194, 200, 215, 263, 288,
                                             299, 310, 321, 624, 672, 677, 682, 690};
    for (const std::size_t start : starts)
        EXPECT_TRUE(std::any_of(kEmployeeFields.begin(), kEmployeeFields.end(),
                                [&](const EmployeeField& f) { return f.column.start == start; }))
            << start;

    for (const EmployeeField& field : kEmployeeFields) {
        Employee employee;
        employee.*field.member = std::string(400, 'x');
        const std::string line = encode(employee);
        EXPECT_EQ(line.find('x') + 1, field.column.start) << field.caption;
        EXPECT_EQ(static_cast<std::size_t>(std::count(line.begin(), line.end(), 'x')),
                  field.column.width)
            << field.caption;
        EXPECT_EQ((decode<Employee>(line).*field.member).size(), field.column.width)
            << field.caption;
    }
}

TEST(Employee, ARewrittenLineKeepsWhatTheTableDoesNotKnow) {
    std::string line(720, '#');
    line.replace(0, 3, "001");
    Employee employee = decode<Employee>(line);
    EXPECT_EQ(encode(employee, line), line);
    employee.name = "ANA";
    const std::string changed = encode(employee, line);
    EXPECT_EQ(changed.substr(4, 30), "ANA" + std::string(27, ' '));
    EXPECT_EQ(changed.substr(34), line.substr(34));
}

TEST(Employee, ALineComesBackAsItWas) {
    std::string leadingBlank = encode(decode<Employee>("001 ANA"));
    leadingBlank.replace(4, 5, "  ANA");
    for (const std::string& line : {std::string("001 ANA"), std::string("X"), leadingBlank,
                                    std::string("001 \x81\x8D\x90 ?"), std::string(900, '\x9D')})
        EXPECT_EQ(encode(decode<Employee>(line), line), line);
}

TEST(Employee, RecordTextsHaveAMeaning) {
    Employee employee;
    employee.scale = "Normal";
    employee.shift = "TRES";
    employee.admission = "31/02/2024";
    employee = decode<Employee>(encode(employee));
    EXPECT_EQ(employee.scale, "Norma");
    EXPECT_EQ(employee.scaleOr(Scale::FiveByOne), Scale::Normal);
    EXPECT_EQ(employee.shiftOr(), Shift::Tres);
    EXPECT_EQ(employee.admissionDate(), std::nullopt);
    employee.shift = "noite";
    EXPECT_EQ(employee.shiftOr(Shift::Dois), Shift::Dois);
}

TEST(EmployeeRegister, OneCopyAnHourIsKept) {
    MemoryFiles files;
    EmployeeRegister list({files, kFolder}, kCompany);
    list.save({lineOf("001")}, at("15/03/2024", "10:05"));
    EXPECT_EQ(files.content.size(), 1U) << "nothing to copy the first time";
    const std::string first = files.content["/data/01CartaPonto"];
    list.save({lineOf("001"), lineOf("002")}, at("15/03/2024", "10:20"));
    EXPECT_EQ(files.content["/data/bk-0115-03-2024-10-00.bkp"], first);
    const std::string second = files.content["/data/01CartaPonto"];
    list.save({}, at("15/03/2024", "10:59"));
    EXPECT_EQ(files.content["/data/bk-0115-03-2024-10-00.bkp"], second);
    EXPECT_EQ(files.content.size(), 2U);
    list.save({}, at("15/03/2024", "11:00"));
    EXPECT_EQ(files.content.size(), 3U);
    EXPECT_TRUE(list.load().empty());
}

TEST(EmployeeRegister, NothingIsWrittenWhenTheCopyFails) {
    MemoryFiles files;
    EmployeeRegister list({files, kFolder}, kCompany);
    list.save({lineOf("001")}, at("15/03/2024", "10:05"));
    const auto before = files.content;
    files.failOn.insert("bk-0115-03-2024-10-00.bkp");
    EXPECT_THROW(list.save({}, at("15/03/2024", "10:20")), FileFault);
    EXPECT_EQ(files.content, before);
}

TEST(EmployeeRegister, CodesAreProposedFromTheLowestFree) {
    EXPECT_EQ(lowestFreeCode(std::set<EmployeeCode>{})->text(), "001");
    EXPECT_EQ(lowestFreeCode(keysOf<Employee>({lineOf("003"), lineOf("001"), lineOf("?")}))->text(),
              "002");
}

TEST(EmployeeRegister, ListsFollowTheShiftFilter) {
    const std::vector lines = {lineOf("001", "Unico"), lineOf("002", "DOIS"), lineOf("003", "Tres"),
                               lineOf("004", ""), lineOf("X", "Unico")};
    const auto codes = [&](ShiftFilter filter) {
        std::string text;
        for (const Employee& employee : employeesOf(lines, filter))
            text += employee.code + " ";
        return text;
    };
    EXPECT_EQ(codes(ShiftFilter::Todos), "001 002 003 004 ");
    EXPECT_EQ(codes(ShiftFilter::Unico), "001 004 ");
    EXPECT_EQ(codes(ShiftFilter::Dois), "002 ");
    EXPECT_EQ(codes(ShiftFilter::Um), "");
}

}  // namespace
}  // namespace winvrx
