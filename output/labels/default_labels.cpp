// The entries of the catalogue of labels where none is on record.
#include "output/labels/label_text.h"

namespace winvrx {

namespace {

struct DefaultLabel {
    const char* number;
    const char* title;
    const char* text;  ///< a line of the label a line
};

constexpr DefaultLabel kLabels[] = {
    {"01", "Contrato Experiência",
     "01 Admitido em __/__/____ a título de\n"
     "experiência, pelo prazo de ____ dias, que\n"
     "pode ser prorrogado uma só vez, na forma\n"
     "do art. 445 da CLT, por mais ____ dias.\n"
     "Data: __/__/____\n"
     "\n"
     "__________________________________________\n"
     "          Assinatura do empregador"},
    {"02", "Trabalhar em Outra Cidade",
     "02 Admitido para trabalhar na cidade de\n"
     "______________________________, conforme o\n"
     "contrato n. ______________, firmado com a\n"
     "empresa _________________________________.\n"
     "Data: __/__/____\n"
     "\n"
     "__________________________________________\n"
     "          Assinatura do empregador"},
    {"03", "Adicional de Insalubridade",
     "03 A partir de __/__/____, o empregado\n"
     "recebe o adicional de insalubridade de\n"
     "____% do salário mínimo.\n"
     "\n"
     "\n"
     "\n"
     "__________________________________________\n"
     "          Assinatura do empregador"},
    {"04", "Adicional de Periculosidade",
     "04 Além do salário normal, o empregado\n"
     "recebe ____% a título de adicional de\n"
     "periculosidade.\n"
     "Data: __/__/____\n"
     "\n"
     "\n"
     "__________________________________________\n"
     "          Assinatura do empregador"},
    {"05", "Ajuste Salarial",
     "05 A partir de __/__/____, o salário passa\n"
     "a ser de R$ ______________, na mesma\n"
     "função, em razão de ajuste salarial.\n"
     "\n"
     "\n"
     "\n"
     "__________________________________________\n"
     "          Assinatura do empregador"},
    {"06", "Serviço Médico Próprio",
     "06 A empresa tem serviço médico próprio e\n"
     "só abona faltas por doença que ele tenha\n"
     "atestado (Portaria 39 do MPAS e art. 32 da\n"
     "CLPS).\n"
     "\n"
     "\n"
     "__________________________________________\n"
     "          Assinatura do empregador"},
    {"07", "Alteração de Função",
     "07 No contrato da página ____, a função\n"
     "fica alterada para ____________________\n"
     "a partir de __/__/____.\n"
     "\n"
     "\n"
     "\n"
     "__________________________________________\n"
     "          Assinatura do empregador"},
    {"08", "Dispensa do Ponto",
     "08 A partir de __/__/____, o empregado\n"
     "trabalha em serviço externo, que não\n"
     "combina com horário fixo, e está isento da\n"
     "marcação de ponto, conforme o art. 62,\n"
     "inciso I, da CLT.\n"
     "\n"
     "__________________________________________\n"
     "          Assinatura do empregador"},
};

}  // namespace

const LabelTexts& defaultLabels() {
    static const LabelTexts labels = [] {
        LabelTexts made;
        for (const DefaultLabel& label : kLabels)
            made.push_back(
                lineOf(LabelText{label.number, label.title, storedLabelText(label.text)}));
        return made;
    }();
    return labels;
}

}  // namespace winvrx
