#include "output/labels/etiquetas.h"

#include "foundation/register/company_register.h"
#include "foundation/values/text.h"
#include "output/labels/label_blanks.h"
#include "report/print_pages.h"

#include <algorithm>
#include <utility>

namespace winvrx {

namespace {

const Message kNoText = refusal("Aviso", "Selecione uma Etiqueta na Lista!",
                                "Marque com ESPAÇO os textos que vão ser impressos.");
const Message kConfirmFrames =
    question("Imprimir Teste",
             "Coloque uma Folha em Branco na Impressora! Pressione SIM para Imprimir ou NÃO para "
             "Cancelar Impressão.",
             "Ponha depois a folha contra a luz sobre a folha de etiquetas.");

/// Of labels that do not fit, so many are named.
constexpr std::size_t kMostNamed = 8;

Message tooLong(const std::vector<std::string>& lines, std::size_t count) {
    std::string detail = joined(lines, "\n");
    if (count > lines.size()) detail += "\ne mais " + countOf(count - lines.size(), "etiqueta");
    return refusal("Aviso", "O Texto não Cabe na Etiqueta!", detail);
}

void append(LabelLines& lines, const std::string& line) {
    for (std::string& part : wrappedLine(line))
        lines.push_back(std::move(part));
}

}  // namespace

LabelLines addressLines(const Employee& employee) {
    LabelLines lines;
    append(lines, "NOME: " + employee.name);
    append(lines, " CTPS: " + employee.workBooklet);
    const std::string place = joined({employee.district, employee.city, employee.state}, " - ");
    for (const std::string& line : {employee.address, place})
        if (!line.empty()) append(lines, line);
    append(lines, "CEP: " + employee.postalCode);
    append(lines, "TELEFONE: " + employee.telephone);
    lines.emplace_back(kLabelLineWidth, '=');
    return lines;
}

Etiquetas::Etiquetas(const Workplace& at, const PrintingDesk& desk, std::string_view sheetName)
    : at_(at), desk_(desk), list_(at.session.shiftFilter) {
    choices_.sheet = labelSheetNamed(sheetName).value_or(0);
    choices_.day = dateText(at.clock.today());
}

void Etiquetas::load() {
    (void)attempt(at_, incorrectData(), [this] {
        const CompanyCode& company = at_.session.company.value();
        company_ = loadCompany(at_.store(), company);
        printer_ = loadPrinterName(at_.store());
        texts_.clear();
        for (const auto& line : loadLabels(at_.store(), company))
            if (line.key()) texts_.push_back(line.record);
        list_.load(at_.store(), company);
    });
}

bool Etiquetas::isTicked(std::size_t text) const {
    return ticked_.contains(texts_.at(text).number);
}

void Etiquetas::tick(std::size_t text, bool on) {
    if (on)
        ticked_.insert(texts_.at(text).number);
    else
        ticked_.erase(texts_.at(text).number);
}

std::vector<LabelText> Etiquetas::tickedTexts() const {
    std::vector<LabelText> ticked;
    std::ranges::copy_if(texts_, std::back_inserter(ticked),
                         [this](const LabelText& text) { return ticked_.contains(text.number); });
    return ticked;
}

LabelRun Etiquetas::labels() const {
    LabelRun run{.sheet = sheet(),
                 .labels = 0,
                 .linesOf = {},
                 .copies = static_cast<std::size_t>(choices_.copies),
                 .first = choices_.first};
    const std::vector<Employee> people = list_.ticked();
    if (choices_.kind == LabelKind::Addresses) {
        run.labels = people.size();
        run.linesOf = [people](std::size_t label) { return addressLines(people.at(label)); };
        return run;
    }
    const std::vector<LabelText> texts = tickedTexts();
    run.labels = texts.size() * std::max<std::size_t>(people.size(), 1);
    run.linesOf = [people, texts, company = company_, day = choices_.day](std::size_t label) {
        const std::string& text = texts.at(label % texts.size()).text;
        if (people.empty()) return labelLines(text);
        MergeWords words = mergeWords(company, people.at(label / texts.size()));
        words.put(kLabelDayWord, day);
        return filledLines(text, words);
    };
    return run;
}

std::string Etiquetas::nameOf(std::size_t label) const {
    const std::vector<Employee> people = list_.ticked();
    const std::vector<LabelText> texts = tickedTexts();
    const auto named = [](const std::string& code, const std::string& name) {
        return code + " " + name;
    };
    if (choices_.kind == LabelKind::Addresses)
        return named(people.at(label).code, people.at(label).name);
    const LabelText& text = texts.at(label % texts.size());
    if (people.empty()) return named(text.number, text.title);
    const Employee& employee = people.at(label / texts.size());
    return named(text.number, text.title) + ", " + named(employee.code, employee.name);
}

bool Etiquetas::requireTicks() {
    return labels().labels > 0 ||
           at_.person.refuse(choices_.kind == LabelKind::Addresses ? noEmployeeSelected()
                                                                   : kNoText);
}

bool Etiquetas::requireFitting(const LabelRun& labels) {
    std::vector<std::string> named;
    std::size_t count = 0;
    for (std::size_t label = 0; label < labels.labels; ++label) {
        const LabelLines lines = labels.linesOf(label);
        if (lines.size() <= labels.sheet.lines) continue;
        if (++count > kMostNamed) continue;
        named.push_back(nameOf(label) + ": a linha " + std::to_string(labels.sheet.lines + 1) +
                        ", \"" + std::string(trimmed(lines[labels.sheet.lines])) +
                        "\", é demais para uma etiqueta de " + std::to_string(labels.sheet.lines) +
                        " linhas.");
    }
    return count == 0 || at_.person.refuse(tooLong(named, count));
}

bool Etiquetas::print(const PrintRun& run) {
    return requireTicks() && requirePrintingDrive(at_, wrongDrive()) &&
           attempt(at_, printFailed(), [&] {
               const LabelRun chosen = labels();
               return requireFitting(chosen) && send(labelRequest(), labelPages(chosen), run);
           });
}

bool Etiquetas::printFrames(const PrintRun& run) {
    if (!requirePrintingDrive(at_, wrongDrive())) return false;
    if (choices_.output == ReportOutput::Printer && !at_.person.agrees(kConfirmFrames))
        return false;
    return attempt(at_, printFailed(), [&] {
        return send(labelRequest(), {1, [this](std::size_t) { return labelFrames(sheet()); }}, run);
    });
}

bool Etiquetas::printStockSheets(const StockChoices& chosen, const PrintRun& run) {
    return requirePrintingDrive(at_, wrongDrive()) && attempt(at_, printFailed(), [&] {
               return send(stockSheetRequest(chosen), stockSheets(company_, chosen), run);
           });
}

PrintScaleKey Etiquetas::scaleKey() const {
    return {printer_.empty() ? desk_.printers.defaultName() : printer_, std::string(sheet().paper)};
}

ReportRequest Etiquetas::labelRequest() const {
    return {.layoutName = std::string(sheet().layout),
            .title = std::string(kEtiquetasTitle),
            .columns = labelColumns(),
            .alignment = {.scale = loadPrintScale(at_.store(), scaleKey())},
            .output = choices_.output};
}

bool Etiquetas::send(ReportRequest request, ReportPages pages, const PrintRun& run) {
    request.printerName = printer_;
    request.pdfPath = pdfNameOf(request.title, company_.name, dateText(at_.clock.today()));
    const bool toPdf = request.output == ReportOutput::PdfFile;
    if (toPdf) request.pdfPath = run.choosePdf ? run.choosePdf(request.pdfPath) : std::string();
    if (request.pdfPath.empty()) return false;
    if (printPages({at_, desk_.engine, run.progress}, request, std::move(pages)) != PrintEnd::Done)
        return false;
    if (toPdf) offerToOpenPdf(at_.person, desk_.browser, request.title, {request.pdfPath});
    return true;
}

}  // namespace winvrx
