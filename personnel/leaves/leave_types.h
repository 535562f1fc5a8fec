#pragma once

#include "personnel/leaves/termination_dates.h"

#include <array>
#include <optional>
#include <string_view>

// The texts of the leave record that are picked from lists, exactly as they are stored.

namespace winvrx {

inline constexpr std::array<std::string_view, 8> kLeaveTypes = {
    "001 ACIDENTE_TRABALHO",   "002 LICENÇA_MATERNIDADE",       "003 AUXILIO_DOENÇA",
    "004 SERVIÇO_MILITAR",     "005 LICENÇA_ESPECIAL",          "006 FÉRIAS",
    "007 ATESTADO_DECALRAÇÃO", "008 RESCISÃO_CONTRATO_TRABALHO"};

inline constexpr std::string_view kVacationLeave = kLeaveTypes[5];

/// Days of illness or accident that the company pays; the social security pays those that follow
/// (Lei 8.213/1991, art. 60 par. 3).
inline constexpr int kIllnessDaysPaid = 15;

/// In the order of TerminationType.
inline constexpr std::array<std::string_view, 5> kTerminationTypes = {
    "01. Dispensa sem Justa Causa", "02. Dispensa por Justa Causa Causada pelo Empregado",
    "03. Pedido de Demissão", "04. Término do Contrato por Ato Culposo do Empregador",
    "05. Rescisão por Culpa Recíproca"};

/// In the order of NoticeType.
inline constexpr std::array<std::string_view, 2> kNoticeTypes = {"01. Aviso Trabalhado",
                                                                 "02. Aviso Indenizado"};

/// The entry of a list that a stored text means, by its number: a text that another program wrote
/// in other letters is understood. Nothing where the list has no such number.
[[nodiscard]] std::string_view leaveTypeOf(std::string_view stored);
[[nodiscard]] std::string_view terminationTextOf(std::string_view stored);
[[nodiscard]] std::string_view noticeTextOf(std::string_view stored);

[[nodiscard]] std::optional<TerminationType> terminationTypeOf(std::string_view stored);
[[nodiscard]] std::optional<NoticeType> noticeTypeOf(std::string_view stored);

}  // namespace winvrx
