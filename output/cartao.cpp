#include "output/cartao.h"

#include "foundation/company_register.h"
#include "foundation/employee_register.h"
#include "foundation/text.h"
#include "output/print_settings.h"
#include "timecard/selected_month.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace winvrx {

namespace {

constexpr std::string_view kPrintingDrive = "C";
constexpr std::string_view kNotInFileNames = "/\\:*?\"<>|";

const Message kConfirmOne{"IMPRIMIR CARTÃO PONTO",
                          "Este Comando Irá Imprimir o Item Selecionado. Deseja Prosseguir?",
                          Icon::Question, Buttons::YesNo};
const Message kNoStock{"IMPRIMIR CARTÃO PONTO", "Selecione um Tipo de Cartão na Lista! ",
                       Icon::Exclamation};
const Message kNoEmployee{"IMPRIMIR CARTÃO PONTO", "Selecione um Funcionário na Lista! ",
                          Icon::Exclamation};
const Message kNoMonth{"IMPRIMIR CARTÃO PONTO", "Informe um Mês de Trabalho!!", Icon::Exclamation};
const Message kWrongDrive{"Imprimir",
                          "Diretório Inválido p/ Impressão! Transfira os dados do diretório atual "
                          "para o Diretório 'C'.",
                          Icon::Critical};
const Message kCancelOthers{"IMPRIMINDO", "Deseja Cancelar as demais Impressões? ", Icon::Question,
                            Buttons::YesNo};
const Message kPrintFailed{"IMPRESSÃO", "Erro na Impressão do Relatório.", Icon::Critical};
const Message kNoPrinter{"IMPRESSÃO",
                         "ERRO NA IMPRESSÃO DO RELATÓRIO - Isto ocorre quando não há Impressoras "
                         "Instalada no PC!",
                         Icon::Critical};

Message confirmCardOf(const Employee& employee) {
    return {"IMPRIMINDO", "Confirma a Impressão do Cartão do " + employee.name + " ? ",
            Icon::Question, Buttons::YesNoCancel};
}

Company companyOf(FileSystem& files, const Session& session) {
    for (const CompanyLine& line : loadCompanies(files, session.folder))
        if (line.code() && line.code() == session.company) return line.company;
    throw Fault("company is not in the register",
                "A empresa selecionada não está no cadastro de empresas.");
}

/// A name for the file dialogue, without the characters that part folders.
std::string pdfNameFor(const std::string& subject, WorkMonth month) {
    std::string name = std::string(kCartaoTitle) + " " + subject + " " + monthKey(month) + ".pdf";
    std::ranges::replace_if(
        name, [](char c) { return kNotInFileNames.find(c) != std::string_view::npos; }, '-');
    return name;
}

}  // namespace

Cartao::Cartao(const Workplace& at, Browser& browser, ReportEngine& engine)
    : at_(at), browser_(browser), engine_(engine), filter_(at.session.shiftFilter) {}

void Cartao::load() {
    (void)attempt(at_, incorrectData(), [this] {
        company_ = companyOf(at_.files, at_.session);
        const auto selected = loadSelectedMonth(at_.files, at_.session.folder);
        month_ = selected ? std::optional(selected->month) : std::nullopt;
        stock_ = loadStock(at_.files, at_.session);
        printer_ = loadPrinterName(at_.files, at_.session.folder);
        readEmployees();
        return true;
    });
}

std::string Cartao::stockLabel() const {
    return stock_ ? std::string(stock_->displayName) : std::string();
}

void Cartao::setFilter(ShiftFilter filter) {
    filter_ = filter;
    ofShift_.clear();
    employees_.clear();
    (void)attempt(at_, incorrectData(), [this] {
        readEmployees();
        return true;
    });
}

void Cartao::readEmployees() {
    const EmployeeRegister list(at_.files, at_.session.folder, at_.session.company.value());
    ofShift_ = employeesOf(list.load(), filter_);
    setSearch(search_);
}

void Cartao::setSearch(std::string text) {
    search_ = std::move(text);
    employees_.clear();
    std::ranges::copy_if(ofShift_, std::back_inserter(employees_), [this](const Employee& one) {
        return matchesSearch(one.code + " " + one.name, search_);
    });
}

std::string Cartao::headerPreview(std::optional<std::size_t> position) const {
    if (!month_ || !position || *position >= employees_.size()) return {};
    std::string text;
    (void)attempt(at_, incorrectData(), [&] {
        text = headerText(cardOf(employees_[*position]));
        return true;
    });
    return text;
}

bool Cartao::printOne(std::optional<std::size_t> position, const PrintRun& run) {
    if (!at_.person.agrees(kConfirmOne)) return false;
    const bool selected = position && *position < employees_.size();
    return isReady(selected) && print({employees_[*position]}, run);
}

bool Cartao::printAll(const PrintRun& run) {
    return isReady(!employees_.empty()) && print(employees_, run);
}

void Cartao::help() {
    openHelp(at_, browser_);
}

bool Cartao::isReady(bool anyEmployee) {
    const Message* refusal = nullptr;
    if (!stock_ || !layoutFor(stock_->code, choices_.tray, LayoutSet::A))
        refusal = &kNoStock;
    else if (!anyEmployee)
        refusal = &kNoEmployee;
    else if (!month_)
        refusal = &kNoMonth;
    if (refusal) at_.person.tell(*refusal);
    return !refusal;
}

bool Cartao::drivePrints() {
    const char letter = at_.session.folder.driveLetter();
    if (upperCase(std::string(1, letter)) == kPrintingDrive) return true;
    at_.person.tell(kWrongDrive);
    return false;
}

bool Cartao::print(const std::vector<Employee>& people, const PrintRun& run) {
    if (!drivePrints()) return false;
    return attempt(at_, kPrintFailed, [&] {
        return choices_.mode == PrintMode::OneRun ? printInOneRun(people, run)
                                                  : printOneAtATime(people, run);
    });
}

bool Cartao::printInOneRun(const std::vector<Employee>& people, const PrintRun& run) {
    const std::string subject = people.size() == 1 ? people.front().name : company_.name;
    const auto request = requestFor(LayoutSet::A, run, subject);
    if (!request) return false;
    std::size_t next = 0;
    const auto cards = [&]() -> std::optional<std::vector<CardRow>> {
        if (next == people.size()) return std::nullopt;
        return cardRows(cardOf(people[next++]));
    };
    const auto progress = [&](int done) {
        return !run.progress || run.progress(done, static_cast<int>(people.size()));
    };
    return succeeded(engine_.print(*request, cards, progress));
}

bool Cartao::printOneAtATime(const std::vector<Employee>& people, const PrintRun& run) {
    int done = 0;
    for (const Employee& employee : people) {
        if (done > 0 && at_.person.agrees(kCancelOthers)) return false;
        if (!confirms(employee)) return false;
        const auto request = requestFor(LayoutSet::B, run, employee.name);
        if (!request) return false;
        std::optional card = cardRows(cardOf(employee));
        const auto cards = [&card] { return std::exchange(card, std::nullopt); };
        const auto progress = [&](int) {
            return !run.progress || run.progress(done + 1, static_cast<int>(people.size()));
        };
        if (!succeeded(engine_.print(*request, cards, progress))) return false;
        ++done;
    }
    return true;
}

bool Cartao::confirms(const Employee& employee) {
    const Message question = confirmCardOf(employee);
    Answer answer = at_.person.ask(question);
    while (answer == Answer::No)
        answer = at_.person.ask(question);
    return answer == Answer::Yes;
}

std::optional<ReportRequest> Cartao::requestFor(LayoutSet set, const PrintRun& run,
                                                const std::string& subject) const {
    ReportRequest request{.layoutName = layoutFor(stock_->code, choices_.tray, set).value(),
                          .title = std::string(kCartaoTitle),
                          .printHeader = choices_.printHeader,
                          .alignment = loadAlignment(at_.files, at_.session.folder),
                          .output = choices_.output,
                          .printerName = printer_,
                          .trays = choices_.trays,
                          .pdfPath = {}};
    if (request.output != ReportOutput::PdfFile) return request;
    if (run.choosePdf) request.pdfPath = run.choosePdf(pdfNameFor(subject, *month_));
    return request.pdfPath.empty() ? std::nullopt : std::optional(request);
}

bool Cartao::succeeded(ReportResult result) {
    if (result == ReportResult::Failed) at_.person.tell(kPrintFailed);
    if (result == ReportResult::NoPrinter) at_.person.tell(kNoPrinter);
    return result == ReportResult::Done;
}

CardData Cartao::cardOf(const Employee& employee) const {
    const DataFolder& folder = at_.session.folder;
    const CompanyCode& company = at_.session.company.value();
    const EmployeeCode code = employee.employeeCode().value();
    return {.company = company_,
            .employee = employee,
            .settings = loadMonthSettings(at_.files, folder, month_.value()),
            .schedule = loadSchedule(at_.files, folder, company, code),
            .punches = loadPunches(at_.files, folder, company, code, *month_)};
}

}  // namespace winvrx
