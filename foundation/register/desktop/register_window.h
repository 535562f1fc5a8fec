#pragma once

#include "foundation/desk/list_screen.h"
#include "foundation/register/desktop/register_list.h"
#include "foundation/widgets/desktop/record_editor.h"
#include "foundation/widgets/desktop/screen_window.h"

#include <functional>
#include <optional>

class QToolButton;

namespace winvrx {

/// The window of a register: the list at the left, the selected record's form at the right, and
/// the commands include, change and delete.
///
/// The form shows either a record of the list or, with none selected, the next record to be
/// included. Incluir leads to an empty form and, once something is typed there, records it; Gravar
/// records whichever the form shows. The key Del deletes from the list only. Before the form turns
/// to another record, typed text is asked about.
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
        QString include = QStringLiteral("Incluir");
        QString change = QStringLiteral("Alterar");
    };

    /// `list` outlives the window.
    RegisterWindow(ListScreen& list, const Texts& texts, QWidget* parent);

    /// The list's part of the window: a third, or more beside a form that can spare it.
    enum class ListRoom { Third, Wide };

    /// To be called once, then `openAt`.
    void assemble(RecordEditor* form, QWidget* underList, ListRoom room = ListRoom::Third);
    /// Reads the list and shows the record at `position`, with the focus in the list; nullopt turns
    /// to a new record, with the focus in the form.
    void openAt(std::optional<std::size_t> position);
    void focusForm() { form_->focusFirst(); }
    [[nodiscard]] std::optional<std::size_t> current() const { return current_; }
    /// Runs a command on the list unless typed text stays; the record stays selected.
    void runOnList(const std::function<bool()>& command);

    [[nodiscard]] bool mayClose() override;

    void keyPressEvent(QKeyEvent* event) override;

  private:
    void addCommands(const Texts& texts);
    /// Fills the list and shows the record at `position`.
    void refresh(std::optional<std::size_t> position);
    /// After a command: the record is still `shown`, or the one in its place.
    void refreshAt(const std::string& shown);
    /// After a command that was not carried out. Where it failed the rows show what is on disk, but
    /// for text that is typed: that stays over the line for which it was meant.
    void recover();
    void showState();
    [[nodiscard]] std::string currentBytes() const;
    void turnTo(std::optional<std::size_t> position);
    void choose(std::size_t position);
    void startNew();
    void include();
    void includeTyped();
    void change();
    void remove();
    void save();

    ListScreen& commands_;
    RegisterList* list_;
    RecordEditor* form_ = nullptr;
    QToolButton* change_ = nullptr;
    QToolButton* remove_ = nullptr;
    std::optional<std::size_t> current_;
};

}  // namespace winvrx
