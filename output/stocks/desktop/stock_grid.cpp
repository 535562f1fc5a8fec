#include "output/stocks/desktop/stock_grid.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "output/stocks/desktop/stock_option.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>

namespace winvrx {

StockGrid::StockGrid(const QString& objectName, const std::vector<const CardStock*>& stocks,
                     CardPictures& pictures, QWidget* parent)
    : QScrollArea(parent), stocks_(stocks), group_(new QButtonGroup(this)) {
    look::name(*this, objectName, QStringLiteral("Marcas de cartão"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    auto* tiles = new QWidget(this);
    grid_ = new QGridLayout(tiles);
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setSpacing(look::kGap);
    for (const CardStock* stock : stocks_) {
        auto* option = new StockOption(*stock, pictures, tiles);
        option->setObjectName(objectName + QLatin1Char('.') + toQt(stock->code));
        group_->addButton(option, static_cast<int>(options_.size()));
        options_.push_back(option);
    }
    setWidget(tiles);
    setFocusProxy(options_.front());
    connect(group_, &QButtonGroup::idClicked, this, [this](int id) {
        const auto at = static_cast<std::size_t>(id);
        setFocusProxy(options_[at]);
        ensureWidgetVisible(options_[at], 0, look::kGap);
        emit picked(stocks_[at]);
    });
}

void StockGrid::choose(const CardStock* stock) {
    const auto found = std::ranges::find(stocks_, stock);
    const bool known = found != stocks_.end();
    // An exclusive group does not let go of its last choice.
    group_->setExclusive(known);
    if (known) {
        StockOption* option = options_[static_cast<std::size_t>(found - stocks_.begin())];
        option->setChecked(true);
        setFocusProxy(option);
        ensureWidgetVisible(option, 0, look::kGap);
    } else if (QAbstractButton* former = group_->checkedButton()) {
        former->setChecked(false);
    }
    group_->setExclusive(true);
}

bool StockGrid::click(const QString& code) {
    const auto found = std::ranges::find_if(
        stocks_, [&](const CardStock* stock) { return toQt(stock->code) == code; });
    if (found == stocks_.end()) return false;
    StockOption* option = options_[static_cast<std::size_t>(found - stocks_.begin())];
    option->setFocus();
    option->click();
    return true;
}

void StockGrid::resizeEvent(QResizeEvent* event) {
    const bool low = event->size().height() < 2 * options_.front()->usualHeight() + look::kGap;
    for (StockOption* option : options_)
        option->setCompact(low);
    const int width = options_.front()->sizeHint().width() + grid_->spacing();
    const int room = event->size().width() + grid_->spacing();
    layOut(std::clamp(room / width, 1, static_cast<int>(options_.size())));
    QScrollArea::resizeEvent(event);
    grid_->activate();
    if (QAbstractButton* chosen = group_->checkedButton())
        ensureWidgetVisible(chosen, 0, look::kGap);
}

void StockGrid::layOut(int columns) {
    if (columns == columns_) return;
    for (int column = 0; column < columns_; ++column)
        grid_->setColumnStretch(column, 0);
    columns_ = columns;
    for (std::size_t at = 0; at < options_.size(); ++at) {
        const int place = static_cast<int>(at);
        grid_->addWidget(options_[at], place / columns_, place % columns_);
    }
    for (int column = 0; column < columns_; ++column)
        grid_->setColumnStretch(column, 1);
    grid_->setRowStretch(static_cast<int>(options_.size()), 1);
}

}  // namespace winvrx
