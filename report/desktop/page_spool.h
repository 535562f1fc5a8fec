#pragma once

#include "report/report_engine.h"

#include <QTemporaryFile>

#include <vector>

namespace winvrx {

/// The pages of a preview, kept in a temporary file so that memory does not grow with their
/// number. Throws Fault when the disk is full.
class PageSpool {
  public:
    PageSpool();

    void append(const ReportRows& rows);
    [[nodiscard]] std::size_t size() const { return starts_.size(); }
    /// Requires index < size().
    [[nodiscard]] ReportRows at(std::size_t index);

  private:
    [[noreturn]] void fail() const;

    QTemporaryFile file_;
    std::vector<qint64> starts_;
    qint64 end_ = 0;
};

}  // namespace winvrx
