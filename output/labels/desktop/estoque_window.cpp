#include "output/labels/desktop/estoque_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/option_group.h"
#include "foundation/widgets/desktop/progress.h"
#include "output/cards/desktop/output_choice.h"

#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr std::size_t kSubjectWidth = 40;
constexpr std::size_t kSheetsWidth = 2;

}  // namespace

EstoqueWindow::EstoqueWindow(Etiquetas& labels, QWidget* parent)
    : ScreenWindow(QStringLiteral("estoque"), QStringLiteral("CONTROLE DE ESTOQUE"), parent),
      labels_(labels) {
    setBody(buildBody());
    setSubtitle(QStringLiteral("Folhas para preencher à mão"));
    setChips({toQt(labels_.company().code) + QLatin1Char(' ') + toQt(labels_.company().name)});
    addDefaultButton({"print", QStringLiteral("&Imprimir"), QKeySequence::Print, "estoque.print",
                      [this] { print(); }});
    addLeavingButton("estoque.close");
    resize(look::kSmallWindowSize);
    form_->setFocus();
}

QWidget* EstoqueWindow::buildBody() {
    const auto [body, column] = look::body(this);
    form_ = new OptionGroup(
        QStringLiteral("Folha:"), QStringLiteral("estoque.form"), 2,
        {{StockForm::Movement, QStringLiteral("&Entradas e saídas de um produto, com saldo"),
          "movement"},
         {StockForm::Count, QStringLiteral("&Contagem de produtos por data"), "count"}},
        body);
    form_->choose(StockForm::Movement);
    column->addWidget(form_);
    subject_ = new Field({.caption = QStringLiteral("Produto, &local ou grupo"),
                          .objectName = QStringLiteral("estoque.subject"),
                          .width = kSubjectWidth},
                         body);
    column->addWidget(subject_);
    sheets_ = new Field({.caption = QStringLiteral("Quantas &folhas"),
                         .objectName = QStringLiteral("estoque.sheets"),
                         .width = kSheetsWidth,
                         .kind = kNumberField},
                        body);
    sheets_->setStored("1");
    sheets_->input()->setProperty("lastField", true);
    column->addWidget(sheets_);
    output_ = new OutputChoice(QStringLiteral("estoque.output"), body, OutputChoice::Pdf::OneFile);
    output_->showOutput({});
    column->addWidget(output_);
    column->addStretch();
    return body;
}

void EstoqueWindow::print() {
    const auto sheets = parseWholeNumber(toUtf8(sheets_->text()), 1, kMostLabelCopies);
    sheets_->setFinding(sheets ? QString() : QStringLiteral("De 1 a 99."));
    if (!sheets) return sheets_->takeFocus();
    Progress progress({QStringLiteral("estoque.progress"), QStringLiteral("IMPRIMINDO"),
                       QStringLiteral("Folha %1 de %2")},
                      this);
    (void)labels_.printStockSheets({.form = form_->chosenAs<StockForm>(),
                                    .subject = subject_->stored(),
                                    .sheets = static_cast<std::size_t>(*sheets),
                                    .output = output_->choices().output},
                                   pdfAsking(this, &progress));
}

}  // namespace winvrx
