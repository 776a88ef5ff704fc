// The floor of HostBench and TutorialBench: the least that a program does which shows something to read in a window of this toolkit.

#include <QApplication>
#include <QLabel>

int main(int argumentCount, char **arguments)
{
    QApplication application(argumentCount, arguments);
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Window, QColor(0x23, 0x25, 0x28)); // the colour by which FirstWindow.h sees that it is drawn
    QApplication::setPalette(palette);
    QLabel window(QStringLiteral("One line of text"));
    window.resize(820, 640);
    window.show();
    return QApplication::exec();
}
