#pragma once

#include "report/printers.h"

namespace winvrx::testing {

/// Printers that come and go as the test says; counts how often the add dialogue was opened.
class TestPrinters final : public Printers {
  public:
    std::vector<std::string> installed = {"HP-Balcao", "Epson"};
    std::string usual = "Epson";
    bool hasDialogue = true;
    int opened = 0;

    [[nodiscard]] std::vector<std::string> names() const override { return installed; }
    [[nodiscard]] std::string defaultName() const override { return usual; }
    [[nodiscard]] bool openAddDialogue() override {
        ++opened;
        return hasDialogue;
    }
};

}  // namespace winvrx::testing
