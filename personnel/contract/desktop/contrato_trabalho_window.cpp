#include "personnel/contract/desktop/contrato_trabalho_window.h"

#include "foundation/register/desktop/employee_picker.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "personnel/contract/desktop/contract_form.h"
#include "report/desktop/calibration_window.h"

#include <QLabel>
#include <QVBoxLayout>

namespace winvrx {

namespace {

/// The trials that end soon; without the files to tell them, what the screen is for.
QString stateLine(const Workplace& at) {
    std::string ending;
    try {
        if (at.session.company)
            ending = endingTrialsText(at.store(), *at.session.company, at.clock.today());
    } catch (const std::exception& fault) {
        at.log.write(std::string("ending trials: ") + fault.what());
    }
    return ending.empty() ? QStringLiteral("Carteira, experiência, texto") : toQt(ending);
}

}  // namespace

ContratoTrabalhoWindow::ContratoTrabalhoWindow(ContratoTrabalho& command, OpenLetters openLetters,
                                               QWidget* parent)
    : ScreenWindow(QStringLiteral("contrato"), QStringLiteral("Contrato de Trabalho"), parent),
      command_(command),
      openLetters_(std::move(openLetters)) {
    setBody({{buildEmployees()}, {buildContract(), 1}});
    buildCommands();
    refresh();
    employees_->focusList();
}

QWidget* ContratoTrabalhoWindow::buildEmployees() {
    employees_ = new EmployeePicker(command_.list(), {.screen = QStringLiteral("contrato")}, this);
    employees_->setFixedWidth(look::kSideWidth);
    connect(employees_, &EmployeePicker::shiftChosen, this, [this](ShiftFilter shift) {
        if (!mayClose()) return employees_->refresh();
        command_.list().filterBy(shift);
        (void)command_.load();
        refresh();
    });
    connect(employees_, &EmployeePicker::employeeChosen, this,
            &ContratoTrabalhoWindow::chooseEmployee);
    connect(employees_, &EmployeePicker::opened, this, [this] { form_->focusFirst(); });
    return employees_;
}

QWidget* ContratoTrabalhoWindow::buildContract() {
    const auto [part, column] = look::part(this);
    name_ = look::line(QStringLiteral("contrato.name"), look::TextSize::Heading, part);
    column->addWidget(name_);
    form_ = new ContractForm(command_.today(), part);
    connect(form_, &ContractForm::edited, this, &ContratoTrabalhoWindow::showState);
    connect(form_, &ContractForm::finished, this,
            [this] { form_->showFindings(command_.findings(form_->typed())); });
    column->addWidget(form_, 1);
    return part;
}

void ContratoTrabalhoWindow::buildCommands() {
    addCommand({"print", QStringLiteral("Imprimir CTPS"), QKeySequence::Print, "contrato.print",
                [this] { print(ReportOutput::Printer); }});
    addCommand({"preview", QStringLiteral("Visualizar CTPS"), Qt::Key_F7, "contrato.preview",
                [this] { print(ReportOutput::Preview); }});
    addCommand({"documents", QStringLiteral("Texto do Contrato"), Qt::Key_F8, "contrato.text",
                [this] { showText(); }});
    addCommand({"delete", QStringLiteral("Excluir"), Qt::Key_Delete, "contrato.remove",
                [this] { remove(); }, employees_});
    addCommand({"ruler", QStringLiteral("Calibrar"), Qt::Key_F9, "contrato.calibrate",
                [this] { calibrate(); }});
    addCommand({"sheet", QStringLiteral("Carta de Correção NF-e"), Qt::Key_F10, "contrato.letter",
                [this] { openLetters_(this); }});
    addDefaultButton({"save", QStringLiteral("Gr&avar"), QKeySequence::Save, "contrato.save",
                      [this] { save(); }});
    addLeavingButton("contrato.close");
    addPageKeys([this](int by) { employees_->step(by); });
}

void ContratoTrabalhoWindow::chooseEmployee(std::size_t position) {
    if (position == command_.list().selectedPosition()) return;
    if (!mayClose()) return employees_->select(command_.list().selectedPosition());
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
    employees_->select(command_.list().selectedPosition());
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

MenuEntry contractEntry(const Workplace& at, const ContractDesk& desk,
                        const OpenLetters& openLetters) {
    return {.group = QStringLiteral("Pessoal"),
            .tile = {"contract", QStringLiteral("Contrato"), "menu.contract.open"},
            .needs = MenuNeeds::Employees,
            .open =
                [at, desk, openLetters](QWidget* parent) {
                    ContratoTrabalho contracts(at, desk);
                    (void)contracts.load();
                    ContratoTrabalhoWindow(contracts, openLetters, parent).exec();
                },
            .state = [at](const MonthProgress*) { return stateLine(at); }};
}

}  // namespace winvrx
