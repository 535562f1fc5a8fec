#pragma once

#include "foundation/values/input_checks.h"

#include <QWidget>

#include <string>
#include <string_view>
#include <vector>

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace winvrx {

/// One value on a form: its label above, the line, list or notes that take it, and a line for hints
/// below. The label's mnemonic leads to the field.
///
/// Says what it finds in what the operator types, and brings it into its full form when the field
/// is left; what was only shown is not judged. Takes no more characters than the column holds, and
/// says when it is full and what was cut.
class Field : public QWidget {
    Q_OBJECT

  public:
    struct Texts {
        QString caption;  ///< may hold an "&"
        QString objectName;
        std::size_t width;  ///< of the column
        FieldKind kind = {};
        Date today = {};  ///< for a kind that asks for it
    };

    Field(const Texts& texts, QWidget* parent);
    /// Frames an input widget of another making, whose accessible name becomes the caption.
    Field(const QString& caption, QWidget* input, QWidget* parent);

    /// Shows a record's text.
    void setStored(const std::string& text);
    /// The text for the record, trimmed. While the operator has changed nothing, or has come back
    /// to what was shown, it is the one given to setStored, whatever the field can show of it.
    [[nodiscard]] std::string stored() const;
    [[nodiscard]] bool isChanged() const { return shownNow() != shown_; }
    /// Shows other words in the place of the record's text.
    void showInstead(const QString& text);

    [[nodiscard]] QString text() const;
    /// What the operator types into: a QLineEdit, QComboBox or QPlainTextEdit.
    [[nodiscard]] QWidget* input() const { return input_; }
    void setPlaceholder(const QString& text);
    /// Gives the label and the input to cells of `grid` side by side, with `suffix` behind them,
    /// and the hint to the row below. The field itself shows nothing then.
    void placeIn(QGridLayout& grid, int row, int column, const QString& suffix);
    /// Gives label, input and hint to the first three cells of a row of `grid`; a wide input takes
    /// the cell of the hint too. The field itself shows nothing then.
    void placeInRow(QGridLayout& grid, int row, bool wide = false);
    /// Shows or hides what the field gave to a grid.
    void setPlacedVisible(bool visible);
    /// Gives only the input away: what is around it names it and shows its hints.
    [[nodiscard]] QWidget* bareInput();
    void takeFocus();
    /// Shows what the system fills in, when `readOnly`: no frame, never in the keyboard's way.
    void setReadOnly(bool readOnly);
    [[nodiscard]] bool isReadOnly() const;

    /// A short sentence under the field, with a sign before it; an empty text clears it.
    void setWarning(const QString& text);
    /// What is found in the text beside other fields and records: said until the next edit where
    /// the field finds nothing itself.
    void setFinding(const QString& text);
    /// A quiet word under the field while nothing is found, as where its text comes from.
    void setNote(const QString& text);

  signals:
    /// By the operator, not by setStored.
    void edited();
    /// What was edited has its full form: the field was left, or a choice was made.
    void finished();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] QWidget* makeInput();
    void frame(const QString& caption);
    [[nodiscard]] QWidget* makeList();
    [[nodiscard]] QWidget* makeNotes();
    void connectLine();
    void shapeLine();
    void takeTyping();
    void punctuate();
    /// Takes back what goes beyond the column, and remembers what it says of that.
    template <typename Cut>
    void limit(Cut&& cut);
    /// The text, or the place in the list.
    [[nodiscard]] QString shownNow() const;
    void put(const std::string& text);
    void showHint(Entry entry);
    [[nodiscard]] Hint ownHint(Entry entry) const;
    void complete();
    void limitNotes();

    FieldKind kind_;
    Date today_;
    int width_ = 0;
    QLineEdit* line_ = nullptr;
    QComboBox* list_ = nullptr;
    QPlainTextEdit* notes_ = nullptr;
    QWidget* input_;
    QLabel* label_ = nullptr;
    QLabel* hint_ = nullptr;
    std::string stored_;
    QString shown_;
    QString typed_;    ///< before the key in hand
    QString finding_;  ///< of others
    QString note_;
    QString cut_;  ///< what is said of what the last key or paste had too much
};

/// The texts of a list as they are stored, for FieldKind::choices.
template <const auto& List>
std::vector<Choice> choicesIn() {
    std::vector<Choice> choices;
    for (const std::string_view text : List)
        choices.push_back({std::string(text), std::string(text)});
    return choices;
}

/// The caption with its Alt letter marked: the first `letter` in it, whatever its case. A caption
/// without the letter comes back as it is.
[[nodiscard]] QString withMnemonic(std::string_view caption, char letter);

}  // namespace winvrx
