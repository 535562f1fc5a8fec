#pragma once

#include <QListWidget>

namespace winvrx {

/// A list in which the arrows and the search move a mark, drawn as a frame, while the highlight
/// stays with what is in use until Enter or a click chooses another.
class CompanyList : public QListWidget {
    Q_OBJECT

  public:
    explicit CompanyList(QWidget* parent);

  protected:
    [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(
        const QModelIndex&, const QEvent*) const override {
        return QItemSelectionModel::NoUpdate;
    }
};

}  // namespace winvrx
