#pragma once

#include "foundation/desk/command.h"
#include "personnel/pay/legal_tables.h"

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

inline constexpr std::string_view kLegalTitle = "Tabelas Legais";

/// A kind of figures as the screen names it.
struct LegalKind {
    std::string_view file;
    std::string_view title;
    std::string_view validity;  ///< by what a line holds
};
/// In the order of kLegalFiles.
[[nodiscard]] const std::array<LegalKind, std::size(kLegalFiles)>& legalKinds();

/// A line of a table, its cells as they are written: from when it holds, the figures, the source.
struct LegalRow {
    std::vector<std::string> cells;
    std::optional<Date> from;
    bool isOwn = false;  ///< of the user's file, which the screen changes
};

/// The screen of the law's figures: the delivered lines with the user's own over them. Only the
/// user's file, in the data folder, is ever written. A command that is refused or fails leaves it
/// as it was.
class TabelasLegais {
  public:
    /// `legalFolder` has the delivered tables.
    TabelasLegais(const Workplace& at, std::filesystem::path legalFolder)
        : at_(at), legalFolder_(std::move(legalFolder)) {}

    /// Reads all tables. False, and told, when one cannot be read or understood.
    [[nodiscard]] bool load();

    /// "Desde", the figures, "Fonte".
    [[nodiscard]] const std::vector<std::string>& headings(std::size_t kind) const {
        return tables_.at(kind).headings;
    }
    /// The oldest first. An own line takes the place of the delivered one of the same day.
    [[nodiscard]] const std::vector<LegalRow>& rows(std::size_t kind) const {
        return tables_.at(kind).rows;
    }
    /// A copy of the last line, from January of the year after today's or its own, without a
    /// source: what a new line begins with.
    [[nodiscard]] std::vector<std::string> newLine(std::size_t kind) const;
    /// Sentences on tables that have no line of `month`'s own year, paid in it.
    [[nodiscard]] std::vector<std::string> warnings(WorkMonth month) const {
        return law_.warnings(month, lastDay(month));
    }
    [[nodiscard]] WorkMonth today() const { return monthOf(at_.clock.today()); }

    /// Records a line in the user's file, where one from the same day gives way. Asks first, and
    /// names what is far from the line before.
    [[nodiscard]] bool save(std::size_t kind, const std::vector<std::string>& cells);
    /// Asks before a typed line is left behind. True when it may go.
    [[nodiscard]] bool confirmDiscard() { return at_.person.agrees(discardTyped()); }
    /// Deletes an own line; the delivered one of the same day, if any, holds again. Asks first.
    [[nodiscard]] bool remove(std::size_t kind, std::size_t row);

  private:
    struct Table {
        std::vector<std::string> headings;
        std::vector<LegalRow> rows;
        std::string delivered;           ///< the bytes of both files
        std::optional<std::string> own;  ///< nullopt where the user has none
    };

    void read();
    [[nodiscard]] std::filesystem::path ownFile(std::size_t kind) const;
    [[nodiscard]] std::vector<std::string> doubts(std::size_t kind, const LegalRow& typed) const;
    /// The user's file with the line; nullopt, and told, where it is none of the kind.
    [[nodiscard]] std::optional<std::string> understood(std::size_t kind,
                                                        const LegalRow& typed) const;
    void replaceOwn(std::size_t kind, const std::string& bytes);

    Workplace at_;
    std::filesystem::path legalFolder_;
    LegalTables law_;
    std::array<Table, std::size(kLegalFiles)> tables_;
};

}  // namespace winvrx
