#include "report/impressorar.h"

#include "report/print_pages.h"

#include <algorithm>
#include <utility>

namespace winvrx {

namespace {

const Message kNoAddDialogue =
    refusal(kImpressorarTitle, "Ocorreu Erro",
            "Este computador não tem uma tela para adicionar impressoras. Peça a "
            "quem cuida dele.");

}  // namespace

Impressorar::Impressorar(const Workplace& at, Printers& printers) : at_(at), printers_(printers) {}

void Impressorar::load() {
    (void)attempt(at_, incorrectData(), [this] {
        names_ = printers_.names();
        chosen_ = loadPrinterName(at_.store());
    });
}

bool Impressorar::refreshPrinters() {
    return std::exchange(names_, printers_.names()) != names_;
}

std::vector<std::string> Impressorar::entries() const {
    std::vector<std::string> entries;
    for (const std::string& name : names_)
        entries.push_back(printerEntry(entries.size() + 1, name));
    return entries;
}

std::optional<std::size_t> Impressorar::position() const {
    const auto meant = printersMeant(names_, chosen_);
    if (chosen_.empty() || meant.size() != 1) return std::nullopt;
    return static_cast<std::size_t>(std::ranges::find(names_, meant.front()) - names_.begin());
}

std::string Impressorar::problem() const {
    if (!chosen_.empty()) return printerProblem(names_, chosen_);
    const bool stands = std::ranges::find(names_, printers_.defaultName()) != names_.end();
    return stands ? std::string() : "O sistema não tem impressora padrão.";
}

bool Impressorar::useDefault() {
    return store({});
}

bool Impressorar::use(std::size_t position) {
    const std::string name = names_.at(position);
    const auto installed = printers_.names();
    if (std::ranges::find(installed, name) != installed.end()) return store(name);
    Message gone = printerGone(std::string(kImpressorarTitle));
    gone.detail = "A impressora " + name + " não está mais instalada.";
    at_.person.tell(gone);
    names_ = installed;
    return false;
}

bool Impressorar::store(const std::string& name) {
    return attemptWriting(at_, incorrectData(), [&] {
        if (loadPrinterName(at_.store()) != chosen_)
            throw changedElsewhere("printer", "A impressora foi trocada");
        savePrinterName(at_.store(), name);
        chosen_ = name;
    });
}

bool Impressorar::add() {
    return printers_.openAddDialogue() || at_.person.refuse(kNoAddDialogue);
}

}  // namespace winvrx
