#pragma once

#include "foundation/desk/operator.h"

namespace winvrx {

/// Shows messages in modal boxes over the active window. The box bears the object name
/// "messageBox"; ENTER does what the message says, Esc gives the harmless answer, and each button
/// has its letter.
class MessageBoxOperator final : public Operator {
  public:
    Answer ask(const Message& message) override;
};

}  // namespace winvrx
