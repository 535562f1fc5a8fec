#pragma once

#include "foundation/widgets/desktop/register_list.h"
#include "foundation/widgets/desktop/screen_window.h"

#include <optional>
#include <vector>

class QToolButton;

namespace winvrx {

/// The window of a register: the list at the left, the selected record's form at the right, and
/// the commands include, change and delete.
///
/// The form shows either a record of the list or, with none selected, the next record to be
/// included. Incluir leads to an empty form and from there records it; Gravar records whichever
/// the form shows. Before the form turns to another record, typed text is asked about.
class RegisterWindow : public ScreenWindow {
    Q_OBJECT

  protected:
    struct Texts {
        QString screen;  ///< prefix of the object names: "empresa"
        QString title;
        QString listTitle;
        QString searchHint;
        QString emptyList;
        QString emptyAction;
        QStringList headings;
    };

    RegisterWindow(const Texts& texts, QWidget* parent);

    /// The list's part of the window: a third, or more beside a form that can spare it.
    enum class ListRoom { Third, Wide };

    /// To be called once, at the end of the derived constructor.
    void assemble(QWidget* form, QWidget* underList, ListRoom room = ListRoom::Third);
    /// Fills the list and shows the record at `position`; nullopt turns to a new record.
    void refresh(std::optional<std::size_t> position);
    /// To be called when something was typed.
    void showState();
    [[nodiscard]] std::optional<std::size_t> current() const { return current_; }

    [[nodiscard]] virtual std::vector<RegisterList::Row> rows() const = 0;
    /// Fills the form with the record, or with a fresh one.
    virtual void showRecord(std::optional<std::size_t> position) = 0;
    [[nodiscard]] virtual bool isDirty() const = 0;
    virtual void focusForm() = 0;
    [[nodiscard]] virtual QString newRecordTitle() const = 0;

    /// The screen's commands. True when carried out.
    [[nodiscard]] virtual bool includeTyped() = 0;
    [[nodiscard]] virtual bool changeTyped(std::size_t position) = 0;
    [[nodiscard]] virtual bool removeRecord(std::size_t position) = 0;
    [[nodiscard]] virtual bool mayDiscardTyped() = 0;

    [[nodiscard]] bool mayClose() override;

  private:
    void addCommands();
    void turnTo(std::optional<std::size_t> position);
    void choose(std::size_t position);
    void startNew();
    /// As if the field in hand were left: what was typed takes its full form.
    void finishField();
    void include();
    void change();
    void remove();
    void save();

    RegisterList* list_;
    QWidget* form_ = nullptr;
    QToolButton* change_ = nullptr;
    QToolButton* remove_ = nullptr;
    std::optional<std::size_t> current_;
};

}  // namespace winvrx
