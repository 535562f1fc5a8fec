#pragma once

#include <QDialog>
#include <QKeySequence>
#include <QString>
#include <QStringList>

#include <functional>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QScrollArea;
class QToolButton;
class QVBoxLayout;

namespace winvrx {

class CommandBar;

/// The frame that every screen shares: title band with context chips, command bar, body, and a
/// state bar with the closing commands.
///
///     class EmpresaWindow : public ScreenWindow { … };
///     EmpresaWindow::EmpresaWindow(…) : ScreenWindow("empresa", tr("Empresas"), parent) {
///         setBody(buildBody());
///         auto* include = addCommand("add", "Incluir", Qt::Key_Insert, "empresa.include");
///         connect(include, &QToolButton::clicked, this, &EmpresaWindow::include);
///         addClosingButton("&Sair", "empresa.close");
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
    /// A button with icon, text and its key in the command bar. The key works in the whole window,
    /// or while the focus is `within` a part of it.
    QToolButton* addCommand(const QString& icon, const QString& text, const QKeySequence& key,
                            const QString& objectName, QWidget* within = nullptr);
    /// What does not fit the screen can be scrolled.
    void setBody(QWidget* body);
    void setState(const QString& text);
    /// At the right of the state bar, in order of adding.
    QPushButton* addClosingButton(const QString& text, const QString& objectName);

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
