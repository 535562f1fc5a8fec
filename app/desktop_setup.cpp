#include "app/desktop_setup.h"

#include "foundation/widgets/desktop/look.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace winvrx {

namespace {

/// Qt's own words ("Sim", "Cancelar"): the catalogue beside the program, else the system's.
void speakPortuguese(QApplication& application) {
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    const QString name = QStringLiteral("qtbase_pt_BR");
    const QString shipped = QApplication::applicationDirPath() + QStringLiteral("/translations");
    auto* words = new QTranslator(&application);
    if (words->load(name, shipped) ||
        words->load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(words);
}

}  // namespace

void setUpDesktop(QApplication& application) {
    QApplication::setApplicationName(QStringLiteral("winvrx"));
    speakPortuguese(application);
    look::apply(application);
    QApplication::setWindowIcon(look::icon(QStringLiteral("winvrx")));
}

}  // namespace winvrx
