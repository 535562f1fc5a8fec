#include "app/menu_entries.h"

#include "foundation/copies/desktop/restore_entry.h"
#include "foundation/menu/desktop/about_window.h"
#include "foundation/register/desktop/register_entries.h"
#include "output/labels/desktop/labels_entry.h"
#include "output/mirrors/desktop/hours_entry.h"
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
            .objectName = QStringLiteral("menu.help.open"),
            .icon = QStringLiteral("help"),
            .title = QStringLiteral("&Ajuda"),
            .key = Qt::Key_F1,
            .open = [at, &browser](QWidget*) { openHelp(at, browser); },
            .state =
                [](const MonthProgress* progress) {
                    return progress && progress->employees > 0
                               ? QStringLiteral("Como usar cada tela")
                               : QStringLiteral("Primeiros passos: 10 minutos");
                }};
}

}  // namespace

MenuEntries menuEntries(const Workplace& at, const MenuDesk& desk) {
    MenuEntries all;
    const auto add = [&all](const MenuEntries& some) {
        all.insert(all.end(), some.begin(), some.end());
    };
    const auto rotation = std::make_shared<RotationRecords>(at.store(), at.clock);
    const auto openRotation = [at, &engine = desk.printing.engine, &editor = desk.editor](
                                  QWidget* parent) { openRotations(at, engine, editor, parent); };
    add(registerEntries(at, desk.editor, rotation));
    add({monthEntry(at)});
    const CardPrintingDesk& printing = desk.printing;
    const HoursEntryDesk hours{desk.editor, printing.browser, printing.engine, printing.printers,
                               rotation};
    const auto openHours = [at, hours](QWidget* parent) { openHoursReports(at, hours, parent); };
    const std::filesystem::path legal = desk.programFolder / "legal";
    const auto openEnd = [at, legal, &engine = printing.engine](QWidget* parent,
                                                                const Employee& one) {
        openTermination(at, engine, legal, one, parent);
    };
    const LeavesDesk leaves{printing.engine, desk.editor, openEnd};
    const EmployerDesk employer{legal, printing.browser, printing.engine, openEnd};
    const PaperDesk papers{desk.writer, [at, folder = desk.programFolder] {
                               return templateFolders(at.session.folder, folder);
                           }};
    const FeriasEntryDesk vacations{papers,
                                    [at](const EmployeeKey& key, WorkMonth month) {
                                        return vacationNetPaid(at.store(), key, month);
                                    },
                                    [at, &engine = printing.engine](WorkMonth month) {
                                        (void)previewProvisions({at, engine}, month);
                                    }};
    const TimeCardDesk timeCard{
        rotation,
        [leaves](const Workplace& office, QWidget* parent, const auto& inHand) {
            openLeaves(office, leaves, parent, inHand);
        },
        openRotation, openHours,
        [at, hours](QWidget* parent) { showHoursSummary(at, hours, parent); }};
    add({timeCardEntry(at, timeCard)});
    add(cardEntries(at, printing));
    add(hoursEntries(at, hours));
    add({rotationEntry(at, openRotation)});
    add({leavesEntry(at, leaves)});
    add({vacationsEntry(at, vacations)});
    add({payrollEntry(
        at, {printing.engine, papers, legal,
             [at, timeCard](QWidget* parent, const auto& one) {
                 openTimeCard(at, timeCard, parent, one);
             },
             [at, employer](QWidget* parent) { openPayrollOptions(at, employer, parent); },
             [at, employer](QWidget* parent, const auto& one) {
                 openPayrollFacts(at, employer, parent, one);
             },
             [at, vacations](QWidget* parent, const auto& one) {
                 openVacations(at, vacations, parent, one);
             }})});
    add(employerEntries(at, employer));
    const ContractDesk contracts{printing.engine, printing.printers, papers.writer,
                                 papers.templateFolders};
    const auto openLetters = [at, &engine = printing.engine](QWidget* parent) {
        openCorrectionLetters(at, engine, parent);
    };
    const MenuEntry contract = contractEntry(at, contracts, openLetters);
    const MenuEntry forms = formsEntry(at, printing.engine);
    using Neighbour = DocumentosWindow::Neighbour;
    add({contract,
         documentsEntry(
             at, {papers.writer, papers.templateFolders, legal},
             {Neighbour{"contract", QStringLiteral("Contrato"), Qt::Key_F6, "documents.contract",
                        contract.open},
              Neighbour{"forms", QStringLiteral("Relatórios"), Qt::Key_F7, "documents.forms",
                        forms.open},
              Neighbour{"leave", QStringLiteral("Férias"), Qt::Key_F9, "documents.vacations",
                        [at, vacations](QWidget* parent) { openVacations(at, vacations, parent); }},
              Neighbour{"mirror", QStringLiteral("Carta de Correção"), Qt::Key_F8,
                        "documents.letters", openLetters}}),
         forms});
    add({labelsEntry(at, printing)});
    add({restoreEntry(at, desk.copies)});
    if (desk.browsers) add({internetEntry(at, desk.browsers)});
    add({help(at, printing.browser)});
    add({aboutEntry(at, printing.browser, desk.logFile)});
    return all;
}

}  // namespace winvrx
