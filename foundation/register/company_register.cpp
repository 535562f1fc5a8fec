#include "foundation/register/company_register.h"

#include <algorithm>

namespace winvrx {

namespace {

RecordFile registerFile(const Store& store) {
    return {store, kCompanyRegisterName};
}

}  // namespace

std::vector<CompanyLine> loadCompanies(const Store& store) {
    std::vector<CompanyLine> lines;
    for (std::string& bytes : registerFile(store).lines()) {
        Company company = decodeCompany(bytes);
        lines.push_back({std::move(bytes), std::move(company)});
    }
    return lines;
}

std::vector<CompanyLine> loadOrCreateCompanies(const Workplace& at) {
    const DataFolder& folder = at.session.folder;
    const auto missing = [&] { return !at.files.read(folder.file(kCompanyRegisterName)); };
    if (missing()) {
        const auto hold = holdFolder(at);
        const std::string sample = encode(sampleCompany(at.clock.today()));
        if (missing()) registerFile(at.store()).rewrite({sample});
    }
    return loadCompanies(at.store());
}

std::optional<Company> findCompany(const Store& store, const CompanyCode& code) {
    for (CompanyLine& line : loadCompanies(store))
        if (line.code() == code) return std::move(line.company);
    return std::nullopt;
}

void saveCompanies(const Store& store, const std::vector<CompanyLine>& lines) {
    std::vector<std::string> bytes;
    bytes.reserve(lines.size());
    for (const CompanyLine& line : lines)
        bytes.push_back(line.bytes);
    registerFile(store).rewrite(bytes);
}

std::string titleOf(const std::vector<CompanyLine>& companies,
                    const std::optional<CompanyCode>& code) {
    for (const CompanyLine& line : companies)
        if (code && line.code() == code) return code->text() + " " + line.company.name;
    return {};
}

std::optional<CompanyCode> lowestFreeCode(const std::vector<CompanyLine>& lines) {
    for (int number = 1; number <= CompanyCode::kHighest; ++number) {
        const auto code = CompanyCode::fromNumber(number);
        const bool taken = std::any_of(lines.begin(), lines.end(), [&](const CompanyLine& line) {
            return line.code() == code;
        });
        if (!taken) return code;
    }
    return std::nullopt;
}

}  // namespace winvrx
