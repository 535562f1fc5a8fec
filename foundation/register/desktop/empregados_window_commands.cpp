// The window's commands on the whole list, and the questions that they put before they begin.
#include "foundation/register/desktop/employee_import_window.h"
#include "foundation/register/desktop/empregados_window.h"
#include "foundation/register/employee_import.h"
#include "foundation/register/empregados.h"
#include "foundation/values/desktop/qt_text.h"

#include <QAction>
#include <QCoreApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMenu>
#include <QStandardPaths>
#include <QToolButton>

namespace winvrx {

namespace {

QString documents() {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

std::filesystem::path pathOf(const QString& file) {
    return std::filesystem::path(file.toStdU16String());
}

}  // namespace

void EmpregadosWindow::addListCommands() {
    addCommand({"company", QStringLiteral("Transferir"), Qt::Key_F6, "empregados.transfer",
                [this] { transfer(); }});
    addCommand(
        {"sort", QStringLiteral("Mover"), Qt::Key_F7, "empregados.move", [this] { move(); }});
    QToolButton* list =
        addCommand({"sheet", QStringLiteral("Lista"), Qt::Key_F9, "empregados.listMenu", {}});
    auto* menu = new QMenu(list);
    menu->setObjectName(QStringLiteral("empregados.menu"));
    addToMenu(menu, "sortByName", QStringLiteral("Ordem &alfabética"),
              QKeySequence(QStringLiteral("Ctrl+Shift+A")), &Empregados::sortByName);
    addToMenu(menu, "sortByAdmission", QStringLiteral("Ordem por a&dmissão"),
              QKeySequence(QStringLiteral("Ctrl+Shift+D")), &Empregados::sortByAdmission);
    menu->addSeparator();
    addToMenu(menu, "report", QStringLiteral("&Relatório de ativos e inativos"),
              QKeySequence::Print, &Empregados::report);
    menu->addSeparator();
    addToMenu(menu, "import", QStringLiteral("&Incluir de uma planilha (CSV)…"), QKeySequence::Open,
              [this] { importCsv(); });
    addToMenu(menu, "export", QStringLiteral("&Exportar para planilha…"),
              QKeySequence(QStringLiteral("Ctrl+E")), [this] { exportList(); });
    menu->addSeparator();
    addToMenu(menu, "deleteAll", QStringLiteral("E&xcluir toda a lista…"),
              QKeySequence(QStringLiteral("Ctrl+Shift+Del")), &Empregados::removeAll);
    list->setMenu(menu);
    list->setPopupMode(QToolButton::InstantPopup);
}

void EmpregadosWindow::addToMenu(QMenu* menu, const char* name, const QString& text,
                                 const QKeySequence& key, std::function<void()> run) {
    QAction* action = menu->addAction(text);
    action->setObjectName(QStringLiteral("empregados.") + QLatin1String(name));
    action->setShortcut(key);
    addAction(action);
    connect(action, &QAction::triggered, this, std::move(run));
}

void EmpregadosWindow::addToMenu(QMenu* menu, const char* name, const QString& text,
                                 const QKeySequence& key, bool (Empregados::*command)()) {
    addToMenu(menu, name, text, key,
              [this, command] { runOnList([&] { return (empregados_.*command)(); }); });
}

void EmpregadosWindow::transfer() {
    if (!current()) return empregados_.askForEmployee();
    if (!empregados_.requireOtherCompany()) return;
    QStringList names;
    for (const CompanyLine& line : empregados_.otherCompanies())
        names << toQt(line.record.code + " " + line.record.name);
    QInputDialog dialog(this);
    dialog.setObjectName(QStringLiteral("empregados.target"));
    dialog.setWindowTitle(QStringLiteral("Transferência"));
    dialog.setLabelText(QStringLiteral("Transferir %1 para a empresa:")
                            .arg(toQt(empregados_.lines().at(*current()).record.name)));
    dialog.setComboBoxItems(names);
    if (dialog.exec() != QDialog::Accepted) return;
    const auto chosen = static_cast<std::size_t>(names.indexOf(dialog.textValue()));
    const CompanyCode target = empregados_.otherCompanies().at(chosen).key().value();
    runOnList([&] { return empregados_.transfer(*current(), target); });
}

void EmpregadosWindow::move() {
    if (!current()) return empregados_.askForEmployee();
    QInputDialog dialog(this);
    dialog.setObjectName(QStringLiteral("empregados.place"));
    dialog.setWindowTitle(QStringLiteral("MOVER"));
    dialog.setLabelText(
        QStringLiteral("Nova posição na lista (1 a %1):").arg(empregados_.lines().size()));
    dialog.setTextValue(QString::number(*current() + 1));
    if (dialog.exec() != QDialog::Accepted) return;
    runOnList([&] { return empregados_.moveTo(*current(), toUtf8(dialog.textValue())); });
}

void EmpregadosWindow::importCsv() {
    const QString file = QFileDialog::getOpenFileName(
        this, QStringLiteral("Incluir de uma planilha"), documents(),
        QStringLiteral("Planilha em texto (*.csv *.txt);;Todos os arquivos (*)"));
    if (file.isEmpty()) return;
    runOnList([&] {
        if (!import_.open(pathOf(file))) return false;
        EmployeeImportWindow preview(import_, this);
        if (preview.exec() != QDialog::Accepted) return false;
        empregados_.load();
        return true;
    });
}

void EmpregadosWindow::exportList() {
    const QString workbooks = QStringLiteral("Pasta de trabalho (*.xlsx)");
    const QString texts = QStringLiteral("Planilha em texto (*.csv)");
    QString filter = workbooks;
    QString file = QFileDialog::getSaveFileName(this, QStringLiteral("Exportar para planilha"),
                                                documents() + QStringLiteral("/Funcionarios.xlsx"),
                                                workbooks + QStringLiteral(";;") + texts, &filter);
    if (file.isEmpty()) return;
    if (QFileInfo(file).suffix().isEmpty())
        file += filter == texts ? QStringLiteral(".csv") : QStringLiteral(".xlsx");
    if (empregados_.exportTo(pathOf(file)))
        setState(QStringLiteral("Exportado para %1").arg(QDir::toNativeSeparators(file)));
}

}  // namespace winvrx
