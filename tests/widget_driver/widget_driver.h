#pragma once

#include <QAnyStringView>
#include <QWidget>

#include <string>

namespace winvrx {

/// Drives a window as an operator does, by mouse and keys; its widgets are known by their object
/// names. Whatever the window has not, or does not take, is a std::invalid_argument that names it.
class WidgetDriver {
  public:
    /// `window` outlives the driver, is shown, and is the active one where keys are pressed.
    explicit WidgetDriver(QWidget& window) : window_(window) {}

    template <typename Object = QWidget>
    [[nodiscard]] Object& find(QAnyStringView name) const {
        auto* found = window_.findChild<Object*>(name.toString());
        if (!found) refuseFor(name, "is not in " + window_.objectName().toStdString() + heard());
        return *found;
    }

    void click(QAnyStringView name) const;
    /// Gives a command of a menu.
    void trigger(QAnyStringView name) const;
    /// Replaces the field's text, key by key.
    void type(QAnyStringView name, QAnyStringView text) const;
    /// Types into a cell of a grid and ends with ENTER.
    void typeCell(QAnyStringView name, int row, int column, QAnyStringView text) const;
    /// Picks the entry of a list or combo box whose text contains `text`.
    void choose(QAnyStringView name, QAnyStringView text) const;
    /// Ticks or clears a check box or option button.
    void tick(QAnyStringView name, bool on) const;
    /// Selects a tab by a word of its title.
    void openTab(QAnyStringView name, QAnyStringView title) const;

    /// Where keys go: the widget with the focus, else the window.
    [[nodiscard]] QWidget& focus() const;
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void typeHere(QAnyStringView text) const;

  protected:
    QWidget& window_;

  private:
    [[noreturn]] static void refuseFor(QAnyStringView name, const std::string& why);
    /// What a message box in the place of the window says.
    [[nodiscard]] std::string heard() const;
    /// One that an operator could use.
    template <typename Object = QWidget>
    [[nodiscard]] Object& usable(QAnyStringView name) const {
        Object& found = find<Object>(name);
        if (!found.isEnabled()) refuseFor(name, "is disabled");
        return found;
    }
};

}  // namespace winvrx
