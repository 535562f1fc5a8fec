// The mirrors on plain paper.
#include "output/mirrors/hours_reports.h"
#include "output/mirrors/mirror_page.h"
#include "report/print_pages.h"
#include "report/printers.h"

#include <algorithm>

namespace winvrx {

/// What is printed of everyone: the question before it, its layout, its rows.
struct HoursReports::MirrorForm {
    std::string title;
    std::string question;
    std::string layout;
    PageNoun noun;
    ReportRows (*rowsOf)(const Company&, const MirrorSheet&);
};

namespace {

const std::string kMirrorTitle = "ESPELHO DE PONTO";
const std::string kManualTitle = "FOLHA MANUAL DE PONTO";

Message noRecord(const std::vector<std::string>& names) {
    return refusal(kMirrorTitle, "Não existem dados para Impressão!!!",
                   namesText(names, kMostNames));
}

Message confirmation(const std::string& title, const std::string& text, ReportOutput output) {
    Message message = question(title, text);
    if (output == ReportOutput::Preview)
        message.detail = "Com \"Visualizar\" as folhas só aparecem na tela; nada é impresso.";
    else if (output == ReportOutput::PdfFile)
        message.detail = "As folhas vão para arquivo PDF; nada é impresso.";
    return message;
}

/// "03-2024", or "21-02-2024 a 20-03-2024".
std::string periodInNames(const DayPeriod& period) {
    const WorkMonth month = monthOf(period.first);
    if (period == DayPeriod{firstDay(month), lastDay(month)}) return monthKey(month);
    std::string text = dateText(period.first) + " a " + dateText(period.last);
    std::ranges::replace(text, '/', '-');
    return text;
}

}  // namespace

bool HoursReports::printMirrors(const PrintChoices& choices, const PrintRun& run) {
    const MirrorForm form{kMirrorTitle,
                          "Confirma a Impressão do ESPELHO DE PONTO para Todos os Funcionário "
                          "Selecionado?",
                          "espelhos.rpt",
                          {"espelho", "espelhos"},
                          mirrorRows};
    if (!requirePeriod() ||
        !at_.person.agrees(confirmation(form.title, form.question, choices.output)) ||
        !requirePrintingDrive())
        return false;
    return attempt(at_, printFailed(), [&] {
        const People people = recordedOf(confirmPeople());
        return !people.empty() && print(form, people, choices, run);
    });
}

bool HoursReports::printManualSheet(std::optional<std::size_t> position,
                                    const PrintChoices& choices, const PrintRun& run) {
    const MirrorForm form{kManualTitle,
                          "Confirma a Impressão da FOLHA MANUAL DE PONTO para o Funcionário "
                          "Selecionado?",
                          "espelho.rpt",
                          {},
                          manualRows};
    if (!requirePeriod()) return false;
    if (!position || !list_.isShown(*position)) {
        at_.person.tell(noEmployeeSelected());
        return false;
    }
    if (!at_.person.agrees(confirmation(form.title, form.question, choices.output)) ||
        !requirePrintingDrive())
        return false;
    return attempt(at_, printFailed(), [&] {
        const People people = withoutMissingGroups({list_.employees()[*position]});
        return !people.empty() && print(form, people, choices, run);
    });
}

HoursReports::People HoursReports::recordedOf(const People& people) {
    const MirrorPeriod period = mirrorPeriod();
    People recorded;
    std::vector<std::string> others;
    for (const Employee& one : people)
        if (period.of(one).recorded)
            recorded.push_back(one);
        else
            others.push_back(one.name);
    if (!others.empty()) at_.person.tell(noRecord(others));
    return recorded;
}

bool HoursReports::print(const MirrorForm& form, const People& people, const PrintChoices& choices,
                         const PrintRun& run) {
    std::vector<MirrorPeriod> pages;
    for (const DayPeriod& page : mirrorPages(*period_))
        pages.emplace_back(at_.store(), at_.session.company.value(), page);
    ReportRequest request;
    request.layoutName = form.layout;
    request.title = form.title;
    request.columns = mirrorColumns();
    request.noun = form.noun;
    request.printerName = loadPrinterName(at_.store());
    CardBatch batch{.people = people,
                    .companyName = company_.name,
                    .period = periodInNames(*period_),
                    .stockCode = {},
                    .choices = choices,
                    .request = std::move(request),
                    .pagesEach = pages.size(),
                    .rowsOf = [&](const Employee& one, std::size_t page) {
                        return form.rowsOf(company_, pages[page].of(one));
                    }};
    CardRun mirrors(at_, desk_.engine, std::move(batch), run);
    const bool printed = mirrors.print();
    offerToOpenPdf(at_.person, desk_.browser, form.title, mirrors.savedFiles());
    return printed;
}

}  // namespace winvrx
