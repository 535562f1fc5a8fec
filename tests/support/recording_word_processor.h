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

    void show(const Document& document) override {
        requireProgram();
        shown.push_back(document);
    }
    void print(const Document& document, const std::string& printer) override {
        requireProgram();
        printed.push_back(document);
        printers.push_back(printer);
    }

  private:
    void requireProgram() const {
        if (!installed) throw Fault("not found", "O LibreOffice Writer não está instalado.");
    }
};

}  // namespace winvrx::testing
