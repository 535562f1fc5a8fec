#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace winvrx {

/// "Turno": the part of the day in which an employee works.
enum class Shift { Unico, Um, Dois, Tres };

/// "Escala": how working days and rest days follow each other.
enum class Scale { Normal, FiveByOne, TwelveByThirtySix };

/// Which employees a list shows.
enum class ShiftFilter { Unico, Um, Dois, Tres, Todos };

inline constexpr std::array kShifts = {Shift::Unico, Shift::Um, Shift::Dois, Shift::Tres};
inline constexpr std::array kScales = {Scale::Normal, Scale::FiveByOne, Scale::TwelveByThirtySix};

/// The filters that the main window and `Turnos` offer, in their order.
inline constexpr std::array kMenuShiftFilters = {ShiftFilter::Unico, ShiftFilter::Dois,
                                                 ShiftFilter::Tres, ShiftFilter::Todos};

/// The stored code: "Unico", "Um", "Dois", "Tres".
[[nodiscard]] std::string_view codeOf(Shift shift);
/// "Normal", "5x1", "12x36".
[[nodiscard]] std::string_view codeOf(Scale scale);
/// "Unico", "Um", "Dois", "Tres", "Todos".
[[nodiscard]] std::string_view codeOf(ShiftFilter filter);

/// The line that lists show: "Unico  -> Comercial  ".
[[nodiscard]] std::string_view listTextOf(Shift shift);
/// "Normal-> Todos Turnos".
[[nodiscard]] std::string_view listTextOf(Scale scale);

/// From a stored code; the upper-case form is accepted too.
[[nodiscard]] std::optional<Shift> parseShift(std::string_view code);
/// From a stored code, also as cut to the five characters of its column ("Norma").
[[nodiscard]] std::optional<Scale> parseScale(std::string_view code);
[[nodiscard]] std::optional<ShiftFilter> parseShiftFilter(std::string_view code);

/// 12x36 allows the first and the third shift only.
[[nodiscard]] bool allows(Scale scale, Shift shift);

[[nodiscard]] bool passes(ShiftFilter filter, Shift shift);

}  // namespace winvrx
