#pragma once

#include "foundation/widgets/desktop/screen_window.h"

#include <filesystem>
#include <optional>
#include <string>

class QTreeWidget;

namespace winvrx {

class FolhaVisao;

/// The month of everyone: a row an employee, the totals below. `view` outlives the window and is
/// loaded.
class FolhaVisaoWindow : public ScreenWindow {
    Q_OBJECT

  public:
    explicit FolhaVisaoWindow(const FolhaVisao& view, const QStringList& chips,
                              QWidget* parent = nullptr);

    /// The code of the employee on whom the operator closed it with ENTER or a double click.
    [[nodiscard]] const std::optional<std::string>& chosen() const { return chosen_; }

  private:
    [[nodiscard]] QWidget* buildTable();
    void buildCommands();
    void choose();
    using Export = bool (FolhaVisao::*)(const std::filesystem::path& file) const;
    void exportAs(const QString& ending, Export make);

    const FolhaVisao& view_;
    QTreeWidget* people_ = nullptr;
    std::optional<std::string> chosen_;
};

}  // namespace winvrx
