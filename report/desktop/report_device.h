#pragma once

#include "report/report_engine.h"

#include <QSizeF>

#include <memory>

class QPainter;

namespace winvrx {

/// Where the pages of a run go. All functions throw Fault.
///
/// Destroyed before finish(), a PDF leaves no file behind, while a printer is sent the pages drawn
/// so far: pages already printed stay printed.
class ReportDevice {
  public:
    virtual ~ReportDevice() = default;

    /// A painter on a fresh sheet, in the layout's units. Valid until the next call.
    [[nodiscard]] virtual QPainter& nextPage() = 0;
    /// Delivers the pages. Without a page there is nothing to deliver, and no file.
    virtual void finish() = 0;
};

/// The device that the request asks for: Printer, or PdfFile at its path. `page` in millimetres.
/// Throws ReportFault where no printer, or not this one, is installed.
[[nodiscard]] std::unique_ptr<ReportDevice> openDevice(const ReportRequest& request, QSizeF page);

}  // namespace winvrx
