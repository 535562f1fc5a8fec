#include "output/mirrors/desktop/hours_reports_window.h"

#include "foundation/desk/desktop/xlsx_spreadsheet.h"
#include "output/mirrors/hours_overview.h"
#include "output/mirrors/hours_report.h"
#include "report/desktop/qt_report_engine.h"
#include "tests/support/hours_office.h"
#include "tests/support/printed_text.h"
#include "tests/support/window_driver.h"
#include "timecard/hours/employee_hours.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace winvrx {
namespace {

using ::testing::HasSubstr;

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("not written");
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("not read " + path.toStdString());
    return file.readAll();
}

/// The workbook without the values of its formulas, so that whoever shows them has reckoned.
void takeValuesAway(const QString& folder, const QString& from, const QString& to) {
    const QString parts = folder + QStringLiteral("/parts");
    QDir().mkpath(parts);
    (void)testing::outputOf(QStringLiteral("bsdtar"),
                            {QStringLiteral("-xf"), from, QStringLiteral("-C"), parts});
    for (const int number : {1, 2}) {
        const QString sheet = parts + QStringLiteral("/xl/worksheets/sheet%1.xml").arg(number);
        static const QRegularExpression values(QStringLiteral("(</f>)<v>[^<]*</v>"));
        write(sheet,
              QString::fromUtf8(bytesOf(sheet)).replace(values, QStringLiteral("\\1")).toUtf8());
    }
    const QStringList whole =
        QDir(parts).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    (void)testing::outputOf(QStringLiteral("bsdtar"),
                            QStringList{QStringLiteral("--format=zip"), QStringLiteral("-cf"), to,
                                        QStringLiteral("-C"), parts} +
                                whole);
}

TEST(HoursWorkbook, LibreOfficeReckonsItsSums) {
    const QFileInfo office(
        QFileInfo(QStandardPaths::findExecutable(QStringLiteral("soffice"))).canonicalFilePath());
    if (!QFile::exists(office.dir().filePath(QStringLiteral("libsclo.so"))))
        GTEST_SKIP() << "LibreOffice Calc is not installed";
    testing::HoursOffice bakery;
    bakery.setFormat(TotalsFormat::DecimalHours);
    HoursSheets sheets([] {
        OvertimeRules rules;
        rules.totalsFormat = TotalsFormat::DecimalHours;
        return rules;
    }());
    const MirrorPeriod period(bakery.desk.store(), *CompanyCode::parse("01"),
                              {*parseDate("01/03/2024"), *parseDate("06/03/2024")});
    for (const Employee& one : bakery.reports.list().employees())
        sheets.add(period.of(one));
    const QTemporaryDir folder;
    XlsxSpreadsheet spreadsheet;
    const std::string bytes = spreadsheet.workbookOf(std::move(sheets).sheets(), {});
    write(folder.filePath(QStringLiteral("horas.xlsx")), QByteArray::fromStdString(bytes));
    takeValuesAway(folder.path(), folder.filePath(QStringLiteral("horas.xlsx")),
                   folder.filePath(QStringLiteral("bare.xlsx")));
    (void)testing::outputOf(
        QStringLiteral("soffice"),
        {QStringLiteral("-env:UserInstallation=file://") + folder.path() + QStringLiteral("/user"),
         QStringLiteral("--headless"), QStringLiteral("--convert-to"),
         QStringLiteral("csv:Text - txt - csv (StarCalc):59,34,76,1,,1033,false,true,false,false,"
                        "false,-1"),
         QStringLiteral("--outdir"), folder.path(), folder.filePath(QStringLiteral("bare.xlsx"))});
    const std::string days =
        bytesOf(folder.filePath(QStringLiteral("bare-Dias.csv"))).toStdString();
    EXPECT_THAT(days, HasSubstr("ANA DA CONCEIÇÃO;03/05/2024;08:03:00 AM;12:00:00 PM;01:00:00 PM;"
                                "05:00:00 PM;09:00:00 PM;11:30:00 PM;;7.95;0;1;1.5;0\n"));
    EXPECT_THAT(days, HasSubstr("\n;;;;;;;;;15.95;0;4;1.5;8\n"));
    const std::string sums =
        bytesOf(folder.filePath(QStringLiteral("bare-Resumo.csv"))).toStdString();
    EXPECT_THAT(sums, HasSubstr("\n;;24;4;0;0;1.5;0;8;15.95\n"));
    EXPECT_THAT(bytesOf(folder.filePath(QStringLiteral("bare-Afastamentos.csv"))).toStdString(),
                HasSubstr("ANA DA CONCEIÇÃO;FÉRIAS;03/06/2024;03/25/2024\n"));
}

TEST(HoursReportsWindow, TakesThePeriodAndNamesItsInputs) {
    testing::HoursOffice office;
    HoursReportsWindow window(office.reports, {});
    window.show();
    testing::WindowDriver driver(window);
    EXPECT_EQ(driver.namelessWidgets(), "");
    auto* last = window.findChild<QLineEdit*>(QStringLiteral("horas.last"));
    ASSERT_NE(last, nullptr);
    EXPECT_EQ(last->text(), QStringLiteral("31/03/2024"));
    office.desk.person.answers = {Answer::No};
    last->setText(QStringLiteral("05/03/2024"));
    driver.click("horas.report");
    EXPECT_THAT(office.desk.file("RelHorasExtras"), HasSubstr("01/03/2024 a 05/03/2024"));
    office.desk.person.takeTexts();
    last->setText(QStringLiteral("05/02/2024"));
    driver.click("horas.report");
    EXPECT_EQ(office.desk.person.takeTexts(),
              std::vector<std::string>{"Informe o Período do Relatório!"});
}

/// The program's own engine, with its layouts.
struct PdfEngine {
    QTemporaryDir folder;
    testing::RecordedLog log;
    QtReportEngine engine{[this] {
                              return layoutFolders(
                                  folder.path().toStdString(),
                                  QCoreApplication::applicationDirPath().toStdString());
                          },
                          [this] { return std::filesystem::path(path("qdb.mdb")); }, log};

    [[nodiscard]] std::string path(const std::string& name) const {
        return folder.path().toStdString() + "/" + name;
    }
};

/// The page says what the hours say, and the blank sheet says nothing of them.
TEST(MirrorPage, IsPrintedWithDaysSumsAndNotes) {
    testing::HoursOffice office;
    PdfEngine pdf;
    HoursReports reports(office.desk.at, {office.editor, office.spreadsheet, office.browser,
                                          pdf.engine, office.printers, office.rotation});
    reports.load();
    const PrintRun run{.choosePdf = [&](const std::string& name) { return pdf.path(name); }};
    const PrintChoices toPdf{.output = ReportOutput::PdfFile};
    const auto textOf = [&](const char* name) {
        return testing::printedText(QString::fromStdString(pdf.path(name)));
    };
    office.desk.person.answers = {Answer::Yes, Answer::No, Answer::Yes, Answer::No};
    ASSERT_TRUE(reports.printMirrors(toPdf, run));
    const QString mirror = textOf("ESPELHO DE PONTO 001 ANA DA CONCEIÇÃO 03-2024.pdf");
    const auto month =
        loadEmployeeHours(office.desk.store(), *CompanyCode::parse("01"),
                          reports.list().employees()[0],
                          loadMonthSettings(office.desk.store(), testing::HoursOffice::kMarch),
                          HoursPeriod::CalendarMonth)
            ->totals();
    QString sums = QStringLiteral("TOTAIS");
    for (const std::chrono::seconds sum :
         {month.worked(), month[HourCategory::NormalDay], month[HourCategory::NormalNight],
          month[HourCategory::ExtraMinimum], month[HourCategory::ExtraMaximum],
          month[HourCategory::NightExtraMinimum], month[HourCategory::NightExtraMaximum],
          month[HourCategory::Missing]})
        sums += QLatin1Char(' ') +
                QString::fromStdString(formatted(sum, TotalsFormat::HoursAndMinutes));
    for (const QString& part :
         {sums, QStringLiteral("PADARIA SÃO JOÃO LTDA"), QStringLiteral("12.345.678/0001-95"),
          QStringLiteral("529.982.247-25"), QStringLiteral("Falta Injustificada"),
          QStringLiteral("05/ter/mar 08:00 12:00 13:00 17:00 08:03 12:00 13:00 17:00 21:00 23:30"),
          QStringLiteral("05/ter/mar: variação de 3 min tolerada")})
        EXPECT_TRUE(mirror.contains(part)) << part.toStdString() << "\n" << mirror.toStdString();
    ASSERT_TRUE(reports.printManualSheet(0, toPdf, run));
    const QString blank = textOf("FOLHA MANUAL DE PONTO 001 ANA DA CONCEIÇÃO 03-2024.pdf");
    EXPECT_TRUE(blank.contains(QStringLiteral("05/ter/mar 08:00 12:00 13:00 17:00\n")))
        << blank.toStdString();
    EXPECT_FALSE(blank.contains(QStringLiteral("08:03")));
    office.desk.person.answers = {Answer::No};
    ASSERT_TRUE(reports.printSides(toPdf, run));
    const QString sides = textOf("ESPELHO DE PONTO 001 ANA DA CONCEIÇÃO 03-2024.pdf");
    for (const char* part : {"1º QUINZENA", "2º QUINZENA", "08:03", "29 sex"})
        EXPECT_TRUE(sides.contains(QString::fromUtf8(part))) << sides.toStdString();
    EXPECT_FALSE(blank.contains(QStringLiteral("Falta Injustificada")));
}

/// Bars as long as their figures say, on pages of thirty-two.
TEST(HoursOverview, IsDrawnInBars) {
    using namespace std::chrono_literals;
    std::vector<OverviewLine> lines = {{"001", "ANA", 160h, 10h, 0h}, {"002", "BIA", 80h, 0h, 5h}};
    for (int number = 3; number <= 33; ++number)
        lines.push_back({std::to_string(number), "CAIO", 1h * number, 0h, 0h});
    Company company;
    company.name = "PADARIA SÃO JOÃO LTDA";
    const auto made = overviewPages(
        {company, {*parseDate("01/03/2024"), *parseDate("31/03/2024")}, TotalsFormat::DecimalHours},
        lines);
    PdfEngine pdf;
    ReportRequest request = overviewRequest();
    request.output = ReportOutput::PdfFile;
    request.pdfPath = pdf.path("resumo.pdf");
    ReportPages pages(made.size(), [&](std::size_t at) { return made[at]; });
    ASSERT_EQ(pdf.engine.print(request, pages, [](int, int) { return true; }), PrintEnd::Done);
    const QString text = testing::printedText(QString::fromStdString(request.pdfPath));
    EXPECT_TRUE(text.contains(QStringLiteral("PADARIA SÃO JOÃO LTDA")));
    EXPECT_TRUE(text.contains(QStringLiteral("Página 2/2")));
    EXPECT_TRUE(text.contains(QStringLiteral("001 ANA 0,00 10,00 160,00"))) << text.toStdString();
}

}  // namespace
}  // namespace winvrx
