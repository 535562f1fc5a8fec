#pragma once

#include "foundation/values/desktop/qt_text.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>
#include <QWidget>

#include <gtest/gtest.h>

namespace winvrx::testing {

/// Drives a shown window by the object names of its widgets and by key presses.
class WindowDriver {
  public:
    explicit WindowDriver(QWidget& window) : window_(window) {
        window_.show();
        window_.activateWindow();
        if (!QTest::qWaitForWindowActive(&window_)) ADD_FAILURE() << "the window is not active";
    }

    template <typename Widget = QWidget>
    [[nodiscard]] Widget& find(const char* name) const {
        auto* found = window_.findChild<Widget*>(QString::fromLatin1(name));
        if (!found) throw std::invalid_argument(std::string("no widget ") + name);
        return *found;
    }

    /// Replaces the field's text, key by key.
    void type(const char* name, std::string_view text) const {
        auto& edit = find<QLineEdit>(name);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, toQt(text));
    }

    [[nodiscard]] std::string text(const char* name) const {
        return find<QLineEdit>(name).text().toStdString();
    }
    /// What is said under the field.
    [[nodiscard]] std::string hint(const char* name) const {
        return find<QLabel>((std::string(name) + ".hint").c_str()).text().toStdString();
    }
    [[nodiscard]] std::string state() const { return find<QLabel>("state").text().toStdString(); }

    /// A key press where the focus is.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(focus(), key, modifiers);
        QApplication::processEvents();
    }
    void typeHere(std::string_view text) const { QTest::keyClicks(focus(), toQt(text)); }
    [[nodiscard]] std::string focusName() const { return focus()->objectName().toStdString(); }

  private:
    [[nodiscard]] QWidget* focus() const {
        return window_.focusWidget() ? window_.focusWidget() : &window_;
    }

    QWidget& window_;
};

/// Names the widgets that an operator uses and that tests or a screen reader could not find.
inline std::string namelessWidgets(const QWidget& window) {
    std::string nameless;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const bool isOwn =
            widget->window() == &window && !widget->objectName().startsWith(QLatin1String("qt_"));
        const bool isUsed = widget->focusPolicy() != Qt::NoFocus && widget->isEnabled() &&
                            !qobject_cast<const QAbstractScrollArea*>(widget->parentWidget()) &&
                            !widget->inherits("QScrollArea") && !widget->inherits("QTabBar");
        const bool partOfField = qobject_cast<const QLineEdit*>(widget->parentWidget()) ||
                                 qobject_cast<const QComboBox*>(widget->parentWidget());
        if (!isOwn || !isUsed || partOfField) continue;
        if (widget->objectName().isEmpty() || widget->accessibleName().isEmpty())
            nameless += std::string(widget->metaObject()->className()) + " \"" +
                        widget->objectName().toStdString() + "\" ";
    }
    return nameless;
}

}  // namespace winvrx::testing
