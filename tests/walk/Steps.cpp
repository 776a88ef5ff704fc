#include "Steps.h"

#include "KeyPress.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryFile>
#include <QTextStream>
#include <linux/input-event-codes.h>

void say(const QString &line)
{
    static QTextStream out(stdout);
    out << line << Qt::endl;
}

void giveUp(const QString &step)
{
    say(QStringLiteral("failed: ") + step);
    std::exit(1);
}

void require(bool condition, const QString &step)
{
    if (!condition)
        giveUp(step);
    say(QStringLiteral("- ") + step);
}

QString runDefaults(const QStringList &arguments)
{
    QProcess defaults;
    defaults.start(qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/bin/lumaroo-defaults"), arguments);
    if (!defaults.waitForFinished() || defaults.exitCode() != 0)
        giveUp(QStringLiteral("lumaroo-defaults %1: %2")
                   .arg(arguments.join(u' '), QString::fromUtf8(defaults.readAllStandardError())));
    return QString::fromUtf8(defaults.readAllStandardOutput()).trimmed();
}

void save(const QImage &picture, const QString &folder, const QString &name)
{
    if (picture.isNull() || !picture.save(folder + u'/' + name + QStringLiteral(".png")))
        giveUp(QStringLiteral("screenshot ") + name);
}

void storeOutside(const QByteArray &entries)
{
    QTemporaryFile file;
    if (!file.open())
        giveUp(QStringLiteral("a file to import"));
    file.write("<plist version=\"1.0\"><dict>" + entries + "</dict></plist>");
    file.close();
    runDefaults({QStringLiteral("--notify"), QStringLiteral("import"), file.fileName()});
}

void quit(SettingsProgram &settings)
{
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    require(settings.exitStatus() == 0, QStringLiteral("the settings quit"));
}
