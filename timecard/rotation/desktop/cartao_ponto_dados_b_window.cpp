#include "timecard/rotation/desktop/cartao_ponto_dados_b_window.h"

#include "foundation/register/desktop/employee_picker.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "timecard/rotation/desktop/rotation_group_panel.h"
#include "timecard/rotation/desktop/work_table_panel.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QToolButton>

namespace winvrx {

namespace {

constexpr int kSideWidth = 288;
constexpr int kGroupRows = 4;  ///< that the list shows without scrolling

QString scaleText(Scale scale) {
    switch (scale) {
        case Scale::Normal:
            return QStringLiteral("Escala Normal");
        case Scale::FiveByOne:
            return QStringLiteral("Escala Revezamento 5 x 1");
        case Scale::TwelveByThirtySix:
            return QStringLiteral("Escala Revezamento 12 x 36");
    }
    return {};
}

}  // namespace

CartaoPontoDadosBWindow::CartaoPontoDadosBWindow(CartaoPontoDadosB& command, QWidget* parent)
    : ScreenWindow(QStringLiteral("cartaoPontoDadosB"),
                   QStringLiteral("Quadro de Horário de  Trabalho"), parent),
      command_(command) {
    setBody(buildBody());
    buildCommands();
    startWithAGroup();
    refresh();
    showPage();
    employees_->focusList();
}

QWidget* CartaoPontoDadosBWindow::buildBody() {
    auto* body = new QWidget(this);
    auto* row = new QHBoxLayout(body);
    look::layOutBody(*row);
    row->setSpacing(look::kMargin);
    row->addWidget(buildSide());
    row->addWidget(buildPages(), 1);
    return body;
}

QWidget* CartaoPontoDadosBWindow::buildSide() {
    auto* side = new QWidget(this);
    side->setFixedWidth(kSideWidth);
    auto* column = new QVBoxLayout(side);
    look::layOutPart(*column);
    sideHeading_ = look::heading(QString(), side);
    column->addWidget(sideHeading_);
    column->addLayout(buildScale());
    buildEmployees();
    column->addWidget(employees_, 2);
    groupPart_ = buildGroups();
    column->addWidget(groupPart_, 1);
    return side;
}

QLayout* CartaoPontoDadosBWindow::buildScale() {
    scale_ = new QComboBox(this);
    look::name(*scale_, QStringLiteral("rotation.scale"), QStringLiteral("Escala"));
    for (const Scale one : kScales)
        scale_->addItem(scaleText(one));
    connect(scale_, &QComboBox::activated, this, [this](int place) {
        (void)command_.filterBy(kScales.at(static_cast<std::size_t>(place)));
        refresh();
    });
    QLabel* label = look::label(QStringLiteral("Esca&la"), look::TextSize::Body, this);
    label->setBuddy(scale_);
    auto* row = new QHBoxLayout;
    look::layOutPart(*row);
    row->addWidget(label);
    row->addWidget(scale_, 1);
    return row;
}

void CartaoPontoDadosBWindow::buildEmployees() {
    employees_ = new EmployeePicker(
        command_.list(),
        {.screen = QStringLiteral("rotation"),
         .shifts = kAllShiftFilters,
         .details =
             [this](const Employee& employee) {
                 return toQt(command_.captionOf(*command_.list().positionOf(employee.code)));
             }},
        this);
    connect(employees_, &EmployeePicker::shiftChosen, this, [this](ShiftFilter shift) {
        (void)command_.filterBy(shift);
        refresh();
    });
    connect(employees_, &EmployeePicker::searched, employees_, &EmployeePicker::selectShown);
    connect(employees_, &EmployeePicker::opened, this, [this] {
        if (showsTable())
            table_->takeFocus();
        else
            add();
    });
}

QLayout* CartaoPontoDadosBWindow::buildGroupHeading() {
    auto* row = new QHBoxLayout;
    look::layOutPart(*row);
    row->addWidget(look::heading(QStringLiteral("Grupos"), this), 1);
    const auto add = [&](const char* text, const char* name, const char* tip) {
        auto* button = new QPushButton(QString::fromUtf8(text), this);
        look::name(*button, QString::fromLatin1(name), button->text());
        button->setToolTip(QString::fromUtf8(tip));
        button->setAutoDefault(false);
        row->addWidget(button);
        return button;
    };
    connect(add("EXCLUIR GRUPOS", "rotation.removeGroups", "Todos os que a lista mostra."),
            &QPushButton::clicked, this, [this] {
                (void)command_.removeGroups();
                refresh();
            });
    QPushButton* show =
        add("&Ver Grupo", "rotation.showGroup", "F4: o do funcionário selecionado na lista acima.");
    connect(show, &QPushButton::clicked, this, [this] {
        if (const auto at = employees_->selected()) (void)command_.selectGroupOf(*at);
        showGroup();
    });
    connect(new QShortcut(Qt::Key_F4, show), &QShortcut::activated, show, &QPushButton::click);
    return row;
}

QWidget* CartaoPontoDadosBWindow::buildGroups() {
    auto* part = new QWidget(this);
    auto* column = new QVBoxLayout(part);
    look::layOutPart(*column);
    column->addLayout(buildGroupHeading());
    groups_ = new QListWidget(part);
    look::name(*groups_, QStringLiteral("rotation.groups"), QStringLiteral("Grupos"));
    groups_->setTextElideMode(Qt::ElideRight);
    groups_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    groups_->setMinimumHeight(kGroupRows * fontMetrics().height());
    // Queued: the list is shown anew, which it does not bear while it tells.
    connect(groups_, &QListWidget::currentItemChanged, this, &CartaoPontoDadosBWindow::chooseGroup,
            Qt::QueuedConnection);
    column->addWidget(groups_, 1);
    noGroups_ = look::label(QString(), look::TextSize::Hint, part);
    noGroups_->setObjectName(QStringLiteral("rotation.noGroups"));
    noGroups_->setWordWrap(true);
    column->addWidget(noGroups_);
    continue_ = new QPushButton(part);
    look::name(*continue_, QStringLiteral("rotation.continue"), QStringLiteral("Continuar grupos"));
    continue_->setAutoDefault(false);
    connect(continue_, &QPushButton::clicked, this, [this] {
        if (command_.continueGroups()) startWithAGroup();
        refresh();
    });
    // A shortcut of a hidden button does nothing.
    connect(new QShortcut(Qt::Key_F8, continue_), &QShortcut::activated, continue_,
            &QPushButton::click);
    column->addWidget(continue_);
    column->addStretch();
    return part;
}

QWidget* CartaoPontoDadosBWindow::buildPages() {
    pages_ = new QTabWidget(this);
    look::name(*pages_, QStringLiteral("rotation.pages"), QStringLiteral("Páginas"));
    group_ = new RotationGroupPanel(command_, pages_);
    pages_->addTab(group_, QStringLiteral("&Escalas"));
    connect(group_, &RotationGroupPanel::addRequested, this, &CartaoPontoDadosBWindow::add);
    connect(group_, &RotationGroupPanel::addReliefRequested, this,
            &CartaoPontoDadosBWindow::addRelief);
    connect(group_, &RotationGroupPanel::edited, this, &CartaoPontoDadosBWindow::showGroup);
    table_ = new WorkTablePanel(command_, pages_);
    pages_->addTab(table_, QStringLiteral("&Quadro de Horário"));
    connect(table_, &WorkTablePanel::edited, this, [this] { showState(); });
    connect(pages_, &QTabWidget::currentChanged, this, &CartaoPontoDadosBWindow::showPage);
    return pages_;
}

QToolButton* CartaoPontoDadosBWindow::addGroupCommand(const char* icon, const char* text,
                                                      const QKeySequence& key, const char* name,
                                                      bool (CartaoPontoDadosB::*act)(),
                                                      QWidget* within) {
    QToolButton* button = addCommand(QString::fromLatin1(icon), QString::fromUtf8(text), key,
                                     QString::fromLatin1(name), within);
    connect(button, &QToolButton::clicked, this, [this, act] {
        (void)(command_.*act)();
        refresh();
    });
    groupCommands_.push_back(button);
    return button;
}

void CartaoPontoDadosBWindow::buildCommands() {
    using Command = CartaoPontoDadosB;
    addGroupCommand("add", "Criar Novo Grupo", Qt::Key_Insert, "rotation.new", &Command::newGroup);
    save_ = addCommand(QStringLiteral("save"), QString(), QKeySequence::Save,
                       QStringLiteral("rotation.save"));
    connect(save_, &QToolButton::clicked, this, &CartaoPontoDadosBWindow::save);
    restore_ = addCommand(QStringLiteral("restore"), QStringLiteral("Restaurar Padrão"),
                          Qt::CTRL | Qt::Key_R, QStringLiteral("rotation.restore"));
    connect(restore_, &QToolButton::clicked, this, [this] {
        command_.restoreTable();
        refresh();
    });
    QToolButton* print = addCommand(QStringLiteral("print"), QStringLiteral("Imprimir"),
                                    QKeySequence::Print, QStringLiteral("rotation.print"));
    print->setToolTip(QStringLiteral("As escalas mostradas, uma folha por grupo, para a parede."));
    connect(print, &QToolButton::clicked, this,
            [this] { (void)command_.printSheets(ReportOutput::Preview); });
    groupCommands_.push_back(print);
    addGroupCommand("sheet", "Folha em Texto", Qt::CTRL | Qt::Key_T, "rotation.text",
                    &Command::printText);
    addGroupCommand("delete", "EXCLUIR GRUPO", Qt::Key_Delete, "rotation.removeGroup",
                    &Command::removeGroup, groups_);
    addGroupCommand("clear", "EXCLUIR PONTO", {}, "rotation.removePunches",
                    &Command::removePunches);
    QPushButton* close =
        addClosingButton(QStringLiteral("&Sair"), QStringLiteral("rotation.close"));
    connect(close, &QPushButton::clicked, this, &CartaoPontoDadosBWindow::reject);
}

void CartaoPontoDadosBWindow::startWithAGroup() {
    const auto shown = command_.shownGroups();
    if (command_.scale() == Scale::Normal)
        (void)command_.filterBy(shown.empty() ? Scale::FiveByOne : shown.front().scale);
    if (!shown.empty()) (void)command_.selectGroup(shown.front().number);
}

bool CartaoPontoDadosBWindow::showsTable() const {
    return pages_->currentWidget() == table_;
}

void CartaoPontoDadosBWindow::refresh() {
    setChips({toQt(command_.company()->text() + " " + command_.companyName()),
              toQt(monthTitle(command_.settings().month)),
              QStringLiteral("Turno: ") + toQt(codeOf(command_.shift()))});
    scale_->setCurrentIndex(static_cast<int>(command_.scale()));
    table_->refresh();
    showGroup();
}

void CartaoPontoDadosBWindow::showPage() {
    const bool table = showsTable();
    groupPart_->setVisible(!table);
    sideHeading_->setText(table ? QStringLiteral("Funcionários")
                                : QStringLiteral("Adicionar Funcionários no Grupo"));
    for (QToolButton* one : groupCommands_) {
        one->setVisible(!table);
        one->setEnabled(!table);
    }
    restore_->setVisible(table);
    restore_->setEnabled(table);
    const QString caption =
        table ? QStringLiteral("Gravar Horário de Trabalho") : QStringLiteral("Gravar Grupo");
    save_->setText(caption + QStringLiteral("  Ctrl+S"));
    save_->setToolTip(save_->text());
    save_->setAccessibleName(caption);
    showState();
}

void CartaoPontoDadosBWindow::showGroups() {
    const QSignalBlocker quiet(groups_);
    groups_->clear();
    for (const RotationGroup& one : command_.shownGroups()) {
        const bool isEdited = command_.group() && command_.group()->number == one.number;
        QString text = toQt(CartaoPontoDadosB::titleOf(one));
        if (isEdited && command_.groupChanged()) text += QStringLiteral("\nnão gravado");
        auto* item = new QListWidgetItem(text, groups_);
        item->setData(Qt::UserRole, one.number);
        item->setToolTip(text);
        if (isEdited) groups_->setCurrentItem(item);
    }
    const auto from = command_.continuableFrom();
    noGroups_->setText(QStringLiteral("Nenhum grupo aqui. Crie o primeiro com Ins."));
    noGroups_->setVisible(groups_->count() == 0);
    groups_->setVisible(groups_->count() > 0);
    continue_->setVisible(from.has_value());
    if (from)
        continue_->setText(QStringLiteral("Con&tinuar os de %1  F8").arg(toQt(monthTitle(*from))));
}

void CartaoPontoDadosBWindow::chooseGroup() {
    const QListWidgetItem* item = groups_->currentItem();
    if (item) (void)command_.selectGroup(item->data(Qt::UserRole).toInt());
    showGroup();
}

void CartaoPontoDadosBWindow::showGroup() {
    employees_->refresh();
    showGroups();
    group_->refresh();
    showState();
}

void CartaoPontoDadosBWindow::showState(const QString& done) {
    QStringList parts;
    if (!done.isEmpty()) parts << done;
    if (command_.tableChanged()) parts << QStringLiteral("Quadro não gravado");
    if (command_.groupChanged())
        parts << toQt(groupName(command_.group()->number)) + QStringLiteral(" não gravado");
    if (showsTable())
        parts << QStringLiteral("ENTER: próxima hora");
    else
        parts << QStringLiteral("ENTER: adicionar · Ctrl+↑ Ctrl+↓: mover · Del: remover");
    setState(parts.join(QStringLiteral("  ·  ")));
}

void CartaoPontoDadosBWindow::add() {
    std::vector<std::size_t> chosen;
    if (const auto at = employees_->selected()) chosen.push_back(*at);
    if (command_.add(chosen)) goOn();
}

void CartaoPontoDadosBWindow::addRelief() {
    const auto at = employees_->selected();
    if (at ? command_.addReliefWorker(*at) : command_.add({})) goOn();
}

void CartaoPontoDadosBWindow::goOn() {
    showGroup();
    employees_->step(1);
}

void CartaoPontoDadosBWindow::save() {
    const bool saved = showsTable() ? command_.saveTable() : command_.saveGroup();
    refresh();
    if (saved)
        showState(showsTable() ? QStringLiteral("Quadro gravado")
                               : QStringLiteral("Grupo gravado"));
}

}  // namespace winvrx
