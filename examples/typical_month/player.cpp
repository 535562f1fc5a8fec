#include "player.h"

#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/screen_window.h"
#include "spoken.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <cstdlib>

namespace winvrx {

namespace {

/// Milliseconds between two steps: a timer's, for a pause of none would be a posted event.
constexpr int kStepPause = 1;
constexpr int kPatience = 1000;  ///< steps that may pass before a box is there

QMessageBox::StandardButton buttonOf(Answer answer) {
    switch (answer) {
        case Answer::Yes:
            return QMessageBox::Yes;
        case Answer::No:
            return QMessageBox::No;
        case Answer::Cancel:
            return QMessageBox::Cancel;
        case Answer::Ok:
            return QMessageBox::Ok;
    }
    return QMessageBox::Ok;
}

QString iconName(QMessageBox::Icon icon) {
    switch (icon) {
        case QMessageBox::NoIcon:
            return QStringLiteral("nenhum");
        case QMessageBox::Information:
            return QStringLiteral("informação");
        case QMessageBox::Warning:
            return QStringLiteral("exclamação");
        case QMessageBox::Critical:
            return QStringLiteral("crítico");
        case QMessageBox::Question:
            return QStringLiteral("pergunta");
    }
    return {};
}

int rowContaining(const QAbstractItemModel& model, const QString& text) {
    for (int row = 0; row < model.rowCount(); ++row)
        if (model.index(row, 0).data().toString().contains(text)) return row;
    return -1;
}

/// The screen that F1 would not lead to in the help page.
QString withoutHelp(const QWidget& window) {
    QFile page(QApplication::applicationDirPath() + QStringLiteral("/help/instalacao.htm"));
    const QString section = QStringLiteral("<a name=\"%1\">").arg(window.objectName());
    if (!qobject_cast<const ScreenWindow*>(&window) ||
        (page.open(QIODevice::ReadOnly) && page.readAll().contains(section.toUtf8())))
        return {};
    return window.objectName() + QStringLiteral(" não está na ajuda\n");
}

}  // namespace

Player::Player(QString folder) : folder_(std::move(folder)) {
    QDir().mkpath(folder_ + QStringLiteral("/telas"));
    QFile::remove(folder_ + QStringLiteral("/conversa.txt"));
}

void Player::then(std::function<void()> step) {
    steps_.push_back(std::move(step));
}

void Player::waitUntil(std::function<bool()> ready) {
    then([this, ready = std::move(ready)] { waitNow(ready); });
}

void Player::waitNow(const std::function<bool()>& ready) {
    if (!ready()) steps_.push_front([this, ready] { waitNow(ready); });
}

void Player::click(const QString& name) {
    then([this, name] { QTest::mouseClick(find(name), Qt::LeftButton); });
}

void Player::press(QKeyCombination key) {
    then([this, key] { pressNow(key); });
}

/// Tries again while the window is not the active one, as keys go to that.
void Player::pressNow(QKeyCombination key) {
    QWidget* window = present();
    if (!window->isActiveWindow()) return steps_.push_front([this, key] { pressNow(key); });
    QWidget* focus = window->focusWidget() ? window->focusWidget() : window;
    QTest::keyClick(focus, key.key(), key.keyboardModifiers());
}

void Player::trigger(const QString& name) {
    then([this, name] {
        auto* action = present()->findChild<QAction*>(name);
        if (!action) fail(QStringLiteral("no command ") + name);
        action->trigger();
    });
}

void Player::chooseFile(const QString& path) {
    then([this, path] {
        auto* dialog = qobject_cast<QFileDialog*>(present());
        if (!dialog) fail(QStringLiteral("no file dialog for ") + path);
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
        QMetaObject::invokeMethod(dialog, "accept");
    });
}

void Player::type(const QString& name, const QString& text) {
    then([this, name, text] {
        auto* field = qobject_cast<QLineEdit*>(find(name));
        if (!field) fail(name + QStringLiteral(" is no text field"));
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        for (const QChar letter : text)
            QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QString(letter),
                                Qt::NoModifier);
        if (field->text() != text) fail(name + QStringLiteral(" did not take: ") + text);
    });
}

void Player::typeCell(const QString& name, int row, int column, const QString& text) {
    then([this, name, row, column, text] {
        auto* grid = qobject_cast<QAbstractItemView*>(find(name));
        if (!grid) fail(name + QStringLiteral(" is no grid"));
        typeCellNow(*grid, grid->model()->index(row, column), text);
    });
}

void Player::typeCellNow(QAbstractItemView& grid, const QModelIndex& cell, const QString& text) {
    grid.setFocus();
    grid.setCurrentIndex(cell);
    QWidget* editor = &grid;
    for (const QChar letter : text) {
        QTest::sendKeyEvent(QTest::Click, editor, Qt::Key_unknown, QString(letter), Qt::NoModifier);
        editor = grid.indexWidget(cell);
        if (!editor) fail(QStringLiteral("the cell takes no text: ") + text);
        if (auto* box = qobject_cast<QComboBox*>(editor)) editor = box->lineEdit();
    }
    QWidget* offered = QApplication::activePopupWidget();
    QTest::keyClick(offered ? offered : editor, Qt::Key_Return);
}

void Player::choose(const QString& name, const QString& text) {
    then([this, name, text] {
        QWidget* widget = find(name);
        if (auto* box = qobject_cast<QComboBox*>(widget)) {
            const int row = rowContaining(*box->model(), text);
            if (row < 0) fail(name + QStringLiteral(" does not offer: ") + text);
            box->setCurrentIndex(row);
            emit box->activated(row);
            emit box->textActivated(box->currentText());
        } else if (auto* view = qobject_cast<QAbstractItemView*>(widget)) {
            const int row = rowContaining(*view->model(), text);
            if (row < 0) fail(name + QStringLiteral(" does not list: ") + text);
            const QModelIndex index = view->model()->index(row, 0);
            view->scrollTo(index);
            QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier,
                              view->visualRect(index).center());
        } else {
            fail(name + QStringLiteral(" is no list"));
        }
    });
}

void Player::tick(const QString& name, bool on) {
    then([this, name, on] {
        auto* button = qobject_cast<QAbstractButton*>(find(name));
        if (!button) fail(name + QStringLiteral(" is no button"));
        if (button->isChecked() != on) button->click();
    });
}

void Player::openTab(const QString& name, const QString& title) {
    then([this, name, title] {
        auto* tabs = qobject_cast<QTabWidget*>(find(name));
        if (!tabs) fail(name + QStringLiteral(" has no tabs"));
        for (int i = 0; i < tabs->count(); ++i)
            if (tabs->tabText(i).remove(QLatin1Char('&')).contains(title)) tabs->setCurrentIndex(i);
    });
}

void Player::answer(const QString& text, Answer answer) {
    then([this, text, answer] { answerNow(text, answer, kPatience); });
}

/// Tries again while there is no box: a button acts on its letter a moment later.
void Player::answerNow(const QString& text, Answer answer, int tries) {
    auto* box = qobject_cast<QMessageBox*>(present());
    if (!box && tries > 0)
        return steps_.push_front([=, this] { answerNow(text, answer, tries - 1); });
    if (!box) fail(QStringLiteral("no message box, wanted: ") + text);
    if (!box->text().startsWith(text))
        fail(QStringLiteral("the message box says: ") + box->text() + box->informativeText());
    QAbstractButton* button = box->button(buttonOf(answer));
    if (!button) fail(QStringLiteral("no such button: ") + text);
    record(box->windowTitle(), box->text(), iconName(box->icon()),
           button->text().remove(QLatin1Char('&')));
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
}

void Player::picture(const QString& name) {
    then([this, name] { savePicture(present(), name); });
}

void Player::pictureBeside(const QString& objectName, const QString& name) {
    then([this, objectName, name] {
        QWidget* window = beside(objectName);
        savePicture(window, name);
        window->close();
    });
}

QWidget* Player::beside(const QString& objectName) const {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->objectName() == objectName) return window;
    fail(QStringLiteral("no window ") + objectName);
}

void Player::savePicture(QWidget* window, const QString& name) {
    note(QStringLiteral("leitor-de-tela.txt"), untold(*window) + withoutHelp(*window));
    const QString stem = QStringLiteral("%1/telas/%2-%3")
                             .arg(folder_)
                             .arg(++pictures_, 2, 10, QLatin1Char('0'))
                             .arg(name);
    look::apply(*qApp, look::darkPalette());
    QCoreApplication::sendPostedEvents();
    window->grab().save(stem + QStringLiteral("-escuro.png"));
    look::apply(*qApp, look::lightPalette());
    QCoreApplication::sendPostedEvents();
    window->grab().save(stem + QStringLiteral("-claro.png"));
}

int Player::play() {
    QTimer::singleShot(0, this, &Player::next);
    return QApplication::exec();
}

void Player::next() {
    // The program's own way out; with its last window closed it ends.
    if (steps_.empty()) return QApplication::closeAllWindows();
    const std::function<void()> step = std::move(steps_.front());
    steps_.pop_front();
    // Queued first: the step may open a modal window and return only when that is closed.
    QTimer::singleShot(kStepPause, this, &Player::next);
    // A window has its focus only while it is the active one, as it is under an operator's hands.
    if (QWidget* window = present(); window && !window->isActiveWindow()) window->activateWindow();
    step();
}

void Player::fail(const QString& reason) const {
    if (QWidget* window = present()) window->grab().save(folder_ + QStringLiteral("/falha.png"));
    qCritical("typical month: %s", qUtf8Printable(reason));
    std::_Exit(1);
}

QWidget* Player::present() {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->isWindow()) return window;
    return nullptr;
}

QWidget* Player::find(const QString& name) const {
    QWidget* window = present();
    if (!window) fail(QStringLiteral("no window, wanted: ") + name);
    auto* found = window->findChild<QWidget*>(name);
    if (!found) {
        const auto* box = qobject_cast<QMessageBox*>(window);
        fail(window->objectName() + QStringLiteral(" has no ") + name +
             (box ? QStringLiteral("; it says: ") + box->text() + box->informativeText()
                  : QString()));
    }
    if (!found->isEnabled()) fail(name + QStringLiteral(" is disabled"));
    return found;
}

void Player::record(const QString& title, const QString& text, const QString& icon,
                    const QString& answer) const {
    note(QStringLiteral("conversa.txt"),
         QStringLiteral("Título: %1\nTexto: %2\nÍcone: %3\nResposta: %4\n\n")
             .arg(title, text, icon, answer));
}

void Player::note(const QString& name, const QString& text) const {
    QFile file(folder_ + QLatin1Char('/') + name);
    if (!file.open(QIODevice::Append | QIODevice::Text))
        fail(QStringLiteral("cannot write ") + file.fileName());
    file.write(text.toUtf8());
}

}  // namespace winvrx
