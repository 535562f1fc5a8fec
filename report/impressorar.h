#pragma once

#include "foundation/desk/command.h"
#include "report/printers.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

inline constexpr std::string_view kImpressorarTitle = "Impressoras";

/// The printer screen: on which printer the program prints. A choice is stored at once.
class Impressorar {
  public:
    /// The printers outlive the screen.
    Impressorar(const Workplace& at, Printers& printers);

    /// Reads the choice and the installed printers again.
    void load();
    /// Asks again for the installed printers alone. True when they changed.
    bool refreshPrinters();

    [[nodiscard]] const std::vector<std::string>& printers() const { return names_; }
    /// The list's entries, one for each of printers().
    [[nodiscard]] std::vector<std::string> entries() const;
    /// Empty while the default printer is chosen.
    [[nodiscard]] const std::string& chosen() const { return chosen_; }
    /// Empty when the system has none.
    [[nodiscard]] std::string defaultPrinter() const { return printers_.defaultName(); }
    /// Of the chosen one in printers(); nullopt for the default one, and where it is not there.
    [[nodiscard]] std::optional<std::size_t> position() const;
    /// Why the chosen printer, or a default one, cannot be reached at the moment; empty where it
    /// can.
    [[nodiscard]] std::string problem() const;

    /// "Imprimir direto na Impressora Padrão".
    bool useDefault();
    /// "Selecione uma Impressora Instalada". False when it could not be reached or stored; the
    /// former choice then stands.
    bool use(std::size_t position);
    /// "Adicionar Uma Impressora =>>".
    bool add();

  private:
    bool store(const std::string& name);

    Workplace at_;
    Printers& printers_;
    std::vector<std::string> names_;
    std::string chosen_;
};

}  // namespace winvrx
