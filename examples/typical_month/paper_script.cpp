#include "player.h"
#include "scripts.h"

#include <QApplication>
#include <QTest>

namespace winvrx {

namespace {

/// The month's pay of 001, then of everyone who can be paid; the papers of 002, who has a contract.
void recordPayroll(Player& player) {
    player.click("menu.payroll.open");
    player.choose("folha.employees", "001");
    player.choose("folha.events", "010");
    player.picture("folha");
    player.confirm(Qt::CTRL | Qt::Key_S, "Deseja Gravar Somente o FUNCIONARIO SELECIONADO?");
    player.picture("folha-gravada");
    player.confirm("folha.saveAll", "Confirma Gravar TODOS OS FUNCIONARIOS DA LISTA?");
    player.answer("Não Há Dados para Gravação! Deseja Prosseguir?", Answer::Yes);
    player.click("folha.overview");
    player.look("visao-do-mes", "visao.close");
    player.click("folha.catalogue");
    player.look("eventos", "eventos.close");
    player.choose("folha.employees", "002");
    player.trigger("folha.print.payroll");
    player.answer("Confirma Impressão da FOLHA DE PAGAMENTO?", Answer::Yes);
    player.look("folha-de-pagamento", "preview.close");
    player.trigger("folha.print.slips");
    player.answer("Confirma Impressão dos RECIBOS DE PAGAMENTO", Answer::Yes);
    player.look("recibos", "preview.close");
    player.trigger("folha.print.memos");
    player.answer("Confirma Impressão do RECIBO DE PAGAMENTO?", Answer::Yes);
    player.click("folha.close");
}

/// The newly admitted one, on trial: the contract is recorded and its box printed.
void recordContract(Player& player) {
    player.click("menu.contract.open");
    player.choose("contrato.employees", "002");
    player.choose("contrato.kind", "Experiência");
    player.type("contrato.trialDays", "45");
    player.type("contrato.extensionDays", "45");
    player.type("contrato.salary", "1.850,00");
    player.type("contrato.establishment", "Padaria");
    player.picture("contrato");
    player.confirm(Qt::CTRL | Qt::Key_S,
                   "Confirma Gravar o Contrato de Trabalho do Funcionário Selecionado?");
    player.click("contrato.preview");
    player.look("carteira", "preview.close");
    player.confirm("contrato.print", "Imprimir Página esquerda, quadro de cima?");
    player.click("contrato.close");
}

/// Two papers for the newly admitted one.
void printPapers(Player& player) {
    player.click("menu.documents.open");
    player.choose("documents.employees", "002");
    player.choose("documents.papers", "DECLARAÇÃO PARA FINS ESCOLARES");
    player.picture("documentos");
    player.confirm("documents.print", "Confirma Impressão do DECLARAÇÃO PARA FINS ESCOLARES?");
    player.choose("documents.papers", "ACORDO DE PRORROGAÇÃO DE JORNADA");
    player.confirm("documents.print", "Confirma Impressão do ACORDO DE PRORROGAÇÃO DE JORNADA?");
    player.click("documents.close");
}

/// A note for the work booklet of two, from the third label of a sheet that is begun.
void printLabels(Player& player) {
    player.click("menu.labels.open");
    player.choose("etiquetas.employees", "001");
    player.press(Qt::Key_Space);
    player.choose("etiquetas.employees", "003");
    player.press(Qt::Key_Space);
    player.choose("etiquetas.texts", "01 Contrato");
    player.press(Qt::Key_Space);
    player.choose("etiquetas.texts", "07 Altera");
    player.press(Qt::Key_Space);
    player.press(Qt::ALT | Qt::Key_A);
    for (int step = 0; step < 2; ++step)
        player.then([] {
            for (QWidget* widget : QApplication::allWidgets())
                if (widget->objectName() == QLatin1String("etiquetas.first") && widget->isVisible())
                    QTest::keyClick(widget, Qt::Key_Right);
        });
    player.picture("etiquetas");
    player.press(Qt::CTRL | Qt::Key_E);
    player.look("textos");
    player.press(Qt::CTRL | Qt::Key_K);
    player.look("estoque");
    player.press(Qt::CTRL | Qt::Key_J);
    player.look("calibracao-etiquetas");
    player.click("etiquetas.print");
    player.look("previa-etiquetas", "preview.close");
    player.click("etiquetas.close");
}

/// The registration card of who has a contract.
void printForm(Player& player) {
    player.click("menu.forms.open");
    player.choose("relatorios.keywords", "FICHA");
    player.choose("relatorios.forms.list", "13");
    player.choose("relatorios.employees", "002");
    player.picture("relatorios");
    player.click("relatorios.printOne");
    player.look("formulario", "preview.close");
    player.click("relatorios.close");
}

/// The figures of the law, what the company settles, and what of an employee only the payroll asks.
void lookAtPayrollRules(Player& player) {
    player.click("menu.options.open");
    player.picture("opcoes");
    player.press(Qt::Key_F7);
    player.look("tabelas");
    player.press(Qt::Key_F8);
    player.choose("dados.employees.employees", "001");
    player.look("dados-da-folha");
    player.click("opcoes.close");
}

/// The vacation periods of who has been there longest, and what 003 gets who was dismissed.
void lookAtWhatIsOwed(Player& player) {
    player.click("menu.vacations.open");
    player.choose("vacations.employees", "001");
    player.look("ferias");
    player.click("menu.leaves.open");
    player.choose("leaves.employees", "003");
    player.answer("Funcionário Inativo.!", Answer::Ok);
    player.click("leaves.termination");
    player.look("rescisao");
    player.click("leaves.close");
}

/// One switch that blocks, and what the program says of itself.
void lookAtTools(Player& player) {
    player.click("menu.internet.open");
    player.click("webNi.images.block");
    player.look("internet");
    player.click("menu.about.open");
    player.look("sobre");
}

}  // namespace

void writePapers(Player& player) {
    recordContract(player);
    printForm(player);
    printPapers(player);
    recordPayroll(player);
    printLabels(player);
    lookAtPayrollRules(player);
    lookAtWhatIsOwed(player);
    lookAtTools(player);
}

}  // namespace winvrx
