#include "app/menu_entries.h"

namespace winvrx {

namespace {

using Open = std::function<void(QWidget*)>;
using State = std::function<QString()>;

QString notYet() {
    return QStringLiteral("Em uma próxima versão");
}

MenuEntry entry(MenuCommand command, const QString& group, const char* name, const char* icon,
                const char* title, const QKeySequence& key, Open open = nullptr,
                State state = notYet) {
    return {command,
            group,
            QStringLiteral("menu.") + QString::fromLatin1(name),
            QString::fromLatin1(icon),
            QString::fromUtf8(title),
            key,
            std::move(open),
            std::move(state)};
}

void addRegisters(std::vector<MenuEntry>& entries, Screens& screens) {
    const QString group = QStringLiteral("Cadastros");
    entries.push_back(entry(
        MenuCommand::Companies, group, "companies.open", "company", "&Empresas", Qt::Key_F2,
        [&](QWidget* parent) { screens.openCompanies(parent); },
        [&] { return screens.companiesState(); }));
    entries.push_back(entry(
        MenuCommand::Employees, group, "employees.open", "employees", "&Funcionários", Qt::Key_F3,
        [&](QWidget* parent) { screens.openEmployees(parent); },
        [&] { return screens.employeesState(); }));
    entries.push_back(entry(
        MenuCommand::Shifts, group, "shifts.open", "shifts", "&Turnos", Qt::Key_F9,
        [&](QWidget* parent) { screens.openShifts(parent); },
        [&] { return screens.shiftsState(); }));
}

void addCards(std::vector<MenuEntry>& entries, Screens& screens) {
    const QString group = QStringLiteral("Cartão de Ponto");
    entries.push_back(entry(
        MenuCommand::WorkMonth, group, "month.open", "month", "&Mês", Qt::Key_F4,
        [&](QWidget* parent) { screens.openWorkMonth(parent); },
        [&] { return screens.monthState(); }));
    entries.push_back(entry(
        MenuCommand::TimeCard, group, "timecard.open", "card", "&Dados", Qt::Key_F5,
        [&](QWidget* parent) { screens.openTimeCard(parent); },
        [&] { return screens.timeCardState(); }));
    entries.push_back(entry(
        MenuCommand::PrintCards, group, "print.open", "print", "&Imprimir", Qt::Key_F6,
        [&](QWidget* parent) { screens.openCards(parent, false); },
        [&] { return screens.stockState(); }));
    entries.push_back(entry(
        MenuCommand::CardSheet, group, "sheet.open", "sheet", "Fo&lha", Qt::Key_F7,
        [&](QWidget* parent) { screens.openCards(parent, true); },
        [] { return QStringLiteral("Ver os cartões na tela"); }));
    entries.push_back(
        entry(MenuCommand::Rotation, group, "rotation.open", "rotation", "Escalas", {}));
    entries.push_back(entry(MenuCommand::Mirror, group, "mirror.open", "mirror", "Espelho", {}));
}

void addPersonnel(std::vector<MenuEntry>& entries) {
    const QString group = QStringLiteral("Pessoal");
    entries.push_back(
        entry(MenuCommand::Leaves, group, "leaves.open", "leave", "Afastamentos", {}));
    entries.push_back(
        entry(MenuCommand::Payroll, group, "payroll.open", "payroll", "Folha de Pagamento", {}));
    entries.push_back(
        entry(MenuCommand::Documents, group, "documents.open", "documents", "Documentos", {}));
}

void addTools(std::vector<MenuEntry>& entries, Menu& menu, Screens& screens) {
    const QString group = QStringLiteral("Ferramentas");
    entries.push_back(entry(MenuCommand::Labels, group, "labels.open", "labels", "Etiquetas", {}));
    entries.push_back(
        entry(MenuCommand::Backup, group, "backup.open", "backup", "Cópia de Segurança", {}));
    entries.push_back(entry(
        MenuCommand::Restore, group, "restore.open", "restore", "&Restaurar Cópia", Qt::Key_F8,
        [&](QWidget* parent) { screens.openCopies(parent); },
        [] { return QStringLiteral("Voltar a um dia anterior"); }));
    entries.push_back(entry(
        MenuCommand::Help, group, "help.open", "help", "&Ajuda", Qt::Key_F1,
        [&](QWidget*) { menu.openHelp(); }, [] { return QStringLiteral("Como usar cada tela"); }));
}

}  // namespace

std::vector<MenuEntry> menuEntries(Menu& menu, Screens& screens) {
    std::vector<MenuEntry> entries;
    addRegisters(entries, screens);
    addCards(entries, screens);
    addPersonnel(entries);
    addTools(entries, menu, screens);
    return entries;
}

}  // namespace winvrx
