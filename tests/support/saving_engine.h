#pragma once

#include "tests/support/report_desk.h"

namespace winvrx::testing {

/// Saves what would be previewed.
class SavingEngine final : public ReportEngine {
  public:
    explicit SavingEngine(ReportDesk& desk) : desk_(desk) {}

    PrintEnd print(const ReportRequest& request, ReportPages& pages,
                   const PageProgress& progress) override {
        return desk_.engine.print(request, pages, progress);
    }
    PrintEnd preview(const ReportRequest& request, ReportPages& pages, const PageProgress& progress,
                     const PrintShown&) override {
        ReportRequest saved = request;
        saved.output = ReportOutput::PdfFile;
        saved.pdfPath = desk_.request.pdfPath;
        return print(saved, pages, progress);
    }
    int sidesOf(const ReportRequest& request) override { return desk_.engine.sidesOf(request); }

  private:
    ReportDesk& desk_;
};

}  // namespace winvrx::testing
