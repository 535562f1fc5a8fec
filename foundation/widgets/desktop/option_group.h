#pragma once

#include <QString>
#include <QWidget>

#include <utility>
#include <vector>

class QButtonGroup;
class QGridLayout;

namespace winvrx {

/// What can be chosen in a group: an enumerator or a number, its text, and the object name behind
/// the group's and a dot.
struct Option {
    template <typename Id>
    Option(Id chosenAs, QString shown, const char* called)
        : id(static_cast<int>(chosenAs)), text(std::move(shown)), name(QLatin1String(called)) {}

    int id;
    QString text;
    QString name;
};

/// Options of which one holds, under a heading. The heading's mnemonic leads to the chosen option,
/// the arrow keys move the choice.
class OptionGroup : public QWidget {
    Q_OBJECT

  public:
    /// `caption` may hold an "&". Options fill columns of `rows` from the top down.
    OptionGroup(const QString& caption, const QString& objectName, int rows,
                QWidget* parent = nullptr);
    OptionGroup(const QString& caption, const QString& objectName, int rows,
                const std::vector<Option>& options, QWidget* parent);

    /// The option's object name is the group's, a dot and `name`.
    void addOption(int id, const QString& text, const QString& name);

    /// -1 while none is chosen.
    [[nodiscard]] int chosen() const;
    template <typename Id>
    [[nodiscard]] Id chosenAs() const {
        return static_cast<Id>(chosen());
    }
    /// An unknown id leaves none chosen.
    void choose(int id);
    template <typename Id>
    void choose(Id id) {
        choose(static_cast<int>(id));
    }

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
