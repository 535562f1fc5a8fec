#include "foundation/desk/command.h"

#include "foundation/desk/browser.h"

namespace winvrx {

namespace {

Message takeOver(const LockHolder& holder) {
    return {"Pasta de Dados em Uso",
            "A pasta de dados está em uso por " + holder.description() +
                ". Deseja continuar mesmo assim?",
            Icon::Exclamation, Buttons::YesNo,
            "Continue somente se esse computador foi desligado ou travou durante uma gravação."};
}

}  // namespace

Message incorrectData() {
    return {"Erro", "Dados incorretos!", Icon::Critical};
}

Message noCompany() {
    return {"Aviso", "Cadastre Primeiro Uma Empresa!!", Icon::Exclamation};
}

Message noEmployeeSelected() {
    return {"Aviso", "Selecione um Funcionário na Lista!", Icon::Exclamation};
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

FolderLock::Hold holdFolder(const Workplace& at) {
    return holdFolder(at, at.session.folder.path());
}

FolderLock::Hold holdFolder(const Workplace& at, const std::filesystem::path& folder) {
    return at.lock.take(folder, at.clock.now(), [&at](const LockHolder& holder) {
        return at.person.agrees(takeOver(holder));
    });
}

void openHelp(const Workplace& at, Browser& browser) {
    if (!browser.openHelp()) at.person.tell({"Erro", "Ocorreu Erro", Icon::Exclamation});
}

}  // namespace winvrx
