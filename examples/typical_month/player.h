#pragma once

#include "foundation/desk/operator.h"
#include "tests/widget_driver/widget_driver.h"

#include <QAnyStringView>
#include <QObject>
#include <QString>

#include <deque>
#include <functional>

namespace winvrx {

/// Plays a script of steps on the windows of a running program, as an operator would: a
/// WidgetDriver clicks and types in the window in front, and message boxes are answered. A step
/// that does not find what it needs ends the play with a message.
///
/// Steps run from the event loop one after the other, so that a step may open a modal window and
/// the next ones play in it.
class Player : public QObject {
    Q_OBJECT

  public:
    /// Pictures go to `folder`/telas, the record of message boxes to `folder`/conversa.txt,
    /// and what a screen reader could not tell of the windows to `folder`/leitor-de-tela.txt.
    explicit Player(QString folder);

    /// Presses a key where the focus is.
    void press(QKeyCombination key);
    /// Picks the file in the file dialog that is open.
    void chooseFile(const QString& path);
    /// Replaces the text of a field by key presses, which must leave just that.
    void type(QAnyStringView name, QAnyStringView text);

    // What a WidgetDriver does.
    void click(QAnyStringView name) { drive(&WidgetDriver::click, name.toString()); }
    void trigger(QAnyStringView name) { drive(&WidgetDriver::trigger, name.toString()); }
    void typeCell(QAnyStringView name, int row, int column, QAnyStringView text) {
        drive(&WidgetDriver::typeCell, name.toString(), row, column, text.toString());
    }
    void choose(QAnyStringView name, QAnyStringView text) {
        drive(&WidgetDriver::choose, name.toString(), text.toString());
    }
    void tick(QAnyStringView name, bool on) { drive(&WidgetDriver::tick, name.toString(), on); }
    void openTab(QAnyStringView name, QAnyStringView title) {
        drive(&WidgetDriver::openTab, name.toString(), title.toString());
    }

    /// Answers the message box that is open; its text must begin with `text`.
    void answer(QAnyStringView text, Answer answer);
    /// Presses a key or clicks a button, and answers "Sim".
    void confirm(QKeyCombination key, QAnyStringView question);
    void confirm(QAnyStringView button, QAnyStringView question);
    /// Saves the present window in the light and in the dark palette.
    void picture(QAnyStringView name);
    /// The same, and leaves the window: by ESC, or by a button of it.
    void look(QAnyStringView name);
    void look(QAnyStringView name, QAnyStringView closingButton);
    /// The same of a window that lies beside it; closes it.
    void pictureBeside(QAnyStringView objectName, QAnyStringView name);
    /// Asks again and again until the answer is yes: the next steps begin then.
    void waitUntil(std::function<bool()> ready);
    /// Anything else.
    void then(std::function<void()> step);

    [[nodiscard]] const QString& folder() const { return folder_; }

    /// Plays all steps; 0 when every one succeeded.
    [[nodiscard]] int play();

  private:
    template <typename... Taken, typename... Given>
    void drive(void (WidgetDriver::*act)(Taken...) const, Given... given) {
        then([=] { (window().*act)(given...); });
    }
    void next();
    void waitNow(const std::function<bool()>& ready);
    [[noreturn]] void fail(const QString& reason) const;
    [[nodiscard]] static QWidget* present();
    /// Of the present window. Throws when there is none.
    [[nodiscard]] static WidgetDriver window();
    void pressNow(QKeyCombination key);
    void answerNow(const QString& text, Answer answer, int tries);
    void savePicture(QWidget* window, const QString& name);
    [[nodiscard]] QWidget* beside(const QString& objectName) const;
    void record(const QString& title, const QString& text, const QString& icon,
                const QString& answer) const;
    /// Adds to a file of the folder.
    void note(const QString& name, const QString& text) const;

    QString folder_;
    std::deque<std::function<void()>> steps_;
    int pictures_ = 0;
    bool still_ = false;  ///< no next step now: a picture is taken, or a key is on its way
};

}  // namespace winvrx
