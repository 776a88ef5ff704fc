// The sheets of the real pane in the real host.

#include "BellListener.h"
#include "BusRecorder.h"
#include "KTXConstants.h"
#include "KeyPress.h"
#include "PaneBundle.h"
#include "SettingsProgram.h"
#include "Wait.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <csignal>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace {

constexpr int onlyAlt = 0x800;

class PaneSheet : public testing::Test
{
protected:
    PaneSheet()
    {
        NSUserDefaults::standardUserDefaults()->setPersistentDomainForName(start_, KTXLMAppID);
        SettingsProgram::forgetWhatWasSeen();
    }
    ~PaneSheet() override { NSUserDefaults::standardUserDefaults()->setPersistentDomainForName({}, KTXLMAppID); }

    static QVariantMap domain() { return NSUserDefaults::standardUserDefaults()->persistentDomainForName(KTXLMAppID); }
    /// The settings with the hot key page shown.
    void start()
    {
        settings = std::make_unique<SettingsProgram>();
        ASSERT_TRUE(settings->waitForWindows(1));
        const QImage first = settings->settledPicture();
        pressKey(KEY_TAB, {KEY_LEFTCTRL});
        ASSERT_FALSE(settings->pictureAfterChangeFrom(first).isNull());
        bus.clear();
    }
    static void clearAlt() { pressKey(KEY_L, {KEY_LEFTALT}); }
    bool comesToShow(const QString &page) const
    {
        return waitUntil([&] { return settings->windows().first().title == page; });
    }
    void showSheet()
    {
        start();
        clearAlt();
        ASSERT_TRUE(settings->waitForWindows(2));
    }

    BusRecorder bus;
    std::unique_ptr<SettingsProgram> settings;

private:
    const QVariantMap start_{{KTXFirstLaunch, true}, {KTXModifierMask, qlonglong(onlyAlt)}};
};

} // namespace

TEST_F(PaneSheet, refusesToClearTheLastModifierUntilItIsSuppressedAndTheBellRingsInstead)
{
    BellListener bell;
    start();
    const QVariantMap before = domain();
    clearAlt();
    ASSERT_TRUE(settings->waitForWindows(2));
    pressKey(KEY_ESC);
    ASSERT_TRUE(settings->waitForWindows(1));
    EXPECT_TRUE(isEqualPropertyList(domain(), before));
    EXPECT_TRUE(bus.names().isEmpty());
    clearAlt();
    ASSERT_TRUE(settings->waitForWindows(2));
    settings->settledPicture();
    pressKey(KEY_TAB);
    pressKey(KEY_SPACE);
    pressKey(KEY_ENTER);
    ASSERT_TRUE(settings->waitForWindows(1));
    QVariantMap suppressed = before;
    suppressed.insert(KTXSuppressModAlert, true);
    EXPECT_TRUE(waitUntil([&] { return isEqualPropertyList(domain(), suppressed); }));
    EXPECT_TRUE(waitUntil([this] { return bus.names() == QStringList{KTXLMPrefsChanged}; }))
        << "stored, then announced";
    EXPECT_EQ(bell.rings(), 0);
    clearAlt();
    EXPECT_TRUE(waitUntil([&] { return bell.rings() == 1; }));
    EXPECT_EQ(settings->windows().size(), 1);
    EXPECT_TRUE(isEqualPropertyList(domain(), suppressed));
    EXPECT_EQ(bus.names(), QStringList{KTXLMPrefsChanged});
}

TEST_F(PaneSheet, leavesTheKeyboardWhereItWas)
{
    showSheet();
    pressKey(KEY_ENTER);
    ASSERT_TRUE(settings->waitForWindows(1));
    // On the box of Alt, the only modifier: Space is refused once more.
    pressKey(KEY_SPACE);
    EXPECT_TRUE(settings->waitForWindows(2));
}

TEST_F(PaneSheet, mustBeAnsweredBeforeTheWindowIsClosed)
{
    showSheet();
    const quint32 window = settings->windows().first().id;
    // The window manager passes these on in turn.
    askToClose(window);
    askToClose(settings->windows().last().id);
    ASSERT_TRUE(settings->waitForWindows(1));
    EXPECT_TRUE(settings->isRunning());
    askToClose(window);
    EXPECT_EQ(settings->exitStatus(), 0);
}

TEST_F(PaneSheet, doesNotKeepTheSettingsFromBeingEnded)
{
    showSheet();
    const QVariantMap before = domain();
    settings->signal(SIGTERM);
    EXPECT_EQ(settings->exitStatus(), 0);
    EXPECT_TRUE(isEqualPropertyList(domain(), before));
}

TEST_F(PaneSheet, staysInFrontWhenTheSettingsAreOpenedAgain)
{
    showSheet();
    const quint32 sheet = settings->windows().last().id;
    SettingsProgram second;
    EXPECT_EQ(second.exitStatus(), 0);
    ASSERT_TRUE(settings->waitForWindows(2));
    EXPECT_EQ(settings->windows().last().id, sheet);
    pressKey(KEY_ESC);
    EXPECT_TRUE(settings->waitForWindows(1));
}

TEST_F(PaneSheet, keepsItsPaneUntilItIsAnsweredAndThenGoesOn)
{
    const PaneBundle other("Other");
    showSheet();
    const QVariantMap before = domain();
    const quint32 sheet = settings->windows().last().id;
    for (const auto &[key, held] : std::initializer_list<std::pair<int, int>>{
             {KEY_LEFT, KEY_LEFTALT}, {KEY_F, KEY_LEFTCTRL}, {KEY_Q, KEY_LEFTCTRL}, {KEY_W, KEY_LEFTCTRL}})
        pressKey(key, {held});
    SettingsProgram second({other.path()});
    EXPECT_EQ(second.exitStatus(), 0);
    ASSERT_TRUE(settings->waitForWindows(2));
    EXPECT_EQ(settings->windows().first().title, "Lumaroo");
    EXPECT_EQ(settings->windows().last().id, sheet);
    EXPECT_TRUE(bus.names().isEmpty());
    pressKey(KEY_ESC);
    ASSERT_TRUE(comesToShow("Other"));
    ASSERT_TRUE(settings->waitForWindows(1));
    EXPECT_TRUE(waitUntil([&] { return other.calls().contains("didSelect shown"); }));
    SettingsProgram third;
    EXPECT_EQ(third.exitStatus(), 0);
    ASSERT_TRUE(comesToShow("Lumaroo"));
    settings->settledPicture();
    EXPECT_EQ(settings->windows().size(), 1);
    EXPECT_TRUE(isEqualPropertyList(domain(), before));
    // Leaving announces once, showing with its zero cell twice.
    EXPECT_EQ(bus.names(), QStringList(3, KTXLMPrefsChanged));
}
