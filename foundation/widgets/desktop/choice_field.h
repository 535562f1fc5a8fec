#pragma once

#include "foundation/widgets/desktop/field_box.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

class QComboBox;

namespace winvrx {

/// A field that takes one of a few stored codes and shows each with its list text.
class ChoiceField : public FieldBox {
    Q_OBJECT

  public:
    struct Choice {
        std::string code;
        std::string text;
    };
    /// The place of a stored text among the choices; -1 when it is none of them.
    using Find = std::function<int(std::string_view)>;

    ChoiceField(const QString& caption, const QString& objectName,
                const std::vector<Choice>& choices, Find find, QWidget* parent);

    void setStored(const std::string& text);
    /// The chosen code. A text that still means the choice shown comes back as it was stored, and
    /// so does one that is no choice at all.
    [[nodiscard]] std::string stored() const;
    [[nodiscard]] QComboBox* box() const { return box_; }

  signals:
    void edited();

  private:
    ChoiceField(QComboBox* box, const QString& caption, QWidget* parent);

    QComboBox* box_;
    Find find_;
    std::string stored_;
};

}  // namespace winvrx
