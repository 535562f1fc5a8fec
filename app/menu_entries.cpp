#include "app/menu_entries.h"

#include "foundation/copies/desktop/restore_entry.h"
#include "foundation/menu/desktop/about_window.h"
#include "foundation/register/desktop/register_entries.h"
#include "output/mirrors/desktop/hours_entry.h"
#include "personnel/leaves/desktop/leaves_entry.h"
#include "timecard/card/desktop/time_card_entry.h"
#include "timecard/month/desktop/month_entry.h"
#include "timecard/rotation/desktop/rotation_entry.h"
#include "timecard/rotation/rotation_records.h"

namespace winvrx {

namespace {

/// A screen that does not exist yet.
MenuEntry planned(const char* group, const char* name, const char* icon, const char* title) {
    return {.group = QString::fromUtf8(group),
            .objectName = QStringLiteral("menu.%1.open").arg(QLatin1String(name)),
            .icon = QString::fromLatin1(icon),
            .title = QString::fromUtf8(title),
            .state = [](const MonthProgress*) { return QStringLiteral("Em uma próxima versão"); }};
}

MenuEntry help(const Workplace& at, Browser& browser) {
    return {.group = QStringLiteral("Ferramentas"),
            .objectName = QStringLiteral("menu.help.open"),
            .icon = QStringLiteral("help"),
            .title = QStringLiteral("&Ajuda"),
            .key = Qt::Key_F1,
            .open = [at, &browser](QWidget*) { openHelp(at, browser); },
            .state = [](const MonthProgress*) { return QStringLiteral("Como usar cada tela"); }};
}

}  // namespace

MenuEntries menuEntries(const Workplace& at, const CardPrintingDesk& desk, TextEditor& editor,
                        SafetyCopies& copies, const std::string& logFile) {
    MenuEntries all;
    const auto add = [&all](const MenuEntries& some) {
        all.insert(all.end(), some.begin(), some.end());
    };
    const auto rotation = std::make_shared<RotationRecords>(at.store(), at.clock);
    const auto openRotation = [at, &engine = desk.engine, &editor](QWidget* parent) {
        openRotations(at, engine, editor, parent);
    };
    add(registerEntries(at, editor, rotation));
    add({monthEntry(at)});
    const HoursEntryDesk hours{editor, desk.browser, desk.engine, desk.printers, rotation};
    const auto openHours = [at, hours](QWidget* parent) { openHoursReports(at, hours, parent); };
    const LeavesDesk leaves{desk.engine, editor};
    add({timeCardEntry(
        at, rotation,
        [leaves](const Workplace& office, QWidget* parent, const auto& inHand) {
            openLeaves(office, leaves, parent, inHand);
        },
        openRotation, openHours)});
    add(cardEntries(at, desk));
    add(hoursEntries(at, hours));
    add({rotationEntry(at, openRotation)});
    add({leavesEntry(at, leaves)});
    add({planned("Pessoal", "payroll", "payroll", "Folha de Pagamento")});
    add({planned("Pessoal", "documents", "documents", "Documentos")});
    add({planned("Ferramentas", "labels", "labels", "Etiquetas")});
    add({planned("Ferramentas", "backup", "backup", "Cópia de Segurança")});
    add({restoreEntry(at, copies)});
    add({help(at, desk.browser)});
    add({aboutEntry(at, desk.browser, logFile)});
    return all;
}

}  // namespace winvrx
