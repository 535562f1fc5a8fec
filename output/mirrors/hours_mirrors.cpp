// The mirrors on plain paper.
#include "output/mirrors/hours_reports.h"
#include "output/mirrors/mirror_page.h"
#include "report/print_pages.h"
#include "report/printers.h"

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

/// "03-2024", or "21/02/2024 a 20/03/2024".
std::string periodInNames(const DayPeriod& period) {
    const WorkMonth month = monthOf(period.first);
    return period == calendarMonth(month) ? monthKey(month) : periodText(period);
}

}  // namespace

bool HoursReports::printMirrors(const PrintChoices& choices, const PrintRun& run) {
    const MirrorForm form{kMirrorTitle,
                          "Confirma a Impressão do ESPELHO DE PONTO para Todos os Funcionário "
                          "Selecionado?",
                          "espelhos.rpt",
                          {"espelho", "espelhos"},
                          mirrorRows};
    return requirePeriod() &&
           print(form, choices, run, [this] { return recordedOf(confirmPeople()); });
}

bool HoursReports::printManualSheet(std::optional<std::size_t> position,
                                    const PrintChoices& choices, const PrintRun& run) {
    const MirrorForm form{kManualTitle,
                          "Confirma a Impressão da FOLHA MANUAL DE PONTO para o Funcionário "
                          "Selecionado?",
                          "espelho.rpt",
                          {},
                          manualRows};
    const Employee* employee = requirePeriod() ? requireSelected(position) : nullptr;
    return employee && print(form, choices, run, [&] { return withoutMissingGroups({*employee}); });
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

bool HoursReports::print(const MirrorForm& form, const PrintChoices& choices, const PrintRun& run,
                         const std::function<People()>& whom) {
    if (!at_.person.agrees(confirmation(form.title, form.question, choices.output)) ||
        !requirePrintingDrive())
        return false;
    return attempt(at_, printFailed(), [&] {
        const People people = whom();
        return !people.empty() && printCards(at_, {desk_.browser, desk_.engine, desk_.printers},
                                             batchOf(form, people, choices), run);
    });
}

CardBatch HoursReports::batchOf(const MirrorForm& form, const People& people,
                                const PrintChoices& choices) {
    std::vector<MirrorPeriod> pages;
    for (const DayPeriod& page : mirrorPages(*period_))
        pages.emplace_back(at_.store(), at_.session.company.value(), page);
    ReportRequest request;
    request.layoutName = form.layout;
    request.title = form.title;
    request.columns = mirrorColumns();
    request.noun = form.noun;
    request.printerName = loadPrinterName(at_.store());
    const std::size_t pagesEach = pages.size();
    return {.people = people,
            .companyName = company_.name,
            .period = periodInNames(*period_),
            .choices = choices,
            .request = std::move(request),
            .pagesEach = pagesEach,
            .rowsOf = [this, rowsOf = form.rowsOf, pages = std::move(pages)](
                          const Employee& one,
                          std::size_t page) { return rowsOf(company_, pages[page].of(one)); },
            .opening = form.title};
}

}  // namespace winvrx
