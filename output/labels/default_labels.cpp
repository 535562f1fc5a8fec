// The entries of the catalogue of labels where none is on record.
#include "output/labels/label_text.h"

#include <algorithm>

namespace winvrx {

namespace {

struct DefaultLabel {
    const char* number;
    const char* title;
    const char* text;  ///< a line of the label a line
};

/// The employer signs on the seventh line.
std::string withSignature(std::string text) {
    constexpr std::ptrdiff_t kLineBreaks = 6;
    text.append(static_cast<std::size_t>(kLineBreaks - std::ranges::count(text, '\n')), '\n');
    return text + "__________________________________________\n          Assinatura do empregador";
}

constexpr DefaultLabel kLabels[] = {
    {"01", "Contrato Experiência",
     "01 Admitido em __/__/____ a título de\n"
     "experiência, pelo prazo de ____ dias, que\n"
     "pode ser prorrogado uma só vez, na forma\n"
     "do art. 445 da CLT, por mais ____ dias.\n"
     "Data: __/__/____"},
    {"02", "Trabalhar em Outra Cidade",
     "02 Admitido para trabalhar na cidade de\n"
     "______________________________, conforme o\n"
     "contrato n. ______________, firmado com a\n"
     "empresa _________________________________.\n"
     "Data: __/__/____"},
    {"03", "Adicional de Insalubridade",
     "03 A partir de __/__/____, o empregado\n"
     "recebe o adicional de insalubridade de\n"
     "____% do salário mínimo."},
    {"04", "Adicional de Periculosidade",
     "04 Além do salário normal, o empregado\n"
     "recebe ____% a título de adicional de\n"
     "periculosidade.\n"
     "Data: __/__/____"},
    {"05", "Ajuste Salarial",
     "05 A partir de __/__/____, o salário passa\n"
     "a ser de R$ ______________, na mesma\n"
     "função, em razão de ajuste salarial."},
    {"06", "Serviço Médico Próprio",
     "06 A empresa tem serviço médico próprio e\n"
     "só abona faltas por doença que ele tenha\n"
     "atestado (Portaria 39 do MPAS e art. 32 da\n"
     "CLPS)."},
    {"07", "Alteração de Função",
     "07 No contrato da página ____, a função\n"
     "fica alterada para ____________________\n"
     "a partir de __/__/____."},
    {"08", "Dispensa do Ponto",
     "08 A partir de __/__/____, o empregado\n"
     "trabalha em serviço externo, que não\n"
     "combina com horário fixo, e está isento da\n"
     "marcação de ponto, conforme o art. 62,\n"
     "inciso I, da CLT."},
};

}  // namespace

const LabelTexts& defaultLabels() {
    static const LabelTexts labels = [] {
        LabelTexts made;
        for (const DefaultLabel& label : kLabels)
            made.push_back(lineOf(
                LabelText{label.number, label.title, storedLabelText(withSignature(label.text))}));
        return made;
    }();
    return labels;
}

}  // namespace winvrx
