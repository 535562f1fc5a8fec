#ifdef _WIN32

#include "foundation/desk/desktop/libre_office.h"
#include "foundation/desk/desktop/windows_programs.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <map>

namespace winvrx {
namespace {

constexpr int kPatience = 30'000;  // milliseconds

/// A key of the registry whose default value is another until it is destroyed.
class Registered {
  public:
    Registered(const QString& key, const QString& value)
        : key_(key, QSettings::NativeFormat), before_(key_.value(QStringLiteral("."))) {
        key_.setValue(QStringLiteral("."), QDir::toNativeSeparators(value));
        key_.sync();
        EXPECT_EQ(key_.status(), QSettings::NoError);
    }
    ~Registered() {
        if (before_.isValid())
            key_.setValue(QStringLiteral("."), before_);
        else
            key_.remove(QString());
    }
    Registered(const Registered&) = delete;
    Registered& operator=(const Registered&) = delete;

  private:
    QSettings key_;
    QVariant before_;
};

/// On a computer without LibreOffice; a program that remembers how it was started lies in a folder
/// under some name.
class RegisteredWordProcessor : public ::testing::Test {
  protected:
    void SetUp() override {
        for (const auto& [name, value] : environment_)
            qputenv(name, QDir::toNativeSeparators(value).toLocal8Bit());
        ASSERT_EQ(registeredLibreOffice(), QString());
    }
    ~RegisteredWordProcessor() override {
        for (const auto& [name, value] : before_)
            qputenv(name, value);
    }

    QString place(const QString& name) {
        const QString program = folder_.filePath(name);
        const QString recorder = QStringLiteral("/recording_program.exe");
        EXPECT_TRUE(QFile::copy(QCoreApplication::applicationDirPath() + recorder, program));
        return program;
    }
    /// What the program was started with.
    static QStringList startOf(const QString& program) {
        QFile record(program + QStringLiteral(".txt"));
        EXPECT_TRUE(QTest::qWaitFor([&] { return record.exists(); }, kPatience));
        EXPECT_TRUE(record.open(QIODevice::ReadOnly));
        return QString::fromUtf8(record.readAll()).split(u'\n', Qt::SkipEmptyParts);
    }
    /// Of the word processor, as it opens a document.
    void expectShown(const QString& program, const QStringList& options) {
        LibreOffice office([](const Fault& fault) { ADD_FAILURE() << fault.what(); });
        office.show({"Recibo de férias", {Paragraph{"PAGAMENTO"}}});
        QStringList said = startOf(program);
        ASSERT_FALSE(said.isEmpty());
        const QString document = said.takeLast();
        EXPECT_EQ(said, options);
        EXPECT_TRUE(document.endsWith(QStringLiteral("Recibo de férias.fodt")))
            << document.toStdString();
        EXPECT_TRUE(QFile::exists(document)) << document.toStdString();
    }
    static std::string notPrinted() {
        LibreOffice office([](const Fault& fault) { ADD_FAILURE() << fault.what(); });
        try {
            office.print({"", {}}, "");
        } catch (const Fault& fault) {
            return fault.explanation();
        }
        return {};
    }

    const std::string absent_ = "O LibreOffice Writer não está instalado.";
    const QString classes_ = QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Classes\\");
    const QString command_ = classes_ + QStringLiteral("WinvrxTrial\\shell\\open\\command");
    const QStringList nologo_ = {QStringLiteral("--nologo")};
    QTemporaryDir folder_;

  private:
    const std::map<const char*, QString> environment_ = {
        {"PATH", qEnvironmentVariable("SystemRoot") + QStringLiteral("\\system32")},
        {"ProgramFiles", folder_.path()}};
    const std::map<const char*, QByteArray> before_ = {{"PATH", qgetenv("PATH")},
                                                       {"ProgramFiles", qgetenv("ProgramFiles")}};
};

TEST_F(RegisteredWordProcessor, IsFoundWhereItsSetUpSays) {
    const QString program = place(QStringLiteral("soffice.exe"));
    const std::pair<QString, QString> places[] = {
        {QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\App "
                        "Paths\\soffice.exe"),
         program},
        {QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\LibreOffice\\UNO\\InstallPath"),
         folder_.path()}};
    for (const auto& [key, value] : places) {
        SCOPED_TRACE(key.toStdString());
        const Registered registered(key, value);
        expectShown(program, nologo_);
        EXPECT_NE(notPrinted(), absent_);
        QFile::remove(program + QStringLiteral(".txt"));
    }
}

TEST_F(RegisteredWordProcessor, IsFoundBesideWhatOpensItsDocuments) {
    const QString program = place(QStringLiteral("soffice.exe"));
    const Registered kind(classes_ + QStringLiteral(".odt"), QStringLiteral("WinvrxTrial"));
    const Registered command(command_,
                             QStringLiteral("\"%1\" -o \"%2\"")
                                 .arg(place(QStringLiteral("swriter.exe")), QStringLiteral("%1")));
    expectShown(program, nologo_);
    EXPECT_NE(notPrinted(), absent_);
}

TEST_F(RegisteredWordProcessor, AnotherOneShowsADocumentButDoesNotPrintIt) {
    const QString other = place(QStringLiteral("other.exe"));
    const Registered kind(classes_ + QStringLiteral(".fodt"), QStringLiteral("WinvrxTrial"));
    const Registered command(command_,
                             QStringLiteral("\"%1\" -o \"%2\"").arg(other, QStringLiteral("%1")));
    expectShown(other, {QStringLiteral("-o")});
    EXPECT_EQ(notPrinted(), absent_);
}

TEST_F(RegisteredWordProcessor, IsMissedWhereNothingIsRegistered) {
    LibreOffice office([](const Fault& fault) { ADD_FAILURE() << fault.what(); });
    EXPECT_THROW(office.show({"", {}}), Fault);
    EXPECT_EQ(notPrinted(), absent_);
}

}  // namespace
}  // namespace winvrx

#endif
