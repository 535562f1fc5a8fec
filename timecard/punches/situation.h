#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

// The situation of a day ("Situação"): one of these texts, letter case and accents aside, or any
// other, which says nothing about the hours.
//
//     findSituation("Falta Injustifi")->word     "Falta Injustificada"
//     meaningOf("FALTA")                         DayMeaning::Missing
//     meaningOf("treinamento")                   DayMeaning::Work

namespace winvrx {

/// What a situation makes of its day.
enum class DayMeaning {
    Work,        ///< as the calendar and the schedule say
    Holiday,     ///< a rest day, whatever the calendar says
    WeeklyRest,  ///< likewise
    Leave,       ///< away: the schedule asks for nothing
    Missing,     ///< absent: all that the schedule asks for is missing
    Excused      ///< whatever was not worked is excused
};

/// Characters of the column that stores a situation.
inline constexpr std::size_t kSituationWidth = 15;

struct Situation {
    std::string_view word;  ///< whole, as the screen shows it
    std::string_view mark;  ///< as the column stores it
    DayMeaning meaning;
};

inline constexpr std::string_view kSituationAbsence = "Falta";
inline constexpr std::string_view kSituationUnjustified = "Falta Injustificada";
inline constexpr std::string_view kSituationUnjustifiedShort = "Falta Inj.";  ///< on the cards
inline constexpr std::string_view kSituationHoliday = "FERIADO";
inline constexpr std::string_view kSituationWeeklyRest = "DESCANSO SEMANAL";
inline constexpr std::string_view kSituationDayOff = "FOLGA";  ///< of a rotation
inline constexpr std::string_view kSituationLeave = "AFASTAMENTO";

/// In the order in which the grid offers them.
inline constexpr std::array kSituations = {
    Situation{kSituationAbsence, "Falta", DayMeaning::Missing},
    Situation{kSituationUnjustified, "Falta Injustifi", DayMeaning::Missing},
    Situation{"Atestado", "Atestado", DayMeaning::Excused},
    Situation{"Abonado", "Abonado", DayMeaning::Excused},
    Situation{"Férias", "Férias", DayMeaning::Excused},
    Situation{"Folga", "Folga", DayMeaning::Excused},
    Situation{kSituationHoliday, "FERIADO", DayMeaning::Holiday},
    Situation{kSituationWeeklyRest, "DESCANSO SEMANA", DayMeaning::WeeklyRest},
    Situation{kSituationLeave, "AFASTAMENTO", DayMeaning::Leave},
};

/// The situation that a text stands for, letter case and accents aside: whole, as stored, or as the
/// cards shorten it ("Falta Inj."); nullptr for any other text.
[[nodiscard]] const Situation* findSituation(std::string_view text);

/// What an operator means by a text: the word of a situation that it is, letter case and accents
/// aside, or that it begins with three letters or more and no other does; any other text stays as
/// it is. "falta" and "fal" are "Falta"; "fer" may be two words and stays.
[[nodiscard]] std::string meantSituation(std::string_view typed);

/// Whether the word of a situation begins with the text, letter case and accents aside.
[[nodiscard]] bool beginsSituation(std::string_view text);

/// DayMeaning::Work for a text that is none of kSituations, the blank included.
[[nodiscard]] DayMeaning meaningOf(std::string_view situation);

/// An absence, excused or not, which takes the day as a whole: the card prints its word only on a
/// day without times.
[[nodiscard]] bool isWholeDay(std::string_view situation);

}  // namespace winvrx
