#include "foundation/register/desktop/empresa_window.h"

#include "foundation/register/desktop/company_form.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace winvrx {

EmpresaWindow::EmpresaWindow(Empresa& empresa, QWidget* parent)
    : RegisterWindow({.screen = QStringLiteral("empresa"),
                      .title = QStringLiteral("Registro de Empresas"),
                      .listTitle = QStringLiteral("Empresas"),
                      .searchHint = QStringLiteral("Pesquisar empresa…"),
                      .emptyList = QStringLiteral("Nenhuma empresa ainda. Preencha o cadastro ao "
                                                  "lado e grave."),
                      .emptyAction = QStringLiteral("Incluir a primeira"),
                      .headings = {QStringLiteral("Código"), QStringLiteral("Empresa")}},
                     parent),
      empresa_(empresa) {
    form_ = new CompanyForm(this);
    connect(form_, &CompanyForm::edited, this, &EmpresaWindow::showState);
    connect(this, &ScreenWindow::helpRequested, this, [this] { empresa_.help(); });
    assemble(form_, buildOptions());
    empresa_.load();
    refresh(0);
    focusForm();
}

QWidget* EmpresaWindow::buildOptions() {
    auto* options = new QWidget(this);
    auto* column = new QVBoxLayout(options);
    look::layOutPart(*column);
    column->addWidget(look::heading(QStringLiteral("Opções:"), options));
    auto* onlyCompany = new QRadioButton(toQt(kDeleteCompanyOnly), options);
    onlyCompany->setObjectName(QStringLiteral("empresa.deleteCompanyOnly"));
    withEmployees_ = new QRadioButton(toQt(kDeleteWithEmployees), options);
    withEmployees_->setObjectName(QStringLiteral("empresa.deleteWithEmployees"));
    for (QRadioButton* option : {onlyCompany, withEmployees_}) {
        option->setAccessibleName(option->text());
        column->addWidget(option);
    }
    onlyCompany->setChecked(true);
    return options;
}

std::vector<RegisterList::Row> EmpresaWindow::rows() const {
    std::vector<RegisterList::Row> rows;
    for (const CompanyLine& line : empresa_.lines()) {
        if (!line.code()) {
            rows.push_back(RegisterList::unreadRow(line.bytes));
            continue;
        }
        const QString code = toQt(line.company.code);
        const QString name = toQt(line.company.name);
        rows.push_back({{code, name}, code + QLatin1Char(' ') + name});
    }
    return rows;
}

void EmpresaWindow::showRecord(std::optional<std::size_t> position) {
    Company company;
    const CompanyLine* line = position ? &empresa_.lines().at(*position) : nullptr;
    if (line && line->code())
        company = line->company;
    else if (const auto code = empresa_.proposedCode(); !line && code)
        company.code = code->text();
    form_->showCompany(company);
    showCounts();
}

void EmpresaWindow::showCounts() {
    const auto& lines = empresa_.lines();
    const auto companies = std::count_if(lines.begin(), lines.end(), [](const CompanyLine& line) {
        return line.code().has_value();
    });
    const auto unread = static_cast<std::ptrdiff_t>(lines.size()) - companies;
    setSubtitle((companies == 1 ? QStringLiteral("1 empresa")
                                : QStringLiteral("%1 empresas").arg(companies)) +
                RegisterList::unreadCount(unread));
}

bool EmpresaWindow::isDirty() const {
    return form_->isDirty();
}

void EmpresaWindow::focusForm() {
    form_->focusFirst();
}

QString EmpresaWindow::newRecordTitle() const {
    const auto code = empresa_.proposedCode();
    if (!code) return QStringLiteral("Todos os códigos de 01 a 99 já estão em uso");
    return QStringLiteral("Nova empresa: receberá o código %1").arg(toQt(code->text()));
}

bool EmpresaWindow::includeTyped() {
    return empresa_.include(form_->typed());
}

bool EmpresaWindow::changeTyped(std::size_t position) {
    return empresa_.change(position, form_->typed());
}

bool EmpresaWindow::removeRecord(std::size_t position) {
    return empresa_.remove(position, withEmployees_->isChecked() ? DeleteOption::CompanyAndEmployees
                                                                 : DeleteOption::CompanyOnly);
}

bool EmpresaWindow::mayDiscardTyped() {
    return empresa_.mayDiscardTyped();
}

}  // namespace winvrx
