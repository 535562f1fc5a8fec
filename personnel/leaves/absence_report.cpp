#include "personnel/leaves/absence_report.h"

#include "foundation/desk/text_report.h"
#include "foundation/register/company_register.h"
#include "foundation/values/text.h"
#include "personnel/leaves/month_absences.h"
#include "report/printers.h"

#include <algorithm>
#include <array>
#include <set>

namespace winvrx {

namespace {

constexpr auto kTitle = "Ausências do Mês";
constexpr int kMostDays = 31;
constexpr std::array<std::string_view, 10> kTexts = {
    "razao", "cnpj", "mes", "resumo", "folha", "codigo", "nome", "afastamento", "inicio", "fim"};
constexpr std::string_view kDuration = "dias";
/// Columns of a day, with its number behind them.
constexpr std::array<std::string_view, 3> kDayTexts = {"dia", "semana", "d"};

const Message kNobody = notice(kTitle, "Nenhum funcionário tem afastamento neste mês.");
const Message kNotOpened = failure(kTitle, "Não há programa que abra este arquivo.");

std::vector<std::string> columns() {
    std::vector<std::string> names(kTexts.begin(), kTexts.end());
    names.emplace_back(kDuration);
    for (const std::string_view name : kDayTexts)
        for (int day = 1; day <= kMostDays; ++day)
            names.push_back(std::string(name) + std::to_string(day));
    return names;
}

/// "12 afastamentos de 9 funcionários".
std::string summaryOf(const std::vector<MonthAbsence>& absences) {
    std::set<std::string> people;
    for (const MonthAbsence& one : absences)
        people.insert(one.employee.code);
    return countOf(absences.size(), "afastamento") + " de " + countOf(people.size(), "funcionário");
}

/// What fills a day away: the first letter of the leave's name, a small one for part of the day.
std::string signOf(const MonthAbsence& absence, std::size_t day) {
    const AbsentDay away = day < absence.days.size() ? absence.days[day] : AbsentDay::No;
    if (away == AbsentDay::No) return {};
    const std::string letter(firstCharacters(wordOf(absence.leave), 1));
    return away == AbsentDay::Whole ? letter : foldedForSearch(letter);
}

std::string durationOf(const MonthAbsence& absence) {
    const int days = absence.daysAway();
    return days == 0 && absence.leave.isOfHours() ? absence.leave.duration : std::to_string(days);
}

/// The sheets of a month, made page by page.
class AbsenceSheets {
  public:
    AbsenceSheets(Company company, WorkMonth month, std::vector<MonthAbsence> absences)
        : company_(std::move(company)), month_(month), absences_(std::move(absences)) {}

    [[nodiscard]] std::size_t count() const {
        return (absences_.size() + kAbsencesOnASheet - 1) / kAbsencesOnASheet;
    }

    [[nodiscard]] ReportRows rows(std::size_t sheet) const {
        const std::size_t first = sheet * kAbsencesOnASheet;
        const std::size_t last = std::min(first + kAbsencesOnASheet, absences_.size());
        ReportRows rows;
        for (std::size_t at = first; at < last; ++at)
            rows.push_back(rowOf(absences_[at], sheet));
        return rows;
    }

  private:
    [[nodiscard]] ReportRow rowOf(const MonthAbsence& one, std::size_t sheet) const {
        ReportRow row = {company_.name,
                         company_.taxId,
                         monthTitle(month_),
                         summaryOf(absences_),
                         std::to_string(sheet + 1) + " de " + std::to_string(count()),
                         one.employee.code,
                         one.employee.name,
                         wordOf(one.leave),
                         one.leave.firstDay,
                         one.leave.lastDay,
                         durationOf(one)};
        for (int day = 1; day <= kMostDays; ++day)
            row.push_back(day <= daysIn(month_) ? std::to_string(day) : "");
        for (int day = 1; day <= kMostDays; ++day)
            row.push_back(day <= daysIn(month_) ? initialOf(day) : "");
        for (int day = 1; day <= kMostDays; ++day)
            row.push_back(signOf(one, static_cast<std::size_t>(day) - 1));
        return row;
    }

    [[nodiscard]] std::string initialOf(int day) const {
        const auto weekday = weekdayOf(plusDays(firstDay(month_), day - 1));
        return upperCase(firstCharacters(weekdayShort(weekday), 1));
    }

    Company company_;
    WorkMonth month_;
    std::vector<MonthAbsence> absences_;
};

/// None when the operator was told that nobody is away.
std::vector<MonthAbsence> requireAbsences(const Workplace& at, WorkMonth month) {
    auto absences = absencesIn(at.store(), at.session.company.value(), month);
    if (absences.empty()) at.person.tell(kNobody);
    return absences;
}

}  // namespace

bool previewAbsences(const PrintDesk& desk, WorkMonth month) {
    const Workplace& at = desk.at;
    return attempt(at, incorrectData(), [&] {
        auto absences = requireAbsences(at, month);
        if (absences.empty()) return false;
        const CompanyCode& code = at.session.company.value();
        const AbsenceSheets sheets(findCompany(at.store(), code).value_or(Company()), month,
                                   std::move(absences));
        ReportPages pages(sheets.count(), [&](std::size_t sheet) { return sheets.rows(sheet); });
        const ReportRequest request{
            .layoutName = std::string(kAbsenceLayout),
            .title = kTitle,
            .columns = columns(),
            .output = ReportOutput::Preview,
            .printerName = loadPrinterName(at.store()),
            .pdfPath = "Ausencias-" + code.text() + "-" + monthKey(month) + ".pdf"};
        return printPages(desk, request, pages) == PrintEnd::Done;
    });
}

bool showAbsences(const Workplace& at, TextEditor& editor, WorkMonth month) {
    return attempt(at, incorrectData(), [&] {
        const auto absences = requireAbsences(at, month);
        if (absences.empty()) return false;
        return showReports(at, editor,
                           {{at.session.companyFile("RelAfastamentos.txt"),
                             absenceReport(absences, month)}}) ||
               at.person.refuse(kNotOpened);
    });
}

}  // namespace winvrx
