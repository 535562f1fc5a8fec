#include "tools/internet/desktop/desktop_proxy.h"

#include <QStandardPaths>

namespace winvrx {

namespace {

const char* const kGroup = "[Proxy Settings]";
/// In the object that is kept: the file's bytes before, where it stood, and as it was left.
const char* const kBefore = "before";
const char* const kAfter = "after";

QByteArray blockedSettings() {
    const QByteArray proxy = "http://27.0.0.1 5555\n";
    return QByteArray(kGroup) + "\nProxyType=1\nhttpProxy=" + proxy + "httpsProxy=" + proxy;
}

bool isOurs(const QByteArray& line) {
    const QByteArray key = line.left(line.indexOf('=')).trimmed();
    return key == "ProxyType" || key == "httpProxy" || key == "httpsProxy";
}

/// The file's text with `settings`, keys and all, in place of the group's own; group and keys go
/// where `settings` is empty.
QByteArray withSettings(const QByteArray& text, const QByteArray& settings) {
    QByteArray rest;
    QByteArray group;
    bool inside = false;
    for (const QByteArray& line : text.split('\n')) {
        if (line.startsWith('[')) inside = line.trimmed() == kGroup;
        if (!inside)
            rest += line + '\n';
        else if (!line.startsWith('[') && !line.isEmpty() && !isOurs(line))
            group += line + '\n';
    }
    rest.chop(1);
    if (settings.isEmpty() && group.isEmpty()) return rest;
    if (!rest.isEmpty() && !rest.endsWith('\n')) rest += '\n';
    return rest + (settings.isEmpty() ? QByteArray(kGroup) + '\n' : settings) + group;
}

/// The lines of the group that a block writes over, behind the group's name.
QByteArray ownSettings(const QByteArray& text) {
    QByteArray found;
    bool inside = false;
    for (const QByteArray& line : text.split('\n')) {
        if (line.startsWith('[')) inside = line.trimmed() == kGroup;
        if (inside && isOurs(line)) found += line + '\n';
    }
    return found.isEmpty() ? found : QByteArray(kGroup) + '\n' + found;
}

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QByteArray contentOf(const FileSystem& files, const std::filesystem::path& file) {
    return QByteArray::fromStdString(files.read(file).value_or(""));
}

}  // namespace

KdeProxy::KdeProxy(FileSystem& files)
    : files_(files),
      file_((QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
             QStringLiteral("/kioslaverc"))
                .toStdString()) {}

bool KdeProxy::isThere() const {
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").contains(QLatin1String("KDE")) ||
           files_.exists(file_);
}

bool KdeProxy::isBlocked() const {
    return ownSettings(contentOf(files_, file_)) == blockedSettings();
}

QJsonObject KdeProxy::present() const {
    const auto bytes = files_.read(file_);
    const QByteArray text = QByteArray::fromStdString(bytes.value_or(""));
    const QByteArray after = withSettings(text, blockedSettings());
    QJsonObject before{{QLatin1String(kAfter), QString::fromLatin1(after.toBase64())}};
    if (bytes) before[QLatin1String(kBefore)] = QString::fromLatin1(text.toBase64());
    return before;
}

void KdeProxy::block() {
    files_.makeFolder(file_.parent_path());
    files_.replace(file_, viewOf(withSettings(contentOf(files_, file_), blockedSettings())));
}

void KdeProxy::release(const QJsonObject& before) {
    const auto kept = [&](const char* name) {
        return QByteArray::fromBase64(before.value(QLatin1String(name)).toString().toLatin1());
    };
    const QByteArray text = contentOf(files_, file_);
    const bool stood = before.contains(QLatin1String(kBefore));
    // What others changed meanwhile stays; only our keys go back to what they were.
    const bool untouched = text == kept(kAfter);
    const QByteArray restored =
        untouched ? kept(kBefore) : withSettings(text, ownSettings(kept(kBefore)));
    if (!stood && restored.isEmpty())
        (void)files_.remove(file_);
    else
        files_.replace(file_, viewOf(restored));
}

}  // namespace winvrx
