#include "tools/internet/desktop/system_browser_settings.h"

#ifdef Q_OS_WIN

#include "foundation/values/desktop/qt_text.h"
#include "tools/internet/registry_values.h"

#include <QProcess>
#include <QSettings>

namespace winvrx {

namespace {

constexpr std::string_view kPlace = "Internet Explorer e programas que seguem o Windows";

QString keyOf(const RegistryValue& value) {
    return (value.hive == RegistryValue::Hive::CurrentUser
                ? QStringLiteral("HKEY_CURRENT_USER\\")
                : QStringLiteral("HKEY_LOCAL_MACHINE\\")) +
           toQt(value.key);
}

/// A whole number is written as a 32-bit one.
QVariant variantOf(const RegistryValue& value) {
    if (const auto* number = std::get_if<std::uint32_t>(&value.value))
        return static_cast<int>(*number);
    return toQt(std::get<std::string_view>(value.value));
}

class RegistryBrowserSettings final : public BrowserSettings {
  public:
    Outcome apply(WebSwitch which, bool blocked) override {
        for (const RegistryValue& value : registryValues(which, blocked)) {
            QSettings key(keyOf(value), QSettings::NativeFormat);
            key.setValue(toQt(value.name), variantOf(value));
            key.sync();
            if (key.status() != QSettings::NoError ||
                key.value(toQt(value.name)) != variantOf(value))
                return {{},
                        {"O Windows não deixou mudar esta configuração: abra o programa como "
                         "administrador."}};
        }
        return {{std::string(kPlace)}, {}};
    }

    [[nodiscard]] std::vector<std::string> blockedIn(WebSwitch which) const override {
        for (const RegistryValue& value : registryValues(which, true)) {
            const QSettings key(keyOf(value), QSettings::NativeFormat);
            if (key.value(toQt(value.name)) != variantOf(value)) return {};
        }
        return {std::string(kPlace)};
    }

    [[nodiscard]] bool openBrowser() override {
        return QProcess::startDetached(toQt(kWindowsBrowser), {});
    }
};

}  // namespace

std::unique_ptr<BrowserSettings> systemBrowserSettings(BrowserSettingsDesk) {
    return std::make_unique<RegistryBrowserSettings>();
}

}  // namespace winvrx

#endif
