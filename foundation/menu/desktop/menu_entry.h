#pragma once

#include "foundation/menu/menu.h"

#include <QKeySequence>
#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace winvrx {

/// One command of the main window, as app/ describes it. Without `open` the screen does not exist
/// yet and the tile is disabled.
struct MenuEntry {
    MenuCommand command;
    QString group;
    QString objectName;
    QString icon;
    QString title;  ///< with its mnemonic
    QKeySequence key;
    std::function<void(QWidget* parent)> open;
    std::function<QString()> state;  ///< the quiet line under the title
};

/// The command that the operator will most likely need next.
using NextStep = std::function<std::optional<MenuCommand>()>;

}  // namespace winvrx
