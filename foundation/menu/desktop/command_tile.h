#pragma once

#include <QAbstractButton>

class QLabel;

namespace winvrx {

/// A command of the main window: icon, title and one quiet line that says the state.
class CommandTile : public QAbstractButton {
    Q_OBJECT

  public:
    CommandTile(const QString& objectName, const QString& icon, const QString& title,
                const QString& key, QWidget* parent = nullptr);

    void setStateLine(const QString& text);
    /// Accents the tile of the next sensible step.
    void setNext(bool next);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintTexts(QPainter& painter, const QRect& area) const;

    QString key_;
    QString stateLine_;
    bool next_ = false;
};

}  // namespace winvrx
