#pragma once

#include "foundation/desk/user_settings.h"

#include <QSettings>

namespace winvrx {

/// Keeps the settings in an INI file. Where it cannot be written they last as long as the run.
class FileUserSettings final : public UserSettings {
  public:
    explicit FileUserSettings(const QString& file) : settings_(file, QSettings::IniFormat) {}

    [[nodiscard]] std::string value(std::string_view name) const override;
    void keep(std::string_view name, std::string_view value) override;

  private:
    QSettings settings_;
};

}  // namespace winvrx
