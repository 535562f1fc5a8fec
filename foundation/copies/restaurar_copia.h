#pragma once

#include "foundation/copies/safety_copies.h"
#include "foundation/desk/command.h"

#include <optional>
#include <string>
#include <vector>

namespace winvrx {

/// How many files of one subject a copy would change.
struct SubjectChange {
    std::string subject;
    int different = 0;
    int missing = 0;
    int surplus = 0;

    /// "2 arquivos voltam ao que eram, 1 arquivo é excluído".
    [[nodiscard]] std::string text() const;

    [[nodiscard]] bool operator==(const SubjectChange&) const = default;
};

/// What the screen shows of a copy before it is restored.
struct CopyPreview {
    std::vector<SubjectChange> changes;
    std::string problem;  ///< why it cannot be restored; else empty
};

/// "Cópia do dia" or "Antes de excluir a empresa 02 PADARIA".
[[nodiscard]] std::string originOfCopy(const SafetyCopy& copy);

/// The screen "Restaurar Cópia": the safety copies of the data folder, what each would bring back,
/// and the command that brings one back.
class RestaurarCopia {
  public:
    RestaurarCopia(const Workplace& at, SafetyCopies& copies) : at_(at), copies_(copies) {}

    /// Reads the list of copies again.
    void load();
    /// Newest first.
    [[nodiscard]] const std::vector<SafetyCopy>& copies() const { return list_; }

    /// Compares the copy with the data folder. What fails is logged and told in the preview.
    [[nodiscard]] CopyPreview preview(const CopyName& copy) const;

    /// Brings the copy back after a confirmation; the work month has to be chosen again. The state
    /// replaced is a further copy. True when it was carried out.
    [[nodiscard]] bool restore(const std::optional<CopyName>& copy);

  private:
    Workplace at_;
    SafetyCopies& copies_;
    std::vector<SafetyCopy> list_;
};

}  // namespace winvrx
