#pragma once

class QApplication;

namespace winvrx {

/// Name, language, look and icon of the program: the same for main() and the example.
void setUpDesktop(QApplication& application);

}  // namespace winvrx
