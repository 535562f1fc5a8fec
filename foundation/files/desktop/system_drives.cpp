#include "foundation/files/desktop/system_drives.h"

#include <QDir>
#include <QStandardPaths>
#include <QStorageInfo>

#include <algorithm>

namespace winvrx {

namespace {

#ifndef Q_OS_WIN

/// Where desktops mount what is plugged in.
bool isRemovable(const QString& mountPoint) {
    return mountPoint.startsWith(QStringLiteral("/media/")) ||
           mountPoint.startsWith(QStringLiteral("/run/media/")) ||
           mountPoint.startsWith(QStringLiteral("/mnt/")) ||
           mountPoint.startsWith(QStringLiteral("/Volumes/"));
}

std::filesystem::path userDrive() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return QDir(data).filePath(QStringLiteral("winvrx/drive_c")).toStdString();
}

#endif

}  // namespace

std::map<char, std::filesystem::path> SystemDrives::all() {
    std::map<char, std::filesystem::path> drives;
#ifdef Q_OS_WIN
    for (const QFileInfo& drive : QDir::drives()) {
        const std::string path = drive.absolutePath().toStdString();
        drives[path.front()] = path;
    }
#else
    drives[kDefaultDrive] = userDrive();
    QStringList mountPoints;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        if (volume.isValid() && volume.isReady() && isRemovable(volume.rootPath()))
            mountPoints.append(volume.rootPath());
    std::sort(mountPoints.begin(), mountPoints.end());
    char letter = kDefaultDrive;
    for (const QString& mountPoint : mountPoints)
        if (letter < 'Z') drives[++letter] = mountPoint.toStdString();
#endif
    return drives;
}

std::filesystem::path SystemDrives::root(char letter) const {
    const auto drives = all();
    const auto found = drives.find(letter);
    return found == drives.end() ? std::filesystem::path() : found->second;
}

std::vector<char> SystemDrives::letters() const {
    std::vector<char> letters;
    for (const auto& [letter, root] : all())
        letters.push_back(letter);
    return letters;
}

}  // namespace winvrx
