#pragma once

#include "foundation/desk/word_processor.h"
#include "foundation/values/faults.h"

namespace winvrx::testing {

/// Remembers what it was given; without a word processor it throws, as the real one does.
class RecordingWordProcessor final : public WordProcessor {
  public:
    bool installed = true;
    std::vector<Document> shown;
    std::vector<Document> printed;
    std::vector<std::string> printers;
    std::vector<std::filesystem::path> shownFiles;
    std::vector<std::filesystem::path> printedFiles;

    void show(const Document& document) override {
        requireProgram();
        shown.push_back(document);
    }
    void print(const Document& document, const std::string& printer) override {
        requireProgram();
        printed.push_back(document);
        printers.push_back(printer);
    }

    /// The title, then the text of each paragraph in a line, cells of tables too.
    [[nodiscard]] std::string fileOf(const Document& document) const override {
        std::string bytes = document.title + "\n";
        for (const auto& block : document.blocks)
            if (const auto* table = std::get_if<DocumentTable>(&block))
                for (const auto& row : table->rows)
                    for (const Paragraph& cell : row)
                        bytes += cell.text + "\n";
            else
                bytes += std::get<Paragraph>(block).text + "\n";
        return bytes;
    }
    void showFile(const std::filesystem::path& file) override {
        requireProgram();
        shownFiles.push_back(file);
    }
    void printFile(const std::filesystem::path& file, const std::string& printer) override {
        requireProgram();
        printedFiles.push_back(file);
        printers.push_back(printer);
    }

  private:
    void requireProgram() const {
        if (!installed) throw Fault("not found", "O LibreOffice Writer não está instalado.");
    }
};

}  // namespace winvrx::testing
