#include "output/cards/card_run.h"

#include <algorithm>
#include <utility>

namespace winvrx {

namespace {

constexpr auto kPrinting = "IMPRIMINDO";

const Message kCancelOthers = riskyQuestion(kPrinting, "Deseja Cancelar as demais Impressões? ");
Message replaceFiles(const PageNoun& noun) {
    return warning(kPrinting, "Já existem nesta pasta arquivos destes " + noun.many +
                                  ". Deseja substituí-los?");
}

Message confirmCardOf(const Employee& employee) {
    return question(kPrinting, "Confirma a Impressão do Cartão do " + employee.name + " ? ", {},
                    Buttons::YesNoCancel);
}

}  // namespace

CardRun::CardRun(const Workplace& at, ReportEngine& engine, CardBatch batch, const PrintRun& run)
    : at_(at), engine_(engine), batch_(std::move(batch)), run_(run) {}

bool CardRun::print() {
    const bool pdfOfEach = batch_.choices.output == ReportOutput::PdfFile &&
                           batch_.choices.pdfFiles == PdfFiles::OneForEach;
    if (pdfOfEach && !choosePdfFolder()) return false;
    if (batch_.choices.mode == PrintMode::OneAtATime) return printOneAtATime();
    return printJob(batch_.people, LayoutSet::A);
}

bool CardRun::printOneAtATime() {
    bool first = true;
    for (const Employee& employee : batch_.people) {
        if (!first && at_.person.agrees(kCancelOthers)) return false;
        if (!confirmCard(employee) || !printJob({employee}, LayoutSet::B)) return false;
        first = false;
    }
    return true;
}

bool CardRun::confirmCard(const Employee& employee) {
    const Message question = confirmCardOf(employee);
    Answer answer = at_.person.ask(question);
    while (answer == Answer::No)
        answer = at_.person.ask(question);
    return answer == Answer::Yes;
}

bool CardRun::printJob(const People& people, LayoutSet set) {
    ReportRequest request = requestFor(set);
    if (request.output == ReportOutput::PdfFile) {
        if (batch_.choices.pdfFiles == PdfFiles::OneForEach) return savePdfOfEach(people, set);
        if (run_.choosePdf) request.pdfPath = run_.choosePdf(pdfNameFor(people));
        if (request.pdfPath.empty()) return false;
    } else {
        request.pdfPath = pdfNameFor(people);
    }
    return send(request, people, run_.progress);
}

std::string CardRun::pdfNameFor(const People& people) const {
    return people.size() == 1 ? pdfNameOf(people.front(), naming())
                              : pdfNameOf(batch_.companyName, naming());
}

bool CardRun::savePdfOfEach(const People& people, LayoutSet set) {
    ReportRequest request = requestFor(set);
    int saved = 0;
    const PageProgress progress = [&](int, int) {
        return !run_.progress || run_.progress(++saved, static_cast<int>(people.size()));
    };
    return std::ranges::all_of(people, [&](const Employee& employee) {
        request.pdfPath = pdfFolder_ + "/" + pdfNameOf(employee, naming());
        return send(request, {employee}, progress);
    });
}

bool CardRun::choosePdfFolder() {
    if (run_.choosePdfFolder) pdfFolder_ = run_.choosePdfFolder();
    return !pdfFolder_.empty() && confirmReplacing();
}

bool CardRun::confirmReplacing() {
    const bool any = std::ranges::any_of(batch_.people, [&](const Employee& employee) {
        return at_.files.exists(pdfFolder_ + "/" + pdfNameOf(employee, naming()));
    });
    return !any || at_.person.agrees(replaceFiles(batch_.request.noun));
}

ReportRequest CardRun::requestFor(LayoutSet set) const {
    ReportRequest request = batch_.request;
    if (!batch_.stockCode.empty())
        request.layoutName = layoutFor(batch_.stockCode, batch_.choices.printer.tray, set).value();
    request.output = batch_.choices.output;
    return request;
}

bool CardRun::send(const ReportRequest& request, const People& people,
                   const PageProgress& progress) {
    const std::size_t each = batch_.pagesEach;
    ReportPages pages(people.size() * each,
                      [&](std::size_t at) { return batch_.rowsOf(people[at / each], at % each); });
    if (printPages({at_, engine_, progress}, request, pages) != PrintEnd::Done) return false;
    if (request.output == ReportOutput::PdfFile) savedFiles_.push_back(request.pdfPath);
    return true;
}

void offerToOpenPdf(Operator& person, Browser& browser, const std::string& title,
                    const std::vector<std::string>& files) {
    if (files.empty()) return;
    const bool one = files.size() == 1;
    const std::string place =
        one ? files.front() : files.back().substr(0, files.back().find_last_of('/'));
    const Message asked = one ? question(title, "O PDF foi gravado. Deseja abri-lo?", place)
                              : question(title,
                                         std::to_string(files.size()) +
                                             " arquivos PDF foram gravados. Deseja abrir a pasta?",
                                         place);
    if (person.agrees(asked) && !browser.open(place))
        person.tell(failure(title, "Não há programa que abra este arquivo.", place));
}

}  // namespace winvrx
