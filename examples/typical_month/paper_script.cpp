#include "paper_script.h"

#include "player.h"
#include "script_text.h"

#include <QApplication>
#include <QTest>

namespace winvrx {

namespace {

/// The month's pay of 001, then of everyone who can be paid; the papers of 002, who has a contract.
void recordPayroll(Player& player) {
    player.click("menu.payroll.open"_t);
    player.choose("folha.employees"_t, "001"_t);
    player.choose("folha.events"_t, "010"_t);
    player.picture("folha"_t);
    player.press(Qt::CTRL | Qt::Key_S);
    player.answer("Deseja Gravar Somente o FUNCIONARIO SELECIONADO?"_t, Answer::Yes);
    player.picture("folha-gravada"_t);
    player.click("folha.saveAll"_t);
    player.answer("Confirma Gravar TODOS OS FUNCIONARIOS DA LISTA?"_t, Answer::Yes);
    player.answer("Não Há Dados para Gravação! Deseja Prosseguir?"_t, Answer::Yes);
    player.click("folha.overview"_t);
    player.picture("visao-do-mes"_t);
    player.click("visao.close"_t);
    player.click("folha.catalogue"_t);
    player.picture("eventos"_t);
    player.click("eventos.close"_t);
    player.choose("folha.employees"_t, "002"_t);
    player.trigger("folha.print.payroll"_t);
    player.answer("Confirma Impressão da FOLHA DE PAGAMENTO?"_t, Answer::Yes);
    player.picture("folha-de-pagamento"_t);
    player.click("preview.close"_t);
    player.trigger("folha.print.slips"_t);
    player.answer("Confirma Impressão dos RECIBOS DE PAGAMENTO"_t, Answer::Yes);
    player.picture("recibos"_t);
    player.click("preview.close"_t);
    player.trigger("folha.print.memos"_t);
    player.answer("Confirma Impressão do RECIBO DE PAGAMENTO?"_t, Answer::Yes);
    player.click("folha.close"_t);
}

/// The newly admitted one, on trial: the contract is recorded and its box printed.
void recordContract(Player& player) {
    player.click("menu.contract.open"_t);
    player.choose("contrato.employees"_t, "002"_t);
    player.choose("contrato.kind"_t, "Experiência"_t);
    player.type("contrato.trialDays"_t, "45"_t);
    player.type("contrato.extensionDays"_t, "45"_t);
    player.type("contrato.salary"_t, "1.850,00"_t);
    player.type("contrato.establishment"_t, "Padaria"_t);
    player.picture("contrato"_t);
    player.press(Qt::CTRL | Qt::Key_S);
    player.answer("Confirma Gravar o Contrato de Trabalho do Funcionário Selecionado?"_t,
                  Answer::Yes);
    player.click("contrato.preview"_t);
    player.picture("carteira"_t);
    player.click("preview.close"_t);
    player.click("contrato.print"_t);
    player.answer("Imprimir Página esquerda, quadro de cima?"_t, Answer::Yes);
    player.click("contrato.close"_t);
}

/// Two papers for the newly admitted one.
void printPapers(Player& player) {
    player.click("menu.documents.open"_t);
    player.choose("documents.employees"_t, "002"_t);
    player.choose("documents.papers"_t, "DECLARAÇÃO PARA FINS ESCOLARES"_t);
    player.picture("documentos"_t);
    player.click("documents.print"_t);
    player.answer("Confirma Impressão do DECLARAÇÃO PARA FINS ESCOLARES?"_t, Answer::Yes);
    player.choose("documents.papers"_t, "ACORDO DE PRORROGAÇÃO DE JORNADA"_t);
    player.click("documents.print"_t);
    player.answer("Confirma Impressão do ACORDO DE PRORROGAÇÃO DE JORNADA?"_t, Answer::Yes);
    player.click("documents.close"_t);
}

/// A note for the work booklet of two, from the third label of a sheet that is begun.
void printLabels(Player& player) {
    player.click("menu.labels.open"_t);
    player.choose("etiquetas.employees"_t, "001"_t);
    player.press(Qt::Key_Space);
    player.choose("etiquetas.employees"_t, "003"_t);
    player.press(Qt::Key_Space);
    player.choose("etiquetas.texts"_t, "01 Contrato"_t);
    player.press(Qt::Key_Space);
    player.choose("etiquetas.texts"_t, "07 Altera"_t);
    player.press(Qt::Key_Space);
    player.press(Qt::ALT | Qt::Key_A);
    for (int step = 0; step < 2; ++step)
        player.then([] {
            for (QWidget* widget : QApplication::allWidgets())
                if (widget->objectName() == "etiquetas.first"_t && widget->isVisible())
                    QTest::keyClick(widget, Qt::Key_Right);
        });
    player.picture("etiquetas"_t);
    player.press(Qt::CTRL | Qt::Key_E);
    player.picture("textos"_t);
    player.press(Qt::Key_Escape);
    player.press(Qt::CTRL | Qt::Key_K);
    player.picture("estoque"_t);
    player.press(Qt::Key_Escape);
    player.press(Qt::CTRL | Qt::Key_J);
    player.picture("calibracao-etiquetas"_t);
    player.press(Qt::Key_Escape);
    player.click("etiquetas.print"_t);
    player.picture("previa-etiquetas"_t);
    player.click("preview.close"_t);
    player.click("etiquetas.close"_t);
}

/// The registration card of who has a contract.
void printForm(Player& player) {
    player.click("menu.forms.open"_t);
    player.choose("relatorios.keywords"_t, "FICHA"_t);
    player.choose("relatorios.forms.list"_t, "13"_t);
    player.choose("relatorios.employees"_t, "002"_t);
    player.picture("relatorios"_t);
    player.click("relatorios.printOne"_t);
    player.picture("formulario"_t);
    player.click("preview.close"_t);
    player.click("relatorios.close"_t);
}

/// The figures of the law, what the company settles, and what of an employee only the payroll asks.
void lookAtPayrollRules(Player& player) {
    player.click("menu.options.open"_t);
    player.picture("opcoes"_t);
    player.press(Qt::Key_F7);
    player.picture("tabelas"_t);
    player.press(Qt::Key_Escape);
    player.press(Qt::Key_F8);
    player.choose("dados.employees.employees"_t, "001"_t);
    player.picture("dados-da-folha"_t);
    player.press(Qt::Key_Escape);
    player.click("opcoes.close"_t);
}

/// The vacation periods of who has been there longest, and what 003 gets who was dismissed.
void lookAtWhatIsOwed(Player& player) {
    player.click("menu.vacations.open"_t);
    player.choose("vacations.employees"_t, "001"_t);
    player.picture("ferias"_t);
    player.press(Qt::Key_Escape);
    player.click("menu.leaves.open"_t);
    player.choose("leaves.employees"_t, "003"_t);
    player.answer("Funcionário Inativo.!"_t, Answer::Ok);
    player.click("leaves.termination"_t);
    player.picture("rescisao"_t);
    player.press(Qt::Key_Escape);
    player.click("leaves.close"_t);
}

/// One switch that blocks, and what the program says of itself.
void lookAtTools(Player& player) {
    player.click("menu.internet.open"_t);
    player.click("webNi.images.block"_t);
    player.picture("internet"_t);
    player.press(Qt::Key_Escape);
    player.click("menu.about.open"_t);
    player.picture("sobre"_t);
    player.press(Qt::Key_Escape);
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
