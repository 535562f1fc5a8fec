#include "foundation/desk/message.h"

#include <utility>

namespace winvrx {

Message notice(std::string_view title, std::string text, std::string detail) {
    return {std::string(title), std::move(text), Icon::Information, Buttons::Ok, std::move(detail)};
}

Message refusal(std::string_view title, std::string text, std::string detail) {
    return {std::string(title), std::move(text), Icon::Exclamation, Buttons::Ok, std::move(detail)};
}

Message failure(std::string_view title, std::string text, std::string detail) {
    return {std::string(title), std::move(text), Icon::Critical, Buttons::Ok, std::move(detail)};
}

Message question(std::string_view title, std::string text, std::string detail, Buttons buttons) {
    return {std::string(title), std::move(text), Icon::Question, buttons, std::move(detail), true};
}

Message warning(std::string_view title, std::string text, std::string detail, Buttons buttons) {
    return {std::string(title), std::move(text), Icon::Exclamation, buttons, std::move(detail)};
}

Message riskyQuestion(std::string_view title, std::string text, std::string detail,
                      Buttons buttons) {
    return {std::string(title), std::move(text), Icon::Question, buttons, std::move(detail)};
}

Answer agreement(const Message& message) {
    const bool asked = message.buttons == Buttons::YesNo || message.buttons == Buttons::YesNoCancel;
    return asked ? Answer::Yes : Answer::Ok;
}

Answer enterAnswer(const Message& message) {
    if (message.present) return *message.present;
    return message.carriesOn ? agreement(message) : harmlessAnswer(message);
}

Answer harmlessAnswer(const Message& message) {
    if (message.buttons == Buttons::Ok) return Answer::Ok;
    return message.buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
}

}  // namespace winvrx
