#include "personnel/vacation/ferias.h"

#include "personnel/leaves/leave_line.h"
#include "personnel/vacation/due_vacations.h"
#include "tests/support/employee_desk.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using namespace std::chrono_literals;
using enum Answer;
using enum VacationInput;
using Texts = std::vector<std::string>;

const std::string kConfirm = "Confirma Gravação do Item?";
const std::string kProceed = "Deseja Prosseguir Gravação? ";
const std::string kFine =
    "Neste Caso o Funcionário Terá Direito por Lei a Multa de Mais uma Férias.!";
const std::string kHint =
    "Caso o Funcionário já Tenha Recebido a Férias correspondente a esse Período sem Recibo, então "
    "Você poderá entrar com o 'Mês de Trabalho' Retroativo para Documentar e Baixar a Pendencia do "
    "Sistema .!";
const std::string kSettled =
    "Não é Possível Alterar ou Gravar a Folha de Pagamento de um Período de Aquisição de Férias Já "
    "Quitado!";

/// The vacation screen in March 2024: ANA has three periods past their limit, BIA one to take.
class FeriasTest : public ::testing::Test {
  protected:
    void SetUp() override {
        Employee ana = testing::employee("001", "ANA", {.admission = "12/03/2020"});
        Employee bia = testing::employee("002", "BIA", {.admission = "01/02/2023"});
        ana.salary = bia.salary = "3.000,00";
        desk_.record("01",
                     {ana, bia, testing::employee("003", "CAI", {.admission = "20/04/2022"})});
        desk_.file("DataIde.ivc") = "03-2024\r\nTodos\r\n";
        desk_.file("01Empresa") = "";
        start(1);
    }
    void start(std::size_t position) {
        ASSERT_TRUE(screen_.open());
        ASSERT_TRUE(screen_.select(position));
        (void)desk_.person.takeTexts();
    }
    void type(const char* first, const char* days, const char* sold = "") {
        screen_.form().type(First, first);
        screen_.form().type(Days, days);
        screen_.form().type(Sold, sold);
    }
    /// 24 of BIA's 30 days, ten of them sold, in March's work; the first row is chosen.
    void recordMostOfAPeriod() {
        type("10/04/2024", "14", "10");
        screen_.form().payThirteenth(true);
        answer({Yes});
        ASSERT_TRUE(screen_.record());
        (void)told();
        answer({Yes});
        ASSERT_TRUE(screen_.choose(0));
    }
    void answer(std::deque<Answer> answers) { desk_.person.answers = std::move(answers); }
    [[nodiscard]] Texts told() { return desk_.person.takeTexts(); }
    [[nodiscard]] Texts rowTexts() const {
        Texts texts;
        for (const PeriodRow& row : screen_.rows())
            texts.push_back(row.text());
        return texts;
    }

    static constexpr const char* kFile = "/data/01Ferias002";
    std::optional<Money> paid_;
    testing::EmployeeDesk desk_;
    Ferias screen_{desk_.at,
                   {desk_.locks, [this](const EmployeeKey&, WorkMonth) { return paid_; }}};
};

TEST_F(FeriasTest, RefusesInTheOrderOfItsChecks) {
    struct Case {
        const char* first;
        const char* days;
        const char* sold;
        std::deque<Answer> answers;
        Texts texts;
    };
    const auto before = desk_.files.content;
    for (const Case& one :
         {Case{"", "30", "", {}, {"Informe a Data de Início das Férias!"}},
          {"10/04/2024", "30", "x", {}, {"Informe a Quantidade de Dias Vendidos!"}},
          {"30/01/2024", "30", "", {No}, {kConfirm}},
          {"30/01/2024",
           "30",
           "",
           {Yes},
           {kConfirm,
            "A Data de Início de Férias está Inferior a Data do Término do Período Aquisitivo!"}},
          {"01/02/2025",
           "30",
           "",
           {Yes, No},
           {kConfirm, "A Data de Início de Férias está Inferior a Data de Vencimento da Férias!",
            kProceed}},
          {"01/02/2025",
           "13",
           "11",
           {Yes, Yes},
           {kConfirm, "A Data de Início de Férias está Inferior a Data de Vencimento da Férias!",
            kProceed, "Só se pode vender até um terço das férias (CLT, art. 143)."}},
          {"31/01/2025",
           "4",
           "",
           {Yes},
           {kConfirm, "Nenhum período pode ter menos de 5 dias (CLT, art. 134)."}},
          {"10/04/2024",
           "31",
           "",
           {Yes},
           {kConfirm, "Os períodos e os dias vendidos devem somar 30 dias."}}}) {
        answer({Yes});
        ASSERT_TRUE(screen_.select(1));
        (void)told();
        type(one.first, one.days, one.sold);
        answer(one.answers);
        EXPECT_FALSE(screen_.record()) << one.first << " " << one.days;
        EXPECT_EQ(told(), one.texts) << one.first << " " << one.days;
    }
    screen_.form().type(First, "10/04/2024");
    screen_.form().type(Last, "09/04/2024");
    answer({Yes});
    EXPECT_FALSE(screen_.record());
    EXPECT_EQ(told().back(),
              "A Data de Início de Férias está Inferior a Data de Término da Férias!");
    EXPECT_EQ(screen_.blamed(), Last);
    EXPECT_EQ(desk_.files.content, before);
}

TEST_F(FeriasTest, WarnsOfPendingPeriodsAndGoesOn) {
    start(0);
    EXPECT_EQ(rowTexts(), Texts(5, "30Dias  - Pendente"));
    type("01/04/2024", "30");
    answer({Yes, No});
    EXPECT_FALSE(screen_.record());
    EXPECT_EQ(told(), (Texts{kConfirm, "Existem 3 Férias 'Pendente' para Este Funcionário!!", kFine,
                             kHint, kProceed}));
    EXPECT_FALSE(desk_.files.content.contains("/data/01Ferias001"));
    // In the month in which it was taken nothing was past its limit yet.
    desk_.file("DataIde.ivc") = "04-2021\r\nTodos\r\n";
    answer({Yes});
    start(0);
    EXPECT_EQ(rowTexts(), Texts(2, "30Dias  - Pendente"));
    type("05/04/2021", "30");
    answer({Yes});
    EXPECT_TRUE(screen_.record());
    EXPECT_EQ(told(), Texts{kConfirm});
    EXPECT_EQ(rowTexts(), (Texts{"30Dias  -  Quitar ", "30Dias  - Pendente"}));
}

TEST_F(FeriasTest, RecordsAPartOfAPeriodWithItsLeave) {
    recordMostOfAPeriod();
    EXPECT_EQ(desk_.files.content.at(kFile),
              "01/02/2023  31/01/2024  FERIAS    30  10/04/2024  23/04/2024  10  S  03-2024" +
                  std::string(25, ' ') + "\r\n");
    EXPECT_TRUE(desk_.file("01configAf002").starts_with("006 F"));
    EXPECT_EQ(rowTexts(), (Texts{"24Dias  -  Quitar ", "6Dias  - Pendente", "30Dias  - Pendente"}));
    EXPECT_TRUE(screen_.hasLeaveOf(screen_.rows()[0]));

    // What is left belongs to another month, and to other days.
    ASSERT_TRUE(screen_.choose(1));
    type("23/04/2024", "6");
    answer({Yes});
    EXPECT_FALSE(screen_.record());
    type("24/04/2024", "6");
    answer({Yes});
    EXPECT_FALSE(screen_.record());
    EXPECT_EQ(told(), (Texts{kConfirm, "Já há férias gravadas nestes dias.", kConfirm,
                             "Já há férias gravadas neste mês de trabalho."}));
}

TEST_F(FeriasTest, SettlesOnceWhatThePayrollHasRecorded) {
    recordMostOfAPeriod();
    answer({Yes});
    EXPECT_FALSE(screen_.settle());
    EXPECT_EQ(desk_.person.shown.back().icon, Icon::Critical);
    EXPECT_EQ(told().back(), "Não há Total Líquido para Gravação do Item?");
    paid_ = Money{281664};
    EXPECT_FALSE(screen_.remove());
    EXPECT_EQ(told().back(), "A folha destas férias já foi gravada. Reabra-a antes em Folha.");
    answer({Yes});
    EXPECT_TRUE(screen_.settle());
    EXPECT_TRUE(desk_.files.content.at(kFile).ends_with("03-2024  QUITADA  2.816,64      \r\n"));
    EXPECT_EQ(rowTexts().front(), "24Dias  -  Quitada");

    ASSERT_TRUE(screen_.choose(0));
    (void)told();
    EXPECT_FALSE(screen_.record());
    EXPECT_FALSE(screen_.settle());
    EXPECT_FALSE(screen_.remove());
    EXPECT_EQ(told(), Texts(3, kSettled));
    answer({Yes});
    EXPECT_TRUE(screen_.restoreSettlement());
    EXPECT_EQ(rowTexts().front(), "24Dias  -  Quitar ");
    ASSERT_TRUE(screen_.choose(0));
    EXPECT_FALSE(screen_.restoreSettlement());
}

TEST_F(FeriasTest, TheLeaveFollowsAChangeAndARemoval) {
    recordMostOfAPeriod();
    type("08/04/2024", "20", "10");
    answer({Yes});
    EXPECT_TRUE(screen_.record());
    const std::string leaves = desk_.file("01configAf002");
    EXPECT_EQ(splitLines(leaves).size(), 2U);
    EXPECT_NE(leaves.find("08/04/2024  27/04/2024"), std::string::npos);
    ASSERT_TRUE(screen_.choose(0));
    answer({Yes});
    EXPECT_TRUE(screen_.remove());
    EXPECT_EQ(desk_.file("01configAf002"), "**** \r\n");
    EXPECT_EQ(rowTexts(), Texts(2, "30Dias  - Pendente"));
}

TEST_F(FeriasTest, AClosedMonthKeepsItsLeaves) {
    desk_.locks.closed = {"002"};
    type("10/04/2024", "30");
    answer({Yes});
    EXPECT_TRUE(screen_.record());
    EXPECT_EQ(told().back(), "O afastamento das férias não foi gravado.");
    EXPECT_TRUE(desk_.files.content.contains(kFile));
    EXPECT_FALSE(desk_.files.content.contains("/data/01configAf002"));
}

TEST_F(FeriasTest, ProvidesForAWholePeriodOnceAMonth) {
    ASSERT_TRUE(screen_.choose(1));
    answer({Yes});
    EXPECT_FALSE(screen_.provide());
    EXPECT_EQ(told().back(),
              "Não é Possível Emitir Provisão de Férias com Menos de 365 dias no Período "
              "Selecionado.!");
    ASSERT_TRUE(screen_.choose(0));
    answer({Yes});
    EXPECT_TRUE(screen_.provide());
    EXPECT_EQ(rowTexts(),
              (Texts{"30Dias  -  Provisão", "30Dias  - Pendente", "30Dias  - Pendente"}));
    EXPECT_NE(desk_.files.content.at(kFile).find("4.000,00"), std::string::npos);
    ASSERT_TRUE(screen_.choose(1));
    answer({Yes});
    EXPECT_FALSE(screen_.provide());
    EXPECT_EQ(told().back(),
              "Não Possível Emitir mais de uma Provisão de Férias no Mesmo Mês de Trabalho.!");
    EXPECT_FALSE(screen_.settle());
    EXPECT_EQ(told().back(), "Selecione e Grave um Período Aquisitivo de Férias Desejado!");
}

TEST_F(FeriasTest, WritesNothingOverAnotherScreensWork) {
    type("10/04/2024", "30");
    desk_.person.onAsk = [this] { desk_.file("01Ferias002") = "outra linha\r\n"; };
    answer({Yes});
    EXPECT_FALSE(screen_.record());
    EXPECT_EQ(desk_.files.content.at(kFile), "outra linha\r\n");
    EXPECT_FALSE(desk_.files.content.contains("/data/01configAf002"));
}

TEST_F(FeriasTest, ShowsThePeriodThatLeavesHaveCost) {
    Leave illness;
    illness.type = "003 AUXILIO_DOENÇA";
    for (const auto& [first, last] :
         {std::pair("01/05/2023", "31/08/2023"), std::pair("01/09/2023", "31/12/2023")}) {
        illness.firstDay = first;
        illness.lastDay = last;
        desk_.file("01configAf002") += encode(illness) + "\r\n";
    }
    start(1);
    EXPECT_EQ(rowTexts(), (Texts{"0Dias  -  Perdidas", "30Dias  - Pendente"}));
    ASSERT_TRUE(screen_.choose(0));
    const std::string words =
        "Férias perdidas: mais de 6 meses de auxílio-doença ou acidente no período (CLT, art. 133, "
        "IV). O novo período começa na volta ao trabalho, em 01/01/2024.";
    EXPECT_EQ(screen_.planNotes(), Texts{words});
    type("10/04/2024", "30");
    EXPECT_FALSE(screen_.record());
    EXPECT_FALSE(screen_.provide());
    EXPECT_EQ(told(), Texts(2, "Este período não dá direito a férias."));
    EXPECT_EQ(desk_.person.shown.size(), 0U);
    // A vacation of the period on record stands.
    desk_.file("01Ferias002") =
        "01/02/2023  31/01/2024  FERIAS    30  01/03/2024  30/03/2024      N  02-2024\r\n";
    answer({Yes});
    start(1);
    EXPECT_EQ(rowTexts(), (Texts{"30Dias  -  Quitar ", "30Dias  - Pendente"}));
}

TEST_F(FeriasTest, AbsencesOfThePeriodTakeDaysAway) {
    std::string card = "  \r\n";
    for (Date date = 2023y / 5 / 1; monthOf(date) == WorkMonth(2023y / 5); date = plusDays(date, 1))
        card += dayLabel(date) + (dayNumber(date) <= 15 && dayNumber(date) > 7
                                      ? std::string(35, ' ') + "Falta\r\n"
                                      : "08:0016:00\r\n");
    desk_.file("01PadrHor002.pdx") = "08:0016:00";
    desk_.file("01002-05-2023.bdx") = card;
    start(1);
    EXPECT_EQ(rowTexts().front(), "24Dias  - Pendente");
}

TEST(DueVacationTest, IsDueSixtyDaysBeforeItsLastStart) {
    const Date admission = 2023y / 2 / 1;
    // Limit 31/01/2025, last start of thirty days 02/01/2025.
    const auto taken = [](const char* granted, const char* first, const char* last) {
        VacationLines lines;
        lines.push_back(lineOf(VacationItem{.acquisitionFirst = "01/02/2023",
                                            .acquisitionLast = "31/01/2024",
                                            .kind = "FERIAS",
                                            .granted = granted,
                                            .first = first,
                                            .last = last,
                                            .thirteenth = "N",
                                            .month = "05-2024"}));
        return lines;
    };
    struct Case {
        Date today;
        VacationLines lines;
        int days;  ///< 0, none is due
    };
    for (const Case& one : {Case{2024y / 11 / 2, {}, 0}, Case{2024y / 11 / 3, {}, 30},
                            Case{2025y / 1 / 31, {}, 30}, Case{2025y / 2 / 1, {}, 0},
                            Case{2024y / 11 / 3, taken("30", "06/05/2024", "20/05/2024"), 0},
                            Case{2024y / 11 / 18, taken("30", "06/05/2024", "20/05/2024"), 15},
                            Case{2024y / 12 / 31, taken("24", "06/05/2024", "29/05/2024"), 0}}) {
        const auto due = dueVacation({admission}, one.today, one.lines);
        EXPECT_EQ(due ? due->days : 0, one.days) << dateText(one.today);
    }
}

TEST_F(FeriasTest, ListsWhatIsDue) {
    start(2);
    EXPECT_EQ(screen_.list().count(true), 1U);
    EXPECT_EQ(screen_.dueText(),
              "Vencem em 60 dias: 30 dias do período de 20/04/2022 a 19/04/2023, com início até "
              "21/03/2024 para não pagar em dobro.");
    DueState due;
    const auto state = [&] {
        return due.text(desk_.store(), CompanyCode::parse("01").value(), desk_.clock.now().date);
    };
    EXPECT_EQ(state(), "1 vence em 21/03/2024");
    EXPECT_TRUE(screen_.showOnlyDue(true));
    EXPECT_EQ(screen_.list().employees().size(), 1U);
    EXPECT_TRUE(screen_.select(EmployeeCode::parse("001").value()));
    EXPECT_EQ(screen_.selected()->name, "ANA");
    desk_.file("01configAf003") = "**** 01/03/2024\r\n";
    EXPECT_EQ(state(), "Nada a vencer em 60 dias");
    desk_.file("01configAf003") = "****           \r\n";  // as long as before
    EXPECT_EQ(state(), "1 vence em 21/03/2024");
    const int reads = desk_.files.reads;
    EXPECT_EQ(state(), "1 vence em 21/03/2024");
    EXPECT_EQ(desk_.files.reads, reads) << "nothing has changed";
}

}  // namespace
}  // namespace winvrx
