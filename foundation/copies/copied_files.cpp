#include "foundation/copies/copied_files.h"

#include "foundation/files/record_names.h"
#include "foundation/register/company_register.h"
#include "foundation/values/date.h"
#include "foundation/values/faults.h"
#include "foundation/values/text.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

constexpr std::size_t kLongestName = 200;
constexpr std::string_view kForbidden = "/\\:*?\"<>|";

/// Begins the suffix of the program's own locks and half-written files.
constexpr std::string_view kOwnMark = ".winvrx-";

constexpr std::array<std::string_view, 4> kDevices{"CON", "PRN", "AUX", "NUL"};
constexpr std::array<std::string_view, 2> kNumberedDevices{"COM", "LPT"};

/// "NUL" and "nul.txt" are the same device on Windows.
bool isDevice(std::string_view name) {
    const std::string stem = upperCase(trimmed(name.substr(0, name.find('.'))));
    if (std::find(kDevices.begin(), kDevices.end(), stem) != kDevices.end()) return true;
    return std::any_of(kNumberedDevices.begin(), kNumberedDevices.end(), [&](auto device) {
        return stem.starts_with(device) && characterCount(stem) == device.size() + 1;
    });
}

/// Both are the text of records, and no name may hold what they cannot.
bool isRecordText(std::string_view name) {
    try {
        return !encodeWindows1252(name).empty();
    } catch (const TextFault&) {
        return false;
    }
}

/// The month in "01001-03-2024.bdx", "03-2024ds.rdx" and "01001032024.pdx".
std::optional<WorkMonth> monthIn(std::string_view name) {
    if (name.ends_with("ds.rdx")) return parseMonthKey(name.substr(0, 7));
    if (name.size() >= 17 && name.ends_with(".bdx")) return parseMonthKey(name.substr(6, 7));
    if (name.size() < 12 || !name.ends_with(".pdx")) return std::nullopt;
    const std::string_view digits = name.substr(name.size() - 10, 6);
    return parseMonthKey(std::string(digits.substr(0, 2)) + "-" + std::string(digits.substr(2)));
}

/// What a file is within its company: the name behind the company code.
std::string subjectWithinCompany(std::string_view name) {
    const std::string_view rest = name.substr(2);
    if (rest == kEmployeeListStem) return "lista de funcionários";
    if (rest.starts_with(kScheduleStem)) return "horários padrão";
    if (rest.starts_with(kOvertimeStem)) return "horas extras";
    if (rest.find(kLeaveStem) != std::string_view::npos) return "afastamentos";
    if (rest.starts_with(kContractStem)) return "contratos de trabalho";
    if (rest.starts_with(kPaperInputsStem)) return "dados dos documentos";
    if (rest.starts_with(kVacationStem)) return "férias";
    if (rest.starts_with(kGroupStem)) return "grupos de revezamento";
    if (const auto month = monthIn(name)) {
        const bool card = name.ends_with(".bdx");
        return (card ? "cartões de " : "arquivos de ") + monthTitle(*month);
    }
    return "configurações e outros arquivos";
}

}  // namespace

bool isPlainFileName(std::string_view name) {
    if (name.empty() || name.size() > kLongestName || !isRecordText(name)) return false;
    if (name.find_first_of(kForbidden) != std::string_view::npos || isDevice(name)) return false;
    return name.front() != '.' && name.front() != ' ' && name.back() != '.' && name.back() != ' ';
}

bool isCopiedFile(std::string_view name) {
    if (!isPlainFileName(name) || name.find(kOwnMark) != std::string_view::npos) return false;
    return name != kStartMemoryName && name != kSelectedMonthName &&
           !name.starts_with(kReportDatabaseName);
}

std::string subjectOfFile(std::string_view name) {
    if (name == kCompanyRegisterName) return "Cadastro de empresas";
    if (name.starts_with("bk-")) return "Cópias por hora das listas de funcionários";
    const auto month = monthIn(name);
    if (month && name.ends_with("ds.rdx")) return "Configuração do mês de " + monthTitle(*month);
    const auto company = CompanyCode::parse(name.substr(0, 2));
    if (!company) return "Arquivo " + std::string(name);
    return "Empresa " + company->text() + ": " + subjectWithinCompany(name);
}

}  // namespace winvrx
