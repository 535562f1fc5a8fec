#pragma once

#include "foundation/files/data_folder.h"
#include "personnel/pay/legal_file.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What the law sets in reais and per cent, each figure with the month or the day from which it is
// valid. INSS, minimum wage and salary-family go by the month of competence; everything of the
// IRRF goes by the day of payment.

namespace winvrx {

struct MinimumWage {
    Date from{};
    Money amount{};
    std::string source;
};

struct Bracket {
    Money top;      ///< of the IRRF's last one: none, kNoTop
    Fraction rate;  ///< per cent
    Money deduction = {};
};
inline constexpr Money kNoTop{INT64_MAX};

struct InssTable {
    Date from{};
    std::vector<Bracket> brackets;  ///< rising; the last top is the ceiling
    std::string source;

    [[nodiscard]] Money ceiling() const { return brackets.back().top; }
};

struct SalaryFamily {
    Date from{};
    Money quota{};
    Money limit{};  ///< the highest month's pay that has it
    std::string source;
};

struct IncomeTaxTable {
    Date from{};
    std::vector<Bracket> brackets;  ///< rising; the first has the rate 0, the last no top
    std::string source;
};

/// What each dependant takes off the base.
struct DependantDeduction {
    Date from{};
    Money amount{};
    std::string source;
};

/// The discount that may be taken instead of all legal deductions; zero where there is none.
struct SimplifiedDiscount {
    Date from{};
    Money amount{};
    std::string source;
};

/// Lei 9.250/1995, art. 3º-A: up to `fullUpTo` the tax falls by at most `most`, up to `upTo` by
/// start − rate × income.
struct TaxReduction {
    Date from{};
    Money fullUpTo{};
    Money most{};
    Money upTo{};
    Money start{};
    Fraction rate{};
    std::string source;
};

/// Where a day lies among the lines of a table.
enum class TableCoverage { BeforeFirst, Within, PastLast };

/// The lines of one kind, by the day from which they are valid.
template <typename Line>
class DatedTable {
  public:
    DatedTable() = default;
    explicit DatedTable(std::string name) : name_(std::move(name)) {}

    /// Takes a line; one that is valid from the same day gives way.
    void add(Line line) {
        const auto place = std::ranges::lower_bound(lines_, line.from, {}, &Line::from);
        if (place != lines_.end() && place->from == line.from)
            *place = std::move(line);
        else
            lines_.insert(place, std::move(line));
    }

    [[nodiscard]] const std::vector<Line>& lines() const { return lines_; }
    [[nodiscard]] const std::string& name() const { return name_; }

    /// nullptr before the first line.
    [[nodiscard]] const Line* find(Date date) const {
        const auto next = std::ranges::upper_bound(lines_, date, {}, &Line::from);
        return next == lines_.begin() ? nullptr : &*std::prev(next);
    }

    /// Throws LegalTableFault before the first line, naming from when the table goes.
    [[nodiscard]] const Line& at(Date date) const {
        if (const Line* line = find(date)) return *line;
        throw LegalTableFault("no " + name_ + " for " + dateText(date),
                              "Não há " + name_ + " para " + dateText(date) + ": " + beginning());
    }

    /// Past the last line is a day of a later year than that line: such figures are set anew each
    /// year.
    [[nodiscard]] TableCoverage coverageOf(Date date) const {
        if (!find(date)) return TableCoverage::BeforeFirst;
        return date.year() > lines_.back().from.year() ? TableCoverage::PastLast
                                                       : TableCoverage::Within;
    }

    /// "a tabela começa em 01/03/2020."
    [[nodiscard]] std::string beginning() const {
        if (lines_.empty()) return "a tabela está vazia.";
        return "a tabela começa em " + dateText(lines_.front().from) + ".";
    }

  private:
    std::string name_;
    std::vector<Line> lines_;
};

struct LegalTables {
    DatedTable<MinimumWage> minimumWage{"salário mínimo"};
    DatedTable<InssTable> inss{"tabela do INSS"};
    DatedTable<SalaryFamily> salaryFamily{"salário-família"};
    DatedTable<IncomeTaxTable> incomeTax{"tabela do IRRF"};
    DatedTable<DependantDeduction> dependant{"dedução por dependente"};
    DatedTable<SimplifiedDiscount> simplifiedDiscount{"desconto simplificado"};
    DatedTable<TaxReduction> taxReduction{"redução do IRRF"};

    /// A sentence for each table that has no line of the month's own year, or none at all, for a
    /// payroll of `competence` paid on `paid`; empty when all have.
    [[nodiscard]] std::vector<std::string> warnings(WorkMonth competence, Date paid) const;
};

/// The files' names, in the program's folder "legal" and, with the user's own lines, in the data
/// folder.
inline constexpr std::string_view kLegalFiles[] = {
    "salario-minimo.txt",  "inss.txt",
    "salario-familia.txt", "irrf-tabela.txt",
    "irrf-dependente.txt", "irrf-desconto-simplificado.txt",
    "irrf-reducao.txt"};

/// Adds the lines of a file of that name. Throws LegalTableFault for a bad line and TextFault for
/// bytes that are no text; the tables are then as they were.
void addLegalLines(LegalTables& tables, std::string_view file, std::string_view bytes);

/// The delivered files of `folder`, each of which must stand there, and over them the user's own
/// lines of the data folder. Throws LegalTableFault, TextFault, FileFault.
[[nodiscard]] LegalTables loadLegalTables(const Store& store, const std::filesystem::path& folder);

}  // namespace winvrx
