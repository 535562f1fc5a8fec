#include "foundation/copies/restaurar_copia.h"

#include "foundation/copies/copied_files.h"
#include "foundation/files/record_names.h"
#include "foundation/values/text.h"

#include <array>
#include <map>

namespace winvrx {

namespace {

const Message kFailure = failure("Erro", "Ocorreu Erro");
const Message kNoneChosen = refusal("Aviso", "Selecione uma Cópia na Lista!");
const Message kNothingToDo = notice("Aviso", "A Pasta de Dados já está igual a esta Cópia!");

Message confirmation(const CopyName& name) {
    return warning(
        "RESTAURAR", "Confirma a Restauração da Cópia de " + momentOfCopy(name) + "?",
        "A pasta de dados volta a ser o que era. O estado de agora é guardado antes, como mais "
        "uma cópia desta lista.");
}

std::vector<SubjectChange> bySubject(const std::vector<FileChange>& files) {
    // In the order of FileChange::Kind.
    static constexpr std::array kCounts = {&SubjectChange::different, &SubjectChange::missing,
                                           &SubjectChange::surplus};
    std::map<std::string, SubjectChange> changes;
    for (const FileChange& file : files)
        ++(changes[subjectOfFile(file.file)].*kCounts.at(static_cast<std::size_t>(file.kind)));
    std::vector<SubjectChange> sorted;
    for (const auto& [subject, change] : changes)
        sorted.push_back({subject, change.different, change.missing, change.surplus});
    return sorted;
}

}  // namespace

std::string SubjectChange::text() const {
    const auto part = [](int count, std::string_view one, std::string_view many) {
        return count == 0 ? std::string() : countOf(count, one, many);
    };
    return joined({part(different, "arquivo volta ao que era", "arquivos voltam ao que eram"),
                   part(missing, "arquivo que falta é trazido de volta",
                        "arquivos que faltam são trazidos de volta"),
                   part(surplus, "arquivo que não existia é excluído",
                        "arquivos que não existiam são excluídos")},
                  ", ");
}

std::string originOfCopy(const SafetyCopy& copy) {
    if (copy.name.kind == CopyName::Kind::Daily) return "Cópia do dia";
    return "Antes de " + (copy.before.empty() ? "restaurar" : copy.before);
}

void RestaurarCopia::load() {
    (void)attempt(at_, kFailure,
                  [this] { list_ = copies_.list(at_.session.folder, at_.clock.today()); });
}

CopyPreview RestaurarCopia::preview(const CopyName& copy) const {
    try {
        return {bySubject(copies_.changes(at_.session.folder, copy)), {}};
    } catch (const std::exception& fault) {
        at_.log.write("comparing copy " + copy.text() + ": " + fault.what());
        return {{}, explanationOf(fault)};
    }
}

bool RestaurarCopia::restore(const std::optional<CopyName>& copy) {
    if (!copy) return at_.person.refuse(kNoneChosen);
    return attempt(at_, kFailure, [&] {
        const DataFolder& folder = at_.session.folder;
        if (copies_.changes(folder, *copy).empty()) return at_.person.refuse(kNothingToDo);
        if (!at_.person.agrees(confirmation(*copy))) return false;
        const FolderLock::Hold hold = holdFolder(at_);
        // First the month: cut short behind it, the command can still be given again.
        at_.files.remove(folder.file(kSelectedMonthName));
        copies_.restore(folder, *copy, at_.clock.now());
        return true;
    });
}

}  // namespace winvrx
