#pragma once

#include "foundation/widgets/desktop/screen_window.h"
#include "personnel/employer/folha_opcoes.h"

#include <vector>

class QComboBox;

namespace winvrx {

/// How the company's payroll is computed: each setting with its choices and what it changes.
/// `options` outlives it.
class FolhaOpcoesWindow : public ScreenWindow {
    Q_OBJECT

  public:
    FolhaOpcoesWindow(FolhaOpcoes& options, const QString& company, QWidget* parent = nullptr);

  signals:
    void tablesRequested();
    void factsRequested();
    void guideRequested();
    /// One of kAgencyPages.
    void agencyRequested(std::size_t page);

  protected:
    bool mayClose() override;

  private:
    [[nodiscard]] QWidget* buildSettings();
    void buildCommands();
    void showChoices();
    void showState();

    FolhaOpcoes& options_;
    std::vector<QComboBox*> choices_;
};

}  // namespace winvrx
