#pragma once

#include "foundation/desk/command.h"
#include "foundation/register/company.h"
#include "foundation/register/employee_list.h"
#include "personnel/forms/form_catalogue.h"
#include "report/print_pages.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace winvrx {

inline constexpr std::string_view kRelatoriosTitle = "Relatórios";

/// Where a form goes.
struct FormRun {
    ReportOutput output = ReportOutput::Preview;
    FormFace face = FormFace::Sheet;
    PageProgress progress = {};
    /// Where to save the PDF file, given a name to propose; empty cancels the run.
    std::function<std::string(const std::string& proposedName)> choosePdf = {};
};

/// The reports screen: the catalogue of printed forms, of which one is printed for an employee, for
/// those whom the list shows, or blank.
class Relatorios {
  public:
    /// The engine outlives the screen.
    Relatorios(const Workplace& at, ReportEngine& engine);

    /// Reads company, employees and work month again.
    void load();

    [[nodiscard]] EmployeeList& list() { return list_; }
    [[nodiscard]] const Company& company() const { return company_; }
    [[nodiscard]] std::optional<WorkMonth> month() const { return month_; }

    /// The forms whose title has the keyword, by number; an empty keyword gives all. The chosen
    /// form stays chosen where it is among them.
    void narrowTo(std::string_view keyword);
    [[nodiscard]] const std::vector<CatalogueForm>& forms() const { return forms_; }
    /// Of forms(); nullopt for none.
    void choose(std::optional<std::size_t> form) { chosen_ = form; }
    [[nodiscard]] std::optional<std::size_t> chosenPosition() const { return chosen_; }
    /// nullptr while none is chosen.
    [[nodiscard]] const CatalogueForm* chosen() const;

    /// "Imprimir Individual": for the employee at `position`; a blank form needs none. True when it
    /// was printed, saved or shown; otherwise the operator knows why.
    [[nodiscard]] bool printOne(std::optional<std::size_t> position, const FormRun& run);
    /// "Imprimir": for everyone whom the list shows, a page each in one run. Who may have no papers
    /// is named and left out. A blank form is printed once.
    [[nodiscard]] bool printAll(const FormRun& run);

  private:
    [[nodiscard]] bool requireForm() const;
    /// Those who may have papers; of the others the operator is told.
    [[nodiscard]] std::vector<Employee> requirePeople() const;
    [[nodiscard]] bool print(const std::vector<Employee>& people, const FormRun& run);
    [[nodiscard]] ReportRequest requestFor(const std::vector<Employee>& people,
                                           const FormRun& run) const;

    Workplace at_;
    ReportEngine& engine_;
    EmployeeList list_;
    Company company_;
    std::optional<WorkMonth> month_;
    std::vector<CatalogueForm> forms_;
    std::optional<std::size_t> chosen_;
};

}  // namespace winvrx
