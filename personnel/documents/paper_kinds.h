#pragma once

#include <array>
#include <string>
#include <string_view>

// The papers of an employment that the documents screen composes.

namespace winvrx {

enum class Paper {
    AvisoPrevio,
    PedidoDemissao,
    Jornada12x36,
    Compensacao,
    Prorrogacao,
    ReducaoIntervalo,
    Viagem,
    DeclaracaoEscolar,
    ValeTransporte,
    DecimoTerceiroFerias,
    SalarioFamilia,
    SaidaExpediente,
    FolhaPonto,
    FichaRegistro,
    AdiantamentoSalario,
    TermoRescisao,
    TermoHomologacao
};

struct PaperKind {
    Paper paper;
    std::string_view key;    ///< of its text's file, of what is remembered, and of its own file
    std::string_view title;  ///< in the list
    std::string_view ownConfirmation = {};
    /// Of the file that bars the reactivation of who was given the paper at the contract's end.
    std::string_view terminationStem = {};
    /// For who has left: needs a recorded termination, and takes who is inactive.
    bool isOfTerminated = false;

    /// Asked before it is printed: its own words, or "Confirma Impressão do AVISO PRÉVIO?".
    [[nodiscard]] std::string confirmation() const;
};

inline constexpr std::size_t kPapers = 17;

/// In the order of Paper.
[[nodiscard]] const std::array<PaperKind, kPapers>& paperKinds();
[[nodiscard]] const PaperKind& kindOf(Paper paper);

}  // namespace winvrx
