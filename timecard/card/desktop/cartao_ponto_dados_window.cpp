#include "timecard/card/desktop/cartao_ponto_dados_window.h"

#include "foundation/register/desktop/employee_picker.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/elided_label.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/progress.h"
#include "timecard/card/desktop/application_bar.h"
#include "timecard/card/desktop/card_status.h"
#include "timecard/card/desktop/half_month_panel.h"
#include "timecard/card/desktop/punch_grid.h"
#include "timecard/card/desktop/schedule_panel.h"
#include "timecard/hours/desktop/hours_summary_panel.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>

namespace winvrx {

namespace {

/// Of the side; both halves beside it bring one more column of hours.
constexpr int kSideWidth = 288;
constexpr int kWideSideWidth = 332;
const QString kNoMonth = QStringLiteral(
    "Escolha primeiro o mês de trabalho em \"Configurações Feriados e Horas extras\" (F7).");

HalfMonth otherThan(HalfMonth half) {
    return half == HalfMonth::First ? HalfMonth::Second : HalfMonth::First;
}

}  // namespace

CartaoPontoDadosWindow::CartaoPontoDadosWindow(CartaoPontoDados& command, QWidget* parent)
    : ScreenWindow(QStringLiteral("cartaoPontoDados"), QStringLiteral("Aplicação de Ponto"),
                   parent),
      command_(command) {
    setBody({{buildSide()}, {buildCard(), 1}}, look::kMargin);
    buildCommands();
    connectEmployees();
    addEmployeeKeys();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (isAncestorOf(now)) showStatus();
    });
    refresh();
    employees_->focusList();
}

CartaoPontoDadosWindow::~CartaoPontoDadosWindow() {
    hide();
}

void CartaoPontoDadosWindow::connectGrid(HalfMonth which) {
    const PunchGrid* grid = &half(which).grid();
    connect(&half(which).model(), &PunchModel::edited, this, &CartaoPontoDadosWindow::showState);
    connect(grid, &PunchGrid::cellChanged, this, [this, which] { followCursor(which); });
    connect(grid, &PunchGrid::said, this, [this](const QString& text) {
        if (text.isEmpty())
            showStatus();
        else
            setState(text);
    });
    connect(grid, &PunchGrid::changeRefused, this, [this] { (void)command_.requireEditable(); });
    connect(grid, &PunchGrid::leftAtEnd, this, [this, which] {
        showHalf(otherThan(which));
        half(shown_).grid().goToStart();
    });
    connect(grid, &PunchGrid::undoRequested, this, [this] { showEdit(command_.sheet().undo()); });
    connect(grid, &PunchGrid::redoRequested, this, [this] { showEdit(command_.sheet().redo()); });
    connect(grid, &PunchGrid::pasteRequested, this,
            [this](int day, PunchCell cell, const QString& text) {
                if (command_.pasteCells(day, cell, toUtf8(text))) showSheet();
            });
}

void CartaoPontoDadosWindow::buildCommands() {
    addCommand({"apply", QStringLiteral("Aplicar Ponto"), Qt::Key_F9, "card.apply",
                [this] { (void)apply(); }})
        ->setToolTip(QStringLiteral("Ctrl+F9 aplica e passa ao próximo funcionário."));
    addCommand({"employees", QStringLiteral("Aplicar Ponto p/Todos"), Qt::SHIFT | Qt::Key_F9,
                "card.applyToAll", [this] { applyToAll(); }});
    addCommand(
        {"save", QStringLiteral("Gravar"), QKeySequence::Save, "card.save", [this] { save(); }});
    otherHalf_ =
        addCommand({"right", toQt(nameOf(HalfMonth::Second)), Qt::Key_F6, "card.otherHalf", [this] {
                        showHalf(otherThan(shown_));
                        half(shown_).grid().goToStart();
                    }});
    addCommand({"month", QStringLiteral("Configurações Feriados e Horas extras"), Qt::Key_F7,
                "card.monthSettings",
                [this] { leaveFor(&CartaoPontoDadosWindow::monthSettingsRequested); }});
    // The command bar has no room left for what leads to other screens.
    const auto leadOn = [this](const ScreenCommand& command) {
        addClosingButton(command)->setToolTip(command.key.toString(QKeySequence::NativeText));
    };
    leadOn({"leave", QStringLiteral("Afasta&mentos  F8"), Qt::Key_F8, "card.leaves",
            [this] { leaveFor(&CartaoPontoDadosWindow::leavesRequested); }});
    leadOn({"rotation", QStringLiteral("+ Quadro Horário e Escala de Revezamento"),
            Qt::CTRL | Qt::Key_E, "card.rotation",
            [this] { leaveFor(&CartaoPontoDadosWindow::rotationRequested); }});
    leadOn({"mirror", QStringLiteral("Espelho do Ponto"), Qt::CTRL | Qt::Key_I, "card.mirror",
            [this] { leaveFor(&CartaoPontoDadosWindow::mirrorRequested); }});
    addLeavingButton("card.close");
}

void CartaoPontoDadosWindow::connectEmployees() {
    const auto narrow = [this](auto filter) {
        commitEditors();
        (void)command_.filterBy(filter);
        refresh();
    };
    connect(employees_, &EmployeePicker::shiftChosen, this, narrow);
    connect(employees_, &EmployeePicker::scaleChosen, this, narrow);
    connect(employees_, &EmployeePicker::employeeChosen, this,
            &CartaoPontoDadosWindow::chooseEmployee);
    connect(employees_, &EmployeePicker::opened, this, [this] { half(shown_).grid().goToStart(); });
}

void CartaoPontoDadosWindow::addEmployeeKeys() {
    addPageKeys([this](int by) { employees_->step(by); });
    auto* applyAndGoOn = new QShortcut(Qt::CTRL | Qt::Key_F9, this);
    connect(applyAndGoOn, &QShortcut::activated, this, [this] {
        if (apply()) employees_->step(1);
    });
}

HalfMonthPanel& CartaoPontoDadosWindow::half(HalfMonth half) const {
    return *halves_[static_cast<std::size_t>(half)];
}

bool CartaoPontoDadosWindow::isWide() const {
    const int grids = 2 * half(HalfMonth::First).grid().comfortableWidth();
    return width() >= kWideSideWidth + grids + 3 * look::kMargin + look::kGap;
}

void CartaoPontoDadosWindow::showHalf(HalfMonth half) {
    commitEditors();
    shown_ = half;
    layOutHalves();
}

void CartaoPontoDadosWindow::followCursor(HalfMonth which) {
    if (which != shown_ && half(which).isAncestorOf(QApplication::focusWidget())) {
        shown_ = which;
        layOutHalves();
    }
    showStatus();
}

void CartaoPontoDadosWindow::layOutHalves() {
    for (const HalfMonth one : {HalfMonth::First, HalfMonth::Second})
        half(one).setVisible(isWide() || one == shown_);
    side_->setFixedWidth(isWide() ? kWideSideWidth : kSideWidth);
    hours_->showOnly(isWide() ? std::nullopt : std::optional(shown_));
    const HalfMonth other = otherThan(shown_);
    otherHalf_->setText(toQt(nameOf(other)) + QStringLiteral("  F6"));
    otherHalf_->setToolTip(otherHalf_->text());
    otherHalf_->setAccessibleName(toQt(nameOf(other)));
    otherHalf_->setIcon(
        look::icon(other == HalfMonth::Second ? QStringLiteral("right") : QStringLiteral("left")));
}

void CartaoPontoDadosWindow::resizeEvent(QResizeEvent* event) {
    ScreenWindow::resizeEvent(event);
    layOutHalves();
}

void CartaoPontoDadosWindow::refresh() {
    if (!command_.selected() && !command_.list().employees().empty()) (void)command_.select(0);
    if (command_.company())
        setChips({toQt(command_.company()->text() + " " + command_.companyName()),
                  toQt(monthTitle(command_.settings().month)),
                  QStringLiteral("Turno: ") + toQt(codeOf(command_.list().shift()))});
    employees_->setHint(command_.company() ? QString() : kNoMonth);
    employees_->refresh();
    application_->refresh();
    showCard();
}

void CartaoPontoDadosWindow::chooseEmployee(std::size_t position) {
    commitEditors();
    if (command_.selectedPosition() != position) (void)command_.select(position);
    showCard();
}

void CartaoPontoDadosWindow::showCard() {
    employees_->select(command_.selectedPosition());
    schedule_->refresh();
    look::showUnread(*unread_, toQtList(command_.unreadLines()),
                     QStringLiteral("Linha não entendida, mantida no registro: "));
    layOutHalves();
    showSheet();
}

void CartaoPontoDadosWindow::showSheet() {
    for (HalfMonthPanel* panel : halves_)
        panel->showSheet();
    showState();
}

void CartaoPontoDadosWindow::showEdit(std::optional<int> day) {
    if (!day) return;
    showSheet();
    const HalfMonth place = halfOf(plusDays(firstDay(command_.settings().month), *day - 1));
    if (place == shown_) return;
    showHalf(place);
    half(place).grid().setCurrentIndex(half(place).model().indexOfDay(*day));
    half(place).grid().setFocus();
}

void CartaoPontoDadosWindow::showHours() {
    const Employee* one = command_.selected();
    hours_->showHours(command_.days().hours(), one ? toQt(one->code + " " + one->name + " · " +
                                                          monthTitle(command_.settings().month))
                                                   : QString());
}

void CartaoPontoDadosWindow::showState() {
    showHours();
    for (HalfMonthPanel* panel : halves_)
        panel->showHeading();
    showStatus();
}

void CartaoPontoDadosWindow::showStatus() {
    setState(cardStatus(command_, half(shown_).grid(),
                        employees_->isAncestorOf(QApplication::focusWidget())));
}

void CartaoPontoDadosWindow::commitEditors() {
    for (HalfMonthPanel* panel : halves_)
        panel->grid().commitEditor();
}

bool CartaoPontoDadosWindow::apply() {
    commitEditors();
    const bool applied = command_.applyPunches();
    showCard();
    return applied;
}

void CartaoPontoDadosWindow::applyToAll() {
    commitEditors();
    const std::size_t listed = command_.list().shown().size();
    bool applied = false;
    {
        Progress progress(
            {QStringLiteral("card.progress"), QStringLiteral("Aplicação de Pontos"),
             QStringLiteral("Cartão %1 de %2"), QStringLiteral("Gravando %1 cartões…")},
            this);
        applied = command_.applyToAll(application_->sameHours(), [&progress](int done, int total) {
            return progress.show(done, total);
        });
    }
    employees_->refresh();
    showCard();
    if (applied)
        setState(QStringLiteral("Ponto aplicado: %1 de %2 da lista")
                     .arg(command_.filledCards())
                     .arg(listed));
}

void CartaoPontoDadosWindow::save() {
    commitEditors();
    (void)command_.saveChanges();
    showCard();
}

void CartaoPontoDadosWindow::leaveFor(void (CartaoPontoDadosWindow::*requested)()) {
    commitEditors();
    if (command_.confirmLeaving()) emit(this->*requested)();
}

bool CartaoPontoDadosWindow::mayClose() {
    commitEditors();
    return command_.confirmLeaving();
}

}  // namespace winvrx
