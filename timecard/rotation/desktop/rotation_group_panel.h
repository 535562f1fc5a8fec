#pragma once

#include "timecard/rotation/cartao_ponto_dados_b.h"

#include <QWidget>

#include <array>
#include <optional>
#include <vector>

class QComboBox;
class QHBoxLayout;
class QLabel;
class QPlainTextEdit;
class QTableView;

namespace winvrx {

class RotationPlanModel;

/// The group being edited: its plan, whose rows are the ordered list and the relief workers, the
/// first days off, and what is to be said of it. Rows are moved by dragging their names, by the
/// commands and by Ctrl with the arrow keys. Every change shows at once.
class RotationGroupPanel : public QWidget {
    Q_OBJECT

  public:
    explicit RotationGroupPanel(CartaoPontoDadosB& command, QWidget* parent = nullptr);

    /// Shows the command's group.
    void refresh();

  signals:
    /// "Adicionar =>": whoever listens knows who is to be added.
    void addRequested();
    void addReliefRequested();
    /// The operator changed the group; the command holds it already.
    void edited();

  private:
    [[nodiscard]] QComboBox* buildDays(const QString& objectName, const QString& spoken);
    [[nodiscard]] QHBoxLayout* buildList();
    [[nodiscard]] QWidget* buildRelief();
    void buildGrid();
    void buildGridKeys();
    void buildRemarks();
    /// No higher than its rows.
    void fitGrid();
    void showDays();
    void showRelief();
    void showHint();
    void showRemarks();
    void move(int from, int to);
    void moveSelected(int by);
    void removeSelected();
    void select(int row);

    CartaoPontoDadosB& command_;
    QLabel* title_;
    QLabel* heading_;
    QLabel* hint_;
    std::vector<QWidget*> commands_;  ///< that need a group
    QComboBox* firstDay_ = nullptr;
    QWidget* relief_ = nullptr;
    std::array<QLabel*, kMostReliefWorkers> reliefNames_{};
    std::array<QComboBox*, kMostReliefWorkers> reliefDays_{};
    RotationPlanModel* plan_;
    QTableView* grid_;
    QLabel* gaps_;
    QPlainTextEdit* remarks_ = nullptr;
};

}  // namespace winvrx
