#include "personnel/payslips/provision_report.h"

#include "foundation/register/employee_register.h"
#include "personnel/payroll/statement_page.h"
#include "personnel/vacation/vacation_record.h"

namespace winvrx {

namespace {

constexpr std::string_view kTitle = "Férias";

/// The amount holds the vacation and its third: four thirds of the vacation, to the cent.
void addProvision(const Employee& employee, const VacationItem& item, Money amount,
                  Statement& page) {
    const Money pay = Sum(amount).over(4).times(3).rounded("Férias").amount;
    page.lines.push_back({.words = employee.code + " " + employee.name + ", " +
                                   item.acquisitionFirst + " a " + item.acquisitionLast,
                          .quantity = std::to_string(item.grantedDays()) + " dias",
                          .debit = moneyText(amount)});
    page.lines.push_back(
        {.memo = "Férias " + moneyText(pay) + " + 1/3 " + moneyText(amount - pay)});
}

}  // namespace

bool previewProvisions(const PrintDesk& desk, WorkMonth month) {
    const Workplace& at = desk.at;
    return attempt(at, incorrectData(), [&] {
        const Store store = at.store();
        const CompanyCode& company = at.session.company.value();
        const FolderNames names = namesIn(store);
        Statement page{.title = "Provisão de férias",
                       .about = monthTitle(month),
                       .fileName = "Provisao-" + company.text() + "-" + monthKey(month) + ".pdf",
                       .creditHeading = "",
                       .debitHeading = "Valor (R$)"};
        Money total;
        for (const EmployeeLine& line : EmployeeRegister(store, company).load()) {
            if (!line.key()) continue;
            const VacationLines vacations = loadVacations(store, {company, *line.key()}, names);
            const auto* found = findLine(vacations, std::pair(std::string(kProvisionKind), month));
            if (found == nullptr) continue;
            const Money amount = parseMoney(found->record.net).value_or(Money{});
            addProvision(line.record, found->record, amount, page);
            total = total + amount;
        }
        if (page.lines.empty())
            return at.person.refuse(notice(kTitle, "Não há provisão de férias gravada neste mês.",
                                           monthTitle(month) + "."));
        page.addTotal("Total da provisão", total);
        return previewStatement(desk, page);
    });
}

}  // namespace winvrx
