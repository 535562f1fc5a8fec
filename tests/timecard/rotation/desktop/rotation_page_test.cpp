#include "timecard/rotation/rotation_sheet.h"

#include "tests/support/printed_text.h"
#include "tests/support/report_desk.h"

#include <gmock/gmock.h>

#include <cmath>

namespace winvrx::testing {
namespace {

using namespace std::chrono_literals;

EmployeeCode code(int number) {
    return *EmployeeCode::fromNumber(number);
}

/// Below the grid stand the signatures.
constexpr double kGridEnd = 134 * kPointsPerMillimetre;

/// Six in the list and two relief workers: the largest group.
RotationSheet largestSheet(int firstDayOff) {
    RotationSheet sheet{.company = {}, .group = {}, .view = {}, .month = 2024y / 3, .times = {}};
    sheet.company.name = "CONDOMÍNIO EDIFÍCIO SÃO JOÃO";
    sheet.company.address = "AV. BANDEIRANTES, 1425";
    sheet.times = "Ent:09:00 Saí:12:00 Ent:13:00 Saí:17:20";
    sheet.group.firstDayOff = Date{2024y / 3 / firstDayOff};
    MemberNames names;
    for (int number = 1; number <= 8; ++number) {
        names[code(number)] = code(number).text() + " JOSÉ DA CONCEIÇÃO APARECIDO";
        if (number <= 6) sheet.group.places.emplace_back(code(number));
    }
    sheet.group.relief = {{code(7), Date{2024y / 3 / 1}}, {code(8), Date{2024y / 3 / 2}}};
    MonthSettings settings;
    settings.month = sheet.month;
    settings.setHoliday(Date{2024y / 3 / 29}, true);
    sheet.view = viewOf(sheet.group, settings, names, {}, {});
    return sheet;
}

/// The words of a page, in the order of a row, whose middle is at the height of the word `anchor`.
QString besides(const std::vector<PrintedWord>& words, const PrintedWord& anchor) {
    std::vector<PrintedWord> row;
    for (const PrintedWord& word : words)
        if (word.page == anchor.page && word.left > 68 * kPointsPerMillimetre &&
            std::abs(word.top + word.bottom - anchor.top - anchor.bottom) <
                5 * kPointsPerMillimetre)
            row.push_back(word);
    std::ranges::sort(row, {}, &PrintedWord::left);
    QStringList texts;
    for (const PrintedWord& word : row)
        texts.push_back(
            word.text + QLatin1Char('@') +
            QString::number(static_cast<int>((word.left / kPointsPerMillimetre - 68) / 7 + 1)));
    return texts.join(QLatin1Char(' '));
}

TEST(RotationPage, IsReadBackDayByDay) {
    if (!canReadPdf()) GTEST_SKIP() << "no pdftotext";
    ReportDesk desk;
    desk.request.layoutName = kRotationLayout;
    desk.request.columns = sheetColumns();
    const RotationSheet first = largestSheet(5);
    const RotationSheet second = largestSheet(6);
    ASSERT_EQ(desk.print(ReportPages(
                  2, [&](std::size_t at) { return sheetRows(at == 0 ? first : second); })),
              PrintEnd::Done);
    const auto words = printedWords(desk.pdf());
    for (int page = 1; page <= 2; ++page) {
        const RotationView& view = (page == 1 ? first : second).view;
        for (const RotationView::Row& row : view.rows) {
            QStringList wanted;
            for (std::size_t day = 0; day < row.cells.size(); ++day)
                if (!row.cells[day].letter.empty())
                    wanted.push_back(QString::fromStdString(row.cells[day].letter + "@" +
                                                            std::to_string(day + 1)));
            const auto anchor = std::ranges::find_if(words, [&](const PrintedWord& word) {
                return word.page == page && word.bottom < kGridEnd &&
                       word.text == QString::fromStdString(row.employee.text());
            });
            ASSERT_NE(anchor, words.end());
            EXPECT_EQ(besides(words, *anchor).toStdString(),
                      wanted.join(QLatin1Char(' ')).toStdString())
                << row.name;
        }
    }
    const QString text = printedText(desk.pdf());
    for (const char* said : {"ESCALA DE REVEZAMENTO 5 x 1", "Empresa: CONDOMÍNIO EDIFÍCIO SÃO JOÃO",
                             "GRUPO-001 - março/2024", "Folguista", "Visto Fiscal", "fer"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(said))) << said << "\n" << text.toStdString();
}

}  // namespace
}  // namespace winvrx::testing
