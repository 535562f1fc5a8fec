#include "personnel/pay/payroll_settings.h"

#include "foundation/values/text.h"

namespace winvrx {

namespace {

using Texts = std::span<const std::string_view>;

template <auto Member>
constexpr PayrollSetting setting(std::string_view key, std::string_view title,
                                 std::string_view effect, Texts choices) {
    return {
        key,
        title,
        effect,
        choices,
        [](const PayrollSettings& settings) { return static_cast<std::size_t>(settings.*Member); },
        [](PayrollSettings& settings, std::size_t choice) {
            using Value = std::remove_reference_t<decltype(settings.*Member)>;
            settings.*Member = static_cast<Value>(choice);
        }};
}

constexpr std::array<std::string_view, 2> kNoYes = {"Não", "Sim"};
constexpr std::array<std::string_view, 2> kInss = {"Truncar cada faixa", "Arredondar a soma"};
constexpr std::array<std::string_view, 3> kPartial = {
    "Dias corridos ÷ 30", "Mês comercial de 30 dias", "Dias corridos ÷ dias do mês"};
constexpr std::array<std::string_view, 2> kReduction = {"Só as férias", "Férias e salário do mês"};
constexpr std::array<std::string_view, 2> kCents = {"Arredondar", "Truncar"};
constexpr std::array<std::string_view, 2> kUnhealthy = {"Salário mínimo", "Salário do empregado"};
constexpr std::array<std::string_view, 2> kNight = {"Urbano, 20%", "Rural, 25%"};
constexpr std::array<std::string_view, 2> kInstalment = {"Avos do ano todo",
                                                         "Avos até o pagamento"};
constexpr std::array<std::string_view, 2> kEmployerInss = {"Simples Nacional, sem", "20% da folha"};
constexpr std::array<std::string_view, 2> kTerm = {"Do último dia trabalhado",
                                                   "Do fim projetado do contrato"};

using S = PayrollSettings;

constexpr std::array kSettings = {
    setting<&S::isDomesticEmployer>("domestico", "Empregador doméstico",
                                    "Guia única (DAE) com 8%, 0,8%, 8% e 3,2% no lugar do FGTS.",
                                    kNoYes),
    setting<&S::employerInss>("inss-patronal", "INSS do empregador",
                              "Só o custo mostrado na visão do mês, sem seguro de acidentes e "
                              "terceiros; nada do que se paga.",
                              kEmployerInss),
    setting<&S::partialMonth>("mes-parcial", "Salário de mês parcial",
                              "Muda o saldo de salário em meses de 28, 29 e 31 dias.", kPartial),
    setting<&S::unhealthyBase>("base-insalubridade", "Base da insalubridade",
                               "Convenções podem trocar o salário mínimo por outra base.",
                               kUnhealthy),
    setting<&S::hourIsRounded>("hora-arredondada", "Arredondar o valor da hora",
                               "Arredonda a hora a centavos antes de multiplicar: centavos por "
                               "linha.",
                               kNoYes),
    setting<&S::nightPremiumIsInOvertimeBase>(
        "noturno-na-extra", "Adicional noturno na base da hora extra",
        "Quando habitual, o adicional noturno entra no valor da hora extra (Súmula 264).", kNoYes),
    setting<&S::nightWork>("trabalho-noturno", "Trabalho noturno",
                           "Rural: 25% sem hora reduzida; urbano: 20%.", kNight),
    setting<&S::nightHourIsReduced>("hora-reduzida", "Hora noturna reduzida",
                                    "Conta 52 min 30 s como uma hora; \"Não\" quando as horas já "
                                    "vêm contadas.",
                                    kNoYes),
    setting<&S::unhealthyPayIsInNightBase>(
        "insalubridade-no-noturno", "Insalubridade na base do adicional noturno",
        "Aumenta o adicional noturno de quem recebe insalubridade.", kNoYes),
    setting<&S::saturdayIsWorkingDay>("sabado-util", "Sábado é dia útil",
                                      "Muda os dias úteis e os descansos do reflexo do DSR.",
                                      kNoYes),
    setting<&S::delayLosesWeeklyRest>("atraso-perde-dsr", "Atraso perde o DSR",
                                      "Desconta o descanso da semana também por atrasos.", kNoYes),
    setting<&S::voucherFollowsDaysWorked>(
        "vale-proporcional", "6% do vale-transporte pelos dias trabalhados",
        "Em mês parcial, o limite de 6% segue o salário dos dias trabalhados.", kNoYes),
    setting<&S::inssRounding>("inss", "Centavos do INSS",
                              "Um ou dois centavos no INSS e, por ele, até um no IRRF.", kInss),
    setting<&S::taxOfTenRealsIsWaived>("irrf-dez-reais", "Dispensar IRRF de até R$ 10,00",
                                       "Não retém o imposto de até dez reais, salvo no 13º.",
                                       kNoYes),
    setting<&S::vacationReduction>("reducao-ferias", "Redução do IRRF nas férias",
                                   "Soma ou não o salário do mês à renda que decide a redução.",
                                   kReduction),
    setting<&S::doubledVacationIsTaxed>("irrf-dobra", "IRRF sobre a dobra das férias",
                                        "Tributa a parte dobrada das férias vencidas.", kNoYes),
    setting<&S::simplifiedDiscountOnThirteenth>(
        "simplificado-13", "Desconto simplificado no 13º",
        "Pesa quando INSS e dependentes somam menos que o desconto simplificado.", kNoYes),
    setting<&S::firstInstalment>("primeira-parcela", "1ª parcela de admitido no ano",
                                 "Antecipa metade dos avos do ano ou só dos já completos.",
                                 kInstalment),
    setting<&S::inssOnPaidNotice>("inss-aviso", "INSS sobre o aviso indenizado",
                                  "O STJ (Tema 478) diz que não incide.", kNoYes),
    setting<&S::inssOnNoticeTwelfths>("inss-avos-aviso", "INSS sobre o 13º do aviso indenizado",
                                      "Costuma-se recolher sobre os avos que o aviso projeta.",
                                      kNoYes),
    setting<&S::paymentTerm>("prazo-rescisao", "Dez dias do pagamento da rescisão",
                             "Com aviso indenizado: de quando se conta o prazo.", kTerm),
    setting<&S::fgtsRounding>("fgts-centavos", "Centavos do FGTS", "Um centavo no depósito de 8%.",
                              kCents),
};

/// Of records of before: a choice that changed nothing. It goes with the next recording.
constexpr std::string_view kGivenUpKey = "irrf-quando";

}  // namespace

std::span<const PayrollSetting> payrollSettings() {
    return kSettings;
}

std::string settingLine(const PayrollSetting& setting, const PayrollSettings& settings) {
    return std::string(setting.key) + " = " + std::to_string(setting.value(settings));
}

bool takeSettingLine(PayrollSettings& settings, std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) return false;
    const std::string_view key = trimmed(line.substr(0, equals));
    for (const PayrollSetting& setting : kSettings) {
        if (key != setting.key) continue;
        const auto choice = parseWholeNumber(line.substr(equals + 1), 0,
                                             static_cast<int>(setting.choices.size()) - 1);
        if (choice) setting.choose(settings, static_cast<std::size_t>(*choice));
        return choice.has_value();
    }
    return key == kGivenUpKey;
}

}  // namespace winvrx
