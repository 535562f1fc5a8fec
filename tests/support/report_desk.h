#pragma once

#include "foundation/values/text.h"
#include "output/stocks/card_rows.h"
#include "report/desktop/qt_report_engine.h"
#include "report/print_pages.h"
#include "tests/support/test_workplace.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <array>

namespace winvrx::testing {

/// The card of an employee, "EMPREGADO 1" at 0: thirty-one days, Sundays free.
inline ReportRows sampleCard(std::size_t at) {
    constexpr std::array<const char*, 7> kWeek = {"dom", "seg", "ter", "qua", "qui", "sex", "sáb"};
    ReportRows rows;
    for (int day = 1; day <= 31; ++day) {
        const bool rest = (day + 4) % 7 == 0;
        const auto time = [rest](const char* text) { return rest ? "" : text; };
        rows.push_back({"PADARIA SÃO JOÃO LTDA",
                        "12.345.678/0001-95",
                        "007",
                        "54321",
                        "01/02/2020",
                        "FORNEIRO",
                        "01/03/2024 a 31/03/2024",
                        "domingo",
                        "Ent:08:00 Saí:12:00 Ent:13:00 Saí:17:00",
                        "12:00 às 13:00",
                        "EMPREGADO " + std::to_string(at + 1),
                        "007",
                        "março/2024",
                        std::to_string(day),
                        padded(day, 2),
                        kWeek[static_cast<std::size_t>(day + 4) % 7],
                        time("08:00"),
                        time("12:00"),
                        time("13:00"),
                        time("17:00"),
                        "",
                        "",
                        time("08:00"),
                        rest ? "DESCANSO SEMANAL" : "",
                        "216:00",
                        "104:00"});
    }
    return rows;
}

/// An engine with the shipped layouts and a data folder of its own.
struct ReportDesk {
    QTemporaryDir scratch;
    std::filesystem::path folder{scratch.path().toStdString()};
    std::filesystem::path database = folder / "qdb.mdb";
    TestWorkplace office;
    RecordedLog& log = office.log;
    QtReportEngine engine{[this] {
                              return layoutFolders(
                                  folder, QCoreApplication::applicationDirPath().toStdString());
                          },
                          [this] { return database; }, log};
    ReportRequest request{.layoutName = "tilibcenter.rpt",
                          .title = "CARTÃO PONTO",
                          .columns = cardColumns(),
                          .noun = cardNoun(),
                          .output = ReportOutput::PdfFile,
                          .pdfPath = (folder / "cards.pdf").string()};

    [[nodiscard]] QString pdf() const { return QString::fromStdString(request.pdfPath); }

    /// A layout that only this desk has.
    void writeLayout(const std::string& name, const QByteArray& bytes) const {
        std::filesystem::create_directories(folder / "layouts");
        QFile file(folder / "layouts" / name);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            throw std::runtime_error("no layout " + name);
    }

    [[nodiscard]] PrintEnd print(ReportPages pages, const PageProgress& progress = {}) {
        return printPages({office.at, engine, progress}, request, pages);
    }
    [[nodiscard]] PrintEnd print(int cards) {
        return print(ReportPages(static_cast<std::size_t>(cards), sampleCard));
    }
};

}  // namespace winvrx::testing
