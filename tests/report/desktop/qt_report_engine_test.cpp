#include "report/desktop/qt_report_engine.h"

#include "tests/support/printed_card.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <map>
#include <vector>

#ifndef _WIN32
#include <sys/resource.h>
#include <csignal>
#endif

namespace winvrx::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST_F(PrintedCard, SaysEverythingInOrder) {
    ASSERT_EQ(desk_.print(1), PrintEnd::Done);
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
    EXPECT_EQ(desk_.print(1), PrintEnd::Done);
    EXPECT_FALSE(printedText(desk_.pdf()).contains(QStringLiteral("HORAS")));
}

TEST_F(PrintedCard, IsOnePageForEachOfThreeHundred) {
    ASSERT_EQ(desk_.print(300), PrintEnd::Done);
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

TEST_F(PrintedCard, WrapsATextIntoItsBoxBothEdgesStraight) {
    desk_.writeLayout("own.rpt",
                      R"(<svg width="100mm" height="90mm" viewBox="0 0 100 90" data-pitch="4">
                         <text x="10" y="20" font-size="4" font-family="Liberation Sans"
                               inline-size="40" line-height="1.5" text-align="justify"
                               data-lines="9" data-blank="____"
                               data-template="A empresa {razao} e {horas}{situacao} {nome}.&#10;Fim"
                               ><tspan>A empresa</tspan><tspan>e</tspan></text></svg>)");
    desk_.request.layoutName = "own.rpt";
    const auto all = words();
    std::map<int, std::pair<double, double>> edges;  // of each line, in millimetres
    for (const PrintedWord& word : all) {
        auto& [left, right] = edges.try_emplace(qRound(word.top), 1000.0, 0.0).first->second;
        left = std::min(left, word.left / kPointsPerMillimetre);
        right = std::max(right, word.right / kPointsPerMillimetre);
    }
    ASSERT_EQ(edges.size(), 5U);
    int line = 0;
    for (const auto& [top, edge] : edges) {
        EXPECT_NEAR(edge.first, 10, 0.5) << top;
        EXPECT_NEAR(edge.second, ++line < 3 ? 50 : edge.second, 0.2) << top;
    }
    EXPECT_NEAR(wordOf(all, QStringLiteral("Fim")).top - wordOf(all, QStringLiteral("A")).top,
                4.5 * 6 * kPointsPerMillimetre, 0.2);
    EXPECT_EQ(wordOf(all, QStringLiteral("08:00____")).page, 1);
}

TEST(ReportEngine, PrintsNothingWithoutASoundLayout) {
    ReportDesk desk;
    desk.writeLayout("damaged.rpt", "<svg>\n<text");
    for (const char* name : {"missing.rpt", "damaged.rpt", "", "../layouts/damaged.rpt"}) {
        desk.request.layoutName = name;
        desk.log.entries.clear();
        int asked = 0;
        EXPECT_EQ(desk.print(ReportPages(1,
                                         [&asked](std::size_t) {
                                             ++asked;
                                             return ReportRows();
                                         })),
                  PrintEnd::Failed);
        EXPECT_EQ(asked, 0);
        EXPECT_THAT(desk.log.entries, ElementsAre(HasSubstr(name))) << name;
        EXPECT_THAT(desk.office.person.shown.back().detail, HasSubstr(name));
        EXPECT_FALSE(QFile::exists(desk.pdf()));
    }
}

TEST(ReportEngine, SaysWhenItIsNotInstalled) {
    ReportDesk desk;
    QtReportEngine engine([&desk] { return std::vector{desk.folder / "missing"}; },
                          [&desk] { return desk.database; }, desk.log);
    ReportPages none(0, sampleCard);
    EXPECT_EQ(printPages({desk.office.at, engine}, desk.request, none), PrintEnd::Failed);
    EXPECT_THAT(desk.office.person.shown.at(0).text, HasSubstr("Confirme a Instalação"));
    EXPECT_NE(desk.office.person.shown.at(0).detail, "");
    EXPECT_FALSE(std::filesystem::exists(desk.database));
}

/// Any table: its columns are the request's own.
TEST(ReportEngine, DrawsTheColumnsThatARequestNames) {
    if (!canReadPdf()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    ReportDesk desk;
    desk.writeLayout("label.rpt", R"(<svg width="100mm" height="50mm" viewBox="0 0 100 50">
                                     <g data-rows="3" data-pitch="9" font-size="4">
                                     <text x="5" y="9" data-template="{rua}, {casa}"/></g></svg>)");
    desk.request.layoutName = "label.rpt";
    desk.request.columns = {"casa", "rua"};
    const ReportRows rows = {{"7", "Rua Um"}, {"8"}, {"9", "Rua Dois", "further"}};
    for (int run = 0; run < 2; ++run) {
        ASSERT_EQ(desk.print(ReportPages(1, [&](std::size_t) { return rows; })), PrintEnd::Done);
        EXPECT_EQ(printedText(desk.pdf()).simplified(), QStringLiteral("Rua Um, 7 ,8 Rua Dois, 9"));
        desk.request.columns = {"casa"};
        EXPECT_EQ(desk.print(1), PrintEnd::Failed);
        EXPECT_THAT(desk.log.entries.back(), HasSubstr("label.rpt:3: "));
        desk.request.columns = {"casa", "rua"};
    }
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
        ASSERT_EQ(desk.print(1), PrintEnd::Done);
        EXPECT_EQ(printedText(desk.pdf()).trimmed(), QStringLiteral("MEU ") + QLatin1String(name));
    }
    desk.request.layoutName = "RHJcenter.rpt";
    ASSERT_EQ(desk.print(1), PrintEnd::Done);
    EXPECT_TRUE(printedText(desk.pdf()).contains(QStringLiteral("Total: 216:00")));
}

TEST(ReportEngine, ADamagedLayoutOfTheDataFolderDoesNotGiveWayToTheShippedOne) {
    ReportDesk desk;
    desk.writeLayout("tilibcenter.rpt", "<svg width='210mm' height='297mm'\n viewBox='0 0 210");
    EXPECT_EQ(desk.print(1), PrintEnd::Failed);
    EXPECT_THAT(desk.log.entries, ElementsAre(HasSubstr("layouts/tilibcenter.rpt:2: ")));
    EXPECT_FALSE(QFile::exists(desk.pdf()));
}

TEST(ReportEngine, LeavesTheOldFileWhenARunDoesNotEnd) {
    ReportDesk desk;
    ASSERT_EQ(desk.print(1), PrintEnd::Done);
    QFile file(desk.pdf());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    const auto names = [&] { return QDir(desk.scratch.path()).entryList(QDir::Files); };
    const QStringList files = names();

    EXPECT_EQ(desk.print(ReportPages(9, sampleCard), [](int done, int) { return done < 3; }),
              PrintEnd::Cancelled);
    const auto failing = [](std::size_t at) {
        if (at == 2) throw std::out_of_range("punches");
        return sampleCard(at);
    };
    EXPECT_EQ(desk.print(ReportPages(9, failing)), PrintEnd::Failed);
    file.seek(0);
    EXPECT_EQ(file.readAll(), before);
    EXPECT_EQ(names(), files);
}

TEST(ReportEngine, MakesNoFileWithoutACard) {
    ReportDesk desk;
    EXPECT_EQ(desk.print(0), PrintEnd::Done);
    EXPECT_FALSE(QFile::exists(desk.pdf()));
}

TEST(ReportEngine, FailsWhereThePdfCannotBeWritten) {
    ReportDesk desk;
    desk.request.pdfPath = (desk.folder / "missing" / "cards.pdf").string();
    EXPECT_EQ(desk.print(1), PrintEnd::Failed);
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
        EXPECT_EQ(desk.print(300), PrintEnd::Failed);
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

TEST(ReportTable, HoldsTheLastCardAfterTheRun) {
    ReportDesk desk;
    ASSERT_EQ(desk.print(3), PrintEnd::Done);
    EXPECT_EQ(columnOfTable(desk, QStringLiteral("nome")),
              QStringList(31, QStringLiteral("EMPREGADO 3")));
    QStringList days;
    for (int day = 1; day <= 31; ++day)
        days << QString::fromStdString(padded(day, 2));
    EXPECT_EQ(columnOfTable(desk, QStringLiteral("dia")), days);
    EXPECT_EQ(columnOfTable(desk, QStringLiteral("sai2")).at(0), QStringLiteral("17:00"));
}

TEST(ReportTable, TakesCardsOfAnyShape) {
    ReportDesk desk;
    auto mixed = sampleCard(0);
    mixed.resize(2);
    mixed[1][0] = "OUTRA";
    const std::vector<ReportRows> cards = {sampleCard(0), {}, mixed};
    ASSERT_EQ(desk.print(ReportPages(3, [&](std::size_t at) { return cards[at]; })),
              PrintEnd::Done);
    EXPECT_EQ(columnOfTable(desk, QStringLiteral("razao")),
              QStringList({QStringLiteral("PADARIA SÃO JOÃO LTDA"), QStringLiteral("OUTRA")}));
}

void writeFile(const std::filesystem::path& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

QByteArray bytesOf(const std::filesystem::path& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void makeDatabase(const std::filesystem::path& path, const QString& statement) {
    {
        auto database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), statement);
        database.setDatabaseName(QString::fromStdString(path.string()));
        ASSERT_TRUE(database.open());
        QSqlQuery query(statement, database);
    }
    QSqlDatabase::removeDatabase(statement);
}

/// The program's own table, large enough for several pages, with one of them overwritten.
QByteArray databaseDamagedAt(ReportDesk& desk, qsizetype page) {
    constexpr qsizetype kPage = 4096;
    EXPECT_EQ(desk.print(3), PrintEnd::Done);
    QByteArray bytes = bytesOf(desk.database);
    EXPECT_GT(bytes.size(), page * kPage);
    return bytes.replace(page * kPage, kPage, QByteArray(kPage, '\xA5'));
}

struct InItsPlace {
    const char* name;
    std::function<void(ReportDesk&)> prepare;
    bool isKept = true;  ///< what was there, under another name
};

void expectPrintGoesOn(const InItsPlace& one) {
    SCOPED_TRACE(one.name);
    ReportDesk desk;
    writeFile(desk.folder / "qdb.mdb.old", "kept earlier");
    one.prepare(desk);
    const QByteArray before = bytesOf(desk.database);
    desk.log.entries.clear();
    ASSERT_EQ(desk.print(2), PrintEnd::Done) << ::testing::PrintToString(desk.log.entries);
    EXPECT_EQ(columnOfTable(desk, QStringLiteral("nome")).value(0), QStringLiteral("EMPREGADO 2"));
    EXPECT_EQ(bytesOf(desk.folder / "qdb.mdb.old"), "kept earlier");
    const auto kept = desk.folder / "qdb.mdb.old2";
    EXPECT_EQ(std::filesystem::exists(std::filesystem::symlink_status(kept)), one.isKept);
    EXPECT_EQ(bytesOf(kept), one.isKept ? before : QByteArray());
    EXPECT_EQ(desk.log.entries.empty(), !one.isKept);
    EXPECT_FALSE(std::filesystem::exists(desk.folder / "missing.mdb"));
}

TEST(ReportTable, APrintGoesOnWhateverStandsInItsPlace) {
    const auto damaged = [](qsizetype page) {
        return
            [page](ReportDesk& desk) { writeFile(desk.database, databaseDamagedAt(desk, page)); };
    };
    const auto made = [](const char* sql) {
        return [sql](ReportDesk& desk) { makeDatabase(desk.database, QString::fromLatin1(sql)); };
    };
    for (const InItsPlace& one : std::vector<InItsPlace>{
             {"no database",
              [](ReportDesk& desk) {
                  writeFile(desk.database, "Standard Jet DB" + QByteArray(9999, 'x'));
              }},
             {"damage in the first page", damaged(0)},
             {"damage in the second page", damaged(1)},
             {"another program's", made("CREATE TABLE clients (name)")},
             {"a view of the table's name", made("CREATE VIEW Tabela_base AS SELECT 1")},
             {"a folder",
              [](ReportDesk& desk) {
                  std::filesystem::create_directory(desk.database);
                  writeFile(desk.database / "kept", "kept");
              }},
             {"a link to nothing",
              [](ReportDesk& desk) {
                  std::filesystem::create_symlink("missing.mdb", desk.database);
              }},
             {"the table of another report", made("CREATE TABLE Tabela_base (nome, other)"),
              false}})
        expectPrintGoesOn(one);
}

TEST(ReportTable, APrintGoesOnWhereNoFileCanBe) {
    ReportDesk desk;
    desk.database = desk.folder / "missing" / "qdb.mdb";
    EXPECT_EQ(desk.print(2), PrintEnd::Done);
    EXPECT_THAT(desk.log.entries, Contains(HasSubstr("qdb.mdb")));
    EXPECT_TRUE(QFile::exists(desk.pdf()));
}

}  // namespace
}  // namespace winvrx::testing
