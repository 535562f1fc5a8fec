#pragma once

#include "foundation/menu/menu.h"

#include <QLockFile>

namespace winvrx {

/// Claims the run with a lock file that names its process: when that process is gone, killed or
/// not, the next copy takes the claim over. The file lies beside the data folder of the default
/// drive, which all users of the machine share where the system lets them.
class LockFileInstance final : public SingleInstance {
  public:
    explicit LockFileInstance(const QString& path) : lock_(path) { lock_.setStaleLockTime(0); }

    /// A folder in which no lock can be made does not keep the program from starting.
    [[nodiscard]] bool claim() override {
        if (lock_.tryLock(0) || lock_.error() != QLockFile::LockFailedError) return true;
        // A file that names nobody was left by a crash. It cannot be removed from under a copy that
        // runs: the system holds it for that one.
        return !namesAHolder() && lock_.removeStaleLockFile() && lock_.tryLock(0);
    }

  private:
    [[nodiscard]] bool namesAHolder() const {
        qint64 process = 0;
        QString host;
        QString program;
        return lock_.getLockInfo(&process, &host, &program);
    }

    QLockFile lock_;
};

}  // namespace winvrx
