#include "output/stocks/cartao_pontos.h"

#include "foundation/register/company_register.h"
#include "foundation/values/text.h"
#include "output/stocks/card_rows.h"
#include "report/print_pages.h"

#include <algorithm>
#include <array>
#include <utility>

namespace winvrx {

namespace {

const Message kConfirmReset =
    riskyQuestion("EXCLUSÃO", "Confirma a Volta de Todos os Alinhamentos ao Padrão?",
                  "Os ajustes de todos os tipos de cartão voltam a 10 e 10, e a impressão "
                  "deixa de descer em linhas.");
/// What is said to have changed.
constexpr auto kAlignmentChanged = "O alinhamento foi alterado";

Message confirmTest(const CardStock& stock) {
    return question(
        "Imprimir Teste",
        "Coloque um Cartão " + std::string(stock.displayName) +
            " na Impressora! Pressione SIM para Imprimir ou NÃO para Cancelar Impressão.");
}

Offsets moved(Offsets offsets, Direction direction) {
    const bool across = direction == Direction::Left || direction == Direction::Right;
    const bool back = direction == Direction::Left || direction == Direction::Up;
    int& offset = across ? offsets.horizontal : offsets.vertical;
    offset = std::clamp(offset + (back ? -kOffsetStep : kOffsetStep), 0, kGreatestOffset);
    return offsets;
}

/// In the middle of each half of the month.
constexpr std::array<std::size_t, 2> kMonthRows = {7, 22};

DaySchedule sampleTimes() {
    return {.morning = {parseTime("08:00"), parseTime("12:00")},
            .afternoon = {parseTime("13:00"), parseTime("17:00")}};
}

std::vector<PunchLine> samplePunches(WorkMonth month) {
    std::vector<PunchLine> lines = blankMonth(month);
    for (PunchLine& line : lines) {
        line.morningEntry = "08:00";
        line.morningExit = "12:00";
        line.afternoonEntry = "13:00";
        line.afternoonExit = "17:00";
        line.extraEntry = "18:00";
        line.extraExit = "19:00";
    }
    for (const std::size_t row : kMonthRows) {
        PunchLine said;
        said.label = lines.at(row).label;
        said.situation = monthTitle(month);
        lines.at(row) = said;
    }
    return lines;
}

/// A card with a time in every place of nearly every day, to align the print by. It belongs to
/// nobody. The month, "novembro/2026", stands in its header block and once among the days of each
/// half, so that a card without the header block and the back of a card say it too.
ReportRows sampleCardRows(const Company& company, WorkMonth month) {
    Employee employee;
    employee.code = "000";
    employee.name = "CARTÃO DE TESTE";
    employee.function = "TESTE DE ALINHAMENTO";
    employee.admission = dateText(firstDay(month));
    MonthSettings settings;
    settings.month = month;
    StandardSchedule schedule;
    schedule.weekday = sampleTimes();
    return cardRows({.company = company,
                     .employee = employee,
                     .settings = settings,
                     .schedule = schedule,
                     .punches = samplePunches(month)});
}

}  // namespace

std::string lineOffsetText(int lines) {
    return lines == 0 ? "nenhuma" : countOf(lines, "Linha");
}

CartaoPontos::CartaoPontos(const Workplace& at, const CartaoPontosDesk& desk)
    : at_(at), desk_(desk), calibration_(at, desk.engine, std::string(kCartaoPontosTitle)) {}

void CartaoPontos::load() {
    (void)attempt(at_, incorrectData(), [this] {
        printer_ = loadPrinterName(at_.store());
        feed_ = loadPrinterMemory(at_.store(), *at_.session.company);
        company_ = findCompany(at_.store(), *at_.session.company).value_or(Company());
        const CardStock* stock = loadStock(at_.store(), *at_.session.company);
        entry_ = stock ? alignmentEntryOf(stock->code).value_or(0) : 0;
        readSelected();
    });
}

std::vector<const CardStock*> CartaoPontos::entries() {
    std::vector<const CardStock*> stocks;
    for (const std::string_view code : kPrintOrder)
        stocks.push_back(findStock(code));
    return stocks;
}

bool CartaoPontos::select(std::size_t entry) {
    const std::size_t former = std::exchange(entry_, entry);
    const bool read = attempt(at_, incorrectData(), [this] { readSelected(); });
    if (!read) entry_ = former;
    return read;
}

void CartaoPontos::readSelected() {
    std::vector<Offsets> alignments = loadOffsets(at_.store());
    calibration_.load({printer(), std::string(stock().code)}, {printer_, feed_.trays});
    alignments_ = std::move(alignments);
}

const CardStock& CartaoPontos::stock() const {
    return *findStock(kPrintOrder.at(entry_));
}

Alignment CartaoPontos::alignment() const {
    return {.horizontalTwips = offsets().horizontal,
            .verticalTwips = offsets().vertical,
            .lines = desk_.memory.lines,
            .scale = calibration_.scale()};
}

bool CartaoPontos::move(Direction direction) {
    return attemptWriting(at_, incorrectData(), [&] {
        if (loadOffsets(at_.store())[entry_] != offsets())
            throw changedElsewhere("alignment", kAlignmentChanged);
        const Offsets now = moved(offsets(), direction);
        saveOffsets(at_.store(), entry_, now);
        alignments_[entry_] = now;
    });
}

bool CartaoPontos::reset() {
    if (!at_.person.agrees(kConfirmReset)) return false;
    return attemptWriting(at_, incorrectData(), [this] {
        removeOffsets(at_.store());
        alignments_.assign(kAlignmentEntries, Offsets());
        desk_.memory.lines = 0;
    });
}

std::string CartaoPontos::lineOffset() const {
    return lineOffsetText(desk_.memory.lines);
}

void CartaoPontos::typeLineOffset(std::string_view text) {
    int& lines = desk_.memory.lines;
    for (lines = kGreatestLineOffset; lines >= 0; --lines)
        if (lineOffsetText(lines) == text) return;
    lines = trimmed(text).empty() ? 0 : 1;
}

std::string CartaoPontos::printer() const {
    return printer_.empty() ? desk_.printers.defaultName() : printer_;
}

bool CartaoPontos::printTest() {
    if (!at_.person.agrees(confirmTest(stock()))) return false;
    const ReportRequest request{.layoutName = layoutName(),
                                .title = "Imprimir Teste",
                                .columns = cardColumns(),
                                .printHeader = feed_.printHeader,
                                .alignment = alignment(),
                                .exit = feed_.exit,
                                .noun = cardNoun(),
                                .output = ReportOutput::Printer,
                                .printerName = printer_,
                                .trays = feed_.trays};
    const auto card = [this](std::size_t) { return sampleRows(); };
    return printPages({at_, desk_.engine}, request, {1, card}) == PrintEnd::Done;
}

std::string CartaoPontos::layoutName() const {
    return layoutFor(stock().code, feed_.tray, LayoutSet::B).value();
}

ReportRows CartaoPontos::sampleRows() const {
    return sampleCardRows(company_, monthOf(at_.clock.today()));
}

}  // namespace winvrx
