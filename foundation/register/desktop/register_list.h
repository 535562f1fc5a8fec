#pragma once

#include "foundation/desk/list_screen.h"

#include <QStringList>
#include <QWidget>

#include <optional>
#include <vector>

class QLabel;
class QPushButton;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace winvrx {

class SearchBox;

/// The left side of a register's window: the records with a search box over them. With nothing to
/// show it says what to do next.
class RegisterList : public QWidget {
    Q_OBJECT

  public:
    /// `screen` is the prefix of the object names: "empresa.list", "empresa.search".
    RegisterList(const QString& screen, const QString& title, const QString& searchHint,
                 const QStringList& headings, QWidget* parent);

    /// What an empty list says, and the button that it offers; an empty `action` offers none.
    void setEmptyTexts(const QString& text, const QString& action);

    void setRows(const std::vector<ListRow>& rows);
    [[nodiscard]] std::size_t count() const;
    [[nodiscard]] bool isUnderstood(std::size_t position) const;
    /// Marks the row without emitting chosen(); nullopt marks none.
    void mark(std::optional<std::size_t> position);
    /// Moves by so many of the rows that the search shows.
    void moveBy(int rows);
    void takeFocus();

  signals:
    /// The operator moved to another row.
    void chosen(std::size_t position);
    /// Enter on a row.
    void entered();
    /// The button of the empty list.
    void firstRequested();

  private:
    void buildTree(const QString& screen, const QString& title, const QStringList& headings);
    void buildEmptyPage(const QString& screen);
    /// Measures the longest text of each column only: measuring every cell of a long list shows.
    void fitColumns();
    void filter();
    void showPage(bool anyVisible);

    SearchBox* search_;
    QStackedWidget* pages_;
    QTreeWidget* tree_;
    QLabel* emptyText_;
    QPushButton* first_;
    QString whenEmpty_;
};

}  // namespace winvrx
