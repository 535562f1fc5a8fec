#pragma once

#include "foundation/desk/browser.h"
#include "foundation/desk/text_editor.h"
#include "foundation/files/file_system.h"

namespace winvrx {

/// A window of the program, for each text one, that shows and prints it.
class TextViewer final : public TextEditor {
  public:
    /// Both outlive this object.
    TextViewer(const FileSystem& files, Browser& browser) : files_(files), browser_(browser) {}
    [[nodiscard]] bool open(const std::filesystem::path& file) override;

  private:
    const FileSystem& files_;
    Browser& browser_;
};

/// The editor that the desktop opens text files with: notepad.exe on Windows, elsewhere the handler
/// of plain text through xdg-open. Where there is none, the program's own viewer.
class DesktopTextEditor final : public TextEditor {
  public:
    DesktopTextEditor(const FileSystem& files, Browser& browser) : viewer_(files, browser) {}
    [[nodiscard]] bool open(const std::filesystem::path& file) override;

  private:
    TextViewer viewer_;
};

}  // namespace winvrx
