#pragma once

#include "timecard/desktop/punch_model.h"

#include <QTableView>

namespace winvrx {

/// The table of a half-month. Typing replaces a cell, F2 changes it, Del empties it; ENTER or TAB,
/// as chosen, goes to the next cell and from the last cell of a row to the next row.
class PunchGrid : public QTableView {
    Q_OBJECT

  public:
    PunchGrid(PunchModel* model, const QString& objectName, QWidget* parent = nullptr);

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

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    void layOutColumns();
    void goToNextCell();
    [[nodiscard]] bool isNextCellKey(int key) const;

    PunchModel* punches_;
    Qt::Key nextCellKey_ = Qt::Key_Return;
    int comfortableWidth_ = 0;
};

}  // namespace winvrx
