#include "personnel/leaves/leave_line.h"
#include "personnel/vacation/vacation_record.h"
#include "tests/personnel/payroll/folha_screen.h"

namespace winvrx {
namespace {

using namespace std::chrono_literals;
using enum Answer;
using enum Folha::Opening;
using enum PayrollRun;

class FolhaVacationTest : public testing::FolhaScreen {
  protected:
    FolhaVacationTest() : folha_(at, kLegal, {[this](const Employee&) { ++shownPeriods_; }}) {}

    /// Twenty days of the fifth period, ten of them sold.
    void recordVacation(const std::string& mark = "", const std::string& thirteenth = "N",
                        const char* first = "09/03/2026", const char* last = "28/03/2026") {
        file("01Ferias001") = encode(VacationItem{.acquisitionFirst = "01/02/2024",
                                                  .acquisitionLast = "31/01/2025",
                                                  .kind = "FERIAS",
                                                  .granted = "30",
                                                  .first = first,
                                                  .last = last,
                                                  .sold = "10",
                                                  .thirteenth = thirteenth,
                                                  .month = "03-2026",
                                                  .mark = mark}) +
                              "\r\n";
        files.content.erase("/data/01configAf001");
        const LeavePeriod away{parseDate(first).value(), parseDate(last).value()};
        const auto leave = replacedLeave(
            store(), {CompanyCode::parse("01").value(), EmployeeCode::parse("001").value()},
            std::nullopt, vacationLeave(away));
        files.content[leave.file] = leave.bytes;
    }
    void load(PayrollRun run, WorkMonth month = kMonth) { ASSERT_TRUE(folha_.load(month, run)); }
    [[nodiscard]] std::int64_t cents(std::string_view code) const {
        return folha_.shown()->sheet.amountOf(code).cents;
    }

    static constexpr const char* kVacation = "/data/01fv0000103-2026.bdx";
    int shownPeriods_ = 0;
    Folha folha_;
};

TEST_F(FolhaVacationTest, AsksForAPeriodFirst) {
    load(Vacation);
    EXPECT_EQ(folha_.open(employee("001", "ANA", "")), Refused);
    EXPECT_EQ(shownPeriods_, 1);
    recordVacation();
    EXPECT_EQ(folha_.open(employee("001", "ANA", "")), Refused);
    EXPECT_EQ(person.takeTexts(),
              (std::vector<std::string>{
                  "Ainda Não Existe um Período Aquisitivo de Férias Selecionado!",
                  "Selecione e Grave um Período Aquisitivo de Férias Desejado!",
                  "Erro! Valor do Salário deste Funcionário = R$ 0,00!     Clique no Botão "
                  "Funcionário e Altere o Valor do Salário."}));
    EXPECT_EQ(shownPeriods_, 1);
}

TEST_F(FolhaVacationTest, PaysItApartAndTheMonthWithoutIt) {
    recordVacation("", "S");
    load(Vacation);
    EXPECT_EQ(folha_.open(ana), Opened);
    EXPECT_EQ(cents("011"), 200000);
    EXPECT_EQ(cents("014"), 66667);
    EXPECT_EQ(cents("034"), 100000);
    EXPECT_EQ(cents("035"), 33333);
    // The limit was 31/01/2026: all of it is paid double, 2.000,00 and its third.
    EXPECT_EQ(cents("036"), 266667);
    EXPECT_EQ(cents("093"), 21568);  // 121,57 + 94,11
    EXPECT_EQ(cents("001"), 0);
    person.answers = {Yes};
    EXPECT_TRUE(folha_.save());
    // The first instalment of the 13th goes along, and the month stays open.
    EXPECT_TRUE(files.content.contains("/data/01fa0000103-2026.bdx"));
    EXPECT_FALSE(files.content.contains(kPayroll));
    const std::string recorded = files.content.at(kVacation);

    load(ThirteenthFirst);
    EXPECT_EQ(folha_.open(ana), Opened);
    EXPECT_TRUE(folha_.shown()->isRecorded);
    EXPECT_EQ(cents("019"), 150000);

    load(Month);
    EXPECT_EQ(folha_.open(ana), Opened);
    EXPECT_EQ(cents("001"), 110000);  // eleven days
    EXPECT_EQ(cents("091"), 12490);   // of 3.766,67: 340,58, less 215,68
    EXPECT_EQ(cents("011"), 0);
    person.answers = {Yes};
    EXPECT_TRUE(folha_.save());
    EXPECT_EQ(files.content.at(kVacation), recorded);
}

TEST_F(FolhaVacationTest, DividesTheInssOfTwoMonths) {
    recordVacation("", "N", "19/02/2026", "10/03/2026");
    load(Vacation);
    EXPECT_EQ(folha_.open(ana), Opened);
    EXPECT_EQ(cents("093"), 19999);  // of 1.333,34 and of 1.333,33: 100,00 + 99,99
    person.answers = {Yes};
    EXPECT_TRUE(folha_.save());
    // Of the days that are left and the vacation's share, less what was withheld of that.
    struct Case {
        WorkMonth month;
        std::int64_t salary;
        std::int64_t inss;
    };
    for (const Case& one :
         {Case{2026y / 2, 180000, 26459 - 10000}, Case{kMonth, 210000, 30058 - 9999}}) {
        fillCard("001", one.month);
        load(Month, one.month);
        EXPECT_EQ(folha_.open(ana), Opened);
        EXPECT_EQ(cents("001"), one.salary) << monthKey(one.month);
        EXPECT_EQ(cents("091"), one.inss) << monthKey(one.month);
    }
}

TEST_F(FolhaVacationTest, ASettledPeriodIsNeitherRecordedNorRestored) {
    recordVacation();
    load(Vacation);
    EXPECT_EQ(folha_.open(ana), Opened);
    // Changed on the vacation screen meanwhile: not what is shown.
    recordVacation("", "S");
    person.answers = {Yes};
    EXPECT_FALSE(folha_.save());
    EXPECT_FALSE(files.content.contains(kVacation));
    EXPECT_EQ(folha_.open(ana), Opened);
    person.answers = {Yes};
    EXPECT_TRUE(folha_.save());

    recordVacation("QUITADA", "S");
    const auto before = files.content;
    EXPECT_EQ(folha_.open(ana), Opened);
    person.takeTexts();
    EXPECT_FALSE(folha_.compute({{EventCode::parse("011").value(), {1}}}));
    EXPECT_FALSE(folha_.save());
    person.answers = {Yes};
    EXPECT_FALSE(folha_.reopen());
    EXPECT_EQ(shownPeriods_, 1);
    const std::string change =
        "Não é Possível Alterar ou Gravar a Folha de Pagamento de um Período de Aquisição de "
        "Férias Já Quitado!";
    const std::string unsettle =
        "Para Alterar ou Gravar, é Necessário 'Restaurar Quitação' na Tela de Período de Aquisição "
        "de Férias! Deseja Fazer Isso Agora?";
    EXPECT_EQ(person.takeTexts(),
              (std::vector<std::string>{
                  change, unsettle, change, unsettle,
                  "Não é Possível 'Restaurar' a Folha de Pagamento de um Período de Aquisição de "
                  "Férias Já Quitado!",
                  "Para 'Restaurar' é Necessário 'Restaurar Quitação' na Tela de Período de "
                  "Aquisição de Férias! Deseja Fazer Isso Agora?"}));
    EXPECT_EQ(files.content, before);
}

}  // namespace
}  // namespace winvrx
