#include "timecard/punches/situation.h"

#include "foundation/values/text.h"

namespace winvrx {

namespace {

constexpr std::size_t kLettersOfBeginning = 3;

}  // namespace

const Situation* findSituation(std::string_view text) {
    if (text.empty()) return nullptr;
    const std::string_view wanted =
        text == kSituationUnjustifiedShort ? kSituationUnjustified : text;
    for (const Situation& one : kSituations)
        if (wanted == one.word || wanted == one.mark) return &one;
    return nullptr;
}

std::string meantSituation(std::string_view typed) {
    std::string as(typed);
    if (findSituation(typed)) return as;
    const std::string wanted = foldedForSearch(typed);
    if (wanted.size() < kLettersOfBeginning) return as;
    std::string_view meant;
    for (const Situation& one : kSituations) {
        const std::string word = foldedForSearch(one.word);
        if (!word.starts_with(wanted)) continue;
        if (word == wanted) return std::string(one.word);
        // "Falta" begins "Falta Injustificada"; two words apart are no answer.
        if (!meant.empty() && !word.starts_with(foldedForSearch(meant))) return as;
        if (meant.empty()) meant = one.word;
    }
    return meant.empty() ? as : std::string(meant);
}

DayMeaning meaningOf(std::string_view situation) {
    const Situation* found = findSituation(situation);
    return found ? found->meaning : DayMeaning::Work;
}

}  // namespace winvrx
