#pragma once

#include "foundation/desk/log.h"

#include <QString>

namespace winvrx {

/// Appends entries with date and time to a text file, which is begun again when it passes 1 MiB
/// (the one before is kept beside it as ".1").
class FileLog final : public Log {
  public:
    explicit FileLog(QString path) : path_(std::move(path)) {}
    void write(std::string_view entry) noexcept override;

  private:
    QString path_;
};

}  // namespace winvrx
