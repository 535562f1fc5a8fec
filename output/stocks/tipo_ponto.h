#pragma once

#include "foundation/desk/command.h"
#include "output/stocks/card_stock.h"

#include <string>
#include <vector>

namespace winvrx {

/// The stock screen: which make of card the selected company uses.
class TipoPonto {
  public:
    explicit TipoPonto(const Workplace& at);

    /// Reads the stored choice again.
    void load();

    /// What the option buttons offer, by code.
    [[nodiscard]] static std::vector<const CardStock*> offered();

    /// nullptr while nothing, or nothing known, is stored.
    [[nodiscard]] const CardStock* current() const { return current_; }
    /// What is stored and is no card to print on: "14 Etiqueta", "77". Empty otherwise.
    [[nodiscard]] const std::string& strangeCode() const { return strangeCode_; }
    /// The display name of the current stock; empty when there is none.
    [[nodiscard]] std::string label() const;

    /// Stores `stock`. False when it could not be stored; the former choice then stands.
    [[nodiscard]] bool choose(const CardStock& stock);

  private:
    Workplace at_;
    const CardStock* current_ = nullptr;
    std::string strangeCode_;
};

}  // namespace winvrx
