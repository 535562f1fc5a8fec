#include "foundation/register/desktop/employee_picker.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/enter_key.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/search_box.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include <algorithm>
#include <type_traits>

namespace winvrx {

namespace {

const QString kNobody =
    QStringLiteral("Nenhum funcionário ainda. Inclua o primeiro no Registro de Funcionários.");
const QString kNobodyHere = QStringLiteral(
    "Nenhum funcionário neste turno. Escolha outro turno ou inclua funcionários no cadastro.");
const QString kNobodyOfScale = QStringLiteral(
    "Nenhum funcionário neste turno com esta escala. Escolha outro turno ou escala.");

}  // namespace

EmployeePicker::EmployeePicker(EmployeeList& list, Traits traits, QWidget* parent)
    : QWidget(parent), list_(list), traits_(std::move(traits)) {
    auto* column = new QVBoxLayout(this);
    look::layOutPart(*column);
    if (!traits_.subsetCaption.isEmpty()) {
        everyone_ = buildSubset(QStringLiteral("everyone"), false);
        subset_ = buildSubset(traits_.subsetName, true);
        column->addWidget(everyone_);
        column->addWidget(subset_);
    }
    buildFilters(*column);
    search_ = new SearchBox(traits_.screen + QStringLiteral(".search"),
                            QStringLiteral("Pesquisa Funcionário ..."), this);
    search_->setToolTip(QStringLiteral("Código, nome, função ou CPF"));
    search_->setText(toQt(list_.search()));
    column->addWidget(search_);
    buildList(*column);
    buildEmptyHint(*column);
    connect(search_, &SearchBox::textChanged, this, [this](const QString& text) {
        list_.searchFor(toUtf8(text));
        narrow();
        if (traits_.narrows) selectShown();
        emit searched();
        if (traits_.narrows) emit narrowed();
    });
}

template <typename Filter>
void EmployeePicker::choose(Filter filter) {
    if (!traits_.narrows) {
        if constexpr (std::is_same_v<Filter, ShiftFilter>)
            emit shiftChosen(filter);
        else
            emit scaleChosen(filter);
        return;
    }
    list_.filterBy(filter);
    refresh();
    emit narrowed();
}

void EmployeePicker::buildFilters(QBoxLayout& column) {
    shift_ = buildFilter(QStringLiteral("shift"), QStringLiteral("Turno"));
    for (const ShiftFilter one : traits_.shifts)
        shift_->addItem(one == ShiftFilter::Todos ? toQt(codeOf(one))
                                                  : QStringLiteral("Turno: ") + toQt(codeOf(one)));
    connect(shift_, &QComboBox::activated, this,
            [this](int place) { choose(traits_.shifts[static_cast<std::size_t>(place)]); });
    QHBoxLayout* row = look::captioned(QStringLiteral("Turn&o"), shift_);
    if (traits_.scales) row->addWidget(buildScale(), 1);
    column.addLayout(row);
}

QRadioButton* EmployeePicker::buildSubset(const QString& name, bool only) {
    auto* button = new QRadioButton(this);
    button->setObjectName(traits_.screen + QLatin1Char('.') + name);
    connect(button, &QRadioButton::clicked, this, [this, only] { emit subsetChosen(only); });
    return button;
}

QComboBox* EmployeePicker::buildScale() {
    scale_ = buildFilter(QStringLiteral("scale"), QStringLiteral("Escala"));
    scale_->addItem(QStringLiteral("Escala: todas"));
    for (const Scale one : kScales)
        scale_->addItem(QStringLiteral("Escala: ") + toQt(codeOf(one)));
    connect(scale_, &QComboBox::activated, this, [this](int place) {
        const auto scale = static_cast<std::size_t>(place);
        choose(scale == 0 ? std::nullopt : std::optional(kScales.at(scale - 1)));
    });
    return scale_;
}

QComboBox* EmployeePicker::buildFilter(const QString& name, const QString& spokenName) {
    auto* box = new QComboBox(this);
    look::name(*box, traits_.screen + QLatin1Char('.') + name, spokenName);
    return box;
}

void EmployeePicker::buildList(QBoxLayout& column) {
    rows_ = new QListWidget(this);
    look::name(*rows_, traits_.screen + QStringLiteral(".employees"),
               QStringLiteral("Funcionários"));
    rows_->setTextElideMode(Qt::ElideRight);
    rows_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    search_->serve(rows_);
    connect(rows_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0) emit employeeChosen(static_cast<std::size_t>(row));
    });
    connect(rows_, &QListWidget::itemChanged, this, [this](const QListWidgetItem* row) {
        if (!traits_.ticks) return;
        list_.tick(static_cast<std::size_t>(rows_->row(row)), row->checkState() == Qt::Checked);
        emit ticked();
    });
    connect(rows_, &QListWidget::itemDoubleClicked, this, &EmployeePicker::opened);
    onEnter(*rows_, [this] { emit opened(); });
    column.addWidget(rows_, 1);
}

void EmployeePicker::buildEmptyHint(QBoxLayout& column) {
    empty_ = look::paragraph(traits_.screen + QStringLiteral(".empty"), look::TextSize::Hint, this);
    column.addWidget(empty_);
    everyShift_ = look::button(QStringLiteral("Mostrar todos os turnos"),
                               traits_.screen + QStringLiteral(".everyShift"), this);
    connect(everyShift_, &QPushButton::clicked, this, [this] { choose(ShiftFilter::Todos); });
    column.addWidget(everyShift_);
}

QString EmployeePicker::textOf(std::size_t position) const {
    const Employee& one = list_.employees()[position];
    QString text = toQt(one.code + " " + one.name);
    if (traits_.details) text += QLatin1Char('\n') + traits_.details(one);
    for (const std::string& mark : textsOf(list_.marks(position)))
        text += QLatin1Char('\n') + toQt(mark);
    return text;
}

void EmployeePicker::refresh() {
    const QListWidgetItem* current = rows_->currentItem();
    const QString former = current ? current->data(Qt::UserRole).toString() : QString();
    {
        const QSignalBlocker quiet(rows_);
        rows_->clear();
        for (std::size_t position = 0; position < list_.employees().size(); ++position) {
            auto* row = new QListWidgetItem(textOf(position), rows_);
            row->setData(Qt::UserRole, toQt(list_.employees()[position].code));
            if (traits_.ticks)
                row->setCheckState(list_.isTicked(position) ? Qt::Checked : Qt::Unchecked);
        }
    }
    showFilters();
    narrow();
    select(list_.positionOf(toUtf8(former)));
    selectShown();
}

void EmployeePicker::showFilters() {
    if (subset_) {
        everyone_->setText(QStringLiteral("Funcionários (%1)").arg(list_.count(false)));
        subset_->setText(traits_.subsetCaption.arg(list_.count(true)));
        (list_.showsOnlySubset() ? subset_ : everyone_)->setChecked(true);
    }
    const auto place = std::ranges::find(traits_.shifts, list_.shift());
    shift_->setCurrentIndex(static_cast<int>(place - traits_.shifts.begin()));
    shift_->setEnabled(hint_.isEmpty());
    if (!scale_) return;
    scale_->setCurrentIndex(list_.scale() ? static_cast<int>(*list_.scale()) + 1 : 0);
    scale_->setEnabled(hint_.isEmpty());
}

void EmployeePicker::setHint(const QString& text) {
    hint_ = text;
}

void EmployeePicker::narrow() {
    bool any = false;
    for (int row = 0; row < rows_->count(); ++row) {
        const bool shown = list_.isShown(static_cast<std::size_t>(row));
        rows_->item(row)->setHidden(!shown);
        any = any || shown;
    }
    empty_->setVisible(!any);
    empty_->setText(emptyText());
    everyShift_->setVisible(rows_->count() == 0 && hint_.isEmpty() &&
                            list_.shift() != ShiftFilter::Todos);
}

QString EmployeePicker::emptyText() const {
    if (!hint_.isEmpty()) return hint_;
    if (rows_->count() > 0)
        return QStringLiteral("Nada encontrado para “%1”.").arg(search_->text());
    if (list_.scale()) return kNobodyOfScale;
    return list_.shift() == ShiftFilter::Todos ? kNobody : kNobodyHere;
}

void EmployeePicker::select(std::optional<std::size_t> position) {
    const QSignalBlocker quiet(rows_);
    const int row = position ? static_cast<int>(*position) : -1;
    if (QListWidgetItem* item = rows_->item(row)) item->setText(textOf(*position));
    rows_->setCurrentRow(row);
}

std::optional<std::size_t> EmployeePicker::selected() const {
    const int row = rows_->currentRow();
    return row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
}

void EmployeePicker::selectShown() {
    const auto at = selected();
    if (at && list_.isShown(*at)) return;
    const auto shown = list_.shown();
    select(shown.empty() ? std::nullopt : std::optional(shown.front()));
}

void EmployeePicker::step(int by) {
    int row = rows_->currentRow() + by;
    while (row >= 0 && row < rows_->count() && rows_->item(row)->isHidden())
        row += by;
    if (row >= 0 && row < rows_->count()) rows_->setCurrentRow(row);
}

void EmployeePicker::focusList() {
    rows_->setFocus(Qt::OtherFocusReason);
}

}  // namespace winvrx
