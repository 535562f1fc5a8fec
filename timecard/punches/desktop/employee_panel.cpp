#include "timecard/punches/desktop/employee_panel.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/search_box.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>

namespace winvrx {

namespace {

constexpr std::array kShiftFilters = {ShiftFilter::Todos, ShiftFilter::Unico, ShiftFilter::Um,
                                      ShiftFilter::Dois, ShiftFilter::Tres};
const QString kOnLeave = QStringLiteral("\nCOLABORADOR COM AFASTAMENTO!!!");
const QString kClosed = QStringLiteral("\nFolha Fechada");
const QString kNoMonth = QStringLiteral(
    "Escolha primeiro o mês de trabalho em \"Configurações Feriados e Horas extras\" (F7).");
const QString kNoEmployees = QStringLiteral(
    "Nenhum funcionário neste turno. Escolha outro turno acima ou inclua funcionários no "
    "cadastro.");

}  // namespace

EmployeePanel::EmployeePanel(const CartaoPontoDados& command, QWidget* parent)
    : QWidget(parent),
      command_(command),
      shift_(new QComboBox(this)),
      search_(new SearchBox(QStringLiteral("card.search"),
                            QStringLiteral("Pesquisa Funcionário ..."), this)),
      list_(new QListWidget(this)),
      emptyHint_(look::label(kNoEmployees, look::TextSize::Hint, this)) {
    auto* column = new QVBoxLayout(this);
    look::layOutPart(*column);
    buildShift();
    column->addWidget(search_);
    buildList();
    column->addWidget(list_, 1);
    emptyHint_->setObjectName(QStringLiteral("card.emptyHint"));
    emptyHint_->setWordWrap(true);
    column->addWidget(emptyHint_);
}

void EmployeePanel::buildShift() {
    look::name(*shift_, QStringLiteral("card.shift"), QStringLiteral("Turno"));
    for (const ShiftFilter filter : kShiftFilters)
        shift_->addItem(filter == ShiftFilter::Todos
                            ? toQt(codeOf(filter))
                            : QStringLiteral("Turno: ") + toQt(codeOf(filter)));
    connect(shift_, &QComboBox::activated, this, [this](int place) {
        emit shiftChosen(kShiftFilters[static_cast<std::size_t>(place)]);
    });
    QLabel* label = look::label(QStringLiteral("Turn&o"), look::TextSize::Body, this);
    label->setBuddy(shift_);
    auto* row = new QHBoxLayout;
    look::layOutPart(*row);
    row->addWidget(label);
    row->addWidget(shift_, 1);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void EmployeePanel::buildList() {
    look::name(*list_, QStringLiteral("card.employees"), QStringLiteral("Funcionários"));
    list_->setTextElideMode(Qt::ElideRight);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    search_->serve(list_);
    connect(search_, &SearchBox::textChanged, this, &EmployeePanel::filter);
    connect(list_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0) emit employeeChosen(static_cast<std::size_t>(row));
    });
    connect(list_, &QListWidget::itemActivated, this, &EmployeePanel::opened);
}

QString EmployeePanel::lineOf(std::size_t position) const {
    const Employee& one = command_.employees()[position];
    const EmployeeMark mark = command_.mark(position);
    QString line = toQt(one.code + " " + one.name);
    if (mark.onLeave) line += kOnLeave;
    if (mark.closed) line += kClosed;
    return line;
}

void EmployeePanel::refresh() {
    const auto* filter = std::find(kShiftFilters.begin(), kShiftFilters.end(), command_.filter());
    shift_->setCurrentIndex(static_cast<int>(filter - kShiftFilters.begin()));
    shift_->setEnabled(command_.company().has_value());
    const QSignalBlocker quiet(list_);
    list_->clear();
    for (std::size_t position = 0; position < command_.employees().size(); ++position)
        list_->addItem(lineOf(position));
    showEmptyHint();
    this->filter(search_->text());
    showSelected();
}

void EmployeePanel::showEmptyHint() {
    emptyHint_->setVisible(command_.employees().empty());
    emptyHint_->setText(command_.company() ? kNoEmployees : kNoMonth);
}

void EmployeePanel::showSelected() {
    const auto position = command_.selectedPosition();
    if (!position || static_cast<int>(*position) >= list_->count()) return;
    const QSignalBlocker quiet(list_);
    const int row = static_cast<int>(*position);
    list_->item(row)->setText(lineOf(*position));
    list_->setCurrentRow(row);
}

void EmployeePanel::filter(const QString& wanted) {
    for (int row = 0; row < list_->count(); ++row) {
        QListWidgetItem* item = list_->item(row);
        item->setHidden(!matchesSearch(toUtf8(item->text()), toUtf8(wanted)));
    }
}

void EmployeePanel::step(int by) {
    int row = list_->currentRow() + by;
    while (row >= 0 && row < list_->count() && list_->item(row)->isHidden())
        row += by;
    if (row >= 0 && row < list_->count()) list_->setCurrentRow(row);
}

std::vector<std::size_t> EmployeePanel::shown() const {
    std::vector<std::size_t> positions;
    for (int row = 0; row < list_->count(); ++row)
        if (!list_->item(row)->isHidden()) positions.push_back(static_cast<std::size_t>(row));
    return positions;
}

void EmployeePanel::focusList() {
    list_->setFocus();
}

}  // namespace winvrx
