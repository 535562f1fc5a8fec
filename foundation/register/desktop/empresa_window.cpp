#include "foundation/register/desktop/empresa_window.h"

#include "foundation/register/desktop/company_form.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace winvrx {

EmpresaWindow::EmpresaWindow(Empresa& empresa, QWidget* parent)
    : RegisterWindow(empresa,
                     {.screen = QStringLiteral("empresa"),
                      .title = QStringLiteral("Registro de Empresas"),
                      .listTitle = QStringLiteral("Empresas"),
                      .searchHint = QStringLiteral("Pesquisar empresa…"),
                      .emptyList = QStringLiteral("Nenhuma empresa ainda. Preencha o cadastro ao "
                                                  "lado e grave."),
                      .emptyAction = QStringLiteral("Incluir a primeira"),
                      .headings = {QStringLiteral("Código"), QStringLiteral("Empresa")}},
                     parent) {
    assemble(new CompanyForm(empresa, this), buildOptions(empresa));
    openAt(0);
    // One company is the usual case: its data are what is looked for here.
    focusForm();
}

QWidget* EmpresaWindow::buildOptions(Empresa& empresa) {
    auto* options = new QWidget(this);
    auto* column = new QVBoxLayout(options);
    look::layOutPart(*column);
    column->addWidget(look::heading(QStringLiteral("Opções:"), options));
    const auto add = [&](std::string_view text, const char* name, DeleteOption option) {
        auto* button = new QRadioButton(toQt(text), options);
        look::name(*button, QLatin1String(name), button->text());
        connect(button, &QRadioButton::clicked, this,
                [&empresa, option] { empresa.choose(option); });
        column->addWidget(button);
        return button;
    };
    add(kDeleteCompanyOnly, "empresa.deleteCompanyOnly", DeleteOption::CompanyOnly)
        ->setChecked(true);
    add(kDeleteWithEmployees, "empresa.deleteWithEmployees", DeleteOption::CompanyAndEmployees);
    return options;
}

}  // namespace winvrx
