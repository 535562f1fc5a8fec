#pragma once

#include "foundation/desk/command.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

/// How a line of a list is shown.
struct ListRow {
    std::vector<std::string> cells;
    std::string searched;    ///< the text that the search looks into
    bool understood = true;  ///< false: shown apart, it cannot be changed
};

/// The row of a line that nobody understands, with what can be shown of it.
[[nodiscard]] ListRow unreadRow(std::string_view lineBytes);

/// ", 2 linhas não entendidas", to stand behind a count of records; empty for none.
[[nodiscard]] std::string unreadCount(std::size_t lines);

/// ", 12 arquivos", to stand behind what is deleted; empty for none.
[[nodiscard]] std::string alongWith(std::size_t count, std::string_view one,
                                    std::string_view many = {});

/// "Há dados que parecem errados. Gravar assim mesmo?"; `doubts` names them.
[[nodiscard]] Message recordDespiteDoubts(std::string doubts);

/// What the window of a register asks of its command object, whatever the records are.
class ListScreen {
  public:
    explicit ListScreen(const Workplace& at) : at_(at) {}
    virtual ~ListScreen() = default;

    /// Reads the list; a failure is told.
    void load();
    /// Whether the last command ended in a failure, so that the disk may not hold what is shown.
    [[nodiscard]] bool failed() const { return failed_; }
    /// After a failure: reads the list again if it can be read, and says nothing.
    void reloadQuietly();

    [[nodiscard]] virtual std::size_t count() const = 0;
    [[nodiscard]] virtual ListRow rowAt(std::size_t position) const = 0;
    [[nodiscard]] virtual const std::string& bytesAt(std::size_t position) const = 0;
    /// The first line of these bytes.
    [[nodiscard]] std::optional<std::size_t> positionOf(const std::string& bytes) const;
    /// "12 ativos, 1 inativo"; empty where nothing is counted.
    [[nodiscard]] virtual std::string counts() const { return {}; }
    /// What the state line says while a new record is typed.
    [[nodiscard]] virtual std::string newRecordTitle() const = 0;

    [[nodiscard]] Date today() const { return at_.clock.today(); }

    /// Deletes the line at `position`, with what belongs to it. True when it is gone.
    [[nodiscard]] virtual bool remove(std::size_t position) = 0;
    /// Asks before typed but unrecorded text is left behind. True when it may go.
    [[nodiscard]] bool confirmDiscardTyped();

  protected:
    virtual void reread() = 0;

    /// `attempt`, remembering whether it failed.
    template <typename Work>
    [[nodiscard]] bool run(const Message& onFailure, Work&& work) {
        failed_ = true;
        return attempt(at_, onFailure, [&] {
            const bool done = work();
            failed_ = false;
            return done;
        });
    }
    /// Tells the operator and gives false, for a command that ends there.
    [[nodiscard]] bool refuse(const Message& message, std::string detail = {}) const;

    Workplace at_;

  private:
    bool failed_ = false;
};

}  // namespace winvrx
