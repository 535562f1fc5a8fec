#pragma once

#include "foundation/values/faults.h"

#include <map>
#include <string>
#include <string_view>

namespace winvrx {

/// A text asks for a word that its page does not have, or leaves a brace open.
class UnknownWord : public Fault {
  public:
    explicit UnknownWord(std::string_view word);
};

/// Words by name. Values are UTF-8 and may be empty.
class MergeWords {
  public:
    /// In place of an earlier value of that name.
    void put(std::string_view name, std::string value);

    /// Throws UnknownWord.
    [[nodiscard]] const std::string& at(std::string_view name) const;

    /// Every word with its value, by name.
    [[nodiscard]] const auto& all() const { return values_; }

    /// `text` with the value in place of each name in braces. Braces within a value stay as they
    /// are. Throws UnknownWord.
    [[nodiscard]] std::string filled(std::string_view text) const;

  private:
    std::map<std::string, std::string, std::less<>> values_;
};

}  // namespace winvrx
