#pragma once

#include "foundation/desk/command.h"
#include "timecard/rotation/work_table.h"

#include <optional>
#include <string>
#include <string_view>

namespace winvrx {

/// The work-time table of a shift and scale while it is typed; nothing is written before it is
/// saved.
class WorkTableEdit {
  public:
    /// Begins with the standard table of the "Normal" scale.
    WorkTableEdit(const Workplace& at, ShiftFilter shift);

    /// Of all shifts ("TODOS") the table of the first that the scale allows, as it is on record;
    /// without a company the standard one. Throws FileFault.
    void show(const std::optional<CompanyCode>& company, ShiftFilter shift, Scale scale);

    [[nodiscard]] const WorkTable& table() const { return table_; }
    void typeTime(std::size_t row, std::size_t cell, std::string_view text);
    /// Why the table cannot be recorded; empty when it can.
    [[nodiscard]] std::string finding() const { return findingIn(table_).value_or(""); }
    [[nodiscard]] std::string weeklyCaption() const;  ///< "44,0 HORAS SEMANAIS"
    [[nodiscard]] bool changed() const { return table_ != recorded_; }
    void restore() { table_ = standardTable(table_.shift, table_.scale); }  ///< "Restaurar Padrão"
    /// "Gravar Horário de Trabalho".
    [[nodiscard]] bool save();

  private:
    Workplace at_;
    std::optional<CompanyCode> company_;
    ShiftFilter filter_;
    WorkTable table_;
    WorkTable recorded_;
};

}  // namespace winvrx
