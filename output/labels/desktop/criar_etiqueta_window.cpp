#include "output/labels/desktop/criar_etiqueta_window.h"

#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/record_form.h"
#include "output/labels/label_sheet.h"

#include <QLabel>
#include <QScrollArea>
#include <QToolButton>

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

class LabelForm : public RecordForm<LabelText> {
  public:
    LabelForm(CriarEtiqueta& labels, QWidget* window)
        : RecordForm(labels, QStringLiteral("criarEtiqueta"), window) {
        auto* form = new QWidget(window);
        auto* column = new QVBoxLayout(form);
        look::layOutPart(*column);
        column->addWidget(look::heading(QStringLiteral("Etiqueta"), form));
        addGroup(kPlacements, 0, *column);
        QLabel* note = look::label(
            QStringLiteral("Cada linha da caixa é uma linha da etiqueta, e os brancos saem como "
                           "estão. ENTER começa outra linha; TAB sai da caixa. Na impressão, "
                           "“R$ ____”, “admitido em ____”, “alterada para ____”, “Data: ____” e "
                           "“a partir de ____” são preenchidos com os dados do funcionário "
                           "marcado; os outros espaços ficam para preencher à mão."),
            look::TextSize::Hint, form);
        note->setWordWrap(true);
        column->addWidget(note);
        column->addStretch();
        setWidget(look::scrolled(form, window));
    }
};

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
    QToolButton* undo =
        addCommand(QStringLiteral("restore"), QStringLiteral("Desfazer"),
                   Qt::CTRL | Qt::SHIFT | Qt::Key_Z, QStringLiteral("criarEtiqueta.undo"));
    connect(undo, &QToolButton::clicked, this,
            [this, &labels] { runOnList([&labels] { return labels.undo(); }); });
    assemble(new LabelForm(labels, this), nullptr);
    resize(look::kWindowSize);
    openAt(0);
}

}  // namespace winvrx
