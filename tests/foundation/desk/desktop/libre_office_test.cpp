// Documents as LibreOffice Writer reads and prints them.
#include "foundation/desk/desktop/libre_office.h"

#include "foundation/desk/desktop/open_document.h"
#include "tests/support/desktop/print_server.h"
#include "tests/support/printed_text.h"

#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace winvrx::testing {
namespace {

constexpr int kMargin = 20;  // millimetres

bool isWriterInstalled() {
    return !QStandardPaths::findExecutable(QStringLiteral("soffice")).isEmpty() && canReadPdf();
}

DocumentTable longTable() {
    DocumentTable table{{120, 50}, {{{"CRÉDITOS"}, {"VALOR", Paragraph::Side::Right}}}};
    for (int row = 1; row <= 60; ++row)
        table.rows.push_back({{"linha"}, {"R$ " + std::to_string(row), Paragraph::Side::Right}});
    return table;
}

class Writer : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!isWriterInstalled()) GTEST_SKIP() << "soffice or pdftotext is not installed";
    }

    /// What Writer makes of the document.
    [[nodiscard]] QString pdfOf(const Document& document) const {
        QFile file(folder_.filePath(QStringLiteral("d.fodt")));
        if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("no document");
        file.write(openDocument(document));
        file.close();
        (void)outputOf(QStringLiteral("soffice"),
                       {QStringLiteral("--headless"),
                        QStringLiteral("-env:UserInstallation=file://") + folder_.path() +
                            QStringLiteral("/profile"),
                        QStringLiteral("--convert-to"), QStringLiteral("pdf"),
                        QStringLiteral("--outdir"), folder_.path(), file.fileName()});
        return folder_.filePath(QStringLiteral("d.pdf"));
    }

    /// The first page, a pixel a point.
    [[nodiscard]] QImage pageOf(const QString& pdf) const {
        const QString picture = folder_.filePath(QStringLiteral("page"));
        (void)outputOf(QStringLiteral("pdftoppm"),
                       {QStringLiteral("-r"), QStringLiteral("72"), QStringLiteral("-gray"),
                        QStringLiteral("-singlefile"), pdf, picture});
        return QImage(picture + QStringLiteral(".pgm"));
    }

    QTemporaryDir folder_;
};

/// Whether a line goes down the page's picture near `left`, from `top` on.
bool hasRule(const QImage& page, double left, double top) {
    constexpr int kLength = 100;
    for (int x = static_cast<int>(left) - 2; x <= static_cast<int>(left) + 2; ++x) {
        int dark = 0;
        for (int y = static_cast<int>(top); y < static_cast<int>(top) + kLength; ++y)
            if (qGray(page.pixel(x, y)) < 200) ++dark;
        if (dark == kLength) return true;
    }
    return false;
}

TEST_F(Writer, ReadsTheDocumentAsItWasComposed) {
    const QString pdf =
        pdfOf({"Recibo",
               {Paragraph{"RECIBO <DE> \"PAGAMENTO\" & \x01", Paragraph::Side::Center, true, 14},
                Paragraph{"TOTAL CRÉDITOS:                     R$ 1,00"},
                Paragraph{"  recuo\nlinha nova"}, longTable(),
                Paragraph{"(Assinatura do Sócio)", Paragraph::Side::Left, false, 11, true}}});
    const auto words = printedWords(pdf);
    const double margin = kMargin * kPointsPerMillimetre;

    const auto title = wordOf(words, QStringLiteral("RECIBO"));
    EXPECT_GT(title.left, margin + 100) << "centred";
    EXPECT_NEAR(title.bottom - title.top, 14 * 1.2, 2);
    EXPECT_TRUE(printedText(pdf).contains(QStringLiteral("RECIBO <DE> \"PAGAMENTO\" & ·")));

    const auto label = wordOf(words, QStringLiteral("CRÉDITOS:"));
    const auto amount = wordOf(words, QStringLiteral("1,00"));
    EXPECT_NEAR(amount.top, label.top, 0.1);
    EXPECT_GT(amount.left - label.right, 21 * 11 * 0.25) << "all blanks count";
    EXPECT_GT(wordOf(words, QStringLiteral("recuo")).left, margin + 4);
    EXPECT_NEAR(wordOf(words, QStringLiteral("nova")).left - margin, 26, 4) << "a new line";

    const auto last = wordOf(words, QStringLiteral("60"));
    EXPECT_EQ(last.page, 2);
    EXPECT_NEAR(last.right, margin + (120 + 50 - 1) * kPointsPerMillimetre, 1);
    EXPECT_EQ(std::ranges::count(words, QStringLiteral("VALOR"), &PrintedWord::text), 2)
        << "on each page of the table";
    EXPECT_EQ(wordOf(words, QStringLiteral("(Assinatura")).page, 3);

    const QImage page = pageOf(pdf);
    EXPECT_EQ(page.size(), QSize(596, 842)) << "A4";
    const double top = wordOf(words, QStringLiteral("VALOR")).bottom;
    for (const int column : {0, 120, 170})
        EXPECT_TRUE(hasRule(page, margin + column * kPointsPerMillimetre, top)) << column;
}

TEST_F(Writer, PrintsDocumentsOneAfterTheOther) {
    const QString obstacle = PrintServer::obstacle();
    if (!obstacle.isEmpty()) GTEST_SKIP() << obstacle.toStdString();
    printServer.start();
    printServer.addPrinter(QStringLiteral("recibos"));
    const QString title =
        QStringLiteral("winvrx-%1-recibo-").arg(QCoreApplication::applicationPid());
    {
        LibreOffice office([](const Fault& fault) { ADD_FAILURE() << fault.what(); });
        EXPECT_THROW(office.print({"", {}}, ""), Fault) << "no default printer";
        EXPECT_THROW(office.print({"", {}}, "outra"), Fault);
        for (const char* number : {"1", "2"})
            office.print({title.toStdString() + number, {Paragraph{"PAGAMENTO"}}}, "recibos");
    }
    for (const char* number : {"1", "2"})
        QFile::remove(
            printServer.printedFile(title + QLatin1String(number) + QStringLiteral(".fodt")));
    const auto words = printedWords(printServer.lastDocument());
    EXPECT_EQ(wordOf(words, QStringLiteral("PAGAMENTO")).page, 1);
    printServer.stop();
}

TEST(LibreOffice, SaysWhenItIsNotInstalled) {
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/nowhere");
    LibreOffice office([](const Fault& fault) { ADD_FAILURE() << fault.what(); });
    EXPECT_THROW(office.show({"", {}}), Fault);
    EXPECT_THROW(office.print({"", {}}, ""), Fault);
    qputenv("PATH", path);
}

}  // namespace
}  // namespace winvrx::testing
