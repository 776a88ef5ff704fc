// The real settings, the real agent and a user without a mouse who does what does not go with keys and modifiers.

#include "BellListener.h"
#include "KTXConstants.h"
#include "KeyPress.h"
#include "ProductOnHotKeyPage.h"
#include "Wait.h"

#include <linux/input-event-codes.h>

namespace {

constexpr int onlyShift = 0x200;
constexpr int onlyAlt = 0x800;
constexpr int controlAndAlt = 0x1800;
constexpr int keyCodeOfB = 11;

class KeyAlertsByUser : public ProductOnHotKeyPage
{
protected:
    void giveRightTheKeyForDown() { storeOutside(KTXRightPref, hotKey(125)); }
    /// Away from the keys and back to them.
    void turnToKeysAgain(int windows)
    {
        const QImage keys = settings->settledPicture();
        pressKey(KEY_TAB, {KEY_LEFTCTRL, KEY_LEFTSHIFT});
        ASSERT_FALSE(settings->pictureAfterChangeFrom(keys).isNull());
        turnToKeys(windows);
        // Each turn reads and announces.
        EXPECT_EQ(bus.names(), (QStringList{KTXLMPrefsChanged, KTXLMPrefsChanged}));
        bus.clear();
    }
    bool rings(int times)
    {
        return waitUntil([&] { return bell.rings() == times; });
    }

    BellListener bell;
};

} // namespace

TEST_F(KeyAlertsByUser, conflictsAreToldAtTheOpeningAndWithThePageUntilTheUserSuppressesIt)
{
    giveRightTheKeyForDown();
    open(2);
    closeSheet();
    expectNothingStored();
    turnToKeys(2);
    bus.clear();
    closeSheet();
    expectNothingStored();
    turnToKeysAgain(2);
    suppressAndClose();
    expectStoredAndAnnounced(KTXsuppressHKeysTaken, true);
    turnToKeysAgain(1);
    expectNothingStored();
    EXPECT_EQ(bell.rings(), 0);
}

TEST_F(KeyAlertsByUser, aConflictThatIsSolvedIsNotToldOfAnyMore)
{
    giveRightTheKeyForDown();
    open(2);
    closeSheet();
    turnToKeys(2);
    closeSheet();
    goToKeyForUp();
    pressTab(3);
    remember();
    pressKey(KEY_B);
    expectStored(KTXRightPref, keyCodeOfB);
    turnToKeysAgain(1);
    expectNothingStored();
    quit();
    openAgain(1);
}

TEST_F(KeyAlertsByUser, aSuppressedRefusalOnlyBeeps)
{
    open();
    turnToKeys();
    goToKeyForUp();
    remember();
    pressKey(KEY_SPACE);
    ASSERT_TRUE(settings->waitForWindows(2));
    suppressAndClose();
    expectStoredAndAnnounced(KTXSuppressHKeyTaken, true);
    EXPECT_EQ(bell.rings(), 0);
    pressKey(KEY_SPACE);
    EXPECT_TRUE(rings(1));
    pressKey(KEY_LEFT);
    EXPECT_TRUE(rings(2));
    expectNothingStored();
    EXPECT_EQ(settings->windows().size(), 1);
    pressKey(KEY_B);
    expectStored(KTXUpPref, keyCodeOfB);
    EXPECT_EQ(bell.rings(), 2);
}

TEST_F(KeyAlertsByUser, theLastModifierStaysUntilAnotherIsThere)
{
    storeOutside(KTXModifierMask, onlyAlt);
    open();
    turnToKeys();
    pressTab(3);
    remember();
    pressKey(KEY_SPACE);
    ASSERT_TRUE(settings->waitForWindows(2));
    closeSheet();
    expectNothingStored();
    pressKey(KEY_TAB, {KEY_LEFTSHIFT});
    pressKey(KEY_SPACE);
    expectStored(KTXModifierMask, controlAndAlt, controlAndAlt);
    pressKey(KEY_TAB);
    pressKey(KEY_SPACE);
    expectStored(KTXModifierMask, 0x1000, 0x1000);
    EXPECT_EQ(settings->windows().size(), 1);
}

TEST_F(KeyAlertsByUser, withNoModifierStoredEachOpeningSaysSoAndStoresNothing)
{
    storeOutside(KTXModifierMask, 0);
    open(2);
    EXPECT_EQ(before.value(KTXModifierMask), QVariant(0LL));
    closeSheet();
    expectNothingStored();
    quit();
    openAgain(2);
    suppressAndClose();
    expectStoredAndAnnounced(KTXSuppressModAlert, true);
    quit();
    EXPECT_EQ(bell.rings(), 0);
    openAgain(1);
    EXPECT_TRUE(rings(1));
    EXPECT_EQ(before.value(KTXModifierMask), QVariant(0LL));
    turnToKeys();
    pressTab(1);
    remember();
    pressKey(KEY_SPACE);
    expectStored(KTXModifierMask, onlyShift, onlyShift);
    quit();
    openAgain(1);
    EXPECT_EQ(bell.rings(), 1);
}
