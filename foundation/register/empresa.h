#pragma once

#include "foundation/desk/browser.h"
#include "foundation/desk/command.h"
#include "foundation/register/company_register.h"

#include <optional>
#include <vector>

namespace winvrx {

/// "Opções:" of the delete command.
enum class DeleteOption { CompanyOnly, CompanyAndEmployees };

inline constexpr std::string_view kDeleteCompanyOnly = "Excluir somente a Empresa";
inline constexpr std::string_view kDeleteWithEmployees =
    "Exluir a Empresa e a Lista de Funcionarios";

/// The company register's screen: include, change and delete companies.
///
/// Holds the list as the screen shows it. A command that is refused or fails leaves list and file
/// as they were. Each command reads the file again first, so the list is never older than the
/// file that it replaces.
class Empresa {
  public:
    Empresa(const Workplace& at, Browser& browser);

    /// Reads the register again.
    void load();
    [[nodiscard]] const std::vector<CompanyLine>& lines() const { return lines_; }
    /// The code that the next company will get; nullopt when all are taken.
    [[nodiscard]] std::optional<CompanyCode> proposedCode() const { return lowestFreeCode(lines_); }

    /// Appends `typed`; its code and record date are set here. True when it was recorded.
    [[nodiscard]] bool include(Company typed);
    /// Replaces the line at `position`; the code stays. True when it was recorded.
    [[nodiscard]] bool change(std::size_t position, Company typed);
    /// Deletes the line at `position` and the company's files; a session that had it selected has
    /// none afterwards. True when it is gone.
    [[nodiscard]] bool remove(std::size_t position, DeleteOption option);
    /// Asks before typed but unrecorded text is left behind. True when it may go.
    [[nodiscard]] bool mayDiscardTyped();
    void help();

  private:
    [[nodiscard]] bool confirmsDeletion(bool hasEmployees, DeleteOption option);
    [[nodiscard]] bool hasEmployees(const CompanyLine& line) const;
    /// Deletes the company's files, unless a damaged list gives its code to another line too.
    void removeFilesOf(const CompanyLine& gone, const std::vector<CompanyLine>& remaining);
    void save(std::vector<CompanyLine> lines);

    Workplace at_;
    Browser& browser_;
    std::vector<CompanyLine> lines_;
};

}  // namespace winvrx
