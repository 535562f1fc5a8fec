#pragma once

#include "timecard/card/cartao_ponto_dados.h"

#include <QAbstractTableModel>
#include <QItemSelectionRange>

#include <optional>

namespace winvrx {

/// A half-month of the card as a table: day, six times, the short field, situation, total and its
/// difference from the schedule.
class PunchModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Column { Day, FirstCell, ShortField = 7, Situation, Total, Difference, Columns };

    PunchModel(CartaoPontoDados& command, HalfMonth half, QObject* parent);

    /// The card or its month changed altogether.
    void refresh();
    [[nodiscard]] HalfMonth half() const { return half_; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    /// Why the text of the cell cannot be recorded; empty when it can.
    [[nodiscard]] QString findingAt(const QModelIndex& index) const;
    /// What is wrong with the cell; empty when nothing is.
    [[nodiscard]] QString noticeAt(const QModelIndex& index) const;
    /// Why the day's times are doubtful; empty when they are not.
    [[nodiscard]] QString doubtAt(const QModelIndex& index) const;
    /// Which leave the day of the row is in, or why it lies outside the contract.
    [[nodiscard]] QString standingAt(const QModelIndex& index) const;

    /// The cell that takes text in this column; nullopt for the day and its total.
    [[nodiscard]] static std::optional<PunchCell> cellOf(int column);
    [[nodiscard]] int dayOf(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOfDay(int day) const;
    /// The first cell from here on, row after row, where typing from paper stops; invalid when
    /// there is none left.
    [[nodiscard]] QModelIndex nextTime(int row, int column) const;
    /// Where a time goes that is typed beside the time cells of the row: the first one still to be
    /// filled, or else the first.
    [[nodiscard]] QModelIndex openTime(int row) const;
    /// "Entrada manhã, dia 05/ter/mar"
    [[nodiscard]] QString editorNameOf(const QModelIndex& index) const;
    /// The cells that take text in the block, as spreadsheets take them.
    [[nodiscard]] QString blockText(const QItemSelectionRange& block) const;
    /// Empties the cells that take text, as one edit.
    void clear(const QItemSelectionRange& block);

  signals:
    void edited();

  private:
    [[nodiscard]] QString textOf(const QModelIndex& index) const;
    [[nodiscard]] QString spokenNameOf(const QModelIndex& index) const;
    [[nodiscard]] QString shownText(const QModelIndex& index) const;
    [[nodiscard]] QString toolTipOf(const QModelIndex& index) const;
    [[nodiscard]] bool expects(const QModelIndex& index) const;
    [[nodiscard]] QVariant foregroundOf(const QModelIndex& index) const;
    [[nodiscard]] QVariant backgroundOf(const QModelIndex& index) const;

    CartaoPontoDados& command_;
    HalfMonth half_;
    DayRange days_;
};

}  // namespace winvrx
