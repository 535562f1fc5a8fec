// The commands of the documents screen that print and show.

#include "foundation/values/text.h"
#include "personnel/contract/contracted_employee.h"
#include "personnel/documents/documentos.h"
#include "personnel/documents/termination_file.h"

#include <utility>

namespace winvrx {

namespace {

constexpr std::string_view kTitle = "IMPRESSÃO";

const Message kEarlier = question(
    kTitle, "Este documento já foi feito para este funcionário. Deseja usar o anterior?",
    "\"Sim\" usa o que está gravado, com o que se mudou nele. \"Não\" faz um novo em seu lugar.",
    Buttons::YesNoCancel);
const Message kNotComposed = failure(kTitle, "O documento não foi feito.");
const Message kNoTermination =
    refusal("Aviso", "Este Funcionário não tem Rescisão do Contrato de Trabalho registrada!",
            "Registre-a na tela de Afastamento, tipo 008.");

/// A letter or digit of any file system's names; a blank for anything else.
std::string plainName(std::string_view text) {
    std::string name = upperCase(foldedForSearch(text));
    for (char& letter : name) {
        const bool isPlain = (letter >= 'A' && letter <= 'Z') || (letter >= '0' && letter <= '9');
        if (!isPlain) letter = ' ';
    }
    return std::string(trimmed(name));
}

/// The files as they were, to be put back.
class FormerFiles {
  public:
    FormerFiles(FileSystem& files, const std::vector<FileSystem::NewContent>& next)
        : files_(files) {
        for (const auto& one : next)
            former_.emplace_back(one.file, files.read(one.file));
    }
    void putBack() {
        for (const auto& [file, bytes] : former_)
            if (bytes)
                files_.replace(file, *bytes);
            else
                files_.remove(file);
    }

  private:
    FileSystem& files_;
    std::vector<std::pair<std::filesystem::path, std::optional<std::string>>> former_;
};

}  // namespace

bool Documentos::print() {
    return send(&Documentos::printFile);
}

bool Documentos::show() {
    return send(&Documentos::showFile);
}

bool Documentos::send(Send act) {
    blamed_.clear();
    return attempt(at_, kNotComposed, [&] {
        if (!requireSubject() || !requireSoundInputs() || !confirm()) return false;
        const bool isThere = at_.files.exists(paperFile());
        const Answer answer = isThere ? at_.person.ask(kEarlier) : Answer::No;
        if (answer == Answer::Cancel) return false;
        const FolderLock::Hold hold = holdFolder(at_);
        if (answer == Answer::Yes) return writeAndSend(act, terminationFiles());
        if (!writeAndSend(act, newFiles())) return false;
        for (const PaperInput& input : allInputsOf(paper_))
            typed_.erase(std::string(input.name));
        return true;
    });
}

bool Documentos::requireSubject() {
    const bool isOfTerminated = kindOf(paper_).isOfTerminated;
    if (!requireContractedEmployee(at_, selected(), employeeIsNeeded(), isOfTerminated))
        return false;
    // The records may have changed since the employee was selected.
    subject_ = loadSubject(at_.store(), key_.value(), *selected(), today());
    loadAccountIfDue();
    return !isOfTerminated || subject_.termination || at_.person.refuse(kNoTermination);
}

bool Documentos::requireSoundInputs() {
    for (const PaperInput& input : allInputsOf(paper_)) {
        const std::string found = finding(input);
        if (found.empty()) continue;
        blamed_ = input.name;
        return at_.person.refuse(
            refusal(kTitle, "Confira o campo \"" + std::string(input.caption) + "\".", found));
    }
    return true;
}

bool Documentos::confirm() {
    return at_.person.agrees(question(kTitle, kindOf(paper_).confirmation(), remark()));
}

bool Documentos::writeAndSend(Send act, const std::vector<FileSystem::NewContent>& files) {
    FormerFiles former(at_.files, files);
    at_.files.makeFolder(documentsFolder(at_.session.folder));
    try {
        // One lasts before the next is written: given again after a power cut, the command finds
        // what was typed beside the paper, and writes what follows it.
        for (const auto& one : files)
            at_.files.replace(one.file, one.bytes);
    } catch (...) {
        former.putBack();
        throw;
    }
    if (start(act)) return true;
    former.putBack();
    return false;
}

bool Documentos::start(Send act) {
    return attempt(at_, documentNotPrinted(), [&] { (this->*act)(paperFile()); });
}

std::vector<FileSystem::NewContent> Documentos::newFiles() const {
    std::vector<FileSystem::NewContent> files;
    PaperMemory memory(at_.store(), key_.value());
    bool isNew = false;
    for (const PaperInput& input : allInputsOf(paper_)) {
        const bool isFresh =
            input.type == InputType::Date && !offeredText(subject_, input.name).empty();
        if (!typed_.contains(input.name) || isFresh) continue;
        memory.keep(input.name, text(input.name));
        isNew = true;
    }
    if (isNew) files.push_back(memory.content());
    files.push_back({paperFile(), desk_.writer.fileOf(composedPaper())});
    for (auto& one : terminationFiles())
        files.push_back(std::move(one));
    return files;
}

/// An earlier paper needs it as well: it may have been printed before the termination was recorded.
std::vector<FileSystem::NewContent> Documentos::terminationFiles() const {
    const PaperKind& kind = kindOf(paper_);
    if (kind.terminationStem.empty() || !subject_.termination) return {};
    return {terminationFile(at_.store(), key_.value(), kind, subject_)};
}

std::filesystem::path Documentos::paperFile() const {
    const Employee& employee = subject_.employee;
    return documentsFolder(at_.session.folder) /
           (key_.value().company.text() + "-" + key_->employee.text() + " " +
            plainName(employee.name) + " - " + std::string(kindOf(paper_).key) +
            std::string(kDocumentSuffix));
}

}  // namespace winvrx
