#include "foundation/register/employee_table.h"

#include "foundation/values/text.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

struct UsualTitle {
    std::string_view text;  ///< as keyOf gives it
    std::string Employee::*member;
};

constexpr std::array kUsualTitles = {
    UsualTitle{"cod", &Employee::code},
    UsualTitle{"matricula", &Employee::code},
    UsualTitle{"funcionario", &Employee::name},
    UsualTitle{"empregado", &Employee::name},
    UsualTitle{"colaborador", &Employee::name},
    UsualTitle{"nomecompleto", &Employee::name},
    UsualTitle{"nomedofuncionario", &Employee::name},
    UsualTitle{"cargo", &Employee::function},
    UsualTitle{"estado", &Employee::state},
    UsualTitle{"endereco", &Employee::address},
    UsualTitle{"logradouro", &Employee::address},
    UsualTitle{"identidade", &Employee::identityCard},
    UsualTitle{"carteiradetrabalho", &Employee::workBooklet},
    UsualTitle{"pispasep", &Employee::socialId},
    UsualTitle{"nis", &Employee::socialId},
    UsualTitle{"ficha", &Employee::sheet},
    UsualTitle{"registro", &Employee::registration},
    UsualTitle{"municipio", &Employee::city},
    UsualTitle{"datanascimento", &Employee::birthDate},
    UsualTitle{"datadenascimento", &Employee::birthDate},
    UsualTitle{"celular", &Employee::telephone},
    UsualTitle{"fone", &Employee::telephone},
    UsualTitle{"dataadmissao", &Employee::admission},
    UsualTitle{"datadeadmissao", &Employee::admission},
    UsualTitle{"datademissao", &Employee::dismissal},
    UsualTitle{"datadedemissao", &Employee::dismissal},
    UsualTitle{"obs", &Employee::notes},
    UsualTitle{"salariobase", &Employee::salary},
    UsualTitle{"dadosbancarios", &Employee::bank},
    UsualTitle{"contabancaria", &Employee::bank},
    UsualTitle{"folga", &Employee::restDay},
};

/// Letters and digits without case and accents.
std::string keyOf(std::string_view title) {
    std::string key = foldedForSearch(title);
    std::erase_if(key, [](char c) { return !((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')); });
    return key;
}

}  // namespace

Table tableOf(const std::vector<EmployeeLine>& lines, const EmployeeList::Marks& marks) {
    Table table;
    for (const EmployeeField& field : kEmployeeFields)
        table.titles.emplace_back(field.caption);
    for (const EmployeeLine& line : lines) {
        std::vector<std::string> row;
        row.reserve(kEmployeeFields.size());
        for (const EmployeeField& field : kEmployeeFields)
            row.push_back(line.record.*field.member);
        const auto code = line.key();
        row.back() =
            activityOf(line.record, code ? EmployeeList::marksOf(marks, *code) : EmployeeMarks());
        table.rows.push_back(std::move(row));
    }
    return table;
}

static_assert(kEmployeeFields.back().member == &Employee::status);

CsvRows rowsOf(const Table& table) {
    CsvRows rows = {table.titles};
    rows.insert(rows.end(), table.rows.begin(), table.rows.end());
    return rows;
}

const EmployeeField* fieldTitled(std::string_view title) {
    const std::string key = keyOf(title);
    const auto* usual = std::find_if(kUsualTitles.begin(), kUsualTitles.end(),
                                     [&](const UsualTitle& one) { return one.text == key; });
    const auto* field =
        std::find_if(kEmployeeFields.begin(), kEmployeeFields.end(), [&](const EmployeeField& one) {
            return keyOf(one.caption) == key ||
                   (usual != kUsualTitles.end() && usual->member == one.member);
        });
    return field == kEmployeeFields.end() ? nullptr : field;
}

}  // namespace winvrx
