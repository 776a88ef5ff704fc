#include "SettingsProgram.h"

#include "Wait.h"

namespace {

QImage picture()
{
    return pictureOfWindow(activeWindow());
}

} // namespace

QString SettingsProgram::buildFolder()
{
    return qEnvironmentVariable("LUMAROO_BUILD");
}

QString SettingsProgram::panePath()
{
    return buildFolder() + QStringLiteral("/Lumaroo.prefPane");
}

SettingsProgram::SettingsProgram(const QStringList &arguments)
{
    process_.start(buildFolder() + QStringLiteral("/Settings.app/Contents/Linux/lumaroo-settings"), arguments);
    process_.waitForStarted();
}

SettingsProgram::~SettingsProgram()
{
    if (!isRunning())
        return;
    process_.kill();
    process_.waitForFinished();
}

QList<DesktopWindow> SettingsProgram::windows() const
{
    return desktopWindowsOfProcess(processID());
}

bool SettingsProgram::waitForWindows(int count)
{
    return waitUntil([&] {
        const QList<DesktopWindow> shown = windows();
        return shown.size() == count && activeWindow() == shown.last().id;
    });
}

QImage SettingsProgram::settledPicture()
{
    // A blinking text cursor never settles: the same picture three times in a row within its rhythm is enough.
    QImage last;
    int same = 0;
    waitUntil([&] {
        const QImage now = picture();
        same = now == last ? same + 1 : 0;
        last = now;
        return same >= 8;
    });
    return last;
}

QImage SettingsProgram::pictureAfterChangeFrom(const QImage &before)
{
    if (!waitUntil([&] { return picture() != before; }))
        return {};
    return settledPicture();
}

bool SettingsProgram::isRunning() const
{
    return process_.state() != QProcess::NotRunning;
}

int SettingsProgram::waitForExit()
{
    waitUntil([this] { return !isRunning(); });
    return process_.state() == QProcess::NotRunning && process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}

QString SettingsProgram::standardError()
{
    errorOutput_ += process_.readAllStandardError();
    return QString::fromUtf8(errorOutput_);
}
