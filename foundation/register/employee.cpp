#include "foundation/register/employee.h"

#include "foundation/values/text.h"

#include <algorithm>
#include <iterator>

namespace winvrx {

std::string searchedText(const Employee& employee) {
    return employee.code + " " + employee.name + " " + employee.function + " " + employee.taxId +
           " " + digitsIn(employee.taxId) + " ";
}

std::chrono::weekday weeklyRestOf(const Employee& employee) {
    constexpr std::size_t kShortWeekday = 3;
    const std::string stored = foldedForSearch(firstCharacters(employee.restDay, kShortWeekday));
    for (unsigned day = 0; day < 7; ++day)
        if (foldedForSearch(weekdayShort(std::chrono::weekday(day))) == stored)
            return std::chrono::weekday(day);
    return std::chrono::Sunday;
}

std::chrono::weekday restByCalendar(const Employee& employee) {
    return employee.scaleOr() == Scale::Normal ? weeklyRestOf(employee) : std::chrono::Sunday;
}

}  // namespace winvrx
