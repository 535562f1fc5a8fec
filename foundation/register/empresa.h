#pragma once

#include "foundation/desk/list_commands.h"
#include "foundation/register/company_register.h"

#include <optional>
#include <vector>

namespace winvrx {

/// "Opções:" of the delete command.
enum class DeleteOption { CompanyOnly, CompanyAndEmployees };

inline constexpr std::string_view kDeleteCompanyOnly = "Excluir somente a Empresa";
inline constexpr std::string_view kDeleteWithEmployees =
    "Exluir a Empresa e a Lista de Funcionarios";

/// The company register's screen. Code and record date of a company are set here.
class Empresa : public ListCommands<Company> {
  public:
    explicit Empresa(const Workplace& at) : ListCommands(at) {}

    /// The code that the next company will get; nullopt when all are taken.
    [[nodiscard]] std::optional<CompanyCode> proposedCode() const {
        return lowestFreeCode(keysOf(lines_));
    }
    [[nodiscard]] Company freshRecord() const override;
    [[nodiscard]] std::string counts() const override;
    [[nodiscard]] std::string newRecordTitle() const override;

    /// What `remove` takes along.
    void choose(DeleteOption option) { option_ = option; }
    /// Deletes the company's files too, never the first company; a session that had it selected
    /// has none afterwards.
    [[nodiscard]] bool remove(std::size_t position) override;

    [[nodiscard]] Findings<Company> doubtsAbout(const Company& typed,
                                                const Company& before) const override;

  protected:
    void reread() override { lines_ = loadOrCreateCompanies(at_); }
    [[nodiscard]] Lines read() const override { return loadCompanies(at_.store()); }
    void write(const Lines& lines) override { companyFile(at_.store()).save(lines); }
    [[nodiscard]] ListRow rowOf(const Company& company) const override;
    [[nodiscard]] bool requireAcceptable(const Company& typed, const Line* before) override;
    [[nodiscard]] Line newLine(const Company& typed, const Lines& lines) const override;
    [[nodiscard]] Line changedLine(const Company& typed, const Line& before) const override;
    /// An older version left the settings of a deleted company; who gets its code has none of them.
    void clearFor(const Line& added) override;

  private:
    [[nodiscard]] Line lineUnder(const CompanyCode& code, Company typed,
                                 std::string existing = {}) const;
    [[nodiscard]] bool confirmDeletion(std::size_t position, std::size_t employees);
    [[nodiscard]] std::size_t employeesOf(const Line& line) const;
    [[nodiscard]] std::size_t filesOf(const Line& line) const;
    /// Deletes the company's files, unless a damaged list gives its code to another line too.
    void removeFilesOf(const Line& gone, const Lines& remaining);

    DeleteOption option_ = DeleteOption::CompanyOnly;
};

}  // namespace winvrx
