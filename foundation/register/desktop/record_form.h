#pragma once

#include "foundation/desk/list_commands.h"
#include "foundation/files/record_fields.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/record_editor.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// Where a field stands and what it is called; caption, width and whether it is required come from
/// the record's layout.
template <typename Record>
struct FieldPlacement {
    std::string Record::*member;
    const char* name;
    char mnemonic;
    int group;
    int row;
    int span;  ///< of the kGridColumns of the grid
    FieldKind kind = {};
    std::string_view caption = {};  ///< in the place of the layout's
};

inline constexpr int kGridColumns = 12;

/// `screen` is the prefix of the object name: "empresa".
template <typename Record>
[[nodiscard]] Field* newField(const FieldPlacement<Record>& place, const QString& screen,
                              Date today, QWidget* parent) {
    const auto& layout = fieldHolding(RecordLayout<Record>::kFields, place.member);
    QString caption =
        withMnemonic(place.caption.empty() ? layout.caption : place.caption, place.mnemonic);
    if (layout.isRequired) caption += QStringLiteral(" *");
    // What the field shows beyond the record's text needs its room.
    const std::size_t more =
        place.kind.stored ? place.kind.completed("0").size() - place.kind.stored("0").size() : 0;
    return new Field({.caption = caption,
                      .objectName = screen + QLatin1Char('.') + QLatin1String(place.name),
                      .width = layout.column.width + more,
                      .kind = place.kind,
                      .today = today},
                     parent);
}

/// Puts the fields of one group, which `make` makes, into the grid row by row.
template <typename Placements, typename Make>
void placeGroup(const Placements& placements, int group, QGridLayout& grid, Make make) {
    int row = -1;
    int next = 0;
    for (const auto& place : placements) {
        if (place.group != group) continue;
        if (place.row != row) next = 0;
        row = place.row;
        grid.addWidget(make(place), row, next, 1, place.span, Qt::AlignTop);
        next += place.span;
    }
}

/// What is found in the text of the member; empty for nothing.
template <typename Record>
[[nodiscard]] QString textFor(std::string Record::*member, const Findings<Record>& findings) {
    const auto found = std::ranges::find(findings, member, &Finding<Record>::member);
    return found == findings.end() ? QString() : toQt(found->text);
}

/// The form of a record that is a table of texts, built from a table of placements.
template <typename Record>
class RecordForm : public RecordEditor {
  public:
    using Member = std::string Record::*;
    using Placement = FieldPlacement<Record>;

    /// `screen` is the prefix of the object names: "empresa".
    RecordForm(ListCommands<Record>& commands, const QString& screen, QObject* parent)
        : RecordEditor(parent), commands_(commands), screen_(screen) {}

    void show(std::optional<std::size_t> position) override {
        shown_ = position ? Record{} : commands_.freshRecord();
        if (position && commands_.lines().at(*position).key())
            shown_ = commands_.lines()[*position].record;
        for (std::size_t place = 0; place < members_.size(); ++place)
            fieldAt(place)->setStored(shown_.*members_[place]);
    }

    [[nodiscard]] bool save(std::optional<std::size_t> position) override {
        const Record record = typed();
        if (position ? commands_.change(*position, record) : commands_.include(record)) return true;
        if (Field* blamed = field(commands_.blamed())) focus(blamed);
        return false;
    }

    /// The record shown, with what was typed since.
    [[nodiscard]] Record typed() const {
        Record record = shown_;
        for (std::size_t place = 0; place < members_.size(); ++place)
            record.*members_[place] = fieldAt(place)->stored();
        return record;
    }

  protected:
    /// Builds the fields of one group, row by row, at the end of `column`.
    template <typename Placements>
    void addGroup(const Placements& placements, int group, QVBoxLayout& column) {
        QGridLayout* grid = look::fieldGrid(kGridColumns);
        placeGroup(placements, group, *grid,
                   [&](const Placement& place) { return make(place, column.parentWidget()); });
        column.addLayout(grid);
    }

    [[nodiscard]] Field* field(Member member) const {
        for (std::size_t place = 0; place < members_.size(); ++place)
            if (members_[place] == member) return fieldAt(place);
        return nullptr;
    }

  private:
    /// Says beside each field what the commands have against it.
    void showFindings() {
        const Record record = typed();
        auto findings = commands_.wrongIn(record, shown_);
        std::ranges::move(commands_.doubtsAbout(record, shown_), std::back_inserter(findings));
        for (std::size_t place = 0; place < members_.size(); ++place)
            fieldAt(place)->setFinding(textFor(members_[place], findings));
    }

    [[nodiscard]] Field* make(const Placement& place, QWidget* parent) {
        Field* field = newField(place, screen_, commands_.today(), parent);
        members_.push_back(place.member);
        add(field);
        this->connect(field, &Field::finished, this, [this] { showFindings(); });
        return field;
    }

    ListCommands<Record>& commands_;
    QString screen_;
    std::vector<Member> members_;
    Record shown_;
};

}  // namespace winvrx
