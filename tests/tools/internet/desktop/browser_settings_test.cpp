#ifndef _WIN32

#include "tools/internet/desktop/linux_browser_settings.h"

#include "foundation/values/desktop/qt_text.h"

#include <gmock/gmock.h>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <map>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

void writeFile(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

/// The lines of a settings file that set something: the system leaves empty groups behind.
QByteArray keysOf(const QString& path) {
    QByteArrayList keys;
    for (const QByteArray& line : contentOf(path).split('\n'))
        if (line.contains('=')) keys << line;
    return keys.join('\n');
}

/// A user's profile of its own and a root of its own, with the settings kept in plain files.
class BrowserSettingsTest : public ::testing::Test {
  protected:
    QTemporaryDir folder_;
    QString config_ = folder_.filePath(QStringLiteral("config"));
    QString kde_ = config_ + QStringLiteral("/kioslaverc");
    QString gnome_ = config_ + QStringLiteral("/glib-2.0/settings/keyfile");
    QString memory_ = folder_.filePath(QStringLiteral("own/internet-antes.json"));
    std::unique_ptr<FileSystem> files_ = systemFiles();
    std::map<const char*, QByteArray> environment_;

    void SetUp() override {
        for (const char* name : {"XDG_CONFIG_HOME", "GSETTINGS_BACKEND", "XDG_CURRENT_DESKTOP"})
            environment_[name] = qgetenv(name);
        qputenv("XDG_CONFIG_HOME", config_.toUtf8());
        qputenv("GSETTINGS_BACKEND", "keyfile");
        qputenv("XDG_CURRENT_DESKTOP", "XFCE");
    }
    void TearDown() override {
        for (const auto& [name, value] : environment_)
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }

    /// A program that was started anew.
    [[nodiscard]] LinuxBrowserSettings settings() {
        return LinuxBrowserSettings({*files_, folder_.filePath(QStringLiteral("own")), {}},
                                    folder_.path().toStdString());
    }
    static QString get(const char* schema, const char* key) {
        QProcess command;
        command.start(QStringLiteral("gsettings"),
                      {QStringLiteral("get"), QLatin1String(schema), QLatin1String(key)});
        command.waitForFinished();
        return QString::fromUtf8(command.readAllStandardOutput()).trimmed();
    }
    static void set(const char* schema, const char* key, const char* value) {
        QProcess::execute(QStringLiteral("gsettings"),
                          {QStringLiteral("set"), QLatin1String(schema), QLatin1String(key),
                           QLatin1String(value)});
    }
};

TEST_F(BrowserSettingsTest, ProxyOfTheDesktopComesBackAsItWas) {
    set("org.gnome.system.proxy.http", "host", "office.example");
    set("org.gnome.system.proxy.http", "port", "3128");
    const QByteArray keys = keysOf(gnome_);
    ASSERT_THAT(keys.toStdString(), ::testing::HasSubstr("office.example"));
    for (int time = 0; time < 2; ++time)
        EXPECT_THAT(settings().apply(WebSwitch::Internet, true).reached,
                    ElementsAre("Área de trabalho (GNOME)"));
    EXPECT_EQ(get("org.gnome.system.proxy", "mode"), QLatin1String("'manual'"));
    EXPECT_EQ(get("org.gnome.system.proxy.https", "host"), QLatin1String("'27.0.0.1'"));
    EXPECT_THAT(settings().blockedIn(WebSwitch::Internet), ElementsAre("Área de trabalho (GNOME)"));
    EXPECT_THAT(settings().apply(WebSwitch::Internet, false).problems, IsEmpty());
    EXPECT_EQ(get("org.gnome.system.proxy", "mode"), QLatin1String("'none'"));
    EXPECT_EQ(get("org.gnome.system.proxy.http", "host"), QLatin1String("'office.example'"));
    EXPECT_EQ(get("org.gnome.system.proxy.http", "port"), QLatin1String("3128"));
    EXPECT_EQ(keysOf(gnome_), keys);
    EXPECT_FALSE(QFile::exists(memory_));
    EXPECT_THAT(settings().apply(WebSwitch::Internet, false).problems, IsEmpty()) << "nothing kept";
}

TEST_F(BrowserSettingsTest, FileOfKdeComesBackByteForByte) {
    const QByteArray ours =
        "[Proxy Settings]\nProxyType=1\nhttpProxy=http://27.0.0.1 5555\n"
        "httpsProxy=http://27.0.0.1 5555\n";
    for (const QByteArray before :
         {"", "[General]\nx=1\n", "[Proxy Settings]\nProxyType=4\nNoProxyFor=a\n\n[Other]\ny=2",
          "[Proxy Settings]\nhttpProxy=http://office 1"}) {
        writeFile(kde_, before);
        for (int time = 0; time < 2; ++time)
            (void)settings().apply(WebSwitch::Internet, true);
        EXPECT_THAT(contentOf(kde_).toStdString(), ::testing::HasSubstr(ours.toStdString()));
        (void)settings().apply(WebSwitch::Internet, false);
        EXPECT_EQ(contentOf(kde_), before);
    }
    // What another program set meanwhile stays, and only the proxy goes back.
    writeFile(kde_, "[Proxy Settings]\nProxyType=4\n");
    (void)settings().apply(WebSwitch::Internet, true);
    writeFile(kde_, contentOf(kde_) + "[Other]\ny=2\n");
    (void)settings().apply(WebSwitch::Internet, false);
    EXPECT_EQ(contentOf(kde_), "[Other]\ny=2\n[Proxy Settings]\nProxyType=4\n");
    EXPECT_FALSE(QFile::exists(memory_));
}

TEST_F(BrowserSettingsTest, SettingsThatCannotBeKeptAreNotChanged) {
    writeFile(folder_.filePath(QStringLiteral("own")), "a file in the folder's place");
    writeFile(kde_, "[General]\nx=1\n");
    EXPECT_THAT(settings().apply(WebSwitch::Internet, true).problems, ::testing::SizeIs(1));
    EXPECT_EQ(contentOf(kde_), "[General]\nx=1\n");
    EXPECT_EQ(get("org.gnome.system.proxy", "mode"), QLatin1String("'none'"));
}

TEST_F(BrowserSettingsTest, RulesAreWrittenWhereTheRightIs) {
    EXPECT_THAT(settings().apply(WebSwitch::Images, true).problems, ::testing::SizeIs(1));
    writeFile(folder_.filePath(QStringLiteral("usr/bin/chromium")), "");
    EXPECT_THAT(settings().apply(WebSwitch::Images, true).reached, ElementsAre("Chromium"));
    const QString rule =
        folder_.filePath(QStringLiteral("etc/chromium/policies/managed/winvrx-images.json"));
    EXPECT_TRUE(QFile(rule).permissions().testFlag(QFile::ReadOther)) << "browsers of all users";
    EXPECT_THAT(settings().apply(WebSwitch::Images, false).problems, IsEmpty());
    EXPECT_FALSE(QFile::exists(rule));
}

TEST_F(BrowserSettingsTest, HelperIsAskedForOneSwitchAndARefusalIsTold) {
    const QString commands = folder_.filePath(QStringLiteral("commands"));
    const QString asked = folder_.filePath(QStringLiteral("asked"));
    const QString pkexec = commands + QStringLiteral("/pkexec");
    writeFile(folder_.filePath(QStringLiteral("usr/bin/chromium")), "");
    writeFile(folder_.filePath(QStringLiteral("etc")), "a file in the folder's place");
    environment_["PATH"] = qgetenv("PATH");
    qputenv("PATH", commands.toUtf8());
    struct Case {
        const char* ending;
        const char* said;
    };
    for (const Case& one :
         {Case{"exit 126", "A senha não foi dada."},
          Case{"exit 127", "O sistema não deu a autorização."},
          Case{"exit 1", "A gravação falhou."}, Case{"kill -9 $$", "A gravação falhou."},
          Case{"exit 0", "Nenhum navegador"}, Case{nullptr, "não tem como pedir a senha"}}) {
        QFile::remove(asked);
        QFile::remove(pkexec);
        if (one.ending) {
            writeFile(pkexec, "#!/bin/sh\nprintf '%s\\n' \"$@\" > '" + asked.toUtf8() + "'\n" +
                                  one.ending + "\n");
            QFile::setPermissions(pkexec, QFile::ReadOwner | QFile::ExeOwner);
        }
        const auto problems = settings().apply(WebSwitch::Images, true).problems;
        EXPECT_THAT(problems, ElementsAre(::testing::HasSubstr(one.said)));
        EXPECT_EQ(contentOf(asked),
                  one.ending ? QByteArray("/winvrx-internet\nimages\non\n") : "(missing)");
        EXPECT_EQ(contentOf(folder_.filePath(QStringLiteral("etc"))),
                  "a file in the folder's place");
    }
}

QStringList words(const char* text) {
    return QString::fromLatin1(text).split(u' ');
}

TEST(BrowserRuleHelper, TakesNothingButASwitchAndAState) {
    const QString helper =
        QCoreApplication::applicationDirPath() + QStringLiteral("/winvrx-internet");
    for (const QStringList& arguments :
         {QStringList{}, words("videos"), words("internet on"), words("videos on more"),
          words("videos ON"), words("../videos on"), words("--help"), words("videos on\n"),
          words("videos\n on"), words(" on"), words("videos "), words("videos/../images on"),
          words("videos;id on"), QStringList{QString(100'000, u'v'), QStringLiteral("on")}}) {
        QProcess run;
        run.start(helper, arguments);
        ASSERT_TRUE(run.waitForFinished());
        EXPECT_EQ(run.exitCode(), 2) << toUtf8(arguments.join(u' '));
    }
}

}  // namespace
}  // namespace winvrx

#endif
