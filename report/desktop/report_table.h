#pragma once

#include "report/desktop/layout.h"
#include "report/report_engine.h"

#include <QSqlDatabase>
#include <QSqlQuery>

#include <filesystem>

namespace winvrx {

class Log;

/// The table `Tabela_base` of the report database: it holds the page in hand, and after a run the
/// last one. It is scratch data, so speed goes before safety, and whatever is wrong with the file a
/// print goes on: one that is damaged, locked away or not ours is put aside under a free name
/// ("qdb.mdb.old", "qdb.mdb.old2") and made anew, and where that fails too, or another program has
/// it in use, the table lives in memory.
class ReportTable {
  public:
    /// `columns` are plain words; `drawn` says which of them are read back. The log is told of a
    /// file that could not be used.
    ReportTable(std::filesystem::path database, const std::vector<std::string>& columns,
                DrawnColumns drawn, Log& log);
    ~ReportTable();
    ReportTable(const ReportTable&) = delete;
    ReportTable& operator=(const ReportTable&) = delete;

    /// Makes `rows` the table's content and gives back what the table holds then, in the drawn
    /// columns. No other program on a shared folder can come between the two. Throws Fault.
    [[nodiscard]] PageText exchange(const ReportRows& rows);

  private:
    enum class Place { File, FreshFile, Memory };

    void open();
    void close();
    [[nodiscard]] bool putFileAside() const;
    void requireOurs();
    void makeTable();
    void run(const QString& statement);
    void check(bool done, const QSqlQuery& query) const;
    void prepare(QSqlQuery& query, const QString& statement);
    void prepareInsert(std::size_t rows, std::size_t shared);
    [[nodiscard]] QString selection(const std::vector<std::size_t>& columns,
                                    const QString& limit) const;
    [[nodiscard]] PageText transact(const ReportRows& rows);
    void write(const ReportRows& rows);
    [[nodiscard]] PageText read();
    void readInto(PageText& rows, QSqlQuery& query, const std::vector<std::size_t>& columns);

    std::filesystem::path path_;
    QStringList columns_;
    DrawnColumns drawn_;
    Log& log_;
    QString connection_;
    Place place_ = Place::File;
    QSqlDatabase database_;
    QSqlQuery insert_;
    std::size_t insertedRows_ = 0;
    std::size_t insertedShared_ = 0;
    QSqlQuery selectOnce_;
    QSqlQuery selectRows_;
};

}  // namespace winvrx
