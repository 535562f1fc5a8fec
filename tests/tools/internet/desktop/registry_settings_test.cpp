#ifdef _WIN32

#include "foundation/files/file_system.h"
#include "tools/internet/desktop/system_browser_settings.h"

#include <gmock/gmock.h>
#include <QProcess>

namespace winvrx {
namespace {

using ::testing::IsEmpty;
using ::testing::Not;

/// What Windows' own tool reads there: "REG_DWORD 0x1".
std::string valueAt(const QString& key, const QString& name) {
    QProcess tool;
    tool.start(QStringLiteral("reg"), {QStringLiteral("query"), key, QStringLiteral("/v"), name});
    tool.waitForFinished();
    const QString said = QString::fromLocal8Bit(tool.readAllStandardOutput()).simplified();
    const qsizetype kind = said.indexOf(QStringLiteral("REG_"));
    return kind < 0 ? "(missing)" : said.mid(kind).toStdString();
}

struct Case {
    WebSwitch which;
    QString key;
    QString name;
    std::string blocked;
    std::string released;
};

TEST(RegistryBrowserSettings, HoldsWhatEachSwitchSays) {
    const QString proxy =
        QStringLiteral("HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings");
    const QString video = QStringLiteral(
        "HKLM\\SOFTWARE\\Microsoft\\Internet Explorer\\ActiveX Compatibility\\"
        "{D27CDB6E-AE6D-11CF-96B8-444553540000}");
    const Case cases[] = {
        {WebSwitch::Internet, proxy, QStringLiteral("ProxyEnable"), "REG_DWORD 0x1",
         "REG_DWORD 0x0"},
        {WebSwitch::Internet, proxy, QStringLiteral("ProxyServer"), "REG_SZ 27.0.0.1: 5555",
         "REG_SZ"},
        {WebSwitch::Videos, video, QStringLiteral("Compatibility Flags"), "REG_DWORD 0x400",
         "REG_DWORD 0x0"},
        {WebSwitch::Images, QStringLiteral("HKCU\\Software\\Microsoft\\Internet Explorer\\Main"),
         QStringLiteral("Display Inline Images"), "REG_SZ no", "REG_SZ yes"},
    };
    const auto files = systemFiles();
    const auto browsers = systemBrowserSettings({*files, QString(), QString()});
    for (const Case& one : cases) {
        SCOPED_TRACE(one.name.toStdString());
        for (int twice = 0; twice < 2; ++twice)
            EXPECT_THAT(browsers->apply(one.which, true).problems, IsEmpty());
        EXPECT_EQ(valueAt(one.key, one.name), one.blocked);
        EXPECT_THAT(browsers->blockedIn(one.which), Not(IsEmpty()));
        for (int twice = 0; twice < 2; ++twice)
            EXPECT_THAT(browsers->apply(one.which, false).problems, IsEmpty());
        EXPECT_EQ(valueAt(one.key, one.name), one.released);
        EXPECT_THAT(browsers->blockedIn(one.which), IsEmpty());
    }
}

}  // namespace
}  // namespace winvrx

#endif
