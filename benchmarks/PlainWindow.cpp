// The least program with a window: one line of text. With an argument, it does without OpenGL,
// which a window otherwise loads in case it will show some.

#include <QApplication>
#include <QLabel>
#include <QMainWindow>

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets, argc > 1);
    const QApplication application(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QLabel(QStringLiteral("text")));
    window.showMaximized();
    return QApplication::exec();
}
