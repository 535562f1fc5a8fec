#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace winvrx {

inline constexpr std::string_view kReportTable = "Tabela_base";

/// A row of the table: a text for each column of the request.
using ReportRow = std::vector<std::string>;
/// The table's content while one page is printed.
using ReportRows = std::vector<ReportRow>;

enum class PageOrder { Forwards, Backwards };

/// The pages of a run, pulled one after the other. A page's rows are made when its turn comes, so
/// that no more than one page is held in memory.
class ReportPages {
  public:
    /// `rowsOf` gives the rows of a page, counted from 0; what it throws comes out of next().
    ReportPages(std::size_t count, std::function<ReportRows(std::size_t)> rowsOf)
        : count_(count), rowsOf_(std::move(rowsOf)) {}

    [[nodiscard]] std::size_t count() const { return count_; }

    /// The rows of the next page; nullopt after the last one.
    [[nodiscard]] std::optional<ReportRows> next() {
        if (given_ == count_) return std::nullopt;
        const std::size_t at = given_++;
        return rowsOf_(order_ == PageOrder::Forwards ? at : count_ - 1 - at);
    }

    /// next() begins again, from the first page or backwards from the last.
    void restart(PageOrder order) {
        order_ = order;
        given_ = 0;
    }

  private:
    std::size_t count_;
    std::function<ReportRows(std::size_t)> rowsOf_;
    PageOrder order_ = PageOrder::Forwards;
    std::size_t given_ = 0;
};

}  // namespace winvrx
