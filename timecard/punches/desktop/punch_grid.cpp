#include "timecard/punches/desktop/punch_grid.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QCompleter>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyledItemDelegate>

namespace winvrx {

namespace {

constexpr int kLongestTime = 5;
constexpr int kLongestSituation = 19;

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

/// Editors of the cells: a field of five characters, and the list of situations.
class PunchDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex& index) const override {
        if (index.column() == PunchModel::Situation) return situationEditor(parent);
        auto* edit = new QLineEdit(parent);
        edit->setObjectName(QStringLiteral("punch.editor"));
        edit->setMaxLength(kLongestTime);
        edit->setAlignment(Qt::AlignCenter);
        edit->setFont(look::fixedFont());
        edit->setFrame(false);
        edit->setAccessibleName(index.data(Qt::AccessibleTextRole).toString());
        return edit;
    }

    void setEditorData(QWidget* editor, const QModelIndex& index) const override {
        if (auto* box = qobject_cast<QComboBox*>(editor)) {
            box->setEditText(index.data(Qt::EditRole).toString());
            box->lineEdit()->selectAll();  // so that typing replaces what stands there
        } else {
            QStyledItemDelegate::setEditorData(editor, index);
        }
    }

    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override {
        if (auto* box = qobject_cast<QComboBox*>(editor))
            model->setData(index, box->currentText(), Qt::EditRole);
        else
            QStyledItemDelegate::setModelData(editor, model, index);
    }

  private:
    static QWidget* situationEditor(QWidget* parent) {
        auto* box = new QComboBox(parent);
        look::name(*box, QStringLiteral("punch.situation"), QStringLiteral("Situação"));
        box->setEditable(true);
        box->addItem(QString());
        for (const Situation& situation : kSituations)
            box->addItem(toQt(situation.word));
        box->lineEdit()->setMaxLength(kLongestSituation);
        box->completer()->setCompletionMode(QCompleter::PopupCompletion);
        box->completer()->setFilterMode(Qt::MatchContains);
        return box;
    }
};

}  // namespace

PunchGrid::PunchGrid(PunchModel* model, QWidget* parent) : QTableView(parent), punches_(model) {
    setModel(model);
    setItemDelegate(new PunchDelegate(this));
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
    setCurrentIndex(punches_->index(0, PunchModel::FirstCell));
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
    const bool lastOfRow = at.column() >= PunchModel::Situation;
    if (lastOfRow && at.row() + 1 == punches_->rowCount())
        emit leftAtEnd();
    else if (lastOfRow)
        setCurrentIndex(punches_->index(at.row() + 1, PunchModel::FirstCell));
    else
        setCurrentIndex(punches_->index(at.row(), at.column() + 1));
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

void PunchGrid::keyPressEvent(QKeyEvent* event) {
    // An open editor's ENTER comes through here too; closing the editor moves on by itself.
    if (state() == EditingState)
        event->accept();
    else if (isNextCellKey(event->key()))
        goToNextCell();
    else if (!takesCommand(event))
        QTableView::keyPressEvent(event);
}

void PunchGrid::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    // The delegate reports ENTER as SubmitModelCache and TAB as EditNextItem.
    const bool byTab = hint == QAbstractItemDelegate::EditNextItem;
    const bool byEnter = hint == QAbstractItemDelegate::SubmitModelCache;
    const bool onwards = nextCellKey_ == Qt::Key_Tab ? byTab : byEnter;
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    if (onwards) goToNextCell();
    emit cellChanged();
}

void PunchGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    emit cellChanged();
}

}  // namespace winvrx
