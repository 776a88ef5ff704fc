#include "PrivateSettings.h"
#include "SystemCallFaults.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"

// A choice that could not be stored, and that its user was told is not taken.

namespace {

class SettingsTakenBack : public PrivateSettings
{
protected:
    void SetUp() override
    {
        store({{"key", "old"}});
        CFPreferencesSetAppValue("key", "new", testDomain);
        failOnce(&SystemCalls::write, 1, EIO);
        EXPECT_FALSE(CFPreferencesAppSynchronize(testDomain));
        log.clear();
    }
};

} // namespace

TEST_F(SettingsTakenBack, areAsTheFileHasThem)
{
    LMPreferencesTakeBackAppValue("key", testDomain);
    EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain), QVariant("old"));
    store({{"key", "theirs"}});
    EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain), QVariant("theirs"));
}

TEST_F(SettingsTakenBack, areNotStoredWithWhatIsStoredNext)
{
    CFPreferencesSetAppValue("other", 2, testDomain);
    LMPreferencesTakeBackAppValue("key", testDomain);
    EXPECT_TRUE(CFPreferencesAppSynchronize(testDomain));
    EXPECT_TRUE(isEqualPropertyList(stored(), QVariantMap({{"key", "old"}, {"other", 2}})));
}

TEST_F(SettingsTakenBack, areToldOfOnce)
{
    QObject observer;
    int changes = 0;
    NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
        &observer, [&](const NSNotification &) { ++changes; }, NSUserDefaultsDidChangeNotification, testDomain);
    LMPreferencesTakeBackAppValue("key", testDomain);
    LMPreferencesTakeBackAppValue("key", testDomain);
    NSNotificationCenter::defaultCenter()->removeObserver(&observer);
    EXPECT_EQ(changes, 1);
}
