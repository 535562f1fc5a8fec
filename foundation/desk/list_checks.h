#pragma once

#include "foundation/desk/finding.h"
#include "foundation/desk/list_screen.h"
#include "foundation/values/text.h"

#include <string>

namespace winvrx {

/// What is asked before each command.
struct ListQuestions {
    Message include = question("INCLUSÃO", "Confirma a Inclusão?");
    Message change = question("ALTERAÇÃO", "Confirma a Alteração do Item Selecionado?");
    Message remove = riskyQuestion("EXCLUSÃO", "Confirma a Exclusão do Item Selecionado?");
};

/// What is said of a record as it is typed, beside its fields and when it is recorded.
template <typename Record>
class ListChecks : public ListScreen {
  public:
    using Member = std::string Record::*;

    /// What would be refused of the record as it is typed in the place of `before`.
    [[nodiscard]] virtual Findings<Record> wrongIn(const Record&, const Record&) const {
        return {};
    }
    /// What is asked about before it is recorded: only texts changed since `before`, so that old
    /// records stay editable.
    [[nodiscard]] virtual Findings<Record> doubtsAbout(const Record&, const Record&) const {
        return {};
    }
    /// The text for which the last inclusion or change ended; nullptr when it was for none.
    [[nodiscard]] Member blamed() const { return blamed_; }

  protected:
    using ListScreen::ListScreen;

    /// Tells what is wrong with one text, and gives false.
    [[nodiscard]] bool refuseFor(const Finding<Record>& wrong, const Message& message) {
        blamed_ = wrong.member;
        return refuse(message, captioned(wrong));
    }
    /// Tells with `message` which required fields are empty, if one is; else true.
    [[nodiscard]] bool requireComplete(const Record& typed, const Message& message) {
        const auto missing = missingIn(typed);
        if (missing.empty()) return true;
        blamed_ = missing.front().member;
        return refuse(message, missingText(missing));
    }
    /// Refuses texts that no record holds, and asks once about all that is doubtful.
    [[nodiscard]] bool requireNoDoubt(const Record& typed, const Record& before) {
        const auto unstorable = unstorableIn(typed, before);
        if (!unstorable.empty()) return refuseFor(unstorable.front(), incorrectData());
        const auto doubts = doubtsAbout(typed, before);
        if (doubts.empty() ||
            at_.person.agrees(recordDespiteDoubts(joined(doubts, "\n", captioned<Record>))))
            return true;
        blamed_ = doubts.front().member;
        return false;
    }

    Member blamed_ = nullptr;
};

}  // namespace winvrx
