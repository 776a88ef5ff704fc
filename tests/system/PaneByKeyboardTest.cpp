// The real host with the real pane, driven by key presses alone.

#include "BusRecorder.h"
#include "KTXConstants.h"
#include "KeyPress.h"
#include "SettingsProgram.h"
#include "Wait.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/preferences/NSUserDefaults.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace {

constexpr int pageCount = 6;
constexpr int behaviourPage = 2;

class PaneByKeyboard : public testing::Test
{
protected:
    void SetUp() override
    {
        NSUserDefaults::standardUserDefaults()->setPersistentDomainForName({}, KTXLMAppID);
        CFPreferencesSetAppValue(KTXFirstLaunch, false, KTXLMAppID);
        CFPreferencesAppSynchronize(KTXLMAppID);
    }

    void storeOutside(const QString &key, const QVariant &value)
    {
        CFPreferencesSetAppValue(key, value, KTXLMAppID);
        CFPreferencesAppSynchronize(KTXLMAppID);
        bus.post(KTXLMPrefsChanged, KTXLMAgentID);
    }

    /// What a showing says of that is suppressed: these tests are about leaving.
    void giveTwoMovementKeysTheSameCode()
    {
        CFPreferencesSetAppValue(KTXsuppressHKeysTaken, true, KTXLMAppID);
        const QVariantMap up{{KTXKeycode, QStringLiteral("126")}};
        CFPreferencesSetAppValue(KTXUpPref, up, KTXLMAppID);
        CFPreferencesSetAppValue(KTXDownPref, up, KTXLMAppID);
        CFPreferencesAppSynchronize(KTXLMAppID);
    }

    void quit() { pressKey(KEY_Q, {KEY_LEFTCTRL}); }

    BusRecorder bus;
};

} // namespace

TEST_F(PaneByKeyboard, opensAndWritesTheMissingDefaults)
{
    SettingsProgram settings;
    ASSERT_TRUE(settings.waitForWindows(1));
    EXPECT_EQ(settings.windows().first().title, "Lumaroo");
    EXPECT_TRUE(waitUntil([] { return CFPreferencesCopyAppValue(KTXModifierMask, KTXLMAppID) == QVariant(6144); }));
    quit();
    EXPECT_EQ(settings.exitStatus(), 0);
}

TEST_F(PaneByKeyboard, turnsEveryPageAndEachLooksDifferent)
{
    SettingsProgram settings;
    ASSERT_TRUE(settings.waitForWindows(1));
    QList<QImage> pages{settings.settledPicture()};
    for (int page = 1; page < pageCount; ++page) {
        pressKey(KEY_TAB, {KEY_LEFTCTRL});
        pages.append(settings.pictureAfterChangeFrom(pages.last()));
        ASSERT_FALSE(pages.last().isNull()) << "page " << page;
        EXPECT_EQ(pages.last().size(), pages.first().size());
        for (int earlier = 0; earlier < page; ++earlier)
            EXPECT_NE(pages[earlier], pages[page]) << earlier << " and " << page;
    }
}

TEST_F(PaneByKeyboard, turnsThePagesFromWhateverControlHasTheFocus)
{
    SettingsProgram settings;
    ASSERT_TRUE(settings.waitForWindows(1));
    for (int page = 0; page < pageCount; ++page) {
        pressKey(KEY_TAB); // into the page
        const QImage shown = settings.settledPicture();
        pressKey(KEY_TAB, {KEY_LEFTCTRL});
        ASSERT_FALSE(settings.pictureAfterChangeFrom(shown).isNull()) << "page " << page;
    }
}

TEST_F(PaneByKeyboard, anOutsideChangeShowsAtOnce)
{
    SettingsProgram settings;
    ASSERT_TRUE(settings.waitForWindows(1));
    QImage shown = settings.settledPicture();
    for (int page = 0; page < behaviourPage; ++page) {
        pressKey(KEY_TAB, {KEY_LEFTCTRL});
        shown = settings.pictureAfterChangeFrom(shown);
    }
    storeOutside(KTXHWrap, false);
    const QImage changed = settings.pictureAfterChangeFrom(shown);
    ASSERT_FALSE(changed.isNull());
    storeOutside(KTXHWrap, true);
    EXPECT_EQ(settings.pictureAfterChangeFrom(changed), shown);
}

TEST_F(PaneByKeyboard, leavingWithConflictsAsksAndEscapeKeepsThePane)
{
    giveTwoMovementKeysTheSameCode();
    SettingsProgram settings;
    ASSERT_TRUE(settings.waitForWindows(1));
    const QImage firstPage = settings.settledPicture();
    quit();
    ASSERT_TRUE(settings.waitForWindows(2));
    pressKey(KEY_ESC);
    ASSERT_TRUE(settings.waitForWindows(1));
    EXPECT_FALSE(settings.pictureAfterChangeFrom(firstPage).isNull()) << "the hot key page is shown";
    EXPECT_TRUE(settings.isRunning());
}

TEST_F(PaneByKeyboard, leavingWithConflictsAsksAndReturnOnCancelKeepsThePane)
{
    giveTwoMovementKeysTheSameCode();
    SettingsProgram settings;
    ASSERT_TRUE(settings.waitForWindows(1));
    quit();
    ASSERT_TRUE(settings.waitForWindows(2));
    pressKey(KEY_ENTER);
    ASSERT_TRUE(settings.waitForWindows(1));
    EXPECT_TRUE(settings.isRunning());
}

TEST_F(PaneByKeyboard, leavingWithConflictsAsksAndPlainQQuits)
{
    giveTwoMovementKeysTheSameCode();
    SettingsProgram settings;
    ASSERT_TRUE(settings.waitForWindows(1));
    quit();
    ASSERT_TRUE(settings.waitForWindows(2));
    pressKey(KEY_Q);
    EXPECT_EQ(settings.exitStatus(), 0);
}

TEST_F(PaneByKeyboard, oneShowingAnnouncesTheReadingAndTheZeroCell)
{
    SettingsProgram settings;
    ASSERT_TRUE(settings.waitForWindows(1));
    settings.settledPicture();
    const QStringList expected{KTXLMPrefPaneLaunched, KTXLMPrefsChanged, KTXLMPrefsChanged};
    EXPECT_EQ(bus.names(), expected);
}
