#pragma once

#include "foundation/desktop/field_box.h"
#include "foundation/desktop/qt_text.h"
#include "foundation/text.h"

#include <string>
#include <vector>

namespace winvrx {

/// The text fields of a form, each bound to a member of the record that it shows.
template <typename Record>
class RecordForm {
  public:
    using Member = std::string Record::*;

    void bind(Member member, TextField* field) { fields_.push_back({member, field}); }

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
