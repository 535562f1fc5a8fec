#include "foundation/register/desktop/register_list.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/enter_key.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/search_box.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace winvrx {

namespace {

constexpr int kSearchedRole = Qt::UserRole;
constexpr int kUnderstoodRole = Qt::UserRole + 1;
constexpr int kStretched = 1;  ///< the column that takes the room left, a name
constexpr int kCellMargin = 2 * look::kGap;
constexpr int kWidestInLetters = 16;  ///< a column beside the name; the name needs the room more

}  // namespace

RegisterList::RegisterList(const QString& screen, const QString& title, const QString& searchHint,
                           const QStringList& headings, QWidget* parent)
    : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    look::layOutPart(*column);
    column->addWidget(look::heading(title, this));
    search_ = new SearchBox(screen + QStringLiteral(".search"), searchHint, this);
    column->addWidget(search_);
    pages_ = new QStackedWidget(this);
    column->addWidget(pages_, 1);
    buildTree(screen, title, headings);
    buildEmptyPage(screen);
    search_->serve(tree_);
    connect(search_, &QLineEdit::textChanged, this, &RegisterList::filter);
}

void RegisterList::buildTree(const QString& screen, const QString& title,
                             const QStringList& headings) {
    tree_ = look::table(screen + QStringLiteral(".list"), title, headings, pages_);
    tree_->header()->setSectionResizeMode(QHeaderView::Interactive);
    tree_->header()->setSectionResizeMode(kStretched, QHeaderView::Stretch);
    onEnter(*tree_, [this] { emit entered(); });
    connect(tree_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item) emit chosen(static_cast<std::size_t>(tree_->indexOfTopLevelItem(item)));
    });
    pages_->addWidget(tree_);
}

void RegisterList::buildEmptyPage(const QString& screen) {
    const auto [page, column] = look::part(pages_);
    column->addStretch();
    emptyText_ = look::paragraph(screen + QStringLiteral(".empty"), look::TextSize::Body, page);
    emptyText_->setAlignment(Qt::AlignCenter);
    column->addWidget(emptyText_);
    first_ = look::button(QString(), screen + QStringLiteral(".first"), page);
    first_->setIcon(look::icon(QStringLiteral("add")));
    connect(first_, &QPushButton::clicked, this, &RegisterList::firstRequested);
    column->addWidget(first_, 0, Qt::AlignCenter);
    column->addStretch();
    pages_->addWidget(page);
}

void RegisterList::setEmptyTexts(const QString& text, const QString& action) {
    whenEmpty_ = text;
    first_->setText(action);
    first_->setAccessibleName(action);
    first_->setEnabled(!action.isEmpty());
    filter();
}

void RegisterList::setRows(const std::vector<ListRow>& rows) {
    const QSignalBlocker quiet(tree_);
    tree_->clear();
    QFont apart = tree_->font();
    apart.setItalic(true);
    QList<QTreeWidgetItem*> items;
    items.reserve(static_cast<qsizetype>(rows.size()));
    for (const ListRow& row : rows) {
        auto* item = new QTreeWidgetItem;
        item->setData(0, kSearchedRole, toQt(row.searched));
        item->setData(0, kUnderstoodRole, row.understood);
        for (int cell = 0; cell < static_cast<int>(row.cells.size()); ++cell) {
            item->setText(cell, toQt(row.cells[static_cast<std::size_t>(cell)]));
            item->setToolTip(cell, item->text(cell));
            if (!row.understood) item->setFont(cell, apart);
        }
        items << item;
    }
    tree_->addTopLevelItems(items);
    fitColumns();
    filter();
}

void RegisterList::fitColumns() {
    const QFontMetrics metrics = tree_->fontMetrics();
    for (int column = 0; column < tree_->columnCount(); ++column) {
        if (column == kStretched) continue;
        QString longest = tree_->headerItem()->text(column);
        for (int row = 0; row < tree_->topLevelItemCount(); ++row)
            if (const QString text = tree_->topLevelItem(row)->text(column);
                text.size() > longest.size())
                longest = text;
        const int wanted = std::min(metrics.horizontalAdvance(longest),
                                    kWidestInLetters * metrics.averageCharWidth());
        tree_->setColumnWidth(
            column, std::max(tree_->header()->sectionSizeHint(column), wanted + kCellMargin));
    }
}

std::size_t RegisterList::count() const {
    return static_cast<std::size_t>(tree_->topLevelItemCount());
}

bool RegisterList::isUnderstood(std::size_t position) const {
    const QTreeWidgetItem* item = tree_->topLevelItem(static_cast<int>(position));
    return item && item->data(0, kUnderstoodRole).toBool();
}

void RegisterList::mark(std::optional<std::size_t> position) {
    const QSignalBlocker quiet(tree_);
    QTreeWidgetItem* item = position ? tree_->topLevelItem(static_cast<int>(*position)) : nullptr;
    if (!item) {
        tree_->setCurrentItem(nullptr);
        tree_->clearSelection();
    } else {
        if (item->isHidden()) search_->clear();
        tree_->setCurrentItem(item);
        tree_->scrollToItem(item);
    }
    tree_->viewport()->update();
}

void RegisterList::moveBy(int rows) {
    QTreeWidgetItem* item = tree_->currentItem();
    const auto step = [&](QTreeWidgetItem* from) {
        return rows < 0 ? tree_->itemAbove(from) : tree_->itemBelow(from);
    };
    for (int left = std::abs(rows); item && left > 0; --left)
        item = step(item);
    if (item) tree_->setCurrentItem(item);
}

void RegisterList::takeFocus() {
    tree_->setFocus(Qt::OtherFocusReason);
}

void RegisterList::filter() {
    const std::string wanted = toUtf8(search_->text());
    bool anyVisible = false;
    for (int row = 0; row < tree_->topLevelItemCount(); ++row) {
        QTreeWidgetItem* item = tree_->topLevelItem(row);
        const bool found = matchesSearch(toUtf8(item->data(0, kSearchedRole).toString()), wanted);
        item->setHidden(!found);
        anyVisible = anyVisible || found;
    }
    showPage(anyVisible);
}

void RegisterList::showPage(bool anyVisible) {
    const bool empty = tree_->topLevelItemCount() == 0;
    emptyText_->setText(empty ? whenEmpty_
                              : QStringLiteral("Nada encontrado para “%1”.").arg(search_->text()));
    first_->setVisible(empty && !first_->text().isEmpty());
    pages_->setCurrentIndex(anyVisible ? 0 : 1);
}

}  // namespace winvrx
