#include "timecard/situation.h"

namespace winvrx {

namespace {}  // namespace

const Situation* findSituation(std::string_view text) {
    if (text.empty()) return nullptr;
    const std::string_view wanted =
        text == kSituationUnjustifiedShort ? kSituationUnjustified : text;
    for (const Situation& one : kSituations)
        if (wanted == one.word || wanted == one.mark) return &one;
    return nullptr;
}

DayMeaning meaningOf(std::string_view situation) {
    const Situation* found = findSituation(situation);
    return found ? found->meaning : DayMeaning::Work;
}

}  // namespace winvrx
