#pragma once

#include <QElapsedTimer>
#include <QString>

#include <memory>

class QProgressDialog;
class QWidget;

namespace winvrx {

/// How many cards of a run are done, with a Cancel button. Appears with the first card that is done
/// after half a second. Until then there is no dialog, since it would show by itself in the end,
/// over a question of the run that could then no longer be answered.
class PrintProgress {
  public:
    /// `name` is the dialog's object name; `parent` outlives this object.
    PrintProgress(QString title, QString name, QWidget* parent);
    ~PrintProgress();

    /// False once the operator has cancelled.
    [[nodiscard]] bool show(int done, int total);

  private:
    void open(int total);

    QString title_;
    QString name_;
    QWidget* parent_;
    QElapsedTimer sinceStart_;
    std::unique_ptr<QProgressDialog> dialog_;
};

}  // namespace winvrx
