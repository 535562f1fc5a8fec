#include "foundation/desk/desktop/system_clock.h"

#include <QDateTime>

namespace winvrx {

Clock::Moment SystemClock::now() const {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    return {.date = std::chrono::year{date.year()} /
                    std::chrono::month{static_cast<unsigned>(date.month())} /
                    std::chrono::day{static_cast<unsigned>(date.day())},
            .time = {std::chrono::minutes{now.time().hour() * 60 + now.time().minute()}}};
}

}  // namespace winvrx
