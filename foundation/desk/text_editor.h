#pragma once

#include <filesystem>

namespace winvrx {

/// The desktop's editor, in which text reports are shown and from which they are printed.
class TextEditor {
  public:
    virtual ~TextEditor() = default;

    /// Shows the text file and returns without waiting. False when it could not be shown.
    [[nodiscard]] virtual bool open(const std::filesystem::path& file) = 0;
};

}  // namespace winvrx
