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
#include <QSignalBlocker>
#include <QTabWidget>
#include <QToolButton>

#include <functional>

namespace winvrx {

namespace {

constexpr int kSideWidth = 288;
constexpr int kGroupRows = 4;  ///< that the list shows without scrolling

}  // namespace

CartaoPontoDadosBWindow::CartaoPontoDadosBWindow(CartaoPontoDadosB& command, QWidget* parent)
    : ScreenWindow(QStringLiteral("cartaoPontoDadosB"),
                   QStringLiteral("Quadro de Horário de  Trabalho"), parent),
      command_(command) {
    setBody({{buildSide()}, {buildPages(), 1}}, look::kMargin);
    buildCommands();
    startWithAGroup();
    refresh();
    showPage();
    employees_->focusList();
}

QWidget* CartaoPontoDadosBWindow::buildSide() {
    const auto [side, column] = look::part(this);
    side->setFixedWidth(kSideWidth);
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
    scale_->addItems({QStringLiteral("Escala Normal"), QStringLiteral("Escala Revezamento 5 x 1"),
                      QStringLiteral("Escala Revezamento 12 x 36")});  // in the order of kScales
    connect(scale_, &QComboBox::activated, this, [this](int place) {
        (void)command_.filterBy(kScales.at(static_cast<std::size_t>(place)));
        refresh();
    });
    return look::captioned(QStringLiteral("Esca&la"), scale_);
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
    QPushButton* remove = newButton({"",
                                     QStringLiteral("EXCLUIR GRUPOS"),
                                     {},
                                     "rotation.removeGroups",
                                     [this] {
                                         (void)command_.removeGroups();
                                         refresh();
                                     }},
                                    this);
    remove->setToolTip(QStringLiteral("Todos os que a lista mostra."));
    row->addWidget(remove);
    QPushButton* show =
        newButton({"", QStringLiteral("&Ver Grupo"), Qt::Key_F4, "rotation.showGroup",
                   [this] {
                       if (const auto at = employees_->selected())
                           (void)command_.selectGroupOf(*at);
                       showGroup();
                   }},
                  this);
    show->setToolTip(QStringLiteral("F4: o do funcionário selecionado na lista acima."));
    row->addWidget(show);
    return row;
}

QWidget* CartaoPontoDadosBWindow::buildGroups() {
    const auto [part, column] = look::part(this);
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
    noGroups_ = look::paragraph(QStringLiteral("rotation.noGroups"), look::TextSize::Hint, part);
    noGroups_->setText(QStringLiteral("Nenhum grupo aqui. Crie o primeiro com Ins."));
    column->addWidget(noGroups_);
    continue_ = newButton({"", QStringLiteral("Continuar grupos"), Qt::Key_F8, "rotation.continue",
                           [this] {
                               if (command_.continueGroups()) startWithAGroup();
                               refresh();
                           }},
                          part);
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
    table_ = new WorkTablePanel(command_.workTable(), pages_);
    pages_->addTab(table_, QStringLiteral("&Quadro de Horário"));
    connect(table_, &WorkTablePanel::edited, this, [this] { showState(); });
    connect(pages_, &QTabWidget::currentChanged, this, &CartaoPontoDadosBWindow::showPage);
    return pages_;
}

void CartaoPontoDadosBWindow::buildCommands() {
    const auto addGroupCommand = [this](const ScreenCommand& command) {
        return groupCommands_.emplace_back(addCommand(command));
    };
    const auto giving = [this](bool (CartaoPontoDadosB::*act)()) {
        return [this, act] {
            (void)std::invoke(act, command_);  // .* is compiled wrongly by GCC 12's sanitizers here
            refresh();
        };
    };
    addGroupCommand({"add", QStringLiteral("Criar Novo Grupo"), Qt::Key_Insert, "rotation.new",
                     giving(&CartaoPontoDadosB::newGroup)});
    save_ = addCommand({"save", {}, QKeySequence::Save, "rotation.save", [this] { save(); }});
    restore_ = addCommand({"restore", QStringLiteral("Restaurar Padrão"), Qt::CTRL | Qt::Key_R,
                           "rotation.restore", [this] {
                               command_.workTable().restore();
                               refresh();
                           }});
    addGroupCommand({"print", QStringLiteral("Imprimir"), QKeySequence::Print, "rotation.print",
                     [this] { (void)command_.printSheets(ReportOutput::Preview); }})
        ->setToolTip(QStringLiteral("As escalas mostradas, uma folha por grupo, para a parede."));
    addGroupCommand({"sheet", QStringLiteral("Folha em Texto"), Qt::CTRL | Qt::Key_T,
                     "rotation.text", giving(&CartaoPontoDadosB::printText)});
    addGroupCommand({"delete", QStringLiteral("EXCLUIR GRUPO"), Qt::Key_Delete,
                     "rotation.removeGroup", giving(&CartaoPontoDadosB::removeGroup), groups_});
    addGroupCommand({"clear",
                     QStringLiteral("EXCLUIR PONTO"),
                     {},
                     "rotation.removePunches",
                     giving(&CartaoPontoDadosB::removePunches)});
    addLeavingButton("rotation.close");
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
        QString text = toQt(titleOf(one));
        if (isEdited && command_.groupChanged()) text += QStringLiteral("\nnão gravado");
        auto* item = new QListWidgetItem(text, groups_);
        item->setData(Qt::UserRole, one.number);
        item->setToolTip(text);
        if (isEdited) groups_->setCurrentItem(item);
    }
    const auto from = command_.continuableFrom();
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
    if (command_.workTable().changed()) parts << QStringLiteral("Quadro não gravado");
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
    const bool saved = showsTable() ? command_.workTable().save() : command_.saveGroup();
    refresh();
    if (saved)
        showState(showsTable() ? QStringLiteral("Quadro gravado")
                               : QStringLiteral("Grupo gravado"));
}

}  // namespace winvrx
