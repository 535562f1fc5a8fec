#pragma once

#include <string>

namespace winvrx {

enum class Icon { None, Information, Question, Exclamation, Critical };
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Cancel, Yes, No };

/// One message box. `text` is the system's own wording; `detail` says in a further sentence what
/// happened, and is shown smaller below it.
struct Message {
    std::string title;
    std::string text;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
    std::string detail = {};
};

/// The person at the desk: the one seam through which commands show message boxes.
class Operator {
  public:
    virtual ~Operator() = default;

    /// Shows the message and waits for the answer. Closing the box is the harmless answer:
    /// Cancel where there is one, else No, else Ok.
    virtual Answer ask(const Message& message) = 0;

    void tell(const Message& message) { (void)ask(message); }
    [[nodiscard]] bool agrees(const Message& message) {
        const Answer answer = ask(message);
        return answer == Answer::Yes || answer == Answer::Ok;
    }
};

}  // namespace winvrx
