#include "foundation/desk/desktop/message_box_operator.h"

#include "foundation/values/desktop/qt_text.h"

#include <QApplication>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>

#include <utility>

namespace winvrx {

namespace {

QMessageBox::Icon iconOf(Icon icon) {
    switch (icon) {
        case Icon::None:
            return QMessageBox::NoIcon;
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::Question:
            return QMessageBox::Question;
        case Icon::Exclamation:
            return QMessageBox::Warning;
        case Icon::Critical:
            return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons buttonsOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::Ok:
            return QMessageBox::Ok;
        case Buttons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButton buttonOf(Answer answer) {
    switch (answer) {
        case Answer::Ok:
            return QMessageBox::Ok;
        case Answer::Cancel:
            return QMessageBox::Cancel;
        case Answer::Yes:
            return QMessageBox::Yes;
        case Answer::No:
            return QMessageBox::No;
    }
    return QMessageBox::Ok;
}

Answer answerOf(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            return Answer::Ok;
    }
}

/// Gives "OK" and "Cancelar" a letter each, as "Sim" and "Não" have theirs: a box is answered by
/// one key whichever answer is wanted.
void addLetters(const QMessageBox& box) {
    for (const auto& [button, text] : {std::pair(QMessageBox::Ok, QStringLiteral("&OK")),
                                       std::pair(QMessageBox::Cancel, QStringLiteral("&Cancelar")),
                                       std::pair(QMessageBox::Yes, QStringLiteral("&Sim")),
                                       std::pair(QMessageBox::No, QStringLiteral("&Não"))})
        if (box.button(button)) box.button(button)->setText(text);
}

/// The window that the box belongs to. A progress dialog steps back until the next step.
QWidget* windowBelow() {
    auto* progress = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
    if (!progress) return QApplication::activeWindow();
    progress->hide();
    return progress->parentWidget();
}

}  // namespace

Answer MessageBoxOperator::ask(const Message& message) {
    QMessageBox box(windowBelow());
    box.setObjectName(QStringLiteral("messageBox"));
    box.setWindowTitle(toQt(message.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(toQt(message.text));
    box.setInformativeText(toQt(message.detail));
    box.setIcon(iconOf(message.icon));
    box.setStandardButtons(buttonsOf(message.buttons));
    addLetters(box);
    box.setDefaultButton(buttonOf(enterAnswer(message)));
    box.setEscapeButton(buttonOf(harmlessAnswer(message)));
    return answerOf(box.exec());
}

}  // namespace winvrx
