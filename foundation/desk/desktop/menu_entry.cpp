#include "foundation/desk/desktop/menu_entry.h"

namespace winvrx {

QString counted(int count, const char* one, const char* many) {
    return QString::number(count) + QLatin1Char(' ') + QString::fromUtf8(count == 1 ? one : many);
}

}  // namespace winvrx
