#pragma once

#include "personnel/pay/reckoning.h"
#include "report/print_pages.h"

#include <string>
#include <string_view>
#include <vector>

// A statement of amounts, each with the sum that explains it, on as many A4 sheets as it takes.

namespace winvrx {

inline constexpr std::string_view kStatementLayout = "demonstrativo.rpt";
inline constexpr std::size_t kLinesOnAStatement = 56;

/// One line; what it does not have is empty.
struct StatementLine {
    std::string heading = {};  ///< bold, in place of `words`
    std::string words = {};
    std::string quantity = {};
    std::string credit = {};
    std::string debit = {};
    std::string total = {};  ///< bold, at the right
    std::string memo = {};   ///< small, in place of all others
};

struct Statement {
    std::string title;
    std::string about;     ///< whom, or which month it is of
    std::string fileName;  ///< proposed for a PDF
    std::string creditHeading = "Créditos (R$)";
    std::string debitHeading = "Descontos (R$)";  ///< of the column of totals too
    std::vector<StatementLine> lines = {};

    void addHeading(std::string text);
    void addTotal(std::string heading, Money amount);
    void addMemo(const Memo& memo);
};

/// Shows the sheets, from where they can be printed or saved. True when that was done; otherwise
/// the operator has been told why.
[[nodiscard]] bool previewStatement(const PrintDesk& desk, const Statement& statement);

}  // namespace winvrx
