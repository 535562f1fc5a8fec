#include "timecard/month/data_mes_corrente.h"

#include "foundation/values/text.h"
#include "timecard/month/selected_month.h"

#include <algorithm>

namespace winvrx {

namespace {

const Message kGiveUpChanges = riskyQuestion(
    "ALTERAÇÃO", "As alterações deste mês ainda não foram gravadas. Deseja abandoná-las?");

const Message kOfferedHolidays =
    question("Feriados", "Há feriados sugeridos que não estão marcados. Deseja marcá-los?", {},
             Buttons::YesNoCancel);

MonthSettings withRulesOf(MonthSettings settings, const MonthSettings& model) {
    settings.overtime = model.overtime;
    settings.closingDay = model.closingDay;
    settings.fixedMonth = model.fixedMonth;
    return settings;
}

constexpr int kMonthsBack = 24;
constexpr int kMonthsAhead = 12;

}  // namespace

DataMesCorrente::DataMesCorrente(const Workplace& at) : at_(at) {
    opened_.month = settings_.month = monthOf(at_.clock.today());
}

void DataMesCorrente::open() {
    (void)attempt(at_, incorrectData(), [this] {
        const auto selected = loadSelectedMonth(at_.store());
        const WorkMonth present = monthOf(at_.clock.today());
        load(selected ? selected->month : at_.session.lastMonth.value_or(present));
    });
}

void DataMesCorrente::load(WorkMonth month) {
    auto offer = offeredHolidays(at_.store(), month);
    auto record = findMonthRecord(at_.store(), month);
    auto ownPercents = ownPercentsOfList(at_, month);
    const auto before = record ? std::nullopt : lastRecordedBefore(at_.store(), month);
    model_ = before ? std::optional(loadMonthSettings(at_.store(), *before)) : std::nullopt;
    offer_ = std::move(offer);
    takeRecord(std::move(record));
    ownPercents_ = std::move(ownPercents);
    settings_ = {};
    settings_.month = month;
    opened_ = settings_ = onDisk_.value_or(settings_);
    offerSettled_ = false;
    numbers_ = numbersOf(settings_);
    switched_ = false;
}

void DataMesCorrente::takeRecord(std::optional<MonthRecord> record) {
    onDisk_ = record ? std::optional(record->settings) : std::nullopt;
    unread_ = record ? std::move(record->unread) : std::vector<UnreadLine>();
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
    return attempt(at_, incorrectData(), [&] { load(month); });
}

bool DataMesCorrente::chooseNextReference() {
    const WorkMonth present = monthOf(at_.clock.today());
    if (settings_.month < present) return chooseMonth(present);
    return chooseMonth(settings_.month == present ? present + kOneMonth : present - kOneMonth);
}

std::optional<Date> DataMesCorrente::dateOfCell(std::size_t cell) const {
    const std::size_t first = holidayCellOf(firstDay(settings_.month));
    if (cell < first || cell > holidayCellOf(lastDay(settings_.month))) return std::nullopt;
    return plusDays(firstDay(settings_.month), static_cast<int>(cell - first));
}

void DataMesCorrente::restoreTicks() {
    (void)attempt(at_, incorrectData(), [this] {
        const auto record = findMonthRecord(at_.store(), settings_.month);
        settings_.holidayCells = record.value_or(MonthRecord()).settings.holidayCells;
        opened_.holidayCells = settings_.holidayCells;
        if (onDisk_ && record) onDisk_->holidayCells = settings_.holidayCells;
    });
}

std::vector<ListedHoliday> DataMesCorrente::holidays() const {
    std::vector<ListedHoliday> listed;
    for (const Date date : settings_.holidays())
        listed.push_back({date, nameOf(date)});
    return listed;
}

std::vector<Holiday> DataMesCorrente::untickedHolidays() const {
    std::vector<Holiday> unticked = offer_;
    std::erase_if(unticked, [this](const Holiday& one) { return settings_.isHoliday(one.date); });
    return unticked;
}

std::vector<Holiday> DataMesCorrente::openOffer() const {
    std::vector<Holiday> open = untickedHolidays();
    std::erase_if(open, [](const Holiday& one) { return !isOfferedTicked(one); });
    return open;
}

void DataMesCorrente::tickOffer() {
    for (const Holiday& one : openOffer())
        settings_.setHoliday(one.date, true);
}

void DataMesCorrente::reloadOffer() {
    (void)attempt(at_, incorrectData(),
                  [this] { offer_ = offeredHolidays(at_.store(), settings_.month); });
}

std::optional<WorkMonth> DataMesCorrente::offeredRules() const {
    if (!model_ || isRecorded()) return std::nullopt;
    const bool same = numbers_ == numbersOf(*model_) &&
                      withRulesOf(settings_, *model_) == withReadable(settings_, numbers_);
    return same ? std::nullopt : std::optional(model_->month);
}

void DataMesCorrente::takeOfferedRules() {
    if (!offeredRules()) return;
    settings_ = withRulesOf(settings_, *model_);
    numbers_ = numbersOf(settings_);
}

void DataMesCorrente::setDifferentiatedPercent(bool on) {
    settings_.overtime.differentiatedPercent = on;
    switched_ = true;
}

bool DataMesCorrente::changed() const {
    MonthSettings shown = settings_;
    if (!shown.recordTicks) shown.holidayCells = opened_.holidayCells;
    const bool readable = std::ranges::all_of(
        kMonthNumberFields,
        [&](const MonthNumberField& field) { return field.put(shown, numbers_); });
    return !readable || shown != opened_;
}

void DataMesCorrente::write() {
    MonthSettings toWrite = withNumbers(settings_, numbers_);
    const auto found = findMonthRecord(at_.store(), settings_.month);
    if ((found ? std::optional(found->settings) : std::nullopt) != onDisk_)
        throw changedElsewhere("month", "Este mês foi alterado");
    if (!toWrite.recordTicks) toWrite.holidayCells = onDisk_.value_or(MonthSettings()).holidayCells;
    takeRecord(saveMonthSettings(at_.store(), toWrite));
    const auto shownTicks = settings_.holidayCells;
    opened_ = settings_ = toWrite;
    settings_.holidayCells = shownTicks;
}

bool DataMesCorrente::record() {
    return attemptWriting(at_, incorrectData(), [this] { write(); });
}

bool DataMesCorrente::settleOpenOffer() {
    const auto open = openOffer();
    if (open.empty() || hasRecordedTicks() || !settings_.recordTicks || offerSettled_) return true;
    Message asked = kOfferedHolidays;
    asked.detail =
        joined(open, "\n", [](const Holiday& one) { return dateText(one.date) + " " + one.name; });
    const Answer answer = at_.person.ask(asked);
    if (answer == Answer::Yes) tickOffer();
    offerSettled_ = true;
    return answer != Answer::Cancel;
}

bool DataMesCorrente::confirm() {
    const bool readable =
        attempt(at_, incorrectData(), [this] { (void)withNumbers(settings_, numbers_); });
    if (!readable || !settleOpenOffer()) return false;
    return attemptWriting(at_, incorrectData(), [this] {
        write();
        saveSelectedMonth(at_.store(), {settings_.month, at_.session.shiftFilter});
        at_.session.lastMonth = settings_.month;
    });
}

std::optional<OvertimeUpdate> DataMesCorrente::updateAll(const OvertimeProgress& progress) {
    OvertimePercents percents;
    const bool readable = attempt(at_, incorrectData(),
                                  [&] { percents = withNumbers(settings_, numbers_).overtime; });
    if (!readable) return std::nullopt;
    const auto updated = updateOvertimeOfList(at_, settings_.month, percents, progress);
    (void)attempt(at_, incorrectData(),
                  [this] { ownPercents_ = ownPercentsOfList(at_, settings_.month); });
    return updated;
}

bool DataMesCorrente::mayLeave() {
    return !changed() || at_.person.agrees(kGiveUpChanges);
}

}  // namespace winvrx
