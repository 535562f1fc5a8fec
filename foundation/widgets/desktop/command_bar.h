#pragma once

#include <QFrame>

#include <vector>

class QHBoxLayout;
class QToolButton;

namespace winvrx {

class CommandButton;

/// A row of commands, each with its key. Where they have no room some leave out their keys; the tip
/// of each says it.
class CommandBar : public QFrame {
  public:
    explicit CommandBar(QWidget* parent);

    /// The first one stands at the right, the others from the left on.
    QToolButton* add(const QString& icon, const QString& text, const QString& key);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void fit();

    QHBoxLayout* row_;
    std::vector<CommandButton*> buttons_;
};

}  // namespace winvrx
