#include "KTXLoginEntry.h"

#include "platform/foundation/system/UserFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSaveFile>

namespace {

constexpr qint64 largestEntry = 64 * 1024;

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

QString textOfEntry(const QString &value)
{
    static const QHash<QChar, QChar> signs{{u'n', u'\n'}, {u'r', u'\r'}, {u't', u'\t'}, {u's', u' '}};
    QString text;
    for (qsizetype place = 0; place < value.size(); ++place) {
        const bool isEscaped = value.at(place) == u'\\' && place + 1 < value.size();
        const QChar character = value.at(isEscaped ? ++place : place);
        text += isEscaped ? signs.value(character, character) : character;
    }
    return text;
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
                          "Comment[pt_BR]=Escolher e controlar janelas com o teclado\n"
                          "Comment[pl]=Wybieranie i obsługa okien za pomocą klawiatury\n"
                          "Comment[ja]=キーボードでウィンドウを選択して操作します\n"
                          "Comment[de]=Fenster mit der Tastatur auswählen und bedienen\n"
                          "Comment[fr]=Choisir des fenêtres et agir sur elles au clavier\n"
                          "Comment[es]=Elegir ventanas y actuar sobre ellas con el teclado\n"
                          "Comment[it]=Scegliere le finestre e agire su di esse con la tastiera\n"
                          "Icon=com.quorvane.LumarooSettings\n"
                          "TryExec=%1\n"
                          "Exec=%2\n"
                          "NoDisplay=true\n"
                          "StartupNotify=false\n")
        .arg(entryText(program), entryText(commandLine(program)))
        .toUtf8();
}

/// The text of an entry's key; empty where it has none.
QString entryValue(const QByteArray &content, const QByteArray &key)
{
    for (const QByteArray &line : content.split('\n')) {
        const qsizetype sign = line.indexOf('=');
        if (sign >= 0 && line.first(sign).trimmed() == key)
            return textOfEntry(QString::fromUtf8(line.sliced(sign + 1).trimmed()));
    }
    return {};
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

bool startsAtLogin()
{
    QFile file(loginEntryPath());
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray content = file.read(largestEntry);
    const QFileInfo program(entryValue(content, "TryExec"));
    const bool isHidden = entryValue(content, "Hidden") == QStringLiteral("true");
    const bool isOff = entryValue(content, "X-GNOME-Autostart-enabled") == QStringLiteral("false");
    return !isHidden && !isOff && program.isFile() && program.isExecutable();
}

QString setStartAtLogin(bool on, const QString &program)
{
    return on ? writeEntry(program) : removeEntry();
}
