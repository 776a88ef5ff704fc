#include "SettingsProgram.h"

#include "Wait.h"

#include "platform/foundation/preferences/NSUserDefaults.h"

namespace {

constexpr int picturesUntilSettled = 8; // taken 10 ms or more apart

QImage picture()
{
    return pictureOfWindow(activeWindow());
}

} // namespace

SettingsProgram::SettingsProgram(const QStringList &arguments) : HostProgram(arguments) { }

QString SettingsProgram::builtPane()
{
    return qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/Lumaroo.prefPane");
}

void SettingsProgram::forgetWhatWasSeen()
{
    NSUserDefaults::standardUserDefaults()->setPersistentDomainForName(
        {}, QStringLiteral("com.apple.systempreferences"));
}

bool SettingsProgram::waitForWindows(int count) const
{
    return waitUntil([&] {
        const QList<DesktopWindow> shown = windows();
        return shown.size() == count && activeWindow() == shown.last().id;
    });
}

QImage SettingsProgram::settledPicture() const
{
    QImage last;
    int unchanged = 0;
    waitUntil([&] {
        const QImage now = picture();
        unchanged = now == last ? unchanged + 1 : 0;
        last = now;
        return unchanged == picturesUntilSettled;
    });
    return last;
}

QImage SettingsProgram::pictureAfterChangeFrom(const QImage &before) const
{
    if (!waitUntil([&] { return picture() != before; }))
        return {};
    return settledPicture();
}
