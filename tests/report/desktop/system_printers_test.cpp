#include "report/desktop/system_printers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace winvrx {
namespace {

#ifndef _WIN32
/// A program that leaves a file with its arguments beside itself.
void install(const QTemporaryDir& folder, const QString& name) {
    QFile program(folder.filePath(name));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\necho \"$@\" > \"$0.told\"\n");
    program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST(SystemPrinters, TheFirstAddDialogueThatExistsIsOpened) {
    const QTemporaryDir folder;
    const auto inFolder = [&folder](const char* name) {
        return folder.filePath(QLatin1String(name));
    };
    int pages = 0;
    bool hasPage = true;
    SystemPrinters printers({{inFolder("first"), {}},
                             {inFolder("panel"), {QStringLiteral("printers")}},
                             {inFolder("last"), {}}},
                            [&] {
                                ++pages;
                                return hasPage;
                            });
    EXPECT_TRUE(printers.openAddDialogue());
    EXPECT_EQ(pages, 1) << "no program: the print server's page";
    hasPage = false;
    EXPECT_FALSE(printers.openAddDialogue());

    install(folder, QStringLiteral("last"));
    install(folder, QStringLiteral("panel"));
    EXPECT_TRUE(printers.openAddDialogue());
    EXPECT_EQ(pages, 2);
    QFile told(inFolder("panel.told"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() > 0; }));
    ASSERT_TRUE(told.open(QIODevice::ReadOnly));
    EXPECT_EQ(told.readAll(), "printers\n");
    EXPECT_FALSE(QFile::exists(inFolder("last.told")));
}
#endif

TEST(SystemPrinters, EachSystemKnowsADialogue) {
    EXPECT_FALSE(SystemPrinters::addDialogues().empty());
#ifndef _WIN32
    EXPECT_EQ(SystemPrinters::addDialogues().front().program,
              QStringLiteral("system-config-printer"));
#endif
}

}  // namespace
}  // namespace winvrx
