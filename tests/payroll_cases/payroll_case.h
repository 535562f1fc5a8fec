#pragma once

#include "foundation/values/date.h"
#include "personnel/pay/reckoning.h"

#include <chrono>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// A worked case as a table of cases has it, one a line:
//
//     id,topic,ref,inputs,expected (T or exact),expected with R,source
//     064,atraso,any,salario=3000.00; divisor=220; minutos=95,desconto=21.59,,
//
// Amounts have a decimal point, dates are year-month-day.

namespace winvrx::testing {

/// A case that the program cannot tell anything of: a topic, a key or a value that it does not
/// know.
class UnknownCase : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// "name=value" pairs in their order.
using NamedValues = std::vector<std::pair<std::string, std::string>>;

struct PayrollCase {
    std::string id;
    std::string topic;
    std::string ref;  ///< "2026", "2026-03", "2026-03-05", "any", a remark behind it
    NamedValues inputs;
    NamedValues expected;         ///< brackets truncated, or exact
    NamedValues expectedRounded;  ///< what is another figure with the sum rounded once
};

/// Throws TextFault for bytes that are no table.
[[nodiscard]] std::vector<PayrollCase> parsePayrollCases(std::string_view bytes);

/// "3000.00", "40%", "salario minimo 1621.00": the number that ends the text.
[[nodiscard]] Fraction numberIn(std::string_view text);
/// "2026-03-16".
[[nodiscard]] std::optional<Date> dateIn(std::string_view text);

/// The inputs by name. Remembers what was asked for, so that a key nobody knows is found. All
/// throw UnknownCase for a value that is none.
class CaseInputs {
  public:
    explicit CaseInputs(const PayrollCase& one);

    [[nodiscard]] bool has(std::string_view key) const;
    /// The first of several names that stands there; throws UnknownCase when none does.
    [[nodiscard]] const std::string& text(std::initializer_list<std::string_view> keys) const;
    [[nodiscard]] Money money(std::initializer_list<std::string_view> keys) const;
    [[nodiscard]] Fraction number(std::initializer_list<std::string_view> keys) const;
    [[nodiscard]] int whole(std::initializer_list<std::string_view> keys) const;
    [[nodiscard]] Date date(std::initializer_list<std::string_view> keys) const;

    [[nodiscard]] Money moneyOr(std::initializer_list<std::string_view> keys,
                                Money otherwise = {}) const;
    [[nodiscard]] Fraction numberOr(std::initializer_list<std::string_view> keys,
                                    const Fraction& otherwise) const;
    [[nodiscard]] int wholeOr(std::initializer_list<std::string_view> keys, int otherwise) const;
    [[nodiscard]] std::optional<Date> dateIfAny(std::initializer_list<std::string_view> keys) const;
    [[nodiscard]] bool flag(std::initializer_list<std::string_view> keys,
                            bool otherwise = false) const;
    /// Decimal hours or "hh:mm".
    [[nodiscard]] std::chrono::seconds hours(std::initializer_list<std::string_view> keys) const;
    /// The hours of a month by "divisor" or by "horas_semanais"; 220 where neither stands.
    [[nodiscard]] Fraction divisor() const;

    /// "h50" and the like: the percentages that have hours.
    [[nodiscard]] std::vector<int> extraPercents() const;

    [[nodiscard]] std::vector<std::string> unasked() const;

    /// Of a year its December.
    [[nodiscard]] WorkMonth refMonth() const { return monthOf(refDay()); }
    /// Of a month its last day.
    [[nodiscard]] Date refDay() const;

  private:
    [[nodiscard]] const std::string* find(std::initializer_list<std::string_view> keys) const;

    std::string ref_;
    std::map<std::string, std::string, std::less<>> values_;
    mutable std::set<std::string, std::less<>> asked_;
};

/// What a topic computes, by name, in the form of the table.
class CaseFigures {
  public:
    void add(std::string name, Money amount);
    void add(std::string name, const Reckoning& reckoned) { add(std::move(name), reckoned.amount); }
    void add(std::string name, int count);
    void add(std::string name, Date date);
    void add(std::string name, std::string text) { texts_[std::move(name)] = std::move(text); }
    /// With four digits behind the point.
    void addDecimal(std::string name, const Fraction& value);
    /// A figure whose name begins so and goes on with digits and words of its own.
    void addAny(std::string beginning, Money amount);

    /// nullopt for a name that is not computed.
    [[nodiscard]] std::optional<std::string> find(const std::string& name) const;

  private:
    std::map<std::string, std::string> texts_;
    std::map<std::string, std::string> beginnings_;
};

}  // namespace winvrx::testing
