#include "foundation/register/desktop/employee_import_window.h"

#include "foundation/register/employee_import.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/look.h"

#include <QCheckBox>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace winvrx {

namespace {

enum Column { kNumber, kCode, kName, kFunction, kAdmission, kShift, kScale, kFinding };

const QStringList kHeadings = {QStringLiteral("Linha"),    QStringLiteral("Código"),
                               QStringLiteral("Nome"),     QStringLiteral("Função"),
                               QStringLiteral("Admissão"), QStringLiteral("Turno"),
                               QStringLiteral("Escala"),   QStringLiteral("Verificação")};

QString findingOf(const ImportedRow& row) {
    if (!row.isGood()) return QStringLiteral("✗ ") + toQt(row.problem);
    if (!row.notice.empty()) return QStringLiteral("⚠ ") + toQt(row.notice);
    return QStringLiteral("✓ Pronto");
}

look::Tint tintOf(const ImportedRow& row) {
    if (!row.isGood()) return look::Tint::Absence;
    return row.notice.empty() ? look::Tint::Good : look::Tint::Warning;
}

}  // namespace

EmployeeImportWindow::EmployeeImportWindow(EmployeeImport& import, QWidget* parent)
    : ScreenWindow(QStringLiteral("importar"), QStringLiteral("Incluir de uma planilha"), parent),
      import_(import) {
    buildBody();
    buildClosing();
    fillRows();
    showSummary();
    rows_->setFocus();
}

void EmployeeImportWindow::buildBody() {
    const auto [body, column] = look::body(this);
    onlyProblems_ = new QCheckBox(QStringLiteral("Mostrar somente linhas com &problema"), body);
    look::name(*onlyProblems_, QStringLiteral("importar.onlyProblems"),
               QStringLiteral("Mostrar somente linhas com problema"));
    connect(onlyProblems_, &QCheckBox::toggled, this, &EmployeeImportWindow::filter);
    column->addWidget(onlyProblems_);
    rows_ = look::table(QStringLiteral("importar.rows"), QStringLiteral("Linhas da planilha"),
                        kHeadings, body);
    rows_->header()->setStretchLastSection(true);
    column->addWidget(rows_, 1);
    setBody(body);
}

void EmployeeImportWindow::buildClosing() {
    const std::size_t count = import_.goodRows();
    QPushButton* include = addClosingButton(
        {"add", toQt("&Incluir " + countOf(count, "funcionário")), {}, "importar.include", [this] {
             this->include();
         }});
    include->setDefault(count > 0);
    include->setEnabled(count > 0);
    addLeavingButton("importar.cancel", QStringLiteral("&Cancelar"));
}

void EmployeeImportWindow::fillRows() {
    for (const ImportedRow& row : import_.rows()) {
        const Employee& one = row.employee;
        auto* item = new QTreeWidgetItem(
            rows_, {QString::number(row.number), toQt(one.code), toQt(one.name), toQt(one.function),
                    toQt(one.admission), toQt(one.shift), toQt(one.scale), findingOf(row)});
        item->setData(kFinding, Qt::UserRole, row.isGood());
        item->setToolTip(kFinding, findingOf(row));
    }
    tintFindings();
    if (QTreeWidgetItem* first = rows_->topLevelItem(0)) rows_->setCurrentItem(first);
}

void EmployeeImportWindow::tintFindings() {
    for (int i = 0; i < rows_->topLevelItemCount(); ++i)
        rows_->topLevelItem(i)->setForeground(
            kFinding, look::color(tintOf(import_.rows()[static_cast<std::size_t>(i)]), palette()));
}

void EmployeeImportWindow::changeEvent(QEvent* event) {
    ScreenWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && rows_) tintFindings();
}

void EmployeeImportWindow::showSummary() {
    const std::size_t good = import_.goodRows();
    const std::size_t bad = import_.rows().size() - good;
    std::string text = "Nada foi gravado ainda.";
    if (bad > 0)
        text += " " + countOf(bad, "linha com problema fica", "linhas com problema ficam") +
                " de fora.";
    if (!import_.unknownTitles().empty())
        text += " Colunas não reconhecidas: " + joined(import_.unknownTitles(), ", ");
    setState(toQt(text));
    setSubtitle(QStringLiteral("%1 de %2 linhas prontas").arg(good).arg(import_.rows().size()));
}

void EmployeeImportWindow::filter() {
    for (int i = 0; i < rows_->topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = rows_->topLevelItem(i);
        item->setHidden(onlyProblems_->isChecked() && item->data(kFinding, Qt::UserRole).toBool());
    }
}

void EmployeeImportWindow::include() {
    if (import_.include()) accept();
}

}  // namespace winvrx
