#include "personnel/forms/form_catalogue.h"
#include "personnel/forms/form_page.h"
#include "tests/support/printed_text.h"
#include "tests/support/report_desk.h"

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using namespace testing;
using namespace std::chrono_literals;

constexpr double kMargin = 19.5;  // millimetres
constexpr double kLowest = 287;   // millimetres

/// `text` again and again, up to the width of a field.
std::string wide(std::string_view text, std::size_t width) {
    std::string filled;
    while (characterCount(filled) < width)
        filled += std::string(text) + " ";
    return std::string(trimmed(firstCharacters(filled, width)));
}

/// A page of which every text fills its column of the register.
FormPage longestPage() {
    FormPage page{.month = 2024y / 3, .printedOn = 2024y / 9 / 30};
    for (const auto& field : kCompanyFields)
        page.company.*field.member = wide("PANIFICADORA MARÉ", field.column.width);
    for (const auto& field : kEmployeeFields)
        page.employee.*field.member = wide("GUILHERMINA MÃO", field.column.width);
    page.employee.restDay = "qua";
    return page;
}

struct FormPrint : ::testing::Test, ReportDesk {
    std::vector<std::string> layouts() {
        std::vector<std::string> names;
        for (const CatalogueForm& form : formCatalogue()) {
            names.push_back(layoutOf(form));
            if (!hasFaces(form)) continue;
            names.push_back(layoutOf(form, FormFace::Front));
            names.push_back(layoutOf(form, FormFace::Back));
        }
        return names;
    }

    std::vector<PrintedWord> print(const std::string& layout, const std::vector<FormPage>& pages) {
        request.layoutName = layout;
        request.columns = formColumns();
        const auto rowsOf = [&](std::size_t at) { return formRows(pages[at]); };
        EXPECT_EQ(ReportDesk::print(ReportPages(pages.size(), rowsOf)), PrintEnd::Done)
            << ::testing::PrintToString(log.entries);
        return printedWords(pdf());
    }

    /// The words that lie over another one or leave the page's margins.
    static std::vector<std::string> misplaced(const std::vector<PrintedWord>& words) {
        std::vector<std::string> found;
        const double most = 0.4 * kPointsPerMillimetre;
        const auto overlap = [](double from, double to, double otherFrom, double otherTo) {
            return std::min(to, otherTo) - std::max(from, otherFrom);
        };
        for (std::size_t at = 0; at < words.size(); ++at) {
            const PrintedWord& one = words[at];
            if (one.left < kMargin * kPointsPerMillimetre ||
                one.right > (210 - kMargin) * kPointsPerMillimetre ||
                one.bottom > kLowest * kPointsPerMillimetre)
                found.push_back("outside: " + one.text.toStdString());
            for (std::size_t next = at + 1; next < words.size(); ++next)
                if (one.page == words[next].page &&
                    overlap(one.left, one.right, words[next].left, words[next].right) > most &&
                    overlap(one.top, one.bottom, words[next].top, words[next].bottom) > most)
                    found.push_back(one.text.toStdString() + " over " +
                                    words[next].text.toStdString());
        }
        return found;
    }
};

TEST_F(FormPrint, EveryFormHoldsTheLongestRegisterAndAnEmptyOne) {
    if (!canReadPdf()) GTEST_SKIP() << "no pdftotext";
    FormPage bare;
    bare.company.name = "ANA";
    for (const std::string& layout : layouts()) {
        SCOPED_TRACE(layout);
        const auto words = print(layout, {longestPage(), bare});
        ASSERT_FALSE(words.empty());
        EXPECT_EQ(words.back().page, 2);
        EXPECT_THAT(misplaced(words), ::testing::IsEmpty());
    }
}

}  // namespace
}  // namespace winvrx
