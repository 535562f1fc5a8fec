#include "foundation/values/faults.h"

namespace winvrx {

Fault changedElsewhere(const std::string& what, const std::string& subject,
                       const std::string& advice) {
    return {what + " changed on disk", subject + " por outro computador. " + advice};
}

Fault employeeChangedElsewhere(const std::string& what) {
    return changedElsewhere(what, "Este registro foi alterado",
                            "Selecione o funcionário novamente.");
}

std::string explanationOf(const std::exception& fault) {
    if (const auto* known = dynamic_cast<const Fault*>(&fault)) return known->explanation();
    return std::string("Erro inesperado: ") + fault.what();
}

}  // namespace winvrx
