// The floor of AgentBench: the least that a program does which hears signals of the session bus and then reads a file.
// Its argument is the file; it writes a line when it is ready, and one after each reading.

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <cstdio>

namespace {

void printLine(const char *line)
{
    std::puts(line);
    std::fflush(stdout);
}

class Reader : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void read()
    {
        QFile file(QCoreApplication::arguments().value(1));
        if (!file.open(QIODevice::ReadOnly) || file.readAll().isEmpty())
            QCoreApplication::exit(1);
        printLine("read");
    }
};

} // namespace

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    QDBusConnection bus = QDBusConnection::sessionBus();
    Reader reader;
    bus.connect({}, QStringLiteral("/raw"), QStringLiteral("com.quorvane.Raw"), QStringLiteral("Signal"), &reader,
        SLOT(read()));
    // With this answer the bus has taken what is observed.
    bus.call(QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")));
    printLine("ready");
    return QCoreApplication::exec();
}

#include "BareBusProgram.moc"
