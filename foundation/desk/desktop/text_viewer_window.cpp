#include "foundation/desk/desktop/text_viewer_window.h"

#include "foundation/widgets/desktop/look.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QVBoxLayout>

#include <algorithm>

namespace winvrx {

namespace {

constexpr qreal kPaperMargin = 15;         // millimetres
constexpr qsizetype kUprightColumns = 84;  // that fit a page upright; wider reports lie
constexpr int kWideLetters = 8;            // points

QString widestOf(const QStringList& lines) {
    const auto widest = std::ranges::max_element(lines, {}, &QString::size);
    return widest == lines.end() ? QString() : *widest;
}

}  // namespace

TextViewerWindow::TextViewerWindow(const QString& title, const QString& text, QWidget* parent)
    : ScreenWindow(QStringLiteral("relatorio"), QStringLiteral("Relatório"), parent) {
    setSubtitle(title);
    // Several may be open, and wait in the printer's queue.
    setWindowTitle(windowTitle() + u' ' + title);
    addCommand({"print", QStringLiteral("Imprimir"), QKeySequence::Print, "relatorio.print",
                [this] { print(); }});
    const auto [body, column] = look::body(this);
    text_ = new QPlainTextEdit(text, body);
    look::name(*text_, QStringLiteral("relatorio.text"), title);
    text_->setReadOnly(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text_->setLineWrapMode(QPlainTextEdit::NoWrap);
    text_->setFont(look::fixedFont());
    column->addWidget(text_);
    setBody(body);
    addLeavingButton("relatorio.close");
    text_->setFocus();
}

void TextViewerWindow::print() {
    QPrinter printer;
    printer.setDocName(windowTitle());
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() != QDialog::Accepted) return;
    printOn(printer);
}

void TextViewerWindow::printOn(QPagedPaintDevice& paper) const {
    QStringList lines = text_->toPlainText().split(u'\n');
    while (!lines.isEmpty() && lines.back().isEmpty())
        lines.removeLast();
    const QString widest = widestOf(lines);
    QFont font = look::reportFont();
    if (widest.size() > kUprightColumns) {
        font.setPointSize(kWideLetters);
        paper.setPageOrientation(QPageLayout::Landscape);
    }
    paper.setPageMargins({kPaperMargin, kPaperMargin, kPaperMargin, kPaperMargin},
                         QPageLayout::Millimeter);
    QPainter painter(&paper);
    painter.setFont(font);
    const QFontMetricsF letters = painter.fontMetrics();
    // What is wider than the paper is made smaller until it fits.
    const double scale =
        std::min(1.0, painter.viewport().width() / letters.horizontalAdvance(widest));
    painter.scale(scale, scale);
    const QSizeF page = QSizeF(painter.viewport().size()) / scale;
    // Two lines are the page number's.
    const auto perPage = static_cast<qsizetype>(page.height() / letters.lineSpacing()) - 2;
    const qsizetype pages = std::max<qsizetype>((lines.size() + perPage - 1) / perPage, 1);
    for (qsizetype number = 0; number < pages; ++number) {
        if (number > 0) paper.newPage();
        for (qsizetype at = 0; at < std::min(perPage, lines.size() - number * perPage); ++at)
            painter.drawText(
                QPointF(0, letters.ascent() + static_cast<double>(at) * letters.lineSpacing()),
                lines[number * perPage + at]);
        painter.drawText(QRectF(QPointF(), page), Qt::AlignRight | Qt::AlignBottom,
                         QStringLiteral("Página %1 de %2").arg(number + 1).arg(pages));
    }
}

}  // namespace winvrx
