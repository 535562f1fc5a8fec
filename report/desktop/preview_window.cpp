#include "report/desktop/preview_window.h"

#include "foundation/values/faults.h"
#include "foundation/widgets/desktop/look.h"
#include "report/desktop/layout_painter.h"
#include "report/desktop/page_spool.h"
#include "report/desktop/page_view.h"
#include "report/desktop/pdf_file_dialog.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace winvrx {

namespace {

constexpr double kZoomStep = 1.25;
constexpr double kSmallestZoom = 0.25;
constexpr double kLargestZoom = 5.0;

}  // namespace

PreviewWindow::PreviewWindow(const QString& title, LayoutPainter& painter, PageSpool& pages,
                             QWidget* parent)
    : ScreenWindow(QStringLiteral("preview"), title, parent),
      pages_(pages),
      sides_(painter.layout().sides) {
    setBody(buildBody(painter));
    buildOutputCommands();
    buildPageCommands();
    buildZoomCommands();
    addLeavingButton("preview.close", QStringLiteral("&Fechar"));
    scroll_->setFocus();
    showPage(0);
    showZoom();
}

QWidget* PreviewWindow::buildBody(LayoutPainter& painter) {
    view_ = new PageView(painter);
    view_->setObjectName(QStringLiteral("preview.page"));
    scroll_ = new QScrollArea(this);
    look::name(*scroll_, QStringLiteral("preview.scroll"), QStringLiteral("Visualização"));
    scroll_->setWidget(view_);
    scroll_->setAlignment(Qt::AlignCenter);
    scroll_->setBackgroundRole(QPalette::Mid);
    scroll_->setFrameShape(QFrame::NoFrame);
    return scroll_;
}

void PreviewWindow::buildOutputCommands() {
    addCommand({"print", QStringLiteral("Imprimir"), QKeySequence::Print, "preview.print",
                [this] { emit printRequested(); }});
    addCommand({"pdf", QStringLiteral("Salvar PDF"), QKeySequence::Save, "preview.pdf",
                [this] { choosePdf(); }});
}

void PreviewWindow::buildPageCommands() {
    previous_ = addCommand({"left", QStringLiteral("Anterior"), Qt::Key_PageUp, "preview.previous",
                            [this] { showPage(page_ - 1); }});
    next_ = addCommand({"right", QStringLiteral("Próximo"), Qt::Key_PageDown, "preview.next",
                        [this] { showPage(page_ + 1); }});
    connect(new QShortcut(Qt::Key_Home, this), &QShortcut::activated, this,
            [this] { showPage(0); });
    connect(new QShortcut(Qt::Key_End, this), &QShortcut::activated, this,
            [this] { showPage(pageCount() - 1); });
}

void PreviewWindow::buildZoomCommands() {
    addCommand({"zoom-in", QStringLiteral("Ampliar"), QKeySequence::ZoomIn, "preview.zoomIn",
                [this] { zoomBy(1); }});
    addCommand({"zoom-out", QStringLiteral("Reduzir"), QKeySequence::ZoomOut, "preview.zoomOut",
                [this] { zoomBy(-1); }});
    addCommand({"sheet", QStringLiteral("Folha inteira"), Qt::CTRL | Qt::Key_0, "preview.wholePage",
                [this] { zoomToPage(); }});
}

int PreviewWindow::pageCount() const {
    return static_cast<int>(pages_.size()) * sides_;
}

/// "1 de 48"; of a card with two sides "1 de 48, frente".
QString PreviewWindow::whichPage() const {
    const QString page = QStringLiteral("%1 de %2").arg(page_ / sides_ + 1).arg(pages_.size());
    if (sides_ == 1) return page;
    return page + (page_ % sides_ == 0 ? QStringLiteral(", frente") : QStringLiteral(", verso"));
}

void PreviewWindow::showPage(int page) {
    const int count = pageCount();
    page_ = std::clamp(page, 0, count - 1);
    previous_->setEnabled(page_ > 0);
    next_->setEnabled(page_ < count - 1);
    try {
        const auto rows = pages_.at(static_cast<std::size_t>(page_ / sides_));
        view_->showPage(pageText(rows), 1 + page_ % sides_);
        setState(whichPage());
    } catch (const Fault& fault) {
        tell(QStringLiteral("⚠ ") + QString::fromStdString(fault.explanation()));
    }
}

void PreviewWindow::zoomBy(int steps) {
    zoom_ = std::clamp(zoom_ * std::pow(kZoomStep, steps), kSmallestZoom, kLargestZoom);
    showZoom();
}

void PreviewWindow::zoomToPage() {
    const QSize margin(2 * look::kGap, 2 * look::kGap);
    zoom_ = view_->zoomToFit(scroll_->maximumViewportSize() - margin);
    showZoom();
}

/// What was in the middle stays there.
void PreviewWindow::showZoom() {
    QScrollBar* across = scroll_->horizontalScrollBar();
    const double middle = (across->value() + across->pageStep() / 2.0) / view_->width();
    view_->setZoom(zoom_);
    across->setValue(qRound(middle * view_->width() - across->pageStep() / 2.0));
    setSubtitle(QStringLiteral("Tamanho na tela: %1 %").arg(std::lround(zoom_ * 100)));
}

void PreviewWindow::choosePdf() {
    const QString name = pdfName_.isEmpty() ? windowTitle() + QStringLiteral(".pdf") : pdfName_;
    const QString path = choosePdfFile(this, QStringLiteral("Salvar PDF"), name);
    if (!path.isEmpty()) emit pdfRequested(path);
}

void PreviewWindow::tell(const QString& text) {
    setState(whichPage() + QStringLiteral(" · ") + text);
}

void PreviewWindow::wheelEvent(QWheelEvent* event) {
    if (event->modifiers().testFlag(Qt::ControlModifier) && event->angleDelta().y() != 0)
        zoomBy(event->angleDelta().y() > 0 ? 1 : -1);
    else
        ScreenWindow::wheelEvent(event);
}

/// Cards lie in the middle of a sheet's width more often than at its edge.
void PreviewWindow::showEvent(QShowEvent* event) {
    ScreenWindow::showEvent(event);
    QScrollBar* across = scroll_->horizontalScrollBar();
    across->setValue((across->minimum() + across->maximum()) / 2);
}

}  // namespace winvrx
