#pragma once

#include "timecard/punches/desktop/punch_model.h"

#include <QTableView>

namespace winvrx {

/// The table of a half-month. Typing replaces a cell, F2 changes it, Del empties those selected;
/// ENTER or TAB, as chosen, goes to the next cell and from the last cell of a row to the next row.
/// Blocks of cells are exchanged with other programs through the clipboard. Rows share the height
/// that there is.
class PunchGrid : public QTableView {
    Q_OBJECT

  public:
    explicit PunchGrid(PunchModel* model, QWidget* parent = nullptr);

    /// Qt::Key_Return or Qt::Key_Tab.
    void setNextCellKey(Qt::Key key);
    /// The cursor on the first time of the first day.
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
    [[nodiscard]] bool isNextCellKey(int key) const;

    PunchModel* punches_;
    Qt::Key nextCellKey_ = Qt::Key_Return;
    int comfortableWidth_ = 0;
};

}  // namespace winvrx
