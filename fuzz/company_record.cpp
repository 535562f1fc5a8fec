#include "foundation/register/company_register.h"
#include "fuzz/invariant.h"

using namespace winvrx;
using fuzz::require;

namespace {

void checkLine(const CompanyLine& line) {
    require(encode(line.record, line.bytes) == fuzz::widened(line.bytes, kCompanyWidth),
            "an unchanged company keeps its bytes");
    if (const auto code = line.key()) fuzz::requireInside(*code);
    fuzz::requireBack(line.record, decode<Company>, "a company comes back");
}

}  // namespace

void fuzz::tryBytes(std::string_view bytes) {
    fuzz::AnyFile file(fuzz::kFolder.file(kCompanyRegisterName), bytes);
    const auto lines = loadCompanies(file.store);
    for (const CompanyLine& line : lines)
        checkLine(line);
    companyFile(file.store).save(lines);
    require(file.lines() == file.before, "every line is kept");
}
