#pragma once

#include "foundation/widgets/desktop/field_box.h"

class QPlainTextEdit;

namespace winvrx {

/// A longer text of one record column: wrapped over several lines on the screen, without line
/// breaks of its own. Enter leaves it, as in every other field.
class NotesField : public FieldBox {
    Q_OBJECT

  public:
    NotesField(const QString& caption, const QString& objectName, std::size_t width,
               QWidget* parent);

    void setText(const QString& text);
    [[nodiscard]] QString text() const;
    [[nodiscard]] QPlainTextEdit* edit() const { return edit_; }

  signals:
    /// By the operator, not by setText.
    void edited();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    NotesField(QPlainTextEdit* edit, const QString& caption, std::size_t width, QWidget* parent);
    void react();

    QPlainTextEdit* edit_;
    std::size_t width_;
};

}  // namespace winvrx
