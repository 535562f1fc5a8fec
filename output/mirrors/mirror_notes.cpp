// What stands under the hours of a mirror.
#include "foundation/values/text.h"
#include "output/mirrors/mirror_period.h"
#include "timecard/hours/tolerance.h"
#include "timecard/punches/day_check.h"

namespace winvrx {

namespace {

constexpr std::size_t kDaysInNote = 8;  // a line of the page holds them

std::optional<std::chrono::minutes> variationOf(const MirrorDay& day, const DaySchedule& from) {
    return toleratedVariation({day.line.morning(), day.line.afternoon()}, from);
}

/// The times that "Aplicar Ponto" would give the day; nullopt where that cannot be told: without a
/// schedule, and on a rotation's Sunday, which has times of its own.
std::optional<DaySchedule> filledTimes(const MirrorSheet& sheet, const MirrorDay& day) {
    const auto weekday = weekdayOf(day.date);
    const bool rotates = sheet.employee.scaleOr() != Scale::Normal;
    if (!sheet.schedule || (rotates && weekday == std::chrono::Sunday)) return std::nullopt;
    const StandardSchedule& schedule = *sheet.schedule;
    if (weekday != std::chrono::Saturday) return rotates ? schedule.weekday : day.contracted;
    // Saturdays of extra time are filled though nothing is asked for on them.
    const bool atRest = meaningOf(day.line.situation) != DayMeaning::Work;
    return atRest && !rotates ? day.contracted : schedule.saturday;
}

/// Times that filling would not have given, the tolerated minutes apart.
bool isByHand(const MirrorSheet& sheet, const MirrorDay& day) {
    const auto filled = filledTimes(sheet, day);
    if (!day.line.hasTimes() || !filled) return false;
    const TimePair none;
    const bool beside = (filled->morning == none && day.line.morning() != none) ||
                        (filled->afternoon == none && day.line.afternoon() != none) ||
                        day.line.extra() != none;
    return beside || !variationOf(day, *filled);
}

void noteByHand(std::vector<std::string>& notes, const MirrorSheet& sheet) {
    std::size_t named = 0;
    for (const MirrorDay& day : sheet.days) {
        if (!isByHand(sheet, day)) continue;
        const std::string date = dateText(day.date).substr(0, 5);
        if (named++ % kDaysInNote == 0)
            notes.push_back("Corrigido à mão: " + date);
        else
            notes.back() += ", " + date;
    }
}

}  // namespace

std::vector<std::string> mirrorNotes(const MirrorSheet& sheet) {
    std::vector<std::string> notes;
    for (const DatedLeave& one : sheet.leaves.leaves())
        if (one.period.overlaps({sheet.period.first, sheet.period.last}))
            notes.push_back("Afastamento: " + leaveText(one));
    noteByHand(notes, sheet);
    for (const MirrorDay& day : sheet.days) {
        const auto say = [&](const std::string& what) {
            notes.push_back(day.line.label + ": " + what);
        };
        if (day.standing == Standing::OnLeave && day.line.hasTimes())
            say("horas em dia de afastamento");
        if (const auto varied = variationOf(day, day.contracted); varied && varied->count() > 0)
            say("variação de " + std::to_string(varied->count()) + " min tolerada");
        if (const std::string doubt = doubtAbout(day.line); !doubt.empty()) say(doubt);
        if (const auto typed = trimmed(day.line.shortField); !typed.empty())
            say("observação \"" + std::string(typed) + "\"");
    }
    return notes;
}

}  // namespace winvrx
