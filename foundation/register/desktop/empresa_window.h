#pragma once

#include "foundation/register/empresa.h"
#include "foundation/widgets/desktop/register_window.h"

class QRadioButton;

namespace winvrx {

class CompanyForm;

/// The window of the company register. `empresa` outlives it.
class EmpresaWindow : public RegisterWindow {
    Q_OBJECT

  public:
    explicit EmpresaWindow(Empresa& empresa, QWidget* parent = nullptr);

  protected:
    [[nodiscard]] std::vector<RegisterList::Row> rows() const override;
    void showRecord(std::optional<std::size_t> position) override;
    [[nodiscard]] bool isDirty() const override;
    void focusForm() override;
    [[nodiscard]] QString newRecordTitle() const override;
    [[nodiscard]] bool includeTyped() override;
    [[nodiscard]] bool changeTyped(std::size_t position) override;
    [[nodiscard]] bool removeRecord(std::size_t position) override;
    [[nodiscard]] bool mayDiscardTyped() override;

  private:
    [[nodiscard]] QWidget* buildOptions();
    void showCounts();

    Empresa& empresa_;
    CompanyForm* form_;
    QRadioButton* withEmployees_ = nullptr;
};

}  // namespace winvrx
