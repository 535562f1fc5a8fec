#include "output/labels/label_blanks.h"

#include "foundation/values/text.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

/// Fewer underscores in a row are no blank.
constexpr std::size_t kShortestBlank = 4;

/// What a blank asks for, by the words in front of it.
struct BlankMeaning {
    std::string_view before;  ///< as foldedForSearch gives it
    std::string_view word;
};
constexpr std::array kMeanings = {
    BlankMeaning{"r$", "salario"},
    BlankMeaning{"admitido em", "admissao"},
    BlankMeaning{"admitida em", "admissao"},
    BlankMeaning{"admissao:", "admissao"},
    BlankMeaning{"a partir de", kLabelDayWord},
    BlankMeaning{"data:", kLabelDayWord},
    BlankMeaning{"alterada para", "funcao"},
    BlankMeaning{"funcao de", "funcao"},
    BlankMeaning{"cargo de", "funcao"},
    BlankMeaning{"funcao:", "funcao"},
    BlankMeaning{"nome:", "nome"},
    BlankMeaning{"ctps:", "ctps"},
    BlankMeaning{"cpf:", "cpf"},
    BlankMeaning{"pis:", "pis"},
    BlankMeaning{"empregador:", "razao"},
};

struct Place {
    std::size_t start;
    std::size_t end;
};

/// The next run of underscores, and of the strokes between them, from `from` on.
std::optional<Place> nextBlank(std::string_view line, std::size_t from) {
    while (true) {
        const std::size_t start = line.find('_', from);
        if (start == line.npos) return std::nullopt;
        const std::size_t end = std::min(line.find_first_not_of("_/", start), line.size());
        const std::string_view run = line.substr(start, end - start);
        if (static_cast<std::size_t>(std::ranges::count(run, '_')) >= kShortestBlank)
            return Place{start, end};
        from = end;
    }
}

/// Fills the blanks of a text line by line; what a blank means may stand on the line before it.
class BlankFiller {
  public:
    explicit BlankFiller(const MergeWords& words) : words_(words) {}

    std::string filled(std::string_view line) {
        std::string result;
        std::size_t from = 0;
        while (const auto blank = nextBlank(line, from)) {
            take(result, line.substr(from, blank->start - from));
            const std::string_view run = line.substr(blank->start, blank->end - blank->start);
            const std::string value = valueHere();
            result += value.empty() ? run : std::string_view(value);
            before_ += run;
            from = blank->end;
        }
        take(result, line.substr(from));
        before_ += ' ';
        return result;
    }

  private:
    void take(std::string& result, std::string_view text) {
        result += text;
        before_ += text;
    }

    [[nodiscard]] std::string valueHere() const {
        const std::string said = foldedForSearch(trimmed(before_));
        std::string words;
        for (const char c : said)
            if (c != ' ' || !words.ends_with(' ')) words += c;
        const auto meant = std::ranges::find_if(kMeanings, [&](const BlankMeaning& meaning) {
            return words.ends_with(meaning.before);
        });
        return meant == kMeanings.end() ? std::string() : words_.at(meant->word);
    }

    const MergeWords& words_;
    std::string before_;
};

}  // namespace

LabelLines filledLines(std::string_view text, const MergeWords& words) {
    BlankFiller filler(words);
    LabelLines lines;
    for (const std::string& line : labelLines(text))
        for (std::string& part : wrappedLine(filler.filled(line)))
            lines.push_back(std::move(part));
    return lines;
}

}  // namespace winvrx
