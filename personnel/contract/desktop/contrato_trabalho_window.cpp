#include "personnel/contract/desktop/contrato_trabalho_window.h"

#include "foundation/register/desktop/employee_picker.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "personnel/contract/contrato_trabalho.h"
#include "personnel/contract/desktop/contract_form.h"
#include "report/desktop/calibration_window.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr int kSideWidth = 288;

}  // namespace

ContratoTrabalhoWindow::ContratoTrabalhoWindow(ContratoTrabalho& command, QWidget* parent)
    : ScreenWindow(QStringLiteral("contrato"), QStringLiteral("Contrato de Trabalho"), parent),
      command_(command) {
    setBody(buildBody());
    buildCommands();
    buildClosingButtons();
    addKeys();
    refresh();
    employees_->focusList();
}

QWidget* ContratoTrabalhoWindow::buildBody() {
    auto* body = new QWidget(this);
    auto* row = new QHBoxLayout(body);
    look::layOutBody(*row);
    row->setSpacing(look::kGroupGap);
    employees_ = new EmployeePicker(command_.list(), {.screen = QStringLiteral("contrato")}, body);
    employees_->setFixedWidth(kSideWidth);
    row->addWidget(employees_);
    row->addWidget(buildContract(body), 1);
    connect(employees_, &EmployeePicker::shiftChosen, this, [this](ShiftFilter shift) {
        if (!mayClose()) return employees_->refresh();
        command_.list().filterBy(shift);
        (void)command_.load();
        refresh();
    });
    connect(employees_, &EmployeePicker::employeeChosen, this,
            &ContratoTrabalhoWindow::chooseEmployee);
    connect(employees_, &EmployeePicker::opened, this, [this] { form_->focusFirst(); });
    return body;
}

QWidget* ContratoTrabalhoWindow::buildContract(QWidget* parent) {
    auto* part = new QWidget(parent);
    auto* column = new QVBoxLayout(part);
    look::layOutPart(*column);
    name_ = look::heading(QString(), part);
    name_->setObjectName(QStringLiteral("contrato.name"));
    column->addWidget(name_);
    form_ = new ContractForm(command_.today(), part);
    connect(form_, &ContractForm::edited, this, &ContratoTrabalhoWindow::showState);
    connect(form_, &ContractForm::finished, this,
            [this] { form_->showFindings(command_.findings(form_->typed())); });
    column->addWidget(form_, 1);
    return part;
}

void ContratoTrabalhoWindow::buildCommands() {
    const auto add = [this](const char* icon, const QString& text, const QKeySequence& key,
                            const char* name, auto act, QWidget* within = nullptr) {
        QToolButton* button = addCommand(QLatin1String(icon), text, key,
                                         QStringLiteral("contrato.") + QLatin1String(name), within);
        connect(button, &QToolButton::clicked, this, act);
    };
    add("print", QStringLiteral("Imprimir CTPS"), QKeySequence::Print, "print",
        [this] { print(ReportOutput::Printer); });
    add("preview", QStringLiteral("Visualizar CTPS"), Qt::Key_F7, "preview",
        [this] { print(ReportOutput::Preview); });
    add("documents", QStringLiteral("Texto do Contrato"), Qt::Key_F8, "text",
        [this] { showText(); });
    add(
        "delete", QStringLiteral("Excluir"), Qt::Key_Delete, "remove", [this] { remove(); },
        employees_);
    add("ruler", QStringLiteral("Calibrar"), Qt::Key_F9, "calibrate", [this] { calibrate(); });
    add("sheet", QStringLiteral("Carta de Correção NF-e"), Qt::Key_F10, "letter",
        [this] { emit correctionLetterRequested(); });
}

void ContratoTrabalhoWindow::buildClosingButtons() {
    QPushButton* save =
        addClosingButton(QStringLiteral("Gr&avar"), QStringLiteral("contrato.save"));
    save->setIcon(look::icon(QStringLiteral("save")));
    save->setDefault(true);
    connect(save, &QPushButton::clicked, this, &ContratoTrabalhoWindow::save);
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this,
            &ContratoTrabalhoWindow::save);
    QPushButton* close =
        addClosingButton(QStringLiteral("&Sair"), QStringLiteral("contrato.close"));
    connect(close, &QPushButton::clicked, this, &ContratoTrabalhoWindow::reject);
}

void ContratoTrabalhoWindow::addKeys() {
    for (const auto& [key, by] : {std::pair(Qt::Key_PageUp, -1), std::pair(Qt::Key_PageDown, 1)})
        connect(new QShortcut(key, this), &QShortcut::activated, employees_,
                [this, step = by] { employees_->step(step); });
}

void ContratoTrabalhoWindow::chooseEmployee(std::size_t position) {
    if (position == command_.selectedPosition()) return;
    if (!mayClose()) return employees_->select(command_.selectedPosition());
    (void)command_.select(position);
    showContract();
}

void ContratoTrabalhoWindow::refresh() {
    setChips({toQt(command_.company().code) + QLatin1Char(' ') + toQt(command_.company().name)});
    setSubtitle(command_.endingTrials().empty()
                    ? QStringLiteral("Anotação na carteira e texto do contrato")
                    : toQt(command_.endingTrials()));
    employees_->refresh();
    showContract();
}

void ContratoTrabalhoWindow::showContract() {
    employees_->select(command_.selectedPosition());
    const Employee* one = command_.selected();
    name_->setText(one ? toQt(one->code + " " + one->name)
                       : QStringLiteral("Nenhum funcionário selecionado"));
    form_->setEnabled(one);
    form_->showContract(command_.contract(), one ? *one : Employee());
    form_->showFindings(one ? command_.findings(command_.contract()) : Findings<Contract>());
    showState();
}

void ContratoTrabalhoWindow::showState() {
    if (!command_.selected()) return setState({});
    if (form_->isChanged()) return setState(QStringLiteral("Alterações não gravadas"));
    setState(command_.isRecorded()
                 ? QStringLiteral("Contrato gravado")
                 : QStringLiteral("Contrato ainda não gravado: confira e grave."));
}

void ContratoTrabalhoWindow::finishTyping() {
    if (auto* line = qobject_cast<QLineEdit*>(focusWidget())) emit line->editingFinished();
}

void ContratoTrabalhoWindow::followRefusal() {
    if (const auto member = command_.blamed()) form_->focus(member);
    showState();
}

void ContratoTrabalhoWindow::save() {
    finishTyping();
    if (!command_.save(form_->typed())) return followRefusal();
    refresh();
    employees_->focusList();
}

void ContratoTrabalhoWindow::remove() {
    if (command_.remove()) refresh();
}

void ContratoTrabalhoWindow::print(ReportOutput output) {
    finishTyping();
    if (!command_.printBox(form_->typed(), form_->place(), output)) return followRefusal();
    setState(output == ReportOutput::Printer ? QStringLiteral("Página enviada à impressora.")
                                             : QString());
}

void ContratoTrabalhoWindow::showText() {
    finishTyping();
    if (!command_.showText(form_->typed())) return followRefusal();
    setState(QStringLiteral("Texto aberto no editor de textos."));
}

void ContratoTrabalhoWindow::calibrate() {
    if (!command_.loadPrinter()) return;
    CalibrationWindow window(command_.calibration(),
                             QStringLiteral("Anotação na carteira de trabalho (CTPS)"),
                             QStringLiteral("na carteira de trabalho"), this);
    window.exec();
}

bool ContratoTrabalhoWindow::mayClose() {
    finishTyping();
    return !form_->isChanged() || command_.confirmLeaving();
}

}  // namespace winvrx
