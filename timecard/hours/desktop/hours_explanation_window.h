#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "timecard/hours/hours_summary.h"

class QTreeWidget;

namespace winvrx {

/// The days and minutes that make up one figure, each with the rule applied.
class HoursExplanationWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// `owner` says whose hours they are and in which month.
    HoursExplanationWindow(const HoursSummary& hours, HourCategory category,
                           std::optional<HalfMonth> half, const QString& owner,
                           QWidget* parent = nullptr);

  private:
    [[nodiscard]] QWidget* buildBody(const std::vector<ExplainedPart>& parts);
    [[nodiscard]] QTreeWidget* buildTable(const std::vector<ExplainedPart>& parts);
};

}  // namespace winvrx
