#pragma once

#include <QProxyStyle>

namespace winvrx::look {

/// The Fusion style with the outlines of fields, lists, check boxes and option buttons drawn in
/// the palette's border colour: Fusion darkens the window's colour for them, which a dark palette
/// hides. The rows of tables are higher than their letters, whose accents they would cut. Message
/// boxes bear icons of the program's own set, which are sharp in every size.
class Style final : public QProxyStyle {
    Q_OBJECT

  public:
    Style();

    using QProxyStyle::polish;
    /// Gives a scroll bar a name for screen readers, and lays out the rows that a reader asked for
    /// before their view had this style: without its padding they would lie on each other.
    void polish(QWidget* widget) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option,
                                         const QSize& contents,
                                         const QWidget* widget) const override;
    /// The buttons of message boxes bear words alone.
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option = nullptr,
                                const QWidget* widget = nullptr,
                                QStyleHintReturn* more = nullptr) const override;
    [[nodiscard]] QIcon standardIcon(StandardPixmap icon, const QStyleOption* option = nullptr,
                                     const QWidget* widget = nullptr) const override;
};

}  // namespace winvrx::look
