#include "personnel/documents/paper_inputs.h"

#include "foundation/values/text.h"
#include "timecard/schedule/typed_time.h"

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

using Choices = std::vector<Choice>;

constexpr PaperInput date(std::string_view name, std::string_view caption) {
    return {name, caption};
}
constexpr PaperInput time(std::string_view name, std::string_view caption) {
    return {name, caption, InputType::Time, 5};
}
constexpr PaperInput text(std::string_view name, std::string_view caption, std::size_t width) {
    return {name, caption, InputType::Text, width};
}
constexpr PaperInput money(std::string_view name, std::string_view caption) {
    return {name, caption, InputType::Money, 14};
}
constexpr PaperInput number(std::string_view name, std::string_view caption, int least, int most) {
    return {name, caption, InputType::Number, 4, nullptr, least, most};
}
constexpr PaperInput choice(std::string_view name, std::string_view caption, Choices (*choices)()) {
    return {name, caption, InputType::Choice, 40, choices};
}
/// One whose texts are short, and which stands beside another.
constexpr PaperInput shortChoice(std::string_view name, std::string_view caption,
                                 Choices (*choices)()) {
    return {name, caption, InputType::Choice, 14, choices};
}

constexpr PaperInput kEntry = time("entrada", "Entrada");
constexpr PaperInput kMealBegins = time("intervalo_inicio", "Início do intervalo");
constexpr PaperInput kMealEnds = time("intervalo_fim", "Fim do intervalo");
constexpr PaperInput kExit = time("saida", "Saída");
constexpr PaperInput kWeekdays = text("dias_semana", "Dias de trabalho", 60);
constexpr PaperInput kFrom = date("vigencia", "Vale a partir de");
constexpr PaperInput kUntil = date("vigencia_fim", "Vale até (em branco: sem prazo)");

Choices forms() {
    return {{"", "Não informado"}, {"M", "Masculino"}, {"F", "Feminino"}};
}
Choices regimes() {
    return {{"clt", "CLT"}, {"domestico", "Doméstico (LC 150)"}};
}
Choices dismissals() {
    return {{"sem_justa_causa", "Dispensa sem justa causa"},
            {"justa_causa", "Dispensa por justa causa"}};
}
Choices notices() {
    return {{"trabalhado", "Trabalhado"}, {"indenizado", "Indenizado"}};
}
Choices reductions() {
    return {{"a_escolher", "A escolher por quem trabalha"},
            {"horas", "2 horas por dia"},
            {"dias", "7 dias corridos"}};
}
Choices servings() {
    return {{"cumprir", "Cumpre o aviso prévio"}, {"dispensa", "Pede a dispensa do aviso prévio"}};
}
Choices meals() {
    return {{"usufruido", "Usufruído"}, {"indenizado", "Indenizado"}};
}
Choices compensations() {
    return {{"semanal", "Sábado compensado na semana"},
            {"mensal", "Compensação no mesmo mês"},
            {"banco", "Banco de horas de até seis meses"}};
}
Choices tripPayments() {
    return {{"dinheiro", "Pago com acréscimo"}, {"banco", "Acréscimo no banco de horas"}};
}
Choices absences() {
    return {{"sem_desconto", "Sem desconto"},
            {"compensacao", "Com compensação das horas"},
            {"desconto", "Com desconto das horas"}};
}

constexpr std::array kCommon = {shortChoice("tratamento", "Tratamento", forms),
                                shortChoice("regime", "Regime", regimes),
                                date("data", "Data do documento")};

constexpr std::array kNotice = {
    choice("modalidade", "Modalidade", dismissals),
    shortChoice("tipo_aviso", "Tipo de aviso", notices),
    number("dias_aviso", "Dias de aviso", 0, 90),
    date("inicio_aviso", "Início do aviso"),
    date("fim_aviso", "Fim do aviso"),
    choice("reducao", "Redução da jornada", reductions),
    date("ultimo_dia", "Último dia de trabalho"),
    date("pagamento_ate", "Pagamento até"),
    text("fundamento", "Fatos e alínea do art. 482 (justa causa)", 160)};
constexpr std::array kResignation = {
    choice("cumprimento", "Aviso prévio", servings), number("dias_pedido", "Dias de aviso", 0, 30),
    date("inicio_pedido", "Início do aviso"), date("ultimo_pedido", "Último dia de trabalho"),
    text("motivo", "Motivo (se quiser dizer)", 120)};
constexpr std::array kTwelve = {kFrom,
                                kUntil,
                                time("entrada_12x36", "Entrada"),
                                time("saida_12x36", "Saída"),
                                shortChoice("intervalo", "Intervalo para refeição", meals),
                                number("minutos_refeicao", "Minutos de intervalo", 30, 120)};
constexpr std::array kCompensation = {choice("modalidade_compensacao", "Forma", compensations),
                                      kFrom,
                                      kUntil,
                                      kEntry,
                                      kMealBegins,
                                      kMealEnds,
                                      kExit,
                                      kWeekdays};
constexpr std::array kOvertime = {kFrom,
                                  kUntil,
                                  number("horas_extras", "Horas a mais por dia", 1, 2),
                                  number("percentual", "Acréscimo (%)", 50, 999),
                                  kEntry,
                                  kExit,
                                  kWeekdays};
constexpr std::array kShorterMeal = {
    kFrom,
    kUntil,
    number("minutos_intervalo", "Minutos de intervalo", 30, 60),
    kMealBegins,
    kMealEnds,
    text("instrumento", "Acordo ou convenção coletiva (nº e data)", 80),
    text("clausula", "Cláusula", 20)};
constexpr std::array kTrip = {text("destino", "Destino", 80),
                              date("partida", "Partida"),
                              date("retorno", "Retorno"),
                              number("percentual_viagem", "Acréscimo (%)", 25, 999),
                              choice("pagamento_viagem", "Como é pago", tripPayments),
                              kEntry,
                              kExit};
constexpr std::array kSchool = {text("instituicao", "Escola ou faculdade", 80),
                                kWeekdays,
                                kEntry,
                                kMealBegins,
                                kMealEnds,
                                kExit,
                                text("observacao", "Observação", 160)};
constexpr std::array kVouchers = {
    date("vales_inicio", "Período: de"), date("vales_fim", "Período: até"),
    number("quantidade", "Quantidade de vales", 1, 9999), money("valor_vale", "Valor de cada vale"),
    text("linhas", "Linhas ou cartão", 80)};
constexpr std::array kThirteenth = {
    number("ano", "Ano do 13º salário", 1990, 2999), date("ferias_inicio", "Início das férias"),
    date("ferias_fim", "Fim das férias"), date("pedido_em", "Pedido de adiantamento em"),
    money("valor_13", "Valor do adiantamento")};
constexpr std::array kFamily = {
    text("filho1", "1º filho ou equiparado", 60), date("nascimento1", "Nascimento"),
    text("filho2", "2º filho ou equiparado", 60), date("nascimento2", "Nascimento"),
    text("filho3", "3º filho ou equiparado", 60), date("nascimento3", "Nascimento"),
    text("filho4", "4º filho ou equiparado", 60), date("nascimento4", "Nascimento"),
    text("filho5", "5º filho ou equiparado", 60), date("nascimento5", "Nascimento"),
    text("filho6", "6º filho ou equiparado", 60), date("nascimento6", "Nascimento")};
static_assert(kFamily.size() == 2 * kMostChildren);
constexpr std::array kGoingOut = {date("dia_saida", "Dia da saída"), time("hora_saida", "Sai às"),
                                  time("hora_retorno", "Volta às"),
                                  choice("ausencia", "As horas fora", absences),
                                  text("motivo_saida", "Motivo", 120)};
constexpr std::array kTimeSheet = {date("periodo_inicio", "Período: de"),
                                   date("periodo_fim", "Período: até")};
constexpr std::array kCard = {text("mae", "Mãe", 60),
                              text("pai", "Pai", 60),
                              text("nacionalidade", "Nacionalidade", 30),
                              text("naturalidade", "Naturalidade", 40),
                              text("estado_civil", "Estado civil", 20),
                              text("instrucao", "Instrução", 30),
                              text("titulo_eleitor", "Título de eleitor", 30),
                              text("beneficiarios", "Dependentes", 160),
                              kEntry,
                              kMealBegins,
                              kMealEnds,
                              kExit,
                              kWeekdays,
                              date("fgts_opcao", "Opção pelo FGTS")};
constexpr std::array kAdvance = {money("valor", "Valor do adiantamento"),
                                 date("desconto_em", "Descontado no pagamento de")};
constexpr std::array kStatement = {date("inicio_aviso", "Aviso prévio em"),
                                   date("ultimo_dia", "Último dia de trabalho"),
                                   date("fim_aviso", "Fim do contrato"),
                                   date("pagamento_ate", "Pagamento até"),
                                   date("pago_em", "Pago em"),
                                   text("forma_pagamento", "Forma de pagamento", 60)};
constexpr std::array kRatification = {
    date("ultimo_dia", "Último dia de trabalho"), date("fim_aviso", "Fim do contrato"),
    date("pago_em", "Pago em"), time("hora_homologacao", "Hora da homologação"),
    text("assistente", "Quem assiste (sindicato, se houver)", 80)};

/// In the order of Paper.
constexpr std::array<std::span<const PaperInput>, kPapers> kForms = {
    kNotice,    kResignation, kTwelve,   kCompensation, kOvertime,    kShorterMeal,
    kTrip,      kSchool,      kVouchers, kThirteenth,   kFamily,      kGoingOut,
    kTimeSheet, kCard,        kAdvance,  kStatement,    kRatification};

std::string warningOf(const Hint& hint) {
    return hint.tone == Hint::Tone::Warning ? hint.text : std::string();
}

}  // namespace

std::span<const PaperInput> commonInputs() {
    return kCommon;
}

std::span<const PaperInput> inputsOf(Paper paper) {
    return kForms.at(static_cast<std::size_t>(paper));
}

std::vector<PaperInput> allInputsOf(Paper paper) {
    std::vector<PaperInput> inputs(kCommon.begin(), kCommon.end());
    std::ranges::copy(inputsOf(paper), std::back_inserter(inputs));
    return inputs;
}

std::string findingOf(const PaperInput& input, const std::string& text) {
    if (std::string unfit = warningOf(textHint(text)); !unfit.empty()) return unfit;
    if (trimmed(text).empty()) return {};
    switch (input.type) {
        case InputType::Date:
            return warningOf(dateHint(text, Entry::Left));
        case InputType::Time:
            return typedTimeFinding(text);
        case InputType::Money:
            return warningOf(moneyHint(text, Entry::Left));
        case InputType::Number:
            if (parseWholeNumber(text, input.least, input.most)) return {};
            return "Digite um número de " + std::to_string(input.least) + " a " +
                   std::to_string(input.most) + ".";
        case InputType::Text:
        case InputType::Choice:
            return {};
    }
    return {};
}

}  // namespace winvrx
