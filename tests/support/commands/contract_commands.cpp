// What the contract screen and the correction letters write.
#include "personnel/invoice_letter/carta_correcao_imprime.h"
#include "tests/support/commands/writing_commands.h"
#include "tests/support/contract_office.h"

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

/// Every element of an event, each with its name for a text.
struct AnyLetter final : XmlReader {
    void read(const std::string&,
              const std::function<void(const XmlElement&)>& take) const override {
        for (const LetterElement& element : kLetterElements)
            take({std::string(element.name), "ID1",
                  element.member == &CorrectionLetter::accessKey ? std::string(44, '1')
                                                                 : std::string(element.name)});
    }
};

bool printLetter(const Workplace& at, const Drives&) {
    RecordingEngine engine;
    const AnyLetter reader;
    CartaCorrecaoImprime screen(at, {engine, reader});
    if (!screen.openFolder(at.session.folder.path())) return false;
    screen.select(0);
    return screen.print(ReportOutput::Printer);
}

FileTable officeWithAnEvent() {
    FileTable files = filledOffice();
    files[inDataFolder("evento.xml")] = "<procEventoNFe/>";
    return files;
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
        {"keep a correction letter", officeWithAnEvent(), printLetter},
    };
}

}  // namespace winvrx::testing
