#include "timecard/hours/percent_change.h"

#include "foundation/values/text.h"
#include "timecard/hours/hours_summary.h"
#include "timecard/month/overtime_record.h"

namespace winvrx {

namespace {

Message confirmation(const std::string& caption, int percent) {
    return question("ALTERAÇÃO", "Confirma a Alteração de \"" + caption + "\" para " +
                                     std::to_string(percent) +
                                     "% para este Funcionário neste Mês?");
}

int percentIn(std::string_view typed) {
    const auto percent = parseWholeNumber(trimmed(typed), 0, kHighestPercent);
    if (!percent)
        throw Fault("overtime percentage: " + std::string(typed),
                    "\"" + std::string(typed) + "\" não é um percentual de 0 a " +
                        std::to_string(kHighestPercent) + ".");
    return *percent;
}

OvertimeRules onDisk(const Workplace& at, const PercentChange& change) {
    return overtimeOf(at.store(), {change.company, change.employee},
                      loadMonthSettings(at.store(), change.month));
}

}  // namespace

bool changePercent(const Workplace& at, const PercentChange& change) {
    return attempt(at, incorrectData(), [&] {
        const int percent = percentIn(change.typed);
        if (!at.person.agrees(confirmation(captionOf(change.category, change.shown), percent)))
            return false;
        const auto hold = holdFolder(at);
        OvertimeRules rules = onDisk(at, change);
        if (rules != change.shown) throw employeeChangedElsewhere("overtime figures");
        rules.*percentOf(change.category) = percent;
        saveOvertime(at.store(), {change.company, change.employee}, {change.month, rules});
        return true;
    });
}

}  // namespace winvrx
