#pragma once

#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;

namespace winvrx {

/// A field with its label above and a line for hints below. The label's mnemonic leads to the
/// field.
class FieldBox : public QWidget {
    Q_OBJECT

  public:
    /// `caption` may hold an "&". The field's accessible name becomes the caption.
    FieldBox(const QString& caption, QWidget* field, QWidget* parent = nullptr);

    /// A short sentence under the field, with a sign before it; an empty text clears it.
    void setWarning(const QString& text);
    void setInformation(const QString& text);

  private:
    QLabel* hint_;
};

/// Says what is wrong with a text, in a short sentence; empty when nothing is.
using TextCheck = std::function<QString(const QString&)>;

/// A one-line text that goes into a record column: takes no more characters than the column and
/// warns, without blocking, of what the record cannot hold and of what `check` finds.
class TextField : public FieldBox {
    Q_OBJECT

  public:
    TextField(const QString& caption, const QString& objectName, int width,
              TextCheck check = nullptr, QWidget* parent = nullptr);

    [[nodiscard]] QString text() const;
    void setText(const QString& text);
    [[nodiscard]] QLineEdit* edit() const { return edit_; }

  signals:
    /// By the operator, not by setText.
    void edited();

  private:
    TextField(QLineEdit* edit, const QString& caption, QWidget* parent);
    void showFinding();

    QLineEdit* edit_;
    TextCheck check_;
};

/// "Esta data não existe." and the like for a typed date; empty while it may still become one.
[[nodiscard]] QString dateFinding(const QString& text);

}  // namespace winvrx
