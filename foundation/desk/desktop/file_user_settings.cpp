#include "foundation/desk/desktop/file_user_settings.h"

#include "foundation/values/desktop/qt_text.h"

namespace winvrx {

std::string FileUserSettings::value(std::string_view name) const {
    return toUtf8(settings_.value(toQt(name)).toString());
}

void FileUserSettings::keep(std::string_view name, std::string_view value) {
    if (this->value(name) == value) return;
    settings_.setValue(toQt(name), toQt(value));
    settings_.sync();
}

}  // namespace winvrx
