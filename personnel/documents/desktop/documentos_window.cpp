#include "personnel/documents/desktop/documentos_window.h"

#include "foundation/register/desktop/employee_picker.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/faults.h"
#include "foundation/widgets/desktop/look.h"
#include "personnel/documents/desktop/paper_form.h"
#include "personnel/documents/desktop/paper_view.h"
#include "personnel/documents/documentos.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
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
    auto* body = new QWidget(this);
    auto* row = new QHBoxLayout(body);
    look::layOutBody(*row);
    row->setSpacing(look::kMargin);
    row->addWidget(buildEmployees());
    row->addWidget(buildPapers());
    row->addWidget(buildText(), 1);
    setBody(body);
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
    QToolButton* open = addCommand(QStringLiteral("edit"), QStringLiteral("Abrir no Editor"),
                                   Qt::Key_F4, QStringLiteral("documents.open"));
    open->setToolTip(QStringLiteral("Abre o documento no LibreOffice Writer, para mudá-lo (F4)"));
    connect(open, &QToolButton::clicked, this, [this] { send(&Documentos::show); });
    for (const Neighbour& one : neighbours)
        connect(addCommand(one.icon, one.text, one.key, one.objectName), &QToolButton::clicked,
                this, [this, open = one.open] {
                    open(this);
                    screen_.load();
                    employees_->refresh();
                    showEmployee();
                });
    QPushButton* print =
        addClosingButton(QStringLiteral("&Imprimir"), QStringLiteral("documents.print"));
    print->setIcon(look::icon(QStringLiteral("print")));
    print->setDefault(true);
    connect(print, &QPushButton::clicked, this, [this] { send(&Documentos::print); });
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, print,
            &QPushButton::click);
    QPushButton* close =
        addClosingButton(QStringLiteral("&Sair"), QStringLiteral("documents.close"));
    connect(close, &QPushButton::clicked, this, &DocumentosWindow::reject);
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
    auto* part = new QWidget(this);
    part->setFixedWidth(kFormWidth);
    auto* column = new QVBoxLayout(part);
    look::layOutPart(*column);
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
    papers_->installEventFilter(this);
    column->addWidget(papers_, 2);
    form_ = new PaperForm(screen_, part);
    connect(form_, &PaperForm::edited, this, [this] { textDue_.start(); });
    column->addWidget(look::scrolled(form_, part), 3);
    return part;
}

QWidget* DocumentosWindow::buildText() {
    auto* part = new QWidget(this);
    auto* column = new QVBoxLayout(part);
    look::layOutPart(*column);
    column->addWidget(look::heading(QStringLiteral("Como será impresso"), part));
    text_ = new QTextBrowser(part);
    look::name(*text_, QStringLiteral("documents.text"), QStringLiteral("Como será impresso"));
    column->addWidget(text_, 1);
    remark_ = look::label(QString(), look::TextSize::Body, part);
    remark_->setObjectName(QStringLiteral("documents.remark"));
    remark_->setWordWrap(true);
    look::setTint(*remark_, look::Tint::Warning);
    column->addWidget(remark_);
    return part;
}

void DocumentosWindow::chooseEmployee(std::optional<std::size_t> position) {
    form_->finishTyping();
    (void)screen_.select(position);
    employees_->select(screen_.selectedPosition());
    showEmployee();
}

void DocumentosWindow::choosePaper(int row) {
    form_->finishTyping();
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
    remark_->setText(remark.isEmpty() ? remark : QStringLiteral("⚠ ") + remark);
    remark_->setVisible(!remark.isEmpty());
}

void DocumentosWindow::send(bool (Documentos::*command)()) {
    form_->finishTyping();
    (void)(screen_.*command)();
    showText();
    if (!screen_.blamed().empty()) form_->focus(screen_.blamed());
}

/// ENTER on a paper goes on to its form.
bool DocumentosWindow::eventFilter(QObject* watched, QEvent* event) {
    const int key =
        event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : Qt::Key_unknown;
    if (watched != papers_ || (key != Qt::Key_Return && key != Qt::Key_Enter))
        return ScreenWindow::eventFilter(watched, event);
    form_->focusFirst();
    return true;
}

bool DocumentosWindow::mayClose() {
    form_->finishTyping();
    return screen_.confirmLeaving();
}

}  // namespace winvrx
