#include "timecard/card/card_sheet.h"

#include "foundation/values/faults.h"
#include "foundation/values/text.h"
#include "timecard/schedule/typed_time.h"

#include <algorithm>

namespace winvrx {

namespace {

/// The label comes first in the record and is no cell.
constexpr std::size_t kFieldsBeforeCells = 1;
static_assert(kPunchCells.size() + kFieldsBeforeCells == kPunchFields.size());

const PunchField& fieldOf(PunchCell cell) {
    return kPunchFields[static_cast<std::size_t>(cell) + kFieldsBeforeCells];
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
    if (isTime(cell))
        if (std::string finding = typedTimeFinding(text); !finding.empty()) return finding;
    const std::size_t width = fieldOf(cell).column.width;
    if (characterCount(text) > width && !isCutByDesign(text))
        return "\"" + shortened(text) + "\" passa de " + std::to_string(width) + " caracteres.";
    return storageFinding(text);
}

std::size_t roomFor(PunchCell cell, std::string_view text) {
    const std::size_t width = fieldOf(cell).column.width;
    const bool wholeWord = cell == PunchCell::Situation && beginsSituation(text);
    return wholeWord ? std::max(width, characterCount(text)) : width;
}

std::string noticeWhileTyping(PunchCell cell, std::string_view text) {
    if (isTime(cell)) return mayBecomeTime(text) ? std::string() : typedTimeFinding(text);
    const std::size_t count = characterCount(text);
    const std::size_t width = fieldOf(cell).column.width;
    return count > width ? std::string()
                         : std::to_string(count) + " de " + std::to_string(width) + " caracteres";
}

CardSheet::CardSheet(std::vector<PunchLine> recorded)
    : lines_(recorded), recorded_(std::move(recorded)) {}

const PunchLine& CardSheet::line(int day) const {
    return lines_.at(static_cast<std::size_t>(day) - 1);
}

const std::string& CardSheet::text(int day, PunchCell cell) const {
    return line(day).*fieldOf(cell).member;
}

std::string& CardSheet::place(int day, PunchCell cell) {
    return lines_.at(static_cast<std::size_t>(day) - 1).*fieldOf(cell).member;
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
    Edit before = exchange(edit);
    note_.clear();
    Edit cleared = clearWholeDays(cells);
    before.insert(before.begin(), cleared.begin(), cleared.end());
    if (before.empty()) return;
    done_.push_back(std::move(before));
    undone_.clear();
}

CardSheet::Edit CardSheet::clearWholeDays(const std::vector<TypedCell>& cells) {
    Edit edit;
    std::vector<std::string> labels;
    for (const TypedCell& one : cells) {
        const bool situation = one.cell == PunchCell::Situation;
        if (!situation || !isWholeDay(line(one.day).situation) || !line(one.day).hasTimes())
            continue;
        labels.push_back(line(one.day).label);
        for (const PunchCell cell : kPunchCells)
            if (isTime(cell) && !text(one.day, cell).empty()) edit.push_back({one.day, cell, {}});
    }
    if (labels.size() == 1)
        note_ = line(edit.front().day).situation + ": as horas de " + labels.front() + " saíram";
    else if (!labels.empty())
        note_ = "As horas de " + std::to_string(labels.size()) + " dias com situação saíram";
    if (!note_.empty()) note_ += "; Ctrl+Z as traz de volta.";
    return exchange(edit);
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
    note_.clear();
    to.push_back(exchange(from.back()));
    from.pop_back();
    return to.back().front().day;
}

std::optional<int> CardSheet::lastEditedDay() const {
    return done_.empty() ? std::nullopt : std::optional(done_.back().front().day);
}

bool CardSheet::isBlank(int day) const {
    return !line(day).hasTimes() && line(day).situation.empty();
}

void CardSheet::markRecorded() {
    recorded_ = lines_;
    note_.clear();
    done_.clear();
    undone_.clear();
}

std::string CardSheet::findingAt(int day, PunchCell cell) const {
    const std::string& typed = text(day, cell);
    const PunchLine& recorded = recorded_.at(static_cast<std::size_t>(day) - 1);
    return typed == recorded.*fieldOf(cell).member ? std::string() : findingOf(cell, typed);
}

std::string CardSheet::noticeAt(int day, PunchCell cell) const {
    const std::string finding = findingAt(day, cell);
    const std::string& recorded = text(day, cell);
    if (!finding.empty() || recorded.empty()) return finding;
    if (cell == PunchCell::Situation && isWholeDay(recorded) && line(day).hasTimes())
        return "Num dia com horas o cartão imprime as horas e não \"" + recorded + "\".";
    if (!isTime(cell)) return {};
    if (!parseTypedTime(recorded))
        return "\"" + shortened(recorded) + "\" não é uma hora: fica como está e não conta.";
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
