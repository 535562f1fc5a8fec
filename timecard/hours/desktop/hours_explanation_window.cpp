#include "timecard/hours/desktop/hours_explanation_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr QSize kSize(720, 520);
constexpr int kRule = 3;
const QString kNothing = QStringLiteral("Nenhum dia deste período tem horas neste total.");

}  // namespace

HoursExplanationWindow::HoursExplanationWindow(const HoursSummary& hours, HourCategory category,
                                               std::optional<HalfMonth> half, const QString& owner,
                                               QWidget* parent)
    : ScreenWindow(QStringLiteral("hoursExplanation"), toQt(hours.caption(category)), parent) {
    const QString period = half ? toQt(nameOf(*half)) : QStringLiteral("Mês");
    setSubtitle(period + QStringLiteral(": ") + toQt(hours.figure(category, half)));
    if (!owner.isEmpty()) setChips({owner});
    const auto parts = hours.explanation(category, half);
    setBody(buildBody(parts));
    setState(QStringLiteral("Total: ") + toQt(hours.figure(category, half)));
    addLeavingButton("hoursExplanation.close", QStringLiteral("&Fechar"))->setDefault(true);
    resize(kSize);
}

QWidget* HoursExplanationWindow::buildBody(const std::vector<ExplainedPart>& parts) {
    const auto [body, column] = look::body(this);
    if (parts.empty()) {
        column->addWidget(look::label(kNothing, look::TextSize::Body, body));
        column->addStretch();
    } else {
        QTreeWidget* table = buildTable(parts);
        column->addWidget(table, 1);
        table->setFocus();
    }
    return body;
}

QTreeWidget* HoursExplanationWindow::buildTable(const std::vector<ExplainedPart>& parts) {
    QTreeWidget* table = look::table(QStringLiteral("hoursExplanation.parts"),
                                     QStringLiteral("Dias e minutos do total"),
                                     {QStringLiteral("Dia"), QStringLiteral("Das – às"),
                                      QStringLiteral("Horas"), QStringLiteral("Regra aplicada")},
                                     this);
    table->header()->setStretchLastSection(true);
    for (const ExplainedPart& part : parts) {
        auto* row = new QTreeWidgetItem(
            table, {toQt(part.day), toQt(part.span), toQt(part.length), toQt(part.rule)});
        for (int column = 0; column < kRule; ++column)
            row->setFont(column, look::fixedFont());
    }
    table->setCurrentItem(table->topLevelItem(0));
    return table;
}

}  // namespace winvrx
