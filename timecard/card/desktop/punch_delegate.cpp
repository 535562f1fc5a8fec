#include "timecard/card/desktop/punch_delegate.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/elided_label.h"
#include "foundation/widgets/desktop/look.h"
#include "timecard/card/desktop/punch_model.h"

#include <QComboBox>
#include <QCompleter>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolTip>

#include <limits>

namespace winvrx {

namespace {

QLineEdit* fieldOf(QWidget* editor) {
    auto* box = qobject_cast<QComboBox*>(editor);
    return box ? box->lineEdit() : qobject_cast<QLineEdit*>(editor);
}

/// Cuts what was just put in before the cursor until the text has no more than `room` characters;
/// returns what was cut.
QString cutTo(QLineEdit& edit, qsizetype room) {
    const QString text = edit.text();
    if (text.size() <= room) return {};
    const qsizetype cursor = edit.cursorPosition();
    const qsizetype kept = std::max<qsizetype>(0, room - (text.size() - cursor));
    edit.setText(text.left(kept) + text.mid(cursor));
    edit.setCursorPosition(static_cast<int>(kept));
    return text.mid(kept, cursor - kept);
}

}  // namespace

QWidget* PunchDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                     const QModelIndex& index) const {
    const PunchCell cell = *PunchModel::cellOf(index.column());
    QWidget* editor = cell == PunchCell::Situation ? buildSituations(parent) : buildField(parent);
    const QString name = static_cast<const PunchModel*>(index.model())->editorNameOf(index);
    editor->setAccessibleName(name);
    watch(*fieldOf(editor), cell, name);
    return editor;
}

QLineEdit* PunchDelegate::buildField(QWidget* parent) const {
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(QStringLiteral("punch.editor"));
    edit->setAlignment(Qt::AlignCenter);
    edit->setFont(look::fixedFont());
    edit->setFrame(false);
    return edit;
}

QWidget* PunchDelegate::buildSituations(QWidget* parent) const {
    auto* box = new QComboBox(parent);
    box->setObjectName(QStringLiteral("punch.situation"));
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->addItem(QString());
    for (const Situation& situation : kSituations)
        box->addItem(toQt(situation.word));
    box->completer()->setCompletionMode(QCompleter::PopupCompletion);
    box->completer()->setFilterMode(Qt::MatchContains);
    // The open list hands ENTER to the field alone, which still works on it when it says so.
    connect(
        box->lineEdit(), &QLineEdit::returnPressed, box,
        [box] {
            QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            if (box->isVisible()) QCoreApplication::sendEvent(box, &enter);
        },
        Qt::QueuedConnection);
    return box;
}

void PunchDelegate::watch(QLineEdit& edit, PunchCell cell, const QString& name) const {
    edit.setMaxLength(std::numeric_limits<int>::max());  // what stands there is never cut
    edit.setAccessibleName(name);
    connect(&edit, &QLineEdit::textEdited, this, [this, &edit, cell] { take(edit, cell); });
}

void PunchDelegate::take(QLineEdit& edit, PunchCell cell) const {
    const std::size_t room = roomFor(cell, toUtf8(edit.text()));
    const QString lost = cutTo(edit, static_cast<qsizetype>(room));
    QString notice = toQt(noticeWhileTyping(cell, toUtf8(edit.text())));
    if (!lost.isEmpty())
        notice = QStringLiteral("⚠ %1 de %1 caracteres; ficou de fora: \"%2\"")
                     .arg(room)
                     .arg(toQt(shortened(toUtf8(lost))));
    else if (isTime(cell) && !notice.isEmpty())
        notice.prepend(QStringLiteral("⚠ "));
    edit.setAccessibleDescription(notice);
    if (notice.startsWith(QStringLiteral("⚠")))
        QToolTip::showText(edit.mapToGlobal(QPoint(0, edit.height())), tipOf(notice), &edit);
    else
        QToolTip::hideText();
    emit said(notice);
}

void PunchDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    QLineEdit* edit = fieldOf(editor);
    edit->setText(index.data(Qt::EditRole).toString());
    edit->selectAll();  // so that typing replaces what stands there
}

void PunchDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                 const QModelIndex& index) const {
    const QString text = fieldOf(editor)->text();
    if (text != index.data(Qt::EditRole).toString()) model->setData(index, text, Qt::EditRole);
}

bool PunchDelegate::eventFilter(QObject* watched, QEvent* event) {
    auto* editor = qobject_cast<QWidget*>(watched);
    if (!editor || event->type() != QEvent::KeyPress)
        return QStyledItemDelegate::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        finish(editor, Qt::Key_Return);
    else if (key == Qt::Key_Tab)
        finish(editor, Qt::Key_Tab);
    else
        return QStyledItemDelegate::eventFilter(watched, event);
    return true;
}

/// At once: what Qt queues finds its editor gone when keys come faster than the queue is emptied.
void PunchDelegate::finish(QWidget* editor, Qt::Key key) {
    emit commitData(editor);
    emit closeEditor(editor);
    emit finished(key);
}

}  // namespace winvrx
