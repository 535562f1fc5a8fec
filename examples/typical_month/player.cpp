#include "player.h"

#include "native_keys.h"

#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/screen_window.h"
#include "spoken.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <stdexcept>

namespace winvrx {

namespace {

/// Milliseconds between two steps: a timer's, for a pause of none would be a posted event.
constexpr int kStepPause = 1;
/// Until a key has come from the computer's keyboard.
constexpr int kKeyPause = 250;
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

void Player::press(QKeyCombination key) {
    then([this, key] { pressNow(key); });
}

/// Tries again while the window is not the active one, as keys go to that.
void Player::pressNow(QKeyCombination key) {
    if (!present()->isActiveWindow()) return steps_.push_front([this, key] { pressNow(key); });
    if (!pressNatively(key)) return window().press(key.key(), key.keyboardModifiers());
    still_ = true;
    QTimer::singleShot(kKeyPause, this, [this] { still_ = false; });
}

void Player::chooseFile(const QString& path) {
    then([path] {
        window().find<QLineEdit>("fileNameEdit").setText(path);
        QMetaObject::invokeMethod(present(), "accept");
    });
}

void Player::type(QAnyStringView name, QAnyStringView text) {
    then([this, name = name.toString(), text = text.toString()] {
        window().type(name, text);
        if (window().find<QLineEdit>(name).text() != text)
            fail(name + QStringLiteral(" did not take: ") + text);
    });
}

void Player::answer(QAnyStringView text, Answer answer) {
    then([this, text = text.toString(), answer] { answerNow(text, answer, kPatience); });
}

void Player::confirm(QKeyCombination key, QAnyStringView question) {
    press(key);
    answer(question, Answer::Yes);
}

void Player::confirm(QAnyStringView button, QAnyStringView question) {
    click(button);
    answer(question, Answer::Yes);
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

void Player::picture(QAnyStringView name) {
    then([this, name = name.toString()] { savePicture(present(), name); });
}

void Player::look(QAnyStringView name) {
    picture(name);
    press(Qt::Key_Escape);
}

void Player::look(QAnyStringView name, QAnyStringView closingButton) {
    picture(name);
    click(closingButton);
}

void Player::pictureBeside(QAnyStringView objectName, QAnyStringView name) {
    then([this, objectName = objectName.toString(), name = name.toString()] {
        QWidget* window = beside(objectName);
        savePicture(window, name);
        window->close();
    });
}

QWidget* Player::beside(const QString& objectName) const {
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([&](const QWidget* window) {
        return !window->isVisible() || window->objectName() != objectName;
    });
    if (windows.isEmpty()) fail(QStringLiteral("no window ") + objectName);
    return std::ranges::min(windows, {}, &QWidget::windowTitle);
}

void Player::savePicture(QWidget* window, const QString& name) {
    note(QStringLiteral("leitor-de-tela.txt"), untold(*window) + withoutHelp(*window));
    const QString stem = QStringLiteral("%1/telas/%2-%3")
                             .arg(folder_)
                             .arg(++pictures_, 2, 10, QLatin1Char('0'))
                             .arg(name);
    const QScopedValueRollback still(still_, true);
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
    if (still_) return QTimer::singleShot(kStepPause, this, &Player::next);
    if (steps_.empty()) return QApplication::closeAllWindows();
    const std::function<void()> step = std::move(steps_.front());
    steps_.pop_front();
    // Queued first: the step may open a modal window and return only when that is closed.
    QTimer::singleShot(kStepPause, this, &Player::next);
    // A window has its focus only while it is the active one, as it is under an operator's hands.
    if (QWidget* window = present(); window && !window->isActiveWindow()) window->activateWindow();
    try {
        step();
    } catch (const std::exception& fault) {
        fail(QString::fromUtf8(fault.what()));
    }
}

void Player::fail(const QString& reason) const {
    if (QWidget* window = present()) window->grab().save(folder_ + QStringLiteral("/falha.png"));
    QFile told(folder_ + QStringLiteral("/falha.txt"));  // Windows may have no console
    if (told.open(QIODevice::WriteOnly)) told.write(reason.toUtf8());
    told.close();
    qCritical("typical month: %s", qUtf8Printable(reason));
    std::_Exit(1);
}

QWidget* Player::present() {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->isWindow()) return window;
    return nullptr;
}

WidgetDriver Player::window() {
    QWidget* window = present();
    if (!window) throw std::invalid_argument("no window");
    return WidgetDriver(*window);
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
