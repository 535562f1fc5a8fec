#include "report/desktop/qt_report_engine.h"

#include "tests/support/printed_card.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include <gmock/gmock.h>

#include <algorithm>

#ifndef _WIN32
#include <sys/resource.h>
#include <csignal>
#endif

namespace winvrx::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST_F(PrintedCard, SaysEverythingInOrder) {
    ASSERT_EQ(desk_.print(1), ReportResult::Done);
    const QString text = printedText(desk_.pdf());
    qsizetype from = 0;
    for (const char* expected :
         {"Razão: PADARIA SÃO JOÃO LTDA\n", "Cnpj: 12.345.678/0001-95 - Reg.: 007 CTPS: 54321\n",
          "Admiss: 01/02/2020 Função: FORNEIRO\n",
          "Período.: 01/03/2024 a 31/03/2024 - Descanso Semanal: domingo\n",
          "Ent:08:00 Saí:12:00 Ent:13:00 Saí:17:00 - Inter.Refei.: 12:00 às 13:00\n",
          "EMPREGADO 1 março/2024\n", "01 sex 08:00 12:00 13:00 17:00 08:00\n",
          "02 sáb 08:00 12:00 13:00 17:00 08:00\n", "03 dom DESCANSO SEMANAL\n",
          "31 dom DESCANSO SEMANAL\n", "Total: 216:00\n"}) {
        const qsizetype at = text.indexOf(QString::fromUtf8(expected), from);
        ASSERT_GE(at, 0) << expected << "\nnot in\n" << text.toStdString();
        from = at;
    }
}

TEST_F(PrintedCard, NeverShowsThePictureOfTheStock) {
    EXPECT_EQ(desk_.print(1), ReportResult::Done);
    EXPECT_FALSE(printedText(desk_.pdf()).contains(QStringLiteral("HORAS")));
}

TEST_F(PrintedCard, IsOnePageForEachOfThreeHundred) {
    ASSERT_EQ(desk_.print(300), ReportResult::Done);
    std::vector<int> pages;
    for (const PrintedWord& word : printedWords(desk_.pdf()))
        if (word.text == QStringLiteral("EMPREGADO")) pages.push_back(word.page);
    ASSERT_EQ(pages.size(), 300U);
    for (int page = 1; page <= 300; ++page)
        EXPECT_EQ(pages[static_cast<std::size_t>(page - 1)], page);
}

TEST_F(PrintedCard, WritesCharactersThatTheFontLacks) {
    desk_.writeLayout("own.rpt",
                      R"(<svg width="100mm" height="50mm" viewBox="0 0 100 50" data-pitch="4">
                         <text x="5" y="9" font-size="4" font-family="Liberation Sans"
                               data-width="20">Ωμέγα → ☺ and more than fits</text></svg>)");
    desk_.request.layoutName = "own.rpt";
    for (const PrintedWord& word : words())
        EXPECT_LE(word.right, 25.5 * kPointsPerMillimetre);
}

TEST(ReportEngine, PrintsNothingWithoutASoundLayout) {
    ReportDesk desk;
    desk.writeLayout("damaged.rpt", "<svg>\n<text");
    for (const char* name : {"missing.rpt", "damaged.rpt", "", "../layouts/damaged.rpt"}) {
        desk.request.layoutName = name;
        desk.log.entries.clear();
        int asked = 0;
        const CardSource cards = [&]() -> std::optional<std::vector<CardRow>> {
            ++asked;
            return std::nullopt;
        };
        EXPECT_EQ(desk.engine.print(desk.request, cards, [](int) { return true; }),
                  ReportResult::Failed);
        EXPECT_EQ(asked, 0);
        EXPECT_THAT(desk.log.entries, ElementsAre(HasSubstr(name))) << name;
        EXPECT_THAT(desk.engine.explanation(), HasSubstr(name));
        EXPECT_FALSE(QFile::exists(desk.pdf()));
    }
}

TEST(ReportEngine, SaysWhenItIsNotInstalled) {
    ReportDesk desk;
    QtReportEngine engine({[&desk] { return std::vector{desk.folder / "missing"}; },
                           [&desk] { return desk.database; }},
                          desk.browser, desk.log);
    const CardSource none = [] { return std::nullopt; };
    EXPECT_EQ(engine.print(desk.request, none, [](int) { return true; }), ReportResult::NoEngine);
    EXPECT_NE(engine.explanation(), "");
    EXPECT_FALSE(std::filesystem::exists(desk.database));
}

TEST(ReportEngine, PrefersTheLayoutsOfTheDataFolder) {
    if (!canReadPdf()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    ReportDesk desk;
    const char* own[] = {"tilibcenter.rpt", "RHJleft.rpt"};
    for (const char* name : own)
        desk.writeLayout(name, QByteArray(R"(<svg width="210mm" height="297mm"
                                  viewBox="0 0 210 297" data-pitch="4"><text x="9" y="9"
                                  font-size="4">MEU )") +
                                   name + "</text></svg>");
    for (const char* name : own) {
        desk.request.layoutName = name;
        ASSERT_EQ(desk.print(1), ReportResult::Done);
        EXPECT_EQ(printedText(desk.pdf()).trimmed(), QStringLiteral("MEU ") + QLatin1String(name));
    }
    desk.request.layoutName = "RHJcenter.rpt";
    ASSERT_EQ(desk.print(1), ReportResult::Done);
    EXPECT_TRUE(printedText(desk.pdf()).contains(QStringLiteral("Total: 216:00")));
}

TEST(ReportEngine, ADamagedLayoutOfTheDataFolderDoesNotGiveWayToTheShippedOne) {
    ReportDesk desk;
    desk.writeLayout("tilibcenter.rpt", "<svg width='210mm' height='297mm'\n viewBox='0 0 210");
    EXPECT_EQ(desk.print(1), ReportResult::Failed);
    EXPECT_THAT(desk.log.entries, ElementsAre(HasSubstr("layouts/tilibcenter.rpt:2: ")));
    EXPECT_FALSE(QFile::exists(desk.pdf()));
}

TEST(ReportEngine, LeavesTheOldFileWhenARunDoesNotEnd) {
    ReportDesk desk;
    ASSERT_EQ(desk.print(1), ReportResult::Done);
    QFile file(desk.pdf());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    const auto names = [&] { return QDir(desk.scratch.path()).entryList(QDir::Files); };
    const QStringList files = names();

    const CardSource endless = [] { return std::optional(sampleCard(9)); };
    EXPECT_EQ(desk.engine.print(desk.request, endless, [](int done) { return done < 3; }),
              ReportResult::Cancelled);
    int next = 0;
    const CardSource failing = [&]() -> std::optional<std::vector<CardRow>> {
        if (++next == 3) throw std::out_of_range("punches");
        return sampleCard(next);
    };
    EXPECT_THROW((void)desk.engine.print(desk.request, failing, [](int) { return true; }),
                 std::out_of_range);
    file.seek(0);
    EXPECT_EQ(file.readAll(), before);
    EXPECT_EQ(names(), files);
}

TEST(ReportEngine, MakesNoFileWithoutACard) {
    ReportDesk desk;
    EXPECT_EQ(desk.print(0), ReportResult::Done);
    EXPECT_FALSE(QFile::exists(desk.pdf()));
}

TEST(ReportEngine, FailsWhereThePdfCannotBeWritten) {
    ReportDesk desk;
    desk.request.pdfPath = (desk.folder / "missing" / "cards.pdf").string();
    EXPECT_EQ(desk.print(1), ReportResult::Failed);
    EXPECT_THAT(desk.log.entries, ElementsAre(HasSubstr("cards.pdf")));
}

#ifndef _WIN32
/// A disk that is full after some hundred kilobytes.
class FullDisk {
  public:
    FullDisk() : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &limit_);
        const rlimit small{200'000, limit_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &limit_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    void (*handler_)(int);
    rlimit limit_{};
};

TEST(ReportEngine, LeavesNoHalfFileOnAFullDisk) {
    ReportDesk desk;
    {
        const FullDisk full;
        EXPECT_EQ(desk.print(300), ReportResult::Failed);
    }
    EXPECT_THAT(desk.log.entries, ElementsAre(HasSubstr("cards.pdf")));
    EXPECT_EQ(QDir(desk.scratch.path()).entryList({QStringLiteral("cards*")}, QDir::Files),
              QStringList());
}
#endif

/// A column of the table as another program sees it.
QStringList columnOfTable(const ReportDesk& desk, const QString& column) {
    QStringList values;
    {
        auto database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), column);
        database.setDatabaseName(QString::fromStdString(desk.database.string()));
        database.open();
        QSqlQuery query(QStringLiteral("SELECT %1 FROM Tabela_base").arg(column), database);
        while (query.next())
            values << query.value(0).toString();
    }
    QSqlDatabase::removeDatabase(column);
    return values;
}

TEST(CardTable, HoldsTheLastCardAfterTheRun) {
    ReportDesk desk;
    ASSERT_EQ(desk.print(3), ReportResult::Done);
    EXPECT_EQ(columnOfTable(desk, QStringLiteral("nome")),
              QStringList(31, QStringLiteral("EMPREGADO 3")));
    QStringList days;
    for (int day = 1; day <= 31; ++day)
        days << QString::fromStdString(padded(day, 2));
    EXPECT_EQ(columnOfTable(desk, QStringLiteral("dia")), days);
    EXPECT_EQ(columnOfTable(desk, QStringLiteral("sai2")).at(0), QStringLiteral("17:00"));
}

TEST(CardTable, TakesCardsOfAnyShape) {
    ReportDesk desk;
    auto mixed = sampleCard(1);
    mixed.resize(2);
    mixed[1][0] = "OUTRA";
    std::vector<std::vector<CardRow>> cards = {sampleCard(1), {}, mixed};
    std::size_t next = 0;
    const CardSource source = [&] {
        return next < cards.size() ? std::optional(cards[next++]) : std::nullopt;
    };
    ASSERT_EQ(desk.engine.print(desk.request, source, [](int) { return true; }),
              ReportResult::Done);
    EXPECT_EQ(columnOfTable(desk, QStringLiteral("razao")),
              QStringList({QStringLiteral("PADARIA SÃO JOÃO LTDA"), QStringLiteral("OUTRA")}));
}

TEST(CardTable, MakesADamagedDatabaseAnewAndKeepsTheOldBytes) {
    ReportDesk desk;
    const QByteArray damaged("Standard Jet DB, not ours" + QByteArray(4096, 'x'));
    QFile file(desk.database);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(damaged);
    file.close();
    ASSERT_EQ(desk.print(1), ReportResult::Done);
    EXPECT_EQ(columnOfTable(desk, QStringLiteral("nome")).size(), 31);
    QFile old(desk.folder / "qdb.mdb.old");
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), damaged);
}

TEST(CardTable, TakesTheTableOfAnotherVersion) {
    ReportDesk desk;
    {
        auto database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("v"));
        database.setDatabaseName(QString::fromStdString(desk.database.string()));
        ASSERT_TRUE(database.open());
        QSqlQuery query(QStringLiteral("CREATE TABLE Tabela_base (nome, other)"), database);
    }
    QSqlDatabase::removeDatabase(QStringLiteral("v"));
    EXPECT_EQ(desk.print(1), ReportResult::Done);
}

TEST(CardTable, ALinkInItsPlaceIsNotFollowed) {
    for (const char* target : {"other.mdb", "missing.mdb"}) {
        ReportDesk desk;
        QFile other(desk.folder / "other.mdb");
        ASSERT_TRUE(other.open(QIODevice::WriteOnly));
        other.close();
        std::filesystem::create_symlink(target, desk.database);
        EXPECT_EQ(desk.print(1), ReportResult::Failed) << target;
        EXPECT_THAT(desk.log.entries, ElementsAre(HasSubstr("qdb.mdb"))) << target;
        EXPECT_EQ(other.size(), 0) << target;
        EXPECT_FALSE(std::filesystem::exists(desk.folder / "missing.mdb"));
    }
}

TEST(CardTable, FaultNamesTheFile) {
    ReportDesk desk;
    desk.database = desk.folder / "missing" / "qdb.mdb";
    EXPECT_EQ(desk.print(1), ReportResult::Failed);
    EXPECT_THAT(desk.log.entries, ElementsAre(HasSubstr("qdb.mdb")));
    EXPECT_FALSE(QFile::exists(desk.pdf()));
}

}  // namespace
}  // namespace winvrx::testing
