#include <QApplication>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>

namespace {

QStringList warnings;

/// Of the platform without a screen, of a machine without a desktop, and of wine.
constexpr std::array kOfThePlatform = {"This plugin does not support",
                                       "QStandardPaths: ", "SetProcessDpiAwarenessContext"};

void listen(QtMsgType type, const QMessageLogContext&, const QString& text) {
    const bool known = std::ranges::any_of(
        kOfThePlatform, [&](const char* start) { return text.startsWith(QLatin1String(start)); });
    if (type != QtDebugMsg && type != QtInfoMsg && !known) warnings << text;
}

/// What Qt warns of is a fault of the program: an editor of no view, an object of another thread.
class NoWarnings : public ::testing::EmptyTestEventListener {
    void OnTestEnd(const ::testing::TestInfo& test) override {
        for (const QString& text : std::exchange(warnings, {}))
            ADD_FAILURE() << test.test_suite_name() << "." << test.name()
                          << ": Qt warns: " << text.toStdString();
    }
};

}  // namespace

int main(int argc, char** argv) {
#ifndef _WIN32  // where Qt has no other platform than the screen
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (platform.isEmpty() || platform == "offscreen")
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" WINVRX_SOURCES "/tests/screen.json");
#endif
    ::testing::InitGoogleTest(&argc, argv);
    ::testing::UnitTest::GetInstance()->listeners().Append(new NoWarnings);
    qInstallMessageHandler(listen);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
