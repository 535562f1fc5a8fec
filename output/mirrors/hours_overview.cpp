#include "output/mirrors/hours_overview.h"

#include "foundation/values/text.h"
#include "output/mirrors/hours_reports.h"
#include "report/print_pages.h"
#include "report/printers.h"
#include "timecard/hours/hours_format.h"

#include <algorithm>

namespace winvrx {

namespace {

using std::chrono::seconds;

constexpr std::size_t kLinesOnPage = 32;
constexpr int kWholeBar = 1000;

const std::vector<std::string> kColumns = {"razao",   "cnpj",    "periodo", "pagina", "totais",
                                           "codigo",  "nome",    "falta",   "extra",  "normal",
                                           "b_falta", "b_extra", "b_normal"};

const Message kWrongDrive = failure("Imprimir",
                                    "Diretório Inválido p/ Impressão! Transfira os dados do "
                                    "Diretório atual para o Diretório 'C'.");

std::string share(seconds length, seconds longest) {
    if (longest.count() == 0) return "0";
    return std::to_string(length.count() * kWholeBar / longest.count());
}

/// The lengths of whole bars.
struct Measure {
    seconds deviation{0};
    seconds normal{0};

    explicit Measure(const std::vector<OverviewLine>& lines) {
        for (const OverviewLine& line : lines) {
            deviation = std::max({deviation, line.missing, line.extra});
            normal = std::max(normal, line.normal);
        }
    }
};

std::string totalsText(const std::vector<OverviewLine>& lines, TotalsFormat format) {
    OverviewLine sum;
    for (const OverviewLine& line : lines) {
        sum.missing += line.missing;
        sum.extra += line.extra;
        sum.normal += line.normal;
    }
    return countOf(lines.size(), "funcionário") + " · Faltas " + formatted(sum.missing, format) +
           " · Extras " + formatted(sum.extra, format) + " · Normais " +
           formatted(sum.normal, format);
}

OverviewLine lineOf(const MirrorSheet& sheet) {
    return {sheet.employee.code, sheet.employee.name, sheet.totals.normal(), sheet.totals.extra(),
            sheet.totals[HourCategory::Missing]};
}

}  // namespace

void sortByAttention(std::vector<OverviewLine>& lines) {
    std::ranges::stable_sort(lines, [](const OverviewLine& one, const OverviewLine& other) {
        return std::pair(one.missing, one.extra) > std::pair(other.missing, other.extra);
    });
}

std::vector<ReportRows> overviewPages(const OverviewHeading& heading,
                                      const std::vector<OverviewLine>& lines) {
    const Measure measure(lines);
    const TotalsFormat format = heading.format;
    const std::size_t count =
        std::max<std::size_t>((lines.size() + kLinesOnPage - 1) / kLinesOnPage, 1);
    const std::string period = periodText(heading.period);
    const std::string totals = totalsText(lines, format);
    std::vector<ReportRows> pages(count);
    for (std::size_t at = 0; at < lines.size(); ++at) {
        const OverviewLine& line = lines[at];
        const std::size_t page = at / kLinesOnPage;
        pages[page].push_back(
            {heading.company.name, heading.company.taxId, period,
             std::to_string(page + 1) + "/" + std::to_string(count), totals, line.code, line.name,
             formatted(line.missing, format), formatted(line.extra, format),
             formatted(line.normal, format), share(line.missing, measure.deviation),
             share(line.extra, measure.deviation), share(line.normal, measure.normal)});
    }
    return pages;
}

ReportRequest overviewRequest() {
    ReportRequest request;
    request.layoutName = "resumohoras.rpt";
    request.title = "RESUMO DE HORAS";
    request.columns = kColumns;
    request.pdfPath = "RESUMO DE HORAS.pdf";
    return request;
}

bool HoursReports::requirePrintingDrive() {
    return winvrx::requirePrintingDrive(at_, kWrongDrive);
}

bool HoursReports::showOverview(const PageProgress& progress) {
    if (!requirePeriod()) return false;
    if (!requirePrintingDrive()) return false;
    return attempt(at_, printFailed(), [&] {
        std::vector<OverviewLine> lines;
        const auto take = [&lines](const MirrorSheet& sheet) { lines.push_back(lineOf(sheet)); };
        if (!forEachSheet(progress, take)) return false;
        sortByAttention(lines);
        const auto made = overviewPages(
            {company_, *period_, mirrorPeriod().lastMonth().overtime.totalsFormat}, lines);
        const auto page = [&made](std::size_t at) { return made[at]; };
        ReportRequest request = overviewRequest();
        request.printerName = loadPrinterName(at_.store());
        return printPages({at_, desk_.engine}, request, {made.size(), page}) == PrintEnd::Done;
    });
}

}  // namespace winvrx
