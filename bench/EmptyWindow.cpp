// The floor of HostBench: the least that a program with a window of this toolkit does.

#include <QApplication>
#include <QWidget>

int main(int argumentCount, char **arguments)
{
    QApplication application(argumentCount, arguments);
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Window, QColor(0x23, 0x25, 0x28)); // the colour by which HostBench sees that it is drawn
    QApplication::setPalette(palette);
    QWidget window;
    window.resize(820, 640);
    window.show();
    return QApplication::exec();
}
