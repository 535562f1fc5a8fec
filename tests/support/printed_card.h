#pragma once

#include "tests/support/printed_text.h"
#include "tests/support/report_desk.h"

#include <gtest/gtest.h>

namespace winvrx::testing {

/// A desk that prints cards, and what stands on them.
class PrintedCard : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!canReadPdf()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    }

    /// The words of one card printed with the desk's request.
    std::vector<PrintedWord> words() {
        EXPECT_EQ(desk_.print(1), PrintEnd::Done) << ::testing::PrintToString(desk_.log.entries);
        return printedWords(desk_.pdf());
    }

    ReportDesk desk_;
};

}  // namespace winvrx::testing
