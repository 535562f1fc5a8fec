#include "foundation/command.h"

#include "foundation/browser.h"

namespace winvrx {

Message incorrectData() {
    return {"Erro", "Dados incorretos!", Icon::Critical};
}

Message discardTyped() {
    return {"Aviso", "Há dados digitados que não foram gravados. Deseja descartá-los?",
            Icon::Exclamation, Buttons::YesNo};
}

void reportFailure(const Workplace& at, Message message, const std::exception& fault) {
    at.log.write(message.title + ": " + message.text + " " + fault.what());
    message.detail = explanationOf(fault);
    at.person.tell(message);
}

void openHelp(const Workplace& at, Browser& browser) {
    if (!browser.openHelp()) at.person.tell({"Erro", "Ocorreu Erro", Icon::Exclamation});
}

}  // namespace winvrx
