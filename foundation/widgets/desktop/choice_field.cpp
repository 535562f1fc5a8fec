#include "foundation/widgets/desktop/choice_field.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QComboBox>

namespace winvrx {

namespace {

QComboBox* boxWith(const QString& objectName, const std::vector<ChoiceField::Choice>& choices) {
    auto* box = new QComboBox;
    box->setObjectName(objectName);
    box->setFont(look::fixedFont());
    box->setPlaceholderText(QStringLiteral("Escolha…"));
    for (const ChoiceField::Choice& choice : choices)
        box->addItem(toQt(choice.text), toQt(choice.code));
    box->setCurrentIndex(-1);
    return box;
}

}  // namespace

ChoiceField::ChoiceField(const QString& caption, const QString& objectName,
                         const std::vector<Choice>& choices, Find find, QWidget* parent)
    : ChoiceField(boxWith(objectName, choices), caption, parent) {
    find_ = std::move(find);
}

ChoiceField::ChoiceField(QComboBox* box, const QString& caption, QWidget* parent)
    : FieldBox(caption, box, parent), box_(box) {
    connect(box_, &QComboBox::currentIndexChanged, this, &ChoiceField::edited);
}

void ChoiceField::setStored(const std::string& text) {
    stored_ = text;
    const QSignalBlocker quiet(box_);
    box_->setCurrentIndex(find_(text));
    box_->update();
}

std::string ChoiceField::stored() const {
    const int index = box_->currentIndex();
    if (index < 0 || index == find_(stored_)) return stored_;
    return toUtf8(box_->itemData(index).toString());
}

}  // namespace winvrx
