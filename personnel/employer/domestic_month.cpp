#include "personnel/employer/domestic_month.h"

#include "foundation/register/employee_register.h"
#include "personnel/payroll/payroll_record.h"
#include "personnel/payroll/payroll_runs.h"
#include "personnel/payroll/settings_file.h"
#include "timecard/month/selected_month.h"

namespace winvrx {

namespace {

Money sumOf(const PaySheet& sheet, std::initializer_list<std::string_view> codes) {
    Money sum;
    for (const std::string_view code : codes)
        sum = sum + sheet.amountOf(code);
    return sum;
}

/// The recorded payrolls of an employee's month, added up by what they are charged with.
struct Bases {
    Money inss;        ///< of month and vacation together
    Money thirteenth;  ///< has a ceiling of its own
    Money fgts;
    Money employeeInss;
    Money incomeTax;
    bool hasMonth = false;
};

Bases basesOf(const Store& store, const EmployeeKey& key, WorkMonth month,
              const FolderNames& names) {
    Bases bases;
    for (const PayrollRun run : kPayrollRuns) {
        if (!names.contains(payrollFileName(key, month, run))) continue;
        const auto recorded = loadPayroll(store, key, month, run);
        if (!recorded) continue;
        const PaySheet& sheet = recorded->sheet;
        if (run == PayrollRun::Month) bases.inss = bases.inss + sheet.base;
        if (run == PayrollRun::Vacation)
            bases.inss = bases.inss + taxedPay(sheet, PayrollKind::Vacation);
        if (run == PayrollRun::ThirteenthSecond)
            bases.thirteenth = taxedPay(sheet, PayrollKind::Thirteenth);
        bases.fgts = bases.fgts + sheet.fgtsBase;
        bases.employeeInss = bases.employeeInss + sumOf(sheet, {"091", "093", "095"});
        bases.incomeTax = bases.incomeTax + sumOf(sheet, {"092", "094", "096"});
        bases.hasMonth = bases.hasMonth || run == PayrollRun::Month;
    }
    return bases;
}

GuideLine lineOf(const PayrollLaw& law, const Bases& bases, WorkMonth month) {
    GuideLine line;
    const auto takeMemo = [&line](const Reckoning& reckoning) {
        if (reckoning.amount.cents > 0) append(line.memo, reckoning.memo);
        return reckoning.amount;
    };
    line.amounts.employeeInss = bases.employeeInss;
    line.amounts.incomeTax = bases.incomeTax;
    for (const Money base : {bases.inss, bases.thirteenth}) {
        const DomesticGuide guide = domesticGuide(law, base, month);
        line.amounts.employerInss = line.amounts.employerInss + takeMemo(guide.employer);
        line.amounts.accident = line.amounts.accident + takeMemo(guide.accident);
    }
    const DomesticGuide deposits = domesticGuide(law, bases.fgts, month);
    line.amounts.fgts = takeMemo(deposits.fgts);
    line.amounts.reserve = takeMemo(deposits.reserve);
    return line;
}

}  // namespace

Money GuideAmounts::total() const {
    Money sum;
    for (const GuideFigure& figure : kGuideFigures)
        sum = sum + this->*figure.member;
    return sum;
}

GuideAmounts& GuideAmounts::operator+=(const GuideAmounts& other) {
    for (const GuideFigure& figure : kGuideFigures)
        this->*figure.member = this->*figure.member + other.*figure.member;
    return *this;
}

Date DomesticMonth::due() const {
    return duesDay(month_);
}

GuideAmounts DomesticMonth::total() const {
    GuideAmounts sum;
    for (const GuideLine& line : lines_)
        sum += line.amounts;
    return sum;
}

void DomesticMonth::read() {
    const Store store = at_.store();
    const CompanyCode& company = at_.session.company.value();
    const LegalTables tables = loadLegalTables(store, legalFolder_);
    const PayrollSettings settings = loadPayrollSettings(store, company).settings;
    const FolderNames names = namesIn(store);
    for (const EmployeeLine& one : EmployeeRegister(store, company).load()) {
        const auto code = one.key();
        if (!code) continue;
        const Bases bases = basesOf(store, {company, *code}, month_, names);
        const std::string name = one.record.code + " " + one.record.name;
        if (bases.hasMonth || bases.fgts.cents > 0) {
            lines_.push_back(lineOf({tables, settings}, bases, month_));
            lines_.back().employee = name;
        }
        if (!bases.hasMonth && one.record.status != kDeletedStatus) unrecorded_.push_back(name);
    }
}

bool DomesticMonth::load() {
    lines_.clear();
    unrecorded_.clear();
    const auto refuse = [this](std::string text, std::string detail) {
        return at_.person.refuse(refusal(kGuideTitle, std::move(text), std::move(detail)));
    };
    return attempt(at_, incorrectData(), [&] {
        const Store store = at_.store();
        if (!loadPayrollSettings(store, at_.session.company.value()).settings.isDomesticEmployer)
            return refuse("Esta Empresa não é um Empregador Doméstico!",
                          "Marque \"Empregador doméstico\" em Opções da Folha.");
        const auto month = requireSelectedMonth(at_);
        if (!month) return false;
        month_ = *month;
        read();
        return !lines_.empty() || refuse("Não Há Folha Gravada em " + monthTitle(month_) + "!",
                                         "A guia é a soma das folhas gravadas do mês.");
    });
}

Statement DomesticMonth::statement() const {
    Statement page{.title = "Guia do empregador doméstico (DAE)",
                   .about = monthTitle(month_) + " · pagamento até " + dateText(due()),
                   .fileName = "Guia-" + monthKey(month_) + ".pdf",
                   .creditHeading = "",
                   .debitHeading = "Valor (R$)"};
    page.addHeading("Total da guia");
    const GuideAmounts sum = total();
    for (const GuideFigure& figure : kGuideFigures)
        page.lines.push_back(
            {.words = std::string(figure.name), .debit = moneyText(sum.*figure.member)});
    page.addTotal("A recolher", sum.total());
    for (const GuideLine& line : lines_) {
        page.addHeading(line.employee);
        for (const GuideFigure& figure : kGuideFigures)
            page.lines.push_back({.words = std::string(figure.name),
                                  .debit = moneyText(line.amounts.*figure.member)});
        page.addMemo(line.memo);
        page.addTotal("Total", line.amounts.total());
    }
    for (const std::string& name : unrecorded_)
        page.lines.push_back({.memo = "Sem folha gravada no mês: " + name});
    return page;
}

}  // namespace winvrx
