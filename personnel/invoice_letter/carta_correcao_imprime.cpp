#include "personnel/invoice_letter/carta_correcao_imprime.h"

#include "foundation/files/record_file.h"
#include "foundation/values/text.h"
#include "report/print_pages.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::string_view kCaption = "Imprimindo Carta de Correção NF-e";
const std::string kReportTitle = "CARTA DE CORREÇÃO NF-E";

const Message kNoFile = refusal(kCaption, "Selecione um Arquivo na Lista!");

Message noLetter(const std::string& finding) {
    return failure(kCaption, "Dados incorretos!", finding);
}

bool isXml(const ListedFile& file) {
    return upperCase(file.name).ends_with(".XML");
}

}  // namespace

bool CartaCorrecaoImprime::openFolder(std::filesystem::path folder) {
    return attempt(at_, incorrectData(), [&] {
        std::vector<ListedFile> files = at_.files.list(folder);
        std::erase_if(files, [](const ListedFile& file) { return !isXml(file); });
        std::ranges::sort(files, [](const ListedFile& one, const ListedFile& other) {
            return one.written != other.written ? one.written > other.written
                                                : one.name < other.name;
        });
        files_ = std::move(files);
        folder_ = std::move(folder);
        select(std::nullopt);
    });
}

std::string CartaCorrecaoImprime::bytesOf(const ListedFile& file) const {
    if (file.size > kMostLetterBytes)
        throw Fault("event file too large: " + file.name,
                    "O arquivo é grande demais para um evento de nota fiscal.");
    auto bytes = at_.files.read(folder_ / file.name);
    if (!bytes || bytes->size() > kMostLetterBytes)
        throw changedElsewhere("event file", "O arquivo foi alterado");
    return *std::move(bytes);
}

void CartaCorrecaoImprime::select(std::optional<std::size_t> position) {
    position_ = position;
    letter_.reset();
    finding_.clear();
    if (!position_) return;
    try {
        letter_ = readCorrectionLetter(desk_.reader, bytesOf(files_.at(*position_)));
    } catch (const std::exception& fault) {
        at_.log.write(std::string("correction letter: ") + fault.what());
        finding_ = explanationOf(fault);
    }
}

void CartaCorrecaoImprime::keep(const std::string& bytes) {
    const auto hold = holdFolder(at_);
    at_.files.replace(at_.session.folder.file(kLetterFile), bytes);
}

bool CartaCorrecaoImprime::print(ReportOutput output) {
    if (!position_) return at_.person.refuse(kNoFile);
    if (!letter_) return at_.person.refuse(noLetter(finding_));
    if (!at_.person.agrees(question(kCaption,
                                    "Confirma Imprimir a Carta de Correção NF-e Selecionada?",
                                    files_.at(*position_).name)))
        return false;
    return attempt(at_, printFailed(), [&] {
        const std::string bytes = bytesOf(files_.at(*position_));
        letter_ = readCorrectionLetter(desk_.reader, bytes);
        keep(bytes);
        const ReportRequest request{.layoutName = std::string(kLetterLayout),
                                    .title = kReportTitle,
                                    .columns = letterColumns(),
                                    .output = output,
                                    .printerName = loadPrinterName(at_.store()),
                                    .pdfPath = "carta-correcao-" + letter_->accessKey + ".pdf"};
        ReportPages page(1, [&](std::size_t) { return letterRows(*letter_); });
        return printPages({at_, desk_.engine}, request, page) == PrintEnd::Done;
    });
}

}  // namespace winvrx
