#include "report/desktop/calibration_window.h"

#include "foundation/widgets/desktop/look.h"
#include "report/desktop/scale_panel.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace winvrx {

CalibrationWindow::CalibrationWindow(PrintCalibration& calibration, const QString& subtitle,
                                     const QString& paper, QWidget* parent)
    : ScreenWindow(QStringLiteral("calibracao"), QStringLiteral("Escala e calibração"), parent),
      calibration_(calibration) {
    auto* body = new QWidget(this);
    auto* column = new QVBoxLayout(body);
    look::layOutBody(*column);
    scale_ = new ScalePanel(calibration_, paper, body);
    column->addWidget(scale_);
    setBody(body);
    setSubtitle(subtitle);
    setState(QStringLiteral("Cada comando é gravado na hora."));
    connect(scale_, &ScalePanel::done, this, &CalibrationWindow::setState);
    QPushButton* close =
        addClosingButton(QStringLiteral("&Sair"), QStringLiteral("calibracao.close"));
    connect(close, &QPushButton::clicked, this, &CalibrationWindow::reject);
}

bool CalibrationWindow::mayClose() {
    return !scale_->hasTyped() || calibration_.confirmDiscarding();
}

}  // namespace winvrx
