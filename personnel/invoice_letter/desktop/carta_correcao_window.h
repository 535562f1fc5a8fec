#pragma once

#include "foundation/desk/command.h"
#include "foundation/widgets/desktop/screen_window.h"
#include "report/report_request.h"

class QLabel;
class QTreeWidget;

namespace winvrx {

class CartaCorrecaoImprime;
class ReportEngine;

/// The window of the correction letters: the files of a folder at the left, the letter at the
/// right. `command` outlives it.
class CartaCorrecaoWindow : public ScreenWindow {
    Q_OBJECT

  public:
    explicit CartaCorrecaoWindow(CartaCorrecaoImprime& command, QWidget* parent = nullptr);

  private:
    [[nodiscard]] QWidget* buildBody();
    void buildCommands();
    void chooseFolder();
    void print(ReportOutput output);
    void showFiles();
    void showLetter();

    CartaCorrecaoImprime& command_;
    QTreeWidget* files_ = nullptr;
    QLabel* heading_ = nullptr;
    QLabel* details_ = nullptr;
};

/// Opens the correction letters on the folder of the user's downloads, and returns when the window
/// is closed.
void openCorrectionLetters(const Workplace& at, ReportEngine& engine, QWidget* parent);

}  // namespace winvrx
