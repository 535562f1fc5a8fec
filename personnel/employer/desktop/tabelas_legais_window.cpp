#include "personnel/employer/desktop/tabelas_legais_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/field.h"
#include "foundation/widgets/desktop/look.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr int kFieldsARow = 5;
constexpr std::size_t kFigureWidth = 14;
constexpr std::size_t kSourceWidth = 120;
constexpr int kKindCharacters = 36;
constexpr int kLinesInSight = 12;

QString capitalised(const std::string& heading) {
    QString text = toQt(heading);
    text[0] = text[0].toUpper();
    return text;
}

}  // namespace

TabelasLegaisWindow::TabelasLegaisWindow(TabelasLegais& tables, QWidget* parent)
    : ScreenWindow(QStringLiteral("tabelas"), toQt(kLegalTitle), parent), tables_(tables) {
    setBody({{buildKinds(this)}, {buildLines(this), 1}});
    buildCommands();
    setSubtitle(QStringLiteral("Valores da lei, com o mês ou o dia desde o qual valem"));
    kinds_->setCurrentRow(0);
    showWarnings();
    kinds_->setFocus();
}

QWidget* TabelasLegaisWindow::buildKinds(QWidget* parent) {
    const auto [part, column] = look::part(parent);
    column->addWidget(look::heading(QStringLiteral("Tabelas"), part));
    kinds_ = new QListWidget(part);
    look::name(*kinds_, QStringLiteral("tabelas.kinds"), QStringLiteral("Tabelas"));
    for (const LegalKind& one : legalKinds())
        kinds_->addItem(toQt(one.title));
    part->setFixedWidth(kinds_->fontMetrics().averageCharWidth() * kKindCharacters);
    column->addWidget(kinds_, 1);
    connect(kinds_, &QListWidget::currentRowChanged, this, &TabelasLegaisWindow::chooseKind);
    warnings_ = look::paragraph(QStringLiteral("tabelas.warnings"), look::TextSize::Hint, part);
    look::setTint(*warnings_, look::Tint::Warning);
    column->addWidget(warnings_);
    return part;
}

QWidget* TabelasLegaisWindow::buildLines(QWidget* parent) {
    const auto [part, column] = look::part(parent);
    validity_ = look::line(QStringLiteral("tabelas.validity"), look::TextSize::Heading, part);
    column->addWidget(validity_);
    lines_ =
        look::table(QStringLiteral("tabelas.lines"), QStringLiteral("Linhas da tabela"), {}, part);
    lines_->setMinimumHeight(lines_->fontMetrics().height() * kLinesInSight);
    column->addWidget(lines_, 1);
    connect(lines_, &QTreeWidget::itemSelectionChanged, this, &TabelasLegaisWindow::chooseLine);
    column->addWidget(look::heading(QStringLiteral("Linha"), part));
    form_ = new QWidget(part);
    cells_ = new QGridLayout(form_);
    cells_->setContentsMargins(0, 0, 0, 0);
    cells_->setHorizontalSpacing(look::kGap);
    column->addWidget(form_);
    return part;
}

void TabelasLegaisWindow::buildCommands() {
    addCommand({"add", QStringLiteral("Nova Linha"), Qt::Key_Insert, "tabelas.new",
                [this] { startNew(); }});
    addCommand({"delete", QStringLiteral("Excluir Linha"), Qt::Key_Delete, "tabelas.remove",
                [this] { removeLine(); }, lines_});
    addDefaultButton({"save", QStringLiteral("&Gravar"), QKeySequence::Save, "tabelas.save",
                      [this] { save(); }});
    addLeavingButton("tabelas.close");
}

std::size_t TabelasLegaisWindow::kind() const {
    return static_cast<std::size_t>(shownKind_);
}

void TabelasLegaisWindow::chooseKind(int row) {
    if (row < 0 || (row == shownKind_ && !fields_.empty())) return;
    if (!confirmDiscard()) {
        const QSignalBlocker quiet(kinds_);
        kinds_->setCurrentRow(shownKind_);
        return;
    }
    shownKind_ = row;
    const LegalKind& chosen = legalKinds()[kind()];
    validity_->setText(toQt(chosen.title) + QStringLiteral(", ") + toQt(chosen.validity));
    {
        const QSignalBlocker quiet(lines_);
        lines_->clear();
    }
    QStringList titles;
    for (const std::string& heading : tables_.headings(kind()))
        titles << capitalised(heading);
    titles << QStringLiteral("Origem");
    lines_->setColumnCount(static_cast<int>(titles.size()));
    lines_->setHeaderLabels(titles);
    buildFields();
    showLines(tables_.rows(kind()).size() - 1);
}

void TabelasLegaisWindow::showLines(std::optional<std::size_t> marked) {
    {
        const QSignalBlocker quiet(lines_);
        lines_->clear();
        for (const LegalRow& row : tables_.rows(kind())) {
            QStringList cells;
            for (const std::string& cell : row.cells)
                cells << toQt(cell);
            // The line of a reform may have more brackets than the headings, or fewer.
            while (cells.size() + 1 < lines_->columnCount())
                cells.insert(cells.size() - 1, QString());
            cells << (row.isOwn ? QStringLiteral("Sua") : QStringLiteral("Entregue"));
            auto* item = new QTreeWidgetItem(lines_, cells);
            for (int cell = 0; cell + 2 < cells.size(); ++cell) {
                item->setFont(cell, look::fixedFont());
                item->setTextAlignment(cell, Qt::AlignRight | Qt::AlignVCenter);
            }
        }
        for (int at = 0; at < lines_->columnCount(); ++at)
            lines_->resizeColumnToContents(at);
    }
    if (marked && static_cast<int>(*marked) < lines_->topLevelItemCount())
        lines_->setCurrentItem(lines_->topLevelItem(static_cast<int>(*marked)));
    setState(QStringLiteral("%1 linhas. Ins começa a do ano seguinte.")
                 .arg(lines_->topLevelItemCount()));
    chooseLine();
}

void TabelasLegaisWindow::buildFields() {
    qDeleteAll(fields_);
    fields_.clear();
    const auto& headings = tables_.headings(kind());
    for (std::size_t at = 0; at < headings.size(); ++at) {
        const bool isSource = at + 1 == headings.size();
        auto* field = new Field({.caption = capitalised(headings[at]),
                                 .objectName = QStringLiteral("tabelas.cell%1").arg(at),
                                 .width = isSource ? kSourceWidth : kFigureWidth},
                                form_);
        const int place = static_cast<int>(at);
        if (isSource)
            cells_->addWidget(field, place / kFieldsARow + 1, 0, 1, kFieldsARow);
        else
            cells_->addWidget(field, place / kFieldsARow, place % kFieldsARow);
        field->input()->setProperty("lastField", isSource);
        field->input()->setMinimumWidth(fontMetrics().averageCharWidth() *
                                        static_cast<int>(kFigureWidth));
        fields_.push_back(field);
    }
}

void TabelasLegaisWindow::showCells(const std::vector<std::string>& cells) {
    for (std::size_t at = 0; at < fields_.size(); ++at) {
        const bool isSource = at + 1 == fields_.size();
        fields_[at]->setStored(isSource                ? cells.back()
                               : at + 1 < cells.size() ? cells[at]
                                                       : std::string());
    }
}

std::vector<std::string> TabelasLegaisWindow::typed() const {
    std::vector<std::string> cells;
    for (const Field* field : fields_)
        cells.push_back(field->stored());
    // Brackets that a reform took away are empty at the end.
    while (cells.size() > 2 && cells[cells.size() - 2].empty())
        cells.erase(cells.end() - 2);
    return cells;
}

bool TabelasLegaisWindow::isDirty() const {
    return std::ranges::any_of(fields_, &Field::isChanged);
}

bool TabelasLegaisWindow::confirmDiscard() {
    return !isDirty() || tables_.confirmDiscard();
}

bool TabelasLegaisWindow::mayClose() {
    return confirmDiscard();
}

void TabelasLegaisWindow::chooseLine() {
    const int row = lines_->indexOfTopLevelItem(lines_->currentItem());
    if (row < 0 || isDirty()) return;
    const auto place = static_cast<std::size_t>(row);
    if (place < tables_.rows(kind()).size()) showCells(tables_.rows(kind())[place].cells);
}

void TabelasLegaisWindow::startNew() {
    if (fields_.empty() || !confirmDiscard()) return;
    showCells(tables_.newLine(kind()));
    setState(QStringLiteral("Linha nova, cópia da última: ajuste os valores e a fonte."));
    fields_.front()->takeFocus();
}

void TabelasLegaisWindow::save() {
    if (fields_.empty()) return;
    const auto cells = typed();
    if (!tables_.save(kind(), cells)) return;
    showCells(cells);
    const auto& rows = tables_.rows(kind());
    std::size_t place = 0;
    while (place + 1 < rows.size() && rows[place].cells.front() != cells.front())
        ++place;
    showLines(place);
    showWarnings();
    lines_->setFocus();
}

void TabelasLegaisWindow::removeLine() {
    const int row = lines_->indexOfTopLevelItem(lines_->currentItem());
    if (row < 0 || !tables_.remove(kind(), static_cast<std::size_t>(row))) return;
    showLines(std::max(row, 1) - 1);
    showWarnings();
}

void TabelasLegaisWindow::showWarnings() {
    QStringList lines;
    for (const std::string& warning : tables_.warnings(tables_.today()))
        lines << QStringLiteral("⚠ ") + toQt(warning);
    look::showText(*warnings_, lines.join(QLatin1Char('\n')));
}

}  // namespace winvrx
