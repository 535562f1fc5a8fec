#include "tools/internet/desktop/web_ni_window.h"

#include "foundation/values/desktop/qt_text.h"
#include "foundation/widgets/desktop/look.h"

#include <QCheckBox>
#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace winvrx {

namespace {

constexpr auto kWhatItIs =
    "Os bloqueios valem para os navegadores deste computador e servem para desencorajar o uso: não "
    "são uma barreira de segurança. Quem entende de computadores pode desfazê-los.";

QString since(std::chrono::nanoseconds moment) {
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(moment);
    return QDateTime::fromMSecsSinceEpoch(milliseconds.count())
        .toString(QStringLiteral("dd/MM/yyyy 'às' HH:mm"));
}

QString stateText(const WebNi::State& state) {
    const QString places = toQtList(state.places).join(QStringLiteral(", "));
    if (!state.blocked && places.isEmpty()) return QStringLiteral("Liberado.");
    if (!state.blocked)
        return QStringLiteral("Liberado no Winvrx, mas ainda bloqueado em: %1.").arg(places);
    const QString from = state.since ? QStringLiteral(" desde ") + since(*state.since) : QString();
    if (places.isEmpty())
        return QStringLiteral("Marcado como bloqueado%1, mas sem efeito em nenhum navegador.")
            .arg(from);
    return QStringLiteral("Bloqueado%1 em: %2.").arg(from, places);
}

/// What takes effect only after the browser is started anew.
QString advice(bool blocked) {
    return blocked ? QStringLiteral("Bloqueado. Feche e abra de novo os navegadores abertos.")
                   : QStringLiteral("Liberado. Feche e abra de novo os navegadores abertos.");
}

const std::array<Qt::Key, 3> kBlockKeys = {Qt::Key_1, Qt::Key_2, Qt::Key_3};

}  // namespace

WebNiWindow::WebNiWindow(WebNi& screen, QWidget* parent)
    : ScreenWindow(QStringLiteral("webNi"), QStringLiteral("Internet"), parent), screen_(screen) {
    setSubtitle(QStringLiteral("Bloqueia e libera a internet, os vídeos e as imagens"));
    addCommands();
    setBody(buildBody());
    resize(look::kSmallWindowSize);
    (void)screen_.load();
    showStates();
    parts_.front().block->setFocus();
}

void WebNiWindow::addCommands() {
    addCommand({"internet", QStringLiteral("Abrir Navegador"), Qt::CTRL | Qt::Key_B,
                "webNi.browser", [this] { screen_.openBrowser(); }});
    addLeavingButton("webNi.close");
}

QWidget* WebNiWindow::buildBody() {
    const auto [body, column] = look::body(this);
    column->setSpacing(look::kGroupGap);
    for (const WebSwitch which : kWebSwitches)
        column->addWidget(buildPart(which, body));
    keeps_ = new QCheckBox(
        QStringLiteral("&Aplicar os bloqueios de novo cada vez que o Winvrx for aberto"), body);
    look::name(*keeps_, QStringLiteral("webNi.keep"), keeps_->text());
    connect(keeps_, &QCheckBox::clicked, this, [this](bool keeps) {
        (void)screen_.setKeepsBlocked(keeps);
        showStates();
    });
    column->addWidget(keeps_);
    QLabel* note = look::label(QString::fromUtf8(kWhatItIs), look::TextSize::Hint, body);
    note->setWordWrap(true);
    column->addWidget(note);
    column->addStretch(1);
    return body;
}

QWidget* WebNiWindow::buildPart(WebSwitch which, QWidget* parent) {
    const WebSwitchWords& words = wordsOf(which);
    Part& made = parts_[static_cast<std::size_t>(which)];
    auto* part = new QWidget(parent);
    auto* column = new QVBoxLayout(part);
    look::layOutPart(*column);
    column->addWidget(look::heading(toQt(words.title), part));
    made.state = look::label(QString(), look::TextSize::Body, part);
    made.problems = look::label(QString(), look::TextSize::Body, part);
    look::setTint(*made.problems, look::Tint::Warning);
    for (QLabel* text : {made.state, made.problems}) {
        text->setWordWrap(true);
        column->addWidget(text);
    }
    auto* buttons = new QHBoxLayout;
    const auto button = [&](const QString& caption, const char* verb, bool blocked) {
        auto* made = new QPushButton(caption, part);
        look::name(*made, QStringLiteral("webNi.%1.%2").arg(toQt(words.key), QLatin1String(verb)),
                   QString(caption).remove(u'&') + u' ' + toQt(words.title));
        made->setAutoDefault(false);
        connect(made, &QPushButton::clicked, this,
                [this, which, blocked] { change(which, blocked); });
        buttons->addWidget(made);
        return made;
    };
    const int number = static_cast<int>(which) + 1;
    made.block = button(QStringLiteral("Bloquear"), "block", true);
    made.release = button(QStringLiteral("Liberar"), "release", false);
    made.block->setShortcut(QKeySequence(Qt::CTRL | kBlockKeys[static_cast<std::size_t>(which)]));
    made.block->setToolTip(QStringLiteral("Ctrl+%1").arg(number));
    buttons->addStretch(1);
    column->addLayout(buttons);
    return part;
}

void WebNiWindow::change(WebSwitch which, bool blocked) {
    const bool done = blocked ? screen_.block(which) : screen_.release(which);
    showStates();
    if (done && screen_.state(which).problems.empty()) setState(advice(blocked));
}

void WebNiWindow::showState(WebSwitch which) {
    const WebNi::State& state = screen_.state(which);
    const Part& part = parts_[static_cast<std::size_t>(which)];
    part.state->setText((state.blocked ? QStringLiteral("● ") : QStringLiteral("○ ")) +
                        stateText(state));
    look::showWarning(*part.problems, toQtList(state.problems).join(u' '));
}

void WebNiWindow::showStates() {
    for (const WebSwitch which : kWebSwitches)
        showState(which);
    keeps_->setChecked(screen_.keepsBlocked());
    setState(QStringLiteral("ESC fecha"));
}

MenuEntry internetEntry(const Workplace& at, std::shared_ptr<BrowserSettings> browsers) {
    return {.group = QStringLiteral("Ferramentas"),
            .tile = {"internet", QStringLiteral("Internet"), "menu.internet.open"},
            .open =
                [at, browsers](QWidget* parent) {
                    WebNi screen(at, *browsers);
                    WebNiWindow(screen, parent).exec();
                },
            .state = [](const MonthProgress*) { return QStringLiteral("Bloquear e liberar"); }};
}

}  // namespace winvrx
