#include "tests/support/desktop/print_server.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QThread>

#include <stdexcept>

#ifndef _WIN32
#include <unistd.h>
#endif
#ifdef __linux__
#include <sys/prctl.h>
#include <csignal>
#endif

namespace winvrx::testing {

namespace {

/// A user that the system does not know: the backend files such jobs apart from real users'.
constexpr const char* kUser = "winvrx-test";

constexpr const char* kDescription = "/usr/share/ppd/cups-pdf/CUPS-PDF_noopt.ppd";

constexpr const char* kServerSettings = R"(Listen %1/socket
Browsing No
WebInterface No
DefaultAuthType None
PreserveJobFiles Yes
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
)";

constexpr const char* kFolderSettings = R"(ServerRoot %1
RequestRoot %1/spool
CacheDir %1/cache
StateDir %1/state
TempDir %1/tmp
AccessLog %1/log/access
ErrorLog %1/log/error
PageLog %1/log/page
SystemGroup root
)";

void admin(const QStringList& arguments) {
    if (QProcess::execute(QStringLiteral("/usr/sbin/lpadmin"), arguments) != 0)
        throw std::runtime_error("lpadmin failed");
}

void addDescribed(const QString& name, const QString& description) {
    admin({QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
           QStringLiteral("cups-pdf:/"), QStringLiteral("-P"), description});
}

bool isBusy() {
    QProcess jobs;
    jobs.start(QStringLiteral("lpstat"), {QStringLiteral("-o")});
    return !jobs.waitForFinished() || !jobs.readAllStandardOutput().isEmpty();
}

template <typename Condition>
void waitFor(Condition condition) {
    constexpr int kSteps = 300;
    for (int i = 0; i < kSteps && !condition(); ++i)
        QThread::msleep(100);
    if (!condition()) throw std::runtime_error("the print server does not answer");
}

}  // namespace

PrintServer::PrintServer() {
    for (const char* name : {"ppd", "spool", "cache", "state", "tmp", "log"})
        QDir(folder_.path()).mkdir(QLatin1String(name));
    const auto all = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                     QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    QFile::setPermissions(folder_.path(), all);
    QFile::setPermissions(path("tmp"), all | QFile::WriteGroup | QFile::WriteOther);
    qputenv("CUPS_SERVER", path("socket").toUtf8());
    qputenv("CUPS_USER", kUser);
}

PrintServer::~PrintServer() {
    stop();
}

QString PrintServer::obstacle() {
#ifdef _WIN32
    return QStringLiteral("no CUPS on this system");
#else
    if (geteuid() != 0) return QStringLiteral("the cups-pdf backend runs as root only");
    if (!QFile::exists(QStringLiteral("/usr/sbin/cupsd")))
        return QStringLiteral("cupsd is not installed");
    if (!QFile::exists(QStringLiteral("/usr/lib/cups/backend/cups-pdf")))
        return QStringLiteral("cups-pdf is not installed");
    return {};
#endif
}

void PrintServer::start() {
    write("cupsd.conf", kServerSettings);
    write("cups-files.conf", kFolderSettings);
    daemon_ = std::make_unique<QProcess>();
#ifdef __linux__
    daemon_->setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
#endif
    daemon_->start(QStringLiteral("/usr/sbin/cupsd"),
                   {QStringLiteral("-f"), QStringLiteral("-c"), path("cupsd.conf"),
                    QStringLiteral("-s"), path("cups-files.conf")});
    waitFor([this] { return QFile::exists(path("socket")); });
}

void PrintServer::stop() {
    if (!daemon_) return;
    daemon_->terminate();
    daemon_->waitForFinished();
    daemon_.reset();
}

void PrintServer::addPrinter(const QString& name) {
    addDescribed(name, QLatin1String(kDescription));
}

void PrintServer::addPrinterWithMargins(const QString& name) {
    QFile whole{QLatin1String(kDescription)};
    if (!whole.open(QIODevice::ReadOnly)) throw std::runtime_error("no printer description");
    const QByteArray cut = whole.readAll().replace("*ImageableArea A4/A4: \"0 0 595 842\"",
                                                   "*ImageableArea A4/A4: \"12 12 583 830\"");
    QFile description(path("margins.ppd"));
    if (!cut.contains("12 12 583 830") || !description.open(QIODevice::WriteOnly))
        throw std::runtime_error("no printer description");
    description.write(cut);
    description.close();
    addDescribed(name, description.fileName());
}

void PrintServer::makeDefault(const QString& name) {
    admin({QStringLiteral("-d"), name});
}

void PrintServer::removePrinter(const QString& name) {
    admin({QStringLiteral("-x"), name});
}

QString PrintServer::printedFile(const QString& title) const {
    const QDir printed(QStringLiteral("/var/spool/cups-pdf/ANONYMOUS"));
    const auto files = [&] {
        return printed.entryList({title + QStringLiteral("_*.pdf")}, QDir::Files);
    };
    waitFor([&] { return !files().isEmpty() && !isBusy(); });
    return printed.filePath(files().first());
}

QByteArray PrintServer::lastOptionsOnStop() {
    stop();
    QFile file(lastSpooled("c*"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString PrintServer::path(const char* name) const {
    return folder_.filePath(QLatin1String(name));
}

void PrintServer::write(const char* name, const char* text) const {
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly)) throw std::runtime_error("no configuration");
    file.write(QString::fromLatin1(text).arg(folder_.path()).toUtf8());
}

QString PrintServer::lastSpooled(const char* pattern) const {
    const QDir spool(path("spool"));
    const auto names = spool.entryList({QLatin1String(pattern)}, QDir::Files, QDir::Name);
    if (names.isEmpty()) throw std::runtime_error("no job in the spool");
    return spool.filePath(names.last());
}

}  // namespace winvrx::testing
