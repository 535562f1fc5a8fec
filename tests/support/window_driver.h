#pragma once

#include "foundation/values/desktop/qt_text.h"
#include "tests/widget_driver/widget_driver.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace winvrx::testing {

/// The driver of a window that it shows, and what a test reads in it.
class WindowDriver : public WidgetDriver {
  public:
    explicit WindowDriver(QWidget& shown) : WidgetDriver(shown) {
        window_.show();
        window_.activateWindow();
        if (!QTest::qWaitForWindowActive(&window_)) ADD_FAILURE() << "the window is not active";
    }

    /// What stands in the field.
    [[nodiscard]] std::string text(const char* field) const {
        return find<QLineEdit>(field).text().toStdString();
    }
    [[nodiscard]] std::string label(QAnyStringView name) const {
        return find<QLabel>(name).text().toStdString();
    }
    /// What is said under the field.
    [[nodiscard]] std::string hint(const char* name) const {
        return label(std::string(name) + ".hint");
    }
    [[nodiscard]] std::string state() const { return label("state"); }

    /// A key press where the focus is, and what it sets going.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        WidgetDriver::press(key, modifiers);
        QApplication::processEvents();
    }
    [[nodiscard]] std::string focusName() const { return focus().objectName().toStdString(); }

    /// The widgets that an operator uses and that tests or a screen reader could not find.
    [[nodiscard]] std::string namelessWidgets() const {
        std::string nameless;
        for (const QWidget* widget : window_.findChildren<QWidget*>()) {
            if (!isUsed(*widget)) continue;
            const auto* button = qobject_cast<const QAbstractButton*>(widget);
            const bool named =
                !widget->accessibleName().isEmpty() || (button && !button->text().isEmpty());
            if (widget->objectName().isEmpty() || !named)
                nameless += std::string(widget->metaObject()->className()) + " \"" +
                            widget->objectName().toStdString() + "\" ";
        }
        return nameless;
    }

    /// Alt letters that more than one of the visible captions claims, and that so lead nowhere.
    [[nodiscard]] std::string sharedAltLetters() const {
        QStringList captions;
        for (const auto* button : window_.findChildren<QAbstractButton*>())
            if (button->isVisible()) captions << button->text();
        for (const auto* label : window_.findChildren<QLabel*>())
            if (label->isVisible() && label->buddy()) captions << label->text();
        for (const auto* tabs : window_.findChildren<QTabBar*>())
            for (int i = 0; i < tabs->count(); ++i)
                captions << tabs->tabText(i);
        QString once;
        QString shared;
        for (const QString& caption : captions) {
            const QString key = QKeySequence::mnemonic(caption).toString();
            if (key.isEmpty()) continue;
            (once.contains(key.back()) ? shared : once) += key.back();
        }
        return shared.toStdString();
    }

  private:
    /// One of the window's own that takes the focus, and no part of another one.
    [[nodiscard]] bool isUsed(const QWidget& widget) const {
        const QWidget* parent = widget.parentWidget();
        return widget.window() == &window_ &&
               !widget.objectName().startsWith(QLatin1String("qt_")) &&
               widget.focusPolicy() != Qt::NoFocus && widget.isEnabled() && !widget.isHidden() &&
               !widget.inherits("QScrollArea") && !widget.inherits("QTabBar") &&
               !qobject_cast<const QAbstractScrollArea*>(parent) &&
               !qobject_cast<const QLineEdit*>(parent) && !qobject_cast<const QComboBox*>(parent);
    }
};

template <typename Window>
struct WindowHolder {
    Window window;
};

/// The driver and its window, as large as a small screen.
template <typename Window>
class DrivenWindow : public WindowHolder<Window>, public WindowDriver {
  public:
    template <typename... Arguments>
    explicit DrivenWindow(Arguments&&... arguments)
        : WindowHolder<Window>{Window(std::forward<Arguments>(arguments)...)},
          WindowDriver(resized(this->window)) {}
    /// A window of the program is closed, and its fields left, before it goes.
    ~DrivenWindow() { this->window.hide(); }

  private:
    static QWidget& resized(QWidget& window) {
        window.resize(1280, 720);
        return window;
    }
};

}  // namespace winvrx::testing
