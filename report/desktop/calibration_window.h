#pragma once

#include "foundation/widgets/desktop/screen_window.h"

namespace winvrx {

class PrintCalibration;
class ScalePanel;

/// The scale of one printer and paper in a window of its own. `calibration` outlives it.
class CalibrationWindow : public ScreenWindow {
    Q_OBJECT

  public:
    /// `subtitle` says what is printed; `paper` ends the line that names the printer.
    CalibrationWindow(PrintCalibration& calibration, const QString& subtitle, const QString& paper,
                      QWidget* parent);

  protected:
    bool mayClose() override;

  private:
    ScalePanel* scale_;
};

}  // namespace winvrx
