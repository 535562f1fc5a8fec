#pragma once

#include <QWidget>

class QButtonGroup;
class QGridLayout;

namespace winvrx {

/// Options of which one holds, under a heading. The heading's mnemonic leads to the chosen option,
/// the arrow keys move the choice.
class OptionGroup : public QWidget {
    Q_OBJECT

  public:
    /// `caption` may hold an "&". Options fill columns of `rows` from the top down.
    OptionGroup(const QString& caption, const QString& objectName, int rows,
                QWidget* parent = nullptr);

    /// The option's object name is the group's, a dot and `name`.
    void addOption(int id, const QString& text, const QString& name);

    /// -1 while none is chosen.
    [[nodiscard]] int chosen() const;
    /// An unknown id leaves none chosen.
    void choose(int id);

  signals:
    /// By the operator, not by choose().
    void picked(int id);

  private:
    QString caption_;
    int rows_;
    QGridLayout* grid_;
    QButtonGroup* options_;
};

}  // namespace winvrx
