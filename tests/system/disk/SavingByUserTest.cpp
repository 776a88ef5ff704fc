// The real settings and the real agent where settings cannot be stored, or read: what the window tells of it, and the
// way out of it by keyboard.

#include "AgentProgram.h"
#include "BrowserStandIn.h"
#include "InstalledProduct.h"
#include "KTXConstants.h"
#include "KeyPress.h"
#include "ScreenReader.h"
#include "Wait.h"

#include "platform/foundation/propertylists/PropertyList.h"

#include <QDir>
#include <linux/input-event-codes.h>

namespace {

constexpr int behaviourPage = 2;
const QString notSaved = QStringLiteral("Your changes are not saved");
const QString notReadable = QStringLiteral("Your settings cannot be read");
const QString damaged = QStringLiteral("A settings file was damaged");

/// The settings lie on a disk of 256 KiB.
class SettingsOnSmallDisk
{
protected:
    SettingsOnSmallDisk() : folder_(qEnvironmentVariable("LUMAROO_SMALL_DISK") + QStringLiteral("/home-XXXXXX"))
    {
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder_.path()));
        EXPECT_TRUE(QDir().mkpath(settingsFolder()));
    }
    ~SettingsOnSmallDisk()
    {
        clearDisk();
        allowWriting(true);
        qputenv("XDG_CONFIG_HOME", before_);
    }

    QString settingsFolder() const { return folder_.filePath(QStringLiteral("lumaroo")); }
    void fillDisk()
    {
        filler_.setFileName(folder_.filePath(QStringLiteral("filler")));
        ASSERT_TRUE(filler_.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (filler_.write(QByteArray(4096, 'x')) > 0) { }
    }
    void clearDisk()
    {
        if (filler_.exists())
            filler_.remove();
    }
    void allowWriting(bool allowed) const
    {
        const QFile::Permissions reading = QFile::ReadOwner | QFile::ExeOwner;
        EXPECT_TRUE(QFile::setPermissions(settingsFolder(), allowed ? reading | QFile::WriteOwner : reading));
    }

private:
    QTemporaryDir folder_;
    QFile filler_;
    QByteArray before_ = qgetenv("XDG_CONFIG_HOME");
};

class SavingByUser : private SettingsOnSmallDisk, public InstalledProduct
{
protected:
    SavingByUser() { storeOutside(KTXFirstLaunch, true); }
    ~SavingByUser() override { QFile::setPermissions(settingsFile(), QFile::ReadOwner | QFile::WriteOwner); }

    using SettingsOnSmallDisk::allowWriting;
    using SettingsOnSmallDisk::clearDisk;
    using SettingsOnSmallDisk::fillDisk;
    using SettingsOnSmallDisk::settingsFolder;

    void open()
    {
        settings = std::make_unique<SettingsProgram>(QStringList{pane()});
        ASSERT_TRUE(settings->waitForWindows(1));
        settings->settledPicture();
    }
    void openAtBehaviour()
    {
        open();
        QImage shown = settings->settledPicture();
        for (int page = 0; page < behaviourPage; ++page) {
            pressKey(KEY_TAB, {KEY_LEFTCTRL});
            shown = settings->pictureAfterChangeFrom(shown);
        }
    }
    void quit()
    {
        pressKey(KEY_Q, {KEY_LEFTCTRL});
        EXPECT_EQ(settings->exitStatus(), 0);
    }

    static void toggleWrap() { pressKey(KEY_W, {KEY_LEFTALT}); }
    static void toggleAnimation() { pressKey(KEY_N, {KEY_LEFTALT}); }
    /// The bar's buttons come after the search.
    void pressButtonOfBar(int number = 1)
    {
        pressKey(KEY_F, {KEY_LEFTCTRL});
        for (int tab = 0; tab < number; ++tab)
            pressKey(KEY_TAB);
        settings->settledPicture();
        pressKey(KEY_SPACE);
    }

    testing::AssertionResult tells(const QString &text)
    {
        if (reader.waitForText(settings->processId(), text))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << reader.textsOf(settings->processId()).join(u'\n').toStdString();
    }
    bool tellsNot(const QString &text) { return !reader.textsOf(settings->processId()).contains(text); }
    bool tellsNoMore(const QString &text)
    {
        return waitUntil([&] { return tellsNot(text); });
    }

    static QVariant stored(const QString &key)
    {
        QFile file(settingsFile());
        return file.open(QIODevice::ReadOnly) ? readPropertyList(file.readAll()).value.toMap().value(key) : QVariant();
    }
    static bool comesToBeStored(const QString &key, const QVariant &value)
    {
        return waitUntil([&] { return stored(key) == value; });
    }
    static void putFile(const QByteArray &content)
    {
        QFile file(settingsFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    ScreenReader reader;
    std::unique_ptr<SettingsProgram> settings;
};

} // namespace

TEST_F(SavingByUser, onAFullDiskIsToldUntilTryingAgainSucceeds)
{
    AgentProgram agent({"--foreground"}, agentProgram());
    ASSERT_TRUE(agent.waitForLaunch());
    openAtBehaviour();
    ASSERT_TRUE(comesToBeStored(KTXHWrap, true));
    EXPECT_TRUE(tellsNot(notSaved));
    fillDisk();
    toggleWrap();
    ASSERT_TRUE(tells(notSaved));
    EXPECT_TRUE(tells("The disk is full. Make room on it, then try again."));
    EXPECT_EQ(stored(KTXHWrap), QVariant(true));
    pressButtonOfBar();
    EXPECT_TRUE(tells(notSaved));
    EXPECT_EQ(stored(KTXHWrap), QVariant(true));
    clearDisk();
    pressKey(KEY_SPACE);
    EXPECT_TRUE(comesToBeStored(KTXHWrap, false));
    EXPECT_TRUE(tellsNoMore(notSaved));
    EXPECT_TRUE(waitUntil([] { return runningAgentsSetting(KTXHWrap) == QJsonValue(false); })) << "it is told, too";
    quit();
}

TEST_F(SavingByUser, isToldNoMoreOnceALaterChangeIsStored)
{
    openAtBehaviour();
    fillDisk();
    toggleWrap();
    ASSERT_TRUE(tells(notSaved));
    clearDisk();
    toggleAnimation();
    EXPECT_TRUE(tellsNoMore(notSaved));
    EXPECT_EQ(stored(KTXHWrap), QVariant(false));
    EXPECT_EQ(stored(KTXAnimate), QVariant(true));
    quit();
}

TEST_F(SavingByUser, inAFolderWithoutPermissionNamesTheFolder)
{
    openAtBehaviour();
    allowWriting(false);
    toggleWrap();
    ASSERT_TRUE(tells(notSaved));
    EXPECT_TRUE(tells(QStringLiteral("You lack the permission to write in the folder “%1”.").arg(settingsFolder())));
    allowWriting(true);
    pressButtonOfBar();
    EXPECT_TRUE(comesToBeStored(KTXHWrap, false));
    EXPECT_TRUE(tellsNoMore(notSaved));
    quit();
}

TEST_F(SavingByUser, ofAFileThatCannotBeReadIsToldAndThenShowsWhatIsStored)
{
    storeOutside(KTXHWrap, false);
    ASSERT_TRUE(QFile::setPermissions(settingsFile(), QFile::Permissions()));
    openAtBehaviour();
    ASSERT_TRUE(tells(notReadable));
    const QString cause = QStringLiteral("You lack the permission to read the file “%1”. What you see here is not "
                                         "what is stored.");
    EXPECT_TRUE(tells(cause.arg(settingsFile())));
    ASSERT_TRUE(QFile::setPermissions(settingsFile(), QFile::ReadOwner | QFile::WriteOwner));
    pressButtonOfBar();
    EXPECT_TRUE(tellsNoMore(notReadable));
    EXPECT_EQ(stored(KTXHWrap), QVariant(false)) << "nobody chose otherwise";
    toggleWrap();
    EXPECT_TRUE(comesToBeStored(KTXHWrap, true)) << "the box was shown as it is stored";
    quit();
}

TEST_F(SavingByUser, tellsOnceOfAFileThatWasMovedAsideAndShowsItsFolder)
{
    const BrowserStandIn opener;
    putFile("garbage");
    open();
    ASSERT_TRUE(tells(damaged));
    EXPECT_TRUE(
        tells("It is kept as “com.quorvane.Lumaroo.plist~1”. The settings in it began anew with their defaults."));
    pressButtonOfBar(1);
    EXPECT_TRUE(opener.waitForPages(1));
    EXPECT_EQ(opener.pages(), QStringList(QUrl::fromLocalFile(settingsFolder()).toString()));
    pressButtonOfBar(2);
    EXPECT_TRUE(tellsNoMore(damaged));
    quit();
    open();
    ASSERT_TRUE(tells("Search settings"));
    EXPECT_TRUE(tellsNot(damaged));
    quit();
}

TEST_F(SavingByUser, tellsOfAFileThatTheAgentHasMovedAside)
{
    putFile("garbage");
    {
        AgentProgram agent({"--foreground"}, agentProgram());
        ASSERT_TRUE(agent.waitForLaunch());
    }
    ASSERT_TRUE(QFile::exists(settingsFile() + "~1"));
    open();
    EXPECT_TRUE(tells(damaged));
    quit();
}
