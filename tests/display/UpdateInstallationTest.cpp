// From the offer to the restart, as its user sees it.

#include "KeyPress.h"
#include "ProgramResult.h"
#include "RunningPrograms.h"
#include "UpdaterOnScreen.h"
#include "Wait.h"

#include "platform/appkit/NSApplication.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "updater/core/Installation.h"
#include "updater/core/linux/BundleExchange.h"

#include <QProgressBar>
#include <linux/input-event-codes.h>

using Kind = UpdateProblem::Kind;

namespace {

class UpdateInstallation : public UpdaterOnScreen
{
protected:
    UpdateInstallation()
    {
        NSApplication::sharedApplication()->setTerminationHandler([this] { ++terminations; });
    }
    ~UpdateInstallation() override { NSApplication::sharedApplication()->setTerminationHandler({}); }

    void offer(const AppcastItem &item)
    {
        tell({item});
        checkForUser();
        ASSERT_TRUE(shows("offer"));
    }
    void expectFailure(const QString &heading)
    {
        ASSERT_TRUE(shows("failure"));
        EXPECT_EQ(text("heading"), heading);
        EXPECT_FALSE(text("detail").isEmpty());
        expectOldBundleAlone();
        pressWithKeyboard(KEY_ENTER);
        EXPECT_TRUE(closes());
    }
    /// One that only writes down what it was given.
    void putLauncher() const
    {
        const QString launcher = bundle() + "/Contents/Resources/launcher";
        write(launcher, "#!/bin/sh\nprintf '%s\\n' \"$@\" >\"$0.new\"\nmv \"$0.new\" \"$0.done\"\n");
        ASSERT_TRUE(QFile::setPermissions(launcher, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    /// Large enough to take its time.
    QByteArray largeArchive() const
    {
        QList<TarEntry> entries = entriesOf(101, keyInInfo());
        entries += {"Sample.prefPane/Contents/Resources/large", TarEntry::File, QByteArray(64 << 20, '.')};
        return tarFile(entries);
    }
    QList<pid_t> waitingInstallers() const
    {
        return processesOf(
            QFileInfo(qEnvironmentVariable("LUMAROO_BUILD") + "/Lumaroo.prefPane/Contents/Resources/installer")
                .canonicalFilePath());
    }

    int terminations = 0;
};

} // namespace

TEST_F(UpdateInstallation, downloadsWhatIsOfferedAndInstallsItWhenTheSettingsEnd)
{
    putInstaller();
    offer(publish(101));
    const qsizetype before = waitingInstallers().size();
    pressWithKeyboard(KEY_ENTER);
    ASSERT_TRUE(shows("ready"));
    EXPECT_EQ(text("heading"), "Lumaroo 101 is ready");
    EXPECT_TRUE(waitingUpdate(places()));
    ASSERT_TRUE(waitUntil([&] { return waitingInstallers().size() == before + 1; }));
    pressWithKeyboard(KEY_ESC);
    EXPECT_TRUE(closes());
    EXPECT_EQ(wholeVersion(), 100);
    EXPECT_EQ(terminations, 0);
    // Its input ends with the settings only; ended otherwise, it has done nothing.
    killProcess(waitingInstallers().last());
}

TEST_F(UpdateInstallation, asksTheSettingsToEndBeforeAnythingIsExchanged)
{
    putInstaller();
    putLauncher();
    offer(publish(101));
    press("install");
    ASSERT_TRUE(shows("ready"));
    int versionWhenAsked = 0;
    NSApplication::sharedApplication()->setTerminationHandler([&] { versionWhenAsked = wholeVersion(); });
    pressWithKeyboard(KEY_ENTER);
    EXPECT_TRUE(waitUntil([&] { return versionWhenAsked != 0; }));
    EXPECT_EQ(versionWhenAsked, 100);
    const QString report = bundle() + "/Contents/Resources/launcher.done";
    EXPECT_TRUE(waitUntil([&] { return QFile::exists(report); }));
    EXPECT_EQ(contentOf(report), bundle().toUtf8() + "\nNo\n");
}

TEST_F(UpdateInstallation, leavesTheOldBundleToSettingsThatStay)
{
    putInstaller();
    putLauncher();
    offer(publish(101));
    const qsizetype before = waitingInstallers().size();
    press("install");
    ASSERT_TRUE(shows("ready"));
    press("installAndRestart");
    ASSERT_TRUE(shows("installedAtEnd")) << "for who keeps the settings open";
    EXPECT_EQ(terminations, 1);
    pressWithKeyboard(KEY_ENTER);
    EXPECT_TRUE(closes());
    EXPECT_EQ(wholeVersion(), 100);
    EXPECT_TRUE(waitingUpdate(places()));
    EXPECT_EQ(waitingInstallers().size(), before + 1) << "for their end";
    killProcess(waitingInstallers().last());
}

TEST_F(UpdateInstallation, saysWhatToDoWhereNothingBringsTheSettingsBack)
{
    putInstaller();
    offer(publish(101));
    press("install");
    ASSERT_TRUE(shows("ready"));
    press("installAndRestart");
    ASSERT_TRUE(shows("installedAtEnd"));
    EXPECT_EQ(wholeVersion(), 100);
    EXPECT_EQ(terminations, 0);
}

TEST_F(UpdateInstallation, saysThatAnotherProcessHasInstalledItMeanwhile)
{
    putInstaller();
    offer(publish(101));
    press("install");
    ASSERT_TRUE(shows("ready"));
    EXPECT_EQ(installWaitingUpdate(bundle()).version, "101");
    press("installAndRestart");
    ASSERT_TRUE(shows("installed"));
    EXPECT_EQ(wholeVersion(), 101);
}

TEST_F(UpdateInstallation, offersWhatWaitsAlreadyAtOnce)
{
    prepare(101);
    tell({publish(101)});
    checkForUser();
    EXPECT_TRUE(shows("ready"));
    EXPECT_EQ(server.requests(), QStringList("GET /appcast.xml"));
}

TEST_F(UpdateInstallation, isHadByTheNextStartWhereTheLastEndBroughtNone)
{
    putInstaller();
    prepare(101);
    // For this process it is another bundle, whose updater is new.
    ASSERT_EQ(runProgram("cp", {"-a", folder(), path("again")}).status, 0);
    const qsizetype before = waitingInstallers().size();
    SUUpdater::updaterForBundle(NSBundle::bundleWithPath(path("again/Sample.prefPane")));
    ASSERT_TRUE(waitUntil([&] { return waitingInstallers().size() == before + 1; }));
    killProcess(waitingInstallers().last());
    EXPECT_EQ(wholeVersion(), 100);
}

TEST_F(UpdateInstallation, isCancelledWhileItDownloads)
{
    AppcastItem item = publish(101);
    item.archive = server.url("/hanging");
    offer(item);
    press("install");
    EXPECT_TRUE(wasAsked("GET /hanging"));
    EXPECT_EQ(page(), "download");
    pressWithKeyboard(KEY_ESC);
    EXPECT_TRUE(closes());
    expectOldBundleAlone();
}

TEST_F(UpdateInstallation, tellsHowMuchHasCome)
{
    AppcastItem item = publish(101);
    item.archive = server.url("/endless");
    item.length = 200'000'000;
    offer(item);
    press("install");
    ASSERT_TRUE(waitUntil([] { return text("text").endsWith(" of 200.0 MB"); })) << text("text").toStdString();
    const auto *bar = window()->findChild<QProgressBar *>("progress");
    EXPECT_EQ(bar->maximum(), 1000);
    press("cancel");
    expectOldBundleAlone();
}

TEST_F(UpdateInstallation, isCancelledWhileItIsPrepared)
{
    offer(publish(101, largeArchive()));
    press("install");
    ASSERT_TRUE(shows("preparing"));
    press("cancel");
    EXPECT_EQ(window(), nullptr);
    expectOldBundleAlone();
}

TEST_F(UpdateInstallation, tellsThatWhatCameIsNotGenuine)
{
    AppcastItem item = publish(101);
    item.signature = SigningKey::generated().signatureOf(archiveOf(101));
    offer(item);
    press("install");
    expectFailure("The update is not genuine");
}

TEST_F(UpdateInstallation, tellsThatWhatCameIsDamaged)
{
    offer(publish(101, "no archive"));
    press("install");
    expectFailure("The update is damaged");
}

TEST_F(UpdateInstallation, tellsThatWhatCameIsAnotherVersion)
{
    AppcastItem item = publish(99);
    item.version = "101";
    offer(item);
    press("install");
    expectFailure("The update is not what was announced");
}

TEST_F(UpdateInstallation, tellsThatNothingCame)
{
    AppcastItem item = publish(101);
    item.archive = server.url("/404");
    offer(item);
    press("install");
    expectFailure("The update cannot be downloaded");
}

TEST_F(UpdateInstallation, tellsThatAnotherProcessIsAtIt)
{
    offer(publish(101));
    const FolderLock lock(folder());
    press("install");
    expectFailure("Lumaroo is being updated already");
}

TEST_F(UpdateInstallation, tellsThatWhatWaitedHasBeenChangedSince)
{
    putInstaller();
    offer(publish(101));
    press("install");
    ASSERT_TRUE(shows("ready"));
    write(places().archive(), "something else");
    press("installAndRestart");
    expectFailure("The update is not genuine");
    EXPECT_EQ(terminations, 0);
}

TEST_F(UpdateInstallation, tellsThatThereIsNoInstallerAndKeepsTheUpdateForTheNextStart)
{
    offer(publish(101));
    press("install");
    ASSERT_TRUE(shows("failure"));
    EXPECT_EQ(text("heading"), "The update cannot take the old version's place");
    EXPECT_EQ(wholeVersion(), 100);
    EXPECT_TRUE(waitingUpdate(places()));
    EXPECT_EQ(record.failedInstallation(),
        (FailedInstallation{"101", "101", {Kind::Exchange, "the installer cannot be started"}}));
}

TEST_F(UpdateInstallation, thatIsPreparedIsNoFailedOneAnyMore)
{
    putInstaller();
    record.noteFailedInstallation({"101", "101", {Kind::Signature, {}}});
    offer(publish(101));
    press("install");
    ASSERT_TRUE(shows("ready"));
    EXPECT_EQ(record.failedInstallation(), std::nullopt);
}
