#pragma once

#include "personnel/invoice_letter/xml_reader.h"
#include "report/report_pages.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

// The correction letter of an electronic invoice (NF-e), as the tax authority returns its event.

namespace winvrx {

struct CorrectionLetter {
    std::string event;       ///< the Id of the event
    std::string issuer;      ///< CNPJ
    std::string recipient;   ///< CNPJ; empty where the event names none
    std::string accessKey;   ///< 44 digits
    std::string registered;  ///< as the file has it: "2024-03-15T10:20:30-03:00"
    std::string protocol;
    std::string issued;  ///< likewise
    std::string correction;
    std::string condition;
};

/// An element that is looked for, and the column of the report that its text goes to.
struct LetterElement {
    std::string CorrectionLetter::*member;
    std::string_view name;  ///< also of the column; "infEvento" gives its Id
    bool isRequired;
};
inline constexpr std::array kLetterElements = {
    LetterElement{&CorrectionLetter::event, "infEvento", true},
    LetterElement{&CorrectionLetter::issuer, "CNPJ", false},
    LetterElement{&CorrectionLetter::recipient, "CNPJDest", false},
    LetterElement{&CorrectionLetter::accessKey, "chNFe", true},
    LetterElement{&CorrectionLetter::registered, "dhRegEvento", true},
    LetterElement{&CorrectionLetter::protocol, "nProt", true},
    LetterElement{&CorrectionLetter::issued, "dhEvento", true},
    LetterElement{&CorrectionLetter::correction, "xCorrecao", true},
    LetterElement{&CorrectionLetter::condition, "xCondUso", true},
};

inline constexpr std::string_view kLetterLayout = "CCe.rpt";
inline constexpr std::size_t kMostLetterBytes = std::size_t{1} << 20U;

/// The first text of each element. Throws Fault for what is no event of a correction letter; its
/// sentence says what is missing.
[[nodiscard]] CorrectionLetter readCorrectionLetter(const XmlReader& reader,
                                                    const std::string& bytes);

/// The elements' columns, those of the same values as people write them, and a line of the
/// correction and of the condition of use in each row.
[[nodiscard]] std::vector<std::string> letterColumns();
[[nodiscard]] ReportRows letterRows(const CorrectionLetter& letter);

/// "2024-03-15T10:20:30-03:00" as "15/03/2024 10:20:30"; anything else as it is.
[[nodiscard]] std::string readableMoment(const std::string& moment);

}  // namespace winvrx
