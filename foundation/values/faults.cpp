#include "foundation/values/faults.h"

namespace winvrx {

std::string explanationOf(const std::exception& fault) {
    if (const auto* known = dynamic_cast<const Fault*>(&fault)) return known->explanation();
    return std::string("Erro inesperado: ") + fault.what();
}

}  // namespace winvrx
