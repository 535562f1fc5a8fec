#pragma once

#include "foundation/desk/list_commands.h"
#include "output/labels/label_text.h"

namespace winvrx {

/// The catalogue of the texts of the selected company's labels. Where none is on record it shows
/// the default one, and records it with the first change.
class CriarEtiqueta : public ListCommands<LabelText> {
  public:
    explicit CriarEtiqueta(const Workplace& at);

    [[nodiscard]] std::string newRecordTitle() const override { return "Nova etiqueta"; }
    /// The lowest free number, which begins the text too.
    [[nodiscard]] LabelText freshRecord() const override;
    [[nodiscard]] Findings<LabelText> wrongIn(const LabelText& typed,
                                              const LabelText& before) const override;

    /// Whether the catalogue before the last change is still there.
    [[nodiscard]] bool canUndo() const { return canUndo_; }
    /// "Desfazer": the catalogue before the last change comes back. Asks first.
    [[nodiscard]] bool undo();

  protected:
    [[nodiscard]] Lines read() const override;
    void write(const Lines& lines) override;
    void reread() override;
    [[nodiscard]] ListRow rowOf(const LabelText& label) const override;
    [[nodiscard]] LabelText completed(const LabelText& typed) const override;
    [[nodiscard]] bool requireAcceptable(const LabelText& typed, const Line* before) override;

  private:
    bool canUndo_ = false;
};

/// How many lines a text has, and which sheets have room for them; a warning where one has not.
[[nodiscard]] Hint labelTextHint(std::string_view shown, Entry entry);

}  // namespace winvrx
