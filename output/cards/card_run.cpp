#include "output/cards/card_run.h"

#include "foundation/values/text.h"
#include "report/print_pages.h"

#include <algorithm>

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

constexpr std::string_view kNotInFileNames = "/\\:*?\"<>|";
constexpr std::size_t kLongestSubject = 80;

bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7f';
}

using People = std::vector<Employee>;

class CardRun {
  public:
    CardRun(const Workplace& at, ReportEngine& engine, const CardBatch& batch, const PrintRun& run)
        : at_(at), engine_(engine), batch_(batch), run_(run) {}

    bool print() {
        if (isPdfOfEach() && !choosePdfFolder()) return false;
        if (batch_.choices.mode == PrintMode::OneAtATime) return printOneAtATime();
        return printJob(batch_.people, LayoutSet::A);
    }

    /// In order.
    [[nodiscard]] const std::vector<std::string>& savedFiles() const { return savedFiles_; }

  private:
    [[nodiscard]] bool isPdfOfEach() const {
        return batch_.choices.output == ReportOutput::PdfFile &&
               batch_.choices.pdfFiles == PdfFiles::OneForEach;
    }

    bool printOneAtATime() {
        bool first = true;
        for (const Employee& employee : batch_.people) {
            if (!first && at_.person.agrees(kCancelOthers)) return false;
            if (!confirmCard(employee) || !printJob({employee}, LayoutSet::B)) return false;
            first = false;
        }
        return true;
    }

    bool confirmCard(const Employee& employee) {
        const Message question = confirmCardOf(employee);
        Answer answer = at_.person.ask(question);
        while (answer == Answer::No)
            answer = at_.person.ask(question);
        return answer == Answer::Yes;
    }

    bool printJob(const People& people, LayoutSet set) {
        ReportRequest request = requestFor(set);
        if (isPdfOfEach()) return savePdfOfEach(people, request);
        request.pdfPath = people.size() == 1 ? nameOf(people.front()) : nameFor(batch_.companyName);
        if (request.output == ReportOutput::PdfFile)
            request.pdfPath = run_.choosePdf ? run_.choosePdf(request.pdfPath) : std::string();
        return !request.pdfPath.empty() && send(request, people, run_.progress);
    }

    bool savePdfOfEach(const People& people, ReportRequest& request) {
        int saved = 0;
        const PageProgress progress = [&](int, int) {
            return !run_.progress || run_.progress(++saved, static_cast<int>(people.size()));
        };
        return std::ranges::all_of(people, [&](const Employee& employee) {
            request.pdfPath = pdfFolder_ + "/" + nameOf(employee);
            return send(request, {employee}, progress);
        });
    }

    bool choosePdfFolder() {
        if (run_.choosePdfFolder) pdfFolder_ = run_.choosePdfFolder();
        return !pdfFolder_.empty() && confirmReplacing();
    }

    bool confirmReplacing() {
        const bool any = std::ranges::any_of(batch_.people, [&](const Employee& employee) {
            return at_.files.exists(pdfFolder_ + "/" + nameOf(employee));
        });
        return !any || at_.person.agrees(replaceFiles(batch_.request.noun));
    }

    [[nodiscard]] std::string nameFor(const std::string& subject) const {
        return pdfNameOf(batch_.request.title, subject, batch_.period);
    }

    /// The code keeps employees of one name apart.
    [[nodiscard]] std::string nameOf(const Employee& employee) const {
        return nameFor(employee.code + " " + employee.name);
    }

    [[nodiscard]] ReportRequest requestFor(LayoutSet set) const {
        ReportRequest request = batch_.request;
        if (!batch_.stockCode.empty())
            request.layoutName =
                layoutFor(batch_.stockCode, batch_.choices.printer.tray, set).value();
        request.output = batch_.choices.output;
        return request;
    }

    bool send(const ReportRequest& request, const People& people, const PageProgress& progress) {
        const std::size_t each = batch_.pagesEach;
        const auto rowsOf = [&](std::size_t at) {
            return batch_.rowsOf(people[at / each], at % each);
        };
        if (printPages({at_, engine_, progress}, request, {people.size() * each, rowsOf}) !=
            PrintEnd::Done)
            return false;
        if (request.output == ReportOutput::PdfFile) savedFiles_.push_back(request.pdfPath);
        return true;
    }

    const Workplace& at_;
    ReportEngine& engine_;
    const CardBatch& batch_;
    const PrintRun& run_;
    std::string pdfFolder_;
    std::vector<std::string> savedFiles_;
};

}  // namespace

bool printCards(const Workplace& at, const PrintingDesk& desk, const CardBatch& batch,
                const PrintRun& run) {
    CardRun cards(at, desk.engine, batch, run);
    const bool printed = cards.print();
    offerToOpenPdf(at.person, desk.browser, batch.opening, cards.savedFiles());
    return printed;
}

std::string pdfNameOf(const std::string& title, std::string_view subject,
                      const std::string& period) {
    std::string name(firstCharacters(trimmed(subject), kLongestSubject));
    name += " " + period;
    for (char& c : name)
        if (isControl(c) || kNotInFileNames.find(c) != std::string_view::npos) c = '-';
    return title + " " + name + ".pdf";
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
