#include "foundation/menu/desktop/command_board.h"

#include "foundation/menu/desktop/command_tile.h"
#include "foundation/widgets/desktop/look.h"

#include <QGridLayout>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace winvrx {

namespace {

constexpr int kMostInRow = 3;

}  // namespace

CommandBoard::CommandBoard(const MenuEntries& entries, QWidget* parent) : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, look::kGap, 0);
    column->setSpacing(look::kGap);
    tiles_.resize(entries.size());
    QStringList titles;
    for (const MenuEntry& entry : entries)
        if (!titles.contains(entry.group)) titles.append(entry.group);
    for (const QString& title : titles)
        addGroup(*column, title, entries);
    column->addStretch(1);
    layOut(kMostInRow);
}

void CommandBoard::addGroup(QVBoxLayout& column, const QString& title, const MenuEntries& entries) {
    if (column.count() > 0) column.addSpacing(look::kMargin);
    column.addWidget(look::heading(title, this));
    Group group{new QGridLayout, {}};
    group.grid->setSpacing(look::kGap);
    for (std::size_t place = 0; place < entries.size(); ++place)
        if (entries[place].group == title) {
            tiles_[place] = makeTile(entries[place], place);
            group.tiles.push_back(tiles_[place]);
        }
    column.addLayout(group.grid);
    groups_.push_back(std::move(group));
}

CommandTile* CommandBoard::makeTile(const MenuEntry& entry, std::size_t place) {
    auto* tile = new CommandTile(entry.objectName, entry.icon, entry.title,
                                 entry.key.toString(QKeySequence::NativeText), this);
    tile->setEnabled(static_cast<bool>(entry.open));
    connect(tile, &CommandTile::clicked, this, [this, place] { emit chosen(place); });
    if (entry.open && !entry.key.isEmpty()) {
        auto* shortcut = new QShortcut(entry.key, this);
        connect(shortcut, &QShortcut::activated, tile, &CommandTile::click);
    }
    return tile;
}

void CommandBoard::layOut(int inRow) {
    if (inRow == inRow_) return;
    inRow_ = inRow;
    for (const Group& group : groups_) {
        for (int column = 0; column < kMostInRow; ++column)
            group.grid->setColumnStretch(column, column < inRow ? 1 : 0);
        for (std::size_t place = 0; place < group.tiles.size(); ++place) {
            const int at = static_cast<int>(place);
            group.grid->addWidget(group.tiles[place], at / inRow, at % inRow);
        }
    }
}

void CommandBoard::resizeEvent(QResizeEvent* event) {
    int widest = 1;
    for (const CommandTile* tile : tiles_)
        widest = std::max(widest, tile->sizeHint().width());
    layOut(std::clamp(contentsRect().width() / (widest + look::kGap), 1, kMostInRow));
    QWidget::resizeEvent(event);
}

}  // namespace winvrx
