#pragma once

#include "foundation/desk/message.h"

namespace winvrx {

/// The person at the desk: the one seam through which commands show message boxes.
class Operator {
  public:
    virtual ~Operator() = default;

    /// Shows the message and waits for the answer. Closing the box is the harmless answer:
    /// Cancel where there is one, else No, else Ok.
    virtual Answer ask(const Message& message) = 0;

    void tell(const Message& message) { (void)ask(message); }
    /// Tells why a command is not carried out, and gives false for it to return.
    [[nodiscard]] bool refuse(const Message& message) {
        tell(message);
        return false;
    }
    [[nodiscard]] bool agrees(const Message& message) { return ask(message) == agreement(message); }
};

}  // namespace winvrx
