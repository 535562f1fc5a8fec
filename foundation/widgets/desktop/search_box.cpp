#include "foundation/widgets/desktop/search_box.h"

#include "foundation/widgets/desktop/look.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QShortcut>

namespace winvrx {

namespace {

bool movesInList(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
           key == Qt::Key_PageDown;
}

bool isPlainText(const QKeyEvent& event) {
    return !event.text().isEmpty() && event.text().front().isPrint() &&
           !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

}  // namespace

SearchBox::SearchBox(const QString& objectName, const QString& placeholder, QWidget* parent)
    : QLineEdit(parent) {
    look::name(*this, objectName, placeholder);
    setPlaceholderText(placeholder);
    addAction(look::icon(QStringLiteral("search")), QLineEdit::LeadingPosition)
        ->setText(QStringLiteral("Pesquisar"));
    QAction* clearAll = addAction(look::icon(QStringLiteral("clear")), QLineEdit::TrailingPosition);
    clearAll->setText(QStringLiteral("Limpar a pesquisa"));
    clearAll->setVisible(false);
    connect(clearAll, &QAction::triggered, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, clearAll,
            [clearAll](const QString& text) { clearAll->setVisible(!text.isEmpty()); });
}

void SearchBox::serve(QAbstractItemView* list) {
    list_ = list;
    list->installEventFilter(this);
    auto* shortcut = new QShortcut(QKeySequence::Find, window());
    connect(shortcut, &QShortcut::activated, this, [this] {
        setFocus(Qt::ShortcutFocusReason);
        selectAll();
    });
}

bool SearchBox::eventFilter(QObject* watched, QEvent* event) {
    if (watched == list_ && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (isPlainText(*key) && key->key() != Qt::Key_Space) {
            setFocus(Qt::OtherFocusReason);
            QCoreApplication::sendEvent(this, event);
            return true;
        }
    }
    return QLineEdit::eventFilter(watched, event);
}

void SearchBox::keyPressEvent(QKeyEvent* event) {
    if (list_ && movesInList(event->key()))
        QCoreApplication::sendEvent(list_, event);
    else if (event->key() == Qt::Key_Escape && !text().isEmpty())
        clear();
    else
        QLineEdit::keyPressEvent(event);
}

}  // namespace winvrx
