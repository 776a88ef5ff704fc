#include "InstalledProduct.h"

#include "ProgramResult.h"
#include "RunningPrograms.h"
#include "SeenNotes.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "platform/foundation/propertylists/Description.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QDir>
#include <QSaveFile>

void changeInfo(const QString &bundle, const QVariantMap &changes)
{
    QVariantMap info = NSBundle::infoDictionaryOnDisk(bundle);
    ASSERT_FALSE(info.isEmpty());
    info.insert(changes);
    QSaveFile file(bundle + QStringLiteral("/Contents/Info.plist"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(writeXMLPropertyList(info));
    ASSERT_TRUE(file.commit());
}

void changeVersion(const QString &paneBundle, int version)
{
    const QVariantMap change{{QStringLiteral("CFBundleVersion"), QString::number(version)}};
    changeInfo(paneBundle + QStringLiteral("/Contents/Resources/LumarooAgent.app"), change);
    changeInfo(paneBundle, change);
}

namespace {

/// Damaged settings that a test before has left.
void removeFilesSetAside(const QString &settingsFile)
{
    QDir folder(QFileInfo(settingsFile).path());
    for (const QString &file : folder.entryList({QStringLiteral("*.plist~*")}, QDir::Files))
        folder.remove(file);
}

} // namespace

InstalledProduct::InstalledProduct()
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder_.path()));
    const QString panes = folder_.filePath(QStringLiteral("PreferencePanes"));
    EXPECT_TRUE(QDir().mkpath(panes));
    EXPECT_EQ(runProgram(QStringLiteral("cp"), {QStringLiteral("-a"), SettingsProgram::builtPane(), panes}).status, 0);
    pane_ = QDir(panes).canonicalPath() + QStringLiteral("/Lumaroo.prefPane");
    QFile::remove(settingsFile());
    removeFilesSetAside(settingsFile());
    NSUserDefaults::standardUserDefaults()->setPersistentDomainForName({}, KTXLMAppID);
    SettingsProgram::forgetWhatWasSeen();
    letNotesBeSeen();
}

InstalledProduct::~InstalledProduct()
{
    // The launchers first: they would bring back what is killed after them.
    for (const QString &program :
        {launcher(), HostProgram::builtExecutable(), tutorialProgram(), agentProgram(), agentItself()})
        killProcessesOf(program);
    qputenv("XDG_DATA_HOME", previousData_);
}

QString InstalledProduct::agentProgram() const
{
    return pane_ + QStringLiteral("/Contents/Resources/LumarooAgent.app/Contents/Linux/LumarooAgent");
}

QString InstalledProduct::tutorialProgram() const
{
    return pane_ + QStringLiteral("/Contents/Resources/LumarooTutorial.app/Contents/Linux/LumarooTutorial");
}

void InstalledProduct::install(int version) const
{
    changeVersion(pane_, version);
}

int InstalledProduct::installedVersion() const
{
    return intValue(NSBundle::infoDictionaryOnDisk(pane_).value(QStringLiteral("CFBundleVersion")));
}

QList<pid_t> InstalledProduct::agents() const
{
    return processesOf(agentProgram()) + processesOf(agentItself());
}

QList<pid_t> InstalledProduct::hosts() const
{
    return processesOf(QFileInfo(HostProgram::builtExecutable()).canonicalFilePath());
}

bool InstalledProduct::comesBack(pid_t before) const
{
    return waitUntil([&] {
        const QList<pid_t> running = hosts();
        if (running.size() != 1 || running.first() == before || !processesOf(launcher()).isEmpty())
            return false;
        const QList<DesktopWindow> windows = desktopWindowsOfProcess(running.first());
        return windows.size() == 1 && windows.first().title == QStringLiteral("Lumaroo");
    });
}

bool InstalledProduct::launchersWait(int count) const
{
    return waitUntil([&] { return processesOf(launcher()).size() == count; });
}

bool InstalledProduct::agentStarts() const
{
    return waitUntil([this] { return agents().size() == 1; });
}

bool InstalledProduct::agentEnds() const
{
    return waitUntil([this] { return agents().isEmpty(); });
}

void InstalledProduct::letAgentWrite()
{
    ASSERT_TRUE(written_.open());
    ASSERT_TRUE(QFile::rename(agentProgram(), agentItself()));
    QFile script(agentProgram());
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    const QString line = QStringLiteral("#!/bin/sh\nexec '%1' --foreground > '%2'\n");
    script.write(line.arg(agentItself(), written_.fileName()).toUtf8());
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QStringList InstalledProduct::linesOfAgent()
{
    written_.seek(0);
    return QString::fromUtf8(written_.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

QString InstalledProduct::settingsFile()
{
    return qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/lumaroo/com.quorvane.Lumaroo.plist");
}

void InstalledProduct::storeOutside(const QString &key, const QVariant &value) const
{
    CFPreferencesSetAppValue(key, value, KTXLMAppID);
    EXPECT_TRUE(CFPreferencesAppSynchronize(KTXLMAppID));
}
