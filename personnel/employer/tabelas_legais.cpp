#include "personnel/employer/tabelas_legais.h"

#include "foundation/files/record_file.h"
#include "foundation/values/csv.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::string_view kByMonth = "por mês de competência";
constexpr std::string_view kByDay = "por dia de pagamento";

constexpr std::array<LegalKind, std::size(kLegalFiles)> kKinds = {{
    {kLegalFiles[0], "Salário mínimo", kByMonth},
    {kLegalFiles[1], "INSS do empregado", kByMonth},
    {kLegalFiles[2], "Salário-família", kByMonth},
    {kLegalFiles[3], "IRRF: tabela", kByDay},
    {kLegalFiles[4], "IRRF: dedução por dependente", kByDay},
    {kLegalFiles[5], "IRRF: desconto simplificado", kByDay},
    {kLegalFiles[6], "IRRF: redução", kByDay},
}};

/// A figure so many times another one is taken for a slip.
constexpr int kFarApart = 2;

Message refused(std::string detail) {
    return refusal(kLegalTitle, "Linha da Tabela Incorreta!", std::move(detail));
}

bool isRemark(const std::vector<std::string>& cells) {
    return cells.front().starts_with('#') || (cells.size() == 1 && cells.front().empty());
}

std::optional<Date> validFrom(const std::string& cell) {
    if (const auto day = parseDate(cell)) return day;
    return parseDate("01/" + cell);
}

std::string lineText(const std::vector<std::string>& cells, char separator) {
    std::string line;
    for (const std::string& cell : cells)
        line += (line.empty() ? "" : std::string(1, separator) + " ") + cell;
    return line;
}

char separatorIn(std::string_view bytes) {
    const std::string_view first = bytes.substr(0, bytes.find('\n'));
    return std::ranges::count(first, '\t') > std::ranges::count(first, ';') ? '\t' : ';';
}

/// The user's file with `cells` in place of a line from the same day, or at its end; without such
/// a line where `cells` hold its day alone. Other lines keep their bytes.
std::string withLine(const std::string& own, Date from, const std::vector<std::string>& cells) {
    const CsvRows rows = parseCsv(own);
    std::vector<std::string> lines = splitLines(own);
    if (rows.size() != lines.size())
        throw LegalTableFault("line breaks inside cells of a legal table",
                              "O arquivo tem quebras de linha dentro de aspas. Corrija-o em um "
                              "editor de textos.");
    std::string typed = cells.empty() ? "" : lineText(cells, separatorIn(own));
    if (!isUtf8(own)) typed = encodeWindows1252(typed);
    bool isPlaced = typed.empty();
    for (std::size_t place = lines.size(); place-- > 1;) {
        if (isRemark(rows[place]) || validFrom(rows[place].front()) != from) continue;
        if (isPlaced)
            lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(place));
        else
            lines[place] = typed;
        isPlaced = true;
    }
    if (!isPlaced) lines.push_back(typed);
    return joinedLines(lines);
}

bool hasFigures(const std::string& own) {
    const CsvRows rows = parseCsv(own);
    return std::any_of(rows.begin() + 1, rows.end(),
                       [](const auto& row) { return !isRemark(row); });
}

}  // namespace

const std::array<LegalKind, std::size(kLegalFiles)>& legalKinds() {
    return kKinds;
}

std::filesystem::path TabelasLegais::ownFile(std::size_t kind) const {
    return at_.store().folder.file(kKinds.at(kind).file);
}

void TabelasLegais::read() {
    const Store store = at_.store();
    law_ = loadLegalTables(store, legalFolder_);
    for (std::size_t kind = 0; kind < kKinds.size(); ++kind) {
        Table table;
        table.delivered = store.files.read(legalFolder_ / kKinds[kind].file).value();
        table.own = store.files.read(ownFile(kind));
        const auto take = [&table](const std::string& bytes, bool isOwn) {
            CsvRows rows = parseCsv(bytes);
            if (!isOwn) table.headings = rows.front();
            for (auto row = rows.begin() + 1; row != rows.end(); ++row) {
                if (isRemark(*row)) continue;
                const auto from = validFrom(row->front());
                std::erase_if(table.rows, [&](const LegalRow& one) { return one.from == from; });
                table.rows.push_back({std::move(*row), from, isOwn});
            }
        };
        take(table.delivered, false);
        if (table.own) take(*table.own, true);
        std::ranges::stable_sort(table.rows, {}, &LegalRow::from);
        // A line of the user's may have more brackets than those delivered.
        for (const LegalRow& row : table.rows)
            while (table.headings.size() < row.cells.size())
                table.headings.insert(table.headings.end() - 1, "mais uma faixa");
        tables_[kind] = std::move(table);
    }
}

bool TabelasLegais::load() {
    return attempt(at_, incorrectData(), [this] { read(); });
}

std::vector<std::string> TabelasLegais::newLine(std::size_t kind) const {
    std::vector<std::string> cells = rows(kind).back().cells;
    const auto last = std::max(rows(kind).back().from.value_or(at_.clock.today()).year(),
                               at_.clock.today().year());
    const Date from = (last + std::chrono::years{1}) / std::chrono::January / 1;
    const bool isOfMonth = !parseDate(cells.front());
    cells.front() = isOfMonth ? dateText(from).substr(3) : dateText(from);
    cells.back().clear();
    return cells;
}

std::vector<std::string> TabelasLegais::doubts(std::size_t kind, const LegalRow& typed) const {
    std::vector<std::string> found;
    const LegalRow* before = nullptr;
    for (const LegalRow& row : rows(kind))
        if (row.from < typed.from) before = &row;
    for (const LegalRow& row : rows(kind))
        if (row.from == typed.from)
            found.push_back((row.isOwn ? "Fica no lugar da sua linha de "
                                       : "Fica no lugar da linha entregue de ") +
                            row.cells.front() + ".");
    if (before == nullptr || before->cells.size() != typed.cells.size()) return found;
    for (std::size_t at = 1; at + 1 < typed.cells.size(); ++at) {
        const auto money = parseMoney(typed.cells[at]);
        const auto was = parseMoney(before->cells[at]);
        if (!money || !was) continue;
        if (money->cents > was->cents * kFarApart || money->cents * kFarApart < was->cents)
            found.push_back(headings(kind).at(at) + ": " + typed.cells[at] +
                            " está longe do valor anterior, " + before->cells[at] + ".");
    }
    return found;
}

void TabelasLegais::replaceOwn(std::size_t kind, const std::string& bytes) {
    const auto stands = at_.files.read(ownFile(kind));
    if (stands != tables_[kind].own) throw changedElsewhere("legal table", "A tabela foi alterada");
    if (hasFigures(bytes))
        at_.files.replaceAll({{ownFile(kind), bytes}});
    else
        (void)at_.files.remove(ownFile(kind));
    read();
}

bool TabelasLegais::save(std::size_t kind, const std::vector<std::string>& cells) {
    LegalRow typed{{}, validFrom(std::string(trimmed(cells.front()))), true};
    for (const std::string& cell : cells)
        typed.cells.emplace_back(trimmed(cell));
    const auto isBad = [](const std::string& cell) {
        return cell.find_first_of(";\"\t\r\n") != std::string::npos;
    };
    if (std::ranges::any_of(typed.cells, isBad) || typed.cells.front().starts_with('#'))
        return at_.person.refuse(
            refused("Aspas, ponto e vírgula e tabulação não entram em uma coluna."));
    return attempt(at_, incorrectData(), [&] {
        const auto bytes = understood(kind, typed);
        if (!bytes) return false;
        std::string detail = lineText(typed.cells, ';');
        for (const std::string& doubt : doubts(kind, typed))
            detail += "\n" + doubt;
        if (!at_.person.agrees(
                question(kLegalTitle, "Confirma Gravar esta Linha da Tabela?", std::move(detail))))
            return false;
        const auto hold = holdFolder(at_);
        replaceOwn(kind, *bytes);
        return true;
    });
}

std::optional<std::string> TabelasLegais::understood(std::size_t kind,
                                                     const LegalRow& typed) const {
    try {
        const std::string heading = lineText(headings(kind), ';') + "\r\n";
        std::string bytes =
            withLine(tables_[kind].own.value_or(heading), typed.from.value_or(Date{}), typed.cells);
        LegalTables tried;
        addLegalLines(tried, kKinds[kind].file, bytes);
        return bytes;
    } catch (const Fault& fault) {
        at_.person.tell(refused(fault.explanation()));
        return std::nullopt;
    }
}

bool TabelasLegais::remove(std::size_t kind, std::size_t row) {
    const LegalRow& line = rows(kind).at(row);
    if (!line.isOwn || !line.from)
        return at_.person.refuse(
            refusal(kLegalTitle, "As Linhas Entregues com o Programa não se Excluem!",
                    "Grave uma linha sua do mesmo dia: ela fica no lugar da entregue."));
    if (!at_.person.agrees(riskyQuestion(kLegalTitle, "Confirma Excluir esta Linha da Tabela?",
                                         lineText(line.cells, ';'))))
        return false;
    return attemptWriting(at_, incorrectData(), [&] {
        replaceOwn(kind, withLine(tables_[kind].own.value(), *line.from, {}));
    });
}

}  // namespace winvrx
