#pragma once

#include "foundation/desk/desktop/menu_entry.h"

#include <QAbstractButton>

namespace winvrx {

/// How close the tiles of the main window stand, and their texts in them.
struct TileSpacing {
    int margin;   ///< at both sides of the icon, and behind the texts
    int padding;  ///< above the texts and below them, together
    int icon;
};

/// A command of the main window: icon, title and one quiet line that says the state.
class CommandTile : public QAbstractButton {
    Q_OBJECT

  public:
    explicit CommandTile(const MenuTile& shown, QWidget* parent = nullptr);

    void setStateLine(const QString& text);
    void setSpacing(const TileSpacing& spacing);
    /// Accents the tile of the next sensible step.
    void setNext(bool next);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintTexts(QPainter& painter, const QRect& area) const;

    [[nodiscard]] int textLeft() const { return 2 * spacing_.margin + spacing_.icon; }

    TileSpacing spacing_{};
    QString key_;
    QString stateLine_;
    bool next_ = false;
};

}  // namespace winvrx
