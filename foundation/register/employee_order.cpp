#include "foundation/register/employee_order.h"

#include "foundation/values/faults.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

template <typename Key>
void sortByKey(std::vector<EmployeeLine>& lines, Key key) {
    std::vector<std::pair<std::decay_t<decltype(key(lines[0]))>, std::size_t>> order;
    order.reserve(lines.size());
    for (const EmployeeLine& line : lines)
        order.emplace_back(key(line), order.size());
    std::sort(order.begin(), order.end());
    std::vector<EmployeeLine> sorted;
    sorted.reserve(lines.size());
    for (const auto& [ignored, place] : order)
        sorted.push_back(std::move(lines[place]));
    lines = std::move(sorted);
}

}  // namespace

void sortByName(std::vector<EmployeeLine>& lines) {
    sortByKey(lines, [](const EmployeeLine& line) {
        return std::pair(foldedForSearch(line.record.name), upperCase(line.record.name));
    });
}

void sortByAdmission(std::vector<EmployeeLine>& lines) {
    sortByKey(lines, [](const EmployeeLine& line) {
        const auto admission = line.record.admissionDate();
        if (!admission)
            throw Fault(
                "admission date \"" + line.record.admission + "\" of employee " + line.record.code,
                "A data de admissão de " + line.record.code + " " + line.record.name +
                    " não pode ser lida.");
        return *admission;
    });
}

void moveLine(std::vector<EmployeeLine>& lines, std::size_t from, std::size_t to) {
    const auto at = [&](std::size_t place) {
        return lines.begin() + static_cast<std::ptrdiff_t>(place);
    };
    if (from < to)
        std::rotate(at(from), at(from + 1), at(to + 1));
    else
        std::rotate(at(to), at(from), at(from + 1));
}

}  // namespace winvrx
