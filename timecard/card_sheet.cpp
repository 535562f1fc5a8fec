#include "timecard/card_sheet.h"

#include "foundation/faults.h"
#include "foundation/text.h"

namespace winvrx {

namespace {

/// The label comes first in the record and is no cell.
constexpr std::size_t kFieldsBeforeCells = 1;
static_assert(kPunchCells.size() + kFieldsBeforeCells == kPunchFields.size());

const PunchField& fieldOf(PunchCell cell) {
    return kPunchFields[static_cast<std::size_t>(cell) + kFieldsBeforeCells];
}

std::string PunchLine::*memberOf(PunchCell cell) {
    return fieldOf(cell).member;
}

bool isCutByDesign(std::string_view situation) {
    const Situation* found = findSituation(situation);
    return found && found->word == situation;
}

std::string storageFinding(const std::string& text) {
    try {
        (void)encodeWindows1252(text);
        return {};
    } catch (const TextFault& fault) {
        return fault.explanation();
    }
}

}  // namespace

CardSheet::CardSheet(std::vector<PunchLine> recorded)
    : lines_(recorded), recorded_(std::move(recorded)) {}

const PunchLine& CardSheet::line(int day) const {
    return lines_.at(static_cast<std::size_t>(day) - 1);
}

const std::string& CardSheet::text(int day, PunchCell cell) const {
    return line(day).*memberOf(cell);
}

void CardSheet::type(int day, PunchCell cell, std::string_view text) {
    std::string& place = lines_.at(static_cast<std::size_t>(day) - 1).*memberOf(cell);
    const std::string_view typed = trimmed(text);
    const auto time = isTime(cell) ? parseTypedTime(typed) : std::nullopt;
    place = time ? timeText(*time) : std::string(typed);
}

std::string CardSheet::findingAt(int day, PunchCell cell) const {
    const std::string& typed = text(day, cell);
    if (typed == recorded_.at(static_cast<std::size_t>(day) - 1).*memberOf(cell)) return {};
    if (isTime(cell) && !typed.empty() && !parseTypedTime(typed))
        return "\"" + typed + "\" não é uma hora de 00:00 a 23:59.";
    const std::size_t width = fieldOf(cell).column.width;
    if (characterCount(typed) > width && !isCutByDesign(typed))
        return "\"" + typed + "\" passa de " + std::to_string(width) + " caracteres.";
    return storageFinding(typed);
}

std::string CardSheet::noticeAt(int day, PunchCell cell) const {
    const std::string finding = findingAt(day, cell);
    const std::string& recorded = text(day, cell);
    if (!finding.empty() || !isTime(cell) || recorded.empty() || parseTypedTime(recorded))
        return finding;
    return "\"" + recorded + "\" não é uma hora: fica como está e não conta.";
}

std::optional<std::string> CardSheet::firstFinding() const {
    for (int day = 1; day <= static_cast<int>(lines_.size()); ++day)
        for (const PunchCell cell : kPunchCells)
            if (const std::string finding = findingAt(day, cell); !finding.empty())
                return line(day).label + ": " + finding;
    return std::nullopt;
}

}  // namespace winvrx
