#pragma once

#include "foundation/widgets/desktop/colors.h"
#include "timecard/rotation/cartao_ponto_dados_b.h"

#include <QAbstractTableModel>

#include <optional>
#include <vector>

namespace winvrx {

/// The month of the group being edited: a row for each place of its list, vacant ones too, and for
/// each relief worker; a column for each day; in the last row how many work.
class RotationPlanModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    explicit RotationPlanModel(const CartaoPontoDadosB& command, QObject* parent = nullptr);

    /// Takes the command's plan anew.
    void refresh();
    [[nodiscard]] const RotationView& view() const { return view_; }
    /// What stands in a row, counted from 0; nullopt where it is none.
    [[nodiscard]] std::optional<std::size_t> placeAt(int row) const;
    [[nodiscard]] std::optional<std::size_t> reliefAt(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

  private:
    [[nodiscard]] bool isFoot(int row) const { return row == static_cast<int>(rows_.size()); }
    [[nodiscard]] const RotationView::Row* personAt(int row) const;
    [[nodiscard]] QString letterAt(const QModelIndex& index) const;
    [[nodiscard]] QString wordAt(const QModelIndex& index) const;
    [[nodiscard]] std::optional<look::Tint> tintAt(const QModelIndex& index) const;
    [[nodiscard]] QString nameOfRow(int row) const;
    [[nodiscard]] QVariant dayHeader(const RotationView::Day& day, int role) const;

    const CartaoPontoDadosB& command_;
    RotationView view_;
    std::size_t places_ = 0;
    std::vector<std::optional<std::size_t>> rows_;  ///< in the view; nullopt for a vacant place
};

}  // namespace winvrx
