#include "report/desktop/card_table.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/faults.h"

#include <QSqlError>
#include <QUuid>
#include <QVariant>

#include <algorithm>

namespace winvrx {

namespace {

class TableFault : public Fault {
  public:
    TableFault(const std::filesystem::path& file, const QSqlError& error)
        : Fault(file.string() + ": " + error.text().toStdString(),
                "O arquivo " + file.filename().string() + " não pôde ser usado."),
          damaged_(isDamage(error.nativeErrorCode())) {}

    [[nodiscard]] bool damaged() const { return damaged_; }

  private:
    /// SQLITE_CORRUPT and SQLITE_NOTADB.
    static bool isDamage(const QString& code) {
        return code == QStringLiteral("11") || code == QStringLiteral("26");
    }

    bool damaged_;
};

/// A link could lead the cards to another folder's table, and a pipe would never answer.
void requirePlainFile(const std::filesystem::path& file) {
    const auto type = std::filesystem::symlink_status(file).type();
    if (type != std::filesystem::file_type::not_found &&
        type != std::filesystem::file_type::regular)
        throw Fault(file.string() + ": not a plain file",
                    "O arquivo " + file.filename().string() + " não pôde ser usado.");
}

QString places(std::size_t count) {
    return QStringList(static_cast<qsizetype>(count), QStringLiteral("?")).join(u',');
}

QString columnList() {
    QStringList names;
    for (const std::string_view column : kCardColumns)
        names << toQt(column);
    return names.join(QStringLiteral(", "));
}

QString selection(const std::vector<std::size_t>& columns, const QString& limit) {
    QStringList names{QStringLiteral("rowid")};
    for (const std::size_t column : columns)
        names << toQt(kCardColumns[column]);
    return QStringLiteral("SELECT %1 FROM %2 ORDER BY rowid %3")
        .arg(names.join(QStringLiteral(", ")), toQt(kCardTable), limit);
}

/// How many leading columns say the same in every row: those of the header block, or none.
std::size_t sharedColumns(const std::vector<CardRow>& rows) {
    const auto headerEnd = std::ranges::find(kCardColumns, std::string_view("linha"));
    const auto count = headerEnd - kCardColumns.begin();
    const auto sameHeader = [&](const CardRow& row) {
        return std::equal(row.begin(), row.begin() + count, rows.front().begin());
    };
    return std::ranges::all_of(rows, sameHeader) ? static_cast<std::size_t>(count) : 0;
}

}  // namespace

CardTable::CardTable(std::filesystem::path database, DrawnColumns drawn)
    : path_(std::move(database)),
      drawn_(std::move(drawn)),
      connection_(QStringLiteral("cards-") + QUuid::createUuid().toString(QUuid::WithoutBraces)) {
    requirePlainFile(path_);
    try {
        openOrReplace();
    } catch (...) {
        close();
        throw;
    }
}

CardTable::~CardTable() {
    close();
}

void CardTable::openOrReplace() {
    try {
        open();
    } catch (const TableFault& fault) {
        if (!fault.damaged()) throw;
        close();
        auto old = path_;
        std::filesystem::rename(path_, old += ".old");
        open();
    }
}

void CardTable::open() {
    database_ = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection_);
    database_.setDatabaseName(QString::fromStdString(path_.string()));
    if (!database_.open()) throw TableFault(path_, database_.lastError());
    run(QStringLiteral("PRAGMA synchronous=OFF"));
    run(QStringLiteral("PRAGMA journal_mode=MEMORY"));
    makeTable();
    prepare(selectOnce_, selection(drawn_.once, QStringLiteral("LIMIT 1")));
    prepare(selectRows_, selection(drawn_.inRows, QString()));
}

void CardTable::close() {
    insert_ = QSqlQuery();
    selectOnce_ = QSqlQuery();
    selectRows_ = QSqlQuery();
    database_.close();
    database_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(connection_);
}

/// A table of other columns is from another version of the program.
void CardTable::makeTable() {
    run(QStringLiteral("BEGIN IMMEDIATE"));
    QSqlQuery columns(database_);
    check(
        columns.exec(QStringLiteral("SELECT group_concat(name, ', ') FROM pragma_table_info('%1')")
                         .arg(toQt(kCardTable))) &&
            columns.next(),
        columns);
    const bool isOurs = columns.value(0).toString() == columnList();
    columns.finish();
    if (!isOurs) {
        run(QStringLiteral("DROP TABLE IF EXISTS %1").arg(toQt(kCardTable)));
        run(QStringLiteral("CREATE TABLE %1 (%2)").arg(toQt(kCardTable), columnList()));
    }
    run(QStringLiteral("COMMIT"));
}

void CardTable::run(const QString& statement) {
    QSqlQuery query(database_);
    check(query.exec(statement), query);
}

void CardTable::check(bool done, const QSqlQuery& query) const {
    if (!done) throw TableFault(path_, query.lastError());
}

CardText CardTable::exchange(const std::vector<CardRow>& rows) {
    run(QStringLiteral("BEGIN IMMEDIATE"));
    try {
        write(rows);
        CardText held = read();
        run(QStringLiteral("COMMIT"));
        return held;
    } catch (...) {
        QSqlQuery(database_).exec(QStringLiteral("ROLLBACK"));
        throw;
    }
}

void CardTable::prepare(QSqlQuery& query, const QString& statement) {
    query = QSqlQuery(database_);
    query.setForwardOnly(true);
    check(query.prepare(statement), query);
}

/// One statement writes a card: binding a value costs more than storing it, so the header values
/// are bound once for all rows.
void CardTable::prepareInsert(std::size_t rows, std::size_t shared) {
    if (rows == insertedRows_ && shared == insertedShared_) return;
    const QString row = u'(' + places(kCardColumns.size() - shared) + u')';
    const QString values =
        QStringLiteral("VALUES ") + QStringList(static_cast<qsizetype>(rows), row).join(u',');
    const QString source = shared == 0 ? values
                                       : QStringLiteral("SELECT * FROM (SELECT %1) CROSS JOIN (%2)")
                                             .arg(places(shared), values);
    prepare(insert_,
            QStringLiteral("INSERT INTO %1 (%2) %3").arg(toQt(kCardTable), columnList(), source));
    insertedRows_ = rows;
    insertedShared_ = shared;
}

void CardTable::write(const std::vector<CardRow>& rows) {
    run(QStringLiteral("DELETE FROM %1").arg(toQt(kCardTable)));
    if (rows.empty()) return;
    const std::size_t shared = sharedColumns(rows);
    prepareInsert(rows.size(), shared);
    int place = 0;
    for (std::size_t i = 0; i < shared; ++i)
        insert_.bindValue(place++, toQt(rows.front()[i]));
    for (const CardRow& row : rows)
        for (std::size_t i = shared; i < row.size(); ++i)
            insert_.bindValue(place++, toQt(row[i]));
    check(insert_.exec(), insert_);
}

CardText CardTable::read() {
    CardText rows;
    readInto(rows, selectRows_, drawn_.inRows);
    readInto(rows, selectOnce_, drawn_.once);
    return rows;
}

void CardTable::readInto(CardText& rows, QSqlQuery& query,
                         const std::vector<std::size_t>& columns) {
    check(query.exec(), query);
    for (std::size_t row = 0; query.next(); ++row) {
        if (row == rows.size()) rows.emplace_back();
        for (std::size_t i = 0; i < columns.size(); ++i)
            rows[row][columns[i]] = query.value(static_cast<int>(i) + 1).toString();
    }
    query.finish();
}

}  // namespace winvrx
