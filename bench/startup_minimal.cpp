// The least that a Qt Widgets program of this kind can be: one window that shows one picture.
//
//   bench_minimal [text]    with one line of text, too, for which Qt reads its fonts

#include "firstpaint.h"

#include <QApplication>
#include <QLabel>
#include <QPixmap>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QLabel window;
    window.setPixmap(QPixmap(QStringLiteral(":/iconoption/icons/stock-ved.jpg")));
    window.setScaledContents(true);
    window.setFixedSize(552, 484);
    if (argc > 1)
        (new QLabel(QStringLiteral("File List"), &window))->move(36, 32);
    const EndAtFirstPaint end(window);
    window.show();
    return QApplication::exec();
}
