// Options of the company, facts of an employee and the month's guide.
#include "foundation/files/record_names.h"
#include "personnel/employer/agencies.h"
#include "personnel/employer/domestic_month.h"
#include "personnel/employer/folha_dados.h"
#include "personnel/employer/folha_opcoes.h"
#include "tests/support/employees.h"
#include "tests/support/legal_tables.h"
#include "tests/support/test_browser.h"
#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using enum Answer;
using namespace std::chrono_literals;

class EmployerTest : public ::testing::Test, protected testing::TestWorkplace {
  protected:
    EmployerTest() {
        testing::deliverLegalTables(files, "/program/legal", WINVRX_LEGAL_FOLDER);
        file("01CartaPonto") = testing::employeeList(
            {testing::employee("001", "ANA"), testing::employee("002", "RUI")});
    }
    /// Their places in the tables.
    static std::size_t setting(std::string_view key) {
        std::size_t place = 0;
        while (payrollSettings()[place].key != key)
            ++place;
        return place;
    }
    static std::vector<std::string> facts(std::string_view key, const std::string& text) {
        std::vector<std::string> all;
        for (const PayrollFact& fact : payrollFactTable())
            all.push_back(fact.key == key ? text : "");
        return all;
    }
};

TEST_F(EmployerTest, OptionsAreRecordedAfterAQuestionThatNamesThem) {
    file("01FolhaOpcoes") = "sabado-util = 0\r\nfutura = 7\r\n";
    FolhaOpcoes options(at);
    ASSERT_TRUE(options.load());
    EXPECT_EQ(options.choice(setting("sabado-util")), 0U);
    EXPECT_FALSE(options.save());
    options.choose(setting("inss"), 1);
    EXPECT_FALSE(options.save());
    EXPECT_FALSE(options.confirmDiscard());
    EXPECT_EQ(file("01FolhaOpcoes"), "sabado-util = 0\r\nfutura = 7\r\n");
    person.answers = {Yes};
    EXPECT_TRUE(options.save());
    EXPECT_EQ(person.shown.back().detail,
              "Centavos do INSS: Arredondar a soma\nAs folhas já gravadas ficam como estão.");
    EXPECT_TRUE(options.confirmDiscard());
    const auto recorded = loadPayrollSettings(store(), *session.company);
    EXPECT_EQ(recorded.settings.inssRounding, InssRounding::RoundedOnce);
    EXPECT_FALSE(recorded.settings.saturdayIsWorkingDay);
    EXPECT_EQ(recorded.unread, std::vector<std::string>{"futura = 7"});

    // Another machine chose meanwhile: nothing of it is lost.
    file("01FolhaOpcoes") = "domestico = 1\r\n";
    options.chooseUsual();
    person.answers = {Yes};
    EXPECT_FALSE(options.save());
    EXPECT_EQ(file("01FolhaOpcoes"), "domestico = 1\r\n");
}

TEST_F(EmployerTest, FactsAreCheckedAndRecordedForOneEmployee) {
    file("01FolhaDados001") = "vale-dia = 12,00\r\nfutura = 7\r\nferias-vencidas = x\r\n";
    FolhaDados screen(at);
    ASSERT_TRUE(screen.load());
    EXPECT_FALSE(screen.save(facts("pensao", "1,00"))) << "nobody is chosen";
    ASSERT_TRUE(screen.select(0));
    EXPECT_EQ(screen.texts(), facts("vale-dia", "12,00"));
    EXPECT_EQ(screen.unread(), (std::vector<std::string>{"futura = 7", "ferias-vencidas = x"}));
    struct Case {
        const char* key;
        const char* text;
        const char* why;
    };
    for (const Case& c : {Case{"pensao", "trezentos", "não é um valor em reais."},
                          Case{"pensao-liquido", "100,01", "não é um percentual de 0 a 100"},
                          Case{"ferias-vencidas", "12", "não é um número de 0 a 9."}}) {
        EXPECT_FALSE(screen.save(facts(c.key, c.text)));
        EXPECT_NE(person.shown.back().detail.find(c.why), std::string::npos);
        EXPECT_EQ(payrollFactTable()[screen.blamed().value()].key, c.key);
    }
    EXPECT_FALSE(screen.confirmDiscard(facts("pensao", "300")));
    person.answers = {Yes};
    EXPECT_TRUE(screen.save(facts("pensao-bruto", "33,3")));
    EXPECT_EQ(file("01FolhaDados001"),
              "pensao-bruto = 33,30\r\nfutura = 7\r\nferias-vencidas = x\r\n");
    person.answers = {Yes};
    EXPECT_TRUE(screen.save(facts("pensao", "300")));
    EXPECT_EQ(file("01FolhaDados001"), "pensao = 300,00\r\nfutura = 7\r\nferias-vencidas = x\r\n");
    EXPECT_FALSE(files.content.contains("/data/01FolhaDados002"));
    EXPECT_TRUE(screen.confirmDiscard(facts("pensao", "300,00")));

    file("01FolhaDados001") = "aprendiz = Sim\r\n";
    person.answers = {Yes};
    EXPECT_FALSE(screen.save(facts("acordo", "Sim"))) << "changed since it was read";
    EXPECT_EQ(file("01FolhaDados001"), "aprendiz = Sim\r\n");
    removeRecordsOfEmployee(store(), {*session.company, *EmployeeCode::parse("001")});
    EXPECT_FALSE(files.content.contains("/data/01FolhaDados001"));
}

TEST_F(EmployerTest, TheGuideAddsUpWhatIsRecorded) {
    DomesticMonth month(at, "/program/legal");
    EXPECT_FALSE(month.load());
    file("01FolhaOpcoes") = "domestico = 1\r\n";
    EXPECT_FALSE(month.load());
    file("DataIde.ivc") = "12-2026\r\nTodos\r\n";
    EXPECT_FALSE(month.load());
    EXPECT_EQ(person.takeTexts(),
              (std::vector<std::string>{"Esta Empresa não é um Empregador Doméstico!",
                                        "Informe um Mês de Trabalho!!",
                                        "Não Há Folha Gravada em dezembro/2026!"}));
    file("01fp0000112-2026.bdx") =
        "001 SALARIO BASE         1220,01111000 1.621,00\r\n"
        "091 INSS                 0000,00001000 121,57\r\n"
        "092 IRRF                 0000,00001000 10,00\r\n";
    file("01fi0000112-2026.bdx") =
        "017 13SALARIO INTEGRAL   1000,01110010 1.000,00\r\n"
        "095 INSS S/13SAL         0000,00000010 75,00\r\n"
        "032 DESC 13SALAR ADIANT  0000,00000010 500,00\r\n";
    ASSERT_TRUE(month.load());
    ASSERT_EQ(month.lines().size(), 1U);
    EXPECT_EQ(month.unrecorded(), std::vector<std::string>{"002 RUI"});
    EXPECT_EQ(month.due(), 2027y / 1 / 20);
    const GuideAmounts sum = month.total();
    EXPECT_EQ(sum.employeeInss, Money{19657});
    EXPECT_EQ(sum.incomeTax, Money{1000});
    EXPECT_EQ(sum.employerInss, Money{12968 + 8000});
    EXPECT_EQ(sum.accident, Money{1296 + 800});
    // Of the 13th only what the first instalment did not have.
    EXPECT_EQ(sum.fgts, Money{16968});
    EXPECT_EQ(sum.reserve, Money{6787});
    EXPECT_EQ(sum.total(), Money{19657 + 1000 + 20968 + 2096 + 16968 + 6787});
    const Statement page = month.statement();
    EXPECT_EQ(page.about, "dezembro/2026 · pagamento até 20/01/2027");
    EXPECT_EQ(page.lines.at(7).total, moneyText(sum.total()));
}

TEST_F(EmployerTest, AgenciesOpenInTheBrowserOrAreNamed) {
    testing::TestBrowser browser;
    for (const AgencyPage& page : kAgencyPages) {
        EXPECT_TRUE(openAgencyPage(at, browser, page));
        EXPECT_TRUE(page.address.starts_with("https://www.gov.br/")) << page.address;
    }
    EXPECT_EQ(browser.files.size(), kAgencyPages.size());
    browser.works = false;
    EXPECT_FALSE(openAgencyPage(at, browser, kAgencyPages[0]));
    EXPECT_NE(person.shown.back().detail.find(kAgencyPages[0].address), std::string::npos);
}

}  // namespace
}  // namespace winvrx
