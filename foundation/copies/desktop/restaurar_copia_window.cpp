#include "foundation/copies/desktop/restaurar_copia_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/look.h"

#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr int kFilesCell = 2;
constexpr int kSizeCell = 3;

QTreeWidget* table(const QString& objectName, const QString& name, const QStringList& headings,
                   QWidget* parent) {
    QTreeWidget* table = look::table(objectName, name, headings, parent);
    table->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    return table;
}

QString sizeText(std::size_t bytes) {
    return QLocale(QLocale::Portuguese, QLocale::Brazil)
        .formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeTraditionalFormat);
}

QStringList cellsOf(const SafetyCopy& copy) {
    const QString files = copy.damaged ? QStringLiteral("danificada") : QString::number(copy.files);
    return {toQt(momentOfCopy(copy.name)), toQt(originOfCopy(copy)), files, sizeText(copy.bytes)};
}

QString summaryOf(const CopyPreview& preview) {
    if (!preview.problem.empty()) return QStringLiteral("⚠ ") + toQt(preview.problem);
    if (preview.changes.empty())
        return QStringLiteral("A pasta de dados está igual a esta cópia: não há o que restaurar.");
    return QStringLiteral(
        "Restaurar faz a pasta de dados voltar a ser o que era. O estado de agora é guardado "
        "antes, como mais uma cópia desta lista.");
}

}  // namespace

RestaurarCopiaWindow::RestaurarCopiaWindow(RestaurarCopia& copies, QWidget* parent)
    : ScreenWindow(QStringLiteral("restaurar"), QStringLiteral("Restaurar Cópia"), parent),
      copies_(copies) {
    setSubtitle(QStringLiteral("Uma cópia para cada um dos últimos sete dias de uso"));
    addCommands();
    setSplitBody({buildList(), 1}, {buildPreview(), 1});
    connect(list_, &QTreeWidget::currentItemChanged, this, &RestaurarCopiaWindow::showPreview);
    connect(list_, &QTreeWidget::itemActivated, this, &RestaurarCopiaWindow::restore);
    copies_.load();
    fillList();
    list_->setFocus();
}

void RestaurarCopiaWindow::addCommands() {
    addCommand({"restore", QStringLiteral("Restaurar"), Qt::CTRL | Qt::Key_R, "restaurar.restore",
                [this] { restore(); }});
    addLeavingButton("restaurar.close");
}

QWidget* RestaurarCopiaWindow::buildList() {
    const auto [part, column] = look::part(this);
    const QString title = QStringLiteral("Cópias da pasta de dados");
    column->addWidget(look::heading(title, part));
    list_ = table(QStringLiteral("restaurar.list"), title,
                  {QStringLiteral("Feita em"), QStringLiteral("Origem"), QStringLiteral("Arquivos"),
                   QStringLiteral("Tamanho")},
                  part);
    for (const int number : {kFilesCell, kSizeCell})
        list_->headerItem()->setTextAlignment(number, Qt::AlignRight | Qt::AlignVCenter);
    column->addWidget(list_, 1);
    return part;
}

QWidget* RestaurarCopiaWindow::buildPreview() {
    const auto [part, column] = look::part(this);
    const QString title = QStringLiteral("O que a cópia traz de volta");
    column->addWidget(look::heading(title, part));
    summary_ = look::paragraph(QStringLiteral("restaurar.summary"), look::TextSize::Body, part);
    column->addWidget(summary_);
    changes_ = table(QStringLiteral("restaurar.changes"), title,
                     {QStringLiteral("Assunto"), QStringLiteral("O que acontece")}, part);
    changes_->setSelectionMode(QAbstractItemView::NoSelection);
    column->addWidget(changes_, 1);
    return part;
}

void RestaurarCopiaWindow::fillList() {
    const QSignalBlocker quiet(list_);
    list_->clear();
    for (const SafetyCopy& copy : copies_.copies()) {
        auto* item = new QTreeWidgetItem(list_, cellsOf(copy));
        for (const int number : {kFilesCell, kSizeCell})
            item->setTextAlignment(number, Qt::AlignRight | Qt::AlignVCenter);
        item->setToolTip(0, toQt(copy.name.text()));
    }
    list_->setCurrentItem(list_->topLevelItem(0));
    setState(toQt(countOf(list_->topLevelItemCount(), "cópia")));
    showPreview();
}

void RestaurarCopiaWindow::showPreview() {
    changes_->clear();
    const auto copy = current();
    changes_->setVisible(copy.has_value());
    if (!copy) {
        summary_->setText(QStringLiteral(
            "Ainda não há cópias. A primeira é feita sozinha, na próxima gravação."));
        return;
    }
    const CopyPreview preview = copies_.preview(*copy);
    summary_->setText(summaryOf(preview));
    for (const SubjectChange& change : preview.changes) {
        auto* item = new QTreeWidgetItem(changes_, {toQt(change.subject), toQt(change.text())});
        item->setToolTip(1, item->text(1));
    }
}

void RestaurarCopiaWindow::restore() {
    const bool restored = copies_.restore(current());
    copies_.load();
    fillList();
    if (restored) setState(QStringLiteral("Cópia restaurada. O estado anterior está na lista."));
}

std::optional<CopyName> RestaurarCopiaWindow::current() const {
    const int row = list_->indexOfTopLevelItem(list_->currentItem());
    if (row < 0) return std::nullopt;
    return copies_.copies().at(static_cast<std::size_t>(row)).name;
}

}  // namespace winvrx
