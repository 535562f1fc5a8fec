#include "output/mirrors/hours_reports.h"

#include "foundation/desk/text_report.h"
#include "foundation/register/company_register.h"
#include "foundation/values/csv.h"
#include "output/mirrors/hours_report.h"
#include "report/print_pages.h"
#include "timecard/month/selected_month.h"
#include "timecard/punches/application_checks.h"

namespace winvrx {

namespace {

constexpr auto kTitle = "Gerar Relatório";
constexpr auto kPrinting = "Aviso - Imprimir";
constexpr int kLongestPeriod = 366;  // days: with more, sums would outgrow their columns

const Message kWhichForm = question(
    kTitle,
    "Deseja Gerar o Relatório Em EXCEL ou ARQUIVO TEXTO ? Se Desejar em Excel Clique em SIM",
    "\"Não\" gera o arquivo texto.", Buttons::YesNoCancel);
const Message kCloseWorkbooks = notice(
    kTitle, "Antes de Prosseguir, Salve e Feche as Planilhas de Excel que Estiverem Abertas!");
const Message kNoData = refusal(kTitle, "Não existem dados para Impressão!!!");
Message workbookNotOpened(const std::string& path) {
    return failure(kTitle,
                   "Talves a Versão do EXCEL possa Ocorrer Algum Erro por não ser Compatível com a "
                   "Aplicação Desenvolvida para Excel 2007!",
                   "A planilha está gravada, mas nenhum programa a abriu: " + path);
}

Message notShown(const std::string& path) {
    return refusal(kTitle, "Ocorreu Erro",
                   "O relatório está gravado, mas nenhum editor o abriu: " + path);
}

Message leftOut(const std::vector<std::string>& names) {
    return question(kTitle,
                    "Há Funcionários Inativos antes do Período ou Admitidos depois dele. Deseja "
                    "incluí-los também?",
                    namesText(names, kMostNames));
}

}  // namespace

HoursReports::HoursReports(const Workplace& at, const HoursReportsDesk& desk)
    : at_(at), desk_(desk), list_(at.session.shiftFilter) {}

void HoursReports::load() {
    (void)attempt(at_, incorrectData(), [this] {
        const CompanyCode& company = at_.session.company.value();
        company_ = loadCompany(at_.store(), company);
        const auto selected = loadSelectedMonth(at_.store());
        month_ = selected ? std::optional(selected->month) : std::nullopt;
        if (!period_ && month_) period_ = calendarMonth(*month_);
        list_.load(at_.store(), company);
    });
}

void HoursReports::chooseMonth() {
    if (month_)
        period_ = calendarMonth(*month_);
    else
        at_.person.tell(noMonthChosen());
}

void HoursReports::chooseClosing() {
    if (month_)
        (void)attempt(at_, incorrectData(),
                      [this] { period_ = closingPeriod(loadMonthSettings(at_.store(), *month_)); });
    else
        at_.person.tell(noMonthChosen());
}

bool HoursReports::choosePeriod(std::string_view first, std::string_view last) {
    const auto from = parseDate(first);
    const auto to = parseDate(last);
    if (!from || !to || *to < *from || plusDays(*from, kLongestPeriod) <= *to) return false;
    period_ = DayPeriod{*from, *to};
    return true;
}

void HoursReports::refusePeriod() {
    at_.person.tell(
        refusal(kTitle, "Informe o Período do Relatório!",
                "Duas datas, como 01/03/2024 e 31/03/2024, a segunda não antes da primeira e no "
                "máximo um ano depois dela."));
}

bool HoursReports::requirePeriod() {
    if (!period_) refusePeriod();
    return period_.has_value();
}

const Employee* HoursReports::requireSelected(std::optional<std::size_t> position) {
    if (position && list_.isShown(*position)) return &list_.employees()[*position];
    at_.person.tell(noEmployeeSelected());
    return nullptr;
}

HoursReports::People HoursReports::confirmPeople() {
    if (list_.shown().empty()) at_.person.tell(noEmployeeSelected());
    return withoutMissingGroups(list_.people(
        period_->first, period_->last,
        [this](const auto& outsiders) { return at_.person.agrees(leftOut(outsiders)); }));
}

HoursReports::People HoursReports::withoutMissingGroups(const People& people) {
    std::optional<RotationMonths> groups;
    const auto isInGroup = [&](const EmployeeCode& code) {
        if (!groups)
            groups = desk_.rotation.monthsOf(at_.session.company.value(), monthOf(period_->last));
        return groups->contains(code);
    };
    People kept;
    std::vector<std::string> missing;
    for (const Employee& one : people)
        if (lacksGroup(one, false) && !isInGroup(one.employeeCode().value()))
            missing.push_back(one.name);
        else
            kept.push_back(one);
    if (!missing.empty()) {
        at_.person.tell(refusal(kPrinting,
                                "Este Funcionário foi definido como ESCALA DE "
                                "REVEZAMENTO!!!",
                                namesText(missing, kMostNames)));
        at_.person.tell(refusal(kPrinting,
                                "Portanto é Necessário PRIMEIRO adicioná-lo na ESCALA "
                                "DE REVEZAMENTO!!!"));
    }
    return kept;
}

MirrorPeriod HoursReports::mirrorPeriod() const {
    return {at_.store(), at_.session.company.value(), period_.value()};
}

bool HoursReports::forEachSheet(const PageProgress& progress,
                                const std::function<void(MirrorSheet)>& take) {
    const People people = confirmPeople();
    if (people.empty()) return false;
    const MirrorPeriod period = mirrorPeriod();
    bool recorded = false;
    int done = 0;
    for (const Employee& one : people) {
        MirrorSheet sheet = period.of(one);
        recorded = recorded || sheet.recorded;
        take(std::move(sheet));
        if (progress && !progress(++done, static_cast<int>(people.size()))) return false;
    }
    return recorded || at_.person.refuse(kNoData);
}

bool HoursReports::report(const PageProgress& progress) {
    if (!requirePeriod()) return false;
    const Answer answer = at_.person.ask(kWhichForm);
    if (answer == Answer::Cancel) return false;
    if (answer == Answer::Yes) at_.person.tell(kCloseWorkbooks);
    return attempt(at_, incorrectData(), [&] {
        return answer == Answer::Yes ? writeWorkbook(progress) : writeText(progress);
    });
}

bool HoursReports::writeText(const PageProgress& progress) {
    HoursReport report(*period_, mirrorPeriod().lastMonth().overtime);
    if (!forEachSheet(progress, [&](const MirrorSheet& sheet) { report.add(sheet); })) return false;
    const auto path = at_.session.folder.file(kHoursReportName);
    return showReports(at_, desk_.editor, {{path, std::move(report).lines()}}) ||
           at_.person.refuse(notShown(path.string()));
}

bool HoursReports::writeWorkbook(const PageProgress& progress) {
    HoursSheets sheets(mirrorPeriod().lastMonth().overtime);
    if (!forEachSheet(progress, [&](const MirrorSheet& sheet) { sheets.add(sheet); })) return false;
    const auto path = at_.session.folder.file(kHoursWorkbookName);
    const int people = static_cast<int>(list_.shown().size());
    const std::string bytes = desk_.spreadsheet.workbookOf(
        std::move(sheets).sheets(), [&] { return !progress || progress(people, people); });
    if (bytes.empty()) return false;
    {
        const auto hold = holdFolder(at_);
        at_.files.replace(path, bytes);
    }
    return desk_.browser.open(path.string()) || at_.person.refuse(workbookNotOpened(path.string()));
}

bool HoursReports::showMirrorText(std::optional<std::size_t> position) {
    const Employee* employee = requirePeriod() ? requireSelected(position) : nullptr;
    return employee && attempt(at_, incorrectData(), [&] {
               if (withoutMissingGroups({*employee}).empty()) return false;
               const MirrorSheet sheet = mirrorPeriod().of(*employee);
               if (!sheet.recorded) return at_.person.refuse(kNoData);
               const auto path = at_.session.folder.file(kMirrorTextName);
               if (showReports(at_, desk_.editor, {{path, mirrorText(company_, sheet)}}))
                   return true;
               at_.person.tell(notShown(path.string()));
               return false;
           });
}

bool HoursReports::exportSums(const std::filesystem::path& file, const PageProgress& progress) {
    if (!requirePeriod()) return false;
    return attempt(at_, incorrectData(), [&] {
        HoursCsv csv(mirrorPeriod().lastMonth().overtime);
        if (!forEachSheet(progress, [&](const MirrorSheet& sheet) { csv.add(sheet); }))
            return false;
        at_.files.replace(file, csvText(csv.rows()));
        return true;
    });
}

}  // namespace winvrx
