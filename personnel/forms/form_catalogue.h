#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

// The catalogue of printed forms. What each is for stands in docs/glossary.md, and how its layout
// is drawn in docs/layout-files.md.

namespace winvrx {

/// The marks that end an entry's line.
enum class FormMark : char {
    Filled = '+',  ///< with the data of the selected employee
    Blank = '-'    ///< to be filled in by hand
};

struct CatalogueForm {
    int number;  ///< from 1 on
    std::string_view title;
    FormMark mark;
    std::string_view purpose;  ///< one sentence for the operator

    [[nodiscard]] bool isFilled() const { return mark == FormMark::Filled; }
    /// "02-AVISO DE ADVERTÊNCIA", padded to 62 characters, and the mark.
    [[nodiscard]] std::string line() const;
    /// "02-AV": the number and the first two letters of the title.
    [[nodiscard]] std::string key() const;
    /// Whether the keyword is a word of the title, blanks around it, letter case and accents aside.
    [[nodiscard]] bool hasKeyword(std::string_view keyword) const;
};

/// What is printed of a form: all of it on one sheet or, of the registration card, one face.
enum class FormFace { Sheet, Front, Back };

/// The form's layout file: "02-AV.RPT", "13-FIfre.RPT". Only a form with faces has others than
/// that of the sheet.
[[nodiscard]] std::string layoutOf(const CatalogueForm& form, FormFace face = FormFace::Sheet);
/// The registration card alone has a front and a back.
[[nodiscard]] bool hasFaces(const CatalogueForm& form);

/// Every entry, by number.
[[nodiscard]] std::span<const CatalogueForm> formCatalogue();

/// The words that a search may begin with, in the order of the list.
inline constexpr std::array<std::string_view, 47> kFormKeywords = {
    "ACORDO",      "AUDITORIA",   "AVISO",
    "CADASTRO",    "CARTA",       "CARTEIRA",
    "CONTRATO",    "DETERMINADO", "DISCIPLINAR",
    "DISPENSA",    "DOCUMENTOS",  "DOMESTICO",
    "EMPREGADO",   "EMPREGADOR",  "EMPREGO",
    "ENTREGA",     "ESCOLARES",   "ESPECIAL",
    "ESPELHO",     "EXPEDIENTE",  "EXTERNO",
    "FERIAS",      "FICHA",       "FINS",
    "FISCAL",      "HORAS",       "LISTA",
    "MANUAL",      "PAGAMENTO",   "PEDIDO",
    "PONTO",       "PRAZO ",      "PREPOSTO",
    "PRÓ-LABORE",  "QUADRO",      "RECEBIMENTO",
    "RECIBO",      "REGISTRO",    "RESPONSABILIDADE",
    "RETIRADA",    "SAÍDA",       "TERMO",
    "TITULO",      "TRABALHISTA", "TRABALHO",
    "TRANSPORTES", "VALE"};

}  // namespace winvrx
