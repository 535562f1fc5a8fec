#include "output/cards/desktop/card_entries.h"

#include "foundation/values/desktop/qt_text.h"
#include "output/cards/cartao.h"
#include "output/cards/desktop/cartao_window.h"
#include "output/stocks/card_stock.h"
#include "output/stocks/cartao_pontos.h"
#include "output/stocks/desktop/card_pictures.h"
#include "output/stocks/desktop/cartao_pontos_window.h"
#include "output/stocks/desktop/tipo_ponto_window.h"
#include "output/stocks/tipo_ponto.h"
#include "report/desktop/impressorar_window.h"
#include "report/desktop/layout_reader.h"
#include "timecard/month/desktop/month_entry.h"

#include <memory>

namespace winvrx {

namespace {

/// Opens the printing screen and those that it leads to.
class CardScreens {
  public:
    CardScreens(const Workplace& at, const CardPrintingDesk& desk) : at_(at), desk_(desk) {}

    void openCards(QWidget* parent, ReportOutput output) {
        Cartao cards(at_, {desk_.browser, desk_.engine, desk_.printers}, alignment_);
        cards.choices().output = output;
        const CartaoWindowDesk screens{
            .openStocks = [this](QWidget* over) { openStocks(over); },
            .openWorkMonth = [this](QWidget* over) { openWorkMonth(at_, over); },
            .openPrinters = [this](QWidget* over) { openPrinters(at_, desk_.printers, over); },
            .openAlignment = [this](QWidget* over) { openAlignment(over); }};
        CartaoWindow(cards, screens, parent).exec();
    }

  private:
    void openStocks(QWidget* parent) {
        TipoPonto stocks(at_);
        CardPictures pictures(desk_.layoutFolders, at_.log);
        TipoPontoWindow(stocks, pictures, parent).exec();
    }

    void openAlignment(QWidget* parent) {
        CartaoPontos alignment(at_, {desk_.engine, desk_.printers, alignment_});
        const LayoutSource layouts = [this](const std::string& name) {
            return loadLayout(desk_.layoutFolders(), name, cardColumns());
        };
        CartaoPontosWindow(alignment, layouts, parent).exec();
    }

    Workplace at_;
    CardPrintingDesk desk_;
    AlignmentMemory alignment_;  ///< for the length of the run
};

QString stockState(const Workplace& at) {
    const CardStock* stock =
        at.session.company ? loadStock(at.store(), *at.session.company) : nullptr;
    return stock ? toQt(stock->displayName).trimmed() : QStringLiteral("Escolher o tipo de cartão");
}

}  // namespace

MenuEntries cardEntries(const Workplace& at, const CardPrintingDesk& desk) {
    const QString group = QStringLiteral("Cartão de Ponto");
    const auto screens = std::make_shared<CardScreens>(at, desk);
    const auto open = [screens](ReportOutput output) {
        return [screens, output](QWidget* parent) { screens->openCards(parent, output); };
    };
    return {
        {.group = group,
         .tile = {"print", QStringLiteral("&Imprimir"), "menu.print.open", Qt::Key_F6},
         .needs = MenuNeeds::Employees,
         .open = open(ReportOutput::Printer),
         .state = [at](const MonthProgress*) { return stockState(at); },
         .step = MonthStep::PrintCards},
        {.group = group,
         .tile = {"sheet", QStringLiteral("Fo&lha"), "menu.sheet.open", Qt::Key_F7},
         .needs = MenuNeeds::Employees,
         .open = open(ReportOutput::Preview),
         .state = [](const MonthProgress*) { return QStringLiteral("Ver os cartões na tela"); }}};
}

}  // namespace winvrx
