#include "personnel/employer/agencies.h"

namespace winvrx {

bool openAgencyPage(const Workplace& at, Browser& browser, const AgencyPage& page) {
    return browser.openPage(std::string(page.address)) ||
           at.person.refuse(failure(page.name, "Não foi possível Abrir a Página!",
                                    "Abra no navegador: " + std::string(page.address)));
}

}  // namespace winvrx
