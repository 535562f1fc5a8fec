#include "personnel/payroll/pay_sheet.h"
#include "personnel/payroll/payroll_record.h"
#include "personnel/payroll/settings_file.h"

#include "foundation/values/text.h"
#include "tests/support/legal_tables.h"
#include "tests/support/memory_files.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using namespace std::chrono_literals;

const EmployeeKey kEmployee{*CompanyCode::parse("01"), *EmployeeCode::parse("001")};

EventCode eventCode(const char* digits) {
    return EventCode::parse(digits).value();
}

std::vector<std::string> textsOf(const PayrollEvents& events) {
    std::vector<std::string> texts;
    for (const PayrollEventLine& line : events)
        texts.push_back(decodeWindows1252(line.bytes));
    return texts;
}

TEST(PayrollEvents, AreThirtyThreeLinesByDefault) {
    const PayrollEvents events = defaultEvents({});
    EXPECT_EQ(
        textsOf(events),
        (std::vector<std::string>{
            "001 SALARIO BASE         1220,01111000", "002 INSALUBRIDADE        1000,01111000",
            "003 PERICULOSIDADE       1000,01111000", "004 SALARIO FAMILIA      1000,00001000",
            "005 HORA EXTRA 50%       1050,01111000", "006 HORA EXTRA 100%      1100,01111000",
            "007 HORA NOTURNA         1000,01111111", "008 HOR NOTUR EXTR 50%   1050,01111000",
            "009 HOR NOTUR EXTR 100%  1100,01111000", "010 DSR REFLEX.HORA EXTR 1000,01111000",
            "091 INSS                 0000,00001000", "092 IRRF                 0000,00001000",
            "025 VALE TRANSPORTES     0006,00001000", "026 HORAS FALTA          0000,00001000",
            "031 ADIANTAM. SALARARIO  0001,00001000", "013 1/3 INSALUBR FÉRIAS  1000,01110100",
            "011 SALARIO BASE FERIAS  1000,01110100", "012 INSALUBRIDADE FÉRIAS 1000,01110100",
            "014 1/3 FÉRIAS           1000,01110100", "015 MED.HORA EXTRA FÉRIA 1000,01110100",
            "016 PERICULOSIDADE       1000,01110100", "093 INSS S/FERIAS        0000,00000100",
            "094 IRRF S/FERIAS        0000,00000100", "017 13ºSALARIO INTEGRAL  1000,01110010",
            "018 INSALUBR ADIANTADO   1000,01110010", "019 13ºSALAR ADIANTADO   1000,00000010",
            "020 INSALUBR INTEGRAL    1000,01110010", "021 MED.HOR.EXTR.ADIANTA 1000,01110010",
            "022 MED.HOR.EXTR.INTEGR  1000,01110010", "033 PERICULO ADIANTADO   1000,01110010",
            "095 INSS S/13ºSAL        0000,00000010", "096 IRRF S/13ºSAL        0000,00000010",
            "032 DESC 13ºSALAR ADIANT 0000,00000010"}));
    OvertimeRules rates;
    rates.minimumPercent = 60;
    rates.nightMaximumPercent = 999;
    const auto others = textsOf(defaultEvents(rates));
    EXPECT_EQ(others[4], "005 HORA EXTRA 60%       1060,01111000");
    EXPECT_EQ(others[8], "009 HOR NOTUR EXTR 999%  1999,01111000");
    for (const auto& lines : {events, vacationExtras()})
        for (const PayrollEventLine& line : lines) {
            EXPECT_EQ(line.bytes.size(), kPayrollEventWidth);
            EXPECT_TRUE(line.key()) << line.bytes;
            EXPECT_EQ(encode(line.record), line.bytes);
        }
    for (const std::string_view variant : {kThirteenthAverageVariant, kAdvanceReceiptLine})
        EXPECT_EQ(variant.size(), kPayrollEventWidth);
}

TEST(PayrollEvents, TakeTheirFlagsFromThreeQuestions) {
    const PayrollEvents events = defaultEvents({});
    struct Case {
        NewEvent said;
        const char* line;
    };
    using enum PayrollKind;
    for (const Case& c :
         {Case{{"Comissão", true, 5, {Month}}, "023 Comissão             1005,01111000"},
          Case{{"Prêmio de assiduidade do ano", true, 0, {Month, Vacation, Thirteenth}},
               "023 Prêmio de assiduidad 1000,01111110"},
          Case{{"Empréstimo", false, 0, {Vacation}}, "023 Empréstimo           0000,00000100"}}) {
        const auto event = newEvent(c.said, events);
        ASSERT_TRUE(event);
        EXPECT_EQ(decodeWindows1252(encode(*event)), c.line);
    }
}

TEST(PayrollEvents, AreTheEmployeesThenTheCompanysThenTheDefault) {
    testing::MemoryFiles files;
    const DataFolder folder('C', "/data");
    const Store store{files, folder};
    const auto load = [&] {
        return loadEvents(store, kEmployee, companyEvents(store, kEmployee.company).load(), {},
                          namesIn(store));
    };
    EXPECT_EQ(load().size(), kDefaultEvents);
    files.content["/data/01confgger"] =
        "001 SALARIO BASE         1200,01111000\r\nxxx\r\n002 A 9\r\n";
    const PayrollEvents company = load();
    ASSERT_EQ(company.size(), 3U);
    EXPECT_EQ(company[0].record.referenceNumber(), 200);
    EXPECT_FALSE(company[1].key());
    EXPECT_FALSE(company[2].key());
    files.content["/data/01001confgger2"] = "001 SALARIO BASE         1180,01111000\r\n";
    EXPECT_EQ(load()[0].record.referenceNumber(), 180);
}

class PaySheetTest : public ::testing::Test {
  protected:
    PaySheetTest() {
        one_.month.part = wholeMonth(2026y / 11);
        one_.month.paid = 2026y / 11 / 30;
        one_.month.salary = {480000};
        one_.month.minimum.byDay = 12h;
        one_.month.maximum.byDay = 6h;
        one_.month.days = {23, 7};
        one_.month.advancePercent = 40;
        one_.month.dependants = 2;
    }

    void setReference(const char* code, const char* reference) {
        for (PayrollEventLine& line : events_)
            if (line.record.code == code) {
                line.record.reference = reference;
                line = lineOf(line.record, line.bytes);
            }
    }
    [[nodiscard]] PaySheet sheet() const {
        return paySheet({tables_, settings_}, one_, events_, typed_);
    }
    static std::int64_t centsOf(const PaySheet& sheet, const char* code) {
        const PayLine* line = sheet.find(code);
        return line == nullptr ? -1 : line->amount.cents;
    }

    LegalTables tables_ = testing::legalTablesIn(WINVRX_LEGAL_FOLDER);
    PayrollSettings settings_;
    PayrollEvents events_ = defaultEvents({});
    TypedAmounts typed_;
    PaySheetCase one_;
};

TEST_F(PaySheetTest, HoldsTheMonthInTheOrderOfTheComputation) {
    const PaySheet month = sheet();
    std::string order;
    for (const PayLine& line : month.lines)
        order += line.event.code + " ";
    EXPECT_EQ(order, "001 002 003 004 005 006 007 008 009 010 091 092 025 026 031 ");
    EXPECT_EQ(centsOf(month, "005"), 39273);
    EXPECT_EQ(centsOf(month, "010"), 19921);
    EXPECT_EQ(centsOf(month, "091"), 59302);
    EXPECT_EQ(centsOf(month, "092"), 15285);
    EXPECT_EQ(centsOf(month, "031"), 192000);
    EXPECT_EQ(month.base, Money{565376});
    EXPECT_EQ(month.credits, Money{565376});
    EXPECT_EQ(month.net, Money{298789});
    EXPECT_EQ(month.fgtsBase, Money{565376});
    EXPECT_EQ(memoText(month.find("005")->memo.front()),
              "Horas extras 50%: 4.800,00 ÷ 220 × 1,5 × 12:00 = 392,73");
}

TEST_F(PaySheetTest, FollowsReferencesTypedAmountsAndNewEvents) {
    setReference("001", "200");
    setReference("005", "060");
    setReference("031", "025");
    setReference("004", "002");
    PaySheet month = sheet();
    EXPECT_EQ(centsOf(month, "005"), 46080);  // 4.800,00 ÷ 200 × 1,6 × 12
    EXPECT_EQ(centsOf(month, "031"), 120000);
    EXPECT_EQ(centsOf(month, "004"), 0);

    const Money before = month.base;
    events_.push_back(
        lineOf(newEvent({"Comissão", true, 0, {PayrollKind::Month}}, events_).value()));
    typed_[eventCode("023")] = {50000};
    typed_[eventCode("005")] = {46180};
    month = sheet();
    EXPECT_EQ(month.base, before + Money{50100});
    EXPECT_TRUE(month.find("005")->isTyped);
    EXPECT_EQ(memoText(month.find("005")->memo.front()), "Valor digitado: 461,80");
    EXPECT_EQ(month.lines.back().event.code, "023");
    EXPECT_EQ(month.net, month.credits - month.debits);
}

TEST_F(PaySheetTest, TakesAlimonyAsAShareOfThePay) {
    one_.month = {.part = wholeMonth(2026y / 11), .paid = 2026y / 11 / 30, .salary = {1000000}};
    struct Case {
        Money fixed;
        Fraction ofGross;
        Fraction ofNet;
        std::int64_t alimony;
        std::int64_t tax;
    };
    // INSS 988,07; of the net both follow from each other: 30% of 9.011,93 − 900,34.
    for (const Case& c : {Case{{}, 20, 0, 200000, 101955}, Case{{}, 0, 30, 243348, 90034},
                          Case{{50000}, 0, 30, 297844, 75048}}) {
        one_.month.alimony = c.fixed;
        one_.month.alimonyOfGross = c.ofGross;
        one_.month.alimonyOfNet = c.ofNet;
        const PaySheet month = sheet();
        EXPECT_EQ(centsOf(month, "097"), c.alimony);
        EXPECT_EQ(centsOf(month, "092"), c.tax);
        EXPECT_EQ(month.net, month.credits - month.debits);
    }
}

TEST_F(PaySheetTest, IsReadBackFromItsFile) {
    testing::MemoryFiles files;
    const DataFolder folder('C', "/data");
    const Store store{files, folder};
    typed_[eventCode("025")] = {123456};
    const PaySheet before = sheet();
    EXPECT_FALSE(loadPayroll(store, kEmployee, 2026y / 11));
    const auto content = payrollContent(store, kEmployee, 2026y / 11, before);
    EXPECT_EQ(content.file, "/data/01fp0000111-2026.bdx");
    EXPECT_EQ(splitLines(content.bytes)[12],
              "025 VALE TRANSPORTES     0006,00001000 1.234,56       *");
    files.content[content.file] = content.bytes + "004 SALARIO FAMILIA      1000,00001000 x\r\n";

    const auto after = loadPayroll(store, kEmployee, 2026y / 11);
    ASSERT_TRUE(after);
    EXPECT_EQ(after->sheet.lines.size(), before.lines.size());
    EXPECT_EQ(after->sheet.net, before.net);
    EXPECT_EQ(after->sheet.fgtsBase, before.fgtsBase);
    EXPECT_EQ(typedAmounts(after->sheet), typed_);
    EXPECT_EQ(after->unread.size(), 1U);
    EXPECT_EQ(payrollContent(store, kEmployee, 2026y / 11, after->sheet).bytes, content.bytes);

    files.content["/data/01fp0000101-2027.bdx"] = "";
    files.content["/data/01fp0000201-2027.bdx"] = "";
    EXPECT_EQ(recordedMonths(kEmployee, namesIn(store)),
              (std::vector<WorkMonth>{2026y / 11, 2027y / 1}));
    EXPECT_TRUE(reopenPayroll(store, kEmployee, 2026y / 11));
    EXPECT_FALSE(reopenPayroll(store, kEmployee, 2026y / 11));
    EXPECT_FALSE(loadPayroll(store, kEmployee, 2026y / 11));
}

TEST(PayrollSettingsFile, KeepsWhatItDoesNotUnderstand) {
    testing::MemoryFiles files;
    const DataFolder folder('C', "/data");
    const Store store{files, folder};
    const auto company = kEmployee.company;
    EXPECT_EQ(loadPayrollSettings(store, company).settings, PayrollSettings{});
    files.content["/data/01FolhaOpcoes"] = "inss = 1\r\nnova = 3\r\nmes-parcial = 9\r\n";
    const auto loaded = loadPayrollSettings(store, company);
    EXPECT_EQ(loaded.settings.inssRounding, InssRounding::RoundedOnce);
    EXPECT_EQ(loaded.unread, (std::vector<std::string>{"nova = 3", "mes-parcial = 9"}));
    PayrollSettings changed = loaded.settings;
    changed.saturdayIsWorkingDay = false;
    savePayrollSettings(store, company, changed);
    EXPECT_EQ(loadPayrollSettings(store, company).settings, changed);
    EXPECT_EQ(loadPayrollSettings(store, company).unread, loaded.unread);
}

TEST_F(PaySheetTest, AddsAVacation) {
    one_.month.part.daysAway = 20;
    one_.vacation = VacationSheet{.start = 2026y / 11 / 11, .days = 20, .soldDays = 10};
    one_.vacation->paid = 2026y / 11 / 9;
    const PaySheet month = sheet();
    EXPECT_EQ(centsOf(month, "001"), 160000);
    EXPECT_EQ(centsOf(month, "011"), 320000);
    EXPECT_EQ(centsOf(month, "014"), 106667);
    EXPECT_EQ(centsOf(month, "034"), 160000);
    EXPECT_EQ(centsOf(month, "035"), 53333);
    EXPECT_EQ(centsOf(month, "036"), 0);
    EXPECT_EQ(centsOf(month, "093"), 40058);  // of 4.266,67
    EXPECT_EQ(centsOf(month, "094"), 0);
    EXPECT_EQ(month.fgtsBase, month.base + Money{426667});
    EXPECT_EQ(month.net, month.credits - month.debits);
}

TEST_F(PaySheetTest, AddsBothInstalmentsOfTheThirteenth) {
    setReference("003", "030");
    one_.month.minimum.byDay = one_.month.maximum.byDay = {};
    one_.thirteenth = ThirteenthSheet{Instalment::First, 12, {}, {{12000}}, {}, 2026y / 11 / 30};
    const PaySheet first = sheet();
    EXPECT_EQ(first.lines.front().event.code, "018");
    EXPECT_EQ(centsOf(first, "019"), 240000);
    EXPECT_EQ(centsOf(first, "033"), 72000);
    EXPECT_EQ(centsOf(first, "021"), 6000);
    EXPECT_EQ(centsOf(first, "095"), 0);
    EXPECT_EQ(first.fgtsBase, first.base + Money{318000});

    one_.thirteenth->instalment = Instalment::Second;
    one_.thirteenth->firstPaid = {318000};
    one_.thirteenth->paid = 2026y / 12 / 18;
    const PaySheet second = sheet();
    EXPECT_EQ(centsOf(second, "017"), 624000);
    EXPECT_EQ(centsOf(second, "022"), 12000);
    EXPECT_EQ(centsOf(second, "032"), 318000);
    EXPECT_EQ(centsOf(second, "095"), 69190);  // of 6.360,00
    EXPECT_EQ(centsOf(second, "019"), 0);
    EXPECT_EQ(second.fgtsBase, second.base + Money{318000});
}

}  // namespace
}  // namespace winvrx
