#pragma once

#include "foundation/desk/menu_needs.h"
#include "foundation/desk/month_progress.h"

#include <QKeySequence>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

class QWidget;

namespace winvrx {

/// What shows a command in the main window, and the key that gives it.
struct MenuTile {
    const char* icon;  ///< of the program's set
    QString title;     ///< with its mnemonic
    const char* name;  ///< the tile's object name
    QKeySequence key{};
};

/// One command of the main window, written in the room that owns its screen. Without `open` the
/// screen does not exist yet and the tile is disabled.
struct MenuEntry {
    QString group;
    MenuTile tile;
    MenuNeeds needs = MenuNeeds::Nothing;
    std::function<void(QWidget* parent)> open{};
    /// The quiet line under the title. The progress is nullptr without a company, or when its files
    /// cannot be read.
    std::function<QString(const MonthProgress*)> state{};
    std::optional<MonthStep> step{};  ///< of a month, which this command does
};

using MenuEntries = std::vector<MenuEntry>;

}  // namespace winvrx
