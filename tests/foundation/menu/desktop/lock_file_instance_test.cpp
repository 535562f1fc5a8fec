#include "foundation/menu/desktop/lock_file_instance.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#ifndef _WIN32

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

namespace winvrx {
namespace {

/// A child process that claims the lock, says so, and waits to be killed.
pid_t claimInAnotherProcess(const QString& path) {
    int said[2];
    if (::pipe(said) != 0) return -1;
    const pid_t child = ::fork();
    if (child == 0) {
        LockFileInstance other(path);
        const char answer = other.claim() ? 'y' : 'n';
        if (::write(said[1], &answer, 1) != 1) ::_exit(1);
        ::pause();
        ::_exit(0);
    }
    char answer = 0;
    EXPECT_EQ(::read(said[0], &answer, 1), 1);
    EXPECT_EQ(answer, 'y');
    ::close(said[0]);
    ::close(said[1]);
    return child;
}

TEST(LockFileInstance, RefusesASecondCopyUntilTheFirstIsGoneHoweverItEnds) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("winvrx.lock"));
    const pid_t first = claimInAnotherProcess(path);
    ASSERT_GT(first, 0);
    EXPECT_FALSE(LockFileInstance(path).claim());
    ASSERT_EQ(::kill(first, SIGKILL), 0);
    ASSERT_EQ(::waitpid(first, nullptr, 0), first);
    EXPECT_TRUE(LockFileInstance(path).claim());
}

/// A power cut between making and filling the file leaves it empty.
TEST(LockFileInstance, AFileThatNamesNobodyLocksNobodyOut) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("winvrx.lock"));
    for (const char* left : {"", "\n", "12"}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(left);
        file.close();
        LockFileInstance first(path);
        EXPECT_TRUE(first.claim()) << left;
        EXPECT_FALSE(LockFileInstance(path).claim()) << left;
    }
}

TEST(LockFileInstance, AFolderThatTakesNoLockDoesNotKeepTheProgramOut) {
    EXPECT_TRUE(LockFileInstance(QStringLiteral("/proc/none/winvrx.lock")).claim());
}

}  // namespace
}  // namespace winvrx

#endif
