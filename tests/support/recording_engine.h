#pragma once

#include "report/report_engine.h"

#include <deque>
#include <vector>

namespace winvrx::testing {

/// Takes every page of every job, remembers it and prints nothing. Like the real engine it asks
/// for a page when the one before is done, and stops when progress says so.
class RecordingEngine final : public ReportEngine {
  public:
    enum class Outcome { Works, Fails, NoEngine, NoPrinter, PrinterGone };
    struct Job {
        ReportRequest request;
        std::vector<ReportRows> cards;
    };

    std::vector<Job> jobs;
    /// Of the coming jobs; they work when used up. A job that does not work takes no page.
    std::deque<Outcome> outcomes;
    /// What the operator does in a preview, given its command "Imprimir".
    std::function<void(const std::function<PrintEnd()>& print)> whilePreviewed;
    int sides = 1;    ///< of every layout
    std::string why;  ///< the explanation of a failed job

    [[nodiscard]] PrintEnd print(const ReportRequest& request, ReportPages& pages,
                                 const PageProgress& progress) override {
        jobs.push_back({request, {}});
        failIfAsked();
        while (auto page = pages.next()) {
            jobs.back().cards.push_back(*std::move(page));
            const int done = static_cast<int>(jobs.back().cards.size());
            if (!progress(done, static_cast<int>(pages.count()))) return PrintEnd::Cancelled;
        }
        return PrintEnd::Done;
    }

    [[nodiscard]] PrintEnd preview(const ReportRequest& request, ReportPages& pages,
                                   const PageProgress& progress,
                                   const PrintShown& printShown) override {
        PrintEnd end = print(request, pages, progress);
        const auto cards = jobs.back().cards;
        if (end == PrintEnd::Done && whilePreviewed)
            whilePreviewed([&] {
                ReportPages shown(cards.size(), [&](std::size_t at) { return cards[at]; });
                const PrintEnd printed = printShown(shown, [](int, int) { return true; });
                if (printed == PrintEnd::Failed) end = printed;
                return printed;
            });
        return end;
    }

    [[nodiscard]] int sidesOf(const ReportRequest&) override { return sides; }

  private:
    void failIfAsked() {
        if (outcomes.empty()) return;
        const Outcome outcome = outcomes.front();
        outcomes.pop_front();
        switch (outcome) {
            case Outcome::Works:
                return;
            case Outcome::Fails:
                throw Fault("told to fail", why);
            case Outcome::NoEngine:
                throw ReportFault(ReportFault::Kind::NoEngine, "told to fail", why);
            case Outcome::NoPrinter:
                throw ReportFault(ReportFault::Kind::NoPrinter, "told to fail", {});
            case Outcome::PrinterGone:
                throw ReportFault(ReportFault::Kind::PrinterGone, "told to fail", why);
        }
    }
};

}  // namespace winvrx::testing
