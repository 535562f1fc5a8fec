#include "timecard/month/holidays.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace winvrx {

namespace {

using namespace std::chrono_literals;
using std::chrono::year;

struct FixedHoliday {
    std::chrono::month_day day;
    year from;
    std::string_view name;
};

constexpr std::array kFixedHolidays = {
    FixedHoliday{1d / 1, 1949y, "Confraternização Universal"},
    FixedHoliday{21d / 4, 1949y, "Tiradentes"},
    FixedHoliday{1d / 5, 1949y, "Dia do Trabalho"},
    FixedHoliday{7d / 9, 1949y, "Independência do Brasil"},
    FixedHoliday{12d / 10, 1980y, "Nossa Senhora Aparecida"},
    FixedHoliday{2d / 11, 1949y, "Finados"},
    FixedHoliday{15d / 11, 1949y, "Proclamação da República"},
    FixedHoliday{20d / 11, 2024y, "Consciência Negra"},
    FixedHoliday{25d / 12, 1949y, "Natal"},
};

struct MovableHoliday {
    int daysFromEaster;
    HolidayKind kind;
    std::string_view name;
};

constexpr std::array kMovableHolidays = {
    MovableHoliday{-48, HolidayKind::Optional, "Carnaval"},
    MovableHoliday{-47, HolidayKind::Optional, "Carnaval"},
    MovableHoliday{-2, HolidayKind::National, "Sexta-feira Santa"},
    MovableHoliday{60, HolidayKind::Optional, "Corpus Christi"},
};

}  // namespace

Date easterSunday(year year) {
    const int number = static_cast<int>(year);
    const int century = number / 100;
    const int placeInCycle = number % 19;
    // Days from 21 March to the full moon; the century's terms keep the cycle of nineteen years
    // with the sun and the moon.
    int fullMoon = (15 + 19 * placeInCycle + century - century / 4 - (8 * century + 13) / 25) % 30;
    if (fullMoon == 29 || (fullMoon == 28 && placeInCycle > 10)) --fullMoon;
    const Date date = plusDays(year / 3 / 21, fullMoon);
    return plusDays(date, 7 - static_cast<int>(weekdayOf(date).c_encoding()));
}

std::vector<Holiday> calendarHolidays(WorkMonth month) {
    std::vector<Holiday> holidays;
    for (const FixedHoliday& one : kFixedHolidays)
        if (one.day.month() == month.month() && month.year() >= one.from)
            holidays.push_back({month / one.day.day(), std::string(one.name)});
    const Date easter = easterSunday(month.year());
    for (const MovableHoliday& one : kMovableHolidays)
        if (const Date date = plusDays(easter, one.daysFromEaster); monthOf(date) == month)
            holidays.push_back({date, std::string(one.name), one.kind});
    std::ranges::stable_sort(holidays, {}, &Holiday::date);
    return holidays;
}

}  // namespace winvrx
