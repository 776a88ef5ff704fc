// An update that waits is installed when the real settings are started the next time, by the bundle's real installer.

#include "KTXConstants.h"
#include "RunningPrograms.h"
#include "ScreenReader.h"
#include "UpdatableProduct.h"
#include "Wait.h"

#include <QFile>

namespace {

class AWaitingUpdate : public UpdatableProduct
{
protected:
    AWaitingUpdate() { storeOutside(KTXFirstLaunch, true); }

    void startSettings(const QStringList &arguments)
    {
        settings = std::make_unique<SettingsProgram>(arguments);
        ASSERT_TRUE(settings->waitForWindows(1));
    }
    void expectShown(const QString &version)
    {
        EXPECT_EQ(settings->windows().value(0).title, "Lumaroo");
        EXPECT_TRUE(reader.waitForText(settings->processId(), version)) << settings->processId();
    }
    void replaceInstaller(const QByteArray &script) const
    {
        const QString path = pane() + "/Contents/Resources/installer";
        ASSERT_TRUE(QFile::remove(path));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\n" + script);
        ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    ScreenReader reader;
    std::unique_ptr<SettingsProgram> settings;
};

} // namespace

TEST_F(AWaitingUpdate, isInstalledBeforeThePaneIsOpened)
{
    letUpdateWait(101);
    startSettings({pane()});
    EXPECT_EQ(installedVersion(), 101);
    expectShown("Version 1.1 (101)");
    EXPECT_TRUE(processesOf(launcher()).isEmpty()) << "nothing older was loaded";
}

TEST_F(AWaitingUpdate, leavesTheOldBundleAsideUntilTheStartAfter)
{
    letUpdateWait(101);
    startSettings({pane()});
    EXPECT_EQ(beside().size(), 1) << "the installer is a program of the old bundle's";
    settings.reset();
    startSettings({pane()});
    EXPECT_TRUE(waitUntil([this] { return beside().isEmpty(); })) << beside().join(u' ').toStdString();
    expectShown("Version 1.1 (101)");
}

TEST_F(AWaitingUpdate, isInstalledBeforeTheMenuEntryOpensThePane)
{
    letUpdateWait(101);
    startSettings({});
    EXPECT_EQ(settings->windows().value(0).title, "Lumaroo");
    EXPECT_EQ(installedVersion(), 101);
    expectShown("Version 1.1 (101)");
}

TEST_F(AWaitingUpdate, thatIsBrokenGoesAndTheOldPaneOpens)
{
    letUpdateWait(101);
    spoil(places().archive());
    startSettings({pane()});
    EXPECT_EQ(installedVersion(), 100);
    EXPECT_EQ(beside(), QStringList());
    expectShown("Version 1.0 (100)");
}

TEST_F(AWaitingUpdate, whoseInstallerFailsOrIsMissingLeavesTheOldPane)
{
    letUpdateWait(101);
    replaceInstaller("kill -9 $$\n");
    startSettings({pane()});
    expectShown("Version 1.0 (100)");
    settings.reset();
    ASSERT_TRUE(QFile::remove(pane() + "/Contents/Resources/installer"));
    startSettings({pane()});
    expectShown("Version 1.0 (100)");
    EXPECT_TRUE(waitingUpdate(places()));
}

TEST_F(AWaitingUpdate, anInstallerIsNotStartedWhereNothingStandsBeside)
{
    replaceInstaller("touch \"$0-was-started\"\n");
    startSettings({pane()});
    expectShown("Version 1.0 (100)");
    EXPECT_FALSE(QFile::exists(pane() + "/Contents/Resources/installer-was-started"));
}
