#pragma once

#include "output/stocks/card_stock.h"
#include "report/desktop/layout.h"

#include <QPixmap>
#include <QString>

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace winvrx {

class Log;

/// Pictures of the pre-printed cards, drawn from the very layouts that print them. A picture is
/// drawn once and kept until its layout file changes, beyond the life of this object.
///
/// A layout that is missing or damaged has no picture; its fault is logged once.
class CardPictures {
  public:
    /// Where layouts are searched, first to last.
    using Folders = std::function<std::vector<std::filesystem::path>()>;

    /// How a picture is drawn.
    struct Scale {
        double pixelsPerMillimetre = 1;  ///< device-independent pixels
        double pixelRatio = 1;           ///< of the device
    };

    CardPictures(Folders folders, Log& log);

    /// The first side of the card alone.
    [[nodiscard]] QPixmap card(const CardStock& stock, const Scale& scale);
    /// The sheet with the card where this tray position has it.
    [[nodiscard]] QPixmap sheet(const CardStock& stock, TrayPosition tray, const Scale& scale);

    /// What the layout's author says of the card: its size and kind.
    [[nodiscard]] QString description(const CardStock& stock);
    /// One sentence for the operator on the first of the stock's layouts that is not sound; empty
    /// where all are.
    [[nodiscard]] QString fault(const CardStock& stock);

  private:
    struct Loaded {
        std::optional<Layout> layout;
        QString fault;
    };

    [[nodiscard]] const Loaded& load(const std::string& name);
    [[nodiscard]] QPixmap picture(const std::string& name, bool wholeSheet, const Scale& scale);
    [[nodiscard]] QString keyOf(const std::string& name, bool wholeSheet, const Scale& scale) const;

    Folders folders_;
    Log& log_;
    std::map<std::string, Loaded> loaded_;
};

}  // namespace winvrx
