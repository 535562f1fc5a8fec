#include "timecard/month/desktop/data_mes_corrente_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/progress.h"
#include "timecard/month/desktop/holiday_panel.h"
#include "timecard/month/desktop/month_rules_panel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QToolButton>

#include <algorithm>

namespace winvrx {

namespace {

/// Narrower windows show the rules under the holidays.
constexpr int kSideBySide = 960;

}  // namespace

DataMesCorrenteWindow::DataMesCorrenteWindow(DataMesCorrente& command, QWidget* parent)
    : ScreenWindow(QStringLiteral("dataMesCorrente"),
                   QStringLiteral("Configurações Horas Extras - Mes de Trabalho"), parent),
      command_(command) {
    setBody(buildBody());
    addCommands();
    connectMonth();
    showMonth();
    month_->setFocus();
}

void DataMesCorrenteWindow::addCommands() {
    addCommand({"save", QStringLiteral("Gravar"), QKeySequence::Save, "month.record",
                [this] { recordMonth(); }});
    addCommand({"month", QStringLiteral("Feriados Locais"), Qt::Key_F6, "month.localHolidays",
                [this] { emit localHolidaysRequested(); }});
    addCommand({"employees", QStringLiteral("Atualizar p/Todos os Funcionários"), Qt::Key_F7,
                "month.updateAll", [this] { updateAll(); }});
    offeredRules_ = addCommand({"restore", {}, Qt::Key_F9, "month.offeredRules", [this] {
                                    command_.takeOfferedRules();
                                    rules_->refresh();
                                    showState();
                                }});
    addDefaultButton({"", QStringLiteral("&Confirma"), {}, "month.confirm", [this] {
                          if (command_.confirm()) accept();
                      }});
    addLeavingButton("month.close");
}

QWidget* DataMesCorrenteWindow::buildBody() {
    auto* page = new QWidget;
    columns_ = new QHBoxLayout(page);
    look::layOutBody(*columns_);
    columns_->setSpacing(look::kGroupGap);
    columns_->addWidget(buildMonthColumn(), 2);
    rules_ = new MonthRulesPanel(command_, page);
    connect(rules_, &MonthRulesPanel::edited, this, &DataMesCorrenteWindow::showState);
    columns_->addWidget(rules_, 3);
    return look::scrolled(page, this);
}

QWidget* DataMesCorrenteWindow::buildMonthColumn() {
    const auto [widget, column] = look::part(this);
    month_ = new QComboBox(widget);
    look::name(*month_, QStringLiteral("month.month"), QStringLiteral("Mês de Trabalho"));
    column->addLayout(look::captioned(QStringLiteral("&Mês de Trabalho"), month_));
    reference_ = new QCheckBox(widget);
    reference_->setObjectName(QStringLiteral("month.reference"));
    column->addWidget(reference_);
    column->addSpacing(look::kGap);
    holidays_ = new HolidayPanel(command_, widget);
    connect(holidays_, &HolidayPanel::edited, this, &DataMesCorrenteWindow::showState);
    column->addWidget(holidays_, 1);
    return widget;
}

void DataMesCorrenteWindow::connectMonth() {
    connect(month_, &QComboBox::activated, this, [this](int place) {
        (void)command_.chooseMonth(command_.months().at(static_cast<std::size_t>(place)));
        showMonth();
    });
    connect(reference_, &QCheckBox::clicked, this, [this] {
        (void)command_.chooseNextReference();
        showMonth();
    });
    addPageKeys([this](int months) {
        (void)command_.chooseMonth(command_.settings().month + std::chrono::months{months});
        showMonth();
    });
}

void DataMesCorrenteWindow::showMonths() {
    const auto months = command_.months();
    month_->clear();
    for (const WorkMonth month : months)
        month_->addItem(toQt(monthTitle(month)));
    const auto shown = std::find(months.begin(), months.end(), command_.settings().month);
    month_->setCurrentIndex(static_cast<int>(shown - months.begin()));
}

void DataMesCorrenteWindow::showMonth() {
    showMonths();
    reference_->setText(withMnemonic(command_.referenceCaption(), 'T'));
    reference_->setAccessibleName(toQt(command_.referenceCaption()));
    reference_->setChecked(command_.refersToPresentMonth());
    setChips({toQt(command_.monthCaption())});
    rules_->refresh();
    holidays_->refresh();
    showState();
}

void DataMesCorrenteWindow::refreshHolidays() {
    command_.reloadOffer();
    holidays_->refresh();
    showState();
}

void DataMesCorrenteWindow::showState() {
    const auto model = command_.offeredRules();
    offeredRules_->setVisible(model.has_value());
    if (model) {
        const QString offered = QStringLiteral("Regras de ") + toQt(monthTitle(*model));
        offeredRules_->setText(offered + QStringLiteral("  F9"));
        offeredRules_->setAccessibleName(offered);
    }
    setState(command_.changed()      ? QStringLiteral("Alterações não gravadas")
             : command_.isRecorded() ? QString()
                                     : QStringLiteral("Mês ainda não gravado"));
}

void DataMesCorrenteWindow::recordMonth() {
    if (!command_.record()) return;
    holidays_->refresh();
    showState();
    setState(command_.settings().recordTicks
                 ? QStringLiteral("Mês gravado")
                 : QStringLiteral("Mês gravado, sem as marcas dos feriados"));
}

void DataMesCorrenteWindow::updateAll() {
    Progress progress({QStringLiteral("month.progress"), QStringLiteral("ALTERAÇÃO"),
                       QStringLiteral("Funcionário %1 de %2")},
                      this);
    const auto updated = command_.updateAll([&progress](std::size_t done, std::size_t total) {
        return progress.show(static_cast<int>(done), static_cast<int>(total));
    });
    rules_->refresh();
    if (!updated) return;
    QString state =
        updated->done < updated->total
            ? QStringLiteral("Cancelado: %1 de %2 funcionários atualizados")
                  .arg(updated->done)
                  .arg(updated->total)
            : toQt(countOf(updated->total, "funcionário atualizado", "funcionários atualizados"));
    if (updated->closed > 0) state += QStringLiteral("; %1 com folha fechada").arg(updated->closed);
    setState(state);
}

void DataMesCorrenteWindow::resizeEvent(QResizeEvent* event) {
    columns_->setDirection(width() < kSideBySide ? QBoxLayout::TopToBottom
                                                 : QBoxLayout::LeftToRight);
    ScreenWindow::resizeEvent(event);
}

}  // namespace winvrx
