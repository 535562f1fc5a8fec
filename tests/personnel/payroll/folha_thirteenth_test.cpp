#include "tests/personnel/payroll/folha_screen.h"

namespace winvrx {
namespace {

using namespace std::chrono_literals;
using enum Answer;
using enum Folha::Opening;
using enum PayrollRun;

constexpr WorkMonth kNovember = 2026y / 11;
constexpr WorkMonth kDecember = 2026y / 12;

class FolhaThirteenthTest : public testing::FolhaScreen {
  protected:
    static constexpr const char* kFirst = "/data/01fa0000111-2026.bdx";
    static constexpr const char* kSecond = "/data/01fi0000112-2026.bdx";

    void load(WorkMonth month, PayrollRun run) { EXPECT_TRUE(folha.load(month, run)); }
    void save(WorkMonth month, PayrollRun run) {
        load(month, run);
        EXPECT_EQ(folha.open(ana), Opened);
        person.answers = {Yes};
        EXPECT_TRUE(folha.save());
        person.takeTexts();
    }
    [[nodiscard]] std::int64_t cents(std::string_view code) const {
        return folha.shown()->sheet.amountOf(code).cents;
    }
};

TEST_F(FolhaThirteenthTest, TheSecondInstalmentFollowsTheFirst) {
    load(kDecember, ThirteenthSecond);
    EXPECT_EQ(folha.open(employee("001", "ANA", "")), Refused);
    EXPECT_EQ(folha.open(ana), Refused);
    person.answers = {Yes};
    EXPECT_FALSE(folha.saveAll({ana}, {}));
    EXPECT_EQ(person.shown.back().detail, "1º PARCELA DO 13º SALARIO NÃO GERADA! ANA");
    EXPECT_EQ(person.takeTexts(),
              (std::vector<std::string>{"Antes de Gerar a 2º Parcela  DO 13º, grave a 1º PARCELA!!",
                                        "Antes de Gerar a 2º Parcela  DO 13º, grave a 1º PARCELA!!",
                                        "Confirma Gravar TODOS OS FUNCIONARIOS DA LISTA?",
                                        "Não Há Dados para Gravação!"}));

    load(kNovember, ThirteenthFirst);
    EXPECT_EQ(folha.open(employee("001", "ANA", "")), Refused);
    save(kNovember, ThirteenthFirst);
    EXPECT_EQ(cents("019"), 150000);
    EXPECT_EQ(cents("001"), 0);
    EXPECT_EQ(folha.shown()->sheet.net, Money{150000});
    EXPECT_EQ(folha.shown()->sheet.fgtsBase, Money{150000});

    load(kDecember, ThirteenthSecond);
    EXPECT_EQ(folha.open(ana), Opened);
    EXPECT_EQ(cents("017"), 300000);
    EXPECT_EQ(cents("095"), 24858);
    EXPECT_EQ(cents("096"), 0);
    EXPECT_EQ(cents("032"), 150000);
    EXPECT_EQ(folha.shown()->sheet.net, Money{125142});
    EXPECT_EQ(folha.shown()->sheet.fgtsBase, Money{150000});

    // Gone meanwhile, from another screen.
    const std::string first = files.content.at(kFirst);
    files.content.erase(kFirst);
    person.answers = {Yes};
    EXPECT_FALSE(folha.save());
    EXPECT_EQ(person.shown.back().text, "1º PARCELA DO 13º SALARIO NÃO GERADA!");
    EXPECT_FALSE(files.content.contains(kSecond));
    files.content[kFirst] = first;
    save(kDecember, ThirteenthSecond);

    // Nor does the first go while the second stands; neither closes its month.
    load(kNovember, ThirteenthFirst);
    EXPECT_EQ(folha.open(ana), Opened);
    EXPECT_TRUE(folha.shown()->isRecorded);
    person.answers = {Yes};
    EXPECT_FALSE(folha.reopen());
    EXPECT_EQ(person.shown.back().text,
              "A 1º PARCELA não pode ser reaberta enquanto a 2º PARCELA do ano está gravada.");
    EXPECT_TRUE(files.content.contains(kFirst));
    EXPECT_FALSE(files.content.contains("/data/01fp0000111-2026.bdx"));
    EXPECT_FALSE(files.content.contains("/data/01fp0000112-2026.bdx"));
}

TEST_F(FolhaThirteenthTest, TwelfthsAndAveragesComeFromTheCards) {
    // Two hours of overtime on each of 22 days, in a month that is recorded; as many in one that is
    // not count nothing. Of May seventeen days are left, of June fourteen.
    const std::string extra = "          16:0018:00";
    fillCard("001", kMonth, {}, extra);
    fillCard("001", 2026y / 4, {}, extra);
    const auto absences = [](WorkMonth month, int days) {
        std::set<Date> dates;
        for (Date date = firstDay(month); static_cast<int>(dates.size()) < days;
             date = plusDays(date, 1))
            if (weekdayOf(date) != std::chrono::Sunday && weekdayOf(date) != std::chrono::Saturday)
                dates.insert(date);
        return dates;
    };
    fillCard("001", 2026y / 5, absences(2026y / 5, 14));
    fillCard("001", 2026y / 6, absences(2026y / 6, 16));
    save(kMonth, Month);
    EXPECT_EQ(folha.shown()->month.hours->totals()[HourCategory::ExtraMinimum], 44h);
    ana.admission = "17/01/2026";
    load(kNovember, ThirteenthFirst);
    EXPECT_EQ(folha.open(ana), Opened);
    // 3.000,00 ÷ 12 × 11 ÷ 2, and of the average 3.000,00 ÷ 220 × 1,5 × 44 = 900,00 as much.
    EXPECT_EQ(cents("019"), 137500);
    EXPECT_EQ(cents("021"), 41250);
    EXPECT_EQ(memoText(folha.shown()->sheet.find("021")->memo.front()),
              "Média de horas extras: 3.000,00 ÷ 220 × 1,5 × 44:00 ÷ 1 = 900,00");
    ana.admission = "18/01/2026";
    EXPECT_EQ(folha.open(ana), Opened);
    EXPECT_EQ(cents("019"), 125000);
}

}  // namespace
}  // namespace winvrx
