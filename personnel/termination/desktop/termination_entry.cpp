#include "personnel/termination/desktop/termination_entry.h"

#include "personnel/termination/desktop/rescisao_window.h"

namespace winvrx {

void openTermination(const Workplace& at, ReportEngine& engine,
                     const std::filesystem::path& legalFolder, const Employee& employee,
                     QWidget* parent) {
    Rescisao command(at, legalFolder, employee);
    if (!command.load()) return;
    RescisaoWindow window(command, parent);
    QObject::connect(&window, &RescisaoWindow::pageRequested, &window,
                     [&] { (void)command.preview(engine); });
    window.exec();
}

}  // namespace winvrx
