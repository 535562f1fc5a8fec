#include "foundation/menu/desktop/command_board.h"

#include "foundation/menu/desktop/command_tile.h"
#include "foundation/widgets/desktop/look.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

constexpr int kMostInRow = 3;

struct Spacing {
    TileSpacing tile;
    int gap;       ///< between tiles
    int groupGap;  ///< above a heading, beyond the gap
};

/// From the most comfortable on to the closest.
constexpr std::array kSpacings = {
    Spacing{{look::kMargin, 3 * look::kGap, look::kTileIcon}, look::kGap, look::kMargin},
    Spacing{{look::kGap, 2 * look::kGap, 24}, look::kGap, look::kGap},
    Spacing{{look::kGap, look::kGap + look::kSmallGap, 24}, look::kSmallGap, look::kGap},
    Spacing{{look::kGap, look::kSmallGap, 24}, look::kSmallGap / 2, look::kSmallGap},
};

}  // namespace

CommandBoard::CommandBoard(const MenuEntries& entries, QWidget* parent)
    : QScrollArea(parent), content_(new QWidget), column_(new QVBoxLayout(content_)) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    column_->setContentsMargins(0, 0, look::kGap, 0);
    tiles_.resize(entries.size());
    QStringList titles;
    for (const MenuEntry& entry : entries)
        if (!titles.contains(entry.group)) titles.append(entry.group);
    for (const QString& title : titles)
        addGroup(title, entries);
    column_->addStretch(1);
    setWidget(content_);
    layOut(kSpacings.size() - 1);
    setMinimumWidth(widestTile() + look::kGap + verticalScrollBar()->sizeHint().width());
    layOut(0);
}

void CommandBoard::addGroup(const QString& title, const MenuEntries& entries) {
    QLabel* heading = look::heading(title, content_);
    column_->addWidget(heading);
    Group group{heading, new QGridLayout, {}};
    for (std::size_t place = 0; place < entries.size(); ++place)
        if (entries[place].group == title) {
            tiles_[place] = makeTile(entries[place], place);
            group.tiles.push_back(tiles_[place]);
        }
    column_->addLayout(group.grid);
    groups_.push_back(std::move(group));
}

CommandTile* CommandBoard::makeTile(const MenuEntry& entry, std::size_t place) {
    auto* tile = new CommandTile(entry.tile, content_);
    tile->setEnabled(static_cast<bool>(entry.open));
    connect(tile, &CommandTile::clicked, this, [this, place] { emit chosen(place); });
    if (entry.open && !entry.tile.key.isEmpty()) {
        auto* shortcut = new QShortcut(entry.tile.key, this);
        connect(shortcut, &QShortcut::activated, tile, &CommandTile::click);
    }
    return tile;
}

int CommandBoard::widestTile() const {
    int widest = 1;
    for (const CommandTile* tile : tiles_)
        widest = std::max(widest, tile->sizeHint().width());
    return widest;
}

void CommandBoard::layOut(std::size_t spacing) {
    const Spacing& now = kSpacings.at(spacing);
    for (CommandTile* tile : tiles_)
        tile->setSpacing(now.tile);
    column_->setSpacing(now.gap);
    for (const Group& group : groups_) {
        group.grid->setSpacing(now.gap);
        const bool first = &group == &groups_.front();
        group.heading->setContentsMargins(0, first ? 0 : now.groupGap, 0, 0);
    }
    const int room = contentsRect().width() - column_->contentsMargins().right();
    place(std::clamp((room + now.gap) / (widestTile() + now.gap), 1, kMostInRow));
    column_->activate();
}

void CommandBoard::place(int inRow) {
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
    for (std::size_t spacing = 0; spacing < kSpacings.size(); ++spacing) {
        layOut(spacing);
        if (content_->minimumSizeHint().height() <= height()) break;
    }
    QScrollArea::resizeEvent(event);
}

}  // namespace winvrx
