#include "tools/transfer/desktop/transfer_frame.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/values/text.h"
#include "foundation/widgets/desktop/look.h"
#include "foundation/widgets/desktop/progress.h"

#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QProcess>
#include <QPushButton>
#include <QStorageInfo>
#include <QTimer>
#include <QToolButton>

#include <filesystem>

namespace winvrx {

namespace {

QString roomText(const std::filesystem::path& root) {
    const QStorageInfo volume(toQt(root.string()));
    if (!volume.isValid()) return {};
    const QString name = volume.name().isEmpty() ? QString() : volume.name() + QStringLiteral(", ");
    return u' ' + name +
           QStringLiteral("%1 livres")
               .arg(QLocale(QLocale::Portuguese, QLocale::Brazil)
                        .formattedDataSize(volume.bytesAvailable(), 1,
                                           QLocale::DataSizeTraditionalFormat));
}

/// The letter before the volume's name, or what was typed.
std::string letterIn(const QString& text) {
    return toUtf8(text.section(QStringLiteral(" "), 0, 0));
}

TransferProgress progressOf(std::string_view step) {
    const auto shown = std::make_shared<Progress>(
        Progress::Words{.objectName = QStringLiteral("transfer.progress"),
                        .title = QStringLiteral("Cópia de Segurança da Base de Dados"),
                        .step = toQt(step) + QStringLiteral(": arquivo %1 de %2")},
        QApplication::activeWindow());
    return [shown](std::size_t done, std::size_t all) {
        return shown->show(static_cast<int>(done), static_cast<int>(all));
    };
}

std::optional<std::uint64_t> freeSpaceAt(const std::filesystem::path& folder) {
    std::error_code fault;
    const auto room = std::filesystem::space(folder, fault);
    if (fault) return std::nullopt;
    return room.available;
}

/// Of the volume whose root this is; empty for a folder within one.
QString deviceAt(const std::filesystem::path& root) {
    const QStorageInfo volume(toQt(root.string()));
    const bool isRoot =
        !root.empty() && volume.isValid() && QDir(volume.rootPath()) == QDir(toQt(root.string()));
    return isRoot ? QString::fromUtf8(volume.device()) : QString();
}

/// What came of it, for the operator.
Message ejectVolume(const QString& device) {
    constexpr int kPatience = 30'000;  // milliseconds
    const auto refused = [](const char* advice) {
        return refusal("Ejetar", "A unidade não pôde ser ejetada por aqui.", advice);
    };
    if (device.isEmpty())
        return refused("Escolha uma unidade removível ligada, que não seja a unidade em uso.");
    QProcess command;
    command.start(QStringLiteral("udisksctl"),
                  {QStringLiteral("unmount"), QStringLiteral("--block-device"), device});
    if (!command.waitForStarted()) return refused("Use o gerenciador de arquivos do sistema.");
    if (command.waitForFinished(kPatience) && command.exitStatus() == QProcess::NormalExit &&
        command.exitCode() == 0)
        return notice("Ejetar", "É seguro remover a unidade.");
    return refused(
        "O sistema não a soltou: feche o que estiver aberto nela e tente de novo, ou use o "
        "gerenciador de arquivos do sistema.");
}

}  // namespace

TransferDesk systemTransferDesk(Disk& disk, const Drives& drives, SafetyCopies& copies,
                                const Archiver& archiver) {
    return {disk, drives, copies, archiver, freeSpaceAt, progressOf};
}

TransferFrame::TransferFrame(const Workplace& at, const TransferDesk& desk,
                             std::function<void()> imported, QWidget* parent)
    : QWidget(parent), at_(at), desk_(desk), screen_(at, desk), imported_(std::move(imported)) {
    build();
    fillDrives();
}

void TransferFrame::build() {
    auto* column = new QVBoxLayout(this);
    look::layOutPart(*column);
    auto* title = look::heading(QStringLiteral("Cópia de Segurança da Base de Dados:"), this);
    title->setWordWrap(true);
    column->addWidget(title);
    direction_ = new QComboBox(this);
    look::name(*direction_, QStringLiteral("transfer.direction"), QStringLiteral("Direção"));
    for (const std::string_view direction : kTransferDirections)
        direction_->addItem(toQt(direction));
    direction_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    direction_->setMinimumContentsLength(1);
    column->addWidget(direction_);
    column->addWidget(buildTarget());
    column->addLayout(buildCommands());
}

QWidget* TransferFrame::buildTarget() {
    auto* part = new QWidget(this);
    auto* row = new QHBoxLayout(part);
    row->setContentsMargins({});
    source_ = look::label(QString(), look::TextSize::Hint, part);
    target_ = new QComboBox(part);
    look::name(*target_, QStringLiteral("transfer.target"),
               QStringLiteral("Diretório de Destino ou da mídia"));
    target_->setEditable(true);
    target_->setInsertPolicy(QComboBox::NoInsert);
    look::name(*target_->lineEdit(), QStringLiteral("transfer.letter"), target_->accessibleName());
    target_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    target_->setMinimumContentsLength(1);
    target_->installEventFilter(this);
    row->addWidget(source_);
    row->addWidget(target_, 1);
    return part;
}

QLayout* TransferFrame::buildCommands() {
    auto* row = new QHBoxLayout;
    addButton(*row, QStringLiteral("Transferir"), QStringLiteral("transfer.run"),
              QStringLiteral("Copia todos os dados para a outra unidade, ou de lá para cá"),
              [this] { transfer(); });
    addTool(*row, "drive", QStringLiteral("Ejetar"), QStringLiteral("transfer.eject"),
            QStringLiteral("Ejetar: prepara a unidade para ser removida"), [this] { eject(); });
    addButton(*row, QStringLiteral("Backup"), QStringLiteral("transfer.backup"),
              QStringLiteral("Copia os dados para a pasta Backup deste mesmo drive"),
              [this] { (void)screen_.backUp(); });
    addTool(*row, "backup", QStringLiteral("Backup Zip"), QStringLiteral("transfer.archive"),
            QStringLiteral(
                "Backup Zip: copia os dados para um só arquivo, conferido depois de gravado"),
            [this] { (void)screen_.backUpAsArchive(); });
    return row;
}

void TransferFrame::addButton(QBoxLayout& row, const QString& caption, const QString& name,
                              const QString& tip, std::function<void()> act) {
    auto* button = new QPushButton(caption, this);
    look::name(*button, name, caption);
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, std::move(act));
    row.addWidget(button);
}

void TransferFrame::addTool(QBoxLayout& row, const char* icon, const QString& spoken,
                            const QString& name, const QString& tip, std::function<void()> act) {
    auto* tool = new QToolButton(this);
    tool->setIcon(look::icon(QLatin1String(icon)));
    look::name(*tool, name, spoken);
    tool->setToolTip(tip);
    tool->setFocusPolicy(Qt::StrongFocus);
    connect(tool, &QToolButton::clicked, this, std::move(act));
    row.addWidget(tool);
}

void TransferFrame::fillDrives() {
    const QString typed = target_->currentText();
    const char inUse = at_.session.folder.driveLetter();
    source_->setText(QStringLiteral("Diretório de Origem %1").arg(QLatin1Char(inUse)));
    target_->clear();
    for (const char letter : desk_.drives.letters())
        if (letter != inUse && letter != kDefaultDrive)
            target_->addItem(QLatin1Char(letter) + roomText(desk_.drives.root(letter)));
    if (!typed.isEmpty()) target_->setEditText(typed);
    target_->lineEdit()->setCursorPosition(0);  // the letter is what is read
}

/// What is plugged in meanwhile is offered when the list is asked for. A letter typed then replaces
/// what stands there, of which the beginning is seen.
bool TransferFrame::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        fillDrives();
        QTimer::singleShot(0, this, [line = target_->lineEdit()] {
            const auto length = static_cast<int>(line->text().size());
            line->setSelection(length, -length);
        });
    }
    return QWidget::eventFilter(watched, event);
}

void TransferFrame::transfer() {
    const auto direction = static_cast<TransferDirection>(direction_->currentIndex());
    const bool done = screen_.transfer(direction, letterIn(target_->currentText()));
    fillDrives();
    if (done && direction == TransferDirection::Import) imported_();
}

void TransferFrame::eject() {
    const std::string letter = upperCase(letterIn(target_->currentText()));
    const bool isOther = letter.size() == 1 && letter[0] != at_.session.folder.driveLetter();
    at_.person.tell(ejectVolume(isOther ? deviceAt(desk_.drives.root(letter[0])) : QString()));
    fillDrives();
}

}  // namespace winvrx
