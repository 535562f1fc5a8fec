#include "report/desktop/card_text.h"

#include "foundation/values/desktop/qt_text.h"

#include <algorithm>

namespace winvrx {

CardText cardText(const std::vector<CardRow>& rows) {
    CardText text(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        std::ranges::transform(rows[i], text[i].begin(),
                               [](const auto& value) { return toQt(value); });
    return text;
}

}  // namespace winvrx
