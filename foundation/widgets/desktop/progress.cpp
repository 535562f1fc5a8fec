#include "foundation/widgets/desktop/progress.h"

#include <QCoreApplication>
#include <QProgressDialog>

#include <utility>

namespace winvrx {

Progress::Progress(Words words, QWidget* parent) : words_(std::move(words)), parent_(parent) {}

Progress::~Progress() = default;

bool Progress::show(int done, int total) {
    constexpr int kPatience = 500;  // milliseconds without progress shown
    constexpr int kMany = 100;      // steps that take longer than that for certain
    if (!sinceFirstStep_.isValid()) sinceFirstStep_.start();
    if (!dialog_ && total <= kMany && sinceFirstStep_.elapsed() < kPatience) return true;
    if (!dialog_) open(total);
    const bool finishing = done >= total && !words_.finishing.isEmpty();
    dialog_->setLabelText(finishing ? words_.finishing.arg(total)
                                    : words_.step.arg(done).arg(total));
    if (dialog_->isHidden()) dialog_->show();
    if (dialog_->value() != done)
        dialog_->setValue(done);
    else
        QCoreApplication::processEvents();  // the dialog itself looks only at other values
    return !dialog_->wasCanceled();
}

void Progress::open(int total) {
    dialog_ =
        std::make_unique<QProgressDialog>(QString(), QStringLiteral("Cancelar"), 0, total, parent_);
    dialog_->setObjectName(words_.objectName);
    dialog_->setWindowTitle(words_.title);
    dialog_->setWindowModality(Qt::WindowModal);
    dialog_->setMinimumDuration(0);
    dialog_->setAutoReset(words_.finishing.isEmpty());
}

}  // namespace winvrx
