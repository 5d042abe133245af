// A program that starts the toolkit and ends, which is the least that a program with the toolkit can do.

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    return 0;
}
