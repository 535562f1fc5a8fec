#include "timecard/punches/situation.h"

#include "foundation/values/text.h"

#include <algorithm>
#include <string>
#include <vector>

namespace winvrx {

namespace {

constexpr std::size_t kLettersOfBeginning = 3;

/// A text that stands for a situation, brought to the form in which texts are compared.
struct KnownText {
    std::string folded;
    const Situation* situation;
};

std::vector<KnownText> knownTexts() {
    std::vector<KnownText> texts;
    for (const Situation& one : kSituations) {
        for (const std::string_view text : {one.word, one.mark})
            texts.push_back({foldedForSearch(text), &one});
        if (one.word == kSituationUnjustified)
            texts.push_back({foldedForSearch(kSituationUnjustifiedShort), &one});
    }
    return texts;
}

}  // namespace

const Situation* findSituation(std::string_view text) {
    if (text.empty()) return nullptr;
    static const std::vector<KnownText> known = knownTexts();
    const auto found = std::ranges::find(known, foldedForSearch(text), &KnownText::folded);
    return found == known.end() ? nullptr : found->situation;
}

std::string meantSituation(std::string_view typed) {
    std::string as(typed);
    if (typed == kSituationUnjustifiedShort) return as;
    if (const Situation* known = findSituation(typed)) return std::string(known->word);
    const std::string wanted = foldedForSearch(typed);
    if (wanted.size() < kLettersOfBeginning) return as;
    std::string_view meant;
    for (const Situation& one : kSituations) {
        const std::string word = foldedForSearch(one.word);
        if (!word.starts_with(wanted)) continue;
        // "Falta" begins "Falta Injustificada"; two words apart are no answer.
        if (!meant.empty() && !word.starts_with(foldedForSearch(meant))) return as;
        if (meant.empty()) meant = one.word;
    }
    return meant.empty() ? as : std::string(meant);
}

bool beginsSituation(std::string_view text) {
    const std::string wanted = foldedForSearch(text);
    return std::any_of(kSituations.begin(), kSituations.end(), [&](const Situation& one) {
        return foldedForSearch(one.word).starts_with(wanted);
    });
}

DayMeaning meaningOf(std::string_view situation) {
    const Situation* found = findSituation(situation);
    return found ? found->meaning : DayMeaning::Work;
}

bool isWholeDay(std::string_view situation) {
    const DayMeaning meaning = meaningOf(situation);
    return meaning == DayMeaning::Missing || meaning == DayMeaning::Excused;
}

}  // namespace winvrx
