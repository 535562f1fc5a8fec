#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;

namespace winvrx {

/// A check box whose caption may be long and change: it breaks into lines, and a click on it
/// counts.
class WrappedCheckBox : public QWidget {
    Q_OBJECT

  public:
    explicit WrappedCheckBox(const QString& objectName, QWidget* parent = nullptr);

    void setCaption(const QString& caption);
    [[nodiscard]] QCheckBox* box() const { return box_; }

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QCheckBox* box_;
    QLabel* caption_;
};

}  // namespace winvrx
