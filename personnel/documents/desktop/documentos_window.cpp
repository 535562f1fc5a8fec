#include "personnel/documents/desktop/documentos_window.h"

#include "foundation/register/desktop/employee_picker.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/faults.h"
#include "foundation/widgets/desktop/enter_key.h"
#include "foundation/widgets/desktop/look.h"
#include "personnel/documents/desktop/paper_form.h"
#include "personnel/documents/desktop/paper_view.h"

#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QTextBrowser>
#include <QToolButton>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr int kSideWidth = 272;
constexpr int kFormWidth = 384;
constexpr int kPause = 150;  // milliseconds

}  // namespace

DocumentosWindow::DocumentosWindow(Documentos& screen, const std::vector<Neighbour>& neighbours,
                                   QWidget* parent)
    : ScreenWindow(QStringLiteral("documentos"), QStringLiteral("Documentos (Acordos)"), parent),
      screen_(screen) {
    screen_.load();
    setChips({toQt(screen_.companyTitle())});
    setBody({{buildEmployees()}, {buildPapers()}, {buildText(), 1}}, look::kMargin);
    buildCommands(neighbours);
    form_->showPaper();
    textDue_.setSingleShot(true);
    textDue_.setInterval(kPause);
    connect(&textDue_, &QTimer::timeout, this, &DocumentosWindow::showText);
    employees_->refresh();
    chooseEmployee(employees_->selected());
    employees_->focusList();
}

void DocumentosWindow::buildCommands(const std::vector<Neighbour>& neighbours) {
    addCommand({"edit", QStringLiteral("Abrir no Editor"), Qt::Key_F4, "documents.open",
                [this] { send(&Documentos::show); }})
        ->setToolTip(QStringLiteral("Abre o documento no LibreOffice Writer, para mudá-lo (F4)"));
    for (const Neighbour& one : neighbours)
        addCommand({one.icon, one.text, one.key, one.name, [this, open = one.open] {
                        open(this);
                        screen_.load();
                        employees_->refresh();
                        showEmployee();
                    }});
    addDefaultButton({"print", QStringLiteral("&Imprimir"), QKeySequence::Print, "documents.print",
                      [this] { send(&Documentos::print); }});
    addLeavingButton("documents.close");
}

QWidget* DocumentosWindow::buildEmployees() {
    employees_ = new EmployeePicker(screen_.list(), {.screen = QStringLiteral("documents")}, this);
    employees_->setFixedWidth(kSideWidth);
    connect(employees_, &EmployeePicker::shiftChosen, this, [this](ShiftFilter shift) {
        if (!screen_.select(std::nullopt)) return employees_->refresh();
        screen_.list().filterBy(shift);
        employees_->refresh();
        chooseEmployee(employees_->selected());
    });
    connect(employees_, &EmployeePicker::employeeChosen, this,
            [this](std::size_t position) { chooseEmployee(position); });
    connect(employees_, &EmployeePicker::opened, this,
            [this] { papers_->setFocus(Qt::TabFocusReason); });
    return employees_;
}

QWidget* DocumentosWindow::buildPapers() {
    const auto [part, column] = look::part(this);
    part->setFixedWidth(kFormWidth);
    column->addWidget(look::heading(QStringLiteral("Documentos"), part));
    papers_ = new QListWidget(part);
    look::name(*papers_, QStringLiteral("documents.papers"), QStringLiteral("Documentos"));
    papers_->setTextElideMode(Qt::ElideRight);
    papers_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const PaperKind& kind : paperKinds()) {
        auto* row = new QListWidgetItem(toQt(std::string(kind.title)), papers_);
        row->setToolTip(row->text());
    }
    papers_->setCurrentRow(static_cast<int>(screen_.paper()));
    connect(papers_, &QListWidget::currentRowChanged, this, &DocumentosWindow::choosePaper);
    connect(papers_, &QListWidget::itemDoubleClicked, this, [this] { form_->focusFirst(); });
    onEnter(*papers_, [this] { form_->focusFirst(); });
    column->addWidget(papers_, 2);
    form_ = new PaperForm(screen_, part);
    connect(form_, &PaperForm::edited, this, [this] { textDue_.start(); });
    column->addWidget(look::scrolled(form_, part), 3);
    return part;
}

QWidget* DocumentosWindow::buildText() {
    const auto [part, column] = look::part(this);
    column->addWidget(look::heading(QStringLiteral("Como será impresso"), part));
    text_ = new QTextBrowser(part);
    look::name(*text_, QStringLiteral("documents.text"), QStringLiteral("Como será impresso"));
    column->addWidget(text_, 1);
    remark_ = look::paragraph(QStringLiteral("documents.remark"), look::TextSize::Body, part);
    look::setTint(*remark_, look::Tint::Warning);
    column->addWidget(remark_);
    return part;
}

void DocumentosWindow::chooseEmployee(std::optional<std::size_t> position) {
    finishTyping();
    (void)screen_.select(position);
    employees_->select(screen_.list().selectedPosition());
    showEmployee();
}

void DocumentosWindow::choosePaper(int row) {
    finishTyping();
    screen_.choose(static_cast<Paper>(row));
    form_->showPaper();
    showText();
}

void DocumentosWindow::showEmployee() {
    form_->refresh();
    showText();
}

void DocumentosWindow::showText() {
    textDue_.stop();
    const Employee* one = screen_.selected();
    setSubtitle(one ? toQt(one->code + " " + one->name)
                    : QStringLiteral("Nenhum funcionário selecionado"));
    setState(screen_.isChanged() ? QStringLiteral("Dados ainda não impressos")
                                 : QStringLiteral("ENTER no documento preenche os dados; Ctrl+P "
                                                  "imprime"));
    QString remark;
    try {
        text_->setHtml(htmlOf(screen_.composedPaper()));
        remark = toQt(screen_.remark());
    } catch (const std::exception& fault) {
        text_->clear();
        remark = toQt(explanationOf(fault));
    }
    look::showWarning(*remark_, remark);
}

void DocumentosWindow::send(bool (Documentos::*command)()) {
    finishTyping();
    (void)(screen_.*command)();
    showText();
    if (!screen_.blamed().empty()) form_->focus(screen_.blamed());
}

bool DocumentosWindow::mayClose() {
    finishTyping();
    return screen_.confirmLeaving();
}

MenuEntry documentsEntry(const Workplace& at, const DocumentsDesk& desk,
                         const std::vector<DocumentosWindow::Neighbour>& neighbours) {
    return {
        .group = QStringLiteral("Pessoal"),
        .tile = {"documents", QStringLiteral("D&ocumentos"), "menu.documents.open"},
        .needs = MenuNeeds::Employees,
        .open =
            [at, desk, neighbours](QWidget* parent) {
                Documentos screen(at, desk);
                DocumentosWindow(screen, neighbours, parent).exec();
            },
        .state = [](const MonthProgress*) { return QStringLiteral("Acordos, avisos e recibos"); }};
}

}  // namespace winvrx
