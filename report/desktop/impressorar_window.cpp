#include "report/desktop/impressorar_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/option_group.h"
#include "report/impressorar.h"

#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace winvrx {

namespace {

enum Kind { kDefault, kInstalled };

constexpr QSize kUsualSize(720, 480);

}  // namespace

ImpressorarWindow::ImpressorarWindow(Impressorar& screen, QWidget* parent)
    : ScreenWindow(QStringLiteral("impressorar"), toQt(kImpressorarTitle), parent),
      screen_(screen) {
    buildCommands();
    setBody(buildBody());
    addLeavingButton("impressorar.close", QStringLiteral("&Fechar"))->setDefault(true);
    connectAll();
    resize(kUsualSize);
    refresh();
    kind_->setFocus();
}

void ImpressorarWindow::buildCommands() {
    addCommand({"add", QStringLiteral("Adicionar Uma Impressora =>>"), Qt::Key_Insert,
                "impressorar.add", [this] { (void)screen_.add(); }});
    addCommand({"refresh", QStringLiteral("Atualizar"), Qt::Key_F5, "impressorar.refresh",
                [this] { refresh(); }});
}

QWidget* ImpressorarWindow::buildBody() {
    const auto [body, column] = look::body(this);
    kind_ = new OptionGroup(
        QStringLiteral("&Impressora dos cartões"), QStringLiteral("impressorar.kind"), 2,
        {{kDefault, QStringLiteral("Imprimir direto na Impressora &Padrão"), "default"},
         {kInstalled, QStringLiteral("&Selecione uma Impressora Instalada"), "installed"}},
        body);
    column->addWidget(kind_);
    list_ = new QListWidget(body);
    look::name(*list_, QStringLiteral("impressorar.printers"),
               QStringLiteral("Impressoras instaladas"));
    column->addWidget(list_, 1);
    empty_ = look::label(
        QStringLiteral("Nenhuma impressora instalada. Use \"Adicionar Uma Impressora =>>\"."),
        look::TextSize::Body, body);
    empty_->setObjectName(QStringLiteral("impressorar.empty"));
    empty_->setWordWrap(true);
    column->addWidget(empty_);
    return body;
}

void ImpressorarWindow::connectAll() {
    connect(kind_, &OptionGroup::picked, this, &ImpressorarWindow::chooseKind);
    // A list that gets the focus has a current row before anybody picked one.
    connect(list_, &QListWidget::itemSelectionChanged, this, [this] {
        if (!list_->selectedItems().isEmpty())
            chooseRow(list_->row(list_->selectedItems().front()));
    });
}

/// The choice is not read again here: a message about it would make the window active once more.
void ImpressorarWindow::changeEvent(QEvent* event) {
    ScreenWindow::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || !isVisible()) return;
    if (screen_.refreshPrinters()) showPrinters();
}

void ImpressorarWindow::refresh() {
    screen_.load();
    showPrinters();
}

/// The list's option waits for a printer to be picked.
void ImpressorarWindow::chooseKind(int kind) {
    if (kind == kDefault) (void)screen_.useDefault();
    if (kind == kDefault || screen_.printers().empty()) {
        showChoice();
        return;
    }
    list_->setFocus();
    setState(QStringLiteral("Escolha a impressora na lista, com as setas ou com Espaço."));
}

void ImpressorarWindow::chooseRow(int row) {
    if (screen_.position() == static_cast<std::size_t>(row)) return;
    if (screen_.use(static_cast<std::size_t>(row)))
        showChoice();
    else  // The list is not to change while it tells of a row.
        QMetaObject::invokeMethod(this, &ImpressorarWindow::refresh, Qt::QueuedConnection);
}

void ImpressorarWindow::showPrinters() {
    const QSignalBlocker quiet(list_);
    list_->clear();
    for (const std::string& entry : screen_.entries())
        list_->addItem(toQt(entry));
    list_->setVisible(list_->count() > 0);
    empty_->setVisible(list_->count() == 0);
    showChoice();
}

void ImpressorarWindow::showChoice() {
    const QSignalBlocker quiet(list_);
    list_->clearSelection();
    if (const auto chosen = screen_.position()) list_->setCurrentRow(static_cast<int>(*chosen));
    const bool isDefault = screen_.chosen().empty();
    kind_->choose(isDefault ? kDefault : kInstalled);
    setSubtitle(isDefault ? QStringLiteral("Em uso: impressora padrão")
                          : QStringLiteral("Em uso: ") + toQt(screen_.chosen()));
    const std::string problem = screen_.problem();
    if (!problem.empty())
        setState(QStringLiteral("⚠ ") + toQt(problem));
    else
        setState(isDefault ? QStringLiteral("Impressora padrão: ") + toQt(screen_.defaultPrinter())
                           : QStringLiteral("A escolha é gravada na hora."));
}

void openPrinters(const Workplace& at, Printers& printers, QWidget* parent) {
    Impressorar screen(at, printers);
    ImpressorarWindow(screen, parent).exec();
}

}  // namespace winvrx
