#pragma once

#include "timecard/card/card_sheet.h"

#include <QStyledItemDelegate>

class QLineEdit;

namespace winvrx {

/// The editors of the punch grid: a field for each cell, with a list under that of the situation.
/// While somebody types it says what cannot be right and what a column has no room for.
class PunchDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

  signals:
    /// What is to be said of the text in the open editor; empty when nothing.
    void said(const QString& text) const;
    /// ENTER, as Qt::Key_Return, or TAB took over and closed the open editor.
    void finished(Qt::Key key);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] QLineEdit* buildField(QWidget* parent) const;
    [[nodiscard]] QWidget* buildSituations(QWidget* parent) const;
    void watch(QLineEdit& edit, PunchCell cell, const QString& name) const;
    void take(QLineEdit& edit, PunchCell cell) const;
    void finish(QWidget* editor, Qt::Key key);
};

}  // namespace winvrx
