#include "output/labels/desktop/criar_etiqueta_window.h"

#include "foundation/register/desktop/noted_form.h"
#include "foundation/register/desktop/record_form.h"
#include "foundation/widgets/desktop/look.h"
#include "output/labels/label_sheet.h"

#include <array>

namespace winvrx {

namespace {

constexpr FieldKind kLabelTextField{.hint = labelTextHint,
                                    .completed = shownLabelText,
                                    .stored = storedLabelText,
                                    .isNotes = true,
                                    .lineWidth = kLabelLineWidth};

constexpr std::array kPlacements = {
    FieldPlacement<LabelText>{&LabelText::number, "number", 'N', 0, 0, 2, kNumberField},
    FieldPlacement<LabelText>{&LabelText::title, "title", 'T', 0, 0, 10},
    FieldPlacement<LabelText>{&LabelText::text, "text", 'X', 0, 1, 12, kLabelTextField},
};

const QString kNote = QStringLiteral(
    "Cada linha da caixa é uma linha da etiqueta, e os brancos saem como estão. ENTER começa outra "
    "linha; TAB sai da caixa. Na impressão, “R$ ____”, “admitido em ____”, “alterada para ____”, "
    "“Data: ____” e “a partir de ____” são preenchidos com os dados do funcionário marcado; os "
    "outros espaços ficam para preencher à mão.");

}  // namespace

CriarEtiquetaWindow::CriarEtiquetaWindow(CriarEtiqueta& labels, QWidget* parent)
    : RegisterWindow(labels,
                     {.screen = QStringLiteral("criarEtiqueta"),
                      .title = QStringLiteral("Textos das Etiquetas"),
                      .listTitle = QStringLiteral("Etiquetas"),
                      .searchHint = QStringLiteral("Pesquisar etiqueta…"),
                      .emptyList = QStringLiteral("Nenhum texto de etiqueta ainda."),
                      .emptyAction = QStringLiteral("Incluir o primeiro"),
                      .headings = {QStringLiteral("N."), QStringLiteral("Título")}},
                     parent) {
    addCommand({"restore", QStringLiteral("Desfazer"), Qt::CTRL | Qt::SHIFT | Qt::Key_Z,
                "criarEtiqueta.undo",
                [this, &labels] { runOnList([&labels] { return labels.undo(); }); }});
    assemble(new NotedForm<LabelText>(labels, QStringLiteral("criarEtiqueta"), kPlacements,
                                      QStringLiteral("Etiqueta"), kNote, this),
             nullptr);
    resize(look::kWindowSize);
    openAt(0);
}

}  // namespace winvrx
