#pragma once

#include "foundation/widgets/desktop/field_box.h"

#include <cstddef>
#include <string_view>

namespace winvrx {

/// What a field watches for while it is typed in.
enum class FieldCheck { None, Date, Cnpj, Cpf, CnpjOrCpf, Pis, Occupation, PostalCode, Money };

/// A text field that says under it what it finds in what the operator types; text that was only
/// shown is not judged. Dates, CPFs, postal codes and amounts are brought into their full form when
/// the field is left.
[[nodiscard]] TextField* checkedField(const QString& caption, const QString& objectName,
                                      std::size_t width, FieldCheck check, QWidget* parent);

/// Shows what the system fills in, when `readOnly`: no frame, never in the way of the keyboard.
void setReadOnly(TextField& field, bool readOnly = true);

/// The caption with its Alt letter marked: the first `letter` in it, whatever its case. A caption
/// without the letter comes back as it is.
[[nodiscard]] QString withMnemonic(std::string_view caption, char letter);

}  // namespace winvrx
