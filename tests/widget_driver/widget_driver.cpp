#include "tests/widget_driver/widget_driver.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabWidget>
#include <QTest>

#include <stdexcept>

namespace winvrx {

namespace {

constexpr char16_t kLastAscii = 127;

int rowContaining(const QAbstractItemModel& model, const QString& text) {
    for (int row = 0; row < model.rowCount(); ++row)
        if (model.index(row, 0).data().toString().contains(text)) return row;
    return -1;
}

void typeLetter(QWidget& into, QChar letter) {
    const Qt::Key key =
        letter.unicode() <= kLastAscii ? QTest::asciiToKey(letter.toLatin1()) : Qt::Key_unknown;
    QTest::sendKeyEvent(QTest::Click, &into, key, QString(letter), Qt::NoModifier);
}

void pick(QComboBox& box, int row) {
    box.setCurrentIndex(row);
    emit box.activated(row);
    emit box.textActivated(box.currentText());
}

void pick(QAbstractItemView& view, int row) {
    const QModelIndex index = view.model()->index(row, 0);
    view.scrollTo(index);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                      view.visualRect(index).center());
}

}  // namespace

void WidgetDriver::refuseFor(QAnyStringView name, const std::string& why) {
    throw std::invalid_argument(name.toString().toStdString() + " " + why);
}

std::string WidgetDriver::heard() const {
    const auto* box = qobject_cast<const QMessageBox*>(&window_);
    return box ? "; it says: " + (box->text() + box->informativeText()).toStdString() : "";
}

void WidgetDriver::click(QAnyStringView name) const {
    QWidget& widget = usable(name);
    // The middle of a wide option button is beside its text, where a click does nothing.
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) return button->click();
    QTest::mouseClick(&widget, Qt::LeftButton);
}

void WidgetDriver::trigger(QAnyStringView name) const {
    usable<QAction>(name).trigger();
}

void WidgetDriver::type(QAnyStringView name, QAnyStringView text) const {
    auto& field = usable<QLineEdit>(name);
    field.setFocus();
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Delete);
    for (const QChar letter : text.toString())
        typeLetter(field, letter);
}

void WidgetDriver::typeCell(QAnyStringView name, int row, int column, QAnyStringView text) const {
    auto& grid = usable<QAbstractItemView>(name);
    const QModelIndex cell = grid.model()->index(row, column);
    grid.setFocus();
    grid.setCurrentIndex(cell);
    QWidget* editor = &grid;
    for (const QChar letter : text.toString()) {
        typeLetter(*editor, letter);
        editor = grid.indexWidget(cell);
        if (!editor) refuseFor(name, "takes no text: " + text.toString().toStdString());
        if (auto* box = qobject_cast<QComboBox*>(editor)) editor = box->lineEdit();
    }
    QWidget* offered = QApplication::activePopupWidget();
    QTest::keyClick(offered ? offered : editor, Qt::Key_Return);
}

void WidgetDriver::choose(QAnyStringView name, QAnyStringView text) const {
    QWidget& widget = usable(name);
    auto* box = qobject_cast<QComboBox*>(&widget);
    auto* view = qobject_cast<QAbstractItemView*>(&widget);
    if (!box && !view) refuseFor(name, "is no list");
    const int row = rowContaining(box ? *box->model() : *view->model(), text.toString());
    if (row < 0) refuseFor(name, "does not offer: " + text.toString().toStdString());
    box ? pick(*box, row) : pick(*view, row);
}

void WidgetDriver::tick(QAnyStringView name, bool on) const {
    if (auto& button = usable<QAbstractButton>(name); button.isChecked() != on) button.click();
}

void WidgetDriver::openTab(QAnyStringView name, QAnyStringView title) const {
    auto& tabs = usable<QTabWidget>(name);
    for (int i = 0; i < tabs.count(); ++i)
        if (tabs.tabText(i).remove(QLatin1Char('&')).contains(title.toString()))
            return tabs.setCurrentIndex(i);
    refuseFor(name, "has no tab " + title.toString().toStdString());
}

QWidget& WidgetDriver::focus() const {
    return window_.focusWidget() ? *window_.focusWidget() : window_;
}

void WidgetDriver::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QTest::keyClick(&focus(), key, modifiers);
}

void WidgetDriver::typeHere(QAnyStringView text) const {
    for (const QChar letter : text.toString())
        typeLetter(focus(), letter);
}

}  // namespace winvrx
