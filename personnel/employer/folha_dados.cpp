#include "personnel/employer/folha_dados.h"

namespace winvrx {

namespace {

const char* demandOf(FactKind kind) {
    if (kind == FactKind::Count) return "não é um número de 0 a 9.";
    return kind == FactKind::Percent ? "não é um percentual de 0 a 100, como 33,33."
                                     : "não é um valor em reais.";
}

}  // namespace

bool FolhaDados::load() {
    selected_.reset();
    return attempt(at_, incorrectData(),
                   [this] { list_.load(at_.store(), at_.session.company.value()); });
}

EmployeeKey FolhaDados::key() const {
    return {at_.session.company.value(), selected_.value().employeeCode().value()};
}

bool FolhaDados::select(std::size_t position) {
    selected_.reset();
    blamed_.reset();
    return attempt(at_, incorrectData(), [&] {
        const Employee& employee = list_.employees().at(position);
        recorded_ = loadPayrollFacts(
            at_.store(), {at_.session.company.value(), employee.employeeCode().value()});
        selected_ = employee;
    });
}

std::vector<std::string> FolhaDados::texts() const {
    std::vector<std::string> texts;
    for (const PayrollFact& fact : payrollFactTable())
        texts.push_back(fact.text(recorded_.facts));
    return texts;
}

bool FolhaDados::save(const std::vector<std::string>& typed) {
    blamed_.reset();
    if (!selected_) return at_.person.refuse(noEmployeeSelected());
    PayrollFacts facts;
    for (std::size_t place = 0; place < typed.size(); ++place) {
        const PayrollFact& fact = payrollFactTable()[place];
        if (fact.take(facts, typed[place])) continue;
        blamed_ = place;
        return at_.person.refuse(
            refusal(kFactsTitle, "Dado Incorreto!",
                    std::string(fact.title) + ": \"" + typed[place] + "\" " + demandOf(fact.kind)));
    }
    if (!at_.person.agrees(question(
            kFactsTitle, "Confirma Gravar os Dados para a Folha?",
            selected_->code + " " + selected_->name + "\nAs folhas já gravadas ficam como estão.")))
        return false;
    return attemptWriting(at_, incorrectData(), [&] {
        if (loadPayrollFacts(at_.store(), key()).facts != recorded_.facts)
            throw employeeChangedElsewhere("payroll facts");
        savePayrollFacts(at_.store(), key(), facts);
        recorded_.facts = facts;
    });
}

bool FolhaDados::confirmDiscard(const std::vector<std::string>& typed) {
    return !selected_ || typed == texts() || at_.person.agrees(discardTyped());
}

}  // namespace winvrx
