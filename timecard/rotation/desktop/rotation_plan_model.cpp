#include "timecard/rotation/desktop/rotation_plan_model.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QApplication>

namespace winvrx {

namespace {

std::optional<look::Tint> tintOf(const RotationView::Cell& cell) {
    switch (cell.turn) {
        case Turn::Off:
            return look::Tint::RestDay;
        case Turn::Relief:
            return look::Tint::Quiet;
        case Turn::Away:
            return look::Tint::Leave;
        case Turn::Work:
            break;
    }
    return cell.letter.empty() ? std::nullopt : std::optional(look::Tint::Holiday);
}

std::optional<look::Tint> tintOf(const RotationView::Day& day) {
    if (day.holiday) return look::Tint::Holiday;
    return day.sunday ? std::optional(look::Tint::RestDay) : std::nullopt;
}

QString spokenDay(const RotationView::Day& day) {
    return toQt(dateText(day.date)) + QLatin1Char(' ') + toQt(weekdayName(weekdayOf(day.date))) +
           (day.holiday ? QStringLiteral(", feriado") : QString());
}

QFont dayFont(bool bold) {
    QFont font = look::font(look::TextSize::Body);
    font.setBold(bold);
    return font;
}

}  // namespace

RotationPlanModel::RotationPlanModel(const CartaoPontoDadosB& command, QObject* parent)
    : QAbstractTableModel(parent), command_(command) {}

void RotationPlanModel::refresh() {
    beginResetModel();
    view_ = command_.view();
    rows_.clear();
    std::size_t next = 0;
    if (command_.group())
        for (const auto& place : command_.group()->places)
            rows_.push_back(place ? std::optional(next++) : std::nullopt);
    places_ = rows_.size();
    while (next < view_.rows.size())
        rows_.emplace_back(next++);
    endResetModel();
}

std::optional<std::size_t> RotationPlanModel::placeAt(int row) const {
    const auto place = static_cast<std::size_t>(row);
    return row >= 0 && place < places_ ? std::optional(place) : std::nullopt;
}

std::optional<std::size_t> RotationPlanModel::reliefAt(int row) const {
    const auto at = static_cast<std::size_t>(row);
    return row >= 0 && at >= places_ && at < rows_.size() ? std::optional(at - places_)
                                                          : std::nullopt;
}

int RotationPlanModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || rows_.empty() ? 0 : static_cast<int>(rows_.size()) + 1;
}

int RotationPlanModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(view_.days.size());
}

const RotationView::Row* RotationPlanModel::personAt(int row) const {
    const auto at = isFoot(row) ? std::nullopt : rows_.at(static_cast<std::size_t>(row));
    return at ? &view_.rows.at(*at) : nullptr;
}

QString RotationPlanModel::letterAt(const QModelIndex& index) const {
    const auto day = static_cast<std::size_t>(index.column());
    if (isFoot(index.row())) {
        const RotationView::Foot& foot = view_.coverage.at(day);
        return QString::number(foot.working) + (foot.gap ? QStringLiteral("!") : QString());
    }
    const RotationView::Row* person = personAt(index.row());
    return person ? toQt(person->cells.at(day).letter) : QString();
}

QString RotationPlanModel::wordAt(const QModelIndex& index) const {
    const auto day = static_cast<std::size_t>(index.column());
    if (isFoot(index.row())) {
        const RotationView::Foot& foot = view_.coverage.at(day);
        return QStringLiteral("trabalham %1").arg(foot.working) +
               (foot.gap ? QStringLiteral(", ") + toQt(foot.word) : QString());
    }
    const RotationView::Row* person = personAt(index.row());
    return person ? toQt(person->name + ": " + person->cells.at(day).word)
                  : QStringLiteral("lugar vago");
}

std::optional<look::Tint> RotationPlanModel::tintAt(const QModelIndex& index) const {
    const auto day = static_cast<std::size_t>(index.column());
    if (isFoot(index.row()))
        return view_.coverage.at(day).gap ? std::optional(look::Tint::Absence) : std::nullopt;
    const RotationView::Row* person = personAt(index.row());
    return person ? tintOf(person->cells.at(day)) : std::nullopt;
}

QVariant RotationPlanModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const QPalette palette = QApplication::palette();
    const auto tint = tintAt(index);
    const RotationView::Day& day = view_.days.at(static_cast<std::size_t>(index.column()));
    switch (role) {
        case Qt::DisplayRole:
            return letterAt(index);
        case Qt::ToolTipRole:
        case Qt::AccessibleTextRole:
            return spokenDay(day) + QStringLiteral(": ") + wordAt(index);
        case Qt::TextAlignmentRole:
            return Qt::AlignCenter;
        case Qt::FontRole:
            return dayFont(tint.has_value());
        case Qt::ForegroundRole:
            return tint ? QVariant(look::color(*tint, palette)) : QVariant();
        case Qt::BackgroundRole:
            // The days off are what the eye looks for: relief has its letter alone.
            if (tint && tint != look::Tint::Quiet) return look::wash(*tint, palette);
            return tintOf(day) ? QVariant(palette.alternateBase()) : QVariant();
        default:
            return {};
    }
}

QString RotationPlanModel::nameOfRow(int row) const {
    if (isFoot(row)) return QStringLiteral("Trabalham");
    const RotationView::Row* person = personAt(row);
    if (!person) return QStringLiteral("(vago)");
    return (reliefAt(row) ? QStringLiteral("Folguista ") : QString()) + toQt(person->name);
}

QVariant RotationPlanModel::dayHeader(const RotationView::Day& day, int role) const {
    const auto tint = tintOf(day);
    switch (role) {
        case Qt::DisplayRole:
            return QStringLiteral("%1\n%2")
                .arg(dayNumber(day.date), 2, 10, QLatin1Char('0'))
                .arg(day.holiday ? QStringLiteral("fer") : toQt(day.weekday).left(1));
        case Qt::ToolTipRole:
        case Qt::AccessibleTextRole:
            return spokenDay(day);
        case Qt::ForegroundRole:
            return tint ? QVariant(look::color(*tint, QApplication::palette())) : QVariant();
        case Qt::FontRole:
            return look::font(look::TextSize::Hint);
        default:
            return {};
    }
}

QVariant RotationPlanModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal)
        return dayHeader(view_.days.at(static_cast<std::size_t>(section)), role);
    switch (role) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole:
            return nameOfRow(section);
        case Qt::TextAlignmentRole:
            return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
        default:
            return {};
    }
}

}  // namespace winvrx
