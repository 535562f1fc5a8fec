#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "personnel/employer/tabelas_legais.h"

#include <vector>

class QGridLayout;
class QLabel;
class QListWidget;
class QTreeWidget;

namespace winvrx {

class Field;

/// The law's figures: kinds at the left, the lines of the one chosen at the right, and a line to be
/// typed below them. `tables` is read, and outlives it.
class TabelasLegaisWindow : public ScreenWindow {
    Q_OBJECT

  public:
    explicit TabelasLegaisWindow(TabelasLegais& tables, QWidget* parent = nullptr);

  protected:
    bool mayClose() override;

  private:
    [[nodiscard]] QWidget* buildKinds(QWidget* parent);
    [[nodiscard]] QWidget* buildLines(QWidget* parent);
    void buildCommands();

    [[nodiscard]] std::size_t kind() const;
    void chooseKind(int row);
    void showLines(std::optional<std::size_t> marked);
    void buildFields();
    void showCells(const std::vector<std::string>& cells);
    [[nodiscard]] std::vector<std::string> typed() const;
    [[nodiscard]] bool isDirty() const;
    /// Asks before a typed line is left behind.
    [[nodiscard]] bool confirmDiscard();
    void chooseLine();
    void startNew();
    void save();
    void removeLine();
    void showWarnings();

    TabelasLegais& tables_;
    QListWidget* kinds_ = nullptr;
    QLabel* validity_ = nullptr;
    QTreeWidget* lines_ = nullptr;
    QWidget* form_ = nullptr;
    QGridLayout* cells_ = nullptr;
    QLabel* warnings_ = nullptr;
    std::vector<Field*> fields_;
    int shownKind_ = 0;
};

}  // namespace winvrx
