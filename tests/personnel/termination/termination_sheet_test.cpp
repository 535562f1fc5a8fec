#include "personnel/termination/termination_sheet.h"

#include "foundation/values/text.h"
#include "personnel/leaves/leave_form.h"
#include "personnel/leaves/leave_types.h"
#include "tests/support/employees.h"
#include "tests/support/legal_tables.h"
#include "tests/support/test_workplace.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

const std::filesystem::path kLegal = "/program/legal";

class TerminationSheetTest : public ::testing::Test, protected testing::TestWorkplace {
  protected:
    TerminationSheetTest() {
        testing::deliverLegalTables(files, kLegal, WINVRX_LEGAL_FOLDER);
        ana.admission = "10/01/2023";
        ana.salary = "3.000,00";
    }

    /// Given on 15/06/2026; `ends` typed over the end of the notice.
    void record(std::size_t type, std::size_t notice, const char* ends = "") {
        LeaveForm form(ana.admissionDate());
        form.type(LeaveInput::Type, kLeaveTypes[7]);
        form.type(LeaveInput::FirstDay, "15/06/2026");
        form.type(LeaveInput::TerminationType, kTerminationTypes[type - 1]);
        form.type(LeaveInput::NoticeType, kNoticeTypes[notice - 1]);
        if (*ends != '\0') form.type(LeaveInput::NoticeEnds, ends);
        file("01configAf001") = encode(form.leave()) + "\r\n**** \r\n";
    }
    [[nodiscard]] TerminationSheet sheet() {
        return loadTerminationSheet(store(), kLegal, *CompanyCode::parse("01"), ana);
    }
    void say(const std::vector<std::string>& facts) {
        file("01FolhaDados001").clear();
        for (const std::string& one : facts)
            file("01FolhaDados001") += encodeWindows1252(one) + "\r\n";
    }
    /// "Saldo de salário 15 dias 1.500,00; ..."
    static std::string textOf(const std::vector<TerminationLine>& lines) {
        std::string all;
        for (const TerminationLine& line : lines)
            all += line.words + (line.quantity.empty() ? "" : " " + line.quantity) + " " +
                   moneyText(line.amount) + "; ";
        return all;
    }
    [[nodiscard]] std::string refusal() {
        try {
            (void)sheet();
        } catch (const Fault& fault) {
            return fault.explanation();
        }
        return {};
    }

    Employee ana = testing::employee("001", "ANA");
};

TEST_F(TerminationSheetTest, HasTheLinesOfEachType) {
    struct Case {
        std::size_t type;
        std::size_t notice;
        const char* fact;
        const char* credits;
        const char* debits;
        const char* deposits;
    };
    for (const Case& c : {
             Case{1, 2, "",
                  "Saldo de salário 15 dias 1.500,00; Aviso prévio indenizado 39 dias 3.900,00; "
                  "13º salário proporcional 7/12 1.750,00; Férias proporcionais 7/12 1.750,00; "
                  "1/3 das férias proporcionais 583,33; ",
                  "INSS 112,50; INSS sobre o 13º salário 133,18; ",
                  "FGTS da rescisão 572,00; Multa do FGTS 4.228,80; "},
             Case{1, 2, "acordo = Sim",
                  "Saldo de salário 15 dias 1.500,00; Aviso prévio indenizado 20 dias 2.000,00; "
                  "13º salário proporcional 6/12 1.500,00; Férias proporcionais 6/12 1.500,00; "
                  "1/3 das férias proporcionais 500,00; ",
                  "INSS 112,50; INSS sobre o 13º salário 112,50; ",
                  "FGTS da rescisão 400,00; Multa do FGTS 2.080,00; "},
             Case{1, 1, "acordo = Sim",
                  "Saldo de salário 15 dias 1.500,00; Aviso prévio indenizado 5 dias 500,00; 13º "
                  "salário proporcional 7/12 1.750,00; Férias proporcionais 6/12 1.500,00; 1/3 das "
                  "férias proporcionais 500,00; ",
                  "INSS 112,50; INSS sobre o 13º salário 133,18; ",
                  "FGTS da rescisão 300,00; Multa do FGTS 2.060,00; "},
             Case{5, 2, "aprendiz = Sim",
                  "Saldo de salário 15 dias 1.500,00; Aviso prévio indenizado 20 dias 2.000,00; "
                  "13º salário proporcional 6/12 750,00; Férias proporcionais 6/12 750,00; 1/3 das "
                  "férias proporcionais 250,00; ",
                  "INSS 112,50; INSS sobre o 13º salário 56,25; ",
                  "FGTS da rescisão 85,00; Multa do FGTS 2.017,00; "},
             Case{3, 2, "pensao = 300,00",
                  "Saldo de salário 15 dias 1.500,00; 13º salário proporcional 6/12 1.500,00; "
                  "Férias proporcionais 5/12 1.250,00; 1/3 das férias proporcionais 416,67; ",
                  "PENSAO ALIMENTICIA 300,00; Aviso prévio não cumprido 30 dias 3.000,00; INSS "
                  "112,50; INSS sobre o 13º salário 112,50; ",
                  "FGTS da rescisão 240,00; "},
             Case{2, 2, "ferias-vencidas = 2",
                  "Saldo de salário 15 dias 1.500,00; Férias vencidas, com 1/3 2 períodos "
                  "16.000,00; ",
                  "INSS 112,50; ", "FGTS da rescisão 120,00; "},
         }) {
        record(c.type, c.notice);
        say({"fgts-saldo = 10.000,00", "ferias-vencidas = 0", "vale-dia = 0,00", c.fact});
        SCOPED_TRACE(std::to_string(c.type) + " " + c.fact);
        const TerminationSheet computed = sheet();
        EXPECT_EQ(textOf(computed.credits), c.credits);
        EXPECT_EQ(textOf(computed.debits), c.debits);
        EXPECT_EQ(textOf(computed.deposits), c.deposits);
        EXPECT_EQ(computed.net, computed.gross - computed.deductions);
        // Nothing besides the salary is due of the last month: the figures one by one agree.
        EXPECT_EQ(computed.gross, computed.pay.gross);
    }
}

TEST_F(TerminationSheetTest, TakesWhatTheRecordsSay) {
    record(1, 2, "31/07/2026");
    Leave vacation;
    vacation.type = kLeaveTypes[5];
    vacation.firstDay = "01/02/2024";
    vacation.lastDay = "01/03/2024";
    file("01configAf001").insert(0, encode(vacation) + "\r\n");
    file("01fa0000105-2026.bdx") = "019 13SALAR ADIANTADO    1000,00000010 1.500,00\r\n";
    file("01FolhaOpcoes") = "domestico = 1\r\n";
    const TerminationSheet computed = sheet();
    EXPECT_EQ(textOf(computed.credits),
              "Saldo de salário 15 dias 1.500,00; Aviso prévio indenizado 46 dias 4.600,00; 13º "
              "salário proporcional 7/12 1.750,00; Férias vencidas, com 1/3 2 períodos 12.000,00; "
              "Férias proporcionais 7/12 1.750,00; 1/3 das férias proporcionais 583,33; ");
    EXPECT_EQ(textOf(computed.debits),
              "VALE TRANSPORTES 90,00; 1ª parcela do 13º salário 1.500,00; INSS 112,50; INSS "
              "sobre o 13º salário 133,18; ");
    // A domestic employer has paid the reserve of each month in place of a fine.
    EXPECT_EQ(textOf(computed.deposits), "FGTS da rescisão 508,00; ");
    EXPECT_EQ(computed.record.dates.noticeEnds.rule, "Como está registrado no afastamento");
    EXPECT_EQ(computed.remarks.size(), 2U);
}

TEST_F(TerminationSheetTest, TakesOffWhatPayrollsOnRecordHavePaid) {
    record(1, 2);
    say({"fgts-saldo = 10.000,00", "ferias-vencidas = 0", "vale-dia = 0,00"});
    const Money net = sheet().net;
    struct Case {
        const char* name;
        const char* lines;
        const char* debits;  ///< besides those of the end
        const char* fgts;
    };
    // Of the month what was withheld comes back as well: it is in the debits of the end.
    for (const Case& c : {
             Case{"01fp0000106-2026.bdx",
                  "001 SALARIO BASE         1220,01111000 1.500,00\r\n"
                  "091 INSS                 0000,00001000 112,50\r\n",
                  "Já pago na folha de junho/2026 1.387,50; ", "452,00"},
             Case{"01fi0000106-2026.bdx",
                  "017 13SALARIO INTEGRAL   1000,01110010 1.500,00\r\n"
                  "095 INSS S/13SAL         0000,00000010 112,50\r\n",
                  "2ª parcela do 13º salário 1.387,50; ", "452,00"},
             Case{"01fv0000106-2026.bdx",
                  "011 SALARIO BASE FERIAS  1000,01110100 4.000,00\r\n"
                  "093 INSS S/FERIAS        0000,00000100 373,41\r\n",
                  "Férias já pagas e não gozadas 3.626,59; ", "572,00"},
         }) {
        SCOPED_TRACE(c.name);
        file("01Ferias001") =
            "10/01/2025  09/01/2026  FERIAS    30  01/07/2026  30/07/2026      N  06-2026\r\n";
        file(c.name) = c.lines;
        const TerminationSheet computed = sheet();
        EXPECT_EQ(textOf(computed.debits),
                  c.debits + std::string("INSS 112,50; INSS sobre o 13º salário 133,18; "));
        EXPECT_EQ(moneyText(computed.pay.fgts.amount), c.fgts);
        EXPECT_EQ(computed.net, net - (computed.deductions - Money{24568}));
        files.content.erase("/data/" + std::string(c.name));
    }
}

TEST_F(TerminationSheetTest, CountsNoVacationOfAPeriodLostByIllness) {
    record(1, 2);
    say({"fgts-saldo = 10.000,00", "vale-dia = 0,00"});
    Leave illness;
    illness.type = kLeaveTypes[2];
    illness.firstDay = "01/03/2025";
    illness.lastDay = "31/12/2025";
    file("01configAf001").insert(0, encode(illness) + "\r\n");
    // The periods of 2023 and 2024 stand; that of 2025 is lost, and the next runs since 01/01/2026.
    const std::string credits = textOf(sheet().credits);
    EXPECT_NE(credits.find("Férias vencidas, com 1/3 2 períodos "), std::string::npos) << credits;
    EXPECT_NE(credits.find("Férias proporcionais 7/12 "), std::string::npos) << credits;
}

TEST_F(TerminationSheetTest, TakesTheLastMonthsCardAndTheAveragesOfTheYear) {
    record(1, 2);
    say({"ferias-vencidas = 0", "vale-dia = 10,00"});
    file("01PadrHor001.pdx") = "08:0016:00";
    // Two hours of overtime on one day of each month, the last days of June after the end.
    for (const WorkMonth month : {std::chrono::year{2026} / 4, std::chrono::year{2026} / 6}) {
        file("01001-" + monthKey(month) + ".bdx") = "  \r\n" + dayLabel(month / 8) +
                                                    "08:0018:00\r\n" + dayLabel(month / 9) +
                                                    "08:0016:00\r\n";
    }
    file("01fp0000104-2026.bdx") = "001 SALARIO BASE         1220,01111000 3.000,00\r\n";
    const TerminationSheet computed = sheet();
    const auto amountOf = [&](std::string_view words) {
        for (const auto* lines : {&computed.credits, &computed.debits})
            for (const TerminationLine& line : *lines)
                if (line.words == words) return line.amount;
        return Money{};
    };
    EXPECT_EQ(amountOf("VALE TRANSPORTES"), Money{2000});
    EXPECT_EQ(amountOf("HORA EXTRA 50%"), Money{4091});
    // (3.000,00 + 40,91) ÷ 30 × 39
    EXPECT_EQ(amountOf("Aviso prévio indenizado"), Money{395318});
    EXPECT_TRUE(computed.remarks.size() == 1U) << "the FGTS account alone";
}

TEST_F(TerminationSheetTest, TakesWhatTheVacationScreenRecorded) {
    // Of the first period twelve days are left, past its limit; the second is taken, of the third
    // nothing is recorded but a vacation after the end.
    record(1, 2);
    file("01Ferias001") =
        "10/01/2023  09/01/2024  FERIAS    30  01/04/2024  18/04/2024      N  03-2024\r\n"
        "10/01/2024  09/01/2025  FERIAS    30  01/04/2025  20/04/2025  10  N  03-2025\r\n"
        "10/01/2025  09/01/2026  FERIAS    30  01/07/2026  30/07/2026      N  06-2026\r\n";
    const TerminationSheet computed = sheet();
    // (3.000,00 + 3.000,00 ÷ 30 × 24) × 4 ÷ 3
    EXPECT_NE(textOf(computed.credits).find("com 1/3 1 período e 24 dias 7.200,00"),
              std::string::npos)
        << textOf(computed.credits);
}

TEST_F(TerminationSheetTest, SaysWhatIsMissing) {
    EXPECT_EQ(refusal(),
              "Registre primeiro a rescisão de ANA na tela de Afastamentos, com o tipo 008.");
    record(1, 2);
    file("01configAf001").replace(98, 2, "  ");
    EXPECT_EQ(refusal(),
              "Falta o tipo de rescisão na rescisão registrada na tela de Afastamentos.");
    record(1, 2, "14/06/2026");
    EXPECT_EQ(refusal(),
              "As datas da rescisão estão fora de ordem: admissão, último dia trabalhado, fim do "
              "aviso.");
    record(1, 2);
    ana.salary.clear();
    EXPECT_EQ(refusal(), "O cadastro do funcionário não tem o valor do salário.");
    files.content.erase(kLegal / "inss.txt");
    EXPECT_EQ(refusal().substr(0, 31), "Falta a tabela legal inss.txt n");
}

}  // namespace
}  // namespace winvrx
