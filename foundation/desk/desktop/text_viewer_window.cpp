#include "foundation/desk/desktop/text_viewer_window.h"

#include "foundation/widgets/desktop/look.h"

#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTextDocument>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace winvrx {

namespace {

constexpr qreal kPaperMargin = 15;  // millimetres

}  // namespace

TextViewerWindow::TextViewerWindow(const QString& title, const QString& text, QWidget* parent)
    : ScreenWindow(QStringLiteral("relatorio"), QStringLiteral("Relatório"), parent) {
    setSubtitle(title);
    QToolButton* print = addCommand(QStringLiteral("print"), QStringLiteral("Imprimir"),
                                    QKeySequence::Print, QStringLiteral("relatorio.print"));
    connect(print, &QToolButton::clicked, this, &TextViewerWindow::print);
    auto* body = new QWidget(this);
    auto* column = new QVBoxLayout(body);
    look::layOutBody(*column);
    text_ = new QPlainTextEdit(text, body);
    look::name(*text_, QStringLiteral("relatorio.text"), title);
    text_->setReadOnly(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text_->setLineWrapMode(QPlainTextEdit::NoWrap);
    text_->setFont(look::fixedFont());
    column->addWidget(text_);
    setBody(body);
    QPushButton* close =
        addClosingButton(QStringLiteral("&Sair"), QStringLiteral("relatorio.close"));
    connect(close, &QPushButton::clicked, this, &TextViewerWindow::reject);
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
    paper.setPageMargins({kPaperMargin, kPaperMargin, kPaperMargin, kPaperMargin},
                         QPageLayout::Millimeter);
    QTextDocument text;
    text.setDocumentMargin(0);
    text.setDefaultFont(look::reportFont());
    QTextOption columns = text.defaultTextOption();
    columns.setWrapMode(QTextOption::NoWrap);
    text.setDefaultTextOption(columns);
    text.setPlainText(text_->toPlainText());
    // A page as wide as the widest line is made smaller until it fits the paper.
    QSizeF page = paper.pageLayout().paintRect(QPageLayout::Inch).size() * text_->logicalDpiX();
    page *= std::max(1.0, std::ceil(text.idealWidth()) / page.width());
    text.setPageSize(page);
    text.print(&paper);
}

}  // namespace winvrx
