#include "output/desktop/card_table.h"

#include "foundation/desktop/qt_text.h"
#include "foundation/faults.h"

#include <QSqlError>
#include <QUuid>
#include <QVariant>

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

QString columnList() {
    QStringList names;
    for (const std::string_view column : kCardColumns)
        names << toQt(column);
    return names.join(QStringLiteral(", "));
}

}  // namespace

CardTable::CardTable(std::filesystem::path database)
    : path_(std::move(database)),
      connection_(QStringLiteral("cards-") + QUuid::createUuid().toString(QUuid::WithoutBraces)) {
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
    const QString places = QStringList(kCardColumns.size(), QStringLiteral("?")).join(u',');
    insert_ = QSqlQuery(database_);
    check(insert_.prepare(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                              .arg(toQt(kCardTable), columnList(), places)),
          insert_);
    select_ = QSqlQuery(database_);
    select_.setForwardOnly(true);
    check(
        select_.prepare(
            QStringLiteral("SELECT %1 FROM %2 ORDER BY rowid").arg(columnList(), toQt(kCardTable))),
        select_);
}

void CardTable::close() {
    insert_ = QSqlQuery();
    select_ = QSqlQuery();
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
    if (columns.value(0).toString() != columnList()) {
        run(QStringLiteral("DROP TABLE IF EXISTS %1").arg(toQt(kCardTable)));
        run(QStringLiteral("CREATE TABLE %1 (%2)").arg(toQt(kCardTable), columnList()));
    }
    columns.finish();
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

void CardTable::write(const std::vector<CardRow>& rows) {
    run(QStringLiteral("DELETE FROM %1").arg(toQt(kCardTable)));
    for (const CardRow& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i)
            insert_.bindValue(static_cast<int>(i), toQt(row[i]));
        check(insert_.exec(), insert_);
    }
}

CardText CardTable::read() {
    check(select_.exec(), select_);
    CardText rows;
    while (select_.next()) {
        CardTextRow& row = rows.emplace_back();
        for (std::size_t i = 0; i < row.size(); ++i)
            row[i] = select_.value(static_cast<int>(i)).toString();
    }
    select_.finish();
    return rows;
}

}  // namespace winvrx
