#pragma once

#include "foundation/desk/list_checks.h"
#include "foundation/files/line_file.h"

#include <cstddef>
#include <functional>
#include <string>
#include <utility>

namespace winvrx {

/// The commands of a list: include, change and delete.
///
/// Holds the list as the screen shows it, and changes it only with a success. Each command asks
/// first, then holds the folder, reads the list again, compares the line with the one shown and
/// writes: no other computer's change is lost, and a command that is refused or fails leaves list
/// and file as they were. Each returns whether it was carried out.
template <typename Record>
class ListCommands : public ListChecks<Record> {
  public:
    using Line = StoredLine<Record>;
    using Lines = std::vector<Line>;

    [[nodiscard]] const Lines& lines() const { return lines_; }
    [[nodiscard]] std::size_t count() const override { return lines_.size(); }
    [[nodiscard]] const std::string& bytesAt(std::size_t position) const override {
        return lines_.at(position).bytes;
    }
    [[nodiscard]] ListRow rowAt(std::size_t position) const override {
        const Line& line = lines_.at(position);
        return line.key() ? rowOf(line.record) : unreadRow(line.bytes);
    }
    /// What the form of a new record begins with.
    [[nodiscard]] virtual Record freshRecord() const { return {}; }

    /// Appends a record.
    [[nodiscard]] virtual bool include(const Record& typed) {
        this->blamed_ = nullptr;
        return this->run(incorrectData(), [&] {
            const Record record = completed(typed);
            return requireAcceptable(record, nullptr) && this->requireNoDoubt(record, {}) &&
                   this->at_.person.agrees(inclusionOf(record)) && rewrite([&](Lines& lines) {
                       lines.push_back(newLine(record, lines));
                       clearFor(lines.back());
                   });
        });
    }
    /// Replaces the line at `position`; what no field covers stays.
    [[nodiscard]] virtual bool change(std::size_t position, const Record& typed) {
        this->blamed_ = nullptr;
        return this->run(incorrectData(), [&] {
            const Record record = completed(typed);
            return requireAcceptable(record, &lines_.at(position)) &&
                   this->requireNoDoubt(record, lines_.at(position).record) &&
                   this->at_.person.agrees(questions_.change) && rewrite([&](Lines& lines) {
                       Line& line = knownLineAsShown(lines, lines_, position);
                       line = changedLine(record, line);
                   });
        });
    }
    [[nodiscard]] bool remove(std::size_t position) override {
        return this->run(incorrectData(), [&] {
            return this->at_.person.agrees(removalOf(position)) &&
                   erase(position, [](const Lines&) {});
        });
    }

  protected:
    explicit ListCommands(const Workplace& at, ListQuestions questions = {})
        : ListChecks<Record>(at), questions_(std::move(questions)) {}

    [[nodiscard]] virtual Lines read() const = 0;
    virtual void write(const Lines& lines) = 0;
    [[nodiscard]] virtual ListRow rowOf(const Record& record) const = 0;
    /// What was typed in the form in which it is recorded.
    [[nodiscard]] virtual Record completed(const Record& typed) const { return typed; }
    /// Whether the record can be included, or replace the line shown. Says why not, or throws.
    [[nodiscard]] virtual bool requireAcceptable(const Record&, const Line*) { return true; }
    /// The question before a record is included; one may name it.
    [[nodiscard]] virtual Message inclusionOf(const Record&) const { return questions_.include; }
    /// The question before the line goes, which names it; `along` is what goes with it.
    [[nodiscard]] Message removalOf(std::size_t position, const std::string& along = {}) const {
        Message asked = questions_.remove;
        const auto cells = rowAt(position).cells;
        asked.detail = cells.at(0) + " " + cells.at(1) + along;
        return asked;
    }
    /// The line to append to the list on disk; throws Fault when that has its key already.
    [[nodiscard]] virtual Line newLine(const Record& typed, const Lines& lines) const {
        if (findLine(lines, keyOf(typed))) throw changedElsewhere("list");
        return lineOf(typed);
    }
    [[nodiscard]] virtual Line changedLine(const Record& typed, const Line& before) const {
        return lineOf(typed, before.bytes);
    }

    /// Removes what must not be there when the new line is recorded.
    virtual void clearFor(const Line&) {}

    void reread() override { lines_ = read(); }

    /// Lets `edit` change the list on disk while the folder is held, and records it.
    template <typename Edit>
    [[nodiscard]] bool rewrite(Edit&& edit) {
        const auto hold = holdFolder(this->at_);
        Lines lines = read();
        // An empty folder in the place of the one shown, as an unmounted drive leaves it.
        if (lines.empty() && !lines_.empty()) throw changedElsewhere("list");
        edit(lines);
        write(lines);
        lines_ = std::move(lines);
        return true;
    }

    /// Deletes the line at `position` and, with `removeFiles`, what belongs to it; that is called
    /// with the lines that stay. `prepare` is called before any change. A disk that refuses the
    /// list must do so before anything is gone, so it is first written as it stands. Then the files
    /// go first: cut short, the command can be given again.
    template <typename RemoveFiles>
    [[nodiscard]] bool erase(
        std::size_t position, RemoveFiles&& removeFiles,
        const std::function<void()>& prepare = [] {}) {
        return rewrite([&](Lines& lines) {
            (void)lineAsShown(lines, lines_, position);
            prepare();
            write(lines);
            lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(position));
            removeFiles(lines);
        });
    }

    Lines lines_;
    const ListQuestions questions_;
};

}  // namespace winvrx
