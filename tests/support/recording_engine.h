#pragma once

#include "report/report_engine.h"

#include <deque>
#include <vector>

namespace winvrx::testing {

/// Takes every card of every job, remembers it and prints nothing. Like the real engine it asks
/// for a card when the one before is done, and stops when progress says so.
class RecordingEngine final : public ReportEngine {
  public:
    struct Job {
        ReportRequest request;
        std::vector<std::vector<CardRow>> cards;
    };

    std::vector<Job> jobs;
    /// Results of the coming jobs; Done when used up. A job that does not end Done takes no card.
    std::deque<ReportResult> results;
    /// What the operator does in a preview.
    std::function<void(const ReportRequest&)> whilePreviewed;
    int sides = 1;    ///< of every layout
    std::string why;  ///< the explanation of a failed job

    [[nodiscard]] ReportResult print(const ReportRequest& request, const CardSource& cards,
                                     const CardProgress& progress) override {
        jobs.push_back({request, {}});
        if (!results.empty()) {
            const ReportResult result = results.front();
            results.pop_front();
            if (result != ReportResult::Done) return result;
        }
        while (auto card = cards()) {
            jobs.back().cards.push_back(*std::move(card));
            if (!progress(static_cast<int>(jobs.back().cards.size())))
                return ReportResult::Cancelled;
        }
        if (request.output == ReportOutput::Preview && whilePreviewed) whilePreviewed(request);
        return ReportResult::Done;
    }
    [[nodiscard]] std::string explanation() const override { return why; }
    [[nodiscard]] int sidesOf(const std::string&) override { return sides; }
};

}  // namespace winvrx::testing
