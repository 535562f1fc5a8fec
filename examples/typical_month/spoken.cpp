#include "spoken.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QScrollBar>
#include <QTableView>
#include <QTreeView>

namespace winvrx {

namespace {

bool isInput(const QWidget& widget) {
    if (qobject_cast<const QHeaderView*>(&widget) || widget.inherits("QTableCornerButton") ||
        widget.objectName().startsWith(QLatin1String("qt_")))
        return false;
    return widget.focusPolicy() != Qt::NoFocus || qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QAbstractButton*>(&widget) ||
           qobject_cast<const QScrollBar*>(&widget);
}

QString spokenName(const QWidget& widget) {
    const QAccessibleInterface* spoken =
        QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
    return spoken ? spoken->text(QAccessible::Name).trimmed() : QString();
}

QString described(const QWidget& widget) {
    return QLatin1String(widget.metaObject()->className()) + QLatin1Char(' ') +
           widget.objectName() + QStringLiteral(" in ") +
           (widget.parentWidget() ? widget.parentWidget()->objectName() : QString());
}

bool isHidden(const QAbstractItemView& view, int row) {
    if (const auto* list = qobject_cast<const QListView*>(&view)) return list->isRowHidden(row);
    if (const auto* table = qobject_cast<const QTableView*>(&view)) return table->isRowHidden(row);
    const auto* tree = qobject_cast<const QTreeView*>(&view);
    return tree && tree->isRowHidden(row, view.rootIndex());
}

/// The rows' places, from the first one on.
QString untoldRows(const QAbstractItemView& view) {
    int end = 0;
    bool any = false;
    for (int row = 0; row < view.model()->rowCount(view.rootIndex()); ++row) {
        const QModelIndex index = view.model()->index(row, 0, view.rootIndex());
        const QRect place = view.visualRect(index);
        if (isHidden(view, row)) continue;
        const auto lines = index.data().toString().count(QLatin1Char('\n')) + 1;
        if (place.height() < lines * view.fontMetrics().height())
            return described(view) + QStringLiteral(": linha baixa demais: ") +
                   index.data().toString();
        if (any && place.top() < end)
            return described(view) + QStringLiteral(": linha sobre a anterior: ") +
                   index.data().toString();
        end = place.top() + place.height();
        any = true;
    }
    return {};
}

}  // namespace

QString untold(const QWidget& window) {
    QString told;
    QStringList heard;
    const auto tell = [&](const QString& what) {
        if (!what.isEmpty()) told += window.objectName() + QStringLiteral(": ") + what + u'\n';
    };
    if (const QSize room = window.screen()->availableSize();
        window.size().boundedTo(room) != window.size())
        tell(QStringLiteral("passa da tela"));
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->window() != &window || !widget->isVisible()) continue;
        if (isInput(*widget) && spokenName(*widget).isEmpty())
            tell(described(*widget) + QStringLiteral(" não tem nome"));
        if (qobject_cast<const QLineEdit*>(widget) && heard.contains(spokenName(*widget)))
            tell(described(*widget) + QStringLiteral(" tem o nome de outro"));
        if (qobject_cast<const QLineEdit*>(widget)) heard << spokenName(*widget);
        if (isInput(*widget) && widget->size().isEmpty())
            tell(described(*widget) + QStringLiteral(" não tem tamanho"));
        if (const auto* view = qobject_cast<const QAbstractItemView*>(widget);
            view && !qobject_cast<const QHeaderView*>(view) && view->model())
            tell(untoldRows(*view));
    }
    return told;
}

}  // namespace winvrx
