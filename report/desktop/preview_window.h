#pragma once

#include "foundation/widgets/desktop/screen_window.h"

class QScrollArea;

namespace winvrx {

class PageSpool;
class LayoutPainter;
class PageView;

/// The pages of a run, shown before they are printed. A page is painted when it is looked at.
class PreviewWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// `pages` holds one page or more; it and `painter` outlive the window.
    PreviewWindow(const QString& title, LayoutPainter& painter, PageSpool& pages, QWidget* parent);

    /// The file name that "Salvar PDF" proposes.
    void proposePdf(const QString& name) { pdfName_ = name; }

    /// Says in the state bar what became of a command.
    void tell(const QString& text);

  signals:
    void printRequested();
    /// The operator chose this file.
    void pdfRequested(const QString& path);

  protected:
    void wheelEvent(QWheelEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void buildPageCommands();
    void buildZoomCommands();
    void buildOutputCommands();
    QWidget* buildBody(LayoutPainter& painter);
    /// A card has a page for each of its faces.
    [[nodiscard]] int pageCount() const;
    [[nodiscard]] QString whichPage() const;
    void showPage(int page);
    void zoomBy(int steps);
    void zoomToPage();
    void showZoom();
    void choosePdf();

    PageSpool& pages_;
    int sides_;
    PageView* view_;
    QScrollArea* scroll_;
    QToolButton* previous_ = nullptr;
    QToolButton* next_ = nullptr;
    QString pdfName_;
    int page_ = 0;
    double zoom_ = 1;
};

}  // namespace winvrx
