#include "foundation/files/record_names.h"
#include "fuzz/invariant.h"
#include "output/labels/label_blanks.h"
#include "output/labels/label_sheet.h"

using namespace winvrx;
using fuzz::require;

namespace {

void requireNarrow(const LabelLines& lines) {
    for (const std::string& line : lines)
        require(characterCount(line) <= kLabelLineWidth, "a line is as wide as a label at most");
}

}  // namespace

void fuzz::tryBytes(std::string_view bytes) {
    fuzz::AnyFile file(fuzz::kFolder.companyFile(fuzz::kCompany, kLabelCatalogueName), bytes);
    const LabelTexts labels = loadLabels(file.store, fuzz::kCompany);
    Employee employee;
    employee.salary = employee.function = employee.name = "PADEIRO E CONFEITEIRO DE PRIMEIRA";
    MergeWords words = mergeWords({}, employee);
    words.put(kLabelDayWord, "15/03/2024");
    for (const auto& label : labels) {
        const std::string& text = label.record.text;
        const std::size_t head = kLabelFields[2].column.start - 1;
        require(encode(label.record, label.bytes) == fuzz::widened(label.bytes, head),
                "an unchanged text keeps its bytes");
        require(labelLines(storedLabelText(shownLabelText(text))) == labelLines(text),
                "a text that is shown and stored has the same lines");
        requireNarrow(labelLines(text));
        requireNarrow(filledLines(text, words));
    }
    labelFile(file.store, fuzz::kCompany).save(labels);
    require(file.lines() == file.before, "an unchanged catalogue keeps its lines");
}
