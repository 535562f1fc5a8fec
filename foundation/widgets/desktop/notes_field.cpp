#include "foundation/widgets/desktop/notes_field.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/input_checks.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QSignalBlocker>

namespace winvrx {

namespace {

QPlainTextEdit* editNamed(const QString& objectName) {
    auto* edit = new QPlainTextEdit;
    edit->setObjectName(objectName);
    edit->setTabChangesFocus(true);
    return edit;
}

}  // namespace

NotesField::NotesField(const QString& caption, const QString& objectName, std::size_t width,
                       QWidget* parent)
    : NotesField(editNamed(objectName), caption, width, parent) {}

NotesField::NotesField(QPlainTextEdit* edit, const QString& caption, std::size_t width,
                       QWidget* parent)
    : FieldBox(caption, edit, parent), edit_(edit), width_(width) {
    edit_->installEventFilter(this);
    connect(edit_, &QPlainTextEdit::textChanged, this, [this] {
        react();
        emit edited();
    });
}

void NotesField::setText(const QString& text) {
    const QSignalBlocker quiet(edit_);
    edit_->setPlainText(text);
    react();
}

QString NotesField::text() const {
    return edit_->toPlainText();
}

/// Takes back what goes beyond the column, then says how much room is left.
void NotesField::react() {
    const auto width = static_cast<int>(width_);
    if (text().size() > width) {
        const QSignalBlocker quiet(edit_);
        QTextCursor cursor = edit_->textCursor();
        const int excess = static_cast<int>(text().size()) - width;
        cursor.setPosition(std::max(excess, cursor.position()) - excess);
        cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor, excess);
        cursor.removeSelectedText();
    }
    const Hint hint = textHint(toUtf8(text()));
    if (hint.tone == Hint::Tone::Warning)
        setWarning(toQt(hint.text));
    else
        setInformation(QStringLiteral("%1 de %2 caracteres").arg(text().size()).arg(width));
}

bool NotesField::eventFilter(QObject* watched, QEvent* event) {
    if (watched == edit_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            QCoreApplication::sendEvent(this, event);
            return true;
        }
    }
    return FieldBox::eventFilter(watched, event);
}

}  // namespace winvrx
