#include "foundation/desk/desktop/help_window.h"
#include "foundation/values/text.h"
#include "player.h"
#include "scripts.h"

#include <QApplication>
#include <QFile>
#include <QUrl>

#include <array>
#include <string>

namespace winvrx {

namespace {

struct Person {
    std::string name;
    std::string function;
    std::string workBooklet;
    std::string registration;
    std::string admission;
    std::string shift = "Comercial";
    std::string scale = "Normal";
    std::string salary = {};
};

void registerCompany(Player& player) {
    player.picture("janela-vazia");
    player.press(Qt::Key_F2);
    player.press(Qt::Key_Insert);
    player.type("empresa.name", "PADARIA PÃO DE MEL LTDA");
    player.type("empresa.taxId", "11.222.333/0001-81");
    player.type("empresa.address", "RUA DAS ACÁCIAS, 120");
    player.type("empresa.district", "CENTRO");
    player.type("empresa.city", "TAUBATÉ");
    player.type("empresa.state", "SP");
    player.type("empresa.postalCode", "12020-330");
    player.type("empresa.owner", "MARIA HELENA PRADO");
    player.picture("empresas");
    player.confirm(Qt::CTRL | Qt::Key_S, "Confirma a Inclusão?");
    player.press(Qt::Key_Escape);
    player.choose("menu.companies", "PADARIA");
}

void registerPerson(Player& player, const Person& person) {
    player.openTab("empregados.tabs", "Identificação");
    player.type("empregados.name", person.name);
    player.type("empregados.function", person.function);
    player.openTab("empregados.tabs", "Contrato");
    player.type("empregados.admission", person.admission);
    player.choose("empregados.shift", person.shift);
    player.choose("empregados.scale", person.scale);
    if (!person.salary.empty()) player.type("empregados.salary", person.salary);
    player.openTab("empregados.tabs", "Documentos");
    player.type("empregados.workBooklet", person.workBooklet);
    player.type("empregados.registration", person.registration);
    player.confirm(Qt::CTRL | Qt::Key_S, "Confirma a Inclusão na LISTA DE FUNCIONARIOS?");
}

/// Both reports, in the viewer that stands in for a desktop's editor.
void lookAtReports(Player& player) {
    player.pictureBeside("relatorio", "relatorio");
    player.pictureBeside("relatorio", "relatorio-dois");
}

/// A spreadsheet with a good row, a doubtful one and two that cannot be taken.
void lookAtImport(Player& player) {
    const QString path = player.folder() + QStringLiteral("/planilha.csv");
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
    player.trigger("empregados.import");
    player.chooseFile(path);
    player.picture("importar");
    player.click("importar.include");
    player.answer("Confirma a Inclusão na LISTA DE FUNCIONARIOS?", Answer::No);
    player.click("importar.cancel");
}

void registerEmployees(Player& player) {
    player.press(Qt::Key_F3);
    player.picture("funcionarios-vazio");
    registerPerson(player, {"JOSÉ DA CONCEIÇÃO", "PADEIRO", "12345/00010-SP", "00001", "02/05/2019",
                            "Comercial", "Normal", "2.640,00"});
    player.press(Qt::Key_Insert);
    registerPerson(player, {"ANA PAULA D'ÁVILA", "BALCONISTA", "67890/00022-SP", "00002",
                            "12/03/2024", "Comercial", "Normal", "1.850,00"});
    player.press(Qt::Key_Insert);
    registerPerson(player, {"JOÃO BATISTA LIMA", "VIGIA NOTURNO", "24680/00031-SP", "00003",
                            "10/01/2022", "Noite", "Normal", "1.900,00"});
    player.choose("empregados.list", "001");
    player.openTab("empregados.tabs", "Identificação");
    player.picture("funcionarios");
    player.openTab("empregados.tabs", "Contrato");
    player.picture("funcionarios-contrato");
    player.trigger("empregados.report");
    player.answer("Confirma Geração do Relatório de Colaboradores Ativos e Inativos?", Answer::Yes);
    lookAtReports(player);
    lookAtImport(player);
    player.press(Qt::Key_Escape);
}

void lookAtShifts(Player& player) {
    player.press(Qt::Key_F9);
    player.choose("turnos.employees", "003");
    player.look("turnos");
}

void chooseMonth(Player& player) {
    player.press(Qt::Key_F4);
    player.choose("month.month", "fevereiro/2024");
    player.picture("mes-carnaval");
    player.press(Qt::Key_F6);
    player.picture("feriados-vazio");
    player.type("feriados.day", "0512");
    player.type("feriados.name", "ANIVERSÁRIO DE TAUBATÉ");
    player.confirm(Qt::CTRL | Qt::Key_S, "Confirma a Inclusão?");
    player.look("feriados");
    player.choose("month.month", "março/2024");
    player.picture("mes");
    player.confirm(Qt::Key_F7,
                   "Confirma Atualizar as Horas Extras de MARÇO/2024 p/Todos os Funcionários");
    player.confirm(Qt::ALT | Qt::Key_C,
                   "Há feriados sugeridos que não estão marcados. Deseja marcá-los?");
    player.picture("janela-com-mes");
}

void recordHours(Player& player, const char* code, const std::array<const char*, 6>& times) {
    player.choose("card.employees", code);
    for (std::size_t i = 0; i < times.size(); ++i)
        player.type("schedule.time" + std::to_string(i + 1), times[i]);
    player.confirm(Qt::ALT | Qt::Key_H, "No SÁBADO Será HORA NORMAL?");
}

/// Two days of 001 as they were punched, and a day on which he did not come.
void correctDays(Player& player) {
    constexpr int kMonday = 3;
    constexpr int kTuesday = 4;
    constexpr int kAbsent = 11;
    constexpr int kSituation = 8;
    constexpr const char* kGrid = "card.half1";
    player.choose("card.employees", "001");
    player.typeCell(kGrid, kMonday, 1, "812");
    player.typeCell(kGrid, kMonday, 4, "17:30");
    player.typeCell(kGrid, kTuesday, 3, "1150");
    player.picture("dados-aviso");
    player.typeCell(kGrid, kTuesday, 3, "1310");
    player.typeCell(kGrid, kAbsent, kSituation, "Falta");
    player.press(Qt::CTRL | Qt::Key_S);
    player.picture("dados");
    player.choose("hours.table", "Hora Falta");
    player.look("explicacao");
    player.press(Qt::Key_F6);
    player.picture("dados-segunda-quinzena");
}

void addLeave(Player& player) {
    player.confirm(Qt::Key_Insert, "Confirma Adicionar Novo Afastamento?");
    player.answer("Há dias preenchidos no cartão que este afastamento muda.", Answer::Yes);
}

/// A medical certificate of 001, and 003 who is dismissed on the 20th, both after the cards were
/// filled.
void recordLeaves(Player& player) {
    player.choose("card.employees", "001");
    player.press(Qt::Key_F8);
    player.choose("leaves.type", "007");
    player.type("leaves.firstDay", "18/03/2024");
    player.type("leaves.days", "3");
    player.type("leaves.hours", "0");
    player.picture("atestado");
    addLeave(player);
    player.choose("leaves.employees", "003");
    player.choose("leaves.type", "008");
    player.type("leaves.firstDay", "20/03/2024");
    player.choose("leaves.terminationType", "01.");
    player.choose("leaves.noticeType", "02.");
    addLeave(player);
    player.picture("afastamentos");
    player.confirm(Qt::Key_F9, "Confirma  Inativar  Funcionário Selecionado?");
    player.look("inativo");
    player.picture("dados-atestado");
    player.choose("card.employees", "003");
    player.picture("dados-rescisao");
}

void applyCards(Player& player) {
    player.press(Qt::Key_F5);
    recordHours(player, "001", {"08:00", "12:00", "13:00", "17:00", "08:00", "12:00"});
    recordHours(player, "002", {"09:00", "13:00", "14:00", "18:00", "09:00", "13:00"});
    recordHours(player, "003", {"22:00", "02:00", "03:00", "06:00", "22:00", "02:00"});
    player.press(Qt::SHIFT | Qt::Key_F9);
    player.answer("Esta Operação Irá Apagar Todos os Dados Já Existentes", Answer::Ok);
    player.answer("Tem Certeza que Deseja Substituir", Answer::Ok);
    player.picture("aplicar-todos");
    player.answer("Confirma Aplicação de Ponto", Answer::Yes);
    correctDays(player);
    recordLeaves(player);
    player.press(Qt::Key_Escape);
}

void lookAtPrinters(Player& player) {
    player.press(Qt::CTRL | Qt::Key_R);
    player.tick("impressorar.kind.installed", true);
    player.choose("impressorar.printers", "LaserJet");
    player.picture("impressoras");
    player.tick("impressorar.kind.default", true);
    player.press(Qt::Key_Escape);
}

/// Moves the print back to where it began, so that the cards lie where they belong.
void alignPrint(Player& player) {
    player.press(Qt::CTRL | Qt::Key_J);
    for (int step = 0; step < 3; ++step)
        player.press(Qt::CTRL | Qt::Key_Right);
    player.picture("alinhamento");
    player.openTab("cartaoPontos.tabs", "calibração");
    player.picture("calibracao");
    player.confirm(Qt::CTRL | Qt::Key_R, "Confirma a Volta de Todos os Alinhamentos ao Padrão?");
    player.press(Qt::Key_Escape);
}

void printCards(Player& player) {
    player.press(Qt::Key_F6);
    player.press(Qt::CTRL | Qt::Key_T);
    player.tick("tipoPonto.stocks.01", true);
    player.look("tipo");
    lookAtPrinters(player);
    alignPrint(player);
    player.choose("cartao.employees", "001");
    player.picture("imprimir");
    player.tick("cartao.output.preview", true);
    player.click("cartao.printAll");
    player.look("previa");
    player.tick("cartao.output.printer", true);
    player.click("cartao.printAll");
    player.press(Qt::Key_Escape);
}

void printMirrors(Player& player) {
    player.press(Qt::Key_F12);
    player.choose("horas.employees", "001");
    player.picture("espelhos");
    player.click("horas.overview");
    player.look("resumo-do-mes");
    player.confirm("horas.mirrors", "Confirma a Impressão do ESPELHO DE PONTO");
    player.look("espelho-na-tela");
    player.tick("horas.output.printer", true);
    player.confirm("horas.mirrors", "Confirma a Impressão do ESPELHO DE PONTO");
    player.click("horas.report");
    player.answer("Deseja Gerar o Relatório Em EXCEL ou ARQUIVO TEXTO ?", Answer::No);
    player.pictureBeside("relatorio", "relatorio-de-horas");
    player.press(Qt::Key_Escape);
}

/// The page as it is shown where the desktop has no browser.
void lookAtHelp(Player& player) {
    player.then([] {
        const QString page =
            QApplication::applicationDirPath() + QStringLiteral("/help/instalacao.htm");
        QUrl section = QUrl::fromLocalFile(page);
        section.setFragment(QStringLiteral("cartaoPontoDados"));
        auto* help = new HelpWindow(section, nullptr);
        help->setAttribute(Qt::WA_DeleteOnClose);
        help->show();
    });
    player.pictureBeside("ajuda", "ajuda");
}

void lookAtCopies(Player& player) {
    player.press(Qt::Key_F8);
    player.look("restaurar");
}

void registerPorters(Player& player) {
    player.click("menu.employees.open");
    int number = 3;
    for (const char* name : {"ADÃO FERREIRA", "BENTO SIQUEIRA", "CÉLIA RAMOS", "DIVA MOURA"}) {
        player.click("empregados.include");
        ++number;
        registerPerson(player, {.name = name,
                                .function = "PORTEIRO",
                                .workBooklet = "13579/0004" + std::to_string(number) + "-SP",
                                .registration = padded(number, 5),
                                .admission = "02/01/2024",
                                .scale = "5x1"});
    }
    player.click("empregados.close");
}

/// Three porters on 5 x 1, the fourth works in place of whoever is off.
void planRotation(Player& player) {
    player.click("menu.rotation.open");
    player.choose("rotation.shift", "Unico");
    player.picture("escalas-vazio");
    player.click("rotation.new");
    for (const char* code : {"004", "005", "006"}) {
        player.choose("rotation.employees", code);
        player.click("rotation.add");
    }
    player.picture("escalas-descoberto");
    player.choose("rotation.employees", "007");
    player.click("rotation.addRelief");
    player.choose("rotation.firstDay", "05");
    player.confirm("rotation.save", "Confirma Gravar o GRUPO-001?");
    player.picture("escalas");
    player.click("rotation.print");
    player.look("escala-na-parede", "preview.close");
    player.click("rotation.text");
    player.pictureBeside("relatorio", "escala-em-texto");
    player.openTab("rotation.pages", "Quadro");
    player.look("quadro", "rotation.close");
}

void applyRotation(Player& player) {
    player.click("menu.timecard.open");
    player.choose("card.employees", "004");
    player.confirm("card.apply", "Confirma Aplicação de Ponto");
    player.look("dados-escala", "card.close");
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
    player.picture("janela-principal");
    registerPorters(player);
    planRotation(player);
    applyRotation(player);
    writePapers(player);
}

}  // namespace winvrx
