#include "personnel/documents/documentos.h"

#include "foundation/files/record_names.h"
#include "foundation/register/company_register.h"
#include "foundation/values/text.h"

namespace winvrx {

Documentos::Documentos(const Workplace& at, const DocumentsDesk& desk)
    : at_(at), desk_(desk), list_(at.session.shiftFilter) {}

void Documentos::load() {
    (void)attempt(at_, incorrectData(), [this] {
        const CompanyCode& company = at_.session.company.value();
        companyTitle_ = titleOf(loadCompanies(at_.store()), company);
        list_.load(at_.store(), company);
        fill();
    });
}

bool Documentos::select(std::optional<std::size_t> position) {
    if (position == list_.selectedPosition()) return true;
    if (!confirmLeaving()) return false;
    list_.select(position);
    return attempt(at_, incorrectData(), [this] { fill(); });
}

/// Reads what is known of the employee selected; of none, nothing.
void Documentos::fill() {
    key_.reset();
    texts_.clear();
    typed_.clear();
    const Employee* employee = selected();
    const auto code = employee ? employee->employeeCode() : std::nullopt;
    if (!code) return;
    const EmployeeKey key{at_.session.company.value(), *code};
    subject_ = loadSubject(at_.store(), key, *employee, today());
    const PaperMemory memory(at_.store(), key);
    for (const PaperKind& kind : paperKinds())
        for (const PaperInput& input : allInputsOf(kind.paper)) {
            const std::string offered = offeredText(subject_, input.name);
            const bool isFresh = input.type == InputType::Date && !offered.empty();
            texts_.insert_or_assign(std::string(input.name),
                                    isFresh ? offered : memory.text(input.name).value_or(offered));
        }
    key_ = key;
    loadAccountIfDue();
}

/// The figures take the cards of a year: only for a paper that names them.
void Documentos::loadAccountIfDue() {
    const bool isDue = kindOf(paper_).isOfTerminated && key_ && subject_.termination;
    if (isDue && subject_.account.items.empty())
        subject_.account =
            loadAccount(at_.store(), desk_.legalFolder, key_->company, subject_.employee);
}

void Documentos::choose(Paper paper) {
    paper_ = paper;
    (void)attempt(at_, incorrectData(), [this] { loadAccountIfDue(); });
}

std::string Documentos::text(std::string_view input) const {
    const auto found = texts_.find(input);
    return found == texts_.end() ? std::string() : found->second;
}

void Documentos::type(std::string_view input, const std::string& text) {
    if (text == this->text(input)) return;
    texts_.insert_or_assign(std::string(input), text);
    typed_.insert(std::string(input));
}

std::string Documentos::finding(const PaperInput& input) const {
    if (std::string found = findingOf(input, text(input.name)); !found.empty()) return found;
    if (input.name != "periodo_fim") return {};
    const auto first = parseDate(text("periodo_inicio"));
    const auto last = parseDate(text("periodo_fim"));
    const bool fits = first && last && *first <= *last && *last < plusDays(*first, kMostSheetDays);
    return fits ? std::string() : "O período da folha tem de 1 a 31 dias.";
}

std::string Documentos::remark() const {
    if (paper_ == Paper::SalarioFamilia) return childrenRemark(texts_, today());
    const PaperKind& kind = kindOf(paper_);
    if (kind.terminationStem.empty() || !subject_.termination) return {};
    const std::string bars = "Depois de impresso, o funcionário não pode mais ser reativado.";
    const std::string& unknown = subject_.account.remark;
    return joined({bars, kind.isOfTerminated ? unknown : ""}, " ");
}

Document Documentos::composedPaper() const {
    if (!key_) return {};
    const std::string name = std::string(kindOf(paper_).key) + ".txt";
    return composed(loadTemplate(at_.files, desk_.templateFolders(), name), "DOCUMENTO",
                    paperWords(subject_, paper_, texts_));
}

bool Documentos::confirmLeaving() {
    return typed_.empty() || at_.person.agrees(discardTyped());
}

std::filesystem::path documentsFolder(const DataFolder& folder) {
    return folder.path() / kDocumentsSubfolder;
}

std::vector<std::filesystem::path> templateFolders(const DataFolder& folder,
                                                   const std::filesystem::path& programFolder) {
    return {documentsFolder(folder) / "modelos", programFolder / "documents"};
}

}  // namespace winvrx
