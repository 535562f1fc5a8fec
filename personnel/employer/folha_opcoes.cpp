#include "personnel/employer/folha_opcoes.h"

namespace winvrx {

bool FolhaOpcoes::load() {
    return attempt(at_, incorrectData(), [this] {
        recorded_ = loadPayrollSettings(at_.store(), at_.session.company.value());
        chosen_ = recorded_.settings;
    });
}

std::size_t FolhaOpcoes::choice(std::size_t setting) const {
    return payrollSettings()[setting].value(chosen_);
}

void FolhaOpcoes::choose(std::size_t setting, std::size_t choice) {
    payrollSettings()[setting].choose(chosen_, choice);
}

std::string FolhaOpcoes::changesText() const {
    std::string text;
    for (const PayrollSetting& setting : payrollSettings()) {
        const std::size_t now = setting.value(chosen_);
        if (now == setting.value(recorded_.settings)) continue;
        text += std::string(setting.title) + ": " + std::string(setting.choices[now]) + "\n";
    }
    return text + "As folhas já gravadas ficam como estão.";
}

bool FolhaOpcoes::save() {
    if (!isChanged())
        return at_.person.refuse(refusal(kOptionsTitle, "Não Há Alterações para Gravação!"));
    if (!at_.person.agrees(
            question(kOptionsTitle, "Confirma Gravar as Opções da Folha?", changesText())))
        return false;
    return attemptWriting(at_, incorrectData(), [this] {
        const Store store = at_.store();
        const CompanyCode& company = at_.session.company.value();
        if (loadPayrollSettings(store, company).settings != recorded_.settings)
            throw changedElsewhere("payroll settings", "As opções foram alteradas");
        savePayrollSettings(store, company, chosen_);
        recorded_.settings = chosen_;
    });
}

bool FolhaOpcoes::confirmDiscard() {
    return !isChanged() || at_.person.agrees(discardTyped());
}

}  // namespace winvrx
