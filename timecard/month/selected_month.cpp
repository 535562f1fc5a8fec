#include "timecard/month/selected_month.h"

#include "foundation/files/record_file.h"
#include "foundation/files/record_names.h"
#include "foundation/register/company_register.h"

namespace winvrx {

std::optional<SelectedMonth> loadSelectedMonth(const Store& store) {
    const auto values = RecordFile(store, kSelectedMonthName).values();
    if (values.empty()) return std::nullopt;
    const auto month = parseMonthKey(values[0]);
    if (!month) return std::nullopt;
    const auto filter = values.size() > 1 ? parseShiftFilter(values[1]) : std::nullopt;
    return SelectedMonth{*month, filter.value_or(ShiftFilter::Todos)};
}

void saveSelectedMonth(const Store& store, const SelectedMonth& selected) {
    RecordFile(store, kSelectedMonthName)
        .rewriteValues({monthKey(selected.month), std::string(codeOf(selected.shiftFilter))});
}

Message noMonthChosen() {
    return refusal("Aviso", "Informe um Mês de Trabalho!!",
                   "Escolha-o em \"Mês\" (F4), na janela principal.");
}

std::optional<WorkMonth> requireSelectedMonth(const Workplace& at) {
    const auto selected = at.session.company ? loadSelectedMonth(at.store()) : std::nullopt;
    if (selected) return selected->month;
    at.person.tell(at.session.company ? noMonthChosen() : noCompany(at));
    return std::nullopt;
}

}  // namespace winvrx
