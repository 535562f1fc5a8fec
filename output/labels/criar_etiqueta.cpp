#include "output/labels/criar_etiqueta.h"

#include "foundation/values/text.h"
#include "output/labels/label_sheet.h"

namespace winvrx {

namespace {

const Message kConfirmUndo =
    riskyQuestion("DESFAZER", "Confirma Desfazer a Última Alteração da Lista? ",
                  "A lista volta ao que era antes dela; o que foi alterado por último se perde.");

const Message kNothingToUndo = notice("DESFAZER", "Não há Alteração a Desfazer!");

std::string completedNumber(std::string_view typed) {
    const auto number = parseWholeNumber(typed, 1, LabelNumber::kHighest);
    return number ? padded(*number, static_cast<int>(LabelNumber::kDigits)) : std::string(typed);
}

}  // namespace

CriarEtiqueta::CriarEtiqueta(const Workplace& at)
    : ListCommands(at, {.include = question("INCLUSÃO", "Confirma INCLUSÃO? "),
                        .change = question("ALTERAÇÃO", "Confirma ALTERAÇÃO? "),
                        .remove = riskyQuestion("EXCLUSÃO", "Confirma EXCLUSÃO? ")}) {}

LabelText CriarEtiqueta::freshRecord() const {
    const auto free = lowestFreeCode(keysOf(lines_));
    return free ? LabelText{free->text(), {}, free->text() + " "} : LabelText();
}

Findings<LabelText> CriarEtiqueta::wrongIn(const LabelText& typed, const LabelText& before) const {
    const LabelText label = completed(typed);
    const auto number = keyOf(label);
    if (!label.number.empty() && (!number || number->number() == 0))
        return {{&LabelText::number, label.number + " não vai de 01 a 99."}};
    if (number && number != keyOf(before) && findLine(lines_, number))
        return {{&LabelText::number, label.number + " já está na lista."}};
    const std::size_t lines = labelLines(label.text).size();
    if (lines > kMostTextLines)
        return {{&LabelText::text, "tem " + std::to_string(lines) + " linhas; o máximo são " +
                                       std::to_string(kMostTextLines) + "."}};
    return {};
}

LabelText CriarEtiqueta::completed(const LabelText& typed) const {
    return {completedNumber(typed.number), std::string(trimmed(typed.title)), typed.text};
}

bool CriarEtiqueta::requireAcceptable(const LabelText& typed, const Line* before) {
    if (!requireComplete(typed, incorrectData())) return false;
    const auto wrong = wrongIn(typed, before ? before->record : LabelText());
    return wrong.empty() || refuseFor(wrong.front(), incorrectData());
}

bool CriarEtiqueta::undo() {
    return run(incorrectData(), [&] {
        if (!canUndo()) return refuse(kNothingToUndo);
        if (!at_.person.agrees(kConfirmUndo)) return false;
        const auto hold = holdFolder(at_);
        if (read() != lines_) throw changedElsewhere("list");
        restoreFormerLabels(at_.store(), at_.session.company.value());
        reread();
        return true;
    });
}

CriarEtiqueta::Lines CriarEtiqueta::read() const {
    const auto stored = labelFile(at_.store(), at_.session.company.value()).loadIfAny();
    if (stored) return *stored;
    // A list that was shown and is gone is not to be taken for one that was never recorded.
    return lines_.empty() || lines_ == defaultLabels() ? defaultLabels() : Lines();
}

void CriarEtiqueta::write(const Lines& lines) {
    saveLabels(at_.store(), at_.session.company.value(), lines);
    canUndo_ = true;
}

void CriarEtiqueta::reread() {
    lines_.clear();
    ListCommands::reread();
    canUndo_ = hasFormerLabels(at_.store(), at_.session.company.value());
}

ListRow CriarEtiqueta::rowOf(const LabelText& label) const {
    return {{label.number, label.title}, label.number + " " + label.title + " " + label.text};
}

Hint labelTextHint(std::string_view shown, Entry) {
    if (const Hint hint = textHint(storedLabelText(shown)); hint.tone != Hint::Tone::None)
        return hint;
    const std::size_t lines = labelLines(storedLabelText(shown)).size();
    const std::string count = countOf(lines, "linha");
    const std::string tooSmall = joined(kLabelSheets, "; ", [lines](const LabelSheet& sheet) {
        if (lines <= sheet.lines) return std::string();
        return std::string(sheet.name) + " (" + std::to_string(sheet.lines) + ")";
    });
    return tooSmall.empty() ? Hint{Hint::Tone::Good, count + ": cabe em todas as folhas"}
                            : Hint{Hint::Tone::Warning, count + ": não cabe em " + tooSmall};
}

}  // namespace winvrx
