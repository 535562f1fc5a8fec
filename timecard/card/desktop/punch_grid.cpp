#include "timecard/card/desktop/punch_grid.h"

#include "foundation/widgets/desktop/elided_label.h"
#include "foundation/widgets/desktop/look.h"
#include "timecard/card/desktop/punch_delegate.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QToolTip>

namespace winvrx {

namespace {

constexpr int kMostRows = 16;
constexpr QKeyCombination kRedoKey(Qt::ControlModifier, Qt::Key_Y);

/// Widths of columns, in digits.
constexpr std::array<int, PunchModel::Columns> kColumnDigits = {12, 8, 8, 8, 8, 8, 8, 6, 16, 6, 7};
/// The longest text of a column; digits and margins round differently from font to font.
constexpr std::array<const char*, PunchModel::Columns> kLongestTexts = {
    "⚠00/qua/mar", "⚠ 00:00", "⚠ 00:00", "⚠ 00:00", "⚠ 00:00", "⚠ 00:00",
    "⚠ 00:00",     "00000",   "",        "00:00",   "+00:00"};

/// For the grid line beside a cell and for what text and style round up.
constexpr int kSlack = 3;

int widthOf(int column, const QStyle& style) {
    const auto place = static_cast<std::size_t>(column);
    const QFontMetrics letters(look::fixedFont());
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
    return std::max(
        letters.horizontalAdvance(QLatin1Char('0')) * kColumnDigits[place],
        letters.horizontalAdvance(QString::fromUtf8(kLongestTexts[place])) + 2 * margin + kSlack);
}

bool isPlain(const QKeyEvent* event) {
    return !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

}  // namespace

PunchGrid::PunchGrid(PunchModel* model, QWidget* parent) : QTableView(parent), punches_(model) {
    setModel(model);
    auto* delegate = new PunchDelegate(this);
    setItemDelegate(delegate);
    connect(delegate, &PunchDelegate::said, this, &PunchGrid::said);
    connect(delegate, &PunchDelegate::finished, this, &PunchGrid::goOnFromEditor);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::AnyKeyPressed |
                    QAbstractItemView::EditKeyPressed);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    layOutColumns();
}

void PunchGrid::layOutColumns() {
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    fitRows();
    QHeaderView* header = horizontalHeader();
    header->setSectionsClickable(false);
    header->setHighlightSections(false);
    header->setSectionResizeMode(QHeaderView::Fixed);
    comfortableWidth_ = 2 * frameWidth();
    for (int column = 0; column < PunchModel::Columns; ++column) {
        const int width = widthOf(column, *style());
        header->resizeSection(column, width);
        comfortableWidth_ += width;
    }
    header->setSectionResizeMode(PunchModel::Situation, QHeaderView::Stretch);
    setMinimumWidth(comfortableWidth_ / 2);
}

void PunchGrid::fitRows() {
    const int text = QFontMetrics(look::fixedFont()).height();
    const int least = text + look::kSmallGap;
    const int most = text + look::kGap + look::kSmallGap;
    verticalHeader()->setMinimumSectionSize(least);
    verticalHeader()->setDefaultSectionSize(
        std::clamp(viewport()->height() / kMostRows, least, most));
}

void PunchGrid::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    fitRows();
}

bool PunchGrid::isNextCellKey(int key) const {
    return key == nextCellKey_ || (nextCellKey_ == Qt::Key_Return && key == Qt::Key_Enter);
}

void PunchGrid::setNextCellKey(Qt::Key key) {
    nextCellKey_ = key;
    setTabKeyNavigation(key == Qt::Key_Tab);
}

void PunchGrid::goToStart() {
    const QModelIndex first = punches_->nextTime(0, PunchModel::FirstCell);
    setCurrentIndex(first.isValid() ? first : punches_->index(0, PunchModel::FirstCell));
    setFocus(Qt::OtherFocusReason);
}

void PunchGrid::commitEditor() {
    QWidget* editor = state() == EditingState ? indexWidget(currentIndex()) : nullptr;
    if (!editor) return;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void PunchGrid::goToNextCell() {
    const QModelIndex at = currentIndex();
    if (!at.isValid()) return;
    const QModelIndex next = punches_->nextTime(at.row(), at.column() + 1);
    if (next.isValid())
        setCurrentIndex(next);
    else
        emit leftAtEnd();
}

void PunchGrid::goOnFromEditor(Qt::Key key) {
    const QModelIndex at = currentIndex();
    const QString finding = punches_->findingAt(at);
    if (!finding.isEmpty())
        QToolTip::showText(viewport()->mapToGlobal(visualRect(at).bottomLeft()), tipOf(finding),
                           viewport());
    else if (key == nextCellKey_)
        goToNextCell();
}

bool PunchGrid::mayChange() const {
    return currentIndex().siblingAtColumn(PunchModel::FirstCell).flags() & Qt::ItemIsEditable;
}

bool PunchGrid::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    const bool asked = trigger != NoEditTriggers && (editTriggers() & trigger);
    if (asked && PunchModel::cellOf(index.column()) && !mayChange()) {
        emit changeRefused();
        return false;
    }
    return QTableView::edit(index, trigger, event);
}

QItemSelectionRange PunchGrid::block() const {
    const QItemSelection selection = selectionModel()->selection();
    return selection.isEmpty() ? QItemSelectionRange(currentIndex()) : selection.first();
}

void PunchGrid::clearBlock() {
    if (mayChange())
        punches_->clear(block());
    else
        emit changeRefused();
}

void PunchGrid::pasteHere() {
    const QModelIndex at = block().topLeft();
    if (!at.isValid()) return;
    const auto cell = PunchModel::cellOf(std::max<int>(at.column(), PunchModel::FirstCell));
    const QString text = QApplication::clipboard()->text();
    if (cell && !text.isEmpty()) emit pasteRequested(punches_->dayOf(at), *cell, text);
}

bool PunchGrid::takesCommand(const QKeyEvent* event) {
    const bool copies = event->matches(QKeySequence::Copy);
    const bool cuts = event->matches(QKeySequence::Cut);
    if (copies || cuts) QApplication::clipboard()->setText(punches_->blockText(block()));
    if (cuts || event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace)
        clearBlock();
    else if (event->matches(QKeySequence::Paste))
        pasteHere();
    else if (event->matches(QKeySequence::Undo))
        emit undoRequested();
    else if (event->matches(QKeySequence::Redo) || event->keyCombination() == kRedoKey)
        emit redoRequested();
    else
        return copies;
    return true;
}

bool PunchGrid::movesInRow(const QKeyEvent* event) {
    const bool home = event->key() == Qt::Key_Home;
    if (!isPlain(event) || !(home || event->key() == Qt::Key_End)) return false;
    const int column = home ? PunchModel::FirstCell : PunchModel::Situation;
    setCurrentIndex(currentIndex().siblingAtColumn(column));
    return true;
}

void PunchGrid::leadToCell(const QKeyEvent* event) {
    const QModelIndex at = currentIndex();
    if (!at.isValid() || !isPlain(event) || event->text().isEmpty()) return;
    const auto cell = PunchModel::cellOf(at.column());
    const QChar letter = event->text().front();
    if (letter.isDigit() && (!cell || *cell == PunchCell::Situation))
        setCurrentIndex(punches_->openTime(at.row()));
    else if (letter.isLetter() && !cell)
        setCurrentIndex(at.siblingAtColumn(PunchModel::Situation));
}

void PunchGrid::keyPressEvent(QKeyEvent* event) {
    if (state() == EditingState) {
        event->accept();  // of an open editor, which takes what it wants by itself
    } else if (isNextCellKey(event->key())) {
        goToNextCell();
    } else if (!movesInRow(event) && !takesCommand(event)) {
        leadToCell(event);
        QTableView::keyPressEvent(event);
    }
}

void PunchGrid::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint) {
    // Also where the list of situations, a window of its own, has the focus of the application.
    const bool typedIn = editor->isAncestorOf(window()->focusWidget());
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    if (typedIn) setFocus();
    emit cellChanged();
}

void PunchGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    emit cellChanged();
}

}  // namespace winvrx
