// Leaves a picture of each page of the settings, of the window without its frame.
// Usage: pages BUILD-FOLDER PICTURE-FOLDER NAME [--maximised] [ARGUMENT...], inside a session with a bus, a display and
// a window manager. The arguments are the settings' own: --theme dark, -reverse. tests/walk/every-page does it for all
// themes, sizes and languages.

#include "KeyPress.h"
#include "SettingsProgram.h"
#include "Steps.h"

#include <QApplication>
#include <QDir>
#include <linux/input-event-codes.h>

namespace {

const QStringList pages = {QStringLiteral("general"), QStringLiteral("keys"), QStringLiteral("behaviour"),
    QStringLiteral("updates"), QStringLiteral("help"), QStringLiteral("about")};

void showPages(SettingsProgram &settings, const QString &folder, const QString &name)
{
    for (int page = 0; page < pages.size(); ++page) {
        if (page > 0)
            pressKey(KEY_TAB, {KEY_LEFTCTRL});
        save(settings.settledPicture(), folder, QStringLiteral("%1-%2-%3").arg(name).arg(page).arg(pages[page]));
    }
}

} // namespace

int main(int argumentCount, char **arguments)
{
    QStringList given;
    for (int index = 1; index < argumentCount; ++index)
        given += QFile::decodeName(arguments[index]);
    if (given.size() < 3)
        giveUp(QStringLiteral("usage: pages BUILD-FOLDER PICTURE-FOLDER NAME [--maximised] [ARGUMENT...]"));
    // The screen is pictured, which the scale of the settings must not change.
    const QByteArray scale = qgetenv("QT_SCALE_FACTOR");
    qunsetenv("QT_SCALE_FACTOR");
    QApplication application(argumentCount, arguments);
    qputenv("QT_SCALE_FACTOR", scale.isEmpty() ? "1" : scale);
    qputenv("LUMAROO_BUILD", QDir(given.takeFirst()).absolutePath().toUtf8());
    const QString folder = QDir(given.takeFirst()).absolutePath();
    const QString name = given.takeFirst();
    const bool isMaximised = given.removeAll(QStringLiteral("--maximised")) > 0;
    QDir().mkpath(folder);
    SettingsProgram settings(given + QStringList{SettingsProgram::builtPane()});
    require(settings.waitForWindows(1), QStringLiteral("the settings open: ") + name);
    if (isMaximised)
        maximise(settings.windows().first().id);
    showPages(settings, folder, name);
    quit(settings);
    return 0;
}
