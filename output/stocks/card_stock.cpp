#include "output/stocks/card_stock.h"

#include "foundation/files/record_file.h"
#include "foundation/files/record_names.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr Column kCodeColumn{1, 2};
constexpr std::string_view kCentralEnding = "center.rpt";
constexpr std::string_view kLateralEnding = "left.rpt";

constexpr bool eachPrintedStockHasStems() {
    return std::ranges::all_of(kPrintOrder, [](std::string_view code) {
        return std::ranges::any_of(kCardStocks, [code](const CardStock& stock) {
            return stock.code == code && !stock.stemA.empty() && !stock.stemB.empty();
        });
    });
}
static_assert(eachPrintedStockHasStems());

}  // namespace

const CardStock* findStock(std::string_view code) {
    const auto found = std::ranges::find(kCardStocks, code, &CardStock::code);
    return found == kCardStocks.end() ? nullptr : &*found;
}

std::optional<std::string> layoutFor(std::string_view code, TrayPosition tray, LayoutSet set) {
    if (std::ranges::find(kPrintOrder, code) == kPrintOrder.end()) return std::nullopt;
    const CardStock& stock = *findStock(code);
    std::string name(set == LayoutSet::A ? stock.stemA : stock.stemB);
    name += tray == TrayPosition::Central ? kCentralEnding : kLateralEnding;
    return name;
}

std::string settingLineOf(const CardStock& stock) {
    return std::string(stock.code) + std::string(stock.storedName);
}

std::string loadStockCode(const Store& store, const CompanyCode& company) {
    const auto lines = RecordFile(store, company, kStockSettingName).lines();
    return lines.empty() ? std::string() : fieldOf(lines.front(), kCodeColumn);
}

const CardStock* loadStock(const Store& store, const CompanyCode& company) {
    return findStock(loadStockCode(store, company));
}

void saveStock(const Store& store, const CompanyCode& company, const CardStock& stock) {
    RecordFile(store, company, kStockSettingName).rewriteValues({settingLineOf(stock)});
}

}  // namespace winvrx
