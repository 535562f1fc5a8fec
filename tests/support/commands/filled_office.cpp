#include "tests/support/commands/filled_office.h"

#include "foundation/files/record_file.h"
#include "foundation/register/company.h"
#include "foundation/register/employee_checks.h"
#include "tests/support/employees.h"

#include <vector>

namespace winvrx::testing {

namespace {

std::string companyLine(const std::string& code, const std::string& name) {
    Company company = sampleCompany(*parseDate("10/01/2024"));
    company.code = code;
    company.name = name;
    return encode(company);
}

}  // namespace

std::string inDataFolder(const std::string& name) {
    return kDataPath + name;
}

Employee officeEmployee(const std::string& code, const std::string& name,
                        const std::string& admission) {
    Employee one = employee(code, name, {.scale = "Norma", .admission = admission});
    for (const EmployeeField& field : kEmployeeFields)
        if (field.isRequired && (one.*field.member).empty()) one.*field.member = "1";
    return one;
}

FileTable filledOffice() {
    FileTable files;
    const auto file = [&files](const char* name) -> std::string& {
        return files[inDataFolder(name)];
    };
    file("01Empresa") = joinedLines({companyLine("01", "PRIMEIRA"), companyLine("02", "SEGUNDA")});
    file("01CartaPonto") =
        employeeList({officeEmployee("001", "ANA"), officeEmployee("002", "BIA", "05/03/2018"),
                      officeEmployee("003", "CAIO")});
    file("02CartaPonto") =
        employeeList({officeEmployee("001", "DORA"), officeEmployee("002", "EVA")});
    for (const char* company : {"01", "02"}) {
        file((company + std::string("PadrHor002.pdx")).c_str()) = "08:0012:0013:0017:00\r\n";
        file((company + std::string("002-03-2024.bdx")).c_str()) =
            "  \r\n01/sex/mar08:0012:0013:0017:00\r\n";
        file((company + std::string("002-02-2024.bdx")).c_str()) =
            "  \r\n01/qui/fev08:0012:0013:0017:00\r\n";
    }
    file("01CartaoDePontoTipo") = "05\r\n";
    file("02CartaoDePontoTipo") = "02\r\n";
    file("03CartaoDePontoTipo") = "left behind by a company of that code\r\n";
    file("01GRUPO-032024.rdx") = "GRUPO-001\r\n";
    file("02GRUPO-032024.rdx") = "GRUPO-001\r\n";
    file("03-2024ds.rdx") = "";
    file("01MedHorExtr002") = "02-2024 60  50  100 100 0 0 0 2 \r\n";
    file("Feriados") = "05/12      PADROEIRO\r\n09/07      9 DE JULHO\r\n";
    file("DataIde.ivc") = "03-2024\r\nTodos\r\n";
    file("LocMen.lvc") = "C\r\n";
    return files;
}

}  // namespace winvrx::testing
