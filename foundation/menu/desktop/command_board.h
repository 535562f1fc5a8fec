#pragma once

#include "foundation/desk/desktop/menu_entry.h"

#include <QScrollArea>

#include <cstddef>
#include <vector>

class QGridLayout;
class QLabel;
class QVBoxLayout;

namespace winvrx {

class CommandTile;

/// The commands of the main window as tiles, by subject, as many in a row as have room for their
/// titles. They stand closer where the window is too low for them, and scroll only on a screen that
/// cannot show them all.
class CommandBoard : public QScrollArea {
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
        QLabel* heading;
        QGridLayout* grid;
        std::vector<CommandTile*> tiles;
    };

    void addGroup(const QString& title, const MenuEntries& entries);
    [[nodiscard]] CommandTile* makeTile(const MenuEntry& entry, std::size_t place);
    [[nodiscard]] int widestTile() const;
    /// As many in a row as have room.
    void layOut(std::size_t spacing);
    void place(int inRow);

    QWidget* content_;
    QVBoxLayout* column_;
    std::vector<Group> groups_;
    std::vector<CommandTile*> tiles_;
    int inRow_ = 0;
};

}  // namespace winvrx
