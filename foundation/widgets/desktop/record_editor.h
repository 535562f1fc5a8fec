#pragma once

#include "foundation/widgets/desktop/field.h"

#include <QObject>

#include <optional>
#include <vector>

namespace winvrx {

/// The form beside a register's list: shows a record, or the beginnings of a new one, and hands
/// over what was typed.
class RecordEditor : public QObject {
    Q_OBJECT

  public:
    /// Fills the form with the record at `position`; nullopt begins a new one.
    virtual void show(std::optional<std::size_t> position) = 0;
    /// Records what is typed, in the place of the record at `position` or as a new one. True when
    /// it was recorded; else the field that is to blame has the focus.
    [[nodiscard]] virtual bool save(std::optional<std::size_t> position) = 0;

    /// What stands in the window.
    [[nodiscard]] QWidget* widget() const { return widget_; }
    [[nodiscard]] virtual bool isDirty() const;
    virtual void focusFirst();
    /// From the last field of a page to the first of the next; false from any other place.
    bool moveToNextPage(const QWidget* from);

  signals:
    void edited();

  protected:
    explicit RecordEditor(QObject* parent) : QObject(parent) {}

    void setWidget(QWidget* widget) { widget_ = widget; }
    /// In the order in which the fields are typed.
    void add(Field* field);
    [[nodiscard]] Field* fieldAt(std::size_t place) const { return fields_.at(place); }
    void focus(Field* field);

  private:
    std::vector<Field*> fields_;
    QWidget* widget_ = nullptr;
};

}  // namespace winvrx
