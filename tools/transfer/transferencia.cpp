#include "tools/transfer/transferencia.h"

#include "foundation/copies/copy_name.h"
#include "foundation/copies/copy_shelf.h"
#include "foundation/register/company_register.h"
#include "foundation/register/employee_list.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

using std::filesystem::path;

constexpr std::string_view kTitle = "Cópia de Segurança da Base de Dados";
constexpr std::size_t kMostNamesOfAKind = 6;

const Message kNotToC = failure("Base de Dados", "Diretório da Mídia Removível não Pode ser 'C'!");
const Message kOneLetter =
    failure("Base de Dados", "O Diretório Informado deve conter somente UMA LETRA!");
const Message kSameDrive =
    failure("Base de Dados", "O Diretório Informado deve ser DIFERENTE do Diretório de Origem!");
const Message kSameFolder =
    failure("Base de Dados", "O Diretório de Destino deve ser DIFERENTE do Diretório de Origem!");
const Message kNotFound = refusal("Backup", "Diretório Não Encontrado! ");
const Message kDone =
    notice(kTitle, "Transferência Concluída com Sucesso!",
           "Todos os dados estão gravados e conferidos: é seguro remover a unidade.");
const Message kBackupDone = notice("Backup", "Backup Concluído!");
const Message kFailed = refusal(kTitle, "Erro na Importação Realizada! ");

Message invalidFolder(std::string detail) {
    return failure("AVISO", "Diretório INVÁLIDO!", std::move(detail));
}

Message noTarget(char inUse) {
    return refusal(
        "Base de Dados",
        std::string("Informe um Diretório de DESTINO Válido!  Obs. O Diretório de Origem "
                    "(em uso) é   '") +
            inUse + "'");
}

std::string paragraph(const char* heading, const std::vector<std::string>& names) {
    if (names.empty()) return {};
    return "\n" + std::string(heading) + " (" + std::to_string(names.size()) +
           "): " + namesText(names, kMostNamesOfAKind) + ".";
}

/// What the operator is to know before the destination is written over.
std::string detailOf(TransferDirection direction, const TransferPlan& plan,
                     const TransferFiles& here, const TransferFiles& there) {
    const bool isExport = direction == TransferDirection::Export;
    return "Origem: " + std::to_string(here.size()) +
           " arquivos. Destino: " + std::to_string(there.size()) +
           " arquivos. Serão copiados: " + std::to_string(plan.copied.size()) + "." +
           paragraph(isExport ? "Mais novos na mídia" : "Mais novos neste computador",
                     plan.newerThere) +
           paragraph("Mudados dos dois lados desde a última transferência", plan.changedOnBoth) +
           paragraph("Só existem no destino e saem de lá", plan.goes) +
           "\nO estado de agora do destino é guardado antes, na pasta Copias dele.";
}

/// Reads the archive back. Throws DamagedArchive where it does not hold the files as they are.
void requireWhole(const Archiver& archiver, std::string_view archive, const TransferFiles& files) {
    TransferFiles held;
    archiver.unpack(
        archive, [](const std::string&) { return true; },
        [&held](const ArchiveEntry& entry) { held[entry.name] = transferFile(entry.bytes); });
    const auto isSame = [](const auto& one, const auto& other) {
        return one.first == other.first && one.second.isSameAs(other.second);
    };
    if (!std::ranges::equal(held, files, isSame)) throw DamagedArchive("not what was packed");
}

/// What lies on a removable drive may come from anywhere, and a link in the place of one of its
/// folders lead anywhere.
std::optional<path> linkOn(const path& folder, const path& root) {
    std::vector<path> places{folder / kCopiesSubfolder};
    for (const std::string_view below : kTransferFolders)
        places.push_back((folder / below / "").parent_path());
    const path top = (root / "").parent_path();
    for (path above = (folder / "").parent_path(); above != above.root_path() && above != top;
         above = above.parent_path())
        places.push_back(above);
    const auto isLink = [](const path& place) {
        std::error_code none;
        return std::filesystem::is_symlink(place, none);
    };
    const auto link = std::ranges::find_if(places, isLink);
    return link == places.end() ? std::nullopt : std::optional(*link);
}

/// False, too, for a drive that was pulled out.
bool hasFiles(const FileSystem& files, const std::filesystem::path& folder) {
    try {
        return !files.names(folder).empty();
    } catch (const FileFault&) {
        return false;
    }
}

TransferFiles noteIn(const Disk& disk, const DataFolder& folder) {
    return decodeNote(disk.read(folder.file(kTransferNoteName)).value_or(""));
}

}  // namespace

bool Transferencia::transfer(TransferDirection direction, const std::string& typedTarget) {
    const auto letter = requireTarget(direction, typedTarget);
    if (!letter) return false;
    const auto sides = requireSides(direction, *letter);
    if (!sides || !requireMarker(*sides)) return false;
    if (direction == TransferDirection::Import && !requireRecords(*sides)) return false;
    return attempt(at_, kFailed, [&] { return carryOver(direction, *sides); });
}

std::optional<char> Transferencia::requireTarget(TransferDirection direction,
                                                 const std::string& typed) {
    const std::string target = upperCase(trimmed(typed));
    const char inUse = at_.session.folder.driveLetter();
    const std::string asked =
        "Deseja " + std::string(kTransferDirections[direction == TransferDirection::Import]);
    if (target == "C")
        at_.person.tell(kNotToC);
    else if (!at_.person.agrees(question(kTitle, asked, {}, Buttons::OkCancel)))
        return std::nullopt;
    else if (target.empty())
        at_.person.tell(noTarget(inUse));
    else if (target.size() > 1 || target[0] < 'A' || target[0] > 'Z')
        at_.person.tell(kOneLetter);
    else if (target[0] == inUse)
        at_.person.tell(kSameDrive);
    else
        return target[0];
    return std::nullopt;
}

std::optional<Transferencia::Sides> Transferencia::requireSides(TransferDirection direction,
                                                                char letter) {
    const DataFolder removable(letter, pathOnDrive(desk_.drives, letter, kDataFolder));
    const DataFolder inUse = at_.session.folder;
    if (removable.path().empty() ||
        (direction == TransferDirection::Import && !hasFiles(at_.files, removable.path()))) {
        at_.person.tell(kNotFound);
        return std::nullopt;
    }
    if (removable.path() / "" == inUse.path() / "") {
        at_.person.tell(kSameFolder);
        return std::nullopt;
    }
    if (const auto link = linkOn(removable.path(), desk_.drives.root(letter))) {
        at_.person.tell(invalidFolder("Há um atalho (link) no lugar da pasta \"" +
                                      link->filename().string() +
                                      "\" da mídia: apague-o e tente de novo."));
        return std::nullopt;
    }
    if (direction == TransferDirection::Export) return Sides{inUse, removable, removable};
    return Sides{removable, inUse, removable};
}

void Transferencia::writeMarker(const std::filesystem::path& folder) {
    const auto marker = folder / kBackupMarkerName;
    (void)at_.files.remove(marker);
    at_.files.replace(marker, std::string(kBackupMarkerWord) + "\r\n");
}

bool Transferencia::requireMarker(const Sides& sides) {
    std::string reason;
    try {
        writeMarker(sides.from.path());
        at_.files.makeFolder(sides.to.path());
        writeMarker(sides.to.path());
        // A drive that went before its folder was made leaves a path into the drive above.
        const DataFolder& there = sides.removable;
        const bool isPlugged =
            pathOnDrive(desk_.drives, there.driveLetter(), kDataFolder) == there.path();
        if (isPlugged && at_.files.exists(sides.to.file(kBackupMarkerName))) return true;
    } catch (const Fault& fault) {
        at_.log.write(std::string("transfer: ") + fault.what());
        reason = fault.explanation();
    }
    return at_.person.refuse(invalidFolder(reason));
}

/// What comes must be a data folder whose companies can be read.
bool Transferencia::requireRecords(const Sides& sides) {
    bool readable = false;
    const bool read = attempt(at_, invalidFolder({}), [&] {
        const auto companies = loadCompanies({at_.files, sides.from});
        readable = std::ranges::any_of(
            companies, [](const CompanyLine& line) { return line.key().has_value(); });
    });
    if (read && !readable)
        at_.person.tell(
            invalidFolder("Não há nesta mídia um cadastro de empresas que possa ser lido."));
    return readable;
}

bool Transferencia::requireRoom(const TransferPlan& plan, const std::filesystem::path& to) {
    const auto room = desk_.freeSpace(to);
    if (!room || *room >= plan.bytes) return true;
    constexpr std::uint64_t kMegabyte = 1U << 20U;
    return at_.person.refuse(
        refusal(kTitle, "Não há espaço livre na unidade de destino.",
                "São necessários " + std::to_string(plan.bytes / kMegabyte + 1) + " MB e há " +
                    std::to_string(*room / kMegabyte) + " MB livres. Nada foi mudado."));
}

bool Transferencia::carryOver(TransferDirection direction, const Sides& sides) {
    const TransferFiles there =
        readFolder(desk_.disk, sides.to.path(), desk_.progress("Lendo o destino"));
    const TransferFiles here =
        readFolder(desk_.disk, sides.from.path(), desk_.progress("Lendo a origem"), &there);
    requireMarked(desk_.disk, sides.from.path());
    const TransferPlan plan = planTransfer(here, there, noteIn(desk_.disk, sides.removable));
    if (!requireRoom(plan, sides.to.path())) return false;
    if (!at_.person.agrees(
            warning("Cópia de Segurança de Dados!",
                    "Todos os Dados do Destino serão Apagados! Confirma a Exportação?",
                    detailOf(direction, plan, here, there), Buttons::OkCancel)))
        return false;
    const auto hold = holdFolder(at_, sides.to.path());
    desk_.copies.makeCopyBefore(sides.to, at_.clock.now(),
                                direction == TransferDirection::Export
                                    ? "receber os dados do computador"
                                    : "importar os dados da mídia removível");
    copyBetween(sides, plan, here);
    at_.person.tell(kDone);
    return true;
}

void Transferencia::copyBetween(const Sides& sides, const TransferPlan& plan,
                                const TransferFiles& here) {
    TransferFiles now =
        carryOut(desk_.disk, plan, sides.from.path(), sides.to.path(), desk_.progress("Copiando"));
    now.insert(here.begin(), here.end());  // those that were the same already
    at_.files.replace(sides.removable.file(kTransferNoteName), encodeNote(now));
}

bool Transferencia::backUp() {
    return attemptWriting(at_, refusal("Backup", "Erro na Importação Realizada! "), [&] {
        const auto& from = at_.session.folder.path();
        const auto to = from / kBackupSubfolder;
        writeMarker(from);
        const auto here = readFolder(desk_.disk, from, desk_.progress("Lendo a origem"));
        desk_.disk.makeFolder(to);
        writeMarker(to);
        const auto plan =
            planTransfer(here, readFolder(desk_.disk, to, desk_.progress("Lendo o destino")), {});
        if (!requireRoom(plan, to)) return false;
        carryOut(desk_.disk, plan, from, to, desk_.progress("Copiando"));
        at_.person.tell(kBackupDone);
        return true;
    });
}

std::optional<std::filesystem::path> Transferencia::backUpAsArchive() {
    std::filesystem::path made;
    const bool done = attemptWriting(at_, refusal("Backup", "Erro na Importação Realizada! "), [&] {
        const auto& from = at_.session.folder.path();
        const auto here = readFolder(desk_.disk, from, desk_.progress("Lendo a origem"));
        auto next = here.begin();
        const std::string archive = desk_.archiver.pack([&]() -> std::optional<ArchiveEntry> {
            if (next == here.end()) return std::nullopt;
            const std::string& name = (next++)->first;
            return ArchiveEntry{name, at_.files.read(from / name).value_or("")};
        });
        made = from / kBackupSubfolder / ("Winvrx-" + CopyName{.made = at_.clock.now()}.text());
        at_.files.makeFolder(made.parent_path());
        at_.files.replace(made, archive);
        requireWhole(desk_.archiver, at_.files.read(made).value_or(""), here);
        at_.person.tell(notice("Backup", "Backup Concluído!", made.string()));
    });
    if (!done) return std::nullopt;
    return made;
}

}  // namespace winvrx
