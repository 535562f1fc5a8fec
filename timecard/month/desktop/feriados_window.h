#pragma once

#include "foundation/widgets/desktop/record_form.h"
#include "foundation/widgets/desktop/register_window.h"
#include "timecard/month/feriados.h"

namespace winvrx {

/// The window of the town's and the state's holidays. `holidays` outlives it.
class FeriadosWindow : public RegisterWindow {
    Q_OBJECT

  public:
    explicit FeriadosWindow(Feriados& holidays, QWidget* parent = nullptr);

  protected:
    [[nodiscard]] std::vector<RegisterList::Row> rows() const override;
    void showRecord(std::optional<std::size_t> position) override;
    [[nodiscard]] bool isDirty() const override { return typed() != shown_; }
    void focusForm() override;
    [[nodiscard]] QString newRecordTitle() const override;
    [[nodiscard]] bool includeTyped() override;
    [[nodiscard]] bool changeTyped(std::size_t position) override;
    [[nodiscard]] bool removeRecord(std::size_t position) override;
    [[nodiscard]] bool mayDiscardTyped() override;

  private:
    [[nodiscard]] QWidget* buildForm();
    [[nodiscard]] TypedHoliday typed() const;

    Feriados& holidays_;
    RecordForm<TypedHoliday> form_;
    TypedHoliday shown_;
    TextField* day_ = nullptr;
};

}  // namespace winvrx
