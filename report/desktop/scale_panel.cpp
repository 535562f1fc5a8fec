#include "report/desktop/scale_panel.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace winvrx {

namespace {

constexpr std::size_t kFigureWidth = 8;
constexpr int kFieldsInARow = 2;

constexpr std::array kFigures = {"Escala &horizontal (%)", "Escala &vertical (%)",
                                 "Para a d&ireita (mm)", "Para b&aixo (mm)"};
constexpr std::array kDistances = {"&Borda esquerda até A (mm)", "Borda esq&uerda até B (mm)",
                                   "Borda de &cima até A (mm)", "B&orda de cima até C (mm)"};

Hint numberHint(std::string_view text, Entry) {
    if (parseHundredths(text)) return {};
    return {Hint::Tone::Warning, "Número com até duas casas."};
}

}  // namespace

ScalePanel::ScalePanel(PrintCalibration& calibration, QString paper, QWidget* parent)
    : QWidget(parent), calibration_(calibration), paper_(std::move(paper)) {
    auto* column = new QVBoxLayout(this);
    look::layOutPart(*column);
    printer_ = look::paragraph(QStringLiteral("escala.printer"), look::TextSize::Hint, this);
    column->addWidget(printer_);
    addFields(*column, figures_, kFigures, "escala.figure");
    addButton(*column, QStringLiteral("&Gravar Escala"), "escala.save", &ScalePanel::saveScale);
    column->addSpacing(look::kGap);
    column->addWidget(look::heading(QStringLiteral("Folha de calibração"), this));
    addButton(*column, QStringLiteral("Imprimir &Folha de Calibração"), "escala.sheet",
              &ScalePanel::printSheet);
    addFields(*column, distances_, kDistances, "escala.distance");
    distances_.back()->input()->setProperty("lastField", true);
    addButton(*column, QStringLiteral("Ca&lcular e Gravar"), "escala.calibrate",
              &ScalePanel::saveDistances);
    column->addStretch();
    refresh();
}

void ScalePanel::addFields(QVBoxLayout& column, Fields& fields,
                           const std::array<const char*, 4>& captions, const char* name) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(look::kMargin);
    grid->setVerticalSpacing(0);
    for (int i = 0; i < static_cast<int>(fields.size()); ++i) {
        const auto at = static_cast<std::size_t>(i);
        fields[at] = new Field({.caption = QString::fromUtf8(captions[at]),
                                .objectName = QLatin1String(name) + QString::number(i + 1),
                                .width = kFigureWidth,
                                .kind = {numberHint}},
                               this);
        grid->addWidget(fields[at], i / kFieldsInARow, i % kFieldsInARow);
    }
    column.addLayout(grid);
}

void ScalePanel::addButton(QVBoxLayout& column, const QString& text, const char* name,
                           void (ScalePanel::*act)()) {
    QPushButton* button = look::button(text, QLatin1String(name), this);
    connect(button, &QPushButton::clicked, this, act);
    column.addWidget(button, 0, Qt::AlignLeft);
}

void ScalePanel::showScale() {
    const QString printer = toQt(calibration_.printer());
    printer_->setText(printer.isEmpty() ? QStringLiteral("⚠ Nenhuma impressora instalada.")
                                        : QStringLiteral("Impressora %1, %2").arg(printer, paper_));
    for (std::size_t i = 0; i < figures_.size(); ++i) {
        shown_[i] = hundredthsText(calibration_.scale().*kPrintScaleFields[i].member);
        figures_[i]->setStored(shown_[i]);
    }
}

void ScalePanel::refresh() {
    const MeasuredSheet sheet;
    for (std::size_t i = 0; i < distances_.size(); ++i) {
        distances_[i]->setStored({});
        distances_[i]->setPlaceholder(toQt(hundredthsText(sheet.*kMeasuredDistances[i])));
    }
    showScale();
}

bool ScalePanel::confirmLeaving() {
    const bool hasTyped =
        textsOf(figures_) != shown_ ||
        std::ranges::any_of(distances_, [](const Field* one) { return !one->text().isEmpty(); });
    return !hasTyped || calibration_.confirmDiscarding();
}

ScalePanel::Texts ScalePanel::textsOf(const Fields& fields) {
    Texts texts;
    std::ranges::transform(fields, texts.begin(),
                           [](const Field* field) { return toUtf8(field->text()); });
    return texts;
}

void ScalePanel::saveScale() {
    if (!calibration_.type(textsOf(figures_))) return;
    showScale();
    emit done(QStringLiteral("Escala gravada."));
}

void ScalePanel::saveDistances() {
    if (!calibration_.typeDistances(textsOf(distances_))) return;
    refresh();
    emit done(QStringLiteral("Escala calculada e gravada."));
}

void ScalePanel::printSheet() {
    if (calibration_.printSheet())
        emit done(QStringLiteral("Folha de calibração enviada à impressora."));
}

}  // namespace winvrx
