#pragma once

#include "foundation/desk/text_editor.h"
#include "foundation/files/file_system.h"

namespace winvrx {

/// A window of the program, for each text one, that shows and prints it.
class TextViewer final : public TextEditor {
  public:
    /// The files outlive this object.
    explicit TextViewer(const FileSystem& files) : files_(files) {}
    [[nodiscard]] bool open(const std::filesystem::path& file) override;

  private:
    const FileSystem& files_;
};

/// The editor that the desktop opens text files with: notepad.exe on Windows, elsewhere the handler
/// of plain text through xdg-open. Where there is none, the program's own viewer.
class DesktopTextEditor final : public TextEditor {
  public:
    explicit DesktopTextEditor(const FileSystem& files) : viewer_(files) {}
    [[nodiscard]] bool open(const std::filesystem::path& file) override;

  private:
    TextViewer viewer_;
};

}  // namespace winvrx
