#pragma once

#include "foundation/desk/log.h"
#include "foundation/desk/operator.h"
#include "foundation/desk/session.h"
#include "foundation/files/file_system.h"
#include "foundation/files/folder_lock.h"
#include "foundation/values/clock.h"
#include "foundation/values/faults.h"

#include <exception>
#include <functional>
#include <string>
#include <type_traits>

namespace winvrx {

class Browser;

/// What every command works with. The referred objects outlive all commands.
struct Workplace {
    FileSystem& files;
    Operator& person;
    const Clock& clock;
    Log& log;
    Session& session;
    FolderLock& lock;
    /// Keeps the state of the data folder before `act`, which deletes much: "excluir a empresa 02
    /// PADARIA". Who calls holds the folder. Throws Fault, and then nothing is to be deleted.
    std::function<void(const std::string& act)> keepStateBefore = [](const std::string&) {};

    /// The records of the folder in use.
    [[nodiscard]] Store store() const { return {files, session.folder}; }
};

/// "Dados incorretos!" titled "Erro", the answer of most commands to a failure.
[[nodiscard]] Message incorrectData();

/// "Selecione um Funcionário na Lista!", titled "Aviso": what a screen says that needs an employee.
[[nodiscard]] Message noEmployeeSelected();

/// "Há dados digitados que não foram gravados. Deseja descartá-los?", asked before typed text is
/// left behind.
[[nodiscard]] Message discardTyped();

/// Logs the cause and tells the operator `message` with one sentence on what happened.
void reportFailure(const Workplace& at, Message message, const std::exception& fault);

/// Opens the help page; "Ocorreu Erro" when no browser shows it.
void openHelp(const Workplace& at, Browser& browser);

/// Runs a command under its catch-all. `work` returns whether the command was carried out, or
/// nothing when it always is; a fault on the way is logged and told, and counts as not carried out.
template <typename Work>
[[nodiscard]] bool attempt(const Workplace& at, const Message& onFailure, Work&& work) {
    try {
        if constexpr (std::is_void_v<std::invoke_result_t<Work&>>) {
            work();
            return true;
        } else {
            return work();
        }
    } catch (const std::exception& fault) {
        reportFailure(at, onFailure, fault);
        return false;
    }
}

/// Runs what only informs, or what can wait: a fault is logged behind `what`, and told to nobody.
template <typename Work>
void attemptQuietly(Log& log, const std::string& what, Work&& work) {
    try {
        work();
    } catch (const std::exception& fault) {
        log.write(what + ": " + fault.what());
    }
}

/// Keeps other writers out of the data folder while the returned value lives; may be nested. Waits
/// a few seconds for another writer, and asks before it takes over what another computer left
/// behind. Throws Fault, naming who writes.
[[nodiscard]] FolderLock::Hold holdFolder(const Workplace& at);
[[nodiscard]] FolderLock::Hold holdFolder(const Workplace& at, const std::filesystem::path& folder);

/// `attempt` for a command that writes: `work` runs while the data folder is held. It reads again
/// what it is about to change, because another writer may have been there before. A command that
/// asks the operator asks first, under `attempt`, and calls `holdFolder` when it has its answer.
template <typename Work>
[[nodiscard]] bool attemptWriting(const Workplace& at, const Message& onFailure, Work&& work) {
    return attempt(at, onFailure, [&] {
        const FolderLock::Hold hold = holdFolder(at);
        return work();
    });
}

}  // namespace winvrx
