#include "personnel/documents/paper_kinds.h"

namespace winvrx {

namespace {

constexpr std::array<PaperKind, kPapers> kKinds = {{
    {Paper::AvisoPrevio, "aviso-previo", "AVISO PRÉVIO", "", "AviTRTC"},
    {Paper::PedidoDemissao, "pedido-demissao", "PEDIDO DE DEMISSÃO DO EMPREGADO"},
    {Paper::Jornada12x36, "jornada-12x36", "ACORDO PARA ADOÇÃO DE JORNADA 12 X 36",
     "Confirma Impressão do ACORDO PARA ADOÇÃO DE JORNADA 12 X 36 ?"},
    {Paper::Compensacao, "compensacao", "ACORDO DE COMPENSAÇÃO DE JORNADA"},
    {Paper::Prorrogacao, "prorrogacao", "ACORDO DE PRORROGAÇÃO DE JORNADA"},
    {Paper::ReducaoIntervalo, "reducao-intervalo",
     "ACORDO DE REDUÇÃO DO INTERVALO PARA REPOUSO E ALIMENTAÇÃO"},
    {Paper::Viagem, "viagem",
     "ACORDO PARA ACOMPANHAMENTO DO EMPREGADOR PELO EMPREGADO EM VIAGEM A TRABALHO"},
    {Paper::DeclaracaoEscolar, "declaracao-escolar", "DECLARAÇÃO PARA FINS ESCOLARES"},
    {Paper::ValeTransporte, "vale-transporte", "RECIBO DE ENTREGA DE VALE TRANSPORTES"},
    {Paper::DecimoTerceiroFerias, "decimo-terceiro-ferias",
     "ADIANTAMENTO DE 13º SALÁRIO PAGO AO ENSEJO DAS FÉRIAS"},
    {Paper::SalarioFamilia, "salario-familia", "TERMO DE RESPONSABILIDADE DO SALÁRIO FAMÍLIA"},
    {Paper::SaidaExpediente, "saida-expediente",
     "AUTORIZAÇÃO PARA SAÍDA DE FUNCIONÁRIO DURANTE EXPEDIENTE"},
    {Paper::FolhaPonto, "folha-ponto-manual", "FOLHA DE PONTO MANUAL PARA PREENCHER",
     "Confirma Impressão da FOLHA DE PONTO MANUAL PARA PREENCHER?"},
    {Paper::FichaRegistro, "ficha-registro", "FICHA DE REGISTRO DE EMPREGADOS",
     "Confirma Impressão da FICHA DE REGISTRO DE EMPREGADOS?"},
    {Paper::AdiantamentoSalario, "adiantamento-salario", "ADIANTAMENTO DE SALÁRIO",
     "Confirma Impressão de Adiantamento de Salário para esse Funcionário."},
    {Paper::TermoRescisao, "termo-rescisao", "TERMO DE RESCISÃO DO CONTRATO DE TRABALHO", "",
     "TRTC", true},
    {Paper::TermoHomologacao, "termo-homologacao",
     "TERMO DE HOMOLOGAÇÃO DE RESCISÃO DO CONTRATO DE TRABALHO", "", "THRTC", true},
}};

}  // namespace

std::string PaperKind::confirmation() const {
    return ownConfirmation.empty() ? "Confirma Impressão do " + std::string(title) + "?"
                                   : std::string(ownConfirmation);
}

const std::array<PaperKind, kPapers>& paperKinds() {
    return kKinds;
}

const PaperKind& kindOf(Paper paper) {
    return kKinds.at(static_cast<std::size_t>(paper));
}

}  // namespace winvrx
