#include "personnel/payroll/desktop/pay_sheet_panel.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTreeWidget>

#include <algorithm>
#include <functional>

namespace winvrx {

namespace {

enum Place { kCode, kName, kReference, kCredit, kDebit, kMark };

constexpr int kAmountWidth = 14;
constexpr int kMemoLines = 6;
const QString kEditor = QStringLiteral("folha.amount");

Place amountColumn(const PayLine& line) {
    return line.event.isEarning() ? kCredit : kDebit;
}

Place amountColumn(const QTreeWidgetItem& row) {
    return row.text(kDebit).isEmpty() ? kCredit : kDebit;
}

/// Edits the amounts only, and hands over what is typed instead of showing it.
class AmountDelegate final : public QStyledItemDelegate {
  public:
    using Take = std::function<void(int line, const QString& amount)>;

    AmountDelegate(Take take, QObject* parent)
        : QStyledItemDelegate(parent), take_(std::move(take)) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex& index) const override {
        if (index.column() != kCredit && index.column() != kDebit) return nullptr;
        if (index.data().toString().isEmpty()) return nullptr;
        auto* editor = new QLineEdit(parent);
        look::name(*editor, kEditor, QStringLiteral("Valor"));
        editor->setAlignment(Qt::AlignRight);
        editor->setMaxLength(kAmountWidth);
        editor->setFont(look::fixedFont());
        return editor;
    }
    void setModelData(QWidget* editor, QAbstractItemModel*,
                      const QModelIndex& index) const override {
        const QString typed = static_cast<QLineEdit*>(editor)->text().trimmed();
        if (typed != index.data().toString()) take_(index.row(), typed);
    }

  protected:
    /// What comes to nothing stands back, in the palette of the moment.
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        static const QString nothing = toQt(moneyText({}));
        if (option->text == nothing)
            option->palette.setBrush(QPalette::Text, option->palette.placeholderText());
    }

  private:
    Take take_;
};

QString markOf(const PayLine& line, const PaySheet* now) {
    if (line.isTyped) return QStringLiteral("✎ digitado");
    if (!now || now->amountOf(line.event.code) == line.amount) return {};
    return QStringLiteral("hoje ") + toQt(moneyText(now->amountOf(line.event.code)));
}

void showLine(QTreeWidgetItem& row, const PayLine& line, const PaySheet* now) {
    row.setText(kCode, toQt(line.event.code));
    row.setText(kName, toQt(line.event.name));
    row.setText(kReference, toQt(line.event.reference));
    row.setText(kCredit, {});
    row.setText(kDebit, {});
    row.setText(amountColumn(line), toQt(moneyText(line.amount)));
    row.setText(kMark, markOf(line, now));
    for (const Place money : {kCredit, kDebit}) {
        row.setTextAlignment(money, Qt::AlignRight | Qt::AlignVCenter);
        row.setFont(money, look::fixedFont());
    }
    row.setFlags(row.flags() | Qt::ItemIsEditable);
}

}  // namespace

PaySheetPanel::PaySheetPanel(QWidget* parent) : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    look::layOutPart(*column);
    events_ = look::table(QStringLiteral("folha.events"), QStringLiteral("Eventos do funcionário"),
                          {QStringLiteral("Cód."), QStringLiteral("Evento"), QStringLiteral("Ref."),
                           QStringLiteral("Crédito"), QStringLiteral("Débito"), QString()},
                          this);
    events_->header()->setSectionResizeMode(kName, QHeaderView::Stretch);
    for (const Place money : {kCredit, kDebit}) {
        events_->headerItem()->setTextAlignment(money, Qt::AlignRight);
        events_->header()->setSectionResizeMode(money, QHeaderView::Fixed);
        events_->header()->resizeSection(
            money, QFontMetrics(look::fixedFont()).averageCharWidth() * kAmountWidth);
    }
    events_->setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::EditKeyPressed);
    events_->setItemDelegate(new AmountDelegate(
        [this](int line, const QString& amount) { emit amountTyped(line, amount); }, events_));
    events_->installEventFilter(this);
    connect(events_, &QTreeWidget::currentItemChanged, this, [this] { emit turnedTo(current()); });
    connect(events_, &QTreeWidget::itemDoubleClicked, this, &PaySheetPanel::editCurrent);
    column->addWidget(events_, 1);
    column->addWidget(buildTotals());
    buildMemo();
    column->addWidget(memo_);
}

QWidget* PaySheetPanel::buildTotals() {
    auto* totals = new QWidget(this);
    auto* row = new QHBoxLayout(totals);
    look::layOutPart(*row);
    row->setSpacing(look::kGroupGap);
    credits_ = look::line(QStringLiteral("folha.credits"), look::TextSize::Body, totals);
    debits_ = look::line(QStringLiteral("folha.debits"), look::TextSize::Body, totals);
    net_ = look::line(QStringLiteral("folha.net"), look::TextSize::Heading, totals);
    row->addWidget(credits_);
    row->addWidget(debits_);
    row->addStretch();
    row->addWidget(net_);
    return totals;
}

void PaySheetPanel::buildMemo() {
    memo_ = new QPlainTextEdit(this);
    look::name(*memo_, QStringLiteral("folha.memo"), QStringLiteral("Memória de cálculo"));
    memo_->setReadOnly(true);
    memo_->setTabChangesFocus(true);
    memo_->setFixedHeight(memo_->fontMetrics().lineSpacing() * kMemoLines);
}

void PaySheetPanel::showSheet(const PaySheet* sheet, const PaySheet* now) {
    const int line = current();
    {
        const QSignalBlocker quiet(events_);
        const int count = sheet ? static_cast<int>(sheet->lines.size()) : 0;
        while (events_->topLevelItemCount() > count)
            delete events_->takeTopLevelItem(count);
        while (events_->topLevelItemCount() < count)
            events_->addTopLevelItem(new QTreeWidgetItem);
        for (int at = 0; at < count; ++at)
            showLine(*events_->topLevelItem(at), sheet->lines[static_cast<std::size_t>(at)], now);
        // Setting it again would move the cursor off the column that is being edited.
        const int next = std::clamp(line, 0, std::max(count - 1, 0));
        if (next != current()) events_->setCurrentItem(events_->topLevelItem(next));
    }
    const auto amount = [&](Money PaySheet::*total) {
        return QStringLiteral("R$ ") + toQt(moneyText(sheet ? sheet->*total : Money{}));
    };
    credits_->setText(QStringLiteral("Créditos ") + amount(&PaySheet::credits));
    debits_->setText(QStringLiteral("Débitos ") + amount(&PaySheet::debits));
    net_->setText(QStringLiteral("Líquido ") + amount(&PaySheet::net));
    events_->setEnabled(sheet != nullptr);
    emit turnedTo(current());
}

void PaySheetPanel::showMemo(const QStringList& lines) {
    memo_->setPlainText(lines.join(QLatin1Char('\n')));
}

int PaySheetPanel::current() const {
    return events_->currentItem() ? events_->indexOfTopLevelItem(events_->currentItem()) : -1;
}

void PaySheetPanel::focusEvents() {
    events_->setFocus(Qt::TabFocusReason);
}

void PaySheetPanel::focusMemo() {
    memo_->setFocus(Qt::OtherFocusReason);
}

void PaySheetPanel::editCurrent() {
    if (QTreeWidgetItem* row = events_->currentItem()) events_->editItem(row, amountColumn(*row));
}

bool PaySheetPanel::eventFilter(QObject* watched, QEvent* event) {
    QTreeWidgetItem* row = events_->currentItem();
    if (watched != events_ || event->type() != QEvent::KeyPress || !row)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // The key that ends an amount comes through here too.
            if (!events_->findChild<QLineEdit*>(kEditor)) editCurrent();
            return true;
        case Qt::Key_Delete:
            emit amountTyped(current(), {});
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:
            break;
        default:
            // What is typed goes into the amount, wherever the cursor stands in the line.
            events_->setCurrentItem(row, amountColumn(*row));
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace winvrx
