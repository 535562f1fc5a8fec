#pragma once

#include <stdexcept>
#include <string>

namespace winvrx {

/// Base of every fault that a command's catch-all turns into a message. `what()` is for the log;
/// `explanation()` is one Portuguese sentence for the operator.
class Fault : public std::runtime_error {
  public:
    Fault(const std::string& what, std::string explanation)
        : std::runtime_error(what), explanation_(std::move(explanation)) {}

    [[nodiscard]] const std::string& explanation() const { return explanation_; }

  private:
    std::string explanation_;
};

/// Text that a record cannot hold: a character outside Windows-1252, or a control character.
class TextFault : public Fault {
  public:
    using Fault::Fault;
};

/// What a command would change is no longer what the screen shows. `what` is for the log, `subject`
/// begins the sentence: "A lista foi alterada".
[[nodiscard]] Fault changedElsewhere(const std::string& what,
                                     const std::string& subject = "A lista foi alterada",
                                     const std::string& advice = "Abra a tela novamente.");
/// The same of an employee's record.
[[nodiscard]] Fault employeeChangedElsewhere(const std::string& what);

/// The sentence for the operator: a Fault's own explanation, a general one for anything else.
[[nodiscard]] std::string explanationOf(const std::exception& fault);

}  // namespace winvrx
