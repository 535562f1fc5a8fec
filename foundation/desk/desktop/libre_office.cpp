#include "foundation/desk/desktop/libre_office.h"

#include "foundation/desk/desktop/open_document.h"
#include "foundation/desk/desktop/windows_programs.h"
#include "foundation/values/desktop/qt_text.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUrl>

namespace winvrx {

namespace {

constexpr int kPatience = 60'000;  // milliseconds for a document at the program's end

/// Empty when there is none.
QString foundProgram() {
    QString program = QStandardPaths::findExecutable(QStringLiteral("soffice"));
#ifdef Q_OS_WIN
    if (program.isEmpty()) program = registeredLibreOffice();
#endif
    return program;
}

/// Throws Fault when there is none.
QString installedProgram() {
    QString program = foundProgram();
    if (program.isEmpty())
        throw Fault("soffice: not found", "O LibreOffice Writer não está instalado.");
    return program;
}

/// Another word processor that Windows opens such documents with.
bool openedByAssociation(const QString& path) {
#ifdef Q_OS_WIN
    return !programOf(u'.' + QFileInfo(path).suffix()).isEmpty() &&
           QDesktopServices::openUrl(QUrl::fromLocalFile(path));
#else
    (void)path;
    return false;
#endif
}

Fault notStarted() {
    return {"soffice: not started", "O LibreOffice Writer não pôde ser aberto."};
}

/// LibreOffice says nothing about a printer that is not there. Throws Fault in its place.
QString installedPrinter(const std::string& wanted) {
    const QString name = wanted.empty() ? QPrinterInfo::defaultPrinterName() : toQt(wanted);
    if (name.isEmpty())
        throw Fault("soffice: no default printer", "Nenhuma impressora padrão foi escolhida.");
    if (QPrinterInfo::printerInfo(name).isNull())
        throw Fault("soffice: no printer " + wanted,
                    "A impressora " + wanted + " não foi encontrada.");
    return name;
}

}  // namespace

LibreOffice::LibreOffice(std::function<void(const Fault&)> onFailure)
    : onFailure_(std::move(onFailure)) {
    QObject::connect(
        &printing_, &QProcess::finished, &printing_,
        [this](int exitCode, QProcess::ExitStatus status) { endJob(exitCode, status); });
}

LibreOffice::~LibreOffice() {
    while (printing_.state() != QProcess::NotRunning && printing_.waitForFinished(kPatience)) {
    }
}

QString LibreOffice::save(const Document& document) {
    static const QRegularExpression unfit(QStringLiteral("[^\\w -]"),
                                          QRegularExpression::UseUnicodePropertiesOption);
    const QString place = folder_.filePath(QString::number(++saved_));
    const QString path = place + u'/' + toQt(document.title).replace(unfit, QStringLiteral("-")) +
                         QStringLiteral(".fodt");
    QDir().mkpath(place);
    const QByteArray bytes = openDocument(document);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        throw Fault(toUtf8(path) + ": " + toUtf8(file.errorString()),
                    "O documento não pôde ser gravado na pasta temporária.");
    return path;
}

void LibreOffice::show(const Document& document) {
    open(save(document));
}

void LibreOffice::print(const Document& document, const std::string& printer) {
    queue(save(document), printer);
}

std::string LibreOffice::fileOf(const Document& document) const {
    return openDocument(document).toStdString();
}

void LibreOffice::showFile(const std::filesystem::path& file) {
    open(toQt(file.string()));
}

void LibreOffice::printFile(const std::filesystem::path& file, const std::string& printer) {
    queue(toQt(file.string()), printer);
}

void LibreOffice::open(const QString& path) {
    if (foundProgram().isEmpty() && openedByAssociation(path)) return;
    if (!QProcess::startDetached(installedProgram(), {QStringLiteral("--nologo"), path}))
        throw notStarted();
}

void LibreOffice::queue(const QString& path, const std::string& printer) {
    program_ = installedProgram();
    // A profile of its own: a window that the operator has open would take the job over, and its
    // end could not be told.
    const QUrl profile = QUrl::fromLocalFile(folder_.filePath(QStringLiteral("perfil")));
    jobs_.append({QStringLiteral("--headless"), QStringLiteral("--norestore"),
                  QStringLiteral("-env:UserInstallation=") + profile.toString(QUrl::FullyEncoded),
                  QStringLiteral("--pt"), installedPrinter(printer), path});
    if (printing_.state() == QProcess::NotRunning && !startNextJob()) throw notStarted();
}

bool LibreOffice::startNextJob() {
    printing_.start(program_, jobs_.takeFirst());
    return printing_.waitForStarted();
}

void LibreOffice::endJob(int exitCode, QProcess::ExitStatus status) {
    if (exitCode != 0 || status != QProcess::NormalExit)
        onFailure_(Fault("soffice: " + printing_.readAllStandardError().toStdString(),
                         "O LibreOffice Writer foi interrompido."));
    while (!jobs_.isEmpty() && !startNextJob())
        onFailure_(notStarted());
}

}  // namespace winvrx
