#include "timecard/rotation/work_table_edit.h"

#include "foundation/register/company_register.h"
#include "timecard/hours/hours_format.h"
#include "timecard/schedule/typed_time.h"

namespace winvrx {

namespace {

const std::string kTitle = "Quadro de Horário de  Trabalho";

const Message kTableOfEveryShift =
    failure(kTitle,
            "ERRO!! Não é Possível Gravar na Opção de Turno 'TODOS'! Mude para um Turno "
            "Específico.");
const Message kConfirmTable =
    question("ALTERAÇÃO", "Confirma Gravar o Quadro de Horário de Trabalho?");

/// The first shift that the scale allows where the filter names none.
Shift tableShiftOf(ShiftFilter filter, Scale scale) {
    const Shift first = allows(scale, Shift::Unico) ? Shift::Unico : Shift::Um;
    return parseShift(codeOf(filter)).value_or(first);
}

}  // namespace

WorkTableEdit::WorkTableEdit(const Workplace& at, ShiftFilter shift) : at_(at), filter_(shift) {
    table_ = recorded_ = standardTable(tableShiftOf(shift, Scale::Normal), Scale::Normal);
}

void WorkTableEdit::show(const std::optional<CompanyCode>& company, ShiftFilter shift,
                         Scale scale) {
    const Shift of = tableShiftOf(shift, scale);
    recorded_ = company ? loadTable(at_.store(), *company, of, scale) : standardTable(of, scale);
    table_ = recorded_;
    company_ = company;
    filter_ = shift;
}

void WorkTableEdit::typeTime(std::size_t row, std::size_t cell, std::string_view text) {
    table_.rows.at(row).at(cell) = completedTime(text);
}

std::string WorkTableEdit::weeklyCaption() const {
    return decimalHours(weeklyHours(table_), Decimals::One) + " HORAS SEMANAIS";
}

bool WorkTableEdit::save() {
    if (!company_) return at_.person.refuse(noCompany(at_));
    if (!parseShift(codeOf(filter_))) return at_.person.refuse(kTableOfEveryShift);
    if (const auto wrong = findingIn(table_))
        return at_.person.refuse(refusal(kTitle, "Dado Incorreto!", *wrong));
    if (!at_.person.agrees(kConfirmTable)) return false;
    return attemptWriting(at_, incorrectData(), [this] {
        if (loadTable(at_.store(), *company_, table_.shift, table_.scale) != recorded_)
            throw changedElsewhere("work table", "O quadro foi alterado");
        saveTable(at_.store(), *company_, table_);
        recorded_ = table_;
    });
}

}  // namespace winvrx
