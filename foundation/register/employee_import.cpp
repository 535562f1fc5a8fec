#include "foundation/register/employee_import.h"

#include "foundation/register/company_register.h"
#include "foundation/register/employee_table.h"
#include "foundation/register/imported_employee.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

Message confirmation(std::size_t count) {
    return question(
        "INCLUSÃO", "Confirma a Inclusão na LISTA DE FUNCIONARIOS?",
        (count == 1 ? "Será incluído " : "Serão incluídos ") + countOf(count, "funcionário") + ".");
}

bool hasText(const std::vector<std::string>& row) {
    return std::ranges::any_of(row, [](const std::string& cell) { return !cell.empty(); });
}

}  // namespace

bool EmployeeImport::open(const std::filesystem::path& csv) {
    if (!at_.session.company) return at_.person.refuse(noCompany(at_));
    return attempt(at_, incorrectData(), [&] {
        const auto bytes = at_.files.read(csv);
        if (!bytes) throw Fault("no file " + csv.string(), "O arquivo não foi encontrado.");
        const CsvRows table = parseCsv(*bytes);
        const EmployeeRegister list(at_.store(), *at_.session.company);
        before_ = list.load();
        codesOfFiles_ = list.codesOfFiles();
        judge(table);
    });
}

void EmployeeImport::judge(const CsvRows& table) {
    rows_.clear();
    unknownTitles_.clear();
    std::vector<const EmployeeField*> columns;
    for (const std::string& title : table.empty() ? std::vector<std::string>() : table.front()) {
        columns.push_back(fieldTitled(title));
        if (!columns.back() && !title.empty()) unknownTitles_.push_back(title);
    }
    const bool hasNames = std::any_of(columns.begin(), columns.end(), [](const auto* field) {
        return field && field->member == &Employee::name;
    });
    if (!hasNames)
        throw Fault("CSV file without a column of names",
                    "A primeira linha do arquivo precisa ter os títulos das colunas, entre eles "
                    "\"Nome\".");
    std::vector<EmployeeLine> list = before_;
    for (std::size_t row = 1; row < table.size(); ++row) {
        if (!hasText(table[row])) continue;
        Employee employee;
        for (std::size_t i = 0; i < std::min(columns.size(), table[row].size()); ++i)
            if (columns[i] && columns[i]->member != &Employee::status)
                employee.*columns[i]->member = recordText(columns[i]->member, table[row][i]);
        completeImported(employee, list, codesOfFiles_);
        std::string problem = importProblem(employee, list, at_.clock.today());
        if (problem.empty()) list.push_back(lineOf(employee));
        rows_.push_back({row + 1, employee, problem, importNotice(employee)});
    }
}

std::size_t EmployeeImport::goodRows() const {
    return static_cast<std::size_t>(std::ranges::count_if(rows_, &ImportedRow::isGood));
}

bool EmployeeImport::include() {
    if (goodRows() == 0 || !at_.person.agrees(confirmation(goodRows()))) return false;
    return attemptWriting(at_, incorrectData(), [&] {
        EmployeeRegister list(at_.store(), at_.session.company.value());
        auto lines = list.load();
        if (lines != before_) throw changedElsewhere("employee list");
        for (const ImportedRow& row : rows_)
            if (row.isGood()) lines.push_back(lineOf(row.employee));
        list.save(lines, at_.clock.now());
    });
}

}  // namespace winvrx
