#pragma once

#include "report/desktop/card_text.h"
#include "report/desktop/layout.h"

#include <QSqlDatabase>
#include <QSqlQuery>

#include <filesystem>

namespace winvrx {

/// The table `Tabela_base` of the report database: it holds the card in hand, and after a run the
/// last one. It is scratch data, so speed goes before safety; a damaged file is put aside under
/// the name "qdb.mdb.old" and made anew.
///
/// All functions throw Fault, naming the file.
class CardTable {
  public:
    /// `drawn` says which columns are read back.
    CardTable(std::filesystem::path database, DrawnColumns drawn);
    ~CardTable();
    CardTable(const CardTable&) = delete;
    CardTable& operator=(const CardTable&) = delete;

    /// Makes `rows` the table's content and gives back what the table holds then, in the drawn
    /// columns. No other program on a shared folder can come between the two.
    [[nodiscard]] CardText exchange(const std::vector<CardRow>& rows);

  private:
    void openOrReplace();
    void open();
    void close();
    void makeTable();
    void run(const QString& statement);
    void check(bool done, const QSqlQuery& query) const;
    void prepare(QSqlQuery& query, const QString& statement);
    void prepareInsert(std::size_t rows, std::size_t shared);
    void write(const std::vector<CardRow>& rows);
    [[nodiscard]] CardText read();
    void readInto(CardText& rows, QSqlQuery& query, const std::vector<std::size_t>& columns);

    std::filesystem::path path_;
    DrawnColumns drawn_;
    QString connection_;
    QSqlDatabase database_;
    QSqlQuery insert_;
    std::size_t insertedRows_ = 0;
    std::size_t insertedShared_ = 0;
    QSqlQuery selectOnce_;
    QSqlQuery selectRows_;
};

}  // namespace winvrx
