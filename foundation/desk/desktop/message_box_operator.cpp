#include "foundation/desk/desktop/message_box_operator.h"

#include "foundation/values/desktop/qt_text.h"

#include <QApplication>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>

#include <algorithm>
#include <array>
#include <utility>

namespace winvrx {

namespace {

/// In the order of Icon.
constexpr std::array kIcons = {QMessageBox::NoIcon, QMessageBox::Information, QMessageBox::Question,
                               QMessageBox::Warning, QMessageBox::Critical};

/// In the order of Buttons.
constexpr std::array<QMessageBox::StandardButtons, 4> kButtons = {
    QMessageBox::Ok, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Yes | QMessageBox::No,
    QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel};

/// In the order of Answer.
constexpr std::array kAnswers = {QMessageBox::Ok, QMessageBox::Cancel, QMessageBox::Yes,
                                 QMessageBox::No};

template <typename Meanings, typename Value>
auto meaningOf(const Meanings& meanings, Value value) {
    return meanings.at(static_cast<std::size_t>(value));
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
    box.setIcon(meaningOf(kIcons, message.icon));
    box.setStandardButtons(meaningOf(kButtons, message.buttons));
    addLetters(box);
    box.setDefaultButton(meaningOf(kAnswers, enterAnswer(message)));
    box.setEscapeButton(meaningOf(kAnswers, harmlessAnswer(message)));
    return static_cast<Answer>(std::find(kAnswers.begin(), kAnswers.end(), box.exec()) -
                               kAnswers.begin());
}

}  // namespace winvrx
