#include "foundation/register/employee_import.h"

#include "foundation/values/csv.h"
#include "foundation/values/faults.h"
#include "foundation/values/text.h"
#include "tests/support/employee_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using testing::EmployeeDesk;
using ::testing::HasSubstr;

TEST(Csv, SeparatorAndEncodingAreRecognised) {
    const CsvRows expected = {{"Nome", "Função"}, {"JOÃO; FILHO", "A \"B\""}, {"", "x,y"}};
    const std::string text = "Nome;Função\r\n\"JOÃO; FILHO\";\"A \"\"B\"\"\"\n;x,y";
    EXPECT_EQ(parseCsv(text), expected);
    EXPECT_EQ(parseCsv("\xEF\xBB\xBF" + text), expected);
    EXPECT_EQ(parseCsv(encodeWindows1252("Nome;Função")), (CsvRows{{"Nome", "Função"}}));
    EXPECT_EQ(parseCsv("Nome,Salário\nA,\"1.850,00\"\n"),
              (CsvRows{{"Nome", "Salário"}, {"A", "1.850,00"}}));
    EXPECT_EQ(parseCsv("Nome\tCPF\n\"duas\nlinhas\"\t1"),
              (CsvRows{{"Nome", "CPF"}, {"duas\nlinhas", "1"}}));
    EXPECT_EQ(parseCsv(csvText(expected)), expected);
    EXPECT_TRUE(parseCsv("").empty());
    EXPECT_THROW((void)parseCsv("Nome\n\"aberta"), TextFault);
    EXPECT_THROW((void)parseCsv(std::string("N\0o\0", 4)), TextFault);
}

class EmployeeImportTest : public ::testing::Test {
  protected:
    [[nodiscard]] bool open(const std::string& csv) {
        desk_.files.content["/out/lista.csv"] = csv;
        return import_.open("/out/lista.csv");
    }

    EmployeeDesk desk_;
    EmployeeImport import_{desk_.at};
};

TEST_F(EmployeeImportTest, RowsAreBroughtIntoTheFormOfTheRecord) {
    desk_.record("01", {EmployeeDesk::employee("001", "ZULMIRA")});
    ASSERT_TRUE(
        open("Matrícula;Nome do Funcionário;CARGO;Data de Admissão;Turno;Escala;CPF;CBO;"
             "Salário base;CEP;Cor preferida\n"
             "7;JOÃO;VIGIA;1/3/2024;noite;12 X 36;52998224725;5173-30;R$ 1850,5;12080700;"
             "azul\n\n"
             ";ANA;;12/03/2024;;;;;;;\n"));
    ASSERT_EQ(import_.goodRows(), 2U) << import_.rows()[0].problem;
    const Employee& joao = import_.rows()[0].employee;
    EXPECT_EQ(joao.code, "007");
    EXPECT_EQ(joao.admission, "01/03/2024");
    EXPECT_EQ(joao.shift, "Tres");
    EXPECT_EQ(joao.scale, "12x36");
    EXPECT_EQ(joao.taxId, "529.982.247-25");
    EXPECT_EQ(joao.occupation, "517330");
    EXPECT_EQ(joao.salary, "1.850,50");
    EXPECT_EQ(joao.postalCode, "12080-700");
    EXPECT_EQ(import_.rows()[1].number, 4U) << "the empty row counts";
    EXPECT_EQ(import_.rows()[1].employee.code, "002");
    EXPECT_EQ(import_.rows()[1].employee.shift, "Unico");
    EXPECT_THAT(import_.unknownTitles(), ElementsAre("Cor preferida"));
    const auto before = desk_.files.content;
    EXPECT_FALSE(import_.include());
    EXPECT_EQ(desk_.files.content, before) << "nothing is written before the yes";
    EXPECT_EQ(desk_.person.shown.back().text, "Confirma a Inclusão na LISTA DE FUNCIONARIOS?");
    EXPECT_EQ(desk_.person.shown.back().detail, "Serão incluídos 2 funcionários.");
    desk_.person.answers = {Answer::Yes};
    EXPECT_TRUE(import_.include());
    EXPECT_EQ(desk_.codes(), "001 007 002 ");
}

TEST_F(EmployeeImportTest, EachRowSaysItsProblem) {
    desk_.record("01", {EmployeeDesk::employee("001", "ZULMIRA")});
    struct Case {
        const char* row;
        const char* problem;
    };
    for (const Case& c : {
             Case{";12/03/2024;;;", "Falta preencher: Nome."},
             {"ANA;;;;", "Falta preencher: Admissão."},
             {"ANA;31/02/2024;;;", "Admissão: 31/02/2024 não existe."},
             {"ABCDEFGHIJKLMNOPQRSTUVWXYZÁÉÍÓ;12/03/2024;;;", ""},
             {"ABCDEFGHIJKLMNOPQRSTUVWXYZÁÉÍÓÚ;12/03/2024;;;", "Nome com mais de 30 caracteres."},
             {"ANA 😀;12/03/2024;;;", "Nome: Contém um caractere que não pode ser gravado."},
             {"ANA;12/03/2024;madrugada;;", "Turno \"madrugada\" não é Unico, Um, Dois nem Tres."},
             {"ANA;12/03/2024;;6x2;", "Escala \"6x2\" não é Normal, 5x1 nem 12x36."},
             {"ANA;12/03/2024;;12x36;", "Escala: 12x36 somente nos turnos 1 e 3."},
             {"ANA;12/03/2024;;;1", "Código: 001 já pertence a outro funcionário."},
             {"ANA;12/03/2024;;;12345", "Código: são três algarismos."},
             {"Zulmira;12/03/2024;;;", "Este funcionário já está na lista."},
         }) {
        ASSERT_TRUE(open(std::string("Nome;Admissão;Turno;Escala;Código\n") + c.row));
        EXPECT_EQ(import_.rows().at(0).problem, c.problem) << c.row;
    }
}

TEST_F(EmployeeImportTest, RowsOfOneFileDoNotCollide) {
    ASSERT_TRUE(
        open("Nome;Admissão;Código;CPF\nANA;12/03/2024;5;\nBIA;12/03/2024;5;\n"
             "ANA;12/03/2024;;\nEVA;12/03/2024;;111.111.111-11\n"));
    EXPECT_EQ(import_.goodRows(), 2U);
    EXPECT_THAT(import_.rows()[1].problem, HasSubstr("Código: 005"));
    EXPECT_THAT(import_.rows()[2].problem, HasSubstr("já está na lista"));
    EXPECT_EQ(import_.rows()[3].notice, "CPF não confere.");
}

TEST_F(EmployeeImportTest, RestDaysAndSalariesAreReadAsSpreadsheetsWriteThem) {
    struct Case {
        const char* restDay;
        const char* salary;
        const char* recordedDay;
        const char* recordedSalary;
        const char* notice;
    };
    for (const Case& c : {Case{"Domingo", "1850", "dom", "1.850,00", ""},
                          {"SEGUNDA-FEIRA", "R$ 1.850,5", "seg", "1.850,50", ""},
                          {"sabado", "", "sáb", "", ""},
                          {"qui", "1850.00", "qui", "1850.00", "Digite o valor como 1.234,56."}}) {
        ASSERT_TRUE(open(std::string("Nome;Admissão;Folga;Salário\nANA;12/03/2024;") + c.restDay +
                         ";" + c.salary));
        const ImportedRow& row = import_.rows().at(0);
        EXPECT_EQ(row.problem, "") << c.restDay;
        EXPECT_EQ(row.employee.restDay, c.recordedDay);
        EXPECT_EQ(row.employee.salary, c.recordedSalary);
        EXPECT_EQ(row.notice, c.notice) << c.salary;
    }
}

TEST_F(EmployeeImportTest, WhatIsNoListIsRefused) {
    for (const char* csv : {"", "a;b\n1;2\n", "Nome\n\"aberta"}) {
        EXPECT_FALSE(open(csv)) << csv;
        EXPECT_EQ(desk_.person.shown.back().text, "Dados incorretos!");
    }
    EXPECT_FALSE(import_.open("/out/nothing.csv"));
    desk_.session.company.reset();
    EXPECT_FALSE(open("Nome;Admissão\nANA;12/03/2024\n"));
    EXPECT_EQ(desk_.person.shown.back().text, "Cadastre Primeiro Uma Empresa!!");
}

TEST_F(EmployeeImportTest, AListChangedMeanwhileIsNotOverwritten) {
    ASSERT_TRUE(open("Nome;Admissão\nANA;12/03/2024\n"));
    desk_.record("01", {EmployeeDesk::employee("001", "BIA")});
    desk_.person.answers = {Answer::Yes};
    EXPECT_FALSE(import_.include());
    EXPECT_EQ(desk_.codes(), "001 ");
}

TEST_F(EmployeeImportTest, AnExportedListComesBackWhole) {
    Employee ana = EmployeeDesk::employee("001", "ANA D'ÁVILA");
    ana.notes = "duas \"palavras\"; e mais";
    ana.salary = "1.850,00";
    ana.restDay = "dom";
    ana.bank = "001 0123-4";
    desk_.record("01", {ana});
    const std::string line = desk_.file("01CartaPonto");
    ASSERT_TRUE(desk_.empregados.exportTo("/out/lista.csv"));
    desk_.record("01", {});
    ASSERT_TRUE(import_.open("/out/lista.csv"));
    desk_.person.answers = {Answer::Yes};
    EXPECT_TRUE(import_.include());
    EXPECT_EQ(desk_.file("01CartaPonto"), line);
}

}  // namespace
}  // namespace winvrx
