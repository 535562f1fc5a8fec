#include "foundation/register/desktop/register_entries.h"

#include "foundation/desk/desktop/xlsx_spreadsheet.h"
#include "foundation/register/company_register.h"
#include "foundation/register/desktop/empregados_window.h"
#include "foundation/register/desktop/empresa_window.h"
#include "foundation/register/desktop/turnos_window.h"
#include "foundation/register/employee_import.h"
#include "foundation/register/employee_queries.h"
#include "foundation/register/empregados.h"
#include "foundation/register/empresa.h"
#include "foundation/register/turnos.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

const QString kGroup = QStringLiteral("Cadastros");

QString companiesState(const Workplace& at) {
    const auto known = std::ranges::count_if(loadCompanies(at.store()), &CompanyLine::isKnown);
    return toQt(countOf(known, "empresa"));
}

QString employeesState(const MonthProgress* progress) {
    if (!progress) return QStringLiteral("Selecione uma empresa");
    if (progress->employees == 0) return QStringLiteral("Incluir o primeiro");
    return toQt(countOf(progress->employees, "funcionário"));
}

MenuEntry companies(const Workplace& at) {
    return {.group = kGroup,
            .tile = {"company", QStringLiteral("&Empresas"), "menu.companies.open", Qt::Key_F2},
            .open =
                [at](QWidget* parent) {
                    Empresa companies(at);
                    EmpresaWindow(companies, parent).exec();
                },
            .state = [at](const MonthProgress*) { return companiesState(at); }};
}

using Rotation = std::shared_ptr<const RotationMembership>;

MenuEntry employees(const Workplace& at, TextEditor& editor, const Rotation& rotation) {
    return {
        .group = kGroup,
        .tile = {"employees", QStringLiteral("&Funcionários"), "menu.employees.open", Qt::Key_F3},
        .needs = MenuNeeds::Company,
        .open =
            [at, &editor, rotation](QWidget* parent) {
                XlsxSpreadsheet spreadsheet;
                const RecordedAnswers records(at.store());
                Empregados employees(at, {editor, spreadsheet, *rotation, records});
                EmployeeImport import(at);
                EmpregadosWindow(employees, import, parent).exec();
            },
        .state = employeesState,
        .step = MonthStep::RegisterEmployees};
}

MenuEntry shifts(const Workplace& at, const Rotation& rotation) {
    return {.group = kGroup,
            .tile = {"shifts", QStringLiteral("&Turnos"), "menu.shifts.open", Qt::Key_F9},
            .needs = MenuNeeds::Employees,
            .open =
                [at, rotation](QWidget* parent) {
                    const RecordedAnswers records(at.store());
                    Turnos shifts(at, *rotation, records);
                    TurnosWindow(shifts, parent).exec();
                },
            .state =
                [at](const MonthProgress*) {
                    return QStringLiteral("Mostrar: ") + toQt(codeOf(at.session.shiftFilter));
                }};
}

}  // namespace

MenuEntries registerEntries(const Workplace& at, TextEditor& editor,
                            std::shared_ptr<const RotationMembership> rotation) {
    return {companies(at), employees(at, editor, rotation), shifts(at, rotation)};
}

}  // namespace winvrx
