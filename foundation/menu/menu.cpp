#include "foundation/menu/menu.h"

#include "foundation/register/employee_register.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::string_view kEarlierTitle = "Dados de Funcionarios da Versão Anterior";

const Message kAlreadyOpen = refusal("Aviso", "O Aplicativo Já está Aberto!");
const Message kShareNotFound =
    failure("Aviso Diretório de Rede", "Diretório de Rede Não Encontrado, ou Rede Desconectada!");
const Message kNoEmployee =
    refusal("Aviso", "Não há Dados de Funcionários! Cadastre pelo menos um Funcionário.");
const Message kFailure = failure("Erro", "Ocorreu Erro");
const Message kUseEarlier = question(
    kEarlierTitle,
    "Existem Dados Cadastrados na Versão Anterior! Deseja Utilizar essa Base de Dados Anterior?");
const Message kConfirmUse =
    riskyQuestion(kEarlierTitle, "Clique em OK para Confirmar.", {}, Buttons::OkCancel);
const Message kDiscardEarlier = warning(
    kEarlierTitle,
    "Tem Certeza que Não quer utilizar os Dados Cadastrados na Versão Anterior? Clique em 'OK' "
    "para excluir permanentemente essa Base de Dados Anterior.",
    {}, Buttons::OkCancel);
const Message kConfirmDiscard =
    warning(kEarlierTitle, "Clique em OK para Confirmar a Exclusão.", {}, Buttons::OkCancel);

Message driveMissing(char letter) {
    return refusal("Aviso", std::string("O drive ") + letter + " não está disponível.",
                   std::string("Os dados do drive ") + kDefaultDrive + " serão usados.");
}

bool needsCompany(MenuCommand command) {
    switch (command) {
        case MenuCommand::Companies:
        case MenuCommand::Backup:
        case MenuCommand::Restore:
        case MenuCommand::Internet:
        case MenuCommand::Help:
            return false;
        default:
            return true;
    }
}

bool needsEmployees(MenuCommand command) {
    return needsCompany(command) && command != MenuCommand::Employees &&
           command != MenuCommand::WorkMonth;
}

/// The upper-case letter that a start memory holds; nullopt for anything else.
std::optional<char> letterIn(const std::vector<std::string>& values) {
    if (values.empty()) return std::nullopt;
    const std::string letter = upperCase(values.front());
    if (letter.size() != 1 || letter[0] < 'A' || letter[0] > 'Z') return std::nullopt;
    return letter[0];
}

}  // namespace

Menu::Menu(const Workplace& at, const Drives& drives, SingleInstance& instance, Browser& browser,
           std::string programFolder)
    : at_(at),
      drives_(drives),
      instance_(instance),
      browser_(browser),
      programFolder_(std::move(programFolder)) {}

bool Menu::start() {
    if (!instance_.claim()) {
        at_.person.tell(kAlreadyOpen);
        return false;
    }
    (void)attempt(at_, kFailure, [this] {
        openFolder(kDefaultDrive);
        readDriveLetter();
    });
    reloadCompanies();
    return true;
}

void Menu::readDriveLetter() {
    RecordFile memory(at_.files, localFolder(kDefaultDrive) / kStartMemoryName);
    if (!memory.exists()) {
        const auto hold = holdFolder(at_, memory.path().parent_path());
        memory.append(std::string(1, at_.session.folder.driveLetter()));
        return;
    }
    const char letter = letterIn(memory.values()).value_or(kDefaultDrive);
    if (localFolder(letter).empty())
        at_.person.tell(driveMissing(letter));
    else if (letter != at_.session.folder.driveLetter())
        openFolder(letter);
}

std::filesystem::path Menu::localFolder(char letter) const {
    return pathOnDrive(drives_, letter, kDataFolder);
}

void Menu::openFolder(char letter) {
    at_.session.folder = DataFolder(letter, localFolder(letter));
    at_.files.makeFolder(at_.session.folder.path());
    removeLeftovers(at_.session.folder.path());
    if (!isShare(programFolder_)) return;
    try {
        const auto share = shareDataFolder(programFolder_);
        if (!at_.files.exists(share.parent_path().parent_path()))
            throw FileFault(FileFault::Operation::List, share,
                            std::make_error_code(std::errc::no_such_file_or_directory));
        at_.files.makeFolder(share);
        removeLeftovers(share);
        at_.session.folder = DataFolder(letter, share);
    } catch (const FileFault& fault) {
        reportFailure(at_, kShareNotFound, fault);
    }
}

void Menu::removeLeftovers(const std::filesystem::path& folder) {
    if (!at_.files.hasLeftovers(folder)) return;
    try {
        const auto notNow = [](const LockHolder&) { return false; };
        const auto hold = at_.lock.take(folder, at_.clock.now(), notNow);
        at_.files.removeLeftovers(folder);
    } catch (const FolderInUse&) {
        // Another computer is writing these files; a later start looks again.
        return;
    }
}

void Menu::removeHeld(const std::filesystem::path& file) {
    if (!at_.files.exists(file)) return;
    const auto hold = holdFolder(at_, file.parent_path());
    at_.files.remove(file);
}

void Menu::reloadCompanies() {
    const bool loaded =
        attempt(at_, incorrectData(), [this] { companies_ = loadOrCreateCompanies(at_); });
    if (!loaded) companies_.clear();
    if (!selected()) at_.session.company.reset();
}

const CompanyLine* Menu::selected() const {
    const auto found =
        std::find_if(companies_.begin(), companies_.end(), [this](const CompanyLine& line) {
            return line.key() && line.key() == at_.session.company;
        });
    return found == companies_.end() ? nullptr : &*found;
}

void Menu::select(std::size_t position) {
    (void)attempt(at_, kFailure, [&] {
        at_.session.company = companies_.at(position).key();
        removeHeld(at_.session.folder.file(kSelectedMonthName));
    });
}

void Menu::useDrive(char letter) {
    if (letter == at_.session.folder.driveLetter()) return;
    if (localFolder(letter).empty()) return at_.person.tell(driveMissing(letter));
    const DataFolder before = at_.session.folder;
    const bool moved = attempt(at_, kFailure, [&] {
        openFolder(letter);
        const auto memory = localFolder(kDefaultDrive) / kStartMemoryName;
        const auto hold = holdFolder(at_, memory.parent_path());
        RecordFile(at_.files, memory).rewrite({std::string(1, letter)});
    });
    if (!moved) at_.session.folder = before;
    at_.session.company.reset();
    reloadCompanies();
}

bool Menu::mayOpen(MenuCommand command) {
    if (needsCompany(command) && !at_.session.company) {
        at_.person.tell(noCompany());
        return false;
    }
    if (!needsEmployees(command)) return true;
    return attempt(at_, kFailure, [this] {
        const EmployeeRegister employees(at_.store(), *at_.session.company);
        if (employees.hasEmployees()) return true;
        at_.person.tell(kNoEmployee);
        return false;
    });
}

void Menu::offerEarlierData() {
    for (const std::string_view literal : kEarlierFolders) {
        const auto folder = pathOnDrive(drives_, at_.session.folder.driveLetter(), literal);
        const auto earlier = folder / kEmployeeListStem;
        (void)attempt(at_, kFailure, [&] {
            if (folder.empty() || !at_.files.exists(earlier)) return false;
            if (at_.person.agrees(kUseEarlier))
                importEarlier(earlier);
            else
                discardEarlier(earlier);
            return true;
        });
    }
}

void Menu::importEarlier(const std::filesystem::path& earlier) {
    if (!at_.person.agrees(kConfirmUse)) return;
    const CompanyLine* first = firstCompany(companies_);
    if (!first) throw Fault("no company to import into", "Não há empresa para receber os dados.");
    const auto hold = holdFolder(at_);
    importList(earlier, first->key().value());
    at_.files.remove(earlier);
}

void Menu::importList(const std::filesystem::path& earlier, const CompanyCode& company) {
    const auto lines = LineFile<Employee>(RecordFile(at_.files, earlier)).load();
    EmployeeRegister list(at_.store(), company);
    // An import that was cut short has written the list already, and the copy of the list that it
    // replaced must stay.
    if (lines != list.load()) list.save(lines, at_.clock.now());
}

void Menu::discardEarlier(const std::filesystem::path& earlier) {
    if (at_.person.agrees(kDiscardEarlier) && at_.person.agrees(kConfirmDiscard))
        at_.files.remove(earlier);
}

void Menu::openHelp() {
    winvrx::openHelp(at_, browser_);
}

void Menu::exit() {
    (void)attempt(at_, kFailure, [this] {
        removeHeld(at_.session.folder.file(kSelectedMonthName));
        removeHeld(at_.session.folder.file(kStartMemoryName));
        removeHeld(localFolder(kDefaultDrive) / kStartMemoryName);
    });
}

}  // namespace winvrx
