#pragma once

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/checked_field.h"

#include <QGridLayout>

#include <string>
#include <vector>

namespace winvrx {

/// Where a text field stands and what it is called; caption and width come from the record's
/// layout.
template <typename Record>
struct FieldPlacement {
    std::string Record::*member;
    const char* name;
    char mnemonic;
    int group;
    int row;
    int span;  ///< of the kGridColumns of the grid
    FieldCheck check = FieldCheck::None;
};

inline constexpr int kGridColumns = 12;

/// The text fields of a form, each bound to a member of the record that it shows.
template <typename Record>
class RecordForm {
  public:
    using Member = std::string Record::*;

    void bind(Member member, TextField* field) { fields_.push_back({member, field}); }

    /// Builds the fields of one group, row by row, and binds them; `make` gives the field of a
    /// placement.
    template <typename Placements, typename Make>
    void layOut(const Placements& placements, int group, QGridLayout& grid, Make&& make) {
        for (int column = 0; column < kGridColumns; ++column)
            grid.setColumnStretch(column, 1);
        int row = -1;
        int next = 0;
        for (const auto& place : placements) {
            if (place.group != group) continue;
            if (place.row != row) next = 0;
            row = place.row;
            TextField* field = make(place);
            grid.addWidget(field, row, next, 1, place.span, Qt::AlignTop);
            next += place.span;
            bind(place.member, field);
        }
    }

    void show(const Record& record) {
        for (const Binding& bound : fields_)
            bound.field->setText(toQt(record.*bound.member));
    }

    /// Puts what was typed into the record's bound members, trimmed.
    void readInto(Record& record) const {
        for (const Binding& bound : fields_)
            record.*bound.member = trimmed(toUtf8(bound.field->text()));
    }

    /// nullptr when the member has no text field.
    [[nodiscard]] TextField* fieldOf(Member member) const {
        for (const Binding& bound : fields_)
            if (bound.member == member) return bound.field;
        return nullptr;
    }

    /// Calls `visit` with each field.
    template <typename Visit>
    void forEach(Visit&& visit) const {
        for (const Binding& bound : fields_)
            visit(bound.field);
    }

  private:
    struct Binding {
        Member member;
        TextField* field;
    };

    std::vector<Binding> fields_;
};

}  // namespace winvrx
