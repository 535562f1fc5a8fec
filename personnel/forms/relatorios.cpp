#include "personnel/forms/relatorios.h"

#include "foundation/register/company_register.h"
#include "foundation/values/text.h"
#include "personnel/contract/contracted_employee.h"
#include "personnel/forms/form_page.h"
#include "report/printers.h"
#include "timecard/month/selected_month.h"

#include <algorithm>

namespace winvrx {

namespace {

const Message kNoForm = refusal("Aviso", "Pesquise e Selecione um Relatório na Lista! ");

/// Of whom a blank form is.
const std::vector<Employee> kNobody(1);

Message confirmPages(const CatalogueForm& form, std::size_t pages) {
    return question("IMPRIMINDO", "Confirma a Impressão de " + countOf(pages, "folha") + "?",
                    std::string(form.title));
}

/// Whom a refusal is of, by its text.
struct RefusedPeople {
    Message message;
    std::vector<std::string> names;
};

void add(std::vector<RefusedPeople>& refused, const Message& message, const std::string& name) {
    const auto same = std::ranges::find_if(
        refused, [&](const RefusedPeople& one) { return one.message.text == message.text; });
    if (same == refused.end())
        refused.push_back({message, {name}});
    else
        same->names.push_back(name);
}

}  // namespace

Relatorios::Relatorios(const Workplace& at, ReportEngine& engine)
    : at_(at), engine_(engine), list_(at.session.shiftFilter) {
    narrowTo({});
}

void Relatorios::load() {
    (void)attempt(at_, incorrectData(), [this] {
        const CompanyCode& company = at_.session.company.value();
        company_ = loadCompany(at_.store(), company);
        const auto selected = loadSelectedMonth(at_.store());
        month_ = selected ? std::optional(selected->month) : std::nullopt;
        list_.load(at_.store(), company, month_);
    });
}

void Relatorios::narrowTo(std::string_view keyword) {
    const int number = chosen() ? chosen()->number : 0;
    forms_.clear();
    chosen_.reset();
    for (const CatalogueForm& form : formCatalogue()) {
        if (!trimmed(keyword).empty() && !form.hasKeyword(keyword)) continue;
        if (form.number == number) chosen_ = forms_.size();
        forms_.push_back(form);
    }
}

const CatalogueForm* Relatorios::chosen() const {
    return chosen_ && *chosen_ < forms_.size() ? &forms_[*chosen_] : nullptr;
}

bool Relatorios::printOne(std::optional<std::size_t> position, const FormRun& run) {
    return attempt(at_, printFailed(), [&] {
        if (!requireForm()) return false;
        const Employee* one =
            position && list_.isShown(*position) ? &list_.employees()[*position] : nullptr;
        if (!chosen()->isFilled()) return print(kNobody, run);
        return requireContractedEmployee(at_, one, searchAndSelectEmployee()) && print({*one}, run);
    });
}

bool Relatorios::printAll(const FormRun& run) {
    return attempt(at_, printFailed(), [&] {
        if (!requireForm()) return false;
        if (!chosen()->isFilled()) return print(kNobody, run);
        const auto people = requirePeople();
        return !people.empty() && print(people, run);
    });
}

bool Relatorios::requireForm() const {
    return chosen() || at_.person.refuse(kNoForm);
}

std::vector<Employee> Relatorios::requirePeople() const {
    std::vector<Employee> people;
    std::vector<RefusedPeople> refused;
    for (const std::size_t position : list_.shown()) {
        const Employee& one = list_.employees()[position];
        if (const auto message = paperRefusal(at_, &one, searchAndSelectEmployee()))
            add(refused, *message, one.code + " " + one.name);
        else
            people.push_back(one);
    }
    if (list_.shown().empty()) at_.person.tell(searchAndSelectEmployee());
    for (RefusedPeople& one : refused) {
        if (one.names.size() > 1) one.message.detail = namesText(one.names, kMostNames);
        at_.person.tell(one.message);
    }
    return people;
}

bool Relatorios::print(const std::vector<Employee>& people, const FormRun& run) {
    if (!requirePrintingDrive(at_, wrongDrive())) return false;
    if (people.size() > 1 && run.output != ReportOutput::Preview &&
        !at_.person.agrees(confirmPages(*chosen(), people.size())))
        return false;
    ReportRequest request = requestFor(people, run);
    if (run.output == ReportOutput::PdfFile) {
        request.pdfPath = run.choosePdf ? run.choosePdf(request.pdfPath) : std::string();
        if (request.pdfPath.empty()) return false;
    }
    ReportPages pages(people.size(), [&](std::size_t at) {
        return formRows({.company = company_,
                         .employee = people[at],
                         .month = month_,
                         .printedOn = at_.clock.today()});
    });
    return printPages({at_, engine_, run.progress}, request, pages) == PrintEnd::Done;
}

ReportRequest Relatorios::requestFor(const std::vector<Employee>& people,
                                     const FormRun& run) const {
    const CatalogueForm& form = *chosen();
    const bool isOfOne = people.size() == 1 && !people.front().code.empty();
    const std::string whose = isOfOne           ? "-" + people.front().code
                              : form.isFilled() ? "-" + company_.code
                                                : "";
    return {.layoutName = layoutOf(form, run.face),
            .title = std::string(form.title),
            .columns = formColumns(),
            .output = run.output,
            .printerName = loadPrinterName(at_.store()),
            .pdfPath = form.key() + whose + ".pdf"};
}

}  // namespace winvrx
