// A bare window, up to its first painting: the floors of bench_start. With an argument the window
// shows that word, which makes Qt load its fonts.
#include <QApplication>
#include <QLabel>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.resize(1240, 690);
    if (argc > 1) new QLabel(QString::fromUtf8(argv[1]), &window);
    window.show();
    QApplication::processEvents();
    std::puts("shown");
    std::fflush(stdout);
    std::_Exit(window.isVisible() ? 0 : 1);
}
