#include "timecard/data_mes_corrente.h"

#include "foundation/text.h"
#include "timecard/selected_month.h"

#include <algorithm>

namespace winvrx {

namespace {

const Message kGiveUpChanges{
    "ALTERAÇÃO", "As alterações deste mês ainda não foram gravadas. Deseja abandoná-las?",
    Icon::Question, Buttons::YesNo};

constexpr std::string_view kBeforePresent = "Referente ao Mês: Anterior ao Atual";
constexpr std::string_view kPresent = "Referente ao Mês: Atual";
constexpr std::string_view kAfterPresent = "Referente ao Mês: Atual ao Posterior";
constexpr std::string_view kHolidayHeading = "Selecione os feriados no mês de: ";
constexpr std::string_view kDifferentiatedOff =
    "Desativado o uso de Percentual de Horas Extras Diárias Normais Diferenciado";
constexpr std::string_view kBothLevels = "Usar as 2 (duas) Opções de Horas Extras Minima e Máxima.";
constexpr std::string_view kSingleLevel =
    "Usar Somente 1 (um) Único Percentual de Horas Extras para ";
constexpr std::string_view kChangedElsewhere =
    "Este mês foi alterado por outro computador. Abra a tela novamente.";
constexpr int kMonthsBack = 24;
constexpr int kMonthsAhead = 12;

/// The value of a typed number; nullopt when it is none of the field's range.
std::optional<int> valueOf(const MonthNumberField& field, std::string_view typed) {
    return parseWholeNumber(typed, field.lowest, field.highest);
}

std::string withoutColon(std::string_view caption) {
    return std::string(caption.ends_with(':') ? caption.substr(0, caption.size() - 1) : caption);
}

}  // namespace

DataMesCorrente::DataMesCorrente(const Workplace& at) : at_(at) {
    recorded_.month = settings_.month = monthOf(at_.clock.today());
}

void DataMesCorrente::open() {
    (void)attempt(at_, incorrectData(), [this] {
        const auto selected = loadSelectedMonth(at_.files, at_.session.folder);
        load(selected ? selected->month : monthOf(at_.clock.today()));
        return true;
    });
}

void DataMesCorrente::load(WorkMonth month) {
    recorded_ = loadMonthSettings(at_.files, at_.session.folder, month);
    settings_ = recorded_;
    for (const MonthNumberField& field : kMonthNumberFields)
        numbers_.*field.typed = std::to_string(field.valueIn(settings_));
    switched_ = false;
}

std::vector<WorkMonth> DataMesCorrente::months() const {
    const WorkMonth present = monthOf(at_.clock.today());
    std::vector<WorkMonth> list;
    for (int step = -kMonthsBack; step <= kMonthsAhead; ++step)
        list.push_back(present + std::chrono::months{step});
    if (settings_.month < list.front()) list.insert(list.begin(), settings_.month);
    if (settings_.month > list.back()) list.push_back(settings_.month);
    return list;
}

bool DataMesCorrente::chooseMonth(WorkMonth month) {
    if (month == settings_.month) return true;
    if (!mayLeave()) return false;
    return attempt(at_, incorrectData(), [&] {
        load(month);
        return true;
    });
}

bool DataMesCorrente::chooseNextReference() {
    const WorkMonth present = monthOf(at_.clock.today());
    if (settings_.month < present) return chooseMonth(present);
    return chooseMonth(settings_.month == present ? present + std::chrono::months{1}
                                                  : present - std::chrono::months{1});
}

std::optional<Date> DataMesCorrente::dateOfCell(std::size_t cell) const {
    const std::size_t first = holidayCellOf(firstDay(settings_.month));
    if (cell < first || cell > holidayCellOf(lastDay(settings_.month))) return std::nullopt;
    return plusDays(firstDay(settings_.month), static_cast<int>(cell - first));
}

void DataMesCorrente::tick(Date date, bool holiday) {
    settings_.setHoliday(date, holiday);
}

void DataMesCorrente::clearTicks() {
    settings_.holidayCells.fill(false);
}

void DataMesCorrente::restoreTicks() {
    (void)attempt(at_, incorrectData(), [this] {
        const auto onDisk = loadMonthSettings(at_.files, at_.session.folder, settings_.month);
        recorded_.holidayCells = settings_.holidayCells = onDisk.holidayCells;
        return true;
    });
}

void DataMesCorrente::setRecordTicks(bool on) {
    settings_.recordTicks = on;
}

void DataMesCorrente::type(const MonthNumberField& field, std::string text) {
    numbers_.*field.typed = std::move(text);
}

std::string DataMesCorrente::findingOf(const MonthNumberField& field) const {
    if (valueOf(field, numbers_.*field.typed)) return {};
    return "Informe um número de " + std::to_string(field.lowest) + " a " +
           std::to_string(field.highest) + ".";
}

void DataMesCorrente::setDifferentiatedPercent(bool on) {
    settings_.overtime.differentiatedPercent = on;
    switched_ = true;
}

void DataMesCorrente::setMode(OvertimeMode mode) {
    settings_.overtime.mode = mode;
}

void DataMesCorrente::setTotalsFormat(TotalsFormat format) {
    settings_.overtime.totalsFormat = format;
}

void DataMesCorrente::setFixedMonth(bool fixed) {
    settings_.fixedMonth = fixed;
}

std::string DataMesCorrente::monthCaption() const {
    return upperCase(monthTitle(settings_.month));
}

std::string DataMesCorrente::holidayHeading() const {
    return std::string(kHolidayHeading) + monthCaption();
}

std::string_view DataMesCorrente::referenceCaption() const {
    const WorkMonth present = monthOf(at_.clock.today());
    if (settings_.month == present) return kPresent;
    return settings_.month < present ? kBeforePresent : kAfterPresent;
}

bool DataMesCorrente::refersToPresentMonth() const {
    return settings_.month == monthOf(at_.clock.today());
}

std::string DataMesCorrente::differentiatedCaption() const {
    const auto& [minimum, maximum, nightMinimum, nightMaximum, threshold, closingDay] = numbers_;
    if (settings_.overtime.differentiatedPercent)
        return "Ativado o uso de Percentual de Horas Extras Diárias Normais Diferenciado. Será "
               "de " +
               minimum + "% até " + threshold + " hs Extras diárias. Acima de " + threshold +
               " hs Extras será de " + maximum + "%.";
    if (switched_) return std::string(kDifferentiatedOff);
    return "Usar Percentual de Horas Extras Diárias Normais de " + minimum + "% até " + threshold +
           " hs. Acima de " + threshold + " hs será de " + maximum + "%.";
}

std::string DataMesCorrente::modeNotice() const {
    if (settings_.overtime.mode == OvertimeMode::BothLevels) return std::string(kBothLevels);
    return std::string(kSingleLevel) + numbers_.maximumPercent + "%";
}

bool DataMesCorrente::changed() const {
    MonthSettings shown = settings_;
    if (!shown.recordTicks) shown.holidayCells = recorded_.holidayCells;
    const bool typed = std::any_of(
        kMonthNumberFields.begin(), kMonthNumberFields.end(), [&](const MonthNumberField& field) {
            return valueOf(field, numbers_.*field.typed) != field.valueIn(recorded_);
        });
    return typed || shown != recorded_;
}

MonthSettings DataMesCorrente::checked() const {
    MonthSettings checked = settings_;
    for (const MonthNumberField& field : kMonthNumberFields) {
        const auto value = valueOf(field, numbers_.*field.typed);
        if (!value)
            throw Fault("not a number of its range: " + std::string(field.caption) + " " +
                            numbers_.*field.typed,
                        withoutColon(field.caption) + ": informe um número de " +
                            std::to_string(field.lowest) + " a " + std::to_string(field.highest) +
                            ".");
        field.put(checked, *value);
    }
    return checked;
}

void DataMesCorrente::write() {
    MonthSettings toWrite = checked();
    const auto onDisk = loadMonthSettings(at_.files, at_.session.folder, settings_.month);
    if (onDisk != recorded_) throw Fault("month changed on disk", std::string(kChangedElsewhere));
    if (!toWrite.recordTicks) toWrite.holidayCells = onDisk.holidayCells;
    saveMonthSettings(at_.files, at_.session.folder, toWrite);
    recorded_ = toWrite;
    const auto shownTicks = settings_.holidayCells;
    settings_ = toWrite;
    settings_.holidayCells = shownTicks;
}

bool DataMesCorrente::record() {
    return attemptWriting(at_, incorrectData(), [this] {
        write();
        return true;
    });
}

bool DataMesCorrente::confirm() {
    return attemptWriting(at_, incorrectData(), [this] {
        write();
        saveSelectedMonth(at_.files, at_.session.folder,
                          {settings_.month, at_.session.shiftFilter});
        return true;
    });
}

bool DataMesCorrente::mayLeave() {
    return !changed() || at_.person.agrees(kGiveUpChanges);
}

}  // namespace winvrx
