#include "output/labels/label_text.h"

#include "foundation/files/record_names.h"
#include "foundation/values/text.h"
#include "output/labels/label_sheet.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr Column kNumber = kLabelFields[0].column;
constexpr Column kTitle = kLabelFields[1].column;
constexpr std::size_t kBeforeText = kLabelFields[2].column.start - 1;

std::string_view withoutBlanksBehind(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// How many bytes of `line` stand on one line of a label: up to the last blank that fits, or as
/// many as fit.
std::size_t lineBreak(std::string_view line) {
    const std::size_t fits = firstCharacters(line, kLabelLineWidth).size();
    const std::size_t blank = line.rfind(' ', fits);
    const bool hasWordBefore = line.substr(0, blank).find_first_not_of(' ') != line.npos;
    return blank == line.npos || !hasWordBefore ? fits : blank;
}

RecordFile formerFile(const Store& store, const CompanyCode& company) {
    return {store, company, kFormerLabelCatalogueName};
}

}  // namespace

template <>
LabelText decode<LabelText>(std::string_view lineBytes) {
    const std::string_view text =
        lineBytes.size() > kBeforeText ? lineBytes.substr(kBeforeText) : std::string_view();
    return {fieldOf(lineBytes, kNumber), fieldOf(lineBytes, kTitle), decodeWindows1252(text)};
}

std::string encode(const LabelText& label, std::string existing) {
    const LabelText before = decode<LabelText>(existing);
    RecordLine head(existing.substr(0, kBeforeText), kBeforeText);
    if (label.number != before.number) head.put(kNumber, label.number);
    if (label.title != before.title) head.put(kTitle, label.title);
    if (label.text != before.text) return head.bytes() + encodeWindows1252(label.text);
    return existing.size() > kBeforeText ? head.bytes() + existing.substr(kBeforeText)
                                         : head.bytes();
}

LabelLines labelLines(std::string_view text) {
    LabelLines lines;
    for (text = withoutBlanksBehind(text); !text.empty();) {
        const std::string_view line = firstCharacters(text, kLabelLineWidth);
        lines.emplace_back(withoutBlanksBehind(line));
        text.remove_prefix(line.size());
    }
    return lines;
}

LabelLines wrappedLine(std::string_view line) {
    LabelLines lines;
    while (characterCount(withoutBlanksBehind(line)) > kLabelLineWidth) {
        const std::size_t end = lineBreak(line);
        lines.emplace_back(withoutBlanksBehind(line.substr(0, end)));
        line.remove_prefix(std::min(line.find_first_not_of(' ', end), line.size()));
    }
    lines.emplace_back(withoutBlanksBehind(line));
    return lines;
}

std::string shownLabelText(std::string_view text) {
    const LabelLines lines = labelLines(text);
    std::string shown;
    for (const std::string& line : lines)
        shown += (&line == lines.data() ? "" : "\n") + line;
    // Whoever goes on typing goes on behind the blanks of the last line.
    const std::size_t room = kLabelLineWidth - (lines.empty() ? 0 : characterCount(lines.back()));
    return shown.append(std::min(text.size() - withoutBlanksBehind(text).size(), room), ' ');
}

std::string storedLabelText(std::string_view shown) {
    std::string text;
    while (true) {
        const std::size_t end = shown.find('\n');
        for (const std::string& line : wrappedLine(shown.substr(0, end)))
            text += fitted(line, kLabelLineWidth);
        if (end == shown.npos) return std::string(withoutBlanksBehind(text));
        shown.remove_prefix(end + 1);
    }
}

LineFile<LabelText> labelFile(const Store& store, const CompanyCode& company) {
    return LineFile<LabelText>({store, company, kLabelCatalogueName});
}

LabelTexts loadLabels(const Store& store, const CompanyCode& company) {
    return labelFile(store, company).loadIfAny().value_or(defaultLabels());
}

// One file after the other: whenever the power goes, nothing of the catalogue is lost and the
// command can be given again.
void saveLabels(const Store& store, const CompanyCode& company, const LabelTexts& labels) {
    LineFile<LabelText>(formerFile(store, company)).save(loadLabels(store, company));
    labelFile(store, company).save(labels);
}

bool hasFormerLabels(const Store& store, const CompanyCode& company) {
    return formerFile(store, company).exists();
}

void restoreFormerLabels(const Store& store, const CompanyCode& company) {
    RecordFile former = formerFile(store, company);
    labelFile(store, company).save(LineFile<LabelText>(former).load());
    (void)former.remove();
}

}  // namespace winvrx
