#pragma once

#include "output/cards/cartao.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QLabel;

namespace winvrx {

class OptionGroup;
class OutputChoice;
class Field;

/// The choices of the printing screen: where to, how many at a time, how the card is fed and comes
/// out, and whether its header is printed.
class PrintChoicesBox : public QWidget {
    Q_OBJECT

  public:
    explicit PrintChoicesBox(const PrintChoices& choices, QWidget* parent = nullptr);

    [[nodiscard]] PrintChoices choices() const;
    /// Without changed().
    void showChoices(const PrintChoices& choices);

  signals:
    void changed();

  protected:
    /// The picture is painted in the palette's colours.
    void changeEvent(QEvent* event) override;

  private:
    [[nodiscard]] QWidget* buildSheetExitPicture();
    /// How the sheets of the chosen option go back into the tray.
    void showSheetExit();
    [[nodiscard]] QWidget* buildHeaderChoice();
    [[nodiscard]] QWidget* buildPrinterTrays();
    void connectAll();

    OutputChoice* output_;
    OptionGroup* mode_;
    OptionGroup* tray_;
    OptionGroup* sheetExit_;
    QLabel* picture_ = nullptr;
    QLabel* pictureText_ = nullptr;
    QCheckBox* printHeader_ = nullptr;
    std::array<Field*, 3> trays_{};
};

}  // namespace winvrx
