#include "foundation/menu/desktop/company_list.h"

#include "foundation/widgets/desktop/look.h"

#include <QPainter>
#include <QStyledItemDelegate>

namespace winvrx {

namespace {

constexpr qreal kCorner = 4;

class MarkedRow final : public QStyledItemDelegate {
  public:
    explicit MarkedRow(QListWidget& list) : QStyledItemDelegate(&list), list_(list) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        if (index != list_.currentIndex()) return;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(look::color(look::Tint::Accent, option.palette), 2));
        painter->drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), kCorner, kCorner);
        painter->restore();
    }

  private:
    QListWidget& list_;
};

}  // namespace

CompanyList::CompanyList(QWidget* parent) : QListWidget(parent) {
    setItemDelegate(new MarkedRow(*this));
    setFrameShape(QFrame::NoFrame);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
}

}  // namespace winvrx
