#pragma once

#include <QLineEdit>

class QAbstractItemView;

namespace winvrx {

/// The search box over a list. Ctrl+F leads to it, and so does typing in the list; the arrow keys
/// and Page keys typed in it move in the list.
class SearchBox : public QLineEdit {
    Q_OBJECT

  public:
    SearchBox(const QString& objectName, const QString& placeholder, QWidget* parent = nullptr);

    /// The list that is searched. The caller filters it when textChanged is emitted.
    void serve(QAbstractItemView* list);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QAbstractItemView* list_ = nullptr;
};

}  // namespace winvrx
