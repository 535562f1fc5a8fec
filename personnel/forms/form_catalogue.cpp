#include "personnel/forms/form_catalogue.h"

#include "foundation/values/text.h"

namespace winvrx {

namespace {

constexpr std::size_t kTitleWidth = 59;
constexpr std::size_t kKeyLetters = 2;
constexpr int kRegistrationCard = 13;

constexpr auto kFilled = FormMark::Filled;
constexpr auto kBlank = FormMark::Blank;

constexpr CatalogueForm kForms[] = {
    {1, "AUDITORIA FISCAL TRABALHISTA - DOCUMENTOS A APRESENTAR", kBlank,
     "Lista para separar o que o auditor fiscal do trabalho pede."},
    {2, "AVISO DE ADVERTÊNCIA", kFilled, "Adverte por escrito; o fato e a data são escritos nele."},
    {3, "AVISO DE SUSPENSÃO DO EMPREGADO", kFilled,
     "Suspende do trabalho por até 30 dias (CLT, art. 474)."},
    {4, "AVISO DE ABANDONO DE EMPREGO", kFilled,
     "Chama de volta quem falta sem notícia (CLT, art. 482, \"i\")."},
    {5, "AVISO DE FERIAS", kFilled, "Participa as férias 30 dias antes (CLT, art. 135)."},
    {6, "AVISO PRÉVIO DO EMPREGADOR PARA DISPENSA DO EMPREGADO", kFilled,
     "Dispensa sem justa causa, com a escolha da redução (CLT, arts. 487 e 488)."},
    {7, "CONTRATO DE TRABALHO DOMESTICO", kFilled, "Contrato da Lei Complementar 150/2015."},
    {8, "CONTRATO DE TRABALHO POR PRAZO DETERMINADO", kFilled,
     "Contrato com fim marcado (CLT, arts. 443 e 445)."},
    {9, "DECLARAÇÃO PARA FINS DE APOSENTADORIA ESPECIAL", kFilled,
     "Diz função, setor e agentes nocivos; acompanha o PPP."},
    {10, "DECLARAÇÃO PARA FINS ESCOLARES", kFilled,
     "Diz à escola onde e em que horário o empregado trabalha."},
    {11, "ESPELHO DE PONTO E DE HORAS EXTRAS", kFilled,
     "O mês do empregado, para passar a limpo as marcações e as horas extras."},
    {12, "FICHA DE CADASTRO DE EMPREGADO", kBlank,
     "O novo empregado escreve nela o que o cadastro pede."},
    {13, "FICHA DE REGISTRO DE EMPREGADO", kFilled,
     "O registro obrigatório (CLT, art. 41), em uma folha ou em frente e verso."},
    {14, "FICHA DISCIPLINAR DO EMPREGADO", kFilled,
     "Reúne advertências e suspensões, com a ciência de cada uma."},
    {15, "FICHA DE SOLICITAÇÃO DE EMPREGO", kBlank, "Para o candidato preencher."},
    {16, "FORMULÁRIO DE ENTREGA DE UNIFORME E EPI", kFilled,
     "Registra o que foi entregue e devolvido (NR-6)."},
    {17, "LISTA DOCUMENTOS PARA ADMISSÃO", kBlank, "O que o admitido deve trazer."},
    {18, "PEDIDO DE DEMISSÃO DO EMPREGADO", kFilled,
     "O empregado pede demissão e diz se cumpre o aviso (CLT, art. 487)."},
    {19, "QUADRO DE HORÁRIO DE TRABALHO", kBlank, "Para afixar: quem trabalha em que horário."},
    {20, "RECIBO DE ENTREGA DE VALE TRANSPORTES", kFilled,
     "Prova da entrega dos vales do mês (Lei 7.418/1985)."},
    {21, "RECIBO DE PAGAMENTO A TITULO DE ADIANTAMENTO", kFilled,
     "Recibo do vale de salário, a descontar na folha."},
    {22, "RECIBO DE PAGAMENTO DE SALÁRIO", kFilled,
     "Recibo preenchido à mão, com proventos e descontos (CLT, art. 464)."},
    {23, "RECIBO DE RETIRADA DE PRÓ-LABORE", kBlank, "Recibo do sócio ou titular."},
    {24, "TERMO DE OPÇÃO PELO VALE TRANSPORTES", kFilled,
     "O empregado pede ou recusa o vale e diz o trajeto (Decreto 10.854/2021)."},
    {25, "RECIBO DE RECEBIMENTO E ENTREGA DE CARTEIRA DE TRABALHO", kFilled,
     "Entrega e devolução da carteira em papel (CLT, art. 29)."},
    {26, "REQUERIMENTO DE ABONO PECUNIÁRIO DE FERIAS", kFilled,
     "O empregado vende um terço das férias (CLT, art. 143)."},
    {27, "SOLICITAÇÃO DE ADIANTAMENTO DO 13º SALÁRIO", kFilled,
     "Pedido em janeiro, para receber com as férias (Lei 4.749/1965)."},
    {28, "ACORDO DE COMPENSAÇÃO DE HORAS DE TRABALHO", kFilled,
     "Acordo individual de compensação (CLT, art. 59, §§ 5º e 6º)."},
    {29, "ACORDO DE PRORROGAÇÃO DE HORAS DE TRABALHO", kFilled,
     "Acordo individual de até duas horas extras por dia (CLT, art. 59)."},
    {30, "TERMO RESPONSABILIDADE SALÁRIO FAMÍLIA", kFilled,
     "O empregado responde pelos dados dos filhos (Lei 8.213/1991, art. 65)."},
    {31, "AUTORIZAÇÃO DE SAÍDA EXPEDIENTE", kFilled,
     "Deixa o empregado sair durante o expediente, com o motivo e as horas."},
    {32, "CARTA DE PREPOSTO", kFilled,
     "O empregado representa a empresa em audiência (CLT, art. 843)."},
    {33, "FICHA DE PONTO DE TRABALHO EXTERNO", kFilled,
     "Fica com quem trabalha fora (CLT, art. 74, § 3º)."},
    {34, "CARTA DE REFERÊNCIA", kFilled, "Apresenta quem trabalhou na empresa."},
    {35, "FOLHA DE PONTO MANUAL", kFilled, "O mês para marcar à mão, com a assinatura do dia."},
};

std::string numberOf(const CatalogueForm& form) {
    return padded(form.number, 2) + "-";
}

}  // namespace

std::string CatalogueForm::line() const {
    return numberOf(*this) + fitted(title, kTitleWidth) + static_cast<char>(mark);
}

std::string CatalogueForm::key() const {
    return numberOf(*this) + std::string(firstCharacters(title, kKeyLetters));
}

bool CatalogueForm::hasKeyword(std::string_view keyword) const {
    const auto worded = [](std::string_view text) { return " " + foldedForSearch(text) + " "; };
    return worded(title).find(worded(trimmed(keyword))) != std::string::npos;
}

bool hasFaces(const CatalogueForm& form) {
    return form.number == kRegistrationCard;
}

std::string layoutOf(const CatalogueForm& form, FormFace face) {
    const bool isSheet = face == FormFace::Sheet || !hasFaces(form);
    return form.key() + (isSheet ? "" : face == FormFace::Front ? "fre" : "ver") + ".RPT";
}

std::span<const CatalogueForm> formCatalogue() {
    return kForms;
}

}  // namespace winvrx
