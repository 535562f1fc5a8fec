#include "personnel/invoice_letter/desktop/carta_correcao_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/look.h"
#include "personnel/invoice_letter/carta_correcao_imprime.h"
#include "personnel/invoice_letter/desktop/qt_xml_reader.h"

#include <QDateTime>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSignalBlocker>
#include <QStandardPaths>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace winvrx {

namespace {

QString writtenText(const ListedFile& file) {
    const auto time = std::chrono::duration_cast<std::chrono::milliseconds>(file.written);
    return QDateTime::fromMSecsSinceEpoch(time.count())
        .toString(QStringLiteral("dd/MM/yyyy HH:mm"));
}

QString folderText(const std::filesystem::path& folder) {
    return QString::fromStdU16String(folder.u16string());
}

QString detailsOf(const CorrectionLetter& letter) {
    return QStringLiteral(
               "Chave de acesso: %1\nEmitente: %2\nDestinatário: %3\nProtocolo: %4\n"
               "Evento em %5, registrado em %6\n\n%7")
        .arg(toQt(letter.accessKey), toQt(letter.issuer),
             letter.recipient.empty() ? QStringLiteral("não informado") : toQt(letter.recipient),
             toQt(letter.protocol), toQt(readableMoment(letter.issued)),
             toQt(readableMoment(letter.registered)), toQt(letter.correction));
}

}  // namespace

CartaCorrecaoWindow::CartaCorrecaoWindow(CartaCorrecaoImprime& command, QWidget* parent)
    : ScreenWindow(QStringLiteral("cartaCorrecao"), QStringLiteral("Carta de Correção NF-e"),
                   parent),
      command_(command) {
    setBody(buildBody());
    buildCommands();
    showFiles();
    files_->setFocus(Qt::OtherFocusReason);
}

QWidget* CartaCorrecaoWindow::buildBody() {
    auto* body = new QWidget(this);
    body->setMinimumSize(look::kSmallWindowSize);
    auto* row = new QHBoxLayout(body);
    look::layOutBody(*row);
    row->setSpacing(look::kGroupGap);
    files_ = look::table(QStringLiteral("cartaCorrecao.files"), QStringLiteral("Arquivos"),
                         {QStringLiteral("Arquivo"), QStringLiteral("Gravado em")}, body);
    files_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    row->addWidget(files_, 1);
    auto* column = new QVBoxLayout;
    look::layOutPart(*column);
    heading_ = look::line(QStringLiteral("cartaCorrecao.heading"), look::TextSize::Heading, body);
    column->addWidget(heading_);
    details_ = look::line(QStringLiteral("cartaCorrecao.details"), look::TextSize::Body, body);
    details_->setTextFormat(Qt::PlainText);
    details_->setWordWrap(true);
    column->addWidget(details_);
    column->addStretch();
    row->addLayout(column, 1);
    connect(files_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        const int place = item ? files_->indexOfTopLevelItem(item) : -1;
        command_.select(place < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(place)));
        showLetter();
    });
    return body;
}

void CartaCorrecaoWindow::buildCommands() {
    addCommand({"folder", QStringLiteral("Escolher Pasta"), Qt::Key_F2, "cartaCorrecao.folder",
                [this] { chooseFolder(); }});
    addCommand(
        {"refresh", QStringLiteral("Atualizar"), Qt::Key_F5, "cartaCorrecao.refresh", [this] {
             (void)command_.openFolder(command_.folder());
             showFiles();
         }});
    addCommand({"preview", QStringLiteral("Visualizar"), Qt::Key_F7, "cartaCorrecao.preview",
                [this] { print(ReportOutput::Preview); }});
    addDefaultButton({"print", QStringLiteral("&Imprimir"), QKeySequence::Print,
                      "cartaCorrecao.print", [this] { print(ReportOutput::Printer); }});
    addLeavingButton("cartaCorrecao.close");
}

void CartaCorrecaoWindow::chooseFolder() {
    const QString folder = QFileDialog::getExistingDirectory(
        this, QStringLiteral("Pasta dos arquivos XML"), folderText(command_.folder()));
    if (folder.isEmpty()) return;
    (void)command_.openFolder(std::filesystem::path(folder.toStdU16String()));
    showFiles();
}

void CartaCorrecaoWindow::print(ReportOutput output) {
    if (!command_.print(output)) return;
    setState(output == ReportOutput::Printer ? QStringLiteral("Carta enviada à impressora.")
                                             : QString());
}

void CartaCorrecaoWindow::showFiles() {
    setChips({folderText(command_.folder())});
    {
        const QSignalBlocker quiet(files_);
        files_->clear();
        for (const ListedFile& file : command_.files())
            files_->addTopLevelItem(new QTreeWidgetItem({toQt(file.name), writtenText(file)}));
    }
    command_.select(std::nullopt);
    files_->setCurrentItem(files_->topLevelItem(0));
    showLetter();
}

void CartaCorrecaoWindow::showLetter() {
    const auto& letter = command_.letter();
    if (command_.files().empty()) {
        heading_->setText(QStringLiteral("Nenhum arquivo XML nesta pasta"));
        details_->setText(QStringLiteral("Escolha a pasta com F2."));
    } else {
        heading_->setText(letter ? QStringLiteral("Carta de correção")
                                 : QStringLiteral("⚠ Não é uma carta de correção"));
        details_->setText(letter ? detailsOf(*letter) : toQt(command_.finding()));
    }
    setState(toQt(countOf(command_.files().size(), "arquivo XML", "arquivos XML")));
}

void openCorrectionLetters(const Workplace& at, ReportEngine& engine, QWidget* parent) {
    const QtXmlReader reader;
    CartaCorrecaoImprime letters(at, {engine, reader});
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    (void)letters.openFolder(std::filesystem::path(folder.toStdU16String()));
    CartaCorrecaoWindow(letters, parent).exec();
}

}  // namespace winvrx
