#include "foundation/values/shift.h"

#include "foundation/values/text.h"

namespace winvrx {

namespace {

using namespace std::string_view_literals;

constexpr std::array kShiftCodes = {"Unico"sv, "Um"sv, "Dois"sv, "Tres"sv};
constexpr std::array kShiftTexts = {"Unico  -> Comercial  "sv, "Um     -> Manhã      "sv,
                                    "Dois   -> Tarde      "sv, "Três   -> Noite      "sv};
constexpr std::array kScaleCodes = {"Normal"sv, "5x1"sv, "12x36"sv};
constexpr std::array kScaleTexts = {"Normal-> Todos Turnos"sv, "5x1   -> Todos Turnos"sv,
                                    "12x36 -> Turnos 1 e 3"sv};
constexpr std::array kFilterCodes = {"Unico"sv, "Um"sv, "Dois"sv, "Tres"sv, "Todos"sv};
constexpr std::size_t kScaleColumnWidth = 5;

template <typename Value, std::size_t Count>
std::optional<Value> findCode(const std::array<std::string_view, Count>& codes,
                              std::string_view code) {
    for (std::size_t i = 0; i < Count; ++i)
        if (code == codes[i] || code == upperCase(codes[i])) return static_cast<Value>(i);
    return std::nullopt;
}

template <typename Value>
std::size_t indexOf(Value value) {
    return static_cast<std::size_t>(value);
}

}  // namespace

std::string_view codeOf(Shift shift) {
    return kShiftCodes[indexOf(shift)];
}
std::string_view codeOf(Scale scale) {
    return kScaleCodes[indexOf(scale)];
}
std::string_view codeOf(ShiftFilter filter) {
    return kFilterCodes[indexOf(filter)];
}
std::string_view listTextOf(Shift shift) {
    return kShiftTexts[indexOf(shift)];
}
std::string_view listTextOf(Scale scale) {
    return kScaleTexts[indexOf(scale)];
}

std::optional<Shift> parseShift(std::string_view code) {
    return findCode<Shift>(kShiftCodes, code);
}

std::optional<Scale> parseScale(std::string_view code) {
    const std::string_view cut = kScaleCodes[0].substr(0, kScaleColumnWidth);
    if (code == cut || code == upperCase(cut)) return Scale::Normal;
    return findCode<Scale>(kScaleCodes, code);
}

std::optional<ShiftFilter> parseShiftFilter(std::string_view code) {
    return findCode<ShiftFilter>(kFilterCodes, code);
}

bool allows(Scale scale, Shift shift) {
    return scale != Scale::TwelveByThirtySix || shift == Shift::Um || shift == Shift::Tres;
}

bool passes(ShiftFilter filter, Shift shift) {
    return filter == ShiftFilter::Todos || indexOf(filter) == indexOf(shift);
}

}  // namespace winvrx
