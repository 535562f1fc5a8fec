// What the contract screen writes.
#include "tests/support/contract_office.h"
#include "tests/support/writing_commands.h"

namespace winvrx::testing {

namespace {

FileTable contractedOffice() {
    FileTable files = filledOffice();
    files[inDataFolder("01contrato002")] =
        joinedLines({encode(ContractOffice::trialOfAna()) + "  by hand"});
    return files;
}

bool inContracts(const Workplace& at, const char* employee, bool (*give)(ContratoTrabalho&)) {
    RecordingEngine engine;
    TestPrinters printers;
    RecordingWordProcessor writer;
    ContratoTrabalho screen(at, {engine, printers, writer, {}});
    return screen.load() && screen.select(screen.list().positionOf(employee)) && give(screen);
}

}  // namespace

std::vector<WritingCommand> contractCommands() {
    const auto on = [](const char* employee, bool (*give)(ContratoTrabalho&)) {
        return [=](const Workplace& at, const Drives&) { return inContracts(at, employee, give); };
    };
    return {
        {"record a contract", contractedOffice(),
         on("001",
            [](ContratoTrabalho& screen) { return screen.save(ContractOffice::trialOfAna()); })},
        {"replace a contract", contractedOffice(),
         on("002",
            [](ContratoTrabalho& screen) {
                Contract typed = screen.contract();
                typed.salary = "2.000,00";
                return screen.save(typed);
            })},
        {"delete a contract", contractedOffice(),
         on("002", [](ContratoTrabalho& screen) { return screen.remove(); })},
    };
}

}  // namespace winvrx::testing
