#pragma once

#include "personnel/contract/contrato_trabalho.h"
#include "tests/support/employees.h"
#include "tests/support/leave_files.h"
#include "tests/support/recording_engine.h"
#include "tests/support/recording_word_processor.h"
#include "tests/support/test_printers.h"
#include "tests/support/test_workplace.h"

namespace winvrx::testing {

/// A company of three on 15/03/2024: Ana on trial until the 27th, José without a contract, and Rui,
/// who is inactive.
struct ContractOffice {
    TestWorkplace desk;
    RecordingEngine engine;
    TestPrinters printers;
    RecordingWordProcessor writer;
    ContratoTrabalho screen{
        desk.at, {engine, printers, writer, [] {
                      return std::vector<std::filesystem::path>{"/own", "/program/documents"};
                  }}};

    ContractOffice() {
        Company company = sampleCompany(*parseDate("01/01/2024"));
        desk.file("01Empresa") = joinedLines({encode(company)});
        Employee ana = employee("001", "ANA DA CONCEIÇÃO", {.admission = "12/02/2024"});
        ana.function = "CONFEITEIRA";
        ana.taxId = "529.982.247-25";
        ana.salary = "1.850,00";
        Employee jose = employee("002", "JOSÉ DE ALENCAR", {.admission = "04/03/2024"});
        jose.salary = "2.100,00";
        desk.file("01CartaPonto") =
            employeeList({ana, jose, employee("003", "RUI", {.admission = "01/02/2020"})});
        desk.file("01PadrHor002.pdx") = "08:0012:0013:0017:00";
        desk.file("01configAf003") = leaveBytes({}, "10/02/2024");
        desk.file("01contrato001") = joinedLines({encode(trialOfAna())});
    }

    [[nodiscard]] static Contract trialOfAna() {
        Contract contract;
        contract.kind = "Experiência";
        contract.begins = "12/02/2024";
        contract.signedOn = "12/02/2024";
        contract.trialDays = "45";
        contract.extensionDays = "45";
        contract.workplace = "Rua do Comércio, 10, Taubaté/SP";
        contract.schedule = "segunda a sexta, das 08:00 às 12:00 e das 13:00 às 17:00";
        contract.salary = "1.850,00";
        contract.establishment = "Padaria";
        return contract;
    }
};

}  // namespace winvrx::testing
