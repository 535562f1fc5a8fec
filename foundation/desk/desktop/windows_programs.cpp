#include "foundation/desk/desktop/windows_programs.h"

#ifdef Q_OS_WIN

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <array>

#include <windows.h>

#include <shlwapi.h>

namespace winvrx {

namespace {

/// The default value of a key below SOFTWARE.
QString registered(const QString& key, const QString& hive) {
    const QSettings registry(hive + QStringLiteral("\\SOFTWARE"), QSettings::Registry64Format);
    return registry.value(key + QStringLiteral("/.")).toString();
}

QString folderOf(const QString& program) {
    return program.isEmpty() ? QString() : QFileInfo(program).path();
}

}  // namespace

QString registeredLibreOffice() {
    QStringList folders;
    for (const QString& hive :
         {QStringLiteral("HKEY_CURRENT_USER"), QStringLiteral("HKEY_LOCAL_MACHINE")}) {
        const QString ofWindows =
            QStringLiteral("Microsoft/Windows/CurrentVersion/App Paths/soffice.exe");
        folders << folderOf(registered(ofWindows, hive))
                << registered(QStringLiteral("LibreOffice/UNO/InstallPath"), hive);
    }
    folders << folderOf(programOf(QStringLiteral(".fodt")))
            << folderOf(programOf(QStringLiteral(".odt")))
            << qEnvironmentVariable("ProgramFiles") + QStringLiteral("/LibreOffice/program");
    folders.removeAll(QString());
    return QStandardPaths::findExecutable(QStringLiteral("soffice.exe"), folders);
}

QString programOf(const QString& suffix) {
    std::array<wchar_t, MAX_PATH> program{};
    auto length = static_cast<DWORD>(program.size());
    const HRESULT found = ::AssocQueryStringW(ASSOCF_INIT_IGNOREUNKNOWN, ASSOCSTR_EXECUTABLE,
                                              reinterpret_cast<const wchar_t*>(suffix.utf16()),
                                              L"open", program.data(), &length);
    return found == S_OK ? QString::fromWCharArray(program.data()) : QString();
}

}  // namespace winvrx

#endif
