#include "timecard/punches/card_sheet.h"

#include "foundation/values/faults.h"
#include "foundation/values/text.h"

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

std::string findingOf(PunchCell cell, const std::string& text) {
    if (isTime(cell) && !text.empty() && !parseTypedTime(text))
        return "\"" + text + "\" não é uma hora de 00:00 a 23:59.";
    const std::size_t width = fieldOf(cell).column.width;
    if (characterCount(text) > width && !isCutByDesign(text))
        return "\"" + text + "\" passa de " + std::to_string(width) + " caracteres.";
    return storageFinding(text);
}

CardSheet::CardSheet(std::vector<PunchLine> recorded)
    : lines_(recorded), recorded_(std::move(recorded)) {}

const PunchLine& CardSheet::line(int day) const {
    return lines_.at(static_cast<std::size_t>(day) - 1);
}

const std::string& CardSheet::text(int day, PunchCell cell) const {
    return line(day).*memberOf(cell);
}

std::string& CardSheet::place(int day, PunchCell cell) {
    return lines_.at(static_cast<std::size_t>(day) - 1).*memberOf(cell);
}

void CardSheet::type(int day, PunchCell cell, std::string_view text) {
    type({{day, cell, std::string(text)}});
}

void CardSheet::type(const std::vector<TypedCell>& cells) {
    Edit edit;
    for (const TypedCell& one : cells) {
        const std::string_view typed = trimmed(one.text);
        const auto time = isTime(one.cell) ? parseTypedTime(typed) : std::nullopt;
        std::string text = one.cell == PunchCell::Situation ? meantSituation(typed)
                           : time                           ? timeText(*time)
                                                            : std::string(typed);
        if (text != this->text(one.day, one.cell))
            edit.push_back({one.day, one.cell, std::move(text)});
    }
    if (edit.empty()) return;
    done_.push_back(exchange(edit));
    undone_.clear();
}

CardSheet::Edit CardSheet::exchange(const Edit& edit) {
    Edit before;
    for (const TypedCell& one : edit) {
        std::string& standing = place(one.day, one.cell);
        before.insert(before.begin(), {one.day, one.cell, standing});
        standing = one.text;
    }
    return before;
}

std::optional<int> CardSheet::move(std::vector<Edit>& from, std::vector<Edit>& to) {
    if (from.empty()) return std::nullopt;
    to.push_back(exchange(from.back()));
    from.pop_back();
    return to.back().front().day;
}

std::optional<int> CardSheet::undo() {
    return move(done_, undone_);
}

std::optional<int> CardSheet::redo() {
    return move(undone_, done_);
}

bool CardSheet::isBlank(int day) const {
    for (const PunchCell cell : kPunchCells)
        if (cell != PunchCell::ShortField && !text(day, cell).empty()) return false;
    return true;
}

void CardSheet::markRecorded() {
    recorded_ = lines_;
    done_.clear();
    undone_.clear();
}

std::string CardSheet::findingAt(int day, PunchCell cell) const {
    const std::string& typed = text(day, cell);
    if (typed == recorded_.at(static_cast<std::size_t>(day) - 1).*memberOf(cell)) return {};
    return findingOf(cell, typed);
}

std::string CardSheet::noticeAt(int day, PunchCell cell) const {
    const std::string finding = findingAt(day, cell);
    const std::string& recorded = text(day, cell);
    if (!finding.empty() || !isTime(cell) || recorded.empty()) return finding;
    if (!parseTypedTime(recorded))
        return "\"" + recorded + "\" não é uma hora: fica como está e não conta.";
    const bool absent = meaningOf(line(day).situation) == DayMeaning::Missing;
    return absent ? "O dia está marcado como falta: esta hora não conta." : "";
}

std::optional<std::string> CardSheet::firstFinding() const {
    for (int day = 1; day <= static_cast<int>(lines_.size()); ++day)
        for (const PunchCell cell : kPunchCells)
            if (const std::string finding = findingAt(day, cell); !finding.empty())
                return line(day).label + ": " + finding;
    return std::nullopt;
}

}  // namespace winvrx
