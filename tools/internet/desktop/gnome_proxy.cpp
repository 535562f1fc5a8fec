#include "tools/internet/desktop/desktop_proxy.h"

#include <QProcess>

#include <algorithm>
#include <array>

namespace winvrx {

namespace {

constexpr int kPatience = 5'000;  // milliseconds

/// Names what a block sets, and what the desktop's makers set.
struct ProxyKey {
    const char* schema;
    const char* key;
    const char* blocked;
    const char* untouched;
};

/// The mode last: until then the rest has no effect.
constexpr std::array<ProxyKey, 5> kKeys = {{
    {"org.gnome.system.proxy.http", "host", "'27.0.0.1'", "''"},
    {"org.gnome.system.proxy.http", "port", "5555", "8080"},
    {"org.gnome.system.proxy.https", "host", "'27.0.0.1'", "''"},
    {"org.gnome.system.proxy.https", "port", "5555", "0"},
    {"org.gnome.system.proxy", "mode", "'manual'", "'none'"},
}};

/// What the command answers; nullopt when it fails or is not there.
std::optional<QString> gsettings(const QStringList& arguments) {
    QProcess command;
    command.start(QStringLiteral("gsettings"), arguments);
    if (!command.waitForFinished(kPatience) || command.exitStatus() != QProcess::NormalExit ||
        command.exitCode() != 0)
        return std::nullopt;
    return QString::fromUtf8(command.readAllStandardOutput()).trimmed();
}

QStringList named(const char* verb, const ProxyKey& key) {
    return {QLatin1String(verb), QLatin1String(key.schema), QLatin1String(key.key)};
}

std::optional<QString> valueOf(const ProxyKey& key) {
    return gsettings(named("get", key));
}

bool set(const ProxyKey& key, const QString& value) {
    return gsettings(named("set", key) + QStringList{value}).has_value();
}

QString nameOf(const ProxyKey& key) {
    return QLatin1String(key.schema) + u' ' + QLatin1String(key.key);
}

bool isBlockedKey(const ProxyKey& key) {
    return valueOf(key) == QLatin1String(key.blocked);
}

}  // namespace

bool GnomeProxy::isThere() {
    return valueOf(kKeys.back()).has_value();
}

bool GnomeProxy::isBlocked() {
    return isBlockedKey(kKeys.back()) && isBlockedKey(kKeys.front());
}

std::optional<QJsonObject> GnomeProxy::present() {
    QJsonObject before;
    for (const ProxyKey& key : kKeys) {
        const auto value = valueOf(key);
        if (!value) return std::nullopt;
        if (*value != QLatin1String(key.untouched)) before[nameOf(key)] = *value;
    }
    return before;
}

bool GnomeProxy::block() {
    return std::ranges::all_of(
        kKeys, [](const ProxyKey& key) { return set(key, QLatin1String(key.blocked)); });
}

bool GnomeProxy::release(const QJsonObject& before) {
    bool done = true;
    // The mode first, so that nothing half restored is in force.
    for (auto key = kKeys.rbegin(); key != kKeys.rend(); ++key) {
        const QString value = before.value(nameOf(*key)).toString();
        done = (value.isEmpty() ? gsettings(named("reset", *key)).has_value() : set(*key, value)) &&
               done;
    }
    return done;
}

}  // namespace winvrx
