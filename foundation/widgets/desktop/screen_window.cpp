#include "foundation/widgets/desktop/screen_window.h"

#include "foundation/widgets/desktop/body_area.h"
#include "foundation/widgets/desktop/command_bar.h"
#include "foundation/widgets/desktop/enter_key.h"
#include "foundation/widgets/desktop/look.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QSplitter>
#include <QToolButton>

#include <utility>

namespace winvrx {

namespace {

QFrame* band(const QString& objectName, QWidget* parent) {
    auto* frame = new QFrame(parent);
    frame->setObjectName(objectName);
    return frame;
}

/// A row along the window's edge.
QHBoxLayout* rowIn(QFrame* frame, int vertical) {
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins(look::kMargin, vertical, look::kMargin, vertical);
    row->setSpacing(look::kGap);
    return row;
}

std::function<void()>& openHelp() {
    static std::function<void()> open;
    return open;
}

}  // namespace

void ScreenWindow::setHelp(std::function<void()> open) {
    openHelp() = std::move(open);
}

ScreenWindow::ScreenWindow(const QString& objectName, const QString& title, QWidget* parent)
    : QDialog(parent) {
    setObjectName(objectName);
    setWindowTitle(title);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint, true);
    frame_ = new QVBoxLayout(this);
    frame_->setContentsMargins(0, 0, 0, 0);
    frame_->setSpacing(0);
    buildTitleBand(title);
    buildCommandBar();
    buildStateBar();
    resize(look::kWindowSize);
}

void ScreenWindow::buildTitleBand(const QString& title) {
    QFrame* frame = band(QStringLiteral("titleBand"), this);
    QHBoxLayout* row = rowIn(frame, look::kGap);
    QFrame* mark = band(QStringLiteral("titleMark"), frame);
    mark->setFixedWidth(look::kSmallGap);
    row->addWidget(mark);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(look::label(title, look::TextSize::Title, frame));
    subtitle_ = look::line(QStringLiteral("subtitle"), look::TextSize::Hint, frame);
    subtitle_->hide();
    texts->addWidget(subtitle_);
    row->addLayout(texts);
    row->addStretch();
    chips_ = new QHBoxLayout;
    chips_->setSpacing(look::kGap);
    row->addLayout(chips_);
    frame_->addWidget(frame);
}

void ScreenWindow::buildCommandBar() {
    commands_ = new CommandBar(this);
    frame_->addWidget(commands_);
    const QByteArray name = objectName().toUtf8() + ".help";
    addCommand({"help", QStringLiteral("Ajuda"), Qt::Key_F1, name.constData(), [] {
                    if (openHelp()) openHelp()();
                }});
}

void ScreenWindow::buildStateBar() {
    QFrame* frame = band(QStringLiteral("stateBar"), this);
    QHBoxLayout* row = rowIn(frame, look::kGap);
    state_ = look::line(QStringLiteral("state"), look::TextSize::Hint, frame);
    state_->setTextFormat(Qt::PlainText);  // it quotes what was typed
    row->addWidget(state_, 1);
    closing_ = new QHBoxLayout;
    closing_->setSpacing(look::kGap);
    row->addLayout(closing_);
    frame_->addWidget(frame);
}

void ScreenWindow::setSubtitle(const QString& text) {
    look::showText(*subtitle_, text);
}

void ScreenWindow::setChips(const QStringList& chips) {
    while (QLayoutItem* item = chips_->takeAt(0)) {
        item->widget()->deleteLater();
        delete item;
    }
    for (const QString& text : chips) {
        QLabel* chip = look::label(text, look::TextSize::Body, this);
        look::setRole(*chip, "chip");
        chips_->addWidget(chip, 0, Qt::AlignVCenter);
    }
}

void ScreenWindow::join(QAbstractButton& button, const ScreenCommand& command, QWidget* keyOwner) {
    if (command.run) connect(&button, &QAbstractButton::clicked, this, command.run);
    if (command.key.isEmpty()) return;
    auto* shortcut = new QShortcut(command.key, keyOwner);
    if (command.within) shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, &button, &QAbstractButton::click);
}

QToolButton* ScreenWindow::addCommand(const ScreenCommand& command) {
    QToolButton* button = commands_->add(QLatin1String(command.icon), command.text,
                                         command.key.toString(QKeySequence::NativeText));
    button->setObjectName(QLatin1String(command.name));
    join(*button, command, command.within ? command.within : this);
    return button;
}

void ScreenWindow::addPageKeys(std::function<void(int by)> step) {
    for (const auto& [key, by] : {std::pair(Qt::Key_PageUp, -1), std::pair(Qt::Key_PageDown, 1)})
        connect(new QShortcut(key, this), &QShortcut::activated, this,
                [step, rows = by] { step(rows); });
}

void ScreenWindow::setBody(QWidget* body) {
    body_ = qobject_cast<QScrollArea*>(body);
    if (!body_) body_ = new BodyArea(body, this);
    frame_->insertWidget(2, body_, 1);
}

void ScreenWindow::setBody(std::initializer_list<BodyPart> parts, int gap) {
    auto* body = new QWidget(this);
    auto* row = new QHBoxLayout(body);
    look::layOutBody(*row);
    row->setSpacing(gap);
    for (const BodyPart& part : parts)
        row->addWidget(part.widget, part.share);
    setBody(body);
}

void ScreenWindow::setSplitBody(const BodyPart& left, const BodyPart& right) {
    auto* split = new QSplitter(this);
    split->setChildrenCollapsible(false);
    split->setHandleWidth(look::kMargin);
    for (const BodyPart& part : {left, right}) {
        split->addWidget(part.widget);
        split->setStretchFactor(split->count() - 1, part.share);
    }
    split->setSizes({left.share * width(), right.share * width()});
    setBody({BodyPart{split}});
}

void ScreenWindow::setState(const QString& text) {
    state_->setText(text);
}

void ScreenWindow::finishTyping() {
    if (auto* line = qobject_cast<QLineEdit*>(focusWidget())) emit line->editingFinished();
}

QPushButton* ScreenWindow::newButton(const ScreenCommand& command, QWidget* parent) {
    QPushButton* button = look::button(command.text, QLatin1String(command.name), parent);
    if (*command.icon) button->setIcon(look::icon(QLatin1String(command.icon)));
    join(*button, command, button);
    return button;
}

QPushButton* ScreenWindow::addClosingButton(const ScreenCommand& command) {
    QPushButton* button = newButton(command, this);
    closing_->addWidget(button);
    return button;
}

QPushButton* ScreenWindow::addDefaultButton(const ScreenCommand& command) {
    QPushButton* button = addClosingButton(command);
    button->setDefault(true);
    return button;
}

QPushButton* ScreenWindow::addLeavingButton(const char* name, const QString& text) {
    return addClosingButton({"", text, {}, name, [this] { reject(); }});
}

void ScreenWindow::reject() {
    if (mayClose()) QDialog::reject();
}

void ScreenWindow::showEvent(QShowEvent* event) {
    if (!event->spontaneous() && body_) fitToScreen(*this, *body_);
    QDialog::showEvent(event);
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    reject();
    if (!isVisible()) event->accept();
}

bool ScreenWindow::moveOnFromField() {
    QWidget* field = focusWidget();
    const bool isField = qobject_cast<QLineEdit*>(field) || qobject_cast<QComboBox*>(field) ||
                         qobject_cast<QAbstractSpinBox*>(field);
    if (!isField || field->property("lastField").toBool()) return false;
    focusNextChild();
    return true;
}

void ScreenWindow::keyPressEvent(QKeyEvent* event) {
    if (isEnter(*event) && moveOnFromField()) return;
    QDialog::keyPressEvent(event);
}

}  // namespace winvrx
