#include "foundation/desk/desktop/file_log.h"

#include "foundation/values/desktop/qt_text.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace winvrx {

void FileLog::write(std::string_view entry) noexcept {
    constexpr qint64 kLargest = 1 << 20;
    try {
        const QFileInfo info(path_);
        QDir().mkpath(info.path());
        if (info.size() > kLargest) {
            const QString before = path_ + QStringLiteral(".1");
            QFile::remove(before);
            QFile::rename(path_, before);
        }
        QFile file(path_);
        if (!file.open(QIODevice::Append | QIODevice::Text)) return;
        const QString line = QDateTime::currentDateTime().toString(Qt::ISODate) + QLatin1Char(' ') +
                             toQt(entry).simplified() + QLatin1Char('\n');
        file.write(line.toUtf8());
    } catch (...) {
        return;
    }
}

}  // namespace winvrx
