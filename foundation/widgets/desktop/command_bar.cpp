#include "foundation/widgets/desktop/command_bar.h"

#include "foundation/widgets/desktop/look.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QToolButton>

namespace winvrx {

/// Its text ends with its key; without that it is what it is called for screen readers.
class CommandButton : public QToolButton {
  public:
    using QToolButton::QToolButton;

    [[nodiscard]] int fullWidth() const { return QToolButton::sizeHint().width(); }
    [[nodiscard]] int keyWidth() const {
        return fontMetrics().horizontalAdvance(text()) -
               fontMetrics().horizontalAdvance(accessibleName());
    }
    void showKey(bool shown) {
        if (shown == keyShown_) return;
        keyShown_ = shown;
        updateGeometry();
        update();
    }
    [[nodiscard]] QSize sizeHint() const override {
        return {fullWidth() - (keyShown_ ? 0 : keyWidth()), QToolButton::sizeHint().height()};
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QStylePainter painter(this);
        QStyleOptionToolButton option;
        initStyleOption(&option);
        if (!keyShown_) option.text = accessibleName();
        painter.drawComplexControl(QStyle::CC_ToolButton, option);
    }

  private:
    bool keyShown_ = true;
};

CommandBar::CommandBar(QWidget* parent) : QFrame(parent), row_(new QHBoxLayout(this)) {
    setObjectName(QStringLiteral("commandBar"));
    row_->setContentsMargins(look::kMargin, look::kSmallGap, look::kMargin, look::kSmallGap);
    row_->setSpacing(look::kGap);
    row_->addStretch();
}

QToolButton* CommandBar::add(const QString& icon, const QString& text, const QString& key) {
    constexpr int kLeastLetters = 5;  // on a narrow screen
    auto* button = new CommandButton(this);
    look::setRole(*button, "command");
    button->setAccessibleName(text);
    button->setIcon(look::icon(icon));
    button->setText(key.isEmpty() ? text : text + QStringLiteral("  ") + key);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setToolTip(button->text());
    button->setFocusPolicy(Qt::TabFocus);
    button->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    button->setMinimumWidth(look::kTileIcon + kLeastLetters * fontMetrics().averageCharWidth());
    if (buttons_.empty())
        row_->addWidget(button);
    else
        row_->insertWidget(row_->count() - 2, button);
    buttons_.push_back(button);
    return button;
}

void CommandBar::resizeEvent(QResizeEvent* event) {
    fit();
    QFrame::resizeEvent(event);
}

bool CommandBar::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) fit();
    return QFrame::event(event);
}

/// From the last key on.
void CommandBar::fit() {
    int missing = -row_->contentsRect().width();
    for (const CommandButton* button : buttons_)
        if (!button->isHidden()) missing += button->fullWidth() + row_->spacing();
    for (auto last = buttons_.rbegin(); last != buttons_.rend(); ++last) {
        CommandButton& button = **last;
        const int key = button.isHidden() ? 0 : button.keyWidth();
        button.showKey(missing <= 0 || key == 0);
        if (missing > 0) missing -= key;
    }
}

}  // namespace winvrx
