#include "foundation/desk/document_template.h"
#include "foundation/values/text.h"

namespace winvrx {

namespace {

constexpr int kLongestLine = 200;  // characters to write on

Fault unclosed(char sign) {
    return {std::string("template: unclosed ") + sign,
            std::string("Falta fechar o sinal \"") + sign + "\"."};
}

/// "empregado(a)" of "empregado|empregada": the second form loses what it has in common with the
/// first, but for its last letter.
std::string bothForms(std::string_view first, std::string_view second) {
    std::size_t same = 0;
    while (same < first.size() && same < second.size() && first[same] == second[same])
        ++same;
    if (same > 0 && same == second.size()) --same;
    // Never within a character of more than one byte.
    while (same > 0 && (static_cast<unsigned char>(second[same]) & 0xC0U) == 0x80U)
        --same;
    return std::string(first) + "(" + std::string(second.substr(same)) + ")";
}

std::string agreeing(std::string_view forms, Agreement agreement) {
    const std::size_t bar = forms.find('|');
    const std::string_view masculine = forms.substr(0, bar);
    const std::string_view feminine = forms.substr(bar + 1);
    if (agreement == Agreement::Masculine) return std::string(masculine);
    if (agreement == Agreement::Feminine) return std::string(feminine);
    return bothForms(masculine, feminine);
}

class TextFiller {
  public:
    TextFiller(std::string_view text, const DocumentWords& words) : rest_(text), words_(words) {}

    [[nodiscard]] std::string filled() { return take(false).text; }

  private:
    struct Part {
        std::string text = {};
        bool isWhole = true;  ///< no word in it is empty
    };

    [[nodiscard]] Part take(bool isOptional);
    void takeWord(Part& part);
    void append(std::string& text, char letter);
    void append(std::string& text, std::string_view value);

    std::string_view rest_;
    const DocumentWords& words_;
    bool afterGap_ = false;  ///< behind something that left nothing
};

TextFiller::Part TextFiller::take(bool isOptional) {
    Part part;
    while (!rest_.empty()) {
        const char letter = rest_.front();
        if (letter == '{') {
            takeWord(part);
            continue;
        }
        rest_.remove_prefix(1);
        if (isOptional && letter == ']') return part;
        if (letter != '[') {
            append(part.text, letter);
            continue;
        }
        afterGap_ = false;
        const Part inner = take(true);
        append(part.text, inner.isWhole ? std::string_view(inner.text) : std::string_view());
    }
    if (isOptional) throw unclosed('[');
    return part;
}

void TextFiller::takeWord(Part& part) {
    const std::size_t end = rest_.find('}');
    if (end == std::string_view::npos) throw unclosed('{');
    const std::string_view inner = rest_.substr(1, end - 1);
    rest_.remove_prefix(end + 1);
    if (inner.find('|') != std::string_view::npos)
        return append(part.text, agreeing(inner, words_.agreement));
    const std::size_t colon = inner.find(':');
    const std::string& value = words_.words.at(inner.substr(0, colon));
    if (!value.empty()) return append(part.text, value);
    if (colon == std::string_view::npos) {
        part.isWhole = false;
        return append(part.text, std::string_view());
    }
    const auto width = parseWholeNumber(inner.substr(colon + 1), 1, kLongestLine);
    if (!width) throw UnknownWord(inner);
    append(part.text, std::string(static_cast<std::size_t>(*width), '_'));
}

void TextFiller::append(std::string& text, char letter) {
    const bool followsBlank = text.empty() || text.back() == ' ';
    if (afterGap_ && followsBlank && letter == ' ') return;
    if (afterGap_ && !text.empty() && followsBlank && (letter == ',' || letter == '.'))
        text.pop_back();
    afterGap_ = false;
    text += letter;
}

void TextFiller::append(std::string& text, std::string_view value) {
    text += value;
    afterGap_ = afterGap_ || value.empty();
    if (!value.empty()) afterGap_ = false;
}

}  // namespace

std::string filledText(std::string_view text, const DocumentWords& words) {
    return TextFiller(text, words).filled();
}

}  // namespace winvrx
