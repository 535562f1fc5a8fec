// usage: payroll_cases FILE
// Computes each case of a table and says of each figure "id;same|differs|unknown;name;expected;
// computed", then "N same, M differ". Ends with 1 when a figure differs, with 2 when the file
// cannot be read. Both ways of rounding the INSS are tried: the second, marked "(R)", for the
// figures that the table gives for it; what it leaves out is compared with the first alone.

#include "foundation/files/file_system.h"
#include "tests/payroll_cases/topics.h"
#include "tests/support/legal_tables.h"

#include <iostream>

namespace {

using namespace winvrx;
using namespace winvrx::testing;

/// "90" is "90.00"; other texts are compared as they are.
bool isSame(const std::string& a, const std::string& b) {
    if (a == b) return true;
    const auto first = parseDecimal(a, '.');
    return first && first == parseDecimal(b, '.');
}

class Comparison {
  public:
    explicit Comparison(LegalTables tables) : tables_(std::move(tables)) {}

    void compare(const PayrollCase& one) {
        compare(one, one.expected, {}, "");
        PayrollSettings rounded;
        rounded.inssRounding = InssRounding::RoundedOnce;
        compare(one, one.expectedRounded, rounded, " (R)");
    }

    [[nodiscard]] int finish() const {
        std::cout << same_ << " same, " << differ_ << " differ\n";
        return differ_ > 0 ? 1 : 0;
    }

  private:
    void compare(const PayrollCase& one, const NamedValues& expected,
                 const PayrollSettings& settings, const char* mark) {
        CaseFigures figures;
        std::string cause;
        try {
            figures = figuresOf(one, tables_, settings);
        } catch (const std::exception& unknown) {
            cause = unknown.what();
        }
        for (const auto& [name, value] : expected) {
            const auto computed = figures.find(name);
            const char* verdict = "unknown";
            if (computed) verdict = isSame(value, *computed) ? "same" : "differs";
            if (computed) ++(isSame(value, *computed) ? same_ : differ_);
            std::cout << one.id << ';' << verdict << ';' << name << mark << ';' << value << ';'
                      << computed.value_or(cause) << '\n';
        }
    }

    LegalTables tables_;
    int same_ = 0;
    int differ_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
    try {
        const auto files = systemFiles();
        const auto table = argc == 2 ? files->read(argv[1]) : std::nullopt;
        if (!table) {
            std::cerr << "usage: payroll_cases FILE\n";
            return 2;
        }
        Comparison comparison(legalTablesIn(WINVRX_LEGAL_FOLDER));
        for (const PayrollCase& one : parsePayrollCases(*table))
            comparison.compare(one);
        return comparison.finish();
    } catch (const std::exception& fault) {
        std::cerr << explanationOf(fault) << '\n';
        return 2;
    }
}
