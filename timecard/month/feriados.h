#pragma once

#include "foundation/desk/list_commands.h"
#include "timecard/month/local_holidays.h"

namespace winvrx {

/// The list of the town's and the state's holidays. Recorded months do not change with it.
class Feriados : public ListCommands<LocalHoliday> {
  public:
    explicit Feriados(const Workplace& at) : ListCommands(at) {}

    [[nodiscard]] std::string newRecordTitle() const override { return "Novo feriado"; }
    [[nodiscard]] Findings<LocalHoliday> wrongIn(const LocalHoliday& typed,
                                                 const LocalHoliday& before) const override;

  protected:
    [[nodiscard]] Lines read() const override { return localHolidays(at_.store()).load(); }
    void write(const Lines& lines) override { localHolidays(at_.store()).save(lines); }
    [[nodiscard]] ListRow rowOf(const LocalHoliday& holiday) const override;
    [[nodiscard]] LocalHoliday completed(const LocalHoliday& typed) const override;
    [[nodiscard]] bool requireAcceptable(const LocalHoliday& typed, const Line* before) override;
};

}  // namespace winvrx
