#pragma once

#include "foundation/register/merge_fields.h"
#include "output/labels/label_text.h"

#include <string_view>

namespace winvrx {

/// The word that a blank after "Data:" and "a partir de" asks for: the day that the operator gives.
inline constexpr std::string_view kLabelDayWord = "data";

/// The lines of a label whose blanks ("____", "__/__/____") are filled as far as the words in front
/// of them say what belongs there: "R$ ____", "admitido em __/__/____", "alterada para ____". A
/// blank whose value is empty stays. A line that outgrows the label is wrapped.
[[nodiscard]] LabelLines filledLines(std::string_view text, const MergeWords& words);

}  // namespace winvrx
