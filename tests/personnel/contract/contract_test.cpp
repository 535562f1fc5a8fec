#include "personnel/contract/contract.h"

#include "personnel/contract/booklet_box.h"
#include "personnel/contract/contract_file.h"
#include "tests/support/employees.h"
#include "tests/support/test_workplace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace winvrx {
namespace {

using Texts = std::vector<std::string>;

Contract trial() {
    Contract contract;
    contract.kind = "Experiência";
    contract.begins = "12/02/2024";
    contract.trialDays = "45";
    contract.extensionDays = "45";
    contract.salary = "1.850,00";
    contract.signedOn = "12/02/2024";
    return contract;
}

TEST(Contract, SaysWhatTheLawDoesNotAllow) {
    using Edit = void (*)(Contract&);
    struct Case {
        Edit edit;
        Texts found;
    };
    for (const Case& c :
         {Case{[](Contract&) {}, {}}, Case{[](Contract& c) { c.extensionDays = ""; }, {}},
          Case{[](Contract& c) { c.trialDays = "90", c.extensionDays = ""; }, {}},
          Case{[](Contract& c) { c.trialDays = "91", c.extensionDays = ""; },
               {"Dias de experiência: experiência e prorrogação passam de 90 dias."}},
          Case{[](Contract& c) { c.extensionDays = "46"; },
               {"Dias de prorrogação: experiência e prorrogação passam de 90 dias."}},
          Case{[](Contract& c) { c.trialDays = ""; },
               {"Dias de experiência: informe quantos dias dura a experiência.",
                "Dias de prorrogação: não há experiência para prorrogar."}},
          Case{[](Contract& c) { c.trialDays = "0"; },
               {"Dias de experiência: informe de 1 a 90 dias."}},
          Case{[](Contract& c) { c.kind = "Doméstico", c.trialDays = c.extensionDays = ""; }, {}},
          Case{[](Contract& c) { c.kind = "Intermitente", c.trialDays = "99"; }, {}},
          Case{[](Contract& c) { c.kind = "Eterno"; },
               {"Tipo de contrato: não é um tipo conhecido."}},
          Case{[](Contract& c) { c.begins = "30/02/2024"; },
               {"Início: “30/02/2024” não é uma data."}},
          Case{[](Contract& c) { c.salary = "100.000,00"; },
               {"Remuneração: “100.000,00” não é um valor até 99.999,99."}},
          Case{[](Contract& c) { c.kind = "Prazo determinado", c.reason = "safra"; },
               {"Término: informe o último dia do prazo."}},
          Case{[](Contract& c) { c.kind = "Prazo determinado", c.ends = "11/02/2026"; },
               {"Motivo do prazo: diga o serviço transitório ou a atividade que justifica o "
                "prazo."}},
          Case{[](Contract& c) {
                   c.kind = "Prazo determinado", c.reason = "safra", c.ends = "12/02/2026";
               },
               {"Término: passa de dois anos."}},
          Case{[](Contract& c) {
                   c.kind = "Prazo determinado", c.reason = "safra", c.ends = "11/02/2024";
               },
               {"Término: termina antes de começar."}}}) {
        Contract contract = trial();
        c.edit(contract);
        Texts found;
        for (const auto& finding : wrongIn(contract))
            found.push_back(captioned(finding));
        EXPECT_EQ(found, c.found);
    }
    Contract leap = trial();
    leap.kind = "Prazo determinado", leap.reason = "safra";
    leap.begins = "29/02/2024", leap.ends = "27/02/2026";
    EXPECT_TRUE(wrongIn(leap).empty());
    Employee ana = testing::employee("001", "ANA", {.admission = "13/02/2024"});
    ana.salary = "1.850,01";
    EXPECT_EQ(doubtsAbout(trial(), ana).size(), 2U);
}

TEST(Contract, TrialEndsWithItsDaysAndTheExtension) {
    EXPECT_EQ(dateText(*trial().trialEnd()), "27/03/2024");
    EXPECT_EQ(dateText(*trial().extendedEnd()), "11/05/2024");
    EXPECT_EQ(trial().lastDay(), trial().extendedEnd());
    Contract once = trial();
    once.extensionDays = "";
    EXPECT_FALSE(once.extendedEnd());
    EXPECT_EQ(once.lastDay(), once.trialEnd());
    once.kind = "Prazo indeterminado";
    EXPECT_FALSE(once.trialEnd() || once.lastDay());
}

/// Seen on each of these days: fifteen before an end it shows, on the day after it no more.
TEST(Contract, TrialsThatEndSoonAreFound) {
    testing::TestWorkplace desk;
    Employee gone = testing::employee("003", "RUI", {.admission = "12/02/2024"});
    gone.dismissal = "01/03/2024";
    desk.file("01CartaPonto") =
        testing::employeeList({testing::employee("001", "ANA", {.admission = "12/02/2024"}),
                               testing::employee("002", "BIA", {.admission = "12/02/2024"}), gone,
                               testing::employee("004", "OLD", {.admission = "12/02/2020"}),
                               testing::employee("005", "NEW", {.admission = "12/02/2024"})});
    Contract shorter = trial();
    shorter.trialDays = "30", shorter.extensionDays = "";
    const CompanyCode company = *desk.session.company;
    const auto key = [&](const char* code) {
        return EmployeeKey{company, *EmployeeCode::parse(code)};
    };
    saveContract(desk.store(), key("001"), trial());
    saveContract(desk.store(), key("002"), shorter);
    saveContract(desk.store(), key("003"), trial());
    saveContract(desk.store(), key("004"), trial());
    desk.file("01contrato005") = "";
    struct Case {
        const char* today;
        Texts ending;
    };
    for (const Case& c :
         {Case{"25/02/2024", {}}, Case{"27/02/2024", {"BIA 12/03/2024"}},
          Case{"12/03/2024", {"BIA 12/03/2024", "ANA 27/03/2024"}},
          Case{"13/03/2024", {"ANA 27/03/2024"}}, Case{"27/03/2024", {"ANA 27/03/2024"}},
          Case{"28/03/2024", {}}, Case{"26/04/2024", {"ANA 11/05/2024"}},
          Case{"11/05/2024", {"ANA 11/05/2024"}}, Case{"12/05/2024", {}}}) {
        Texts ending;
        for (const auto& one : endingTrials(desk.store(), company, *parseDate(c.today)))
            ending.push_back(one.employee.name + " " + dateText(one.lastDay));
        EXPECT_EQ(ending, c.ending) << c.today;
    }
}

TEST(Contract, LineComesBackAndKeepsWhatItDoesNotKnow) {
    testing::TestWorkplace desk;
    const EmployeeKey key{*desk.session.company, *EmployeeCode::parse("001")};
    EXPECT_FALSE(loadContract(desk.store(), key));
    Contract contract = trial();
    contract.reason = "substituição de empregada em licença";
    saveContract(desk.store(), key, contract);
    EXPECT_EQ(desk.file("01contrato001").size(), kContractWidth + 2);
    EXPECT_EQ(loadContract(desk.store(), key)->record, contract);
    desk.file("01contrato001").insert(kContractWidth, "more");
    const auto line = loadContract(desk.store(), key);
    contract.salary = "2.000,00";
    saveContract(desk.store(), key, contract, line->bytes);
    EXPECT_TRUE(desk.file("01contrato001").ends_with("more\r\n"));
    EXPECT_EQ(loadContract(desk.store(), key)->record, contract);
}

TEST(BookletBox, HasItsLinesInTheirPlaces) {
    Company company = sampleCompany(*parseDate("01/01/2024"));
    Employee ana = testing::employee("001", "ANA");
    ana.function = "CONFEITEIRA";
    ana.occupation = "848310";
    ana.registration = "00007";
    Contract contract = trial();
    contract.establishment = "Comércio";
    contract.registration = "99999";
    contract.sheet = "12";
    contract.salary = "54.454,54";
    const Texts box = boxLines(company, ana, contract);
    const std::string street = "AV. BANDEIRANTES, SN" + std::string(20, ' ');
    EXPECT_EQ(box, (Texts{"                   CONTRATO DE TRABALHO",
                          "Empregador: EMPRESA MODELO LTDA",
                          "CNPJ/MF: " + company.taxId,
                          "Rua: " + street + " UF: SP",
                          "Municipio: TAUBATE",
                          "Esp. do estabelecimento: Comércio",
                          "Cargo: CONFEITEIRA                    CBO: 848310",
                          "Data admissão: 12/02/2024",
                          "Registro n.: 00007 Fls./Ficha: 12",
                          "Remuneração específicada: R$ 54.454,54 (Cinquenta e Quatro",
                          "Mil, Quatrocentos e Cinquenta e Quatro Reais  e Cinquenta",
                          "e Quatro Centavos)",
                          std::string(52, '_'),
                          ".        Ass. do empregador ou a rogo c/test.",
                          "1._______________________ 2._________________________ ",
                          "Data Saída: _______/______________________/________ ",
                          std::string(52, '_'),
                          ".        Ass. do empregador ou a rogo c/test.",
                          "1._______________________ 2._________________________ ",
                          "Com. Dispensa CD N. _________________________________ "}));
    EXPECT_EQ(box.size(), kBoxLines);
    struct Case {
        BookletPlace place;
        std::size_t row;
        std::size_t column;
        std::size_t indent;
    };
    for (const Case& c :
         {Case{BookletPlace::LeftAbove, 1, 0, 4}, Case{BookletPlace::LeftBelow, 23, 0, 4},
          Case{BookletPlace::RightAbove, 1, 1, 66}, Case{BookletPlace::RightBelow, 23, 1, 66}}) {
        const ReportRows rows = bookletRows(box, c.place);
        EXPECT_EQ(rows.size(), 42U);
        EXPECT_EQ(rows[c.row][c.column], std::string(c.indent, ' ') + box[1]);
        std::size_t filled = 0;
        for (const ReportRow& row : rows)
            filled += row[c.column].empty() ? 0 : 1;
        EXPECT_EQ(filled, kBoxLines);
    }
    // What is shorter leaves its lines blank, and the signature stays in its place.
    contract.salary = "1.500,00";
    EXPECT_EQ(boxLines(company, ana, contract)[12], std::string(52, '_'));
    EXPECT_EQ(boxLines(company, ana, contract)[11], "");
}

}  // namespace
}  // namespace winvrx
