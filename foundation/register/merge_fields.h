#pragma once

#include "foundation/register/company.h"
#include "foundation/register/employee.h"
#include "foundation/values/faults.h"

#include <map>
#include <string>
#include <string_view>

// What company, employee and month give to a page. The names stand here once, for card headers,
// mirrors, labels, contracts and documents alike:
//
//   MergeWords words = mergeWords(company, employee);
//   putMonth(words, month);
//   words.filled("{nome} trabalha desde {admissao}.")

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

    /// `text` with the value in place of each name in braces. Braces within a value stay as they
    /// are. Throws UnknownWord.
    [[nodiscard]] std::string filled(std::string_view text) const;

  private:
    std::map<std::string, std::string, std::less<>> values_;
};

/// Every word that the two registers give. Those of the company that an employee has too end in
/// "_empresa", those of its owner in "_proprietario".
[[nodiscard]] MergeWords mergeWords(const Company& company, const Employee& employee);

/// "mes", "março/2024", and "periodo", "01/03/2024 a 31/03/2024".
void putMonth(MergeWords& words, WorkMonth month);

}  // namespace winvrx
