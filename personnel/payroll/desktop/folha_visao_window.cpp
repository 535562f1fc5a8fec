#include "personnel/payroll/desktop/folha_visao_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"
#include "personnel/payroll/payroll_overview.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QStandardPaths>
#include <QTreeWidget>

namespace winvrx {

namespace {

constexpr int kFirstAmount = 2;
constexpr int kStanding = 7;
constexpr int kAmountWidth = 17;  // characters, of its title too

void addRow(QTreeWidget& table, const std::vector<std::string>& cells, bool isTotal) {
    auto* row = new QTreeWidgetItem(&table);
    for (int column = 0; column < static_cast<int>(cells.size()); ++column) {
        row->setText(column, toQt(cells[static_cast<std::size_t>(column)]));
        if (column >= kFirstAmount && column < kStanding) {
            row->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
            row->setFont(column, look::fixedFont());
        }
        if (!isTotal) continue;
        QFont bold = row->font(column);
        bold.setBold(true);
        row->setFont(column, bold);
    }
}

}  // namespace

FolhaVisaoWindow::FolhaVisaoWindow(const FolhaVisao& view, const QStringList& chips,
                                   QWidget* parent)
    : ScreenWindow(QStringLiteral("visao"), QStringLiteral("Visão do Mês"), parent), view_(view) {
    setChips(chips);
    setBody({{buildTable()}});
    buildCommands();
    setState(QStringLiteral("Enter volta à folha do funcionário"));
    people_->setFocus();
}

QWidget* FolhaVisaoWindow::buildTable() {
    QStringList titles;
    for (const std::string_view title : kOverviewTitles)
        titles << toQt(title);
    people_ =
        look::table(QStringLiteral("visao.people"), QStringLiteral("Folha de todos"), titles, this);
    people_->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    const int amountWidth = QFontMetrics(look::fixedFont()).averageCharWidth() * kAmountWidth;
    for (int column = kFirstAmount; column < kStanding; ++column) {
        people_->headerItem()->setTextAlignment(column, Qt::AlignRight);
        people_->header()->setSectionResizeMode(column, QHeaderView::Fixed);
        people_->header()->resizeSection(column, amountWidth);
    }
    const auto rows = view_.shown().table();
    for (std::size_t at = 1; at < rows.size(); ++at)
        addRow(*people_, rows[at], at + 1 == rows.size());
    people_->setCurrentItem(people_->topLevelItem(0));
    connect(people_, &QTreeWidget::itemActivated, this, &FolhaVisaoWindow::choose);
    return people_;
}

void FolhaVisaoWindow::buildCommands() {
    addCommand({"save", QStringLiteral("Planilha XLSX"), Qt::CTRL | Qt::Key_E, "visao.xlsx",
                [this] { exportAs(QStringLiteral("xlsx"), &FolhaVisao::exportWorkbook); }});
    addCommand({"save", QStringLiteral("CSV"), Qt::CTRL | Qt::Key_T, "visao.csv",
                [this] { exportAs(QStringLiteral("csv"), &FolhaVisao::exportCsv); }});
    addLeavingButton("visao.close");
}

void FolhaVisaoWindow::choose() {
    const int row = people_->indexOfTopLevelItem(people_->currentItem());
    const auto& people = view_.shown().people;
    if (row < 0 || row >= static_cast<int>(people.size())) return;
    chosen_ = people[static_cast<std::size_t>(row)].code;
    accept();
}

void FolhaVisaoWindow::exportAs(const QString& ending, Export make) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QString file = QFileDialog::getSaveFileName(
        this, QStringLiteral("Exportar"),
        folder + QLatin1Char('/') + toQt(view_.name()) + QLatin1Char('.') + ending,
        QStringLiteral("%1 (*.%2)").arg(ending.toUpper(), ending));
    if (file.isEmpty()) return;
    if ((view_.*make)(std::filesystem::path(file.toStdU16String())))
        setState(QStringLiteral("Gravado em ") + file);
}

}  // namespace winvrx
