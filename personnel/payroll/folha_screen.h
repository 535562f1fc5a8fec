#pragma once

#include "foundation/register/company.h"
#include "foundation/register/employee_queries.h"
#include "personnel/payroll/folha.h"
#include "personnel/payroll/sheet_dues.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace winvrx {

/// The payroll screen's list: the work month, the employees and whose payroll is in hand.
class FolhaScreen {
  public:
    /// `legalFolder` has the delivered tables.
    FolhaScreen(const Workplace& at, const std::filesystem::path& legalFolder, FolhaDesk desk = {})
        : at_(at),
          locks_(at.store()),
          folha_(at, legalFolder, std::move(desk)),
          list_(at.session.shiftFilter) {}

    /// Reads month, company and employees again; whoever was in hand stays so. False, and told,
    /// when no company or month is chosen, or something cannot be read.
    [[nodiscard]] bool open();
    [[nodiscard]] bool isOpen() const { return isOpen_; }
    [[nodiscard]] Folha& folha() { return folha_; }
    [[nodiscard]] const Folha& folha() const { return folha_; }
    [[nodiscard]] const Company& company() const { return company_; }
    [[nodiscard]] EmployeeList& list() { return list_; }
    [[nodiscard]] const EmployeeList& list() const { return list_; }
    /// The rates that hold for the employee in hand, else the month's.
    [[nodiscard]] const OvertimeRules& overtime() const;
    /// Those whom the search shows.
    [[nodiscard]] std::vector<Employee> listed() const;

    /// False when the operator stays with amounts that he typed.
    [[nodiscard]] bool filterBy(ShiftFilter shift);
    [[nodiscard]] bool filterBy(std::optional<Scale> scale);
    /// Turns to what is paid by another run; false when it cannot or the operator stays.
    [[nodiscard]] bool chooseRun(PayrollRun run);
    /// Takes the employee at `position` in hand, asking only about typed amounts.
    [[nodiscard]] bool select(std::size_t position);
    [[nodiscard]] std::optional<std::size_t> position() const { return list_.selectedPosition(); }
    /// nullptr when there is none
    [[nodiscard]] const Employee* selected() const { return list_.selected(); }
    /// "Ativo" or "Inativo".
    [[nodiscard]] std::string_view activity(const Employee& employee) const;
    /// Why no sheet is shown, or how it stands: "Gravada", "Aberta", …
    [[nodiscard]] std::string standing() const;
    /// How the amount of a line of the sheet came about, and of a recorded month what it would be
    /// now.
    [[nodiscard]] std::vector<std::string> memo(std::size_t line) const;
    /// Bases and employer's dues of the sheet; none without one.
    [[nodiscard]] NamedAmounts figures() const;
    /// What the screen says where it cannot compute; asks whether to go to the time card.
    [[nodiscard]] Folha::Opening compute();
    /// Reads and computes again what is in hand, after a change elsewhere.
    void refresh();

    /// Takes an amount as typed for an event of the sheet; an empty one is computed again. False,
    /// and told, for what is no amount.
    [[nodiscard]] bool type(const EventCode& event, std::string_view amount);
    /// "Gravar Selecionado", "GRAVAR TODOS" of those listed, and the opening of a closed month.
    [[nodiscard]] bool save();
    [[nodiscard]] bool saveAll(const Folha::Progress& progress);
    [[nodiscard]] bool reopen();
    /// Asks before typed amounts are left behind.
    [[nodiscard]] bool confirmLeaving();

  private:
    [[nodiscard]] bool narrow(const std::function<void()>& filter);
    void show(std::optional<std::size_t> position);
    void readMarks();

    Workplace at_;
    RecordedAnswers locks_;
    Folha folha_;
    EmployeeList list_;
    Company company_;
    PayrollGlance::Lack lack_ = PayrollGlance::Lack::Nothing;
    bool isOpen_ = false;
};

}  // namespace winvrx
