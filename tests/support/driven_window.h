#pragma once

#include <gtest/gtest.h>
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QtTest>

namespace winvrx::testing {

/// A window shown and driven the way an operator does, its widgets found by name.
template <typename Window>
class DrivenWindow {
  public:
    template <typename... Arguments>
    explicit DrivenWindow(Arguments&&... arguments)
        : window(std::forward<Arguments>(arguments)...) {
        window.resize(1280, 720);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    template <typename Widget>
    [[nodiscard]] Widget& get(const char* name) {
        auto* widget = window.template findChild<Widget*>(QString::fromUtf8(name));
        if (!widget) throw std::logic_error(std::string("no widget ") + name);
        return *widget;
    }

    [[nodiscard]] std::string text(const char* label) {
        return get<QLabel>(label).text().toStdString();
    }
    void click(const char* button) { get<QAbstractButton>(button).click(); }
    void type(const char* field, const char* text) {
        auto& edit = get<QLineEdit>(field);
        edit.selectAll();
        QTest::keyClicks(&edit, QString::fromUtf8(text));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : &window, key, modifiers);
    }

    /// Names of the visible widgets that an operator uses and a screen reader could not name.
    [[nodiscard]] std::vector<std::string> namelessWidgets() {
        std::vector<std::string> nameless;
        for (const QWidget* widget : window.template findChildren<QWidget*>()) {
            const auto* button = qobject_cast<const QAbstractButton*>(widget);
            const bool used = button || qobject_cast<const QLineEdit*>(widget) ||
                              qobject_cast<const QComboBox*>(widget) ||
                              qobject_cast<const QAbstractItemView*>(widget);
            const bool partOfAnother = widget->inherits("QHeaderView") ||
                                       widget->inherits("QLineEditIconButton") ||
                                       widget->inherits("QTableCornerButton");
            if (!used || partOfAnother || !widget->isVisible() ||
                widget->objectName().startsWith(QLatin1String("qt_")))
                continue;
            const bool named =
                !widget->accessibleName().isEmpty() || (button && !button->text().isEmpty());
            if (widget->objectName().isEmpty() || !named)
                nameless.push_back(std::string(widget->metaObject()->className()) + " " +
                                   widget->objectName().toStdString());
        }
        return nameless;
    }

    /// Alt letters that more than one of the visible captions claims, and that so lead nowhere.
    [[nodiscard]] std::string sharedAltLetters() {
        QStringList captions;
        for (const auto* button : window.template findChildren<QAbstractButton*>())
            if (button->isVisible()) captions << button->text();
        for (const auto* label : window.template findChildren<QLabel*>())
            if (label->isVisible() && label->buddy()) captions << label->text();
        for (const auto* tabs : window.template findChildren<QTabBar*>())
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

    Window window;
};

}  // namespace winvrx::testing
