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

/// One command of the main window, written in the room that owns its screen. Without `open` the
/// screen does not exist yet and the tile is disabled.
struct MenuEntry {
    QString group;
    QString objectName;
    QString icon;
    QString title;  ///< with its mnemonic
    QKeySequence key{};
    MenuNeeds needs = MenuNeeds::Nothing;
    std::function<void(QWidget* parent)> open{};
    /// The quiet line under the title. The progress is nullptr without a company, or when its files
    /// cannot be read.
    std::function<QString(const MonthProgress*)> state{};
    std::optional<MonthStep> step{};  ///< of a month, which this command does
};

using MenuEntries = std::vector<MenuEntry>;

}  // namespace winvrx
