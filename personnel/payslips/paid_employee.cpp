#include "personnel/payslips/paid_employee.h"

namespace winvrx {

std::string PaperHeading::period() const {
    const std::string title = monthTitle(month);
    return run == PayrollRun::Month ? title : title + " · " + std::string(captionOf(run));
}

std::vector<const PayLine*> paidLines(const PaySheet& sheet) {
    std::vector<const PayLine*> lines;
    for (const PayLine& line : sheet.lines)
        if (line.amount.cents != 0) lines.push_back(&line);
    return lines;
}

}  // namespace winvrx
