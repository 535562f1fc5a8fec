#pragma once

#include "foundation/desk/document_template.h"
#include "personnel/documents/paper_inputs.h"
#include "personnel/documents/paper_subject.h"

#include <map>
#include <string>

namespace winvrx {

/// What stands in a paper's form, by input.
using PaperTexts = std::map<std::string, std::string, std::less<>>;

/// Everything that the text of the paper may name.
[[nodiscard]] DocumentWords paperWords(const PaperSubject& subject, Paper paper,
                                       const PaperTexts& texts);

/// The day on which a child born then is fourteen, and no salary-family is paid any more.
[[nodiscard]] Date fourteenOn(Date birth);
/// What is to be known of the children typed: who is about to turn 14 or has; empty for none.
[[nodiscard]] std::string childrenRemark(const PaperTexts& texts, Date today);

/// A time sheet has a row for each day, and this many at most.
inline constexpr int kMostSheetDays = 31;

}  // namespace winvrx
