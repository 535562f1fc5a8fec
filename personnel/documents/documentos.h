#pragma once

#include "foundation/desk/command.h"
#include "foundation/desk/word_processor.h"
#include "foundation/register/employee_list.h"
#include "personnel/documents/paper_memory.h"
#include "personnel/documents/paper_words.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

/// What the documents screen needs from outside. The word processor outlives the screen.
struct DocumentsDesk {
    WordProcessor& writer;
    /// Where the texts of the papers lie, the office's own first.
    std::function<std::vector<std::filesystem::path>()> templateFolders;
    std::filesystem::path legalFolder;  ///< has the delivered tables, for a termination's figures
};

/// The documents screen: papers of the employees of the selected company, composed from the
/// registers and from what is typed, kept as one file an employee and paper in the data folder's
/// `documentos`, shown and printed by the word processor.
///
/// Each command refuses first, then asks, then writes: what was typed, the paper, and at the
/// contract's end the file that bars a reactivation. Where the word processor does not start, all
/// of them are put back.
class Documentos {
  public:
    Documentos(const Workplace& at, const DocumentsDesk& desk);

    /// Reads the company's list; a failure is told.
    void load();
    [[nodiscard]] EmployeeList& list() { return list_; }
    [[nodiscard]] const std::string& companyTitle() const { return companyTitle_; }

    /// Fills the forms for the employee at `position` of the list; nullopt for none. False when the
    /// operator stays with what is typed, or the records cannot be read.
    [[nodiscard]] bool select(std::optional<std::size_t> position);
    /// nullptr when there is none.
    [[nodiscard]] const Employee* selected() const { return list_.selected(); }

    void choose(Paper paper);
    [[nodiscard]] Paper paper() const { return paper_; }

    [[nodiscard]] std::string text(std::string_view input) const;
    void type(std::string_view input, const std::string& text);
    /// What speaks against the text of an input of the paper; empty for none.
    [[nodiscard]] std::string finding(const PaperInput& input) const;
    /// What is to be known before the paper is printed; empty for nothing.
    [[nodiscard]] std::string remark() const;
    /// The input for which the last command ended.
    [[nodiscard]] const std::string& blamed() const { return blamed_; }
    [[nodiscard]] bool isChanged() const { return !typed_.empty(); }

    /// The paper as it would be printed; throws Fault where its text makes no sense. Empty without
    /// an employee.
    [[nodiscard]] Document composedPaper() const;

    [[nodiscard]] bool print();
    /// Opens it in the word processor, where it can be changed.
    [[nodiscard]] bool show();

    [[nodiscard]] Date today() const { return at_.clock.today(); }
    /// Asks before what is typed is left behind. True when the screen may go on.
    [[nodiscard]] bool confirmLeaving();

  private:
    using Send = void (Documentos::*)(const std::filesystem::path& file);

    void fill();
    void loadAccountIfDue();
    [[nodiscard]] bool send(Send act);
    [[nodiscard]] bool requireSubject();
    [[nodiscard]] bool requireSoundInputs();
    [[nodiscard]] bool confirm();
    /// Who calls holds the folder.
    [[nodiscard]] bool writeAndSend(Send act, const std::vector<FileSystem::NewContent>& files);
    [[nodiscard]] bool start(Send act);
    [[nodiscard]] std::vector<FileSystem::NewContent> newFiles() const;
    [[nodiscard]] std::vector<FileSystem::NewContent> terminationFiles() const;
    [[nodiscard]] std::filesystem::path paperFile() const;
    void printFile(const std::filesystem::path& file) { desk_.writer.printFile(file, {}); }
    void showFile(const std::filesystem::path& file) { desk_.writer.showFile(file); }

    Workplace at_;
    DocumentsDesk desk_;
    std::string companyTitle_;
    EmployeeList list_;
    std::optional<EmployeeKey> key_;
    PaperSubject subject_;
    Paper paper_ = Paper::AvisoPrevio;
    PaperTexts texts_;
    std::set<std::string, std::less<>> typed_;  ///< inputs changed and not yet remembered
    std::string blamed_;
};

/// "documentos" in the data folder, and the office's own texts in it.
[[nodiscard]] std::filesystem::path documentsFolder(const DataFolder& folder);
[[nodiscard]] std::vector<std::filesystem::path> templateFolders(
    const DataFolder& folder, const std::filesystem::path& programFolder);

}  // namespace winvrx
