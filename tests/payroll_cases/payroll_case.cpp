#include "tests/payroll_cases/payroll_case.h"

#include "foundation/values/csv.h"
#include "foundation/values/text.h"

#include <algorithm>

namespace winvrx::testing {

namespace {

using Keys = std::initializer_list<std::string_view>;

constexpr std::size_t kColumns = 6;

NamedValues namedValues(const std::string& text) {
    NamedValues values;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find(';', start), text.size());
        const std::string_view pair = std::string_view(text).substr(start, end - start);
        start = end + 1;
        if (trimmed(pair).empty()) continue;
        const std::size_t equals = std::min(pair.find('='), pair.size());
        values.emplace_back(trimmed(pair.substr(0, equals)),
                            trimmed(pair.substr(std::min(equals + 1, pair.size()))));
    }
    return values;
}

/// "1.234,56" with the point alone.
std::string withPoint(std::string text) {
    std::erase(text, '.');
    std::ranges::replace(text, ',', '.');
    return text;
}

std::string amountText(Money amount) {
    return withPoint(decimalText(Fraction(amount) / 100, 2));
}

std::string isoText(Date date) {
    const std::string text = dateText(date);
    return text.substr(6) + "-" + text.substr(3, 2) + "-" + text.substr(0, 2);
}

std::chrono::seconds secondsOf(const Fraction& hours) {
    return std::chrono::seconds{roundedHalfUp(hours * 3600)};
}

}  // namespace

std::vector<PayrollCase> parsePayrollCases(std::string_view bytes) {
    std::vector<PayrollCase> cases;
    bool isHeader = true;
    for (std::vector<std::string>& row : parseCsv(bytes)) {
        const bool isBlank = row.size() == 1 && row.front().empty();
        if (isHeader || isBlank) {
            isHeader = false;
            continue;
        }
        row.resize(std::max(row.size(), kColumns));
        cases.push_back({row[0], row[1], row[2], namedValues(row[3]), namedValues(row[4]),
                         namedValues(row[5])});
    }
    return cases;
}

Fraction numberIn(std::string_view text) {
    if (text.ends_with('%')) text.remove_suffix(1);
    text = trimmed(text);
    if (const auto blank = text.rfind(' '); blank != std::string_view::npos)
        text = text.substr(blank + 1);
    const auto number = parseDecimal(text, '.');
    if (!number) throw UnknownCase("number " + std::string(text));
    return *number;
}

std::optional<Date> dateIn(std::string_view text) {
    if (text.size() != 10) return std::nullopt;
    return parseDate(std::string(text.substr(8)) + "/" + std::string(text.substr(5, 2)) + "/" +
                     std::string(text.substr(0, 4)));
}

CaseInputs::CaseInputs(const PayrollCase& one)
    : ref_(one.ref), values_(one.inputs.begin(), one.inputs.end()) {}

const std::string* CaseInputs::find(Keys keys) const {
    for (const std::string_view key : keys)
        if (has(key)) return &values_.find(key)->second;
    return nullptr;
}

bool CaseInputs::has(std::string_view key) const {
    asked_.emplace(key);
    return values_.contains(key);
}

const std::string& CaseInputs::text(Keys keys) const {
    if (const std::string* value = find(keys)) return *value;
    throw UnknownCase("no " + std::string(*keys.begin()));
}

Fraction CaseInputs::number(Keys keys) const {
    return numberIn(text(keys));
}

Money CaseInputs::money(Keys keys) const {
    return {roundedHalfUp(number(keys) * 100)};
}

int CaseInputs::whole(Keys keys) const {
    const Fraction value = number(keys);
    if (value.denominator() != 1) throw UnknownCase("no whole number " + text(keys));
    return static_cast<int>(value.numerator());
}

Date CaseInputs::date(Keys keys) const {
    if (const auto date = dateIn(text(keys))) return *date;
    throw UnknownCase("date " + text(keys));
}

Money CaseInputs::moneyOr(Keys keys, Money otherwise) const {
    return find(keys) ? money(keys) : otherwise;
}

Fraction CaseInputs::numberOr(Keys keys, const Fraction& otherwise) const {
    return find(keys) ? number(keys) : otherwise;
}

int CaseInputs::wholeOr(Keys keys, int otherwise) const {
    return find(keys) ? whole(keys) : otherwise;
}

std::optional<Date> CaseInputs::dateIfAny(Keys keys) const {
    return find(keys) ? std::optional(date(keys)) : std::nullopt;
}

bool CaseInputs::flag(Keys keys, bool otherwise) const {
    if (!find(keys)) return otherwise;
    const std::string word = foldedForSearch(text(keys));
    if (word == "true" || word == "sim" || word == "1") return true;
    if (word == "false" || word == "nao" || word == "0") return false;
    throw UnknownCase("yes or no " + word);
}

std::chrono::seconds CaseInputs::hours(Keys keys) const {
    if (!find(keys)) return {};
    const std::string& value = text(keys);
    const std::size_t colon = value.find(':');
    if (colon == std::string::npos) return secondsOf(numberIn(value));
    return secondsOf(numberIn(value.substr(0, colon)) + numberIn(value.substr(colon + 1)) / 60);
}

Fraction CaseInputs::divisor() const {
    const Keys weekly = {"horas_semanais", "jornada_semanal"};
    if (find(weekly)) return number(weekly) * 5;
    return numberOr({"divisor"}, 220);
}

std::vector<int> CaseInputs::extraPercents() const {
    std::vector<int> percents;
    for (const auto& [key, value] : values_) {
        const auto percent =
            key.starts_with('h') ? parseWholeNumber(key.substr(1), 1, 999) : std::nullopt;
        if (percent) percents.push_back(*percent);
    }
    return percents;
}

std::vector<std::string> CaseInputs::unasked() const {
    std::vector<std::string> keys;
    for (const auto& [key, value] : values_)
        if (!asked_.contains(key)) keys.push_back(key);
    return keys;
}

Date CaseInputs::refDay() const {
    if (const auto day = dateIn(ref_.substr(0, 10))) return *day;
    const auto year = parseWholeNumber(ref_.substr(0, 4), 1900, 2200);
    if (!year) throw UnknownCase("ref " + ref_);
    const auto month = ref_.size() >= 7 ? parseWholeNumber(ref_.substr(5, 2), 1, 12) : std::nullopt;
    return lastDay(std::chrono::year{*year} /
                   std::chrono::month{static_cast<unsigned>(month.value_or(12))});
}

void CaseFigures::add(std::string name, Money amount) {
    texts_[std::move(name)] = amountText(amount);
}

void CaseFigures::addDecimal(std::string name, const Fraction& value) {
    texts_[std::move(name)] = withPoint(decimalText(value, 4));
}

void CaseFigures::add(std::string name, int count) {
    texts_[std::move(name)] = std::to_string(count);
}

void CaseFigures::add(std::string name, Date date) {
    texts_[std::move(name)] = isoText(date);
}

void CaseFigures::addAny(std::string beginning, Money amount) {
    beginnings_[std::move(beginning)] = amountText(amount);
}

std::optional<std::string> CaseFigures::find(const std::string& name) const {
    if (const auto found = texts_.find(name); found != texts_.end()) return found->second;
    for (const auto& [beginning, text] : beginnings_)
        if (name.starts_with(beginning)) return text;
    return std::nullopt;
}

}  // namespace winvrx::testing
