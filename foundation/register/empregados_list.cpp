// The commands on the whole list: order, reports and export.
#include "foundation/desk/text_report.h"
#include "foundation/register/activity_report.h"
#include "foundation/register/employee_order.h"
#include "foundation/register/employee_table.h"
#include "foundation/register/empregados.h"
#include "foundation/values/csv.h"
#include "foundation/values/text.h"

#include <algorithm>
#include <charconv>

namespace winvrx {

namespace {

constexpr std::string_view kWait = "Aguarde ....";

const Message kConfirmSortByName =
    riskyQuestion("ORDEM ALFABETICA", "Confirma Ordenação Alfabetica dos ITENS?");
const Message kConfirmSortByAdmission =
    riskyQuestion("ORDEM POR ADIMISSAO", "Confirma Ordenação por Data de Adimissão dos ITENS?");
const Message kUnreadableAdmission =
    failure("ORDEM POR ADIMISSAO", "ERRO! Dados incorretos no ITENS Selecionado!");
const Message kNoPlace = refusal("MOVER", "O Numero da Posição Inválido!");
const Message kPlaceTooLow = refusal(
    "MOVER",
    "O Numero da Posição não deve ser Igual ou Menor que 0 (Quantidade de Itens na Lista)!");
const Message kPlaceTooHigh = refusal(
    "MOVER", "O Numero da Posição não deve ser Maior do que a Quantidade de Itens na Lista!");
const Message kConfirmReport = question(
    "ATIVOS E INATIVOS", "Confirma Geração do Relatório de Colaboradores Ativos e Inativos?");
const Message kNotOpened = refusal("ATIVOS E INATIVOS", "Ocorreu Erro");

/// nullopt unless the whole text is a number.
std::optional<long> numberOf(std::string_view text) {
    text = trimmed(text);
    long number = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (fault != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

/// What is wrong with a place typed for a list of `count`; nullptr when it can be moved to.
const Message* refusalOf(std::optional<long> place, std::size_t count) {
    if (!place) return &kNoPlace;
    if (*place <= 0) return &kPlaceTooLow;
    if (static_cast<std::size_t>(*place) > count) return &kPlaceTooHigh;
    return nullptr;
}

/// The field's text with a sign in place of what no report can hold.
std::string readable(const EmployeeLine& line, std::string Employee::*member) {
    return readableText(rawFieldOf(line.bytes, fieldHolding(kEmployeeFields, member).column));
}

Fault unreadableLeaves(const Employee& employee) {
    return {"leave file of employee " + employee.code,
            "Os afastamentos de " + employee.code + " " + employee.name +
                " não podem ser lidos; não se sabe se está ativo."};
}

bool isWorkbookName(const std::filesystem::path& file) {
    return foldedForSearch(file.extension().string()) == ".xlsx";
}

}  // namespace

template <typename Sort>
bool Empregados::sort(const Message& question, const Message& onFailure, Sort&& order) {
    if (!requireCompany() || !at_.person.agrees(question)) return false;
    if (waitNotice_) waitNotice_(kWait);
    return run(onFailure, [&] { return rewrite(order); });
}

bool Empregados::sortByName() {
    return sort(kConfirmSortByName, incorrectData(), winvrx::sortByName);
}

bool Empregados::sortByAdmission() {
    return sort(kConfirmSortByAdmission, kUnreadableAdmission, winvrx::sortByAdmission);
}

bool Empregados::moveTo(std::size_t position, std::string_view typedPlace) {
    const auto place = numberOf(typedPlace);
    if (const Message* refusal = refusalOf(place, lines_.size())) return refuse(*refusal);
    return run(incorrectData(), [&] {
        return rewrite([&](Lines& lines) {
            (void)lineAsShown(lines, lines_, position);
            if (lines.size() != lines_.size()) throw changedElsewhere("employee list");
            moveLine(lines, position, static_cast<std::size_t>(*place) - 1);
        });
    });
}

std::vector<ReportedEmployee> Empregados::reportedEmployees() const {
    const auto hold = holdFolder(at_);
    const auto marks = readMarks();
    std::vector<ReportedEmployee> people;
    for (const Line& line : read()) {
        if (!line.key()) continue;
        const EmployeeMarks its = EmployeeList::marksOf(marks, *line.key());
        if (its.unreadable) throw unreadableLeaves(line.record);
        people.push_back({readable(line, &Employee::name), readable(line, &Employee::function),
                          readable(line, &Employee::admission), its.inactiveSince});
    }
    return people;
}

bool Empregados::report() {
    if (!requireCompany() || !at_.person.agrees(kConfirmReport)) return false;
    return run(incorrectData(), [&] {
        const std::vector<ReportedEmployee> people = reportedEmployees();
        const Date today = at_.clock.today();
        return showReports(at_, desk_.editor,
                           {{at_.session.companyFile("RelAtivos.txt"),
                             activityReport(people, false, today)},
                            {at_.session.companyFile("RelInativos.txt"),
                             activityReport(people, true, today)}}) ||
               refuse(kNotOpened);
    });
}

bool Empregados::exportTo(const std::filesystem::path& file) {
    if (!requireCompany()) return false;
    return run(incorrectData(), [&] {
        const Table table = tableOf(lines_, marks_);
        at_.files.replace(file, isWorkbookName(file) ? desk_.spreadsheet.workbookOf(
                                                           {textSheet("Funcionários", table)})
                                                     : csvText(rowsOf(table)));
        return true;
    });
}

}  // namespace winvrx
