#include "foundation/register/imported_employee.h"

#include "foundation/register/employee_checks.h"
#include "foundation/register/employee_transfer.h"
#include "foundation/values/input_checks.h"
#include "foundation/values/money.h"
#include "foundation/values/text.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

struct ShiftWord {
    std::string_view text;
    Shift shift;
};

constexpr std::array kShiftWords = {
    ShiftWord{"unico", Shift::Unico}, ShiftWord{"comercial", Shift::Unico},
    ShiftWord{"um", Shift::Um},       ShiftWord{"1", Shift::Um},
    ShiftWord{"manha", Shift::Um},    ShiftWord{"dois", Shift::Dois},
    ShiftWord{"2", Shift::Dois},      ShiftWord{"tarde", Shift::Dois},
    ShiftWord{"tres", Shift::Tres},   ShiftWord{"3", Shift::Tres},
    ShiftWord{"noite", Shift::Tres},
};

std::string shiftText(std::string_view cell) {
    const std::string word = foldedForSearch(cell);
    for (const ShiftWord& one : kShiftWords)
        if (one.text == word) return std::string(codeOf(one.shift));
    return std::string(cell);
}

std::string scaleText(std::string_view cell) {
    std::string word = foldedForSearch(cell);
    std::erase(word, ' ');
    for (const Scale scale : kScales)
        if (word == foldedForSearch(codeOf(scale))) return std::string(codeOf(scale));
    return std::string(cell);
}

/// "dom" for "Domingo", "seg" for "segunda" and "Segunda-feira".
std::string restDayText(std::string_view cell) {
    const std::string word = foldedForSearch(cell);
    for (unsigned day = 0; day < 7; ++day) {
        const std::string_view code = weekdayShort(std::chrono::weekday(day));
        const std::string name = foldedForSearch(weekdayName(std::chrono::weekday(day)));
        if (word.size() >= foldedForSearch(code).size() && name.starts_with(word))
            return std::string(code);
    }
    return std::string(cell);
}

/// "5211-10", as the CBO is often printed, without its dash.
std::string withoutDash(std::string_view cell) {
    std::string text(cell);
    std::erase(text, '-');
    return text;
}

/// The first field whose text the record would cut or cannot hold.
std::string unstorableField(const Employee& employee) {
    for (const EmployeeField& field : kEmployeeFields) {
        const std::string& text = employee.*field.member;
        const bool isScale = field.member == &Employee::scale;
        if (!isScale && characterCount(text) > field.column.width)
            return std::string(field.caption) + " com mais de " +
                   std::to_string(field.column.width) + " caracteres.";
        if (const Hint hint = textHint(text); hint.tone == Hint::Tone::Warning)
            return std::string(field.caption) + ": " + hint.text;
    }
    return {};
}

}  // namespace

std::string recordText(std::string Employee::*field, std::string_view cell) {
    cell = trimmed(cell);
    if (field == &Employee::code) return completedEmployeeCode(cell);
    if (field == &Employee::shift) return shiftText(cell);
    if (field == &Employee::scale) return scaleText(cell);
    if (field == &Employee::restDay) return restDayText(cell);
    if (field == &Employee::taxId) return completedCpf(cell);
    if (field == &Employee::occupation) return withoutDash(cell);
    if (field == &Employee::postalCode) return completedPostalCode(cell);
    if (field == &Employee::state) return upperCase(cell);
    if (field == &Employee::admission || field == &Employee::dismissal ||
        field == &Employee::birthDate)
        return completedDate(cell);
    if (field == &Employee::salary) return storedMoney(cell);
    return std::string(cell);
}

void completeImported(Employee& employee, const std::vector<EmployeeLine>& list,
                      std::set<EmployeeCode> codesOfFiles) {
    if (employee.code.empty()) {
        codesOfFiles.merge(keysOf(list));
        if (const auto code = lowestFreeCode(codesOfFiles)) employee.code = code->text();
    }
    if (employee.shift.empty()) employee.shift = codeOf(Shift::Unico);
    if (employee.scale.empty()) employee.scale = codeOf(Scale::Normal);
}

std::string importProblem(const Employee& employee, const std::vector<EmployeeLine>& list,
                          Date today) {
    if (const auto missing = missingIn(employee); !missing.empty()) return missingText(missing);
    if (!employee.admissionDate()) return captioned(noSuchDate(employee, &Employee::admission));
    if (!parseShift(employee.shift))
        return "Turno \"" + employee.shift + "\" não é Unico, Um, Dois nem Tres.";
    if (!parseScale(employee.scale))
        return "Escala \"" + employee.scale + "\" não é Normal, 5x1 nem 12x36.";
    if (const auto wrong = wrongIn(employee, {}, today); !wrong.empty())
        return captioned(wrong.front());
    if (std::string wrong = unstorableField(employee); !wrong.empty()) return wrong;
    if (findLine(list, employee.employeeCode())) return captioned(takenCode(employee));
    if (isRegistered(list, employee)) return "Este funcionário já está na lista.";
    return {};
}

std::string importNotice(const Employee& employee) {
    const std::array hints = {
        cpfHint(employee.taxId, Entry::Left), pisHint(employee.socialId, Entry::Left),
        occupationHint(employee.occupation, Entry::Left), moneyHint(employee.salary, Entry::Left)};
    return joined(hints, " ", [](const Hint& hint) {
        return hint.tone == Hint::Tone::Warning ? hint.text : std::string();
    });
}

}  // namespace winvrx
