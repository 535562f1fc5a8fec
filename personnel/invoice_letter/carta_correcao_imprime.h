#pragma once

#include "foundation/desk/command.h"
#include "foundation/files/listed_file.h"
#include "personnel/invoice_letter/correction_letter.h"
#include "report/printers.h"
#include "report/report_engine.h"
#include "report/report_request.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// What the correction letters work with beside the desk. All outlive the screen.
struct LetterDesk {
    ReportEngine& engine;
    const XmlReader& reader;
};

/// The name under which the event of the letter printed last lies in the data folder.
inline constexpr std::string_view kLetterFile = "cce.xml";

/// The screen of correction letters: the event files of a folder, and the letter in the one chosen.
class CartaCorrecaoImprime {
  public:
    CartaCorrecaoImprime(const Workplace& at, const LetterDesk& desk) : at_(at), desk_(desk) {}

    /// Lists the XML files of the folder, the newest first. False, and told, when it cannot be
    /// read.
    bool openFolder(std::filesystem::path folder);
    [[nodiscard]] const std::filesystem::path& folder() const { return folder_; }
    [[nodiscard]] const std::vector<ListedFile>& files() const { return files_; }

    /// Reads the file at `position` of the list; nullopt for none.
    void select(std::optional<std::size_t> position);
    /// What the file holds; nullopt where it is no correction letter, and then finding() says why.
    [[nodiscard]] const std::optional<CorrectionLetter>& letter() const { return letter_; }
    [[nodiscard]] const std::string& finding() const { return finding_; }

    [[nodiscard]] bool print(ReportOutput output);

  private:
    [[nodiscard]] std::string bytesOf(const ListedFile& file) const;
    void keep(const std::string& bytes);

    Workplace at_;
    LetterDesk desk_;
    std::filesystem::path folder_;
    std::vector<ListedFile> files_;
    std::optional<std::size_t> position_;
    std::optional<CorrectionLetter> letter_;
    std::string finding_;
};

}  // namespace winvrx
