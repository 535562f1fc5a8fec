#include "report/desktop/system_printers.h"

#include "foundation/values/desktop/qt_text.h"

#include <QDesktopServices>
#include <QPrinterInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace winvrx {

std::vector<SystemPrinters::AddDialogue> SystemPrinters::addDialogues() {
    const auto dialogue = [](const char* program, const QStringList& arguments) {
        return AddDialogue{QString::fromLatin1(program), arguments};
    };
#ifdef Q_OS_WIN
    return {dialogue("rundll32.exe",
                     {QStringLiteral("printui.dll,PrintUIEntry"), QStringLiteral("/il")})};
#else
    const QString plasma = QStringLiteral("kcm_printer_manager");
    return {dialogue("system-config-printer", {}),
            dialogue("gnome-control-center", {QStringLiteral("printers")}),
            dialogue("kcmshell6", {plasma}), dialogue("kcmshell5", {plasma})};
#endif
}

std::vector<std::string> SystemPrinters::installed() {
    std::vector<std::string> names;
    for (const QString& name : QPrinterInfo::availablePrinterNames())
        names.push_back(toUtf8(name));
    return names;
}

SystemPrinters::SystemPrinters(std::vector<AddDialogue> dialogues, std::function<bool()> showPage)
    : dialogues_(std::move(dialogues)), showPage_(std::move(showPage)) {}

std::string SystemPrinters::defaultName() const {
    return toUtf8(QPrinterInfo::defaultPrinterName());
}

bool SystemPrinters::openAddDialogue() {
    for (const AddDialogue& dialogue : dialogues_) {
        const QString program = QStandardPaths::findExecutable(dialogue.program);
        if (!program.isEmpty() && QProcess::startDetached(program, dialogue.arguments)) return true;
    }
    return showPage_();
}

bool SystemPrinters::showServerPage() {
#ifdef Q_OS_WIN
    return false;
#else
    const bool answers = QProcess::execute(QStringLiteral("lpstat"), {QStringLiteral("-r")}) == 0;
    return answers && QDesktopServices::openUrl(QUrl(QStringLiteral("http://localhost:631/admin")));
#endif
}

}  // namespace winvrx
