#include "personnel/payroll/pay_sheet.h"

#include "personnel/pay/inss.h"
#include "personnel/payroll/special_sheets.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::array<std::string_view, kDefaultEvents> kOrder = {
    "018", "019", "033", "021", "001", "002", "003", "004", "005", "006", "007",
    "008", "009", "010", "091", "092", "025", "026", "031", "011", "012", "013",
    "014", "015", "016", "093", "094", "017", "020", "022", "095", "096", "032"};

constexpr std::string_view kLostHours = "026";
constexpr std::array<std::string_view, 4> kFirstInstalment = {"018", "019", "021", "033"};

/// What INSS and IRRF of the 13th fall on: the first instalment has none.
Money integralThirteenth(const PaySheet& sheet) {
    Money total = taxedPay(sheet, PayrollKind::Thirteenth);
    for (const std::string_view code : kFirstInstalment)
        if (const PayLine* line = sheet.find(code); line != nullptr && line->event.isTaxed())
            total = total - line->amount;
    return total;
}

std::size_t placeOf(const PayrollEvent& event) {
    return static_cast<std::size_t>(std::ranges::find(kOrder, event.code) - kOrder.begin());
}

Reckonings earningsByCode(const MonthEarnings& pay) {
    return {{"001", pay.salary},
            {"002", pay.risk.unhealthy},
            {"003", pay.risk.danger},
            {"005", pay.minimumOvertime},
            {"006", pay.maximumOvertime},
            {"007", pay.night},
            {"008", pay.minimumNightOvertime},
            {"009", pay.maximumNightOvertime},
            {"010", pay.restReflex},
            {"026", pay.absences + pay.restsLost + pay.missing}};
}

Reckonings deductionsByCode(const MonthDeductions& pay) {
    return {
        {"004", pay.familyQuota}, {"091", pay.inss},    {"092", {pay.tax.withheld, pay.tax.memo}},
        {"097", pay.alimony},     {"025", pay.voucher}, {"031", pay.advance}};
}

Reckoning monthly(Money amount, std::string words) {
    return amount.cents == 0 ? Reckoning{} : Sum(amount).rounded(std::move(words));
}

bool hasAlimony(const MonthPayCase& month) {
    return month.alimony.cents > 0 || month.alimonyOfGross > Fraction(0) ||
           month.alimonyOfNet > Fraction(0);
}

class SheetWriter {
  public:
    SheetWriter(std::span<const PayrollEventLine> events, const TypedAmounts& typed)
        : typed_(typed) {
        addMissing(events);
    }

    /// Events that are not in the catalogue already.
    void addMissing(std::span<const PayrollEventLine> events) {
        for (const PayrollEventLine& line : events)
            if (line.key() &&
                std::ranges::find(events_, line.record.code, &PayrollEvent::code) == events_.end())
                events_.push_back(line.record);
        std::ranges::stable_sort(events_, {}, placeOf);
    }

    void open(PayrollKind payroll) {
        for (const PayrollEvent& event : events_)
            if (event.belongsTo(payroll) && sheet_.find(event.code) == nullptr)
                sheet_.lines.push_back({event, {}});
        for (PayLine& line : sheet_.lines)
            if (const auto found = typed_.find(EventCode::parse(line.event.code).value());
                found != typed_.end()) {
                line.amount = found->second;
                line.isTyped = true;
                line.memo = {{"Valor digitado", moneyText(found->second)}};
            }
    }

    /// What was typed stays; what was computed stands below it in the memo.
    void take(const Reckonings& computed) {
        for (PayLine& line : sheet_.lines) {
            const auto found = computed.find(line.event.code);
            if (found == computed.end()) continue;
            if (!line.isTyped) line.amount = found->second.amount;
            append(line.memo, found->second.memo);
        }
    }

    [[nodiscard]] const PaySheet& sheet() const { return sheet_; }

    [[nodiscard]] PaySheet finished() && {
        std::ranges::stable_sort(sheet_.lines, {},
                                 [](const PayLine& line) { return placeOf(line.event); });
        addUp(sheet_);
        return std::move(sheet_);
    }

  private:
    const TypedAmounts& typed_;
    std::vector<PayrollEvent> events_;
    PaySheet sheet_;
};

void writeMonth(const PayrollLaw& law, const MonthPayCase& month, SheetWriter& writer) {
    const Reckoning pension = monthly(month.privatePension, "Previdência privada");
    for (const PayrollEventLine& line : factEvents())
        if (line.record.code == "097" ? hasAlimony(month) : pension.amount.cents > 0)
            writer.addMissing({&line, 1});
    writer.open(PayrollKind::Month);
    writer.take({{"098", pension}});
    writer.take(earningsByCode(monthEarnings(law, month)));
    const Money base = taxedPay(writer.sheet(), PayrollKind::Month);
    writer.take(deductionsByCode(monthDeductions(law, month, base)));
}

void writeVacation(const PayrollLaw& law, const MonthPayCase& month, const VacationSheet& vacation,
                   SheetWriter& writer) {
    if (vacation.soldDays > 0 || vacation.doubledDays > 0) writer.addMissing(vacationExtras());
    writer.open(PayrollKind::Vacation);
    writer.take(vacationEarnings(law, month, vacation));
    const Money taxable = taxedPay(writer.sheet(), PayrollKind::Vacation);
    writer.take(vacationDeductions(law, month, vacation, taxable));
}

void writeThirteenth(const PayrollLaw& law, const MonthPayCase& month, const ThirteenthSheet& year,
                     SheetWriter& writer) {
    writer.open(PayrollKind::Thirteenth);
    writer.take(thirteenthEarnings(law, month, year));
    if (year.instalment == Instalment::First) return;
    const Money total = integralThirteenth(writer.sheet());
    writer.take(thirteenthDeductions(law, month, year, total));
}

/// Every taxed line once, whatever payrolls its event belongs to. Of the first instalment of a 13th
/// its half, of the second what the first did not have.
Money fgtsBaseOf(const PaySheet& sheet) {
    Money base;
    for (const PayLine& line : sheet.lines) {
        const bool isFirst =
            std::ranges::find(kFirstInstalment, line.event.code) != kFirstInstalment.end();
        if (line.event.isEarning() && (line.event.isTaxed() || isFirst)) base = base + line.amount;
    }
    return atLeastZero(base - sheet.amountOf(kLostHours) - sheet.amountOf("032"));
}

}  // namespace

MonthPayCase withReferences(MonthPayCase month, std::span<const PayrollEventLine> events) {
    for (const PayrollEventLine& line : events) {
        const std::string& code = line.record.code;
        const int number = line.record.referenceNumber();
        if (code == "001" && number > 0) month.divisor = number;
        if (code == "002") month.unhealthyPercent = number;
        if (code == "003") month.isDangerous = number > 0;
        if (code == "004") month.children = number;
        if (code == "005") month.minimum.percent = number;
        if (code == "006") month.maximum.percent = number;
        if (code == "008") month.minimum.nightPercent = number;
        if (code == "009") month.maximum.nightPercent = number;
        if (code == "025") month.voucherPercent = number;
        if (code == "031" && number != 1) month.advancePercent = number;
    }
    return month;
}

const PayLine* PaySheet::find(std::string_view code) const {
    const auto found = std::ranges::find(
        lines, code, [](const PayLine& line) -> std::string_view { return line.event.code; });
    return found == lines.end() ? nullptr : &*found;
}

Money PaySheet::amountOf(std::string_view code) const {
    const PayLine* line = find(code);
    return line == nullptr ? Money{} : line->amount;
}

Money taxedPay(const PaySheet& sheet, PayrollKind payroll) {
    Money base;
    for (const PayLine& line : sheet.lines) {
        if (!line.event.belongsTo(payroll)) continue;
        if (line.event.isEarning() && line.event.isTaxed()) base = base + line.amount;
        if (line.event.code == kLostHours) base = base - line.amount;
    }
    return atLeastZero(base);
}

void addUp(PaySheet& sheet) {
    sheet.base = taxedPay(sheet, PayrollKind::Month);
    sheet.fgtsBase = fgtsBaseOf(sheet);
    sheet.credits = sheet.debits = {};
    for (const PayLine& line : sheet.lines) {
        Money& side = line.event.isEarning() ? sheet.credits : sheet.debits;
        side = side + line.amount;
    }
    sheet.net = sheet.credits - sheet.debits;
}

PaySheet paySheet(const PayrollLaw& law, const PaySheetCase& one,
                  std::span<const PayrollEventLine> events, const TypedAmounts& typed) {
    SheetWriter writer(events, typed);
    const MonthPayCase month = withReferences(one.month, events);
    if (one.hasMonth) writeMonth(law, month, writer);
    if (one.vacation) writeVacation(law, month, *one.vacation, writer);
    if (one.thirteenth) writeThirteenth(law, month, *one.thirteenth, writer);
    return std::move(writer).finished();
}

}  // namespace winvrx
