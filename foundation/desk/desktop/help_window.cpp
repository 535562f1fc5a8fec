#include "foundation/desk/desktop/help_window.h"

#include "foundation/widgets/desktop/look.h"

#include <QPushButton>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>

namespace winvrx {

HelpWindow::HelpWindow(const QUrl& section, QWidget* parent)
    : ScreenWindow(QStringLiteral("ajuda"), QStringLiteral("Ajuda"), parent) {
    auto* page = new QTextBrowser(this);
    look::name(*page, QStringLiteral("ajuda.page"), QStringLiteral("Ajuda"));
    page->setSource(section.adjusted(QUrl::RemoveFragment));
    setBody(page);
    QPushButton* close = addClosingButton(QStringLiteral("&Sair"), QStringLiteral("ajuda.close"));
    connect(close, &QPushButton::clicked, this, &HelpWindow::reject);
    // The page has its places only when it is laid out in the window's width.
    QTimer::singleShot(0, page, [page, section] { page->scrollToAnchor(section.fragment()); });
    page->setFocus();
}

}  // namespace winvrx
