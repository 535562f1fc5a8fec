// The texts of the work month's screen that follow what it holds.
#include "foundation/values/text.h"
#include "timecard/month/closing_period.h"
#include "timecard/month/data_mes_corrente.h"

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::string_view kOpenOffer =
    "Há feriados sugeridos, ainda não marcados. Clique aqui ou use F8 para marcá-los.";
constexpr std::string_view kTicksNotRecorded =
    "As marcas dos feriados não estão gravadas. Ligue Gravação e grave o mês.";

}  // namespace

std::string DataMesCorrente::findingOf(const MonthNumberField& field) const {
    MonthSettings shown;
    return field.put(shown, numbers_) ? std::string()
                                      : "Informe " + std::string(field.wanted) + ".";
}

std::string DataMesCorrente::monthCaption() const {
    return upperCase(monthTitle(settings_.month));
}

std::string DataMesCorrente::holidayHeading() const {
    return "Selecione os feriados no mês de: " + monthCaption();
}

std::string_view DataMesCorrente::offerNotice() const {
    if (hasRecordedTicks()) return {};
    if (!openOffer().empty()) return kOpenOffer;
    const bool kept = !isRecorded() || onDisk_->holidayCells == settings_.holidayCells;
    return kept ? std::string_view() : kTicksNotRecorded;
}

std::string_view DataMesCorrente::referenceCaption() const {
    const WorkMonth present = monthOf(at_.clock.today());
    if (settings_.month == present) return "Referente ao Mês: Atual";
    return settings_.month < present ? "Referente ao Mês: Anterior ao Atual"
                                     : "Referente ao Mês: Atual ao Posterior";
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
    if (switched_)
        return "Desativado o uso de Percentual de Horas Extras Diárias Normais Diferenciado";
    return "Usar Percentual de Horas Extras Diárias Normais de " + minimum + "% até " + threshold +
           " hs. Acima de " + threshold + " hs será de " + maximum + "%.";
}

std::string DataMesCorrente::modeNotice() const {
    if (settings_.overtime.mode == OvertimeMode::BothLevels)
        return "Usar as 2 (duas) Opções de Horas Extras Minima e Máxima.";
    return "Usar Somente 1 (um) Único Percentual de Horas Extras para " + numbers_.maximumPercent +
           "%";
}

std::string DataMesCorrente::closingPeriodText() const {
    MonthSettings shown = settings_;
    if (!take(shown, MonthLine::ClosingDay, numbers_.closingDay) && !shown.fixedMonth) return {};
    const DayPeriod period = closingPeriod(shown);
    return dateText(period.first) + " a " + dateText(period.last);
}

std::string DataMesCorrente::ownRulesNotice() const {
    const OvertimePercents shown = withReadable(settings_, numbers_).overtime;
    const auto others = std::ranges::count_if(
        ownPercents_, [&shown](const OvertimePercents& own) { return own != shown; });
    if (others == 0) return {};
    return countOf(others, "funcionário da lista tem", "funcionários da lista têm") +
           " horas extras próprias neste mês, diferentes destas. Use Atualizar p/Todos os "
           "Funcionários para igualá-las.";
}

}  // namespace winvrx
