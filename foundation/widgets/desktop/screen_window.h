#pragma once

#include "foundation/widgets/desktop/look.h"

#include <QDialog>
#include <QKeySequence>
#include <QString>
#include <QStringList>

#include <functional>
#include <initializer_list>

class QAbstractButton;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QScrollArea;
class QToolButton;
class QVBoxLayout;

namespace winvrx {

class CommandBar;

/// A command of a screen: what its button shows, the key that gives it and what it does.
struct ScreenCommand {
    const char* icon;  ///< of the program's set; "" shows none
    QString text;
    QKeySequence key;  ///< empty where it has none
    const char* name;  ///< the button's object name
    std::function<void()> run;
    QWidget* within = nullptr;  ///< its key works only while the focus is in this part
};

/// A part of a window's body, and its share of the room that is left over.
struct BodyPart {
    QWidget* widget;
    int share = 0;
};

/// The frame that every screen shares: title band with context chips, command bar, body, and a
/// state bar with the closing commands.
///
///     class EmpresaWindow : public ScreenWindow { … };
///     EmpresaWindow::EmpresaWindow(…) : ScreenWindow("empresa", tr("Empresas"), parent) {
///         setBody({{buildList(), 1}, {buildForm(), 2}});
///         addCommand({"add", "Incluir", Qt::Key_Insert, "empresa.include", [this] { … }});
///         addLeavingButton("empresa.close");
///     }
///
/// Keys: F1 opens the help page; Esc closes through `mayClose`; Enter in a field moves to the next
/// one, and in the last field (property "lastField") presses the default button.
class ScreenWindow : public QDialog {
    Q_OBJECT

  public:
    ScreenWindow(const QString& objectName, const QString& title, QWidget* parent);

    /// What F1 does in every window.
    static void setHelp(std::function<void()> open);

  protected:
    void setSubtitle(const QString& text);
    /// Quiet context at the right of the title: company, work month, shift.
    void setChips(const QStringList& chips);
    /// A button with icon, text and key in the command bar.
    QToolButton* addCommand(const ScreenCommand& command);
    /// PAGE UP and PAGE DOWN go one back and one on.
    void addPageKeys(std::function<void(int by)> step);
    /// What does not fit the screen can be scrolled.
    void setBody(QWidget* body);
    /// The parts side by side, from the left on.
    void setBody(std::initializer_list<BodyPart> parts, int gap = look::kGroupGap);
    /// Two parts whose border can be moved.
    void setSplitBody(const BodyPart& left, const BodyPart& right);
    void setState(const QString& text);
    /// As if the field in hand were left: what was typed takes its full form.
    void finishTyping();
    /// A button within the body; its key works while it is in sight.
    [[nodiscard]] QPushButton* newButton(const ScreenCommand& command, QWidget* parent);
    /// At the right of the state bar, in order of adding.
    QPushButton* addClosingButton(const ScreenCommand& command);
    /// The one that ENTER presses too.
    QPushButton* addDefaultButton(const ScreenCommand& command);
    /// Leaves the window as Esc does.
    QPushButton* addLeavingButton(const char* name, const QString& text = QStringLiteral("&Sair"));

    /// Asked before the window closes; a screen with typed but unrecorded text asks the operator.
    [[nodiscard]] virtual bool mayClose() { return true; }

    void reject() override;
    /// Opens as large as the body needs, but no larger than the screen.
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void buildTitleBand(const QString& title);
    void buildCommandBar();
    void buildStateBar();
    /// The button does what the command says, and its key presses it.
    void join(QAbstractButton& button, const ScreenCommand& command, QWidget* keyOwner);
    [[nodiscard]] bool moveOnFromField();

    QVBoxLayout* frame_;
    QLabel* subtitle_;
    QHBoxLayout* chips_;
    CommandBar* commands_;
    QScrollArea* body_ = nullptr;
    QLabel* state_;
    QHBoxLayout* closing_;
};

}  // namespace winvrx
