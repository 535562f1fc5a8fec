#pragma once

#include "foundation/desk/desktop/menu_entry.h"

#include <QWidget>

#include <cstddef>
#include <vector>

class QGridLayout;
class QVBoxLayout;

namespace winvrx {

class CommandTile;

/// The commands of the main window as tiles, by subject, as many in a row as have room for their
/// titles.
class CommandBoard : public QWidget {
    Q_OBJECT

  public:
    CommandBoard(const MenuEntries& entries, QWidget* parent);

    /// In the order of the entries.
    [[nodiscard]] const std::vector<CommandTile*>& tiles() const { return tiles_; }

  signals:
    void chosen(std::size_t entry);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    struct Group {
        QGridLayout* grid;
        std::vector<CommandTile*> tiles;
    };

    void addGroup(QVBoxLayout& column, const QString& title, const MenuEntries& entries);
    [[nodiscard]] CommandTile* makeTile(const MenuEntry& entry, std::size_t place);
    void layOut(int inRow);

    std::vector<Group> groups_;
    std::vector<CommandTile*> tiles_;
    int inRow_ = 0;
};

}  // namespace winvrx
