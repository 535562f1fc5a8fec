#pragma once

#include "foundation/desk/session.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

// The makes of pre-printed card on which a time card can be printed. Each has a code, which is what
// is stored, and for the makes that are time cards a stem from which the layout's name is formed:
//
//     layoutFor("01", TrayPosition::Central, LayoutSet::A)     "tilibcenter.rpt"
//     layoutFor("17", TrayPosition::Lateral, LayoutSet::A)     "tamoio_EXleft.rpt"
//     layoutFor("14", …)                                       nullopt: labels, not a card

namespace winvrx {

/// "Posição Cartão na Bandeja:": how the card is fed.
enum class TrayPosition {
    Central,  ///< in the middle of the tray
    Lateral   ///< against the side guide
};

/// A prints the cards in one run, B one at a time. File names are matched letter case included.
enum class LayoutSet { A, B };

struct CardStock {
    std::string_view code;
    std::string_view displayName;
    std::string_view storedName;  ///< stands behind the code in the setting file
    std::string_view stemA;       ///< empty for what is no time card
    std::string_view stemB;
    bool offered = true;  ///< on the stock screen
};

/// Every stock, by code.
inline constexpr std::array kCardStocks = {
    CardStock{"01", "Tilibra", "Tilibra", "tilib", "tilib"},
    CardStock{"02", "SD", "SD", "sd", "sd"},
    CardStock{"03", "Dimep/TopData", "Dimep/Topdata", "dimep", "dimep"},
    CardStock{"04", "Real Ponto", "", "realponto", "realponto"},
    CardStock{"05", "MADIS", "", "madis", "madis"},
    CardStock{"06", " BMVIX - TRIX", " BMVIX - TRIX", "Bmvix", "Bmvix"},
    CardStock{"07", "Tamoio", "Tamoio", "tamoio", "tamoio"},
    CardStock{"08", "Lados", "", "", "", false},
    CardStock{"09", "CartaoPontoA", "CartaoPontoA", "cartaopontoa", "CartaoPontoA"},
    CardStock{"10", "DISNIBRA", "DISNIBRA", "disnibra", "DISNIBRA"},
    CardStock{"11", "DIPONTO", "DIPONTO", "DIPONTO", "DIPONTO"},
    CardStock{"12", "SD-N", "SDN", "SDN", "SDN"},
    CardStock{"13", "DATAPRINT", "DATAPRINT", "dataprint", "dataprint"},
    CardStock{"14", "Etiqueta", "", "", "", false},
    CardStock{"15", "Espelho", "", "", "", false},
    CardStock{"16", "CARTAO-CEU", "CARTAO-CEU", "cartaoceu", "cartaoceu"},
    // The grid of "Tamoio" in its extended form.
    CardStock{"17", "SAO DOM", "SAO DOM", "tamoio_EX", "tamoio_EX"},
    CardStock{"18", "LadosPonto", "", "espelhosladoponto", "espelhosladoponto", false},
    CardStock{"19", "ORTEP", "ORTEP", "ORTEP", "ORTEP"},
    CardStock{"20", "RHJ", "RHJ", "RHJ", "RHJ"},
};

/// The codes that the card print knows, in the order in which it looks them up. "18" is not among
/// them: its layouts print mirrors.
inline constexpr std::array<std::string_view, 16> kPrintOrder = {
    "01", "02", "03", "04", "05", "06", "07", "09", "10", "11", "12", "13", "16", "17", "19", "20"};

/// The stock of a code, offered or not; nullptr for an unknown code.
[[nodiscard]] const CardStock* findStock(std::string_view code);

/// The layout file that prints a card of this stock; nullopt when the card print has none.
[[nodiscard]] std::optional<std::string> layoutFor(std::string_view code, TrayPosition tray,
                                                   LayoutSet set);

/// The line of the setting file: "12SDN", "05", "06 BMVIX - TRIX".
[[nodiscard]] std::string settingLineOf(const CardStock& stock);

/// The stored code of the stock in use, whatever it is; empty where none is stored. Throws
/// FileFault.
[[nodiscard]] std::string loadStockCode(const Store& store, const CompanyCode& company);

/// The stock in use at the selected company; nullptr when none is stored or the code is unknown.
/// Throws FileFault.
[[nodiscard]] const CardStock* loadStock(const Store& store, const CompanyCode& company);

/// Stores the stock in place of the former one. Throws FileFault.
void saveStock(const Store& store, const CompanyCode& company, const CardStock& stock);

}  // namespace winvrx
