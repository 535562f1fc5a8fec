#include "month_script.h"

#include "foundation/desk/desktop/help_window.h"
#include "paper_script.h"
#include "player.h"
#include "script_text.h"

#include <QApplication>
#include <QFile>
#include <QUrl>

#include <array>

namespace winvrx {

namespace {

struct Person {
    Text code;
    Text name;
    Text function;
    Text workBooklet;
    Text registration;
    Text admission;
    Text shift;
    Text scale = "Normal"_t;
    Text salary = {};
};

void registerCompany(Player& player) {
    player.picture("janela-vazia"_t);
    player.press(Qt::Key_F2);
    player.press(Qt::Key_Insert);
    player.type("empresa.name"_t, "PADARIA PÃO DE MEL LTDA"_t);
    player.type("empresa.taxId"_t, "11.222.333/0001-81"_t);
    player.type("empresa.address"_t, "RUA DAS ACÁCIAS, 120"_t);
    player.type("empresa.district"_t, "CENTRO"_t);
    player.type("empresa.city"_t, "TAUBATÉ"_t);
    player.type("empresa.state"_t, "SP"_t);
    player.type("empresa.postalCode"_t, "12020-330"_t);
    player.type("empresa.owner"_t, "MARIA HELENA PRADO"_t);
    player.picture("empresas"_t);
    player.press(Qt::CTRL | Qt::Key_S);
    player.answer("Confirma a Inclusão?"_t, Answer::Yes);
    player.press(Qt::Key_Escape);
    player.choose("menu.companies"_t, "PADARIA"_t);
}

void registerPerson(Player& player, const Person& person) {
    player.openTab("empregados.tabs"_t, "Identificação"_t);
    player.type("empregados.name"_t, person.name);
    player.type("empregados.function"_t, person.function);
    player.openTab("empregados.tabs"_t, "Contrato"_t);
    player.type("empregados.admission"_t, person.admission);
    player.choose("empregados.shift"_t, person.shift);
    player.choose("empregados.scale"_t, person.scale);
    if (!person.salary.isEmpty()) player.type("empregados.salary"_t, person.salary);
    player.openTab("empregados.tabs"_t, "Documentos"_t);
    player.type("empregados.workBooklet"_t, person.workBooklet);
    player.type("empregados.registration"_t, person.registration);
    player.press(Qt::CTRL | Qt::Key_S);
    player.answer("Confirma a Inclusão na LISTA DE FUNCIONARIOS?"_t, Answer::Yes);
}

/// Both reports, in the viewer that stands in for a desktop's editor.
void lookAtReports(Player& player) {
    player.pictureBeside("relatorio"_t, "relatorio"_t);
    player.pictureBeside("relatorio"_t, "relatorio-dois"_t);
}

/// A spreadsheet with a good row, a doubtful one and two that cannot be taken.
void lookAtImport(Player& player) {
    const QString path = player.folder() + "/planilha.csv"_t;
    player.then([path] {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly)) return;
        file.write(
            "Nome;Função;Admissão;Turno;CPF\n"
            "RITA DE CÁSSIA NUNES;CONFEITEIRA;4/3/2024;Manhã;529.982.247-25\n"
            "PEDRO HENRIQUE SÁ;AJUDANTE;11/03/2024;Comercial;111.111.111-11\n"
            "JOÃO BATISTA LIMA;VIGIA NOTURNO;10/01/2022;Noite;\n"
            "MARINA COUTO;CAIXA;31/02/2024;Tarde;\n");
    });
    player.trigger("empregados.import"_t);
    player.chooseFile(path);
    player.picture("importar"_t);
    player.click("importar.include"_t);
    player.answer("Confirma a Inclusão na LISTA DE FUNCIONARIOS?"_t, Answer::No);
    player.click("importar.cancel"_t);
}

void registerEmployees(Player& player) {
    player.press(Qt::Key_F3);
    player.picture("funcionarios-vazio"_t);
    registerPerson(player, {"001"_t, "JOSÉ DA CONCEIÇÃO"_t, "PADEIRO"_t, "12345/00010-SP"_t,
                            "00001"_t, "02/05/2019"_t, "Comercial"_t, "Normal"_t, "2.640,00"_t});
    player.press(Qt::Key_Insert);
    registerPerson(player, {"002"_t, "ANA PAULA D'ÁVILA"_t, "BALCONISTA"_t, "67890/00022-SP"_t,
                            "00002"_t, "12/03/2024"_t, "Comercial"_t, "Normal"_t, "1.850,00"_t});
    player.press(Qt::Key_Insert);
    registerPerson(player, {"003"_t, "JOÃO BATISTA LIMA"_t, "VIGIA NOTURNO"_t, "24680/00031-SP"_t,
                            "00003"_t, "10/01/2022"_t, "Noite"_t, "Normal"_t, "1.900,00"_t});
    player.choose("empregados.list"_t, "001"_t);
    player.openTab("empregados.tabs"_t, "Identificação"_t);
    player.picture("funcionarios"_t);
    player.openTab("empregados.tabs"_t, "Contrato"_t);
    player.picture("funcionarios-contrato"_t);
    player.trigger("empregados.report"_t);
    player.answer("Confirma Geração do Relatório de Colaboradores Ativos e Inativos?"_t,
                  Answer::Yes);
    lookAtReports(player);
    lookAtImport(player);
    player.press(Qt::Key_Escape);
}

void lookAtShifts(Player& player) {
    player.press(Qt::Key_F9);
    player.choose("turnos.employees"_t, "003"_t);
    player.picture("turnos"_t);
    player.press(Qt::Key_Escape);
}

void chooseMonth(Player& player) {
    player.press(Qt::Key_F4);
    player.choose("month.month"_t, "fevereiro/2024"_t);
    player.picture("mes-carnaval"_t);
    player.press(Qt::Key_F6);
    player.picture("feriados-vazio"_t);
    player.type("feriados.day"_t, "0512"_t);
    player.type("feriados.name"_t, "ANIVERSÁRIO DE TAUBATÉ"_t);
    player.press(Qt::CTRL | Qt::Key_S);
    player.answer("Confirma a Inclusão?"_t, Answer::Yes);
    player.picture("feriados"_t);
    player.press(Qt::Key_Escape);
    player.choose("month.month"_t, "março/2024"_t);
    player.picture("mes"_t);
    player.press(Qt::Key_F7);
    player.answer("Confirma Atualizar as Horas Extras de MARÇO/2024 p/Todos os Funcionários"_t,
                  Answer::Yes);
    player.press(Qt::ALT | Qt::Key_C);
    player.answer("Há feriados sugeridos que não estão marcados. Deseja marcá-los?"_t, Answer::Yes);
    player.picture("janela-com-mes"_t);
}

void recordHours(Player& player, const Text& code, const std::array<Text, 8>& times) {
    player.choose("card.employees"_t, code);
    for (std::size_t i = 0; i < times.size(); ++i)
        if (!times[i].isEmpty()) player.type("schedule.time%1"_t.arg(i + 1), times[i]);
    player.press(Qt::ALT | Qt::Key_H);
    player.answer("No SÁBADO Será HORA NORMAL?"_t, Answer::Yes);
}

/// Two days of 001 as they were punched, and a day on which he did not come.
void correctDays(Player& player) {
    constexpr int kMonday = 3;
    constexpr int kTuesday = 4;
    constexpr int kAbsent = 11;
    constexpr int kSituation = 8;
    const Text grid = "card.half1"_t;
    player.choose("card.employees"_t, "001"_t);
    player.typeCell(grid, kMonday, 1, "812"_t);
    player.typeCell(grid, kMonday, 4, "17:30"_t);
    player.typeCell(grid, kTuesday, 3, "1150"_t);
    player.picture("dados-aviso"_t);
    player.typeCell(grid, kTuesday, 3, "1310"_t);
    player.typeCell(grid, kAbsent, kSituation, "Falta"_t);
    player.press(Qt::CTRL | Qt::Key_S);
    player.picture("dados"_t);
    player.choose("hours.table"_t, "Hora Falta"_t);
    player.picture("explicacao"_t);
    player.press(Qt::Key_Escape);
    player.press(Qt::Key_F6);
    player.picture("dados-segunda-quinzena"_t);
}

void addLeave(Player& player) {
    player.press(Qt::Key_Insert);
    player.answer("Confirma Adicionar Novo Afastamento?"_t, Answer::Yes);
    player.answer("Há dias preenchidos no cartão que este afastamento muda."_t, Answer::Yes);
}

/// A medical certificate of 001, and 003 who is dismissed on the 20th, both after the cards were
/// filled.
void recordLeaves(Player& player) {
    player.choose("card.employees"_t, "001"_t);
    player.press(Qt::Key_F8);
    player.choose("leaves.type"_t, "007"_t);
    player.type("leaves.firstDay"_t, "18/03/2024"_t);
    player.type("leaves.days"_t, "3"_t);
    player.type("leaves.hours"_t, "0"_t);
    player.picture("atestado"_t);
    addLeave(player);
    player.choose("leaves.employees"_t, "003"_t);
    player.choose("leaves.type"_t, "008"_t);
    player.type("leaves.firstDay"_t, "20/03/2024"_t);
    player.choose("leaves.terminationType"_t, "01."_t);
    player.choose("leaves.noticeType"_t, "02."_t);
    addLeave(player);
    player.picture("afastamentos"_t);
    player.press(Qt::Key_F9);
    player.answer("Confirma  Inativar  Funcionário Selecionado?"_t, Answer::Yes);
    player.picture("inativo"_t);
    player.press(Qt::Key_Escape);
    player.picture("dados-atestado"_t);
    player.choose("card.employees"_t, "003"_t);
    player.picture("dados-rescisao"_t);
}

void applyCards(Player& player) {
    player.press(Qt::Key_F5);
    recordHours(player, "001"_t,
                {"08:00"_t, "12:00"_t, "13:00"_t, "17:00"_t, "08:00"_t, "12:00"_t});
    recordHours(player, "002"_t,
                {"09:00"_t, "13:00"_t, "14:00"_t, "18:00"_t, "09:00"_t, "13:00"_t});
    recordHours(player, "003"_t,
                {"22:00"_t, "02:00"_t, "03:00"_t, "06:00"_t, "22:00"_t, "02:00"_t});
    player.press(Qt::SHIFT | Qt::Key_F9);
    player.answer("Esta Operação Irá Apagar Todos os Dados Já Existentes"_t, Answer::Ok);
    player.answer("Tem Certeza que Deseja Substituir"_t, Answer::Ok);
    player.picture("aplicar-todos"_t);
    player.answer("Confirma Aplicação de Ponto"_t, Answer::Yes);
    correctDays(player);
    recordLeaves(player);
    player.press(Qt::Key_Escape);
}

void lookAtPrinters(Player& player) {
    player.press(Qt::CTRL | Qt::Key_R);
    player.tick("impressorar.kind.installed"_t, true);
    player.choose("impressorar.printers"_t, "LaserJet"_t);
    player.picture("impressoras"_t);
    player.tick("impressorar.kind.default"_t, true);
    player.press(Qt::Key_Escape);
}

/// Moves the print back to where it began, so that the cards lie where they belong.
void alignPrint(Player& player) {
    player.press(Qt::CTRL | Qt::Key_J);
    for (int step = 0; step < 3; ++step)
        player.press(Qt::CTRL | Qt::Key_Right);
    player.picture("alinhamento"_t);
    player.openTab("cartaoPontos.tabs"_t, "calibração"_t);
    player.picture("calibracao"_t);
    player.press(Qt::CTRL | Qt::Key_R);
    player.answer("Confirma a Volta de Todos os Alinhamentos ao Padrão?"_t, Answer::Yes);
    player.press(Qt::Key_Escape);
}

void printCards(Player& player) {
    player.press(Qt::Key_F6);
    player.press(Qt::CTRL | Qt::Key_T);
    player.tick("tipoPonto.stocks.01"_t, true);
    player.picture("tipo"_t);
    player.press(Qt::Key_Escape);
    lookAtPrinters(player);
    alignPrint(player);
    player.choose("cartao.employees"_t, "001"_t);
    player.picture("imprimir"_t);
    player.tick("cartao.output.preview"_t, true);
    player.click("cartao.printAll"_t);
    player.picture("previa"_t);
    player.press(Qt::Key_Escape);
    player.tick("cartao.output.printer"_t, true);
    player.click("cartao.printAll"_t);
    player.press(Qt::Key_Escape);
}

void printMirrors(Player& player) {
    player.press(Qt::Key_F12);
    player.choose("horas.employees"_t, "001"_t);
    player.picture("espelhos"_t);
    player.click("horas.overview"_t);
    player.picture("resumo-do-mes"_t);
    player.press(Qt::Key_Escape);
    player.click("horas.mirrors"_t);
    player.answer("Confirma a Impressão do ESPELHO DE PONTO"_t, Answer::Yes);
    player.picture("espelho-na-tela"_t);
    player.press(Qt::Key_Escape);
    player.tick("horas.output.printer"_t, true);
    player.click("horas.mirrors"_t);
    player.answer("Confirma a Impressão do ESPELHO DE PONTO"_t, Answer::Yes);
    player.click("horas.report"_t);
    player.answer("Deseja Gerar o Relatório Em EXCEL ou ARQUIVO TEXTO ?"_t, Answer::No);
    player.pictureBeside("relatorio"_t, "relatorio-de-horas"_t);
    player.press(Qt::Key_Escape);
}

/// The page as it is shown where the desktop has no browser.
void lookAtHelp(Player& player) {
    player.then([] {
        const QString page = QApplication::applicationDirPath() + "/help/instalacao.htm"_t;
        QUrl section = QUrl::fromLocalFile(page);
        section.setFragment("cartaoPontoDados"_t);
        auto* help = new HelpWindow(section, nullptr);
        help->setAttribute(Qt::WA_DeleteOnClose);
        help->show();
    });
    player.pictureBeside("ajuda"_t, "ajuda"_t);
}

void lookAtCopies(Player& player) {
    player.press(Qt::Key_F8);
    player.picture("restaurar"_t);
    player.press(Qt::Key_Escape);
}

void registerPorters(Player& player) {
    player.click("menu.employees.open"_t);
    const Text names[] = {"ADÃO FERREIRA"_t, "BENTO SIQUEIRA"_t, "CÉLIA RAMOS"_t, "DIVA MOURA"_t};
    int number = 3;
    for (const Text& name : names) {
        player.click("empregados.include"_t);
        const Text code = "%1"_t.arg(++number, 3, 10, QLatin1Char('0'));
        registerPerson(player, {code, name, "PORTEIRO"_t, "13579/0004%1-SP"_t.arg(number),
                                "000"_t + code.last(2), "02/01/2024"_t, "Comercial"_t, "5x1"_t});
    }
    player.click("empregados.close"_t);
}

/// Three porters on 5 x 1, the fourth works in place of whoever is off.
void planRotation(Player& player) {
    player.click("menu.rotation.open"_t);
    player.choose("rotation.shift"_t, "Unico"_t);
    player.picture("escalas-vazio"_t);
    player.click("rotation.new"_t);
    for (const Text& code : {"004"_t, "005"_t, "006"_t}) {
        player.choose("rotation.employees"_t, code);
        player.click("rotation.add"_t);
    }
    player.picture("escalas-descoberto"_t);
    player.choose("rotation.employees"_t, "007"_t);
    player.click("rotation.addRelief"_t);
    player.choose("rotation.firstDay"_t, "05"_t);
    player.click("rotation.save"_t);
    player.answer("Confirma Gravar o GRUPO-001?"_t, Answer::Yes);
    player.picture("escalas"_t);
    player.click("rotation.print"_t);
    player.picture("escala-na-parede"_t);
    player.click("preview.close"_t);
    player.click("rotation.text"_t);
    player.pictureBeside("relatorio"_t, "escala-em-texto"_t);
    player.openTab("rotation.pages"_t, "Quadro"_t);
    player.picture("quadro"_t);
    player.click("rotation.close"_t);
}

void applyRotation(Player& player) {
    player.click("menu.timecard.open"_t);
    player.choose("card.employees"_t, "004"_t);
    player.click("card.apply"_t);
    player.answer("Confirma Aplicação de Ponto"_t, Answer::Yes);
    player.picture("dados-escala"_t);
    player.click("card.close"_t);
}

}  // namespace

void writeMonth(Player& player) {
    registerCompany(player);
    registerEmployees(player);
    lookAtShifts(player);
    chooseMonth(player);
    applyCards(player);
    printCards(player);
    printMirrors(player);
    lookAtCopies(player);
    lookAtHelp(player);
    player.picture("janela-principal"_t);
    registerPorters(player);
    planRotation(player);
    applyRotation(player);
    writePapers(player);
}

}  // namespace winvrx
