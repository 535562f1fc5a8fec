#include "timecard/hours/desktop/hours_summary_panel.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "timecard/hours/desktop/hours_explanation_window.h"

#include <QApplication>
#include <QHeaderView>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace winvrx {

namespace {

struct SummaryColumn {
    std::optional<HalfMonth> half;
    const char* name;
};

/// The caption stands for the month.
constexpr std::array<SummaryColumn, 4> kColumns = {{
    {std::nullopt, ""},
    {HalfMonth::First, "1º Quinz."},
    {HalfMonth::Second, "2º Quinz."},
    {std::nullopt, "Mês"},
}};
constexpr int kCaption = 0;

/// Widths: of a figure, in half digits; of the room beside a caption.
constexpr int kFigureHalfDigits = 15;
constexpr int kCaptionRoom = look::kGap + look::kSmallGap;

const QString kTitle = QStringLiteral("Resumo das Horas");
const QString kPercentHint = QStringLiteral("Duplo Clique Altera % Hora Extra!");

HourCategory categoryOf(int row) {
    return kHourCategories[static_cast<std::size_t>(row)];
}

const SummaryColumn& columnAt(int column) {
    return kColumns[static_cast<std::size_t>(column)];
}

QTableWidgetItem* figureCell(int column) {
    auto* item = new QTableWidgetItem;
    if (column == kCaption) return item;
    item->setFont(look::fixedFont());
    item->setTextAlignment(Qt::AlignVCenter | Qt::AlignRight);
    return item;
}

}  // namespace

HoursSummaryPanel::HoursSummaryPanel(QWidget* parent)
    : QWidget(parent),
      table_(new QTableWidget(static_cast<int>(kHourCategories.size()),
                              static_cast<int>(kColumns.size()), this)),
      secondClick_(new QTimer(this)) {
    secondClick_->setSingleShot(true);
    auto* column = new QVBoxLayout(this);
    look::layOutPart(*column);
    column->setSpacing(look::kSmallGap);
    QLabel* heading = look::heading(QStringLiteral("&Resumo das Horas"), this);
    heading->setBuddy(table_);
    column->addWidget(heading);
    buildTable();
    column->addWidget(table_);
    column->addWidget(look::label(kPercentHint, look::TextSize::Hint, this));
    showHours({}, {});
}

void HoursSummaryPanel::buildTable() {
    look::name(*table_, QStringLiteral("hours.table"), kTitle);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setTabKeyNavigation(false);
    table_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table_->setShowGrid(false);
    table_->setAlternatingRowColors(true);
    table_->installEventFilter(this);
    for (int row = 0; row < table_->rowCount(); ++row)
        for (int column = 0; column < table_->columnCount(); ++column)
            table_->setItem(row, column, figureCell(column));
    layOutTable();
    connect(table_, &QTableWidget::cellClicked, this, &HoursSummaryPanel::waitForSecondClick);
    connect(table_, &QTableWidget::cellDoubleClicked, this, &HoursSummaryPanel::askPercent);
    connect(secondClick_, &QTimer::timeout, this,
            [this] { explain(table_->currentRow(), table_->currentColumn()); });
}

void HoursSummaryPanel::layOutTable() {
    const QFontMetrics letters(look::fixedFont());
    const int rowHeight = letters.height() + look::kSmallGap;
    QHeaderView* rows = table_->verticalHeader();
    rows->hide();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setMinimumSectionSize(rowHeight);
    rows->setDefaultSectionSize(rowHeight);
    QHeaderView* columns = table_->horizontalHeader();
    columns->setSectionResizeMode(QHeaderView::Fixed);
    columns->setFont(look::font(look::TextSize::Hint));
    columns->setSectionsClickable(false);
    columns->setHighlightSections(false);
    columns->setFixedHeight(rowHeight + look::kSmallGap);
    const QFontMetrics headings(columns->font());
    for (int column = 0; column < table_->columnCount(); ++column) {
        const QString name = QString::fromUtf8(columnAt(column).name);
        table_->setHorizontalHeaderItem(column, new QTableWidgetItem(name));
        columns->resizeSection(
            column, std::max(letters.horizontalAdvance(QLatin1Char('0')) * kFigureHalfDigits / 2,
                             headings.horizontalAdvance(name) + 2 * look::kSmallGap));
    }
    columns->setSectionResizeMode(kCaption, QHeaderView::Stretch);
    table_->setFixedHeight(columns->height() + table_->rowCount() * rowHeight +
                           2 * table_->frameWidth());
}

void HoursSummaryPanel::showHours(HoursSummary hours, const QString& owner) {
    hours_ = std::move(hours);
    owner_ = owner;
    showFigures();
}

void HoursSummaryPanel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) showFigures();
}

void HoursSummaryPanel::showFigures() {
    for (int row = 0; row < table_->rowCount(); ++row)
        for (int column = 0; column < table_->columnCount(); ++column)
            showFigure(row, column);
    makeRoomForCaptions();
}

void HoursSummaryPanel::showFigure(int row, int column) {
    const HourCategory category = categoryOf(row);
    const SummaryColumn& of = columnAt(column);
    const QString caption = toQt(hours_.caption(category));
    const QString figure = toQt(hours_.figure(category, of.half));
    const bool quiet = column != kCaption && hours_.totals(of.half)[category].count() == 0;
    QTableWidgetItem* item = table_->item(row, column);
    item->setText(column == kCaption ? caption : figure);
    item->setForeground(quiet ? QApplication::palette().brush(QPalette::PlaceholderText)
                              : QBrush());
    item->setToolTip(percentOf(category) ? kPercentHint : QString());
    const QString period = of.half ? toQt(nameOf(*of.half)) : QStringLiteral("Mês");
    item->setData(Qt::AccessibleTextRole,
                  caption + QStringLiteral(", ") + period + QStringLiteral(": ") + figure);
}

void HoursSummaryPanel::makeRoomForCaptions() {
    int width = 0;
    for (int row = 0; row < table_->rowCount(); ++row)
        width = std::max(
            width, table_->fontMetrics().horizontalAdvance(table_->item(row, kCaption)->text()));
    width += kCaptionRoom + 2 * table_->frameWidth();
    for (int column = kCaption + 1; column < table_->columnCount(); ++column)
        width += table_->columnWidth(column);
    table_->setMinimumWidth(width);
}

void HoursSummaryPanel::showOnly(std::optional<HalfMonth> half) {
    for (int column = 0; column < table_->columnCount(); ++column) {
        const auto of = columnAt(column).half;
        table_->setColumnHidden(column, half && of && of != half);
    }
    makeRoomForCaptions();
}

void HoursSummaryPanel::waitForSecondClick(int row, int column) {
    // The explanation is a window of its own and would catch the second click.
    if (percentOf(categoryOf(row)))
        secondClick_->start(QApplication::doubleClickInterval());
    else
        explain(row, column);
}

void HoursSummaryPanel::explain(int row, int column) {
    HoursExplanationWindow(hours_, categoryOf(row), columnAt(column).half, owner_, this).exec();
}

void HoursSummaryPanel::askPercent(int row) {
    secondClick_->stop();
    const HourCategory category = categoryOf(row);
    const auto percent = percentOf(category);
    if (!percent || owner_.isEmpty()) return;
    QInputDialog input(this);
    input.setObjectName(QStringLiteral("hours.percent"));
    input.setWindowTitle(QStringLiteral("% Hora Extra"));
    input.setLabelText(
        QStringLiteral("Percentual de \"%1\"\n%2:").arg(toQt(hours_.caption(category)), owner_));
    input.setTextValue(QString::number(hours_.rules().*percent));
    if (input.exec() == QDialog::Accepted) emit percentTyped(category, input.textValue());
}

bool HoursSummaryPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || table_->currentRow() < 0)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            explain(table_->currentRow(), table_->currentColumn());
            return true;
        case Qt::Key_F2:
            askPercent(table_->currentRow());
            return true;
        default:
            return QWidget::eventFilter(watched, event);
    }
}

}  // namespace winvrx
