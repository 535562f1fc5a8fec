#include "output/cards/desktop/print_choices_box.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/option_group.h"
#include "output/cards/desktop/output_choice.h"
#include "report/print_pages.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr QSize kPictureSize(120, 40);

}  // namespace

PrintChoicesBox::PrintChoicesBox(const PrintChoices& choices, QWidget* parent)
    : QWidget(parent),
      output_(new OutputChoice(QStringLiteral("cartao.output"), this)),
      mode_(new OptionGroup(
          QStringLiteral("Opção de Impressão do Cartão:"), QStringLiteral("cartao.mode"), 2,
          {{PrintMode::OneRun, QStringLiteral("Imprimir &Todos de Uma só Vez"), "oneRun"},
           {PrintMode::OneAtATime, QStringLiteral("Imprimir Todos I&ntermitente (Um de cada Vez)"),
            "oneAtATime"}},
          this)),
      tray_(new OptionGroup(QStringLiteral("Posição Cartão na Bandeja:"),
                            QStringLiteral("cartao.tray"), 2,
                            {{TrayPosition::Central, QStringLiteral("&Central"), "central"},
                             {TrayPosition::Lateral, QStringLiteral("&Lateral"), "lateral"}},
                            this)),
      sheetExit_(new OptionGroup(
          QStringLiteral("Cartões de dois lados saem com a face:"),
          QStringLiteral("cartao.cardOutput"), 2,
          {{SheetExit::FaceDown, QStringLiteral("Impressa para &baixo"), "faceDown"},
           {SheetExit::FaceUp, QStringLiteral("Impressa para cima"), "faceUp"}},
          this)) {
    sheetExit_->setToolTip(QStringLiteral(
        "Define a ordem do segundo lado. Se a bandeja imprime a face de baixo, escolha a outra."));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(look::kGroupGap);
    grid->setVerticalSpacing(look::kMargin);
    grid->addWidget(output_, 0, 0, Qt::AlignTop);
    grid->addWidget(mode_, 0, 1, Qt::AlignTop);
    grid->addWidget(tray_, 1, 0, Qt::AlignTop);
    auto* exit = new QHBoxLayout;
    exit->setSpacing(look::kGroupGap);
    exit->addWidget(sheetExit_, 0, Qt::AlignTop);
    exit->addWidget(buildSheetExitPicture(), 1, Qt::AlignTop);
    grid->addLayout(exit, 1, 1, Qt::AlignTop);
    grid->addWidget(buildHeaderChoice(), 2, 0, Qt::AlignTop);
    grid->addWidget(buildPrinterTrays(), 2, 1);
    grid->setColumnStretch(1, 1);
    showChoices(choices);
    connectAll();
}

QWidget* PrintChoicesBox::buildSheetExitPicture() {
    const auto [part, column] = look::part(this);
    picture_ = new QLabel(part);
    picture_->setObjectName(QStringLiteral("cartao.sheetExitPicture"));
    column->addWidget(picture_);
    pictureText_ = look::label(QString(), look::TextSize::Hint, part);
    column->addWidget(pictureText_);
    return part;
}

void PrintChoicesBox::showSheetExit() {
    const auto exit = sheetExit_->chosenAs<SheetExit>();
    const bool down = exit == SheetExit::FaceDown;
    picture_->setPixmap(
        look::icon(down ? QStringLiteral("sheets-face-down") : QStringLiteral("sheets-face-up"))
            .pixmap(kPictureSize, devicePixelRatioF()));
    pictureText_->setText(down ? QStringLiteral("Voltam como saíram, sem virar")
                               : QStringLiteral("Voltam viradas"));
    picture_->setAccessibleName(toQt(sheetsBackInstruction(exit, 2)));
    picture_->setToolTip(picture_->accessibleName());
}

void PrintChoicesBox::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange && picture_) showSheetExit();
    QWidget::changeEvent(event);
}

QWidget* PrintChoicesBox::buildHeaderChoice() {
    const auto [part, column] = look::part(this);
    column->addWidget(look::heading(QStringLiteral("# - Impresso Cabeçalho de Cartão:"), part));
    printHeader_ = new QCheckBox(QStringLiteral("Imprimir empresa e funcion&ário"), part);
    look::name(*printHeader_, QStringLiteral("cartao.printHeader"),
               QStringLiteral("Impresso Cabeçalho de Cartão"));
    column->addWidget(printHeader_);
    return part;
}

QWidget* PrintChoicesBox::buildPrinterTrays() {
    const auto [part, column] = look::part(this);
    column->addWidget(look::heading(QStringLiteral("Bandeja Impressora:"), part));
    auto* row = new QHBoxLayout;
    row->setSpacing(look::kGap);
    for (std::size_t at = 0; at < trays_.size(); ++at) {
        const QString number = QString::number(at + 1);
        trays_[at] = new Field({.caption = QStringLiteral("Bandeja &") + number,
                                .objectName = QStringLiteral("cartao.printerTray") + number,
                                .width = kTrayWidth},
                               part);
        row->addWidget(trays_[at]);
    }
    trays_.back()->input()->setProperty("lastField", true);
    column->addLayout(row);
    return part;
}

void PrintChoicesBox::showChoices(const PrintChoices& choices) {
    const QSignalBlocker quiet(this);
    mode_->choose(choices.mode);
    output_->showOutput(choices);
    tray_->choose(choices.printer.tray);
    sheetExit_->choose(choices.printer.exit);
    showSheetExit();
    printHeader_->setChecked(choices.printer.printHeader);
    for (std::size_t at = 0; at < trays_.size(); ++at)
        trays_[at]->setStored(choices.printer.trays[at]);
}

void PrintChoicesBox::connectAll() {
    connect(sheetExit_, &OptionGroup::picked, this, &PrintChoicesBox::showSheetExit);
    for (OptionGroup* group :
         std::initializer_list<OptionGroup*>{mode_, output_, tray_, sheetExit_})
        connect(group, &OptionGroup::picked, this, &PrintChoicesBox::changed);
    connect(printHeader_, &QCheckBox::toggled, this, &PrintChoicesBox::changed);
    for (Field* field : trays_)
        connect(field, &Field::edited, this, &PrintChoicesBox::changed);
}

PrintChoices PrintChoicesBox::choices() const {
    PrintChoices choices = output_->choices();
    choices.mode = mode_->chosenAs<PrintMode>();
    choices.printer = {.exit = sheetExit_->chosenAs<SheetExit>(),
                       .tray = tray_->chosenAs<TrayPosition>(),
                       .trays = {},
                       .printHeader = printHeader_->isChecked()};
    for (std::size_t at = 0; at < trays_.size(); ++at)
        choices.printer.trays[at] = toUtf8(trays_[at]->text());
    return choices;
}

}  // namespace winvrx
