// An empty window, up to its first painting: the floor of bench_start.
#include <QApplication>
#include <QWidget>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.resize(1240, 690);
    window.show();
    QApplication::processEvents();
    std::puts("shown");
    std::fflush(stdout);
    std::_Exit(window.isVisible() ? 0 : 1);
}
