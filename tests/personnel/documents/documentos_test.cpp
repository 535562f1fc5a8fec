#include "tests/support/papers_desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace winvrx {
namespace {

using testing::PapersDesk;

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

TEST(Papers, AreWholeForEveryoneAndEveryRegime) {
    PapersDesk desk;
    desk.file("01configAf001") = testing::leaveBytes({PapersDesk::dismissal()});
    desk.file("01configAf002") = testing::leaveBytes({PapersDesk::dismissal()});
    for (const std::size_t employee : {1U, 0U})
        for (const char* form : {"", "M", "F"})
            for (const char* regime : {"clt", "domestico"})
                for (const PaperKind& kind : paperKinds()) {
                    desk.person.answers = {Answer::Yes};
                    ASSERT_TRUE(desk.screen.select(employee));
                    desk.screen.type("tratamento", form);
                    desk.screen.type("regime", regime);
                    SCOPED_TRACE(std::string(kind.key) + " " + form + " " + regime);
                    // Every choice, each in its turn.
                    for (const PaperInput& input : inputsOf(kind.paper)) {
                        if (!input.choices) continue;
                        for (const Choice& choice : input.choices()) {
                            desk.screen.type(input.name, choice.code);
                            (void)desk.textOf(kind.paper);
                        }
                    }
                    const std::string text = desk.textOf(kind.paper);
                    EXPECT_THAT(text, Not(HasSubstr("{")));
                    EXPECT_THAT(text, Not(HasSubstr("[")));
                    EXPECT_THAT(text, Not(HasSubstr(" ,")));
                    EXPECT_THAT(text, Not(HasSubstr(",,")));
                    EXPECT_THAT(text, HasSubstr(employee == 0 ? "ANA MARIA" : "JOSÉ DA SILVA"));
                    if (form[0] != '\0') {
                        EXPECT_THAT(text, Not(HasSubstr("(a)")));
                    }
                    std::string body = text;
                    for (const char* wide : {"  SERIE", "      (   )", "(   )"})
                        for (std::size_t at; (at = body.find(wide)) != std::string::npos;)
                            body.erase(at, std::string(wide).size());
                    EXPECT_EQ(body.find("  "), std::string::npos)
                        << body.substr(body.find("  ") - 20, 60);
                }
}

TEST(Papers, SayWhatTheLawAsksFor) {
    PapersDesk desk;
    struct Case {
        Paper paper;
        const char* regime;
        const char* said;
    };
    for (const Case& one : {
             Case{Paper::AvisoPrevio, "clt", "Lei nº 12.506/2011"},
             Case{Paper::AvisoPrevio, "domestico", "arts. 23 e 24 da Lei Complementar nº 150"},
             Case{Paper::Jornada12x36, "clt", "art. 59-A da CLT"},
             Case{Paper::ReducaoIntervalo, "clt", "art. 611-A, III, da CLT"},
             Case{Paper::ReducaoIntervalo, "clt", "SINDICATO"},
             Case{Paper::ReducaoIntervalo, "domestico", "art. 13 da Lei Complementar"},
             Case{Paper::Viagem, "domestico", "art. 11 da Lei Complementar"},
             Case{Paper::ValeTransporte, "clt", "Lei nº 7.418/1985"},
             Case{Paper::SalarioFamilia, "clt", "TERMO DE REPONSABILIDADE DO SALÁRIO FAMÍLIA"},
             Case{Paper::SalarioFamilia, "clt", "CTPS: 12345  SERIE: 001"},
             Case{Paper::SalarioFamilia, "clt",
                  "Pelo presente termo de responsabilidade, declaro estar ciente de que deverei "
                  "comunicar de imediato a ocorrência dos seguintes fatos ou situações"},
             Case{Paper::FolhaPonto, "clt", "FOLHA DE PONTO PERÍODO: 01/03/2024 a 31/03/2024"},
             Case{Paper::FolhaPonto, "clt", "\n01/sex\n"},
             Case{Paper::FolhaPonto, "clt", "\n31/dom\n"},
         }) {
        desk.screen.type("regime", one.regime);
        EXPECT_THAT(desk.textOf(one.paper), HasSubstr(one.said)) << one.said;
    }
}

TEST(Documentos, OffersWhatTheRecordsSay) {
    PapersDesk desk;
    EXPECT_EQ(desk.screen.text("data"), "15/03/2024");
    EXPECT_EQ(desk.screen.text("dias_aviso"), "42");
    EXPECT_EQ(desk.screen.text("dias_pedido"), "30") << "of a resignation, whatever the years";
    EXPECT_EQ(desk.screen.text("regime"), "clt");
    desk.file("01configAf001") = testing::leaveBytes({PapersDesk::dismissal()});
    desk.screen.load();
    EXPECT_EQ(desk.screen.text("fim_aviso"), "14/04/2024");
    EXPECT_EQ(desk.screen.text("pago_em"), "24/04/2024");
}

TEST(Documentos, PrintsOneFileAnEmployeeAndPaperAndRemembers) {
    PapersDesk desk;
    desk.screen.type("tratamento", "F");
    desk.screen.type("observacao", "Trabalha em turno fixo.");
    EXPECT_TRUE(desk.print(Paper::DeclaracaoEscolar));
    EXPECT_THAT(desk.person.takeTexts(),
                ElementsAre("Confirma Impressão do DECLARAÇÃO PARA FINS ESCOLARES?"));
    EXPECT_EQ(desk.writer.printedFiles.back(),
              "/data/documentos/01-001 ANA MARIA DE SOUSA - declaracao-escolar.fodt");
    EXPECT_THAT(desk.printed(), HasSubstr("Trabalha em turno fixo."));
    EXPECT_FALSE(desk.screen.isChanged());

    // The one printed is offered; a new one takes its place only when it is wanted.
    PapersDesk later;
    later.files.content = desk.files.content;
    later.screen.load();
    EXPECT_EQ(later.screen.text("observacao"), "Trabalha em turno fixo.");
    EXPECT_EQ(later.screen.text("tratamento"), "F");
    later.screen.type("observacao", "Outra.");
    for (const auto& [answer, done, said] :
         {std::tuple{Answer::Cancel, false, "turno fixo"}, std::tuple{Answer::Yes, true, "fixo"},
          std::tuple{Answer::No, true, "Outra."}}) {
        EXPECT_EQ(later.print(Paper::DeclaracaoEscolar, {Answer::Yes, answer}), done);
        EXPECT_THAT(later.files.content.at(desk.writer.printedFiles.back()), HasSubstr(said));
    }
}

TEST(Documentos, RefusesAndLeavesEverythingAsItWas) {
    struct Case {
        const char* what;
        std::function<void(PapersDesk&)> prepare;
        Paper paper;
        const char* said;
    };
    const auto none = [](PapersDesk&) {};
    for (const Case& one : std::vector<Case>{
             {"inactive",
              [](PapersDesk& desk) {
                  desk.file("01configAf001") =
                      testing::leaveBytes({PapersDesk::dismissal()}, "14/04/2024");
              },
              Paper::AvisoPrevio, "Este Funcionário Encontra-se Inativo!!"},
             {"contract", [](PapersDesk& desk) { desk.files.content.erase("/data/01contrato001"); },
              Paper::Compensacao, "Não Existe Contrato de Trabalho Gerado para este Funcionário!!"},
             {"nobody", [](PapersDesk& desk) { (void)desk.screen.select(std::nullopt); },
              Paper::Compensacao, "É necessário Selecioar um Funcionário na Lista!!"},
             {"no termination", none, Paper::TermoRescisao,
              "Este Funcionário não tem Rescisão do Contrato de Trabalho registrada!"},
             {"too many hours", [](PapersDesk& desk) { desk.screen.type("horas_extras", "3"); },
              Paper::Prorrogacao, "Confira o campo \"Horas a mais por dia\"."},
             {"too long a sheet",
              [](PapersDesk& desk) { desk.screen.type("periodo_fim", "01/04/2024"); },
              Paper::FolhaPonto, "Confira o campo \"Período: até\"."},
             {"no word processor", [](PapersDesk& desk) { desk.writer.installed = false; },
              Paper::SaidaExpediente,
              "Não foi possível Imprimir! O Microsoft Word pode não estar Instalado neste PC."},
             {"full disk",
              [](PapersDesk& desk) {
                  desk.screen.type("motivo_saida", "Consulta");
                  desk.files.failWritesOn.insert(
                      "01-001 ANA MARIA DE SOUSA - saida-expediente.fodt");
              },
              Paper::SaidaExpediente, "O documento não foi feito."},
             {"unknown word",
              [](PapersDesk& desk) {
                  desk.files.content["/data/documentos/modelos/viagem.txt"] = "= {nomes}";
              },
              Paper::Viagem, "O documento não foi feito."},
         }) {
        SCOPED_TRACE(one.what);
        PapersDesk desk;
        one.prepare(desk);
        const auto before = desk.files.content;
        EXPECT_FALSE(desk.print(one.paper));
        EXPECT_EQ(desk.person.shown.back().text, one.said);
        EXPECT_EQ(desk.files.content, before);
        EXPECT_TRUE(desk.writer.printedFiles.empty());
    }
}

TEST(Documentos, TerminationPapersBarTheReactivation) {
    PapersDesk desk;
    EXPECT_TRUE(desk.print(Paper::AvisoPrevio));
    EXPECT_FALSE(desk.files.exists("/data/01AviTRTC001")) << "no termination is on record";
    desk.file("01configAf001") = testing::leaveBytes({PapersDesk::dismissal()});
    EXPECT_TRUE(desk.print(Paper::AvisoPrevio, {Answer::Yes, Answer::Yes}));
    desk.file("01configAf001") = testing::leaveBytes({PapersDesk::dismissal()}, "14/04/2024");
    EXPECT_TRUE(desk.print(Paper::TermoRescisao));
    EXPECT_TRUE(desk.print(Paper::TermoHomologacao));
    for (const char* name : {"01AviTRTC001", "01TRTC001", "01THRTC001"})
        EXPECT_THAT(desk.file(name), HasSubstr("15/03/2024 01/02/2020 15/03/2024 14/04/2024 "
                                               "14/04/2024 24/04/2024 01. Dispensa sem Justa "
                                               "Causa"))
            << name;
}

TEST(Documentos, TellsOfAChildAboutToTurnFourteen) {
    PapersDesk desk;
    desk.screen.choose(Paper::SalarioFamilia);
    desk.screen.type("filho1", "BIA");
    desk.screen.type("nascimento1", "20/04/2010");
    desk.screen.type("filho2", "CAIO");
    desk.screen.type("nascimento2", "01/01/2015");
    desk.screen.type("filho3", "DAVI");
    desk.screen.type("nascimento3", "01/03/2010");
    EXPECT_EQ(desk.screen.remark(),
              "BIA completa 14 anos em 20/04/2024. DAVI completou 14 anos em 01/03/2024.");
    EXPECT_TRUE(desk.print(Paper::SalarioFamilia));
    EXPECT_EQ(desk.person.shown.back().detail, desk.screen.remark());
    EXPECT_THAT(desk.printed(), HasSubstr("\nCAIO\n01/01/2015\n"));
    EXPECT_EQ(dateText(fourteenOn(*parseDate("29/02/2012"))), "01/03/2026");
}

TEST(Documentos, TypedTextIsNotLeftBehindUnasked) {
    PapersDesk desk;
    desk.screen.type("motivo", "x");
    EXPECT_FALSE(desk.screen.select(1));
    EXPECT_EQ(desk.person.shown.back().text, discardTyped().text);
    desk.person.answers = {Answer::Yes};
    EXPECT_TRUE(desk.screen.select(1));
    EXPECT_EQ(desk.screen.text("motivo"), "");
}

}  // namespace
}  // namespace winvrx
