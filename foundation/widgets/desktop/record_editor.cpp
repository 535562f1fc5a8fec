#include "foundation/widgets/desktop/record_editor.h"

#include <QTabWidget>

#include <algorithm>

namespace winvrx {

void RecordEditor::add(Field* field) {
    if (!fields_.empty()) fields_.back()->input()->setProperty("lastField", false);
    field->input()->setProperty("lastField", true);
    fields_.push_back(field);
    connect(field, &Field::edited, this, &RecordEditor::edited);
}

bool RecordEditor::isDirty() const {
    return std::ranges::any_of(fields_, &Field::isChanged);
}

void RecordEditor::focusFirst() {
    const auto typed = [](const Field* field) { return !field->isReadOnly(); };
    if (const auto first = std::ranges::find_if(fields_, typed); first != fields_.end())
        focus(*first);
}

bool RecordEditor::moveToNextPage(const QWidget* from) {
    const auto left = std::ranges::find(fields_, from, &Field::input);
    if (left == fields_.end()) return false;
    const auto next = std::find_if(left + 1, fields_.end(),
                                   [](const Field* field) { return !field->isReadOnly(); });
    if (next == fields_.end() || (*next)->isVisible()) return false;
    focus(*next);
    return true;
}

void RecordEditor::focus(Field* field) {
    for (QWidget* over = field->parentWidget(); over; over = over->parentWidget())
        if (auto* pages = qobject_cast<QTabWidget*>(over))
            for (int page = 0; page < pages->count(); ++page)
                if (pages->widget(page)->isAncestorOf(field)) pages->setCurrentIndex(page);
    field->takeFocus();
}

}  // namespace winvrx
