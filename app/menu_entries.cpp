#include "app/menu_entries.h"

#include "foundation/copies/desktop/restore_entry.h"
#include "foundation/menu/desktop/about_window.h"
#include "foundation/register/desktop/register_entries.h"
#include "output/labels/desktop/etiquetas_window.h"
#include "output/mirrors/desktop/hours_reports_window.h"
#include "personnel/contract/desktop/contrato_trabalho_window.h"
#include "personnel/documents/desktop/documentos_window.h"
#include "personnel/employer/desktop/employer_entry.h"
#include "personnel/forms/desktop/relatorios_window.h"
#include "personnel/invoice_letter/desktop/carta_correcao_window.h"
#include "personnel/leaves/desktop/afastamento_window.h"
#include "personnel/payroll/payroll_record.h"
#include "personnel/payslips/desktop/payroll_entry.h"
#include "personnel/payslips/provision_report.h"
#include "personnel/termination/desktop/rescisao_window.h"
#include "personnel/vacation/desktop/ferias_entry.h"
#include "timecard/card/desktop/time_card_entry.h"
#include "timecard/month/desktop/month_entry.h"
#include "timecard/rotation/desktop/rotation_entry.h"
#include "timecard/rotation/rotation_records.h"
#include "tools/internet/desktop/web_ni_window.h"

namespace winvrx {

namespace {

MenuEntry help(const Workplace& at, Browser& browser) {
    return {.group = QStringLiteral("Ferramentas"),
            .tile = {"help", QStringLiteral("&Ajuda"), "menu.help.open", Qt::Key_F1},
            .open = [at, &browser](QWidget*) { openHelp(at, browser); },
            .state =
                [](const MonthProgress* progress) {
                    return progress && progress->employees > 0
                               ? QStringLiteral("Como usar cada tela")
                               : QStringLiteral("Primeiros passos: 10 minutos");
                }};
}

/// Opens a room's screen with what it works with, over a window.
template <typename Open, typename Desk>
auto opener(const Workplace& at, Open& open, const Desk& desk) {
    return [at, &open, desk](QWidget* parent, const auto&... inHand) {
        open(at, desk, parent, inHand...);
    };
}

/// What the rooms' screens work with and lead on to. Everything in here holds what it needs.
struct Rooms {
    const Workplace& at;
    const MenuDesk& desk;
    ReportEngine& engine = desk.printing.engine;
    std::filesystem::path legal = desk.programFolder / "legal";
    std::shared_ptr<RotationRecords> rotation =
        std::make_shared<RotationRecords>(at.store(), at.clock);

    std::function<void(QWidget*, const Employee&)> openEnd =
        [at = at, legal = legal, &engine = engine](QWidget* parent, const Employee& one) {
            openTermination(at, engine, legal, one, parent);
        };
    ScreenOpener openRotation = [at = at, &engine = engine, &editor = desk.editor](
                                    QWidget* parent) { openRotations(at, engine, editor, parent); };
    OpenLetters openLetters = [at = at, &engine = engine](QWidget* parent) {
        openCorrectionLetters(at, engine, parent);
    };

    PaperDesk papers{desk.writer, [at = at, folder = desk.programFolder] {
                         return templateFolders(at.session.folder, folder);
                     }};
    HoursEntryDesk hours{desk.editor, desk.printing.browser, engine, desk.printing.printers,
                         rotation};
    LeavesDesk leaves{engine, desk.editor, openEnd};
    EmployerDesk employer{legal, desk.printing.browser, engine, openEnd};
    ContractDesk contracts{engine, desk.printing.printers, desk.writer, papers.templateFolders};
    DocumentsDesk documents{desk.writer, papers.templateFolders, legal};
    FeriasEntryDesk vacations{papers,
                              [at = at](const EmployeeKey& key, WorkMonth month) {
                                  return vacationNetPaid(at.store(), key, month);
                              },
                              [at = at, &engine = engine](WorkMonth month) {
                                  (void)previewProvisions({at, engine}, month);
                              }};
    TimeCardDesk timeCard{
        rotation,
        [leaves = leaves](const Workplace& office, QWidget* parent, const auto& inHand) {
            openLeaves(office, leaves, parent, inHand);
        },
        openRotation, opener(at, openHoursReports, hours), opener(at, showHoursSummary, hours)};
    PayrollDesk payroll{engine,
                        papers,
                        legal,
                        opener(at, openTimeCard, timeCard),
                        opener(at, openPayrollOptions, employer),
                        opener(at, openPayrollFacts, employer),
                        opener(at, openVacations, vacations)};
};

/// The screens that the documents' one leads on to.
std::vector<DocumentosWindow::Neighbour> besideDocuments(const Rooms& rooms,
                                                         const MenuEntry& contract,
                                                         const MenuEntry& forms) {
    return {
        {"contract", QStringLiteral("Contrato"), Qt::Key_F6, "documents.contract", contract.open},
        {"forms", QStringLiteral("Relatórios"), Qt::Key_F7, "documents.forms", forms.open},
        {"leave", QStringLiteral("Férias"), Qt::Key_F9, "documents.vacations",
         [at = rooms.at, vacations = rooms.vacations](QWidget* parent) {
             openVacations(at, vacations, parent);
         }},
        {"mirror", QStringLiteral("Carta de Correção"), Qt::Key_F8, "documents.letters",
         rooms.openLetters}};
}

}  // namespace

MenuEntries menuEntries(const Workplace& at, const MenuDesk& desk) {
    const Rooms rooms{at, desk};
    MenuEntries all;
    const auto add = [&all](const MenuEntries& some) {
        all.insert(all.end(), some.begin(), some.end());
    };
    add(registerEntries(at, desk.editor, rooms.rotation));
    add({monthEntry(at), timeCardEntry(at, rooms.timeCard)});
    add(cardEntries(at, desk.printing));
    add(hoursEntries(at, rooms.hours));
    add({rotationEntry(at, rooms.openRotation), leavesEntry(at, rooms.leaves),
         vacationsEntry(at, rooms.vacations), payrollEntry(at, rooms.payroll)});
    add(employerEntries(at, rooms.employer));
    const MenuEntry contract = contractEntry(at, rooms.contracts, rooms.openLetters);
    const MenuEntry forms = formsEntry(at, desk.printing.engine);
    add({contract, documentsEntry(at, rooms.documents, besideDocuments(rooms, contract, forms)),
         forms, labelsEntry(at, desk.printing), restoreEntry(at, desk.copies)});
    if (desk.browsers) add({internetEntry(at, desk.browsers)});
    add({help(at, desk.printing.browser), aboutEntry(at, desk.printing.browser, desk.logFile)});
    return all;
}

}  // namespace winvrx
