#include "timecard/desktop/cartao_ponto_dados_window.h"

#include "foundation/desktop/look.h"
#include "foundation/desktop/qt_text.h"
#include "foundation/desktop/search_box.h"
#include "foundation/text.h"
#include "timecard/desktop/hours_summary_panel.h"
#include "timecard/desktop/punch_grid.h"
#include "timecard/desktop/schedule_panel.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolButton>

namespace winvrx {

namespace {

constexpr std::array kShiftFilters = {ShiftFilter::Todos, ShiftFilter::Unico, ShiftFilter::Um,
                                      ShiftFilter::Dois, ShiftFilter::Tres};
constexpr int kWidestList = 320;
const QString kNoMonth = QStringLiteral(
    "Escolha primeiro o mês de trabalho em \"Configurações Feriados e Horas extras\" (F7).");
const QString kNoEmployees = QStringLiteral(
    "Nenhum funcionário neste turno. Escolha outro turno acima ou inclua funcionários no "
    "cadastro.");

QString nameOf(HalfMonth half) {
    return half == HalfMonth::First ? QStringLiteral("1º Quinzena") : QStringLiteral("2º Quinzena");
}

HalfMonth otherThan(HalfMonth half) {
    return half == HalfMonth::First ? HalfMonth::Second : HalfMonth::First;
}

}  // namespace

CartaoPontoDadosWindow::CartaoPontoDadosWindow(CartaoPontoDados& command, QWidget* parent)
    : ScreenWindow(QStringLiteral("cartaoPontoDados"), QStringLiteral("Aplicação de Ponto"),
                   parent),
      command_(command) {
    setBody(buildBody());
    buildCommands();
    connectList();
    addEmployeeKeys();
    refresh();
    list_->setFocus();
}

CartaoPontoDadosWindow::~CartaoPontoDadosWindow() {
    hide();
}

QWidget* CartaoPontoDadosWindow::buildBody() {
    auto* body = new QWidget(this);
    auto* row = new QHBoxLayout(body);
    look::layOutBody(*row);
    row->setSpacing(look::kMargin);
    row->addWidget(buildList(), 1);
    row->addWidget(buildCard(), 4);
    return body;
}

QWidget* CartaoPontoDadosWindow::buildList() {
    auto* widget = new QWidget(this);
    widget->setMaximumWidth(kWidestList);
    auto* column = new QVBoxLayout(widget);
    look::layOutPart(*column);
    shift_ = new QComboBox(widget);
    shift_->setObjectName(QStringLiteral("card.shift"));
    shift_->setAccessibleName(QStringLiteral("Turno"));
    for (const ShiftFilter filter : kShiftFilters)
        shift_->addItem(toQt(codeOf(filter)));
    QLabel* label = look::label(QStringLiteral("Turn&o"), look::TextSize::Body, widget);
    label->setBuddy(shift_);
    auto* row = new QHBoxLayout;
    look::layOutPart(*row);
    row->addWidget(label);
    row->addWidget(shift_, 1);
    column->addLayout(row);
    search_ = new SearchBox(QStringLiteral("card.search"),
                            QStringLiteral("Pesquisa Funcionário ..."), widget);
    column->addWidget(search_);
    list_ = new QListWidget(widget);
    list_->setObjectName(QStringLiteral("card.employees"));
    list_->setAccessibleName(QStringLiteral("Funcionários"));
    list_->setTextElideMode(Qt::ElideRight);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    search_->serve(list_);
    column->addWidget(list_, 1);
    emptyHint_ = look::label(kNoEmployees, look::TextSize::Hint, widget);
    emptyHint_->setObjectName(QStringLiteral("card.emptyHint"));
    emptyHint_->setWordWrap(true);
    column->addWidget(emptyHint_);
    column->addWidget(buildHours());
    return widget;
}

QWidget* CartaoPontoDadosWindow::buildHours() {
    hours_ = new HoursSummaryPanel(this);
    connect(hours_, &HoursSummaryPanel::percentTyped, this,
            [this](HourCategory category, const QString& typed) {
                (void)command_.changePercent(category, toUtf8(typed));
                showState();
            });
    return hours_;
}

QWidget* CartaoPontoDadosWindow::buildCard() {
    auto* widget = new QWidget(this);
    auto* column = new QVBoxLayout(widget);
    look::layOutPart(*column);
    schedule_ = new SchedulePanel(command_, widget);
    connect(schedule_, &SchedulePanel::edited, this, &CartaoPontoDadosWindow::showState);
    connect(schedule_, &SchedulePanel::saveRequested, this, [this] {
        (void)command_.saveSchedule();
        schedule_->refresh();
        showState();
    });
    column->addWidget(schedule_);
    auto* row = new QHBoxLayout;
    look::layOutPart(*row);
    row->addWidget(buildHalf(HalfMonth::First), 1);
    row->addWidget(buildHalf(HalfMonth::Second), 1);
    column->addLayout(row, 1);
    column->addWidget(buildEntryMode());
    return widget;
}

QWidget* CartaoPontoDadosWindow::buildHalf(HalfMonth which) {
    HalfWidgets& widgets = half(which);
    const QString number = which == HalfMonth::First ? QStringLiteral("1") : QStringLiteral("2");
    widgets.panel = new QWidget(this);
    auto* column = new QVBoxLayout(widgets.panel);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(look::kSmallGap);
    widgets.heading = look::heading(QString(), widgets.panel);
    widgets.heading->setObjectName(QStringLiteral("card.heading") + number);
    column->addWidget(widgets.heading);
    widgets.model = new PunchModel(command_, which, this);
    widgets.grid = new PunchGrid(widgets.model, QStringLiteral("card.half") + number, this);
    column->addWidget(widgets.grid, 1);
    connect(widgets.model, &PunchModel::edited, this, &CartaoPontoDadosWindow::showState);
    connect(widgets.grid, &PunchGrid::cellChanged, this, &CartaoPontoDadosWindow::showState);
    connect(widgets.grid, &PunchGrid::leftAtEnd, this, [this, which] {
        showHalf(otherThan(which));
        half(shown_).grid->goToStart();
    });
    return widgets.panel;
}

void CartaoPontoDadosWindow::buildCommands() {
    apply_ = addCommand(QStringLiteral("apply"), QStringLiteral("Aplicar Ponto"), Qt::Key_F9,
                        QStringLiteral("card.apply"));
    connect(apply_, &QToolButton::clicked, this, &CartaoPontoDadosWindow::apply);
    QToolButton* record = addCommand(QStringLiteral("save"), QStringLiteral("Gravar"),
                                     QKeySequence::Save, QStringLiteral("card.save"));
    connect(record, &QToolButton::clicked, this, &CartaoPontoDadosWindow::save);
    otherHalf_ = addCommand(QStringLiteral("right"), nameOf(HalfMonth::Second), Qt::Key_F6,
                            QStringLiteral("card.otherHalf"));
    connect(otherHalf_, &QToolButton::clicked, this, [this] {
        showHalf(otherThan(shown_));
        half(shown_).grid->goToStart();
    });
    QToolButton* month =
        addCommand(QStringLiteral("month"), QStringLiteral("Configurações Feriados e Horas extras"),
                   Qt::Key_F7, QStringLiteral("card.monthSettings"));
    connect(month, &QToolButton::clicked, this, &CartaoPontoDadosWindow::changeMonth);
    QPushButton* close = addClosingButton(QStringLiteral("&Sair"), QStringLiteral("card.close"));
    connect(close, &QPushButton::clicked, this, &CartaoPontoDadosWindow::reject);
}

QWidget* CartaoPontoDadosWindow::buildEntryMode() {
    auto* widget = new QWidget(this);
    auto* row = new QHBoxLayout(widget);
    look::layOutPart(*row);
    auto* enter = new QRadioButton(QStringLiteral("Usar Tecla &ENTER"), widget);
    enter->setObjectName(QStringLiteral("card.useEnter"));
    auto* tab = new QRadioButton(QStringLiteral("Usar Tecla TA&BE"), widget);
    tab->setObjectName(QStringLiteral("card.useTab"));
    enter->setChecked(true);
    unread_ = look::label(QString(), look::TextSize::Hint, widget);
    unread_->setObjectName(QStringLiteral("card.unread"));
    unread_->setWordWrap(true);
    row->addWidget(unread_, 1);
    row->addWidget(enter);
    row->addWidget(tab);
    connect(tab, &QRadioButton::toggled, this, [this](bool on) {
        for (HalfWidgets& widgets : halves_)
            widgets.grid->setNextCellKey(on ? Qt::Key_Tab : Qt::Key_Return);
    });
    return widget;
}

void CartaoPontoDadosWindow::connectList() {
    connect(shift_, &QComboBox::activated, this, [this](int place) {
        (void)command_.filterBy(kShiftFilters[static_cast<std::size_t>(place)]);
        refresh();
    });
    connect(search_, &SearchBox::textChanged, this, &CartaoPontoDadosWindow::filterList);
    connect(list_, &QListWidget::currentRowChanged, this, &CartaoPontoDadosWindow::chooseEmployee);
    connect(list_, &QListWidget::itemActivated, this, [this] { half(shown_).grid->goToStart(); });
}

void CartaoPontoDadosWindow::addEmployeeKeys() {
    const auto add = [this](int key, int step) {
        auto* shortcut = new QShortcut(key, this);
        connect(shortcut, &QShortcut::activated, this, [this, step] { stepEmployee(step); });
    };
    add(Qt::Key_PageUp, -1);
    add(Qt::Key_PageDown, 1);
}

CartaoPontoDadosWindow::HalfWidgets& CartaoPontoDadosWindow::half(HalfMonth half) {
    return halves_[static_cast<std::size_t>(half)];
}

bool CartaoPontoDadosWindow::isWide() const {
    const int grids = 2 * halves_[0].grid->comfortableWidth();
    return width() >= kWidestList + grids + 3 * look::kMargin + look::kGap;
}

void CartaoPontoDadosWindow::showHalf(HalfMonth half) {
    commitEditors();
    shown_ = half;
    layOutHalves();
}

void CartaoPontoDadosWindow::layOutHalves() {
    for (const HalfMonth one : {HalfMonth::First, HalfMonth::Second})
        half(one).panel->setVisible(isWide() || one == shown_);
    hours_->showOnly(isWide() ? std::nullopt : std::optional(shown_));
    const HalfMonth other = otherThan(shown_);
    otherHalf_->setText(nameOf(other) + QStringLiteral("  F6"));
    otherHalf_->setAccessibleName(nameOf(other));
    otherHalf_->setIcon(
        look::icon(other == HalfMonth::Second ? QStringLiteral("right") : QStringLiteral("left")));
}

void CartaoPontoDadosWindow::resizeEvent(QResizeEvent* event) {
    ScreenWindow::resizeEvent(event);
    layOutHalves();
}

void CartaoPontoDadosWindow::refresh() {
    if (!command_.selected() && !command_.employees().empty()) (void)command_.select(0);
    if (command_.company())
        setChips({toQt(command_.company()->text() + " " + command_.companyName()),
                  toQt(monthTitle(command_.settings().month)),
                  QStringLiteral("Turno: ") + toQt(codeOf(command_.filter()))});
    showList();
    showCard();
}

void CartaoPontoDadosWindow::showList() {
    const QSignalBlocker quietList(list_);
    const auto* filter = std::find(kShiftFilters.begin(), kShiftFilters.end(), command_.filter());
    shift_->setCurrentIndex(static_cast<int>(filter - kShiftFilters.begin()));
    list_->clear();
    for (const Employee& one : command_.employees())
        list_->addItem(toQt(one.code + " " + one.name));
    list_->setCurrentRow(static_cast<int>(command_.selectedPosition().value_or(0)));
    const bool empty = command_.employees().empty();
    emptyHint_->setVisible(empty);
    emptyHint_->setText(command_.company() ? kNoEmployees : kNoMonth);
    shift_->setEnabled(command_.company().has_value());
    filterList(search_->text());
}

void CartaoPontoDadosWindow::filterList(const QString& wanted) {
    for (int row = 0; row < list_->count(); ++row) {
        QListWidgetItem* item = list_->item(row);
        item->setHidden(!matchesSearch(toUtf8(item->text()), toUtf8(wanted)));
    }
}

void CartaoPontoDadosWindow::chooseEmployee(int row) {
    if (row < 0) return;
    commitEditors();
    const auto position = static_cast<std::size_t>(row);
    if (command_.selectedPosition() != position) (void)command_.select(position);
    const QSignalBlocker quiet(list_);
    if (const auto stayed = command_.selectedPosition())
        list_->setCurrentRow(static_cast<int>(*stayed));
    showCard();
}

void CartaoPontoDadosWindow::stepEmployee(int step) {
    int row = list_->currentRow() + step;
    while (row >= 0 && row < list_->count() && list_->item(row)->isHidden())
        row += step;
    if (row >= 0 && row < list_->count()) list_->setCurrentRow(row);
}

void CartaoPontoDadosWindow::showCard() {
    schedule_->refresh();
    for (HalfWidgets& widgets : halves_) {
        const QModelIndex at = widgets.grid->currentIndex();
        widgets.model->refresh();
        widgets.grid->setCurrentIndex(widgets.model->index(at.row(), at.column()));
    }
    apply_->setEnabled(command_.selected() != nullptr);
    showUnread();
    layOutHalves();
    showState();
}

void CartaoPontoDadosWindow::showUnread() {
    const auto& lines = command_.unreadLines();
    QStringList texts;
    for (const std::string& line : lines)
        texts << toQt(line);
    unread_->setToolTip(texts.join(QLatin1Char('\n')));
    if (lines.empty())
        unread_->clear();
    else if (lines.size() == 1)
        unread_->setText(QStringLiteral("⚠ Linha não entendida, mantida no registro: ") + texts[0]);
    else
        unread_->setText(QStringLiteral("⚠ %1 linhas não entendidas, mantidas no registro: %2 …")
                             .arg(lines.size())
                             .arg(texts[0]));
}

void CartaoPontoDadosWindow::showHours() {
    const Employee* one = command_.selected();
    hours_->showHours(command_.hours(), one ? toQt(one->code + " " + one->name + " · " +
                                                   monthTitle(command_.settings().month))
                                            : QString());
}

void CartaoPontoDadosWindow::showState() {
    showHours();
    for (const HalfMonth one : {HalfMonth::First, HalfMonth::Second})
        half(one).heading->setText(nameOf(one) + QStringLiteral("  ·  ") +
                                   toQt(command_.totalOf(one)));
    const PunchGrid* grid = half(shown_).grid;
    const QString notice = grid->punches()->noticeAt(grid->currentIndex());
    if (!notice.isEmpty())
        setState(QStringLiteral("⚠ ") + notice);
    else if (command_.changed())
        setState(QStringLiteral("Alterações não gravadas"));
    else if (command_.selected() && !command_.applied())
        setState(QStringLiteral("Ponto ainda não aplicado neste mês"));
    else
        setState(command_.selected() ? QStringLiteral("Ponto gravado") : QString());
}

void CartaoPontoDadosWindow::commitEditors() {
    for (HalfWidgets& widgets : halves_)
        widgets.grid->commitEditor();
}

void CartaoPontoDadosWindow::apply() {
    commitEditors();
    (void)command_.applyPunches();
    showCard();
}

void CartaoPontoDadosWindow::save() {
    commitEditors();
    (void)command_.saveChanges();
    showCard();
}

void CartaoPontoDadosWindow::changeMonth() {
    commitEditors();
    if (command_.mayLeave()) emit monthSettingsRequested();
}

bool CartaoPontoDadosWindow::mayClose() {
    commitEditors();
    return command_.mayLeave();
}

}  // namespace winvrx
