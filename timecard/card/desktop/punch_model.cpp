#include "timecard/card/desktop/punch_model.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/elided_label.h"
#include "foundation/widgets/desktop/look.h"
#include "timecard/card/cell_block.h"
#include "timecard/card/typing_order.h"

#include <QApplication>

#include <array>
#include <optional>

namespace winvrx {

namespace {

constexpr std::array<const char*, PunchModel::Columns> kHeadings = {
    "Dia",          "Manhã\nEntrada", "Manhã\nSaída", "Tarde\nEntrada",
    "Tarde\nSaída", "Extra\nEntrada", "Extra\nSaída", "Obs.",
    "Situação",     "Total",          "Dif."};

/// In the order of DayKind.
constexpr std::array<std::optional<look::Tint>, 7> kTints = {
    std::nullopt,        look::Tint::Holiday, look::Tint::RestDay, look::Tint::Leave,
    look::Tint::Absence, look::Tint::Leave,   std::nullopt};

std::optional<look::Tint> tintOf(DayKind kind) {
    return kTints.at(static_cast<std::size_t>(kind));
}

QString shortText(const QString& text) {
    return toQt(shortened(toUtf8(text)));
}

/// The word that stands for a day's colour where its situation is not written.
QString calendarWord(DayKind kind) {
    if (kind == DayKind::Holiday) return QStringLiteral("(feriado)");
    return kind == DayKind::WeeklyRest ? QStringLiteral("(descanso)") : QString();
}

}  // namespace

PunchModel::PunchModel(CartaoPontoDados& command, HalfMonth half, QObject* parent)
    : QAbstractTableModel(parent), command_(command), half_(half) {
    days_ = daysOf(half_, command_.settings().month);
}

void PunchModel::refresh() {
    beginResetModel();
    days_ = daysOf(half_, command_.settings().month);
    endResetModel();
}

int PunchModel::rowCount(const QModelIndex& parent) const {
    const int days = static_cast<int>(command_.sheet().lines().size());
    return parent.isValid() ? 0 : std::max(0, std::min(days_.last, days) - days_.first + 1);
}

int PunchModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Columns;
}

std::optional<PunchCell> PunchModel::cellOf(int column) {
    if (column < FirstCell || column > Situation) return std::nullopt;
    return kPunchCells[static_cast<std::size_t>(column - FirstCell)];
}

QModelIndex PunchModel::indexOfDay(int day) const {
    return index(day - days_.first, FirstCell);
}

int PunchModel::dayOf(const QModelIndex& index) const {
    return days_.first + index.row();
}

bool PunchModel::expects(const QModelIndex& index) const {
    const auto cell = cellOf(index.column());
    return cell && expectsTimes(command_, dayOf(index), *cell);
}

QModelIndex PunchModel::nextTime(int row, int column) const {
    for (; row < rowCount(); ++row, column = FirstCell)
        for (; column < ShortField; ++column)
            if (expects(index(row, column))) return index(row, column);
    return {};
}

QModelIndex PunchModel::openTime(int row) const {
    for (int column = FirstCell; column < ShortField; ++column)
        if (const QModelIndex at = index(row, column); expects(at) && textOf(at).isEmpty())
            return at;
    return index(row, FirstCell);
}

QString PunchModel::textOf(const QModelIndex& index) const {
    const int day = dayOf(index);
    if (index.column() == Day) return toQt(command_.sheet().line(day).label);
    if (index.column() == Total) return toQt(command_.days().totalOf(day));
    if (index.column() == Difference) return toQt(command_.days().differenceOf(day));
    return toQt(command_.sheet().text(day, *cellOf(index.column())));
}

QString PunchModel::findingAt(const QModelIndex& index) const {
    const auto cell = index.isValid() ? cellOf(index.column()) : std::nullopt;
    return cell ? toQt(command_.sheet().findingAt(dayOf(index), *cell)) : QString();
}

QString PunchModel::noticeAt(const QModelIndex& index) const {
    const auto cell = index.isValid() ? cellOf(index.column()) : std::nullopt;
    return cell ? toQt(command_.sheet().noticeAt(dayOf(index), *cell)) : QString();
}

QString PunchModel::doubtAt(const QModelIndex& index) const {
    return index.isValid() ? toQt(command_.days().doubtAt(dayOf(index))) : QString();
}

QString PunchModel::standingAt(const QModelIndex& index) const {
    return index.isValid() ? toQt(command_.days().standingText(dayOf(index))) : QString();
}

QString PunchModel::spokenNameOf(const QModelIndex& index) const {
    QString heading = QString::fromUtf8(kHeadings[static_cast<std::size_t>(index.column())]);
    return toQt(command_.sheet().line(dayOf(index)).label) + QLatin1Char(' ') +
           heading.replace(QLatin1Char('\n'), QLatin1Char(' ')) + QStringLiteral(": ") +
           shortText(textOf(index));
}

QString PunchModel::editorNameOf(const QModelIndex& index) const {
    const QStringList heading =
        QString::fromUtf8(kHeadings[static_cast<std::size_t>(index.column())])
            .split(QLatin1Char('\n'));
    const QString cell = heading.size() == 1
                             ? heading.front()
                             : heading.back() + QLatin1Char(' ') + heading.front().toLower();
    return cell + QStringLiteral(", dia ") + toQt(command_.sheet().line(dayOf(index)).label);
}

QString PunchModel::toolTipOf(const QModelIndex& index) const {
    QString said = noticeAt(index).isEmpty() ? doubtAt(index) : noticeAt(index);
    if (said.isEmpty()) said = standingAt(index);
    const QString text = textOf(index);
    const bool cut = shortText(text) != text;
    return tipOf(cut ? said + QLatin1Char('\n') + text : said);
}

QString PunchModel::shownText(const QModelIndex& index) const {
    const QString text = shortText(textOf(index));
    if (index.column() == Day)
        return doubtAt(index).isEmpty() ? text : QString(QStringLiteral("⚠") + text);
    if (!noticeAt(index).isEmpty()) return QString(QStringLiteral("⚠ ") + text);
    if (index.column() != Situation) return text;
    const DayKind kind = command_.days().kindOf(dayOf(index));
    // Nothing is owed there, whatever rest the fill had marked.
    if (kind == DayKind::OutsideContract && doubtAt(index).isEmpty()) return {};
    if (const std::string leave = command_.days().leaveWord(dayOf(index)); !leave.empty())
        return text + QStringLiteral(" · ") + toQt(leave);
    return text.isEmpty() ? calendarWord(kind) : text;
}

QVariant PunchModel::foregroundOf(const QModelIndex& index) const {
    const QPalette palette = QApplication::palette();
    const bool isTimeOrDay = index.column() < Situation;
    if (!noticeAt(index).isEmpty() || (isTimeOrDay && !doubtAt(index).isEmpty()))
        return look::color(look::Tint::Warning, palette);
    const auto tint = tintOf(command_.days().kindOf(dayOf(index)));
    if (tint && (index.column() == Day || index.column() == Situation))
        return look::color(*tint, palette);
    return {};
}

QVariant PunchModel::backgroundOf(const QModelIndex& index) const {
    const QPalette palette = QApplication::palette();
    if (!doubtAt(index).isEmpty()) return look::wash(look::Tint::Warning, palette);
    const auto tint = tintOf(command_.days().kindOf(dayOf(index)));
    return tint ? QVariant(look::wash(*tint, palette)) : QVariant();
}

QVariant PunchModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    switch (role) {
        case Qt::DisplayRole:
            return shownText(index);
        case Qt::EditRole:
            return textOf(index);
        case Qt::ToolTipRole:
            return toolTipOf(index);
        case Qt::AccessibleTextRole:
            return spokenNameOf(index);
        case Qt::AccessibleDescriptionRole:
            return doubtAt(index).isEmpty() ? standingAt(index) : doubtAt(index);
        case Qt::FontRole:
            return index.column() == Situation ? look::font(look::TextSize::Hint)
                                               : look::fixedFont();
        case Qt::TextAlignmentRole:
            return index.column() == Situation || index.column() == Day
                       ? QVariant(Qt::AlignVCenter | Qt::AlignLeft)
                       : QVariant(Qt::AlignCenter);
        case Qt::ForegroundRole:
            return foregroundOf(index);
        case Qt::BackgroundRole:
            return backgroundOf(index);
        default:
            return {};
    }
}

QVariant PunchModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return QString::fromUtf8(kHeadings[static_cast<std::size_t>(section)]);
}

Qt::ItemFlags PunchModel::flags(const QModelIndex& index) const {
    const auto flags = QAbstractTableModel::flags(index);
    const bool open = command_.selected() && !command_.closed();
    return open && cellOf(index.column()) ? flags | Qt::ItemIsEditable : flags;
}

bool PunchModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const auto cell = index.isValid() ? cellOf(index.column()) : std::nullopt;
    if (role != Qt::EditRole || !cell || !(flags(index) & Qt::ItemIsEditable)) return false;
    command_.sheet().type(dayOf(index), *cell, toUtf8(value.toString()));
    emit dataChanged(this->index(index.row(), Day), this->index(index.row(), Difference));
    emit edited();
    return true;
}

QString PunchModel::blockText(const QItemSelectionRange& block) const {
    CellBlock cells;
    for (int row = block.top(); row <= block.bottom(); ++row) {
        auto& texts = cells.emplace_back();
        for (int column = block.left(); column <= block.right(); ++column)
            if (cellOf(column)) texts.push_back(toUtf8(textOf(index(row, column))));
    }
    return toQt(winvrx::textOf(cells));
}

void PunchModel::clear(const QItemSelectionRange& block) {
    std::vector<TypedCell> cells;
    for (int row = block.top(); row <= block.bottom(); ++row)
        for (int column = block.left(); column <= block.right(); ++column)
            if (const auto cell = cellOf(column))
                cells.push_back({days_.first + row, *cell, std::string()});
    command_.sheet().type(cells);
    emit dataChanged(index(block.top(), Day), index(block.bottom(), Difference));
    emit edited();
}

}  // namespace winvrx
