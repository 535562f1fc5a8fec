#include "personnel/invoice_letter/correction_letter.h"

#include "foundation/values/faults.h"
#include "foundation/values/tax_id.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::size_t kKeyDigits = 44;
constexpr std::size_t kLineWidth = 95;
/// The lines that the layout has room for, of the correction and of the condition.
constexpr std::size_t kCorrectionLines = 16;
constexpr std::size_t kConditionLines = 12;

constexpr std::string_view kCorrectionType = "110110";

Fault noLetter(const std::string& sentence) {
    return {"event file: no correction letter", sentence};
}

/// The first `width` characters at most, up to a blank where there is one.
std::string_view lineOf(std::string_view text, std::size_t width) {
    const std::string_view whole = firstCharacters(text, width);
    if (whole.size() == text.size()) return whole;
    const std::size_t blank = whole.rfind(' ');
    return blank == std::string_view::npos || blank == 0 ? whole : whole.substr(0, blank);
}

std::vector<std::string> linesOf(const std::string& text) {
    std::string plain = text;
    std::ranges::replace_if(
        plain, [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    std::vector<std::string> lines;
    for (std::string_view rest = trimmed(plain); !rest.empty(); rest = trimmed(rest)) {
        const std::string_view line = lineOf(rest, kLineWidth);
        lines.emplace_back(line);
        rest.remove_prefix(line.size());
    }
    return lines;
}

/// "3524 0311 …": the key in groups of four.
std::string grouped(const std::string& key) {
    std::string text;
    for (std::size_t at = 0; at < key.size(); ++at) {
        if (at > 0 && at % 4 == 0) text += ' ';
        text += key[at];
    }
    return text;
}

void requireAll(const CorrectionLetter& letter, const std::string& type) {
    std::vector<std::string> missing;
    for (const LetterElement& element : kLetterElements)
        if (element.isRequired && (letter.*element.member).empty())
            missing.emplace_back(element.name);
    if (!missing.empty())
        throw noLetter("O arquivo não é o evento de uma carta de correção: falta " +
                       joined(missing, ", ") + ".");
    if (!type.empty() && type != kCorrectionType)
        throw noLetter("O evento do arquivo não é uma carta de correção: o tipo é " +
                       shortened(type) + ", e não 110110.");
    if (letter.accessKey.size() != kKeyDigits || digitsIn(letter.accessKey) != letter.accessKey)
        throw noLetter("A chave de acesso do arquivo não tem 44 algarismos.");
    if (linesOf(letter.correction).size() > kCorrectionLines ||
        linesOf(letter.condition).size() > kConditionLines)
        throw noLetter("O texto da correção é mais longo do que uma carta de correção pode ter.");
}

}  // namespace

CorrectionLetter readCorrectionLetter(const XmlReader& reader, const std::string& bytes) {
    CorrectionLetter letter;
    std::string type;
    reader.read(bytes, [&](const XmlElement& element) {
        if (element.name == "tpEvento" && type.empty()) type = trimmed(element.text);
        for (const LetterElement& wanted : kLetterElements) {
            std::string& text = letter.*wanted.member;
            if (element.name != wanted.name || !text.empty()) continue;
            const bool isEvent = wanted.member == &CorrectionLetter::event;
            text = trimmed(isEvent ? element.id : element.text);
        }
    });
    requireAll(letter, type);
    return letter;
}

std::vector<std::string> letterColumns() {
    std::vector<std::string> columns;
    for (const LetterElement& element : kLetterElements)
        columns.emplace_back(element.name);
    for (const char* name : {"chave", "emitente", "destinatario", "emitido", "registrado",
                             "linha_correcao", "linha_condicao"})
        columns.emplace_back(name);
    return columns;
}

ReportRows letterRows(const CorrectionLetter& letter) {
    const auto correction = linesOf(letter.correction);
    const auto condition = linesOf(letter.condition);
    const std::size_t count = std::max({std::size_t{1}, correction.size(), condition.size()});
    ReportRows rows(count, ReportRow(letterColumns().size()));
    std::size_t column = 0;
    for (const LetterElement& element : kLetterElements)
        rows[0][column++] = letter.*element.member;
    for (const std::string& text : {grouped(letter.accessKey), punctuatedCnpj(letter.issuer),
                                    punctuatedCnpj(letter.recipient), readableMoment(letter.issued),
                                    readableMoment(letter.registered)})
        rows[0][column++] = text;
    for (std::size_t line = 0; line < count; ++line) {
        if (line < correction.size()) rows[line][column] = correction[line];
        if (line < condition.size()) rows[line][column + 1] = condition[line];
    }
    return rows;
}

std::string readableMoment(const std::string& moment) {
    constexpr std::size_t kDay = 10;
    constexpr std::size_t kWhole = 19;
    if (moment.size() < kWhole || moment[4] != '-' || moment[7] != '-' || moment[kDay] != 'T')
        return moment;
    return moment.substr(8, 2) + "/" + moment.substr(5, 2) + "/" + moment.substr(0, 4) + " " +
           moment.substr(kDay + 1, kWhole - kDay - 1);
}

}  // namespace winvrx
