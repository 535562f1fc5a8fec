#pragma once

#include "foundation/files/data_folder.h"
#include "foundation/files/record_file.h"
#include "foundation/values/date.h"

#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace winvrx {

/// "Entrada" and "Saída"; an empty time is nullopt.
struct TimePair {
    std::optional<TimeOfDay> entry;
    std::optional<TimeOfDay> exit;

    [[nodiscard]] bool complete() const { return entry && exit; }
    [[nodiscard]] bool operator==(const TimePair&) const = default;
};

/// Morning and afternoon of one kind of day.
struct DaySchedule {
    TimePair morning;
    TimePair afternoon;

    [[nodiscard]] bool operator==(const DaySchedule&) const = default;
};

/// The eight times in the order of the panel: Monday to Friday's morning entry, morning exit,
/// afternoon entry and afternoon exit, then Saturday's.
inline constexpr std::size_t kScheduleTimes = 8;

/// The standard working hours of one employee: the record `PadrHor`.
struct StandardSchedule {
    DaySchedule weekday;
    DaySchedule saturday;
    bool saturdayIsNormal = false;  ///< "Sábado(Normal)" / "Sábado(Extra)"
    bool secondFlag = false;        ///< the panel's second check box
    /// Bytes of the columns that hold no time and are not blank, kept until a time is put there.
    std::array<std::string, kScheduleTimes> unread;
    std::string opaque;  ///< bytes from column 43 on, kept as they stand

    [[nodiscard]] bool operator==(const StandardSchedule&) const = default;
};

inline constexpr std::size_t kScheduleWidth = 192;

inline constexpr std::size_t kFirstSaturdayTime = 4;
[[nodiscard]] std::optional<TimeOfDay>& timeAt(StandardSchedule& schedule, std::size_t position);
[[nodiscard]] const std::optional<TimeOfDay>& timeAt(const StandardSchedule& schedule,
                                                     std::size_t position);

/// Built upon `existing`: what means the same there keeps its bytes.
[[nodiscard]] std::string encode(const StandardSchedule& schedule, std::string existing = {});

/// What is not a time counts as empty and is kept as unread.
[[nodiscard]] StandardSchedule decodeSchedule(std::string_view lineBytes);

/// "PadrHor001.pdx", to be put behind the company code.
[[nodiscard]] std::string scheduleFileName(const EmployeeCode& employee);

/// nullopt when the employee has no schedule yet.
[[nodiscard]] std::optional<StandardSchedule> loadSchedule(const Store& store,
                                                           const EmployeeKey& key);
/// The employee's file with the schedule in it. Lines behind the first, if the file has any, stay
/// as they are.
[[nodiscard]] FileSystem::NewContent withSchedule(const Store& store, const EmployeeKey& key,
                                                  const StandardSchedule& schedule);
void saveSchedule(const Store& store, const EmployeeKey& key, const StandardSchedule& schedule);

}  // namespace winvrx
