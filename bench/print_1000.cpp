// Prints a thousand time cards of one month to PDF, `Tabela_base` included, beside the floor: the
// same strings drawn by a bare QPdfWriter in one font, on as many pages. The memory's floor is the
// peak after ten cards, in KiB: what a run holds must not grow with the cards.

#include "bench/desk.h"
#include "bench/figure.h"
#include "foundation/values/text.h"
#include "output/stocks/card_rows.h"
#include "report/desktop/qt_report_engine.h"

#include <QFont>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <array>
#include <cstdlib>
#include <string>
#include <vector>

#ifndef _WIN32
#include <sys/resource.h>
#endif

namespace {

using namespace winvrx;

constexpr int kCards = 1000;
constexpr int kFewCards = 10;
constexpr double kMostRatio = 1.3;
constexpr double kMostMemoryRatio = 1.2;
constexpr int kRounds = 5;
constexpr int kDays = 31;

ReportRows cardOf(int employee) {
    constexpr std::array<const char*, 7> kWeek = {"dom", "seg", "ter", "qua", "qui", "sex", "sáb"};
    ReportRows rows;
    for (int day = 1; day <= kDays; ++day) {
        const bool rest = (day + 4) % 7 == 0;
        const std::string minutes = padded((day * 7 + employee) % 60, 2);
        const auto time = [&](const char* hour) { return rest ? "" : hour + (":" + minutes); };
        rows.push_back({"COMERCIAL DE ALIMENTOS SÃO JOÃO LTDA",
                        "12.345.678/0001-95",
                        std::to_string(employee),
                        "12345",
                        "01/02/2020",
                        "AUXILIAR DE PRODUÇÃO",
                        "01/03/2024 a 31/03/2024",
                        "domingo",
                        "Ent:08:00 Saí:12:00 Ent:13:00 Saí:17:00",
                        "12:00 às 13:00",
                        "MARIA DA CONCEIÇÃO " + std::to_string(employee),
                        "001",
                        "março/2024",
                        std::to_string(day),
                        padded(day, 2),
                        kWeek[static_cast<std::size_t>(day + 4) % 7],
                        time("08"),
                        time("12"),
                        time("13"),
                        time("17"),
                        "",
                        "",
                        rest ? "" : "08:00",
                        rest ? "DESCANSO SEMANAL" : "",
                        "216:00",
                        "104:00"});
    }
    return rows;
}

/// The texts that a card shows, header captions included.
std::vector<std::string> textsOf(const ReportRows& rows) {
    const ReportRow& first = rows.front();
    std::vector<std::string> texts = {
        "Razão: " + first[0],
        "Cnpj: " + first[1] + " - Reg.: " + first[2] + " CTPS: " + first[3],
        "Admiss: " + first[4] + " Função: " + first[5],
        "Período.: " + first[6] + " - Descanso Semanal: " + first[7],
        first[8] + " - Inter.Refei.: " + first[9],
        first[10],
        first[12],
        "Total: " + first[24]};
    constexpr std::size_t kFirstDayText = 14;
    constexpr std::size_t kLastDayText = 23;
    for (const ReportRow& row : rows)
        for (std::size_t i = kFirstDayText; i <= kLastDayText; ++i)
            if (!row[i].empty()) texts.push_back(row[i]);
    return texts;
}

void printWithEngine(const std::string& folder, const std::string& layouts, int count) {
    ErrorLog log;
    QtReportEngine engine([&] { return std::vector<std::filesystem::path>{layouts}; },
                          [&] { return std::filesystem::path(folder) / "qdb.mdb"; }, log);
    ReportRequest request;
    request.layoutName = "tilibcenter.rpt";
    request.title = "CARTÃO PONTO";
    request.columns = cardColumns();
    request.output = ReportOutput::PdfFile;
    request.pdfPath = folder + "/ours.pdf";
    ReportPages cards(static_cast<std::size_t>(count),
                      [](std::size_t at) { return cardOf(static_cast<int>(at)); });
    if (engine.print(request, cards, [](int, int) { return true; }) != PrintEnd::Done) std::exit(1);
}

void printBare(const std::string& folder, int count) {
    QPdfWriter writer(QString::fromStdString(folder + "/floor.pdf"));
    writer.setResolution(1200);
    writer.setPageSize(QPageSize(QPageSize::A4));
    QPainter painter(&writer);
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(123);
    painter.setFont(font);
    constexpr int kColumns = 8;
    for (int card = 0; card < count; ++card) {
        if (card > 0) writer.newPage();
        int place = 0;
        for (const std::string& text : textsOf(cardOf(card))) {
            const QPointF at(1000 * (place % kColumns), 200.0 + 200.0 * (place / kColumns));
            painter.drawText(at, QString::fromStdString(text));
            ++place;
        }
    }
    painter.end();
}

/// Kibibytes; 0 where the system does not tell.
long peakMemory() {
#ifdef _WIN32
    return 0;
#else
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
#endif
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir scratch;
    const std::string folder = scratch.path().toStdString();
    const std::string layouts =
        (QGuiApplication::applicationDirPath() + QStringLiteral("/layouts")).toStdString();

    printWithEngine(folder, layouts, kFewCards);
    const long peakOfFew = peakMemory();
    printWithEngine(folder, layouts, kCards);
    const long peakOfMany = peakMemory();

    Figure figure("print-1000", kMostRatio);
    for (int round = 0; round <= kRounds; ++round) {
        figure.ours([&] { printWithEngine(folder, layouts, kCards); });
        figure.floor([&] { printBare(folder, kCards); });
    }
    const bool isFast = figure.report();
    if (peakOfFew == 0) return isFast ? 0 : 1;
    const bool isSmall = report("print-memory", static_cast<double>(peakOfMany),
                                static_cast<double>(peakOfFew), kMostMemoryRatio, 0);
    return isFast && isSmall ? 0 : 1;
}
