// Help in the real settings: what it loads and when, what it remembers, and that the settings end with it open.

#include "KTXConstants.h"
#include "KeyPress.h"
#include "PaneBundle.h"
#include "SettingsProgram.h"
#include "Wait.h"
#include "platform/foundation/preferences/NSUserDefaults.h"

#include <csignal>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace {

class HelpByUser : public testing::Test
{
protected:
    HelpByUser()
    {
        setDomain(KTXLMAppID, {{KTXFirstLaunch, true}});
        setDomain(hostDomain, {});
    }
    ~HelpByUser() override
    {
        setDomain(KTXLMAppID, {});
        setDomain(hostDomain, {});
    }

    static void setDomain(const QString &domain, const QVariantMap &values)
    {
        NSUserDefaults::standardUserDefaults()->setPersistentDomainForName(values, domain);
    }
    QVariant remembered(const QString &key) const
    {
        return NSUserDefaults::standardUserDefaults()->persistentDomainForName(hostDomain).value(key);
    }
    void start()
    {
        settings = std::make_unique<SettingsProgram>();
        ASSERT_TRUE(settings->waitForWindows(1));
        settings->settledPicture();
    }
    void startAndAskForHelp()
    {
        start();
        pressKey(KEY_F1);
        ASSERT_TRUE(settings->waitForWindows(2));
    }
    /// What the settings have in their memory of what shows help.
    QStringList librariesOfHelp() const
    {
        const QStringList maps = linesOf(QStringLiteral("/proc/%1/maps").arg(settings->processId()));
        EXPECT_FALSE(maps.filter(QStringLiteral("Lumaroo.prefPane/Contents/Linux/Lumaroo")).isEmpty());
        QStringList found;
        for (const char *library : {"liblumaroo-help", "libQt6Help", "libQt6Sql", "libsqlite3"}) {
            if (!maps.filter(QLatin1StringView(library)).isEmpty())
                found += QLatin1StringView(library);
        }
        return found;
    }

    const QString hostDomain = QStringLiteral("com.apple.systempreferences");
    std::unique_ptr<SettingsProgram> settings;
};

} // namespace

TEST_F(HelpByUser, isLoadedOnceItIsAskedFor)
{
    start();
    EXPECT_EQ(librariesOfHelp(), QStringList());
    pressKey(KEY_F1);
    ASSERT_TRUE(settings->waitForWindows(2));
    EXPECT_EQ(librariesOfHelp(), (QStringList{"liblumaroo-help", "libQt6Help", "libQt6Sql", "libsqlite3"}));
}

TEST_F(HelpByUser, closesWithoutTheSettings)
{
    startAndAskForHelp();
    pressKey(KEY_W, {KEY_LEFTCTRL});
    ASSERT_TRUE(settings->waitForWindows(1));
    EXPECT_TRUE(settings->isRunning());
    pressKey(KEY_F1);
    EXPECT_TRUE(settings->waitForWindows(2));
}

TEST_F(HelpByUser, endsWithTheSettings)
{
    startAndAskForHelp();
    askToClose(settings->windows().first().id);
    EXPECT_EQ(settings->exitStatus(), 0);
}

TEST_F(HelpByUser, letsTheSettingsEndAtOnceOnASignal)
{
    startAndAskForHelp();
    settings->signal(SIGTERM);
    EXPECT_EQ(settings->exitStatus(), 0);
    EXPECT_TRUE(remembered("HelpWindowWidth").isValid()) << "also a window that was not closed is remembered";
}

TEST_F(HelpByUser, remembersSizeAndZoomInTheDomainOfTheSettings)
{
    setDomain(hostDomain, {{"HelpWindowWidth", 703LL}, {"HelpWindowHeight", 511LL}, {"HelpZoom", 130LL}});
    startAndAskForHelp();
    EXPECT_EQ(settings->settledPicture().size(), QSize(703, 511));
    pressKey(KEY_MINUS, {KEY_LEFTCTRL});
    pressKey(KEY_W, {KEY_LEFTCTRL});
    ASSERT_TRUE(waitUntil([this] { return remembered("HelpZoom") == QVariant(120LL); }));
    EXPECT_EQ(remembered("HelpWindowWidth"), QVariant(703LL));
    EXPECT_EQ(remembered("HelpWindowHeight"), QVariant(511LL));
}

TEST_F(HelpByUser, takesNoNoticeOfNonsenseThatIsRemembered)
{
    setDomain(hostDomain, {{"HelpWindowWidth", 1000000LL}, {"HelpWindowHeight", "high"}, {"HelpZoom", -5LL}});
    startAndAskForHelp();
    const QSize size = settings->settledPicture().size();
    EXPECT_GE(size.width(), 480);
    EXPECT_LE(size.width(), 1280);
    pressKey(KEY_W, {KEY_LEFTCTRL});
    EXPECT_TRUE(waitUntil([this] { return remembered("HelpZoom") == QVariant(100LL); }));
}
