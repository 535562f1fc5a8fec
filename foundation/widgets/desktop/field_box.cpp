#include "foundation/widgets/desktop/field_box.h"

#include "foundation/values/date.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/faults.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/look.h"

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace winvrx {

namespace {

/// What keeps `text` from being stored, in a sentence; empty when it can be.
QString storageFinding(const QString& text) {
    try {
        (void)encodeWindows1252(toUtf8(text));
        return {};
    } catch (const TextFault& fault) {
        return toQt(fault.explanation());
    }
}

}  // namespace

FieldBox::FieldBox(const QString& caption, QWidget* field, QWidget* parent) : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(look::kSmallGap / 2);
    QLabel* label = look::label(caption, look::TextSize::Body, this);
    label->setBuddy(field);
    column->addWidget(label);
    column->addWidget(field);
    hint_ = look::label(QString(), look::TextSize::Hint, this);
    hint_->setObjectName(field->objectName() + QStringLiteral(".hint"));
    hint_->setWordWrap(true);
    hint_->setMinimumHeight(hint_->fontMetrics().height());
    column->addWidget(hint_);
    if (field->accessibleName().isEmpty())
        field->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
}

void FieldBox::setWarning(const QString& text) {
    hint_->setText(text.isEmpty() ? text : QStringLiteral("⚠ ") + text);
    look::setTint(*hint_, look::Tint::Warning);
}

void FieldBox::setInformation(const QString& text) {
    hint_->setText(text);
    look::setTint(*hint_, look::Tint::Quiet);
}

TextField::TextField(const QString& caption, const QString& objectName, int width, TextCheck check,
                     QWidget* parent)
    : TextField(
          [&] {
              auto* edit = new QLineEdit;
              edit->setObjectName(objectName);
              edit->setMaxLength(width);
              return edit;
          }(),
          caption, parent) {
    check_ = std::move(check);
}

TextField::TextField(QLineEdit* edit, const QString& caption, QWidget* parent)
    : FieldBox(caption, edit, parent), edit_(edit) {
    connect(edit_, &QLineEdit::textChanged, this, &TextField::showFinding);
    connect(edit_, &QLineEdit::textEdited, this, &TextField::edited);
}

QString TextField::text() const {
    return edit_->text();
}

void TextField::setText(const QString& text) {
    edit_->setText(text);
    edit_->setCursorPosition(0);
}

void TextField::showFinding() {
    QString finding = storageFinding(edit_->text());
    if (finding.isEmpty() && check_) finding = check_(edit_->text());
    setWarning(finding);
}

QString dateFinding(const QString& text) {
    if (text.isEmpty()) return {};
    if (text.size() < 10) return QStringLiteral("dd/mm/aaaa");
    return parseDate(toUtf8(text)) ? QString() : QStringLiteral("Esta data não existe.");
}

}  // namespace winvrx
