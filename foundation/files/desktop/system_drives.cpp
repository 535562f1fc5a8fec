#include "foundation/files/desktop/system_drives.h"

#include <QDir>
#include <QStandardPaths>
#include <QStorageInfo>

#include <algorithm>
#include <utility>

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

std::map<char, std::filesystem::path> VolumeLetters::of(
    std::vector<std::filesystem::path> mountPoints) {
    std::ranges::sort(mountPoints);
    for (const auto& mountPoint : mountPoints)
        if (std::ranges::find(known_, mountPoint) == known_.end()) known_.push_back(mountPoint);
    std::map<char, std::filesystem::path> drives;
    char letter = kDefaultDrive;
    for (const auto& mountPoint : known_) {
        if (letter == 'Z') break;
        ++letter;
        if (std::ranges::binary_search(mountPoints, mountPoint)) drives[letter] = mountPoint;
    }
    return drives;
}

std::map<char, std::filesystem::path> SystemDrives::all() const {
    std::map<char, std::filesystem::path> drives;
#ifdef Q_OS_WIN
    for (const QFileInfo& drive : QDir::drives()) {
        const std::string path = drive.absolutePath().toStdString();
        // A reader without a card and a share that is not there have a letter too.
        if (path.front() == kDefaultDrive || QStorageInfo(drive.absolutePath()).isReady())
            drives[path.front()] = path;
    }
#else
    std::vector<std::filesystem::path> mountPoints;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        if (volume.isValid() && volume.isReady() && isRemovable(volume.rootPath()))
            mountPoints.emplace_back(volume.rootPath().toStdString());
    drives = letters_.of(std::move(mountPoints));
    drives[kDefaultDrive] = userDrive();
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
