#include "personnel/employer/agencies.h"

namespace winvrx {

bool openAgencyPage(const Workplace& at, Browser& browser, const AgencyPage& page) {
    if (browser.openPage(std::string(page.address))) return true;
    at.person.tell(failure(page.name, "Não foi possível Abrir a Página!",
                           "Abra no navegador: " + std::string(page.address)));
    return false;
}

}  // namespace winvrx
