#include "foundation/copies/copied_files.h"

#include <gtest/gtest.h>

namespace winvrx {
namespace {

TEST(CopiedFilesTest, OnlyPlainNamesAreFilesOfTheFolder) {
    for (const char* name : {"01Empresa", "01001-03-2024.bdx", "bk-0115-03-2024-10-00.bkp",
                             "Relação São João.txt", "CONTA.txt", "COM10.txt", "-"})
        EXPECT_TRUE(isPlainFileName(name)) << name;
    for (const char* name :
         {"",     ".",           "..",       "../x",         "a/b",      "..\\x",
          "a\\b", "/etc/passwd", "C:x",      "C:\\x",        "x:stream", "\\\\server\\share",
          "nul",  "NUL.txt",     "con .txt", "Com1",         "lpt9.bdx", "LPT¹",
          "x.",   "x ",          " x",       ".oculto",      "a*b",      "a?",
          "a\nb", "a\x7F",       "\xFF",     "\xE2\x98\xBA", "a|b"})
        EXPECT_FALSE(isPlainFileName(name)) << name;
    EXPECT_FALSE(isPlainFileName(std::string("01Empresa\0.txt", 14)));
    EXPECT_FALSE(isPlainFileName(std::string(300, 'a')));
}

TEST(CopiedFilesTest, FilesOfTheRunAreNotCopied) {
    for (const char* name : {"LocMen.lvc", "DataIde.ivc", "qdb.mdb", "qdb.mdb-journal",
                             "01Empresa.winvrx-tmp", "pasta-em-uso.winvrx-lock", "../01Empresa"})
        EXPECT_FALSE(isCopiedFile(name)) << name;
    for (const char* name : {"01Empresa", "01CartaPonto", "anotações.txt"})
        EXPECT_TRUE(isCopiedFile(name)) << name;
}

TEST(CopiedFilesTest, NamesTellTheirSubject) {
    const std::pair<const char*, const char*> cases[] = {
        {"01Empresa", "Cadastro de empresas"},
        {"02CartaPonto", "Empresa 02: lista de funcionários"},
        {"02PadrHor001.pdx", "Empresa 02: horários padrão"},
        {"02MedHorExtr001", "Empresa 02: horas extras"},
        {"02configAf001", "Empresa 02: afastamentos"},
        {"02contrato001", "Empresa 02: contratos de trabalho"},
        {"02Ferias001", "Empresa 02: férias"},
        {"02GRUPO-032024.rdx", "Empresa 02: grupos de revezamento"},
        {"02001-03-2024.bdx", "Empresa 02: cartões de março/2024"},
        {"02001032024.pdx", "Empresa 02: arquivos de março/2024"},
        {"02Impresstec", "Empresa 02: configurações e outros arquivos"},
        {"02001-13-2024.bdx", "Empresa 02: configurações e outros arquivos"},
        {"03-2024ds.rdx", "Configuração do mês de março/2024"},
        {"bk-0115-03-2024-10-00.bkp", "Cópias por hora das listas de funcionários"},
        {"anotações.txt", "Arquivo anotações.txt"},
        {"x", "Arquivo x"}};
    for (const auto& [name, subject] : cases)
        EXPECT_EQ(subjectOfFile(name), subject) << name;
}

}  // namespace
}  // namespace winvrx
