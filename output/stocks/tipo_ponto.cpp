#include "output/stocks/tipo_ponto.h"

#include "foundation/values/text.h"

namespace winvrx {

TipoPonto::TipoPonto(const Workplace& at) : at_(at) {}

void TipoPonto::load() {
    current_ = nullptr;
    strangeCode_.clear();
    (void)attempt(at_, incorrectData(), [this] {
        const std::string code = loadStockCode(at_.store(), *at_.session.company);
        current_ = findStock(code);
        if (!current_ || !current_->offered) strangeCode_ = trimmed(code + " " + label());
    });
}

std::vector<const CardStock*> TipoPonto::offered() {
    std::vector<const CardStock*> stocks;
    for (const CardStock& stock : kCardStocks)
        if (stock.offered) stocks.push_back(&stock);
    return stocks;
}

std::string TipoPonto::label() const {
    return current_ ? std::string(current_->displayName) : std::string();
}

bool TipoPonto::choose(const CardStock& stock) {
    return attemptWriting(at_, incorrectData(), [&] {
        if (loadStock(at_.store(), *at_.session.company) != current_)
            throw changedElsewhere("stock", "O tipo de cartão foi alterado");
        saveStock(at_.store(), *at_.session.company, stock);
        current_ = &stock;
        strangeCode_.clear();
    });
}

}  // namespace winvrx
