#include "report/desktop/calibration_window.h"

#include "foundation/widgets/desktop/look.h"
#include "report/desktop/scale_panel.h"

namespace winvrx {

CalibrationWindow::CalibrationWindow(PrintCalibration& calibration, const QString& subtitle,
                                     const QString& paper, QWidget* parent)
    : ScreenWindow(QStringLiteral("calibracao"), QStringLiteral("Escala e calibração"), parent) {
    scale_ = new ScalePanel(calibration, paper, this);
    setBody({{scale_}});
    setSubtitle(subtitle);
    setState(QStringLiteral("Cada comando é gravado na hora."));
    connect(scale_, &ScalePanel::done, this, &CalibrationWindow::setState);
    addLeavingButton("calibracao.close");
}

bool CalibrationWindow::mayClose() {
    return scale_->confirmLeaving();
}

}  // namespace winvrx
