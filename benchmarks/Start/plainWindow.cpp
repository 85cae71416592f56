#include "benchmarks/support/PlainRow.h"

#include <QApplication>

// The smallest program that shows a window with the number of rows in its argument, or without an
// argument an empty window of the same size.
int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QWidget *window = nullptr;
    if (argc > 1)
        window = Benchmarks::plainWindow(QByteArray(argv[1]).toInt(), QString());
    else
        window = new QWidget;
    window->resize(640, 480);
    window->show();
    return QApplication::exec();
}
