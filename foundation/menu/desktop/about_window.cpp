#include "foundation/menu/desktop/about_window.h"

#include "foundation/desk/data_version.h"
#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace winvrx {

namespace {

QString licences() {
    QFile file(QStringLiteral(":/licencas.txt"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString versionLine() {
    return QStringLiteral("Versão %1, para empregadores e escritórios de contabilidade")
        .arg(toQt(programVersion().text()));
}

}  // namespace

SobreWindow::SobreWindow(const Workplace& at, Browser& browser, std::string log, QWidget* parent)
    : ScreenWindow(QStringLiteral("sobre"), QStringLiteral("Sobre o Winvrx"), parent),
      at_(at),
      browser_(browser),
      log_(std::move(log)) {
    setSubtitle(versionLine());
    setBody(buildBody());
    resize(look::kSmallWindowSize);
    setState(QStringLiteral("ESC fecha"));
    addLeavingButton("sobre.close");
}

QWidget* SobreWindow::buildBody() {
    const auto [body, column] = look::body(this);
    const std::string folder = at_.session.folder.path().string();
    column->addWidget(
        place(QStringLiteral("&Pasta de dados"), QStringLiteral("sobre.folder"), folder, body));
    column->addWidget(
        place(QStringLiteral("&Registro de ocorrências"), QStringLiteral("sobre.log"), log_, body));
    column->addWidget(look::heading(QStringLiteral("Licenças"), body));
    auto* text = new QPlainTextEdit(licences(), body);
    look::name(*text, QStringLiteral("sobre.licences"), QStringLiteral("Licenças"));
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setFont(look::fixedFont());
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    column->addWidget(text, 1);
    return body;
}

QWidget* SobreWindow::place(const QString& caption, const QString& name, const std::string& path,
                            QWidget* parent) {
    auto* part = new QWidget(parent);
    auto* grid = new QGridLayout(part);
    grid->setContentsMargins({});
    auto* field = new QLineEdit(toQt(path), part);
    look::name(*field, name, caption);
    field->setReadOnly(true);
    auto* label = look::label(caption, look::TextSize::Body, part);
    label->setBuddy(field);
    QPushButton* open = look::button(QStringLiteral("Abrir"), name + QStringLiteral(".open"), part);
    open->setAccessibleName(QStringLiteral("Abrir: ") + field->accessibleName());
    connect(open, &QPushButton::clicked, this, [this, path] { this->open(path); });
    grid->addWidget(label, 0, 0);
    grid->addWidget(field, 1, 0);
    grid->addWidget(open, 1, 1);
    return part;
}

void SobreWindow::open(const std::string& path) {
    if (!browser_.open(path)) at_.person.tell(refusal("Erro", "Ocorreu Erro"));
}

MenuEntry aboutEntry(const Workplace& at, Browser& browser, const std::string& log) {
    return {.group = QStringLiteral("Ferramentas"),
            .tile = {"winvrx", QStringLiteral("Sobre"), "menu.about.open"},
            .open = [at, &browser,
                     log](QWidget* parent) { SobreWindow(at, browser, log, parent).exec(); },
            .state =
                [](const MonthProgress*) {
                    return QStringLiteral("Versão ") + toQt(programVersion().text());
                }};
}

}  // namespace winvrx
