#pragma once

#include "foundation/menu/menu.h"

#include <QLockFile>

namespace winvrx {

/// Claims the run with a lock file that names its process: when that process is gone, killed or
/// not, the next copy takes the claim over.
class LockFileInstance final : public SingleInstance {
  public:
    explicit LockFileInstance(const QString& path) : lock_(path) { lock_.setStaleLockTime(0); }
    /// A folder in which no lock can be made does not keep the program from starting.
    [[nodiscard]] bool claim() override {
        return lock_.tryLock(0) || lock_.error() != QLockFile::LockFailedError;
    }

  private:
    QLockFile lock_;
};

}  // namespace winvrx
