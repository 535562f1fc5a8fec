#include "foundation/menu/menu.h"

#include "foundation/desk/data_version.h"
#include "foundation/files/record_names.h"
#include "foundation/register/employee_register.h"
#include "foundation/values/text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace winvrx {

namespace {

constexpr std::string_view kEarlierTitle = "Dados de Funcionarios da Versão Anterior";

constexpr std::string_view kCompanySetting = "empresa";
constexpr std::string_view kMonthSetting = "mes";

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

Message writtenByNewer(const ProgramVersion& version) {
    return refusal("Aviso",
                   "Os dados desta pasta foram gravados por uma versão mais nova do programa, a " +
                       version.text() + ".",
                   "Esta é a versão " + programVersion().text() +
                       ". Atualize o programa antes de alterar estes dados.");
}

bool isDealtWith(const Store& store, std::string_view earlierFolder) {
    const auto noted = RecordFile(store, kEarlierNoteName).values();
    return std::ranges::find(noted, earlierFolder) != noted.end();
}

/// The upper-case letter that a start memory holds; nullopt for anything else.
std::optional<char> letterIn(const std::vector<std::string>& lines) {
    if (lines.empty()) return std::nullopt;
    const std::string letter = upperCase(decodeWindows1252(trimmed(lines.front())));
    if (letter.size() != 1 || letter[0] < 'A' || letter[0] > 'Z') return std::nullopt;
    return letter[0];
}

}  // namespace

Menu::Menu(const Workplace& at, const Drives& drives, SingleInstance& instance,
           UserSettings& settings, std::string programFolder)
    : at_(at),
      drives_(drives),
      instance_(instance),
      settings_(settings),
      programFolder_(std::move(programFolder)) {}

bool Menu::claimRun() {
    return instance_.claim() || at_.person.refuse(kAlreadyOpen);
}

void Menu::load() {
    (void)attempt(at_, kFailure, [this] {
        openFolder(kDefaultDrive);
        readDriveLetter();
    });
    reloadCompanies();
    at_.session.lastMonth = parseMonthKey(settings_.value(kMonthSetting));
}

void Menu::selectAsBefore() {
    const std::string used = settings_.value(kCompanySetting);
    const auto isUsed = [&](const CompanyLine& line) {
        return line.key() && line.key()->text() == used;
    };
    auto found = std::ranges::find_if(companies_, isUsed);
    if (found == companies_.end() && std::ranges::count_if(companies_, &CompanyLine::isKnown) == 1)
        found = std::ranges::find_if(companies_, &CompanyLine::isKnown);
    if (found != companies_.end()) select(static_cast<std::size_t>(found - companies_.begin()));
}

void Menu::remember() {
    if (at_.session.company) settings_.keep(kCompanySetting, at_.session.company->text());
    if (at_.session.lastMonth) settings_.keep(kMonthSetting, monthKey(*at_.session.lastMonth));
}

/// The letter of the start memory, which is written where it is missing.
char Menu::rememberedLetter() {
    RecordFile memory(at_.files, localFolder(kDefaultDrive) / kStartMemoryName);
    if (const auto lines = memory.linesIfAny()) return letterIn(*lines).value_or(kDefaultDrive);
    at_.files.makeFolder(memory.path().parent_path());
    const auto hold = holdFolder(at_, memory.path().parent_path());
    memory.rewrite({std::string(1, kDefaultDrive)});
    return kDefaultDrive;
}

void Menu::readDriveLetter() {
    char letter = kDefaultDrive;
    try {
        letter = rememberedLetter();
    } catch (const Fault& fault) {
        // Who works on a share may have no rights to the local folder.
        if (!isShare(programFolder_) || shareIsMissing_) throw;
        at_.log.write(std::string("start memory: ") + fault.what());
    }
    if (localFolder(letter).empty())
        at_.person.tell(driveMissing(letter));
    else if (letter != at_.session.folder.driveLetter())
        openFolder(letter);
}

std::filesystem::path Menu::localFolder(char letter) const {
    return pathOnDrive(drives_, letter, kDataFolder);
}

void Menu::openFolder(char letter) {
    if (isShare(programFolder_) && openShare(letter)) return;
    useFolder(DataFolder(letter, localFolder(letter)));
}

bool Menu::openShare(char letter) {
    try {
        const auto share = shareDataFolder(programFolder_);
        if (!at_.files.exists(share.parent_path().parent_path()))
            throw FileFault(FileFault::Operation::List, share,
                            std::make_error_code(std::errc::no_such_file_or_directory));
        useFolder(DataFolder(letter, share));
        return true;
    } catch (const FileFault& fault) {
        if (!std::exchange(shareIsMissing_, true)) reportFailure(at_, kShareNotFound, fault);
        return false;
    }
}

void Menu::useFolder(const DataFolder& folder) {
    at_.session.folder = folder;
    at_.files.makeFolder(folder.path());
    removeLeftovers(folder.path());
    if (!usedFolders_.insert(folder.path()).second) return;
    const auto version = dataVersion(at_.files, folder);
    if (version && *version > programVersion()) at_.person.tell(writtenByNewer(*version));
}

void Menu::removeLeftovers(const std::filesystem::path& folder) {
    const std::array places = {folder, folder / kDocumentsSubfolder};
    const auto hasLeftovers = [this](const auto& place) { return at_.files.hasLeftovers(place); };
    if (std::none_of(places.begin(), places.end(), hasLeftovers)) return;
    try {
        const auto notNow = [](const LockHolder&) { return false; };
        const auto hold = at_.lock.take(folder, at_.clock.now(), notNow);
        for (const auto& place : places)
            at_.files.removeLeftovers(place);
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
    return findLine(companies_, at_.session.company);
}

void Menu::select(std::size_t position) {
    (void)attempt(at_, kFailure, [&] {
        const auto company = companies_.at(position).key();
        removeHeld(at_.session.folder.file(kSelectedMonthName));
        at_.session.company = company;
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
    if (moved)
        at_.session.company.reset();
    else
        at_.session.folder = before;
    reloadCompanies();
}

bool Menu::require(MenuNeeds needs) {
    if (needs == MenuNeeds::Nothing) return true;
    if (!at_.session.company) return at_.person.refuse(noCompany(at_));
    if (needs == MenuNeeds::Company) return true;
    return attempt(at_, kFailure, [this] {
        const EmployeeRegister employees(at_.store(), *at_.session.company);
        return !employees.load().empty() || at_.person.refuse(kNoEmployee);
    });
}

bool Menu::offerEarlierData() {
    return std::ranges::any_of(kEarlierFolders,
                               [this](std::string_view literal) { return offerEarlier(literal); });
}

/// True when the data was imported, and there is no need of an older one.
bool Menu::offerEarlier(std::string_view literal) {
    const auto folder = pathOnDrive(drives_, at_.session.folder.driveLetter(), literal);
    if (folder.empty()) return false;
    const auto earlier = folder / kEmployeeListStem;
    bool imported = false;
    (void)attempt(at_, kFailure, [&] {
        if (!at_.files.exists(earlier)) return;
        // What could not be deleted when the operator decided on it goes as soon as it can.
        if (isDealtWith(at_.store(), literal))
            return attemptQuietly(at_.log, "earlier data stays",
                                  [&] { removeEarlier(earlier, literal); });
        if (at_.person.agrees(kUseEarlier)) {
            if (!at_.person.agrees(kConfirmUse)) return;
            importEarlier(earlier);
            imported = true;
            removeEarlier(earlier, literal);
        } else if (at_.person.agrees(kDiscardEarlier) && at_.person.agrees(kConfirmDiscard)) {
            removeEarlier(earlier, literal);
        }
    });
    return imported;
}

void Menu::importEarlier(const std::filesystem::path& earlier) {
    const CompanyLine* first = firstCompany(companies_);
    if (!first) throw Fault("no company to import into", "Não há empresa para receber os dados.");
    const auto hold = holdFolder(at_);
    importList(earlier, first->key().value());
}

void Menu::importList(const std::filesystem::path& earlier, const CompanyCode& company) {
    const auto lines = LineFile<Employee>(RecordFile(at_.files, earlier)).load();
    EmployeeRegister list(at_.store(), company);
    // An import that was cut short has written the list already, and the copy of the list that it
    // replaced must stay.
    if (lines != list.load()) list.save(lines, at_.clock.now());
}

/// Notes first that the list is dealt with, so that it is not asked about again should it be
/// impossible to delete it.
void Menu::removeEarlier(const std::filesystem::path& earlier, std::string_view literal) {
    const auto hold = holdFolder(at_);
    RecordFile note(at_.store(), kEarlierNoteName);
    auto noted = note.values();
    if (std::ranges::find(noted, literal) == noted.end()) note.append(literal);
    at_.files.remove(earlier);
    std::erase(noted, literal);
    if (noted.empty())
        at_.files.remove(note.path());
    else
        note.rewriteValues(noted);
}

void Menu::exit() {
    remember();
    usedFolders_.insert(localFolder(kDefaultDrive));
    for (const std::filesystem::path& folder : usedFolders_)
        (void)attempt(at_, kFailure, [&] {
            removeHeld(folder / kSelectedMonthName);
            removeHeld(folder / kStartMemoryName);
        });
}

}  // namespace winvrx
