#pragma once

#include "output/labels/label_sheet.h"
#include "output/labels/label_text.h"
#include "report/report_pages.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace winvrx {

/// The labels of a run, made when their turn comes.
struct LabelRun {
    LabelSheet sheet;
    std::size_t labels = 0;  ///< different ones
    std::function<LabelLines(std::size_t label)> linesOf;
    std::size_t copies = 1;  ///< of each, one after the other
    std::size_t first = 0;   ///< the first free label of the first sheet, counted row by row from 0

    [[nodiscard]] std::size_t sheets() const {
        return (first + labels * copies + sheet.labels() - 1) / sheet.labels();
    }
};

/// The columns of `Tabela_base` for a sheet: a row holds the labels that lie side by side,
/// "e1_1" … "e3_12" by label and line, and "moldura", a thousand where frames are drawn.
[[nodiscard]] const std::vector<std::string>& labelColumns();

/// A page a sheet. Lines beyond those of a label are left out.
[[nodiscard]] ReportPages labelPages(LabelRun run);

/// One sheet with a frame around each label and its number in it, to be held against the labels.
[[nodiscard]] ReportRows labelFrames(const LabelSheet& sheet);

}  // namespace winvrx
