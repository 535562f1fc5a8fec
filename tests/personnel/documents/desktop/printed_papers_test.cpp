// The papers as LibreOffice Writer prints them: one run for all.
#include "foundation/desk/desktop/open_document.h"
#include "tests/support/papers_desk.h"
#include "tests/support/printed_text.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace winvrx {
namespace {

using namespace testing;

TEST(PrintedPapers, StandOnTheirSheetsAsTheyWereComposed) {
    if (QStandardPaths::findExecutable(QStringLiteral("soffice")).isEmpty() || !canReadPdf())
        GTEST_SKIP() << "soffice or pdftotext is not installed";
    QTemporaryDir folder;
    PapersDesk desk;
    desk.file("01configAf001") = leaveBytes({PapersDesk::dismissal()});
    desk.screen.load();
    desk.screen.type("filho1", "BIA DE SOUSA");
    QStringList files;
    for (const PaperKind& kind : paperKinds()) {
        desk.screen.choose(kind.paper);
        files << folder.filePath(QString::fromUtf8(kind.key.data()) + QStringLiteral(".fodt"));
        QFile file(files.back());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(openDocument(desk.screen.composedPaper()));
    }
    (void)outputOf(QStringLiteral("soffice"),
                   QStringList{QStringLiteral("--headless"),
                               QStringLiteral("-env:UserInstallation=file://") + folder.path() +
                                   QStringLiteral("/profile"),
                               QStringLiteral("--convert-to"), QStringLiteral("pdf"),
                               QStringLiteral("--outdir"), folder.path()} +
                       files);
    for (const PaperKind& kind : paperKinds()) {
        SCOPED_TRACE(kind.key);
        const QString pdf =
            folder.filePath(QString::fromUtf8(kind.key.data()) + QStringLiteral(".pdf"));
        const auto words = printedWords(pdf);
        ASSERT_FALSE(words.empty());
        const bool isLong = kind.paper == Paper::AvisoPrevio;
        EXPECT_LE(words.back().page, isLong ? 2 : 1);
        EXPECT_EQ(wordOf(words, QStringLiteral("ANA")).page, 1);
        EXPECT_FALSE(printedText(pdf).contains(u'{'));
    }
}

}  // namespace
}  // namespace winvrx
