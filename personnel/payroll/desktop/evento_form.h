#pragma once

#include "foundation/widgets/desktop/record_editor.h"
#include "personnel/payroll/payroll_event.h"

#include <array>
#include <utility>

class QCheckBox;
class QVBoxLayout;

namespace winvrx {

class Eventos;
class WrappedCheckBox;

/// An event of the catalogue: its name, whether it is a credit or a debit, its reference number
/// and, of a new one, in which payrolls it stands.
class EventoForm : public RecordEditor {
    Q_OBJECT

  public:
    /// `events` outlives the form.
    EventoForm(Eventos& events, QWidget* window);

    void show(std::optional<std::size_t> position) override;
    [[nodiscard]] bool save(std::optional<std::size_t> position) override;
    [[nodiscard]] bool isDirty() const override;

  private:
    void addPayrolls(QVBoxLayout& column);
    void showKind();
    [[nodiscard]] NewEvent typedNew() const;

    Eventos& events_;
    Field* name_ = nullptr;
    Field* reference_ = nullptr;
    QCheckBox* kind_ = nullptr;
    std::array<std::pair<PayrollKind, WrappedCheckBox*>, 3> payrolls_{};
    PayrollEvent shown_;
};

}  // namespace winvrx
