#pragma once

#include "output/stocks/cartao_pontos.h"

#include <QWidget>

class QAbstractButton;
class QComboBox;
class QLineEdit;

namespace winvrx {

/// Arrows that move the print, the boxes with the two offsets, and the line offset.
class AlignmentPad : public QWidget {
    Q_OBJECT

  public:
    explicit AlignmentPad(QWidget* parent = nullptr);

    void showOffsets(const Offsets& offsets);
    void showLineOffset(const QString& text);
    /// Tells of a line offset that is typed and not yet told.
    void finishTyping();

  signals:
    void moveRequested(Direction direction);
    /// Chosen from the drop-down or typed.
    void lineOffsetTyped(const QString& text);

  private:
    /// A heading, and under it two arrows with the offset's box between them.
    [[nodiscard]] QWidget* buildAxis(const QString& heading, QLineEdit*& box, const char* boxName,
                                     QAbstractButton* back, QAbstractButton* forth);
    [[nodiscard]] QAbstractButton* arrow(const QString& text, const char* icon,
                                         const QKeySequence& key, const char* name,
                                         Direction direction);
    [[nodiscard]] QWidget* buildLineOffset();

    QLineEdit* horizontal_ = nullptr;
    QLineEdit* vertical_ = nullptr;
    QComboBox* lines_ = nullptr;
};

}  // namespace winvrx
