#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace winvrx {

enum class Icon { None, Information, Question, Exclamation, Critical };
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Cancel, Yes, No };

/// One message box. `text` is the system's own wording; `detail` says in a further sentence what
/// happened, and is shown smaller below it. Built by the functions below, which say its kind.
struct Message {
    std::string title;
    std::string text;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
    std::string detail = {};
    bool carriesOn = false;              ///< ENTER agrees; else it gives the harmless answer
    std::optional<Answer> present = {};  ///< ENTER gives the answer that holds now, where one does
};

/// Something to know; nothing is wrong.
[[nodiscard]] Message notice(std::string_view title, std::string text, std::string detail = {});
/// Why a command is not carried out: something is missing or not accepted.
[[nodiscard]] Message refusal(std::string_view title, std::string text, std::string detail = {});
/// A command failed on the way, or cannot be carried out at all.
[[nodiscard]] Message failure(std::string_view title, std::string text, std::string detail = {});

/// Asks before something that can be undone: including, recording, printing. ENTER carries on.
[[nodiscard]] Message question(std::string_view title, std::string text, std::string detail = {},
                               Buttons buttons = Buttons::YesNo);
/// Asks before something is deleted, overwritten or left behind. ENTER gives the harmless answer.
/// A warning bears the exclamation mark; a risky question looks like any other.
[[nodiscard]] Message warning(std::string_view title, std::string text, std::string detail = {},
                              Buttons buttons = Buttons::YesNo);
[[nodiscard]] Message riskyQuestion(std::string_view title, std::string text,
                                    std::string detail = {}, Buttons buttons = Buttons::YesNo);

/// The answer that agrees with the message: Yes where it is offered, else Ok.
[[nodiscard]] Answer agreement(const Message& message);
/// The answer that ENTER gives.
[[nodiscard]] Answer enterAnswer(const Message& message);
/// The answer that changes nothing: Cancel where it is offered, else No, else Ok.
[[nodiscard]] Answer harmlessAnswer(const Message& message);

}  // namespace winvrx
