#include "output/cards/card_run.h"

#include "report/pdf_name.h"
#include "report/print_result.h"

#include <algorithm>
#include <utility>

namespace winvrx {

namespace {

constexpr auto kPrinting = "IMPRIMINDO";

const Message kCancelOthers = riskyQuestion(kPrinting, "Deseja Cancelar as demais Impressões? ");
const Message kLeaveSecondSide =
    warning(kPrinting, "Deseja deixar os cartões impressos somente no primeiro lado?");
const Message kReplaceFiles =
    warning(kPrinting, "Já existem nesta pasta arquivos destes cartões. Deseja substituí-los?");

Message confirmCardOf(const Employee& employee) {
    return question(kPrinting, "Confirma a Impressão do Cartão do " + employee.name + " ? ", {},
                    Buttons::YesNoCancel);
}

Message printSecondSide(CardOutput output, std::size_t cards) {
    return question(kPrinting,
                    "O primeiro lado já foi enviado. Deseja imprimir o segundo lado agora?",
                    stackInstruction(output, cards));
}

}  // namespace

CardRun::CardRun(const Workplace& at, ReportEngine& engine, CardRunPlan plan, const PrintRun& run)
    : at_(at), engine_(engine), plan_(std::move(plan)), run_(run) {}

bool CardRun::print() {
    const LayoutSet set = plan_.choices.mode == PrintMode::OneRun ? LayoutSet::A : LayoutSet::B;
    twoSided_ = engine_.sidesOf(plan_.layoutOf(set)) > 1;
    const bool twice = twoSided_ && plan_.choices.output == ReportOutput::Printer;
    cardsInAll_ = static_cast<int>(plan_.people.size()) * (twice ? 2 : 1);
    const bool files = plan_.choices.output == ReportOutput::PdfFile &&
                       plan_.choices.pdfFiles == PdfFiles::OneForEach;
    if (files && !choosesFolder()) return false;
    return plan_.choices.mode == PrintMode::OneRun ? oneRun() : oneAtATime();
}

bool CardRun::oneRun() {
    People people;
    for (const Employee& employee : plan_.people)
        people.push_back(&employee);
    return send(people, LayoutSet::A);
}

bool CardRun::oneAtATime() {
    bool first = true;
    for (const Employee& employee : plan_.people) {
        if (!first && at_.person.agrees(kCancelOthers)) return false;
        if (!confirms(employee) || !send({&employee}, LayoutSet::B)) return false;
        first = false;
    }
    return true;
}

bool CardRun::confirms(const Employee& employee) {
    const Message question = confirmCardOf(employee);
    Answer answer = at_.person.ask(question);
    while (answer == Answer::No)
        answer = at_.person.ask(question);
    return answer == Answer::Yes;
}

bool CardRun::send(const People& people, LayoutSet set) {
    switch (plan_.choices.output) {
        case ReportOutput::Preview:
            return preview(people, set);
        case ReportOutput::Printer:
            return toPrinter(people, set);
        case ReportOutput::PdfFile:
            break;
    }
    return plan_.choices.pdfFiles == PdfFiles::OneForAll ? toOnePdf(people, set)
                                                         : toPdfOfEach(people, set);
}

bool CardRun::preview(const People& people, LayoutSet set) {
    ReportRequest request = requestFor(set, ReportOutput::Preview);
    request.pdfPath = pdfNameFor(people);
    if (twoSided_)
        request.printPreviewed = [&](const CardProgress& progress) {
            cardsDone_ = 0;
            const auto ofTheRun =
                std::exchange(run_.progress, [&progress](int done, int) { return progress(done); });
            const bool printed =
                attempt(at_, printFailed(), [&] { return toPrinter(people, set); });
            run_.progress = ofTheRun;
            return printed ? ReportResult::Done : ReportResult::Cancelled;
        };
    return job(request, people);
}

bool CardRun::toPrinter(const People& people, LayoutSet set) {
    ReportRequest request = requestFor(set, ReportOutput::Printer);
    if (!twoSided_) return job(request, people);
    request.side = CardSide::First;
    if (!job(request, inPrintOrder(people, CardSide::First))) return false;
    if (!turnsTheStack(people.size())) return false;
    request.side = CardSide::Second;
    return job(request, inPrintOrder(people, CardSide::Second));
}

bool CardRun::turnsTheStack(std::size_t cards) {
    const Message question = printSecondSide(plan_.choices.printer.output, cards);
    while (!at_.person.agrees(question))
        if (at_.person.agrees(kLeaveSecondSide)) return false;
    return true;
}

bool CardRun::toOnePdf(const People& people, LayoutSet set) {
    ReportRequest request = requestFor(set, ReportOutput::PdfFile);
    if (run_.choosePdf) request.pdfPath = run_.choosePdf(pdfNameFor(people));
    return !request.pdfPath.empty() && job(request, people);
}

std::string CardRun::pdfNameFor(const People& people) const {
    return people.size() == 1 ? pdfNameOf(*people.front(), plan_.month)
                              : pdfNameOf(plan_.companyName, plan_.month);
}

bool CardRun::toPdfOfEach(const People& people, LayoutSet set) {
    ReportRequest request = requestFor(set, ReportOutput::PdfFile);
    return std::ranges::all_of(people, [&](const Employee* employee) {
        request.pdfPath = pdfFolder_ + "/" + pdfNameOf(*employee, plan_.month);
        return job(request, {employee});
    });
}

bool CardRun::choosesFolder() {
    if (run_.choosePdfFolder) pdfFolder_ = run_.choosePdfFolder();
    return !pdfFolder_.empty() && mayReplaceFiles();
}

bool CardRun::mayReplaceFiles() {
    const bool any = std::ranges::any_of(plan_.people, [&](const Employee& employee) {
        return at_.files.exists(pdfFolder_ + "/" + pdfNameOf(employee, plan_.month));
    });
    return !any || at_.person.agrees(kReplaceFiles);
}

ReportRequest CardRun::requestFor(LayoutSet set, ReportOutput output) const {
    ReportRequest request = plan_.request;
    request.layoutName = plan_.layoutOf(set);
    request.output = output;
    return request;
}

CardRun::People CardRun::inPrintOrder(const People& people, CardSide side) const {
    People ordered;
    for (const std::size_t at : printOrder(people.size(), side, plan_.choices.printer.output))
        ordered.push_back(people[at]);
    return ordered;
}

bool CardRun::job(const ReportRequest& request, const People& people) {
    std::size_t next = 0;
    const CardSource cards = [&]() -> std::optional<std::vector<CardRow>> {
        if (next == people.size()) return std::nullopt;
        return plan_.rowsOf(*people[next++]);
    };
    const int before = cardsDone_;
    const CardProgress progress = [&](int done) {
        cardsDone_ = before + done;
        return !run_.progress || run_.progress(cardsDone_, cardsInAll_);
    };
    return isPrinted(engine_.print(request, cards, progress), at_.person, engine_);
}

}  // namespace winvrx
