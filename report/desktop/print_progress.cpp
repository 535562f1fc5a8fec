#include "report/desktop/print_progress.h"

#include <QProgressDialog>

#include <utility>

namespace winvrx {

namespace {

constexpr int kPatience = 500;  // milliseconds without progress shown

}  // namespace

PrintProgress::PrintProgress(QString title, QString name, QWidget* parent)
    : title_(std::move(title)), name_(std::move(name)), parent_(parent) {
    sinceStart_.start();
}

PrintProgress::~PrintProgress() = default;

bool PrintProgress::show(int done, int total) {
    if (!dialog_ && sinceStart_.elapsed() < kPatience) return true;
    if (!dialog_) open(total);
    dialog_->setLabelText(QStringLiteral("Cartão %1 de %2").arg(done).arg(total));
    dialog_->setValue(done);
    return !dialog_->wasCanceled();
}

void PrintProgress::open(int total) {
    dialog_ =
        std::make_unique<QProgressDialog>(QString(), QStringLiteral("Cancelar"), 0, total, parent_);
    dialog_->setObjectName(name_);
    dialog_->setWindowTitle(title_);
    dialog_->setWindowModality(Qt::WindowModal);
    dialog_->setMinimumDuration(0);
}

}  // namespace winvrx
