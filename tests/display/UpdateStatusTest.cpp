// What the page about updates says of their state, while it is open.

#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "platform/foundation/system/SystemCalls.h"
#include "updater/UpdateTroubles.h"
#include "updater/core/UpdateRecord.h"
#include "updater/core/WaitingUpdate.h"

#include <QAccessible>
#include <QDir>
#include <QFile>

namespace {

constexpr int updatesPage = 3;
const QString isReady = "Version 1.1 is ready. It is installed when you close the settings.";
const QString nothingWaits = "No new version is waiting to be installed.";

class UpdateStatus : public PaneOnRealStore
{
protected:
    UpdateStatus()
    {
        store().set(KTXFirstLaunch, QVariant(true));
        NSUserDefaults::standardUserDefaults()->setPersistentDomainForName({}, updaterDomain);
        UpdateRecord().noteBuildOfNotes(1000000);
        // A copy without a key tells nothing of checks.
        changeInfo({{"SUPublicEDKey", "any"}});
    }
    ~UpdateStatus() override { systemCalls() = original_; }

    static void letItBe(const QDateTime &time)
    {
        systemCalls().realTime = [seconds = std::chrono::seconds(time.toSecsSinceEpoch())] { return seconds; };
    }
    static void letItBeDaysLater(int days) { letItBe(QDateTime({2026, 3, 1}, {9, 5}).addDays(days)); }
    void showPage()
    {
        showPane();
        selectTabViewItemAtIndex(control("tabbedView"), updatesPage);
        runPendingEvents();
    }
    UpdatePlaces places() { return UpdatePlaces(QFileInfo(bundle().path()).canonicalFilePath()); }
    /// The record of an update is all that the page looks at.
    void letUpdateWait(const QString &version, const QString &displayVersion)
    {
        EXPECT_TRUE(QDir().exists(places().waiting()) || QDir().mkdir(places().waiting()));
        QFile file(places().record());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(recordOfWaitingUpdate({version, displayVersion, {}, 0, 1}));
    }
    QString trouble(UpdateProblem::Kind kind)
    {
        return troubleWithInstallation(NSBundle::bundleWithPath(bundle().path()), "1.1", kind);
    }
    bool comesToSay(const char *name, const QString &said)
    {
        return waitUntil([&] { return text(name) == said; });
    }

private:
    SystemCalls original_ = systemCalls();
};

} // namespace

TEST_F(UpdateStatus, saysThatThereWasNoCheckYet)
{
    showPage();
    EXPECT_EQ(text("lastSuccessLabel"), "Last successful check: never");
    EXPECT_EQ(text("waitingVersionLabel"), nothingWaits);
    EXPECT_EQ(text("lostFeedLabel"), "");
}

TEST_F(UpdateStatus, saysWhenTheLastCheckSucceededInTheUsersForm)
{
    letItBeDaysLater(0);
    UpdateRecord().noteSuccess();
    letItBeDaysLater(1);
    UpdateRecord().noteFailure();
    showPage();
    const QDateTime then({2026, 3, 1}, {9, 5});
    EXPECT_EQ(text("lastSuccessLabel"),
        "Last successful check: " + QLocale().toString(then.date(), QLocale::LongFormat) + ", "
            + QLocale().toString(then.time(), QLocale::ShortFormat));
    EXPECT_EQ(text("lostFeedLabel"), "");
}

TEST_F(UpdateStatus, followsAnOpenPage)
{
    letItBeDaysLater(0);
    showPage();
    UpdateRecord().noteSuccess();
    EXPECT_TRUE(waitUntil([this] { return text("lastSuccessLabel").contains("2026"); }));
    letUpdateWait("101", "1.1");
    EXPECT_TRUE(comesToSay("waitingVersionLabel", isReady));
    removeWaitingUpdate(places());
    EXPECT_TRUE(comesToSay("waitingVersionLabel", nothingWaits));
    letUpdateWait("102", "");
    EXPECT_TRUE(
        comesToSay("waitingVersionLabel", "Version 102 is ready. It is installed when you close the settings."));
    EXPECT_TRUE(QDir(places().waiting()).removeRecursively());
}

TEST_F(UpdateStatus, catchesUpWhenItsPageIsTurnedTo)
{
    letItBeDaysLater(0);
    showPage();
    selectTabViewItemAtIndex(control("tabbedView"), 0);
    UpdateRecord().noteSuccess();
    letUpdateWait("101", "1.1");
    selectTabViewItemAtIndex(control("tabbedView"), updatesPage);
    EXPECT_TRUE(text("lastSuccessLabel").contains("2026"));
    EXPECT_TRUE(text("waitingVersionLabel").contains("1.1"));
    EXPECT_TRUE(QDir(places().waiting()).removeRecursively());
}

TEST_F(UpdateStatus, saysThatTheFeedCouldNotBeReadForThirtyDays)
{
    showPage();
    for (int day = 0; day < 30; ++day) {
        letItBeDaysLater(day);
        UpdateRecord().noteFailure();
        runPendingEvents();
        EXPECT_EQ(text("lostFeedLabel"), "") << day;
    }
    letItBeDaysLater(30);
    UpdateRecord().noteFailure();
    EXPECT_TRUE(waitUntil([this] { return text("lostFeedLabel").contains("For 30 days"); }));
    UpdateRecord().noteSuccess();
    EXPECT_TRUE(comesToSay("lostFeedLabel", ""));
}

TEST_F(UpdateStatus, saysWhyAWaitingVersionWasNotInstalled)
{
    using Kind = UpdateProblem::Kind;
    showPage();
    letUpdateWait("101", "1.1");
    for (const Kind kind : {Kind::Storage, Kind::Busy, Kind::Superuser, Kind::Exchange}) {
        UpdateRecord().noteFailedInstallation({"101", "1.1", {kind, "for the log"}});
        EXPECT_TRUE(comesToSay("waitingVersionLabel", trouble(kind))) << int(kind);
    }
    UpdateRecord().noteFailedInstallation({"99", "0.9", {Kind::Storage, {}}});
    EXPECT_TRUE(comesToSay("waitingVersionLabel", isReady)) << "it was another one";
    UpdateRecord().forgetFailedInstallation();
    EXPECT_TRUE(QDir(places().waiting()).removeRecursively());
}

TEST_F(UpdateStatus, saysWhyAVersionIsGoneUntilOneAsHighIsInstalled)
{
    using Kind = UpdateProblem::Kind;
    showPage();
    for (const Kind kind : {Kind::Signature, Kind::Archive, Kind::Contents, Kind::NoKey}) {
        UpdateRecord().noteFailedInstallation({"101", "1.1", {kind, "for the log"}});
        EXPECT_TRUE(comesToSay("waitingVersionLabel", trouble(kind))) << int(kind);
    }
    UpdateRecord().noteFailedInstallation({"101", "1.1", {Kind::Storage, {}}});
    EXPECT_TRUE(comesToSay("waitingVersionLabel", trouble(Kind::Archive))) << "nothing is tried again";
    UpdateRecord().noteFailedInstallation({"100", "1.0", {Kind::Signature, {}}});
    EXPECT_TRUE(comesToSay("waitingVersionLabel", nothingWaits));
}

TEST_F(UpdateStatus, saysThatAWaitingVersionIsNotThisUsersToInstall)
{
    letUpdateWait("101", "1.1");
    const QFile::Permissions readable = QFile::ReadOwner | QFile::ExeOwner;
    ASSERT_TRUE(QFile::setPermissions(bundle().path(), readable));
    showPage();
    EXPECT_EQ(text("waitingVersionLabel"), trouble(UpdateProblem::Kind::NotWritable));
    ASSERT_TRUE(QFile::setPermissions(bundle().path(), readable | QFile::WriteOwner));
    EXPECT_TRUE(QDir(places().waiting()).removeRecursively());
}

TEST_F(UpdateStatus, promisesChecksWhereThereAreAny)
{
    changeInfo({{"SUPublicEDKey", "any"}});
    showPage();
    EXPECT_EQ(text("automaticHint"), "Lumaroo looks once a day and asks before it installs anything.");
}

TEST_F(UpdateStatus, promisesNoChecksWithoutAKey)
{
    changeInfo({{"SUPublicEDKey", ""}});
    showPage();
    EXPECT_EQ(text("automaticHint"),
        "This copy of Lumaroo cannot update itself. Get new versions from where you got this one.");
}

TEST_F(UpdateStatus, promisesNoChecksOfWhatTheSystemUpdates)
{
    changeInfo({{"SUPublicEDKey", "any"}});
    const QFile::Permissions readable = QFile::ReadOwner | QFile::ExeOwner;
    ASSERT_TRUE(QFile::setPermissions(bundle().path(), readable));
    showPage();
    EXPECT_EQ(text("automaticHint"),
        "Lumaroo was installed for everybody who uses this computer: updates come with the system's updates.");
    ASSERT_TRUE(QFile::setPermissions(bundle().path(), readable | QFile::WriteOwner));
}

TEST_F(UpdateStatus, isWhatAScreenReaderReads)
{
    showPage();
    for (const char *name : {"lastSuccessLabel", "waitingVersionLabel"}) {
        QAccessibleInterface *told = QAccessible::queryAccessibleInterface(control(name));
        EXPECT_EQ(told->role(), QAccessible::StaticText);
        EXPECT_EQ(told->text(QAccessible::Name), text(name));
    }
}
