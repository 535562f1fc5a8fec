#include "foundation/widgets/desktop/wrapped_check_box.h"

#include "foundation/widgets/desktop/look.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>

namespace winvrx {

WrappedCheckBox::WrappedCheckBox(const QString& objectName, QWidget* parent)
    : QWidget(parent), box_(new QCheckBox(this)), caption_(new QLabel(this)) {
    box_->setObjectName(objectName);
    caption_->setWordWrap(true);
    caption_->setTextFormat(Qt::PlainText);
    caption_->setBuddy(box_);
    auto* row = new QHBoxLayout(this);
    look::layOutPart(*row);
    row->addWidget(box_, 0, Qt::AlignTop);
    row->addWidget(caption_, 1);
}

void WrappedCheckBox::setCaption(const QString& caption) {
    caption_->setText(caption);
    box_->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
}

void WrappedCheckBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) box_->toggle();
}

}  // namespace winvrx
