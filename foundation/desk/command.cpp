#include "foundation/desk/command.h"

#include "foundation/desk/browser.h"

namespace winvrx {

namespace {

Message takeOver(const LockHolder& holder) {
    return warning(
        "Pasta de Dados em Uso",
        "A pasta de dados está em uso por " + holder.description() +
            ". Deseja continuar mesmo assim?",
        "Continue somente se esse computador foi desligado ou travou durante uma gravação.");
}

}  // namespace

Message incorrectData() {
    return failure("Erro", "Dados incorretos!");
}

Message noEmployeeSelected() {
    return refusal("Aviso", "Selecione um Funcionário na Lista!");
}

Message discardTyped() {
    return warning("Aviso", "Há dados digitados que não foram gravados. Deseja descartá-los?");
}

void reportFailure(const Workplace& at, Message message, const std::exception& fault) {
    at.log.write(message.title + ": " + message.text + " " + fault.what());
    message.detail = explanationOf(fault);
    at.person.tell(message);
}

FolderLock::Hold holdFolder(const Workplace& at) {
    return holdFolder(at, at.session.folder.path());
}

FolderLock::Hold holdFolder(const Workplace& at, const std::filesystem::path& folder) {
    return at.lock.take(folder, at.clock.now(), [&at](const LockHolder& holder) {
        return at.person.agrees(takeOver(holder));
    });
}

void openHelp(const Workplace& at, Browser& browser) {
    if (!browser.openHelp()) at.person.tell(refusal("Erro", "Ocorreu Erro"));
}

}  // namespace winvrx
