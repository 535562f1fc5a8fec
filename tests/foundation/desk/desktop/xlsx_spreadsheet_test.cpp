#include "foundation/desk/desktop/xlsx_spreadsheet.h"

#include "foundation/values/faults.h"
#include "tests/support/printed_text.h"

#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace winvrx {
namespace {

/// The texts of the workbook's cells, row by row, as the file format defines them: each cell names
/// its text in the table of texts.
std::vector<QStringList> cellsOf(const std::string& workbook) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("book.xlsx"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("no book");
    file.write(QByteArray::fromStdString(workbook));
    file.close();
    const auto part = [&](const char* name) {
        return testing::outputOf(QStringLiteral("bsdtar"),
                                 {QStringLiteral("-xOf"), path, QString::fromLatin1(name)});
    };
    QStringList texts;
    QXmlStreamReader table(part("xl/sharedStrings.xml"));
    while (table.readNextStartElement() || !table.atEnd())
        if (table.isStartElement() && table.name() == QLatin1String("t"))
            texts << table.readElementText();
    std::vector<QStringList> rows;
    QXmlStreamReader sheet(part("xl/worksheets/sheet1.xml"));
    while (sheet.readNextStartElement() || !sheet.atEnd()) {
        if (!sheet.isStartElement()) continue;
        if (sheet.name() == QLatin1String("row")) rows.emplace_back();
        if (sheet.name() == QLatin1String("v"))
            rows.back() << texts.at(sheet.readElementText().toInt());
    }
    return rows;
}

TEST(XlsxSpreadsheet, KeepsEveryCellAsText) {
    XlsxSpreadsheet spreadsheet;
    const Table table{{"Código", "Nome", "Salário"},
                      {{"001", "ANA D'ÁVILA", "1.850,00"}, {"010", "JOSÉ <&> \"ZÉ\"", "=1+1"}}};
    const auto rows = cellsOf(spreadsheet.workbookOf({textSheet("Funcionários", table)}, {}));
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0], QStringList({QStringLiteral("Código"), QStringLiteral("Nome"),
                                    QStringLiteral("Salário")}));
    EXPECT_EQ(rows[1], QStringList({QStringLiteral("001"), QStringLiteral("ANA D'ÁVILA"),
                                    QStringLiteral("1.850,00")}));
    EXPECT_EQ(rows[2], QStringList({QStringLiteral("010"), QStringLiteral("JOSÉ <&> \"ZÉ\""),
                                    QStringLiteral("=1+1")}));
    EXPECT_THROW((void)spreadsheet.workbookOf({textSheet("nome/inválido", table)}, {}), Fault);
    for (int goingOn : {0, 1}) {
        const auto goesOn = [&goingOn] { return goingOn-- > 0; };
        EXPECT_EQ(spreadsheet.workbookOf({textSheet("Funcionários", table)}, goesOn), "");
    }
}

}  // namespace
}  // namespace winvrx
