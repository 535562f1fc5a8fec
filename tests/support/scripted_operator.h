#pragma once

#include "foundation/desk/operator.h"

#include <deque>
#include <functional>
#include <vector>

namespace winvrx::testing {

/// Answers from a script and remembers what it was shown. With the script used up it gives the
/// harmless answer.
class ScriptedOperator final : public Operator {
  public:
    std::deque<Answer> answers;
    std::vector<Message> shown;
    std::function<void()> onAsk;  ///< what happens elsewhere while the operator reads

    Answer ask(const Message& message) override {
        shown.push_back(message);
        if (onAsk) onAsk();
        if (message.buttons == Buttons::Ok || answers.empty()) return harmlessAnswer(message);
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    /// The texts shown so far, in order; forgets them.
    std::vector<std::string> takeTexts() {
        std::vector<std::string> texts;
        for (const Message& message : shown)
            texts.push_back(message.text);
        shown.clear();
        return texts;
    }
};

}  // namespace winvrx::testing
