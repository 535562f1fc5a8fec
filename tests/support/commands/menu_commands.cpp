// What the main window writes, and the safety copies.
#include "foundation/copies/restaurar_copia.h"
#include "foundation/menu/menu.h"
#include "tests/support/commands/writing_commands.h"
#include "tests/support/memory_settings.h"
#include "tests/support/only_copy.h"
#include "tests/support/plain_archiver.h"

namespace winvrx::testing {

namespace {

const std::string kEarlierList = "Arquivos de programas/Winvrx/CartaPonto";
const std::string kUseEarlier =
    "Existem Dados Cadastrados na Versão Anterior! Deseja Utilizar essa Base de Dados Anterior?";

FileTable officeOfAnEarlierVersion() {
    FileTable files = filledOffice();
    files[kEarlierList] = encode(officeEmployee("007", "ANTIGA")) + "\r\n";
    return files;
}

/// A started main window and what it does next.
template <typename Next>
auto inMenu(Next next) {
    return [next](const Workplace& at, const Drives& drives) {
        OnlyCopy instance;
        MemorySettings settings;
        Menu menu(at, drives, instance, settings, "/opt/winvrx");
        menu.load();
        next(menu);
        return true;
    };
}

const CopyName kCopyOfYesterday{.made = {*parseDate("14/03/2024"), *parseTime("08:12")}};

/// The office with a copy that lacks files, has another, and knows one differently.
FileTable officeWithACopy() {
    FileTable files = filledOffice();
    std::string copy = PlainArchiver::packedFile("01Empresa", "01 ANTES\r\n") +
                       PlainArchiver::packedFile("03CartaPonto", "001 JANE\r\n");
    const std::string same = "02CartaPonto";
    copy += PlainArchiver::packedFile(same, files.at(inDataFolder(same)));
    files[inDataFolder(std::string(kCopiesSubfolder) + "/" + kCopyOfYesterday.text())] = copy;
    return files;
}

bool restoreCopy(const Workplace& at, const Drives&) {
    const PlainArchiver archiver;
    SafetyCopies copies(at.files, archiver, at.log);
    return RestaurarCopia(at, copies).restore(kCopyOfYesterday);
}

}  // namespace

std::vector<WritingCommand> menuCommands() {
    return {
        {"first start", {}, inMenu([](Menu&) {})},
        {"select company", filledOffice(), inMenu([](Menu& menu) { menu.select(0); })},
        {"use another drive", filledOffice(), inMenu([](Menu& menu) { menu.useDrive('D'); })},
        {"import earlier data", officeOfAnEarlierVersion(),
         inMenu([](Menu& menu) { menu.offerEarlierData(); })},
        {"discard earlier data",
         officeOfAnEarlierVersion(),
         inMenu([](Menu& menu) { menu.offerEarlierData(); }),
         {kUseEarlier}},
        {"restore copy", officeWithACopy(), restoreCopy},
        {"exit", filledOffice(), inMenu([](Menu& menu) { menu.exit(); })},
    };
}

Outcome startAgain(Disk& disk, Host& host, const std::filesystem::path& root) {
    return runCommand({"start", {}, inMenu([](Menu&) {})}, disk, host, root);
}

}  // namespace winvrx::testing
