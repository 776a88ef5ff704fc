// A release as docs/RELEASING.md walks through it, up to the user, who has the version before: installed into a stage,
// packed, signed, told of in a feed, found, installed and running. All programs are the real ones; the user has a
// keyboard. The new version is what is built here with another number: a second build would take too long.

#include "KeyPress.h"
#include "ProgramResult.h"
#include "RunningPrograms.h"
#include "ScreenReader.h"
#include "UpdatableProduct.h"
#include "Wait.h"
#include "WebServer.h"

#include "KTXConstants.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "updater/core/UpdateRecord.h"

#include <QDir>
#include <QFile>
#include <csignal>
#include <linux/input-event-codes.h>
#include <sys/stat.h>

namespace {

QVariantMap domain()
{
    return NSUserDefaults::standardUserDefaults()->persistentDomainForName(KTXLMAppID);
}

ino_t fileOf(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_ino : 0;
}

class ReleaseByUser : public UpdatableProduct
{
protected:
    ReleaseByUser()
    {
        const QString publicKey = tool("sign-update", {"--generate", keyFile});
        changeInfo(pane(), {{"SUPublicEDKey", publicKey}, {"SUFeedURL", server.url("/appcast_beta.xml").toString()}});
        NSUserDefaults::standardUserDefaults()->setPersistentDomainForName({}, updaterDomain);
        EXPECT_EQ(publicKey, tool("sign-update", {"--key", keyFile, "--public-key"}));
    }

    static QString run(const QString &program, const QStringList &arguments)
    {
        const ProgramResult result = runProgram(program, arguments);
        EXPECT_EQ(result.status, 0) << result.errors;
        return QString::fromStdString(result.output).trimmed();
    }
    static QString tool(const QString &name, const QStringList &arguments)
    {
        return run(qEnvironmentVariable("LUMAROO_BUILD") + "/bin/" + name, arguments);
    }
    /// What is built, as the build of a version: only its Info dictionaries tell the difference.
    QString staged(int version) const
    {
        const QString stage = makersOwn("stage");
        run("cmake", {"--install", qEnvironmentVariable("LUMAROO_BUILD"), "--prefix", stage, "--strip"});
        const QString panes = stage + "/lib/lumaroo/PreferencePanes";
        const QVariantMap installed = NSBundle::infoDictionaryOnDisk(pane());
        changeVersion(panes + "/Lumaroo.prefPane", version);
        changeInfo(panes + "/Lumaroo.prefPane",
            {{"CFBundleShortVersionString", "1.1"}, {"SUPublicEDKey", installed.value("SUPublicEDKey")},
                {"SUFeedURL", installed.value("SUFeedURL")}});
        return panes;
    }
    void publish(int version)
    {
        ASSERT_TRUE(QDir().exists(published()) || QDir().mkpath(published()));
        const QString archive = published() + QString("/Lumaroo-%1.tar.xz").arg(version);
        // A build with sanitizers is large, and nobody waits for its last byte.
        qputenv("XZ_OPT", "-0");
        run("tar", {"-C", staged(version), "-cJf", archive, "Lumaroo.prefPane"});
        tool("make-appcast", {"--key", keyFile, "--address", server.url("/").toString(), published()});
        const QString enclosure = tool("sign-update", {"--key", keyFile, archive});
        QFile feed(published() + "/appcast.xml");
        ASSERT_TRUE(feed.open(QIODevice::ReadOnly));
        EXPECT_TRUE(feed.readAll().contains(signatureIn(enclosure)));
    }
    static QByteArray signatureIn(const QString &enclosure)
    {
        return enclosure.section("edSignature=\"", 1).section('"', 0, 0).toLatin1();
    }

    void startSettings()
    {
        settings = std::make_unique<SettingsProgram>(QStringList{pane()});
        ASSERT_TRUE(settings->waitForWindows(1));
    }
    /// The user's own settings, and an agent that the pane has started.
    void openForTheFirstTime()
    {
        storeOutside(KTXAnimate, false);
        storeOutside(KTXInitialDelay, 0.75f);
        startSettings();
        ASSERT_TRUE(agentStarts());
        ASSERT_TRUE(waitUntil([this] { return bus.names().contains(KTXLMAgentLaunched); }));
        ASSERT_TRUE(reader.waitForText(settings->processId(), "Version 1.0 (100)"));
        settings->settledPicture();
        before = domain();
        bus.clear();
    }
    /// Two keys are the same, of which nothing is said unless the settings are to be left.
    void makeLeavingAQuestion() const
    {
        const QVariantMap up{{KTXKeycode, "126"}};
        storeOutside(KTXsuppressHKeysTaken, true);
        storeOutside(KTXUpPref, up);
        storeOutside(KTXDownPref, up);
    }
    void lookForUpdates()
    {
        for (int page = 0; page < 3; ++page) {
            const QImage shown = settings->settledPicture();
            pressKey(KEY_TAB, {KEY_LEFTCTRL});
            ASSERT_FALSE(settings->pictureAfterChangeFrom(shown).isNull());
        }
        expectToRead("Last successful check: never");
        pressKey(KEY_N, {KEY_LEFTALT});
        ASSERT_TRUE(settings->waitForWindows(2));
        expectToRead("There is a new version: Lumaroo 1.1");
        settings->settledPicture();
    }
    void letUpdateBePrepared()
    {
        lookForUpdates();
        pressKey(KEY_I, {KEY_LEFTALT});
        expectToRead("Lumaroo 1.1 is ready");
        settings->settledPicture();
        EXPECT_EQ(installedVersion(), 100) << "nothing is installed without the user's word";
    }
    void expectToRead(const QString &text)
    {
        ASSERT_TRUE(reader.waitForText(settings->processId(), text))
            << text.toStdString() << " is not among\n"
            << reader.textsOf(settings->processId()).join('\n').toStdString();
    }

    /// Whether all that the agents announced last is this version, and the one that runs is the installed program.
    bool agentComesToBe(int version)
    {
        return waitUntil([&] {
            const QList<pid_t> running = agents();
            return running.size() == 1 && fileOf(QString("/proc/%1/exe").arg(running.first())) == fileOf(agentProgram())
                && announcedVersions().contains(version);
        });
    }
    QList<int> announcedVersions()
    {
        QList<int> versions;
        for (const BusNotification &notification : bus.notifications()) {
            if (notification.name == KTXLMAgentLaunched)
                versions += notification.userInfo.value(KTXLMAgentVersion).toInt();
        }
        return versions;
    }
    pid_t waitForSettingsOtherThan(pid_t old)
    {
        // A build with sanitizers is large, and on a busy machine it takes a while until it is unpacked.
        constexpr int milliseconds = 60000;
        const auto isThere = [&] {
            return hosts().size() == 1 && hosts().first() != old && !desktopWindowsOfProcess(hosts().first()).isEmpty();
        };
        const bool isBack = waitUntil(isThere, milliseconds);
        return isBack ? hosts().first() : 0;
    }

    const QString keyFile = makersOwn("lumaroo-update.key");
    ScreenReader reader;
    WebServer server{std::nullopt, published()};
    std::unique_ptr<SettingsProgram> settings;
    QVariantMap before;
};

} // namespace

TEST_F(ReleaseByUser, isInstalledWithARestartOfTheSettingsAndOfTheAgent)
{
    publish(101);
    openForTheFirstTime();
    const pid_t old = pid_t(settings->processId());
    letUpdateBePrepared();
    pressKey(KEY_I, {KEY_LEFTALT});
    EXPECT_EQ(settings->exitStatus(), 0);
    const pid_t restarted = waitForSettingsOtherThan(old);
    ASSERT_NE(restarted, 0);
    EXPECT_TRUE(reader.waitForText(restarted, "Version 1.1 (101)"));
    EXPECT_EQ(installedVersion(), 101);
    EXPECT_TRUE(waitUntil([this] { return isEqualPropertyList(domain(), before); })) << "settings are the user's";
    EXPECT_TRUE(agentComesToBe(101));
    EXPECT_TRUE(reader.waitForText(restarted, "What is new in Lumaroo")) << "the notes of the new version";
}

TEST_F(ReleaseByUser, leavesTheOldVersionToAPaneThatDoesNotLetItselfBeLeft)
{
    publish(101);
    storeOutside(KTXFirstLaunch, true);
    makeLeavingAQuestion();
    startSettings();
    settings->settledPicture();
    const pid_t old = pid_t(settings->processId());
    letUpdateBePrepared();
    pressKey(KEY_I, {KEY_LEFTALT});
    ASSERT_TRUE(settings->waitForWindows(3)) << "the pane asks";
    settings->settledPicture();
    EXPECT_EQ(installedVersion(), 100);
    pressKey(KEY_ESC);
    ASSERT_TRUE(settings->waitForWindows(2));
    expectToRead("Lumaroo 1.1 is about to be installed");
    EXPECT_EQ(installedVersion(), 100) << "old code, old bundle";
    EXPECT_EQ(hosts(), QList<pid_t>{old});
    settings->settledPicture();
    pressKey(KEY_ENTER);
    ASSERT_TRUE(settings->waitForWindows(1));
    settings->settledPicture();
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    ASSERT_TRUE(settings->waitForWindows(2));
    settings->settledPicture();
    pressKey(KEY_Q);
    EXPECT_EQ(settings->exitStatus(), 0);
    const pid_t restarted = waitForSettingsOtherThan(old);
    ASSERT_NE(restarted, 0);
    EXPECT_TRUE(reader.waitForText(restarted, "Version 1.1 (101)"))
        << reader.textsOf(restarted).join('\n').toStdString();
    EXPECT_EQ(installedVersion(), 101);
}

TEST_F(ReleaseByUser, isInstalledLaterWhenTheSettingsHaveBeenClosed)
{
    publish(101);
    openForTheFirstTime();
    letUpdateBePrepared();
    pressKey(KEY_L, {KEY_LEFTALT});
    ASSERT_TRUE(settings->waitForWindows(1));
    expectToRead("Version 1.1 is ready. It is installed when you close the settings.");
    EXPECT_EQ(installedVersion(), 100);
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    EXPECT_EQ(settings->exitStatus(), 0);
    EXPECT_TRUE(waitUntil([this] { return installedVersion() == 101; }));
    startSettings();
    expectToRead("Version 1.1 (101)");
    EXPECT_TRUE(isEqualPropertyList(domain(), before));
    EXPECT_TRUE(agentComesToBe(101));
}

TEST_F(ReleaseByUser, isInstalledAtTheNextStartWhereTheSettingsAndTheirInstallerWereKilled)
{
    publish(101);
    openForTheFirstTime();
    letUpdateBePrepared();
    pressKey(KEY_L, {KEY_LEFTALT});
    ASSERT_TRUE(settings->waitForWindows(1));
    killProcessesOf(pane() + "/Contents/Resources/installer");
    settings->signal(SIGKILL);
    EXPECT_EQ(settings->exitStatus(), -1);
    EXPECT_EQ(installedVersion(), 100);
    startSettings();
    expectToRead("Version 1.1 (101)");
    EXPECT_EQ(installedVersion(), 101);
    EXPECT_TRUE(agentComesToBe(101));
}

TEST_F(ReleaseByUser, isOfABuildThatWasToldTheKey)
{
    const QString build = makersOwn("build");
    const QString publicKey = tool("sign-update", {"--key", keyFile, "--public-key"});
    run("cmake", {"-S", qEnvironmentVariable("LUMAROO_SOURCE"), "-B", build, "-DLUMAROO_UPDATE_KEY=" + publicKey});
    QFile info(build + "/resources/Info.plist");
    ASSERT_TRUE(info.open(QIODevice::ReadOnly));
    EXPECT_EQ(readPropertyList(info.readAll()).value.toMap().value("SUPublicEDKey"), publicKey);
}
