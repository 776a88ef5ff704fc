#include "ProgramResult.h"
#include "UpdatableBundle.h"
#include "updater/core/Installation.h"
#include "updater/core/UpdateRecord.h"
#include "updater/core/linux/BundleExchange.h"

#include "platform/foundation/preferences/CFPreferences.h"

#include <QProcess>

// The program that installs a waiting update when nobody else does.

using Kind = UpdateProblem::Kind;

namespace {

class Installer : public UpdatableBundle
{
protected:
    static QString program()
    {
        return qEnvironmentVariable("LUMAROO_BUILD") + "/Lumaroo.prefPane/Contents/Resources/installer";
    }
    static int statusOf(Kind kind) { return firstInstallationFailure + int(kind); }
    static std::optional<FailedInstallation> recorded()
    {
        CFPreferencesAppSynchronize(updaterDomain);
        return UpdateRecord().failedInstallation();
    }
    ProgramResult run() const { return runProgram(program(), {bundle()}); }
};

} // namespace

TEST_F(Installer, installsWhatWaitsAndLeavesNothingBeside)
{
    prepare(101);
    const ProgramResult result = run();
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "lumaroo: installer: version 101 is installed\n");
    EXPECT_EQ(wholeVersion(), 101);
    EXPECT_EQ(beside(), QStringList());
}

TEST_F(Installer, doesNothingWhereNothingWaits)
{
    const ProgramResult result = run();
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    expectOldBundleAlone();
}

TEST_F(Installer, waitsForTheEndOfItsInputWhenItIsToldTo)
{
    prepare(101);
    QProcess installer;
    installer.start(program(), {"--after-input", bundle()});
    ASSERT_TRUE(installer.waitForStarted());
    installer.write(QByteArray(1000000, 'x'));
    while (installer.bytesToWrite() > 0)
        ASSERT_TRUE(installer.waitForBytesWritten());
    EXPECT_EQ(wholeVersion(), 100) << "it reads all the while";
    EXPECT_EQ(installer.state(), QProcess::Running);
    installer.closeWriteChannel();
    ASSERT_TRUE(installer.waitForFinished());
    EXPECT_EQ(installer.exitCode(), 0);
    EXPECT_EQ(wholeVersion(), 101);
}

TEST_F(Installer, waitsForAnotherOneToComeToItsEnd)
{
    prepare(101);
    auto other = std::make_unique<FolderLock>(folder());
    ASSERT_TRUE(bool(*other));
    QProcess installer;
    installer.setReadChannel(QProcess::StandardError);
    installer.start(program(), {bundle()});
    ASSERT_TRUE(installer.waitForReadyRead());
    EXPECT_EQ(installer.readLine(),
        QString("lumaroo: installer: another process is updating %1; waiting\n").arg(bundle()).toUtf8());
    EXPECT_FALSE(installer.waitForFinished(500)) << "it gives up";
    EXPECT_EQ(wholeVersion(), 100);
    other.reset();
    ASSERT_TRUE(installer.waitForFinished());
    EXPECT_EQ(installer.exitCode(), 0);
    EXPECT_EQ(wholeVersion(), 101);
}

TEST_F(Installer, remembersWhyNothingWasInstalledUntilSomethingIs)
{
    prepare(101);
    write(places().archive(), "something else");
    const ProgramResult result = run();
    EXPECT_EQ(result.status, statusOf(Kind::Signature));
    EXPECT_EQ(result.errors, "lumaroo: installer: version 100 stays: the archive is not the one that was signed\n");
    const FailedInstallation expected{"101", "1.1", {Kind::Signature, "the archive is not the one that was signed"}};
    EXPECT_EQ(recorded(), expected);
    expectOldBundleAlone();
    EXPECT_EQ(run().status, 0) << "nothing waits";
    EXPECT_EQ(recorded(), expected);
    prepare(101);
    EXPECT_EQ(run().status, 0);
    EXPECT_EQ(recorded(), std::nullopt);
}

TEST_F(Installer, remembersAndRemovesAnUpdateWhoseArchiveIsGone)
{
    prepare(101);
    ASSERT_TRUE(QFile::remove(places().archive()));
    EXPECT_EQ(run().status, statusOf(Kind::Archive));
    ASSERT_TRUE(recorded());
    EXPECT_EQ(recorded()->problem.kind, Kind::Archive);
    expectOldBundleAlone();
}

TEST_F(Installer, installsNothingAsRoot)
{
    prepare(101);
    const ProgramResult result = runProgram("unshare", {"--user", "--map-root-user", program(), bundle()});
    EXPECT_EQ(result.status, statusOf(Kind::Superuser));
    EXPECT_EQ(result.errors, "lumaroo: installer: version 100 stays: updates are not installed as root\n");
    EXPECT_EQ(wholeVersion(), 100);
    EXPECT_TRUE(waitingUpdate(places()));
}

TEST_F(Installer, needsABundle)
{
    for (const QStringList &arguments : {QStringList(), QStringList{"a", "b"}, QStringList{"--after-input"},
             QStringList{"--other", "a"}, QStringList{"-x"}})
        EXPECT_EQ(runProgram(program(), arguments).status, 2) << arguments.join(' ').toStdString();
}

TEST_F(Installer, neitherLoadsTheNetworkNorAWindow)
{
    const ProgramResult result = runProgram("ldd", {program()});
    EXPECT_NE(result.output.find("libQt6Core"), std::string::npos);
    for (const char *library : {"libQt6Network", "libQt6Gui", "libQt6Widgets"})
        EXPECT_EQ(result.output.find(library), std::string::npos) << library;
}
