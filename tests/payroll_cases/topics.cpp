#include "tests/payroll_cases/topics.h"

namespace winvrx::testing {

namespace {

/// A case may say for itself what is a setting of the company.
PayrollSettings settingsOf(const CaseInputs& in, PayrollSettings settings) {
    settings.saturdayIsWorkingDay = in.flag({"sabado_util"}, settings.saturdayIsWorkingDay);
    settings.nightHourIsReduced = in.flag({"hora_reduzida"}, settings.nightHourIsReduced);
    if (in.flag({"rural"})) settings.nightWork = NightWork::Rural;
    settings.simplifiedDiscountOnThirteenth =
        in.flag({"simplificado_13"}, settings.simplifiedDiscountOnThirteenth);
    return settings;
}

}  // namespace

CaseFigures figuresOf(const PayrollCase& one, const LegalTables& tables,
                      const PayrollSettings& settings) {
    const Topic month = monthTopic(one.topic);
    const Topic topic = month != nullptr ? month : periodTopic(one.topic);
    if (topic == nullptr) throw UnknownCase("topic " + one.topic);
    const CaseInputs in(one);
    const PayrollSettings own = settingsOf(in, settings);
    CaseFigures out;
    topic(in, {tables, own}, out);
    for (const std::string& key : in.unasked())
        throw UnknownCase("key " + key);
    return out;
}

}  // namespace winvrx::testing
