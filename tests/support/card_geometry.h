#pragma once

#include "output/stocks/card_stock.h"

#include <QFile>
#include <QHash>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <stdexcept>
#include <vector>

// The boxes of the pre-printed cards, from the table that docs/layout-files.md explains.

namespace winvrx::testing {

class CardGeometry {
  public:
    explicit CardGeometry(QHash<QString, QString> row) : row_(std::move(row)) {}

    [[nodiscard]] QString stem() const { return row_.value(QStringLiteral("stem")); }
    [[nodiscard]] bool hasTwoFaces() const { return form() == QStringLiteral("faces"); }
    [[nodiscard]] double pitch() const { return number("pitch"); }

    /// The card on the sheet, millimetres.
    [[nodiscard]] QRectF area(TrayPosition tray) const {
        constexpr double kPaperWidth = 210;
        const double width = number("width");
        return {tray == TrayPosition::Central ? (kPaperWidth - width) / 2 : 0, 0, width,
                number("height")};
    }

    /// The names of the grid's columns, from the left.
    [[nodiscard]] QStringList columns() const {
        QStringList present;
        for (const QString& column : allColumns())
            if (widthOf(column) > 0) present << column;
        return present;
    }

    /// The page of a card on which the day stands.
    [[nodiscard]] int pageOf(int day) const { return hasTwoFaces() && day > kFirstHalf ? 2 : 1; }

    /// The box of a column in the row of `day`, millimetres on the sheet.
    [[nodiscard]] QRectF box(const QString& column, int day, TrayPosition tray) const {
        double x = area(tray).left() + number("left");
        for (const QString& before : allColumns()) {
            if (before == column) break;
            x += widthOf(before);
        }
        const bool inSecond = form() != QStringLiteral("month") && day > kFirstHalf;
        const int row = inSecond ? day - kFirstHalf - 1 : day - 1;
        double y = number("first") + row * pitch();
        if (inSecond && form() == QStringLiteral("beside")) x += number("second");
        if (inSecond && form() == QStringLiteral("below")) y += number("second");
        return {x, y, widthOf(column), pitch()};
    }

  private:
    static constexpr int kFirstHalf = 15;

    static const QStringList& allColumns() {
        static const QStringList columns = QStringLiteral(
                                               "dia semana ent1 sai1 ent2 sai2 ent3 "
                                               "sai3 horas")
                                               .split(u' ');
        return columns;
    }

    [[nodiscard]] QString form() const { return row_.value(QStringLiteral("form")); }
    [[nodiscard]] double number(const char* column) const {
        return row_.value(QLatin1String(column)).toDouble();
    }
    [[nodiscard]] double widthOf(const QString& column) const {
        if (column == QStringLiteral("dia")) return number("day");
        if (column == QStringLiteral("semana")) return number("weekday");
        return number(column == QStringLiteral("horas") ? "hours" : "time");
    }

    QHash<QString, QString> row_;
};

/// Every row of the table.
inline std::vector<CardGeometry> cardGeometries() {
    QFile file(QStringLiteral(WINVRX_SOURCES "/layouts/cards.csv"));
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("no table of cards");
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    const QStringList names = lines.first().split(u',');
    std::vector<CardGeometry> cards;
    for (const QString& line : lines.sliced(1)) {
        const QStringList values = line.split(u',');
        QHash<QString, QString> row;
        for (qsizetype at = 0; at < names.size(); ++at)
            row.insert(names[at], values.at(at));
        cards.emplace_back(std::move(row));
    }
    return cards;
}

}  // namespace winvrx::testing
