#include "report/desktop/report_table.h"

#include "foundation/desk/log.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/faults.h"

#include <QSqlError>
#include <QUuid>
#include <QVariant>

#include <algorithm>

namespace winvrx {

namespace {

const QString kTable = toQt(kReportTable);
const QString kComma = QStringLiteral(", ");

class TableFault : public Fault {
  public:
    TableFault(const std::filesystem::path& file, const std::string& cause)
        : Fault(file.string() + ": " + cause,
                "O arquivo " + file.filename().string() + " não pôde ser usado.") {}
    TableFault(const std::filesystem::path& file, const QSqlError& error)
        : TableFault(file, error.text().toStdString()) {
        // The low byte tells the kind of an SQLite error: SQLITE_BUSY, SQLITE_LOCKED, SQLITE_IOERR
        // and SQLITE_FULL say nothing against the file.
        constexpr int kKind = 0xff;
        const int kind = error.nativeErrorCode().toInt() & kKind;
        blamesFile_ = kind != 5 && kind != 6 && kind != 10 && kind != 13;
    }

    [[nodiscard]] bool blamesFile() const { return blamesFile_; }

  private:
    bool blamesFile_ = true;
};

QString places(std::size_t count) {
    return QStringList(static_cast<qsizetype>(count), QStringLiteral("?")).join(u',');
}

/// How many leading columns say the same in every row, one column fewer than all at most.
std::size_t sharedColumns(const ReportRows& rows) {
    std::size_t shared = rows.front().size() - 1;
    for (const ReportRow& row : rows) {
        const auto [differs, end] = std::mismatch(row.begin(), row.end(), rows.front().begin());
        shared = std::min(shared, static_cast<std::size_t>(differs - row.begin()));
    }
    return shared;
}

}  // namespace

ReportTable::ReportTable(std::filesystem::path database, const std::vector<std::string>& columns,
                         DrawnColumns drawn, Log& log)
    : path_(std::move(database)),
      drawn_(std::move(drawn)),
      log_(log),
      connection_(QStringLiteral("report-") + QUuid::createUuid().toString(QUuid::WithoutBraces)) {
    for (const std::string& column : columns)
        columns_ << toQt(column);
}

ReportTable::~ReportTable() {
    close();
}

PageText ReportTable::exchange(const ReportRows& rows) {
    while (true) {
        try {
            if (!database_.isOpen()) open();
            return transact(rows);
        } catch (const TableFault& fault) {
            log_.write(std::string("report: ") + fault.what());
            close();
            if (place_ == Place::Memory) throw;
            const bool fresh = place_ == Place::File && fault.blamesFile() && putFileAside();
            place_ = fresh ? Place::FreshFile : Place::Memory;
        }
    }
}

/// A name that no file has yet, so that nothing put aside before is lost.
bool ReportTable::putFileAside() const {
    std::error_code error;
    for (int number = 1;; ++number) {
        auto aside = path_;
        aside += number == 1 ? ".old" : ".old" + std::to_string(number);
        if (std::filesystem::exists(std::filesystem::symlink_status(aside, error))) continue;
        std::filesystem::rename(path_, aside, error);
        return !error;
    }
}

void ReportTable::open() {
    database_ = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection_);
    if (place_ == Place::Memory) {
        database_.setDatabaseName(QStringLiteral(":memory:"));
    } else {
        // A link could lead the pages to another folder's table, and a pipe would never answer.
        const auto status = std::filesystem::symlink_status(path_);
        if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
            throw TableFault(path_, std::string("not a plain file"));
        database_.setDatabaseName(QString::fromStdString(path_.string()));
    }
    if (!database_.open()) throw TableFault(path_, database_.lastError());
    run(QStringLiteral("PRAGMA synchronous=OFF"));
    run(QStringLiteral("PRAGMA journal_mode=MEMORY"));
    makeTable();
    prepare(selectOnce_, selection(drawn_.once, QStringLiteral("LIMIT 1")));
    prepare(selectRows_, selection(drawn_.inRows, QString()));
}

void ReportTable::close() {
    insert_ = QSqlQuery();
    insertedRows_ = 0;
    selectOnce_ = QSqlQuery();
    selectRows_ = QSqlQuery();
    database_.close();
    database_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(connection_);
}

/// Another program's database has other things in it.
void ReportTable::requireOurs() {
    QSqlQuery others(database_);
    check(others.exec(QStringLiteral("SELECT count(*) FROM sqlite_master "
                                     "WHERE type <> 'table' OR name <> '%1'")
                          .arg(kTable)) &&
              others.next(),
          others);
    if (others.value(0).toInt() > 0) throw TableFault(path_, std::string("not of this program"));
}

/// A table of other columns is that of another report.
void ReportTable::makeTable() {
    run(QStringLiteral("BEGIN IMMEDIATE"));
    requireOurs();
    QSqlQuery columns(database_);
    check(
        columns.exec(QStringLiteral("SELECT group_concat(name, ', ') FROM pragma_table_info('%1')")
                         .arg(kTable)) &&
            columns.next(),
        columns);
    const bool isThisReports = columns.value(0).toString() == columns_.join(kComma);
    columns.finish();
    if (!isThisReports) {
        run(QStringLiteral("DROP TABLE IF EXISTS %1").arg(kTable));
        run(QStringLiteral("CREATE TABLE %1 (%2)").arg(kTable, columns_.join(kComma)));
    }
    run(QStringLiteral("COMMIT"));
}

void ReportTable::run(const QString& statement) {
    QSqlQuery query(database_);
    check(query.exec(statement), query);
}

void ReportTable::check(bool done, const QSqlQuery& query) const {
    if (!done) throw TableFault(path_, query.lastError());
}

PageText ReportTable::transact(const ReportRows& rows) {
    run(QStringLiteral("BEGIN IMMEDIATE"));
    try {
        write(rows);
        PageText held = read();
        run(QStringLiteral("COMMIT"));
        return held;
    } catch (...) {
        QSqlQuery(database_).exec(QStringLiteral("ROLLBACK"));
        throw;
    }
}

void ReportTable::prepare(QSqlQuery& query, const QString& statement) {
    query = QSqlQuery(database_);
    query.setForwardOnly(true);
    check(query.prepare(statement), query);
}

QString ReportTable::selection(const std::vector<std::size_t>& columns,
                               const QString& limit) const {
    QStringList names{QStringLiteral("rowid")};
    for (const std::size_t column : columns)
        names << columns_[static_cast<qsizetype>(column)];
    return QStringLiteral("SELECT %1 FROM %2 ORDER BY rowid %3")
        .arg(names.join(kComma), kTable, limit);
}

/// One statement writes a page: binding a value costs more than storing it, so what every row says
/// alike is bound once.
void ReportTable::prepareInsert(std::size_t rows, std::size_t shared) {
    if (rows == insertedRows_ && shared == insertedShared_) return;
    const auto columns = static_cast<std::size_t>(columns_.size());
    const QString row = u'(' + places(columns - shared) + u')';
    const QString values =
        QStringLiteral("VALUES ") + QStringList(static_cast<qsizetype>(rows), row).join(u',');
    const QString source = shared == 0 ? values
                                       : QStringLiteral("SELECT * FROM (SELECT %1) CROSS JOIN (%2)")
                                             .arg(places(shared), values);
    prepare(insert_,
            QStringLiteral("INSERT INTO %1 (%2) %3").arg(kTable, columns_.join(kComma), source));
    insertedRows_ = rows;
    insertedShared_ = shared;
}

void ReportTable::write(const ReportRows& rows) {
    run(QStringLiteral("DELETE FROM %1").arg(kTable));
    if (rows.empty()) return;
    const std::size_t shared = sharedColumns(rows);
    prepareInsert(rows.size(), shared);
    int place = 0;
    for (std::size_t i = 0; i < shared; ++i)
        insert_.bindValue(place++, toQt(rows.front()[i]));
    for (const ReportRow& row : rows)
        for (std::size_t i = shared; i < row.size(); ++i)
            insert_.bindValue(place++, toQt(row[i]));
    check(insert_.exec(), insert_);
}

PageText ReportTable::read() {
    PageText rows;
    readInto(rows, selectRows_, drawn_.inRows);
    readInto(rows, selectOnce_, drawn_.once);
    return rows;
}

void ReportTable::readInto(PageText& rows, QSqlQuery& query,
                           const std::vector<std::size_t>& columns) {
    check(query.exec(), query);
    for (std::size_t row = 0; query.next(); ++row) {
        if (row == rows.size()) rows.emplace_back(static_cast<std::size_t>(columns_.size()));
        for (std::size_t i = 0; i < columns.size(); ++i)
            rows[row][columns[i]] = query.value(static_cast<int>(i) + 1).toString();
    }
    query.finish();
}

}  // namespace winvrx
