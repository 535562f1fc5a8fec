#include "app/screens.h"

#include "foundation/copies/desktop/restaurar_copia_window.h"
#include "foundation/copies/restaurar_copia.h"
#include "foundation/desk/desktop/xlsx_spreadsheet.h"
#include "foundation/register/company_register.h"
#include "foundation/register/desktop/empregados_window.h"
#include "foundation/register/desktop/empresa_window.h"
#include "foundation/register/desktop/turnos_window.h"
#include "foundation/register/employee_import.h"
#include "foundation/register/employee_register.h"
#include "foundation/register/empregados.h"
#include "foundation/register/empresa.h"
#include "foundation/register/turnos.h"
#include "foundation/values/desktop/qt_text.h"
#include "output/cards/cartao.h"
#include "output/cards/desktop/cartao_window.h"
#include "output/stocks/card_stock.h"
#include "output/stocks/cartao_pontos.h"
#include "output/stocks/desktop/cartao_pontos_window.h"
#include "output/stocks/desktop/tipo_ponto_window.h"
#include "output/stocks/tipo_ponto.h"
#include "report/desktop/impressorar_window.h"
#include "report/desktop/layout_reader.h"
#include "report/impressorar.h"
#include "timecard/month/desktop/data_mes_corrente_window.h"
#include "timecard/month/desktop/feriados_window.h"
#include "timecard/month/feriados.h"
#include "timecard/month/month_settings.h"
#include "timecard/month/selected_month.h"
#include "timecard/punches/desktop/cartao_ponto_dados_window.h"
#include "timecard/punches/punch_record.h"

#include <algorithm>
#include <set>

namespace winvrx {

namespace {

QString counted(int count, const QString& one, const QString& many) {
    return QString::number(count) + QLatin1Char(' ') + (count == 1 ? one : many);
}

}  // namespace

void Screens::openCompanies(QWidget* parent) {
    Empresa companies(at_, browser_);
    EmpresaWindow(companies, parent).exec();
}

void Screens::openEmployees(QWidget* parent) {
    XlsxSpreadsheet spreadsheet;
    Empregados employees(at_, {browser_, editor_, spreadsheet, records_, records_});
    EmployeeImport import(at_);
    EmpregadosWindow(employees, import, parent).exec();
}

void Screens::openShifts(QWidget* parent) {
    Turnos shifts(at_, browser_, records_, records_);
    TurnosWindow(shifts, parent).exec();
}

void Screens::show(ScreenWindow& window) {
    QObject::connect(&window, &ScreenWindow::helpRequested, &window,
                     [this] { openHelp(at_, browser_); });
    window.exec();
}

void Screens::openWorkMonth(QWidget* parent) {
    DataMesCorrente month(at_);
    month.open();
    DataMesCorrenteWindow window(month, parent);
    QObject::connect(&window, &DataMesCorrenteWindow::localHolidaysRequested, &window, [&] {
        openLocalHolidays(&window);
        window.refreshHolidays();
    });
    show(window);
}

void Screens::openLocalHolidays(QWidget* parent) {
    Feriados holidays(at_, browser_);
    FeriadosWindow(holidays, parent).exec();
}

void Screens::openTimeCard(QWidget* parent) {
    CartaoPontoDados card(at_, {records_, records_, records_});
    (void)card.open();
    CartaoPontoDadosWindow window(card, parent);
    QObject::connect(&window, &CartaoPontoDadosWindow::monthSettingsRequested, &window, [&] {
        openWorkMonth(&window);
        (void)card.open();
        window.refresh();
    });
    show(window);
}

void Screens::openCards(QWidget* parent, bool preview) {
    Cartao cards(at_, {browser_, printing_.engine, printing_.printers, alignment_, records_});
    cards.choices().output = preview ? ReportOutput::Preview : ReportOutput::Printer;
    const CartaoWindowDesk screens{.openStocks = [this](QWidget* over) { openStocks(over); },
                                   .openWorkMonth = [this](QWidget* over) { openWorkMonth(over); },
                                   .openPrinters = [this](QWidget* over) { openPrinters(over); },
                                   .openAlignment = [this](QWidget* over) { openAlignment(over); }};
    CartaoWindow(cards, screens, parent).exec();
}

void Screens::openStocks(QWidget* parent) {
    TipoPonto stocks(at_, browser_);
    CardPictures pictures(printing_.layoutFolders, at_.log);
    TipoPontoWindow(stocks, pictures, parent).exec();
}

void Screens::openPrinters(QWidget* parent) {
    Impressorar printers(at_, browser_, printing_.printers);
    ImpressorarWindow(printers, parent).exec();
}

void Screens::openAlignment(QWidget* parent) {
    CartaoPontos alignment(at_, {browser_, printing_.engine, printing_.printers, alignment_});
    const LayoutSource layouts = [this](const std::string& name) {
        return loadLayout(printing_.layoutFolders(), name, cardColumns());
    };
    CartaoPontosWindow(alignment, layouts, parent).exec();
}

void Screens::openCopies(QWidget* parent) {
    RestaurarCopia copies(at_, copies_, browser_);
    RestaurarCopiaWindow(copies, parent).exec();
}

std::optional<Screens::Progress> Screens::progress() const {
    if (!at_.session.company) return std::nullopt;
    try {
        const DataFolder& folder = at_.session.folder;
        Progress progress;
        const auto people = employeesOf(EmployeeRegister(at_.store(), *at_.session.company).load(),
                                        at_.session.shiftFilter);
        progress.employees = static_cast<int>(people.size());
        const auto selected = loadSelectedMonth(at_.store());
        if (selected && hasMonthSettings(at_.store(), selected->month)) {
            progress.month = selected->month;
            const auto listed = at_.files.names(folder.path());
            const std::set<std::string> names(listed.begin(), listed.end());
            for (const Employee& one : people)
                if (names.contains(punchFileName({*at_.session.company, *one.employeeCode()},
                                                 selected->month)))
                    ++progress.filledCards;
        }
        if (const CardStock* stock = loadStock(at_.store(), *at_.session.company))
            progress.stock = toQt(stock->displayName).trimmed();
        return progress;
    } catch (const std::exception& fault) {
        at_.log.write(std::string("state of the commands: ") + fault.what());
        return std::nullopt;
    }
}

QString Screens::companiesState() const {
    try {
        const auto lines = loadCompanies(at_.store());
        const auto known = std::count_if(lines.begin(), lines.end(),
                                         [](const CompanyLine& line) { return line.key(); });
        return counted(static_cast<int>(known), QStringLiteral("empresa"),
                       QStringLiteral("empresas"));
    } catch (const std::exception& fault) {
        at_.log.write(std::string("state of the companies: ") + fault.what());
        return {};
    }
}

QString Screens::employeesState() const {
    const auto now = progress();
    if (!now) return QStringLiteral("Selecione uma empresa");
    if (now->employees == 0) return QStringLiteral("Incluir o primeiro");
    return counted(now->employees, QStringLiteral("funcionário"), QStringLiteral("funcionários"));
}

QString Screens::shiftsState() const {
    return QStringLiteral("Mostrar: ") + toQt(codeOf(at_.session.shiftFilter));
}

QString Screens::monthState() const {
    const auto now = progress();
    return now && now->month ? toQt(monthTitle(*now->month)) : QStringLiteral("Escolher o mês");
}

QString Screens::timeCardState() const {
    const auto now = progress();
    if (!now || !now->month) return QStringLiteral("Falta o mês de trabalho");
    return QStringLiteral("%1 de %2 preenchidos").arg(now->filledCards).arg(now->employees);
}

QString Screens::stockState() const {
    const auto now = progress();
    return now && !now->stock.isEmpty() ? now->stock : QStringLiteral("Escolher o tipo de cartão");
}

std::optional<MenuCommand> Screens::nextStep() const {
    const auto now = progress();
    if (!now) return std::nullopt;
    if (now->employees == 0) return MenuCommand::Employees;
    if (!now->month) return MenuCommand::WorkMonth;
    if (now->filledCards < now->employees) return MenuCommand::TimeCard;
    return MenuCommand::PrintCards;
}

}  // namespace winvrx
