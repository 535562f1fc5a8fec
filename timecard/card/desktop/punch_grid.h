#pragma once

#include "timecard/card/desktop/punch_model.h"

#include <QTableView>

namespace winvrx {

/// The table of a half-month. Typing replaces a cell, F2 changes it, Del empties those selected;
/// ENTER or TAB, as chosen, goes to the next time that the schedule expects, in this row or below,
/// and stays on a text that is none. Home goes to the first time of the row, End to its situation.
/// A digit typed beside the times goes into one, a letter into the situation. Blocks of cells are
/// exchanged with other programs through the clipboard. Rows share the height that there is.
class PunchGrid : public QTableView {
    Q_OBJECT

  public:
    explicit PunchGrid(PunchModel* model, QWidget* parent = nullptr);

    /// Qt::Key_Return or Qt::Key_Tab.
    void setNextCellKey(Qt::Key key);
    [[nodiscard]] Qt::Key nextCellKey() const { return nextCellKey_; }
    /// The cursor on the first time that is expected.
    void goToStart();
    /// Takes over what stands in an open editor and closes it.
    void commitEditor();
    /// The width at which every column can be read.
    [[nodiscard]] int comfortableWidth() const { return comfortableWidth_; }
    [[nodiscard]] PunchModel* punches() const { return punches_; }

  signals:
    /// The cursor would go past the last cell.
    void leftAtEnd();
    void cellChanged();
    /// What is to be said of the text that is being typed; empty when nothing.
    void said(const QString& text);
    /// Somebody tried to change a cell that takes no text now.
    void changeRefused();
    void undoRequested();
    void redoRequested();
    void pasteRequested(int day, winvrx::PunchCell cell, const QString& text);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    /// Typing never searches.
    void keyboardSearch(const QString&) override {}

  private:
    void layOutColumns();
    void fitRows();
    /// Carries out a key that stands for a command on the block; false when it is none.
    [[nodiscard]] bool takesCommand(const QKeyEvent* event);
    [[nodiscard]] bool mayChange() const;
    [[nodiscard]] QItemSelectionRange block() const;
    void clearBlock();
    void pasteHere();
    void goToNextCell();
    void goOnFromEditor(Qt::Key key);
    [[nodiscard]] bool movesInRow(const QKeyEvent* event);
    /// Puts the cursor where the text of the key belongs.
    void leadToCell(const QKeyEvent* event);
    [[nodiscard]] bool isNextCellKey(int key) const;

    PunchModel* punches_;
    Qt::Key nextCellKey_ = Qt::Key_Return;
    int comfortableWidth_ = 0;
};

}  // namespace winvrx
