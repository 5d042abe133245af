// Shows an empty window, which is the least that a program with a window can do.

#include "FirstPaint.h"

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    const korvane::bench::EndAtFirstPaint end(
        [&window](const QWidget& widget) { return &widget == &window; });
    window.resize(1200, 760);
    window.show();
    return QApplication::exec();
}
