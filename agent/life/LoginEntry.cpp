#include "agent/life/LoginEntry.h"

#include "platform/foundation/system/UserFolders.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace {

QString loginFolder()
{
    return userConfigurationFolder() + QStringLiteral("/autostart");
}

/// A text as the value of an entry's key.
QString entryText(QString text)
{
    return text.replace(u'\\', QStringLiteral("\\\\"))
        .replace(u'\n', QStringLiteral("\\n"))
        .replace(u'\r', QStringLiteral("\\r"))
        .replace(u'\t', QStringLiteral("\\t"));
}

/// A program as one argument of a command line, whatever its path holds.
QString commandLine(QString program)
{
    for (const QChar special : QStringLiteral("\\\"`$"))
        program.replace(special, QStringLiteral("\\") + special);
    return u'"' + program.replace(u'%', QStringLiteral("%%")) + u'"';
}

QByteArray entryFor(const QString &program)
{
    return QStringLiteral("[Desktop Entry]\n"
                          "Type=Application\n"
                          "Name=Lumaroo\n"
                          "Comment=Choose and act on windows from the keyboard\n"
                          "Comment[de]=Fenster mit der Tastatur auswählen und bedienen\n"
                          "Icon=com.quorvane.LumarooSettings\n"
                          "TryExec=%1\n"
                          "Exec=%2\n"
                          "NoDisplay=true\n"
                          "StartupNotify=false\n")
        .arg(entryText(program), entryText(commandLine(program)))
        .toUtf8();
}

QString writeEntry(const QString &program)
{
    if (!QDir().mkpath(loginFolder()))
        return QStringLiteral("cannot make the folder %1").arg(loginFolder());
    QSaveFile file(loginEntryPath());
    if (!file.open(QIODevice::WriteOnly) || file.write(entryFor(program)) < 0 || !file.commit())
        return QStringLiteral("cannot write %1: %2").arg(loginEntryPath(), file.errorString());
    return {};
}

QString removeEntry()
{
    QFile file(loginEntryPath());
    if (file.remove() || !file.exists())
        return {};
    return QStringLiteral("cannot remove %1: %2").arg(loginEntryPath(), file.errorString());
}

} // namespace

QString loginEntryPath()
{
    return loginFolder() + QStringLiteral("/com.quorvane.LumarooAgent.desktop");
}

QString setStartAtLogin(bool on, const QString &program)
{
    return on ? writeEntry(program) : removeEntry();
}
