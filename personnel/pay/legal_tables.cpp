#include "personnel/pay/legal_tables.h"

#include "foundation/files/file_system.h"

#include <array>
#include <iterator>

namespace winvrx {

namespace {

constexpr int kHighestRate = 100;

Fraction takeRate(LegalLine& line) {
    Fraction rate = line.takeNumber();
    if (rate > Fraction(kHighestRate)) throw line.fault("a alíquota passa de 100%.");
    return rate;
}

void requireRising(const LegalLine& line, const std::vector<Bracket>& brackets) {
    for (std::size_t i = 1; i < brackets.size(); ++i)
        if (brackets[i].top <= brackets[i - 1].top || brackets[i].rate <= brackets[i - 1].rate)
            throw line.fault("as faixas devem subir em valor e em alíquota.");
}

LegalAmount amountByMonth(LegalLine& line) {
    return {line.takeMonth(), line.takeMoney()};
}

LegalAmount amountByDay(LegalLine& line) {
    return {line.takeDay(), line.takeMoney()};
}

InssTable inssOf(LegalLine& line) {
    InssTable table{line.takeMonth(), {}};
    do {
        const Money top = line.takeMoney();
        table.brackets.push_back({top, takeRate(line)});
    } while (!line.isAtSource());
    requireRising(line, table.brackets);
    return table;
}

SalaryFamily salaryFamilyOf(LegalLine& line) {
    return {line.takeMonth(), line.takeMoney(), line.takeMoney()};
}

IncomeTaxTable incomeTaxOf(LegalLine& line) {
    IncomeTaxTable table{line.takeDay(), {{line.takeMoney(), 0}}};
    while (!line.isAtSource()) {
        // "acima; 27,5; 908,73": the last bracket has no top, so it begins with its rate.
        const Money top = line.hasLeft(2) ? kNoTop : line.takeMoney();
        const Fraction rate = takeRate(line);
        table.brackets.push_back({top, rate, line.takeMoney()});
    }
    if (table.brackets.back().top != kNoTop) throw line.fault("falta a faixa sem limite.");
    requireRising(line, table.brackets);
    return table;
}

TaxReduction taxReductionOf(LegalLine& line) {
    TaxReduction reduction{line.takeDay(),   line.takeMoney(), line.takeMoney(),
                           line.takeMoney(), line.takeMoney(), takeRate(line)};
    if (reduction.upTo < reduction.fullUpTo)
        throw line.fault("o limite da redução parcial é menor que o da redução total.");
    return reduction;
}

/// All lines are read before the first is taken.
template <typename Line>
void addAll(DatedTable<Line>& table, std::vector<LegalLine> lines, Line (*read)(LegalLine&)) {
    std::vector<Line> added;
    for (LegalLine& line : lines) {
        Line one = read(line);
        line.requireSource();
        if (std::ranges::find(added, one.from, &Line::from) != added.end())
            throw line.fault("o início " + dateText(one.from) + " já está em outra linha.");
        added.push_back(std::move(one));
    }
    for (Line& one : added)
        table.add(std::move(one));
}

template <auto Table, auto Read>
void addKind(LegalTables& tables, std::vector<LegalLine> lines) {
    addAll(tables.*Table, std::move(lines), Read);
}

/// In the order of kLegalFiles.
constexpr std::array<void (*)(LegalTables&, std::vector<LegalLine>), std::size(kLegalFiles)>
    kReaders = {addKind<&LegalTables::minimumWage, amountByMonth>,
                addKind<&LegalTables::inss, inssOf>,
                addKind<&LegalTables::salaryFamily, salaryFamilyOf>,
                addKind<&LegalTables::incomeTax, incomeTaxOf>,
                addKind<&LegalTables::dependant, amountByDay>,
                addKind<&LegalTables::simplifiedDiscount, amountByDay>,
                addKind<&LegalTables::taxReduction, taxReductionOf>};

/// Past the last line is a day of a later year: such figures are set anew each year.
template <typename Line>
void warn(std::vector<std::string>& warnings, const DatedTable<Line>& table, Date date) {
    if (!table.find(date))
        warnings.push_back(table.lackText(date));
    else if (date.year() > table.lines().back().from.year())
        warnings.push_back("A última linha de " + table.name() + " vale desde " +
                           dateText(table.lines().back().from) + ". Confira se ainda vale em " +
                           dateText(date) + ".");
}

}  // namespace

std::vector<std::string> LegalTables::warnings(WorkMonth competence, Date paid) const {
    std::vector<std::string> found;
    warn(found, minimumWage, firstDay(competence));
    warn(found, inss, firstDay(competence));
    warn(found, salaryFamily, firstDay(competence));
    warn(found, incomeTax, paid);
    return found;
}

void addLegalLines(LegalTables& tables, std::string_view file, std::string_view bytes) {
    const auto place = std::ranges::find(kLegalFiles, file);
    if (place == std::end(kLegalFiles))
        throw LegalTableFault("no legal table " + std::string(file),
                              std::string(file) + " não é o nome de uma tabela legal.");
    kReaders[static_cast<std::size_t>(place - std::begin(kLegalFiles))](tables,
                                                                        legalLines(file, bytes));
}

LegalTables loadLegalTables(const Store& store, const std::filesystem::path& folder) {
    LegalTables tables;
    for (const std::string_view file : kLegalFiles) {
        const auto delivered = store.files.read(folder / file);
        if (!delivered)
            throw LegalTableFault("missing " + (folder / file).string(),
                                  "Falta a tabela legal " + std::string(file) +
                                      " na pasta do programa. Instale o programa novamente.");
        addLegalLines(tables, file, *delivered);
        if (const auto own = store.files.read(store.folder.file(file)))
            addLegalLines(tables, file, *own);
    }
    return tables;
}

}  // namespace winvrx
