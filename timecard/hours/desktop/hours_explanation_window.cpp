#include "timecard/hours/desktop/hours_explanation_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr QSize kSize(720, 520);
constexpr std::array<const char*, 4> kHeadings = {"Dia", "Das – às", "Horas", "Regra aplicada"};
constexpr int kRule = 3;
const QString kNothing = QStringLiteral("Nenhum dia deste período tem horas neste total.");

QString periodName(std::optional<HalfMonth> half) {
    if (!half) return QStringLiteral("Mês");
    return *half == HalfMonth::First ? QStringLiteral("1º Quinzena")
                                     : QStringLiteral("2º Quinzena");
}

void layOut(QTableWidget& table) {
    const QFontMetrics letters(look::fixedFont());
    table.verticalHeader()->hide();
    table.verticalHeader()->setMinimumSectionSize(letters.height());
    table.verticalHeader()->setDefaultSectionSize(letters.height() + look::kGap);
    QHeaderView* columns = table.horizontalHeader();
    columns->setSectionsClickable(false);
    columns->setHighlightSections(false);
    columns->setDefaultAlignment(Qt::AlignCenter);
    table.resizeColumnsToContents();
    for (int at = 0; at < kRule; ++at)
        columns->resizeSection(at, columns->sectionSize(at) + look::kMargin);
    columns->setStretchLastSection(true);
    table.horizontalHeaderItem(kRule)->setTextAlignment(Qt::AlignVCenter | Qt::AlignLeft);
    table.setCurrentCell(0, kRule);
}

QTableWidgetItem* cell(const std::string& text, int column) {
    auto* item = new QTableWidgetItem(toQt(text));
    item->setFont(column == kRule ? look::font(look::TextSize::Body) : look::fixedFont());
    if (column != kRule) item->setTextAlignment(Qt::AlignCenter);
    return item;
}

}  // namespace

HoursExplanationWindow::HoursExplanationWindow(const HoursSummary& hours, HourCategory category,
                                               std::optional<HalfMonth> half, const QString& owner,
                                               QWidget* parent)
    : ScreenWindow(QStringLiteral("hoursExplanation"), toQt(hours.caption(category)), parent) {
    setSubtitle(periodName(half) + QStringLiteral(": ") + toQt(hours.figure(category, half)));
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
        QTableWidget* table = buildTable(parts);
        column->addWidget(table, 1);
        table->setFocus();
    }
    return body;
}

QTableWidget* HoursExplanationWindow::buildTable(const std::vector<ExplainedPart>& parts) {
    auto* table =
        new QTableWidget(static_cast<int>(parts.size()), static_cast<int>(kHeadings.size()), this);
    look::name(*table, QStringLiteral("hoursExplanation.parts"),
               QStringLiteral("Dias e minutos do total"));
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    for (int at = 0; at < table->columnCount(); ++at)
        table->setHorizontalHeaderItem(
            at, new QTableWidgetItem(QString::fromUtf8(kHeadings[static_cast<std::size_t>(at)])));
    for (int row = 0; row < table->rowCount(); ++row) {
        const ExplainedPart& part = parts[static_cast<std::size_t>(row)];
        const std::array texts = {&part.day, &part.span, &part.length, &part.rule};
        for (int at = 0; at < table->columnCount(); ++at)
            table->setItem(row, at, cell(*texts[static_cast<std::size_t>(at)], at));
    }
    layOut(*table);
    return table;
}

}  // namespace winvrx
