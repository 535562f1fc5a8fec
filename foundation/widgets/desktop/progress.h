#pragma once

#include <QElapsedTimer>
#include <QString>

#include <memory>

class QProgressDialog;
class QWidget;

namespace winvrx {

/// How far a long command is, with a Cancel button. Appears with a step that is done half a second
/// after the first one, or at once where there are many steps to do; never by itself in between,
/// since it would then stand over a question of the command, which could no longer be answered.
class Progress {
  public:
    struct Words {
        QString objectName;
        QString title;
        QString step;         ///< "Cartão %1 de %2"
        QString finishing{};  ///< "Gravando %1 cartões…", while what was prepared is written
    };

    /// `parent` outlives this object.
    Progress(Words words, QWidget* parent);
    ~Progress();

    /// False once the operator has cancelled.
    [[nodiscard]] bool show(int done, int total);
    /// The same, for who takes a function: std::ref(progress).
    [[nodiscard]] bool operator()(int done, int total) { return show(done, total); }

  private:
    void open(int total);

    Words words_;
    QWidget* parent_;
    QElapsedTimer sinceFirstStep_;
    std::unique_ptr<QProgressDialog> dialog_;
};

}  // namespace winvrx
