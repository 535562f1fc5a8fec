#pragma once

#include "foundation/desk/operator.h"
#include "tests/widget_driver/widget_driver.h"

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
    void click(const QString& name);
    /// Gives a command of a menu.
    void trigger(const QString& name);
    /// Picks the file in the file dialog that is open.
    void chooseFile(const QString& path);
    /// Replaces the text of a field by key presses.
    void type(const QString& name, const QString& text);
    /// Types into a cell of a grid and ends with ENTER.
    void typeCell(const QString& name, int row, int column, const QString& text);
    /// Picks the entry of a list or combo box whose text contains `text`.
    void choose(const QString& name, const QString& text);
    /// Ticks or clears a check box or option button.
    void tick(const QString& name, bool on);
    /// Selects a tab by a word of its title.
    void openTab(const QString& name, const QString& title);
    /// Answers the message box that is open; its text must begin with `text`.
    void answer(const QString& text, Answer answer);
    /// Saves the present window in the light and in the dark palette.
    void picture(const QString& name);
    /// The same of a window that lies beside it; closes it.
    void pictureBeside(const QString& objectName, const QString& name);
    /// Asks again and again until the answer is yes: the next steps begin then.
    void waitUntil(std::function<bool()> ready);
    /// Anything else.
    void then(std::function<void()> step);

    [[nodiscard]] const QString& folder() const { return folder_; }

    /// Plays all steps; 0 when every one succeeded.
    [[nodiscard]] int play();

  private:
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
