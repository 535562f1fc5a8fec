#include "tools/internet/desktop/linux_browser_settings.h"

#include "foundation/values/desktop/qt_text.h"
#include "tools/internet/browser_policies.h"
#include "tools/internet/desktop/desktop_proxy.h"

#include <QDesktopServices>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QUrl>

namespace winvrx {

namespace {

const QString kGnome = QStringLiteral("gnome");
const QString kKde = QStringLiteral("kde");
constexpr std::string_view kGnomePlace = "Área de trabalho (GNOME)";
constexpr std::string_view kKdePlace = "Área de trabalho (KDE)";

QJsonObject loadKept(const FileSystem& files, const std::filesystem::path& file) {
    return QJsonDocument::fromJson(QByteArray::fromStdString(files.read(file).value_or("")))
        .object();
}

void saveKept(FileSystem& files, const std::filesystem::path& file, const QJsonObject& kept) {
    if (kept.isEmpty()) {
        if (files.exists(file)) (void)files.remove(file);
        return;
    }
    files.makeFolder(file.parent_path());
    files.replace(file, QJsonDocument(kept).toJson().toStdString());
}

}  // namespace

std::filesystem::path LinuxBrowserSettings::memory() const {
    return (desk_.ownFolder + QStringLiteral("/internet-antes.json")).toStdString();
}

BrowserSettings::Outcome LinuxBrowserSettings::apply(WebSwitch which, bool blocked) {
    return which == WebSwitch::Internet ? applyProxy(blocked) : applyRule(which, blocked);
}

BrowserSettings::Outcome LinuxBrowserSettings::applyProxy(bool blocked) {
    Outcome outcome;
    try {
        QJsonObject kept = loadKept(desk_.files, memory());
        applyGnome(blocked, kept, outcome);
        applyKde(blocked, kept, outcome);
        if (!blocked) saveKept(desk_.files, memory(), kept);
    } catch (const Fault& fault) {
        outcome.problems.push_back(fault.explanation());
    }
    if (blocked && outcome.reached.empty() && outcome.problems.empty())
        outcome.problems.emplace_back(
            "Esta área de trabalho não tem um proxy que o programa conheça: nada foi bloqueado.");
    return outcome;
}

/// Written before anything is changed; what was kept at an earlier block is not written over.
void LinuxBrowserSettings::keep(const QString& place, const QJsonObject& before,
                                QJsonObject& kept) {
    if (!kept.contains(place)) kept[place] = before;
    saveKept(desk_.files, memory(), kept);
}

void LinuxBrowserSettings::applyGnome(bool blocked, QJsonObject& kept, Outcome& outcome) {
    if (!GnomeProxy::isThere()) return;
    bool done = true;
    if (blocked && !GnomeProxy::isBlocked()) {
        const auto before = GnomeProxy::present();
        if (before) keep(kGnome, *before, kept);
        done = before && GnomeProxy::block();
    } else if (!blocked && (kept.contains(kGnome) || GnomeProxy::isBlocked())) {
        done = GnomeProxy::release(kept.take(kGnome).toObject());
    }
    if (done)
        outcome.reached.emplace_back(kGnomePlace);
    else
        outcome.problems.emplace_back("O proxy da área de trabalho não pôde ser mudado.");
}

void LinuxBrowserSettings::applyKde(bool blocked, QJsonObject& kept, Outcome& outcome) {
    KdeProxy proxy(desk_.files);
    if (!proxy.isThere()) return;
    if (blocked && !proxy.isBlocked()) {
        keep(kKde, proxy.present(), kept);
        proxy.block();
    } else if (!blocked && (kept.contains(kKde) || proxy.isBlocked())) {
        proxy.release(kept.take(kKde).toObject());
    }
    outcome.reached.emplace_back(kKdePlace);
}

BrowserSettings::Outcome LinuxBrowserSettings::applyRule(WebSwitch which, bool blocked) {
    Outcome outcome;
    try {
        outcome.reached = applyPolicy(desk_.files, root_, which, blocked);
    } catch (const Fault& fault) {
        const std::string refusal = askForRights(which, blocked);
        if (refusal.empty())
            outcome.reached = browsersWithPolicy(desk_.files, root_, which);
        else
            outcome.problems.push_back(
                "Falta o direito de mudar as regras dos navegadores deste computador. " + refusal +
                " " + fault.explanation());
    }
    if (blocked && outcome.reached.empty() && outcome.problems.empty())
        outcome.problems.emplace_back(
            "Nenhum navegador que siga regras do computador foi encontrado: nada foi bloqueado.");
    return outcome;
}

/// The system's own dialog asks for the password; empty where the rules are then as asked for, else
/// why they are not.
std::string LinuxBrowserSettings::askForRights(WebSwitch which, bool blocked) const {
    constexpr int kForever = -1;
    constexpr int kDialogClosed = 126;
    constexpr int kRefused = 127;
    QProcess helper;
    helper.start(
        QStringLiteral("pkexec"),
        {desk_.programFolder + QStringLiteral("/winvrx-internet"), toQt(wordsOf(which).key),
         blocked ? QStringLiteral("on") : QStringLiteral("off")});
    if (!helper.waitForStarted()) return "Este sistema não tem como pedir a senha (pkexec).";
    helper.waitForFinished(kForever);
    const int code = helper.exitStatus() == QProcess::NormalExit ? helper.exitCode() : -1;
    if (code == 0) return {};
    if (code == kDialogClosed) return "A senha não foi dada.";
    return code == kRefused ? "O sistema não deu a autorização." : "A gravação falhou.";
}

std::vector<std::string> LinuxBrowserSettings::blockedIn(WebSwitch which) const {
    if (which != WebSwitch::Internet) return browsersWithPolicy(desk_.files, root_, which);
    std::vector<std::string> places;
    if (GnomeProxy::isThere() && GnomeProxy::isBlocked()) places.emplace_back(kGnomePlace);
    if (KdeProxy(desk_.files).isBlocked()) places.emplace_back(kKdePlace);
    return places;
}

bool LinuxBrowserSettings::openBrowser() {
    return QDesktopServices::openUrl(QUrl(QStringLiteral("https://www.gov.br/")));
}

#ifndef Q_OS_WIN
std::unique_ptr<BrowserSettings> systemBrowserSettings(BrowserSettingsDesk desk) {
    return std::make_unique<LinuxBrowserSettings>(std::move(desk));
}
#endif

}  // namespace winvrx
