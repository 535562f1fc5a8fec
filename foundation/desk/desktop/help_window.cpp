#include "foundation/desk/desktop/help_window.h"

#include "foundation/widgets/desktop/look.h"

#include <QFrame>
#include <QImage>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>

namespace winvrx {

namespace {

constexpr int kPictureWidth = 880;  ///< fits the smallest screen

/// The page without the style that it has for browsers, whose lengths this view takes for others.
class HelpPage : public QTextBrowser {
  public:
    explicit HelpPage(QWidget* parent) : QTextBrowser(parent) {
        look::name(*this, QStringLiteral("ajuda.page"), QStringLiteral("Ajuda"));
        setFrameShape(QFrame::NoFrame);
        document()->setDocumentMargin(look::kMargin);
        document()->setDefaultStyleSheet(QStringLiteral("td, th { padding: 3px 8px; }"));
    }

  protected:
    QVariant loadResource(int type, const QUrl& name) override {
        if (type == QTextDocument::StyleSheetResource) return {};
        const QVariant found = QTextBrowser::loadResource(type, name);
        if (type == QTextDocument::HtmlResource) return QString::fromUtf8(found.toByteArray());
        if (type != QTextDocument::ImageResource) return found;
        return QImage::fromData(found.toByteArray())
            .scaledToWidth(kPictureWidth, Qt::SmoothTransformation);
    }
};

}  // namespace

HelpWindow::HelpWindow(const QUrl& section, QWidget* parent)
    : ScreenWindow(QStringLiteral("ajuda"), QStringLiteral("Ajuda"), parent) {
    auto* page = new HelpPage(this);
    page->setSource(section.adjusted(QUrl::RemoveFragment));
    setBody(page);
    findChild<QFrame*>(QStringLiteral("commandBar"))->hide();
    addLeavingButton("ajuda.close");
    // The page has its places only when it is laid out in the window's width.
    QTimer::singleShot(0, page, [page, section] { page->scrollToAnchor(section.fragment()); });
    page->setFocus();
}

}  // namespace winvrx
