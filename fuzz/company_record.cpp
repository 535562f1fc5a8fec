#include "foundation/register/company_register.h"
#include "foundation/values/faults.h"
#include "fuzz/invariant.h"

using namespace winvrx;
using fuzz::require;

namespace {

void checkLine(const CompanyLine& line) {
    require(encode(line.record, line.bytes) == fuzz::widened(line.bytes, kCompanyWidth),
            "an unchanged company keeps its bytes");
    if (const auto code = line.key()) fuzz::requireInside(*code);
    try {
        require(decode<Company>(encode(line.record)) == line.record, "a company comes back");
    } catch (const TextFault&) {
        // A control character in the file cannot be typed into a new line.
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    testing::MemoryFiles files;
    const auto file = fuzz::kFolder.file(kCompanyRegisterName);
    files.content[file] = fuzz::textOf(data, size);
    const auto before = splitLines(files.content[file]);
    const auto lines = loadCompanies({files, fuzz::kFolder});
    for (const CompanyLine& line : lines)
        checkLine(line);
    companyFile({files, fuzz::kFolder}).save(lines);
    require(splitLines(files.content[file]) == before, "every line is kept");
    return 0;
}
