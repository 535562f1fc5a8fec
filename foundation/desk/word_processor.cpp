#include "foundation/desk/word_processor.h"

namespace winvrx {

Message documentNotPrinted() {
    return {"IMPRESSÃO",
            "Não foi possível Imprimir! O Microsoft Word pode não estar Instalado neste PC.",
            Icon::Exclamation};
}

}  // namespace winvrx
