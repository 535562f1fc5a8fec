#pragma once

#include "report/desktop/layout.h"

#include <QScrollArea>

#include <functional>
#include <memory>
#include <optional>

namespace winvrx {

class LayoutPainter;
class PageView;

/// Finds the layout of a name; throws Fault.
using LayoutSource = std::function<Layout(const std::string& name)>;

/// A card on the screen as it would be printed: the stock where it lies, the print moved by the
/// alignment, both drawn by the print code.
class CardSample : public QScrollArea {
    Q_OBJECT

  public:
    explicit CardSample(LayoutSource layouts, QWidget* parent = nullptr);
    ~CardSample() override;

    /// A layout that is missing or damaged is said in its place.
    void showCard(const std::string& layoutName, const ReportRows& rows, const Alignment& alignment,
                  bool header);
    /// Moves the print; the view stays where it is.
    void align(const Alignment& alignment);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void showProblem(const QString& text);
    void lookAtTheCard();

    LayoutSource layouts_;
    std::optional<Layout> layout_;
    std::unique_ptr<LayoutPainter> painter_;
    PageText rows_;
    bool header_ = true;
    PageView* page_ = nullptr;
};

}  // namespace winvrx
