#include "tools/transfer/desktop/transfer_frame.h"

#include "foundation/copies/desktop/zip_archiver.h"
#include "foundation/files/durable_files.h"
#include "foundation/register/company.h"
#include "foundation/values/desktop/qt_text.h"
#include "tests/support/test_workplace.h"
#include "tools/internet/desktop/web_ni_window.h"

#include <gmock/gmock.h>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#ifdef __linux__
#include <sys/mount.h>
#endif
#include <iostream>

namespace winvrx {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// Two folders of this computer for drives.
class FoldersForDrives final : public Drives {
  public:
    explicit FoldersForDrives(std::filesystem::path root) : root_(std::move(root)) {}
    [[nodiscard]] std::filesystem::path root(char letter) const override {
        return letter == 'C' || letter == 'E' ? root_ / std::string(1, letter)
                                              : std::filesystem::path();
    }
    [[nodiscard]] std::vector<char> letters() const override { return {'C', 'E'}; }

  private:
    std::filesystem::path root_;
};

/// The real disk and the real zip files below the frame.
struct TransferFrameTest : ::testing::Test {
    QTemporaryDir folder;
    FoldersForDrives drives{folder.path().toStdString()};
    std::unique_ptr<Disk> disk = systemDisk();
    std::unique_ptr<FileSystem> files = systemFiles();
    testing::TestWorkplace desk;
    testing::TestHost host;
    FolderLock lock{*disk, host};
    Workplace at{*files, desk.person, desk.clock, desk.log, desk.session, lock};
    ZipArchiver archiver;
    SafetyCopies copies{*files, archiver, desk.log};
    int imports = 0;

    void SetUp() override {
        desk.session.folder = DataFolder('C', pathOnDrive(drives, 'C', kDataFolder));
        files->makeFolder(desk.session.folder.path());
        files->makeFolder(drives.root('E'));
        Company company;
        company.code = "01";
        company.name = "PADARIA PÃO DE MEL";
        files->replace(desk.session.folder.file("01Empresa"), encode(company) + "\r\n");
    }
    void press(TransferFrame& frame, const char* name) {
        auto* button = frame.findChild<QAbstractButton*>(QLatin1String(name));
        ASSERT_NE(button, nullptr) << name;
        button->click();
    }
};

TEST_F(TransferFrameTest, TakesTheRecordsThereAndBack) {
    TransferFrame frame(
        at, systemTransferDesk(*disk, drives, copies, archiver), [this] { ++imports; }, nullptr);
    auto* target = frame.findChild<QComboBox*>(QStringLiteral("transfer.target"));
    auto* direction = frame.findChild<QComboBox*>(QStringLiteral("transfer.direction"));
    ASSERT_TRUE(target && direction);
    EXPECT_TRUE(target->currentText().startsWith(QStringLiteral("E")));
    EXPECT_THAT(toUtf8(target->currentText()), HasSubstr("livres"));
    desk.person.answers = {Answer::Ok, Answer::Ok};
    press(frame, "transfer.run");
    EXPECT_EQ(desk.person.takeTexts().back(), "Transferência Concluída com Sucesso!");
    const DataFolder there('E', pathOnDrive(drives, 'E', kDataFolder));
    const auto records = files->read(desk.session.folder.file("01Empresa"));
    EXPECT_EQ(files->read(there.file("01Empresa")), records);
    EXPECT_EQ(imports, 0);
    files->remove(desk.session.folder.file("01Empresa"));
    direction->setCurrentIndex(1);
    desk.person.answers = {Answer::Ok, Answer::Ok};
    press(frame, "transfer.run");
    EXPECT_EQ(files->read(desk.session.folder.file("01Empresa")), records);
    EXPECT_EQ(imports, 1);
    desk.person.shown.clear();
    press(frame, "transfer.backup");
    press(frame, "transfer.archive");
    EXPECT_THAT(desk.person.takeTexts(), ElementsAre("Backup Concluído!", "Backup Concluído!"));
}

TEST_F(TransferFrameTest, LetterTypedReplacesTheDriveThatIsOffered) {
    TransferFrame frame(
        at, systemTransferDesk(*disk, drives, copies, archiver), [] {}, nullptr);
    frame.show();
    frame.activateWindow();
    auto* target = frame.findChild<QComboBox*>(QStringLiteral("transfer.target"));
    frame.findChild<QComboBox*>(QStringLiteral("transfer.direction"))->setFocus();
    target->setFocus();
    EXPECT_TRUE(QTest::qWaitFor([&] { return target->lineEdit()->hasSelectedText(); }));
    EXPECT_EQ(target->lineEdit()->cursorPosition(), 0);
    QTest::keyClicks(target, QStringLiteral("x"));
    EXPECT_EQ(target->currentText(), QStringLiteral("x"));
}

#ifdef __linux__

/// A volume of its own below the drive's folder, under a name that would be an option or a command.
TEST_F(TransferFrameTest, EjectsTheVolumeOfTheDriveAndNoOther) {
    const QString asked = folder.filePath(QStringLiteral("asked"));
    const QString command = folder.filePath(QStringLiteral("udisksctl"));
    const QByteArray searched = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8());
    struct Case {
        const char* target;
        const char* device;
        const char* ending;
        const char* said;
        bool isAsked;
    };
    for (const Case& one : {Case{"E", nullptr, "exit 0", "Escolha uma unidade removível", false},
                            Case{"C", nullptr, "exit 0", "Escolha uma unidade removível", false},
                            Case{"", nullptr, "exit 0", "Escolha uma unidade removível", false},
                            Case{"e", "--help", "exit 0", "É seguro remover", true},
                            Case{"E", "$(id);x y", "exit 0", "É seguro remover", true},
                            Case{"E", "stick", "exit 1", "feche o que estiver aberto", true},
                            Case{"E", "stick", "kill -9 $$", "feche o que estiver aberto", true},
                            Case{"E", "stick", nullptr, "Use o gerenciador", false}}) {
        const std::string root = drives.root('E').string();
        if (one.device && ::mount(one.device, root.c_str(), "tmpfs", 0, "size=64k") != 0) {
            std::cout << "nothing may be mounted here: not tried: " << one.device << '\n';
            continue;
        }
        QFile::remove(asked);
        QFile::remove(command);
        if (one.ending)
            files->replace(command.toStdString(), "#!/bin/sh\nprintf '%s\\n' \"$@\" > '" +
                                                      asked.toStdString() + "'\n" + one.ending +
                                                      "\n");
        QFile::setPermissions(command, QFile::ReadOwner | QFile::ExeOwner);
        TransferFrame frame(
            at, systemTransferDesk(*disk, drives, copies, archiver), [] {}, nullptr);
        frame.findChild<QComboBox*>(QStringLiteral("transfer.target"))
            ->setEditText(QLatin1String(one.target));
        desk.person.shown.clear();
        press(frame, "transfer.eject");
        const Message& told = desk.person.shown.at(0);
        EXPECT_THAT(told.text + told.detail, HasSubstr(one.said));
        EXPECT_EQ(files->read(asked.toStdString()),
                  one.isAsked
                      ? std::optional("unmount\n--block-device\n" + std::string(one.device) + "\n")
                      : std::nullopt);
        if (one.device) ::umount(root.c_str());
    }
    qputenv("PATH", searched);
}

#endif

/// Reaches one browser, and has no right to its videos.
struct OneBrowser final : BrowserSettings {
    bool blocked = false;

    Outcome apply(WebSwitch which, bool on) override {
        if (which == WebSwitch::Videos) return {{}, {"Falta o direito."}};
        blocked = on;
        return {{"Chromium"}, {}};
    }
    [[nodiscard]] std::vector<std::string> blockedIn(WebSwitch which) const override {
        if (which == WebSwitch::Internet && blocked) return {"Chromium"};
        return {};
    }
    [[nodiscard]] bool openBrowser() override { return true; }
};

TEST(WebNiWindow, SaysWhatIsBlockedAndWhatCouldNotBeDone) {
    testing::TestWorkplace desk;
    OneBrowser browser;
    WebNi screen(desk.at, browser);
    WebNiWindow window(screen, nullptr);
    const auto press = [&](const char* name) {
        window.findChild<QPushButton*>(QLatin1String(name))->click();
    };
    const auto says = [&](const char* text) {
        const auto labels = window.findChildren<QLabel*>();
        return std::ranges::any_of(labels, [&](const QLabel* label) {
            return !label->isHidden() && label->text().contains(QString::fromUtf8(text));
        });
    };
    EXPECT_TRUE(says("Liberado."));
    press("webNi.internet.block");
    EXPECT_TRUE(says(" em: Chromium."));
    EXPECT_TRUE(says("Feche e abra de novo os navegadores abertos."));
    press("webNi.videos.block");
    EXPECT_TRUE(says("Falta o direito."));
    EXPECT_TRUE(says("mas sem efeito em nenhum navegador"));
    window.findChild<QCheckBox*>(QStringLiteral("webNi.keep"))->click();
    EXPECT_TRUE(desk.files.content.contains("/data/Wbse.pdx"));
    desk.person.answers = {Answer::Yes};
    press("webNi.internet.release");
    EXPECT_FALSE(browser.blocked);
    EXPECT_FALSE(desk.files.content.contains("/data/Wblc.pdx"));
}

}  // namespace
}  // namespace winvrx
