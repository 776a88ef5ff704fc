// Who shows what is stored is told when that changes.

#include "PrivateSettings.h"
#include "SystemCallFaults.h"
#include "platform/foundation/notifications/NSNotificationCenter.h"

class SettingsChangeNotification : public PrivateSettings
{
protected:
    SettingsChangeNotification()
    {
        NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
            &observer_,
            [this](const NSNotification &) { seen += CFPreferencesCopyAppValue("key", testDomain).toString(); },
            NSUserDefaultsDidChangeNotification, testDomain);
    }

    /// The key's values as each notification's observer found them, since the last call.
    QStringList told() { return std::exchange(seen, {}); }
    static void set(const QVariant &value) { CFPreferencesSetAppValue("key", value, testDomain); }
    static QVariant read() { return CFPreferencesCopyAppValue("key", testDomain); }
    static bool flush() { return CFPreferencesAppSynchronize(testDomain); }

    QStringList seen;

private:
    QObject observer_;
};

TEST_F(SettingsChangeNotification, comesWithEachValueThatIsSetAndNotWithItsFlush)
{
    set("one");
    EXPECT_EQ(told(), QStringList("one"));
    EXPECT_TRUE(flush());
    EXPECT_EQ(told(), QStringList());
    set("two");
    set("three");
    EXPECT_EQ(told(), QStringList({"two", "three"}));
    set(QVariant());
    EXPECT_EQ(told(), QStringList(QString()));
    EXPECT_TRUE(flush());
    EXPECT_EQ(told(), QStringList());
}

TEST_F(SettingsChangeNotification, doesNotComeWhereTheSameIsSetAgain)
{
    set("one");
    EXPECT_TRUE(flush());
    told();
    set("one");
    EXPECT_TRUE(flush());
    replaceDomain({{"key", "one"}});
    EXPECT_EQ(told(), QStringList());
}

TEST_F(SettingsChangeNotification, comesWithAWholeDomainThatDiffers)
{
    replaceDomain({{"key", "one"}});
    EXPECT_EQ(told(), QStringList("one"));
    replaceDomain({{"key", "one"}, {"other", true}});
    EXPECT_EQ(told(), QStringList("one"));
    replaceDomain({});
    EXPECT_EQ(told(), QStringList(QString()));
}

TEST_F(SettingsChangeNotification, doesNotComeWithTheFirstReading)
{
    store({{"key", "one"}});
    EXPECT_EQ(read(), "one");
    EXPECT_EQ(wholeDomain().size(), 1);
    EXPECT_TRUE(flush());
    EXPECT_EQ(told(), QStringList());
}

TEST_F(SettingsChangeNotification, comesOnceWhenAReadingFindsWhatOthersWrote)
{
    store({{"key", "one"}});
    read();
    store({{"key", "two"}});
    EXPECT_EQ(read(), "two");
    EXPECT_EQ(told(), QStringList("two"));
    EXPECT_EQ(read(), "two");
    EXPECT_EQ(told(), QStringList());
    store({{"key", "three"}});
    EXPECT_EQ(wholeDomain().value("key"), "three");
    EXPECT_EQ(told(), QStringList("three"));
    ASSERT_TRUE(QFile::remove(path()));
    read();
    EXPECT_EQ(told(), QStringList(QString()));
}

TEST_F(SettingsChangeNotification, comesWhenAFlushFindsWhatOthersWrote)
{
    read();
    CFPreferencesSetAppValue("ours", true, testDomain);
    told();
    store({{"key", "theirs"}});
    EXPECT_TRUE(flush());
    EXPECT_EQ(told(), QStringList("theirs"));
    EXPECT_EQ(stored(), QVariantMap({{"key", "theirs"}, {"ours", true}}));
}

TEST_F(SettingsChangeNotification, doesNotComeWhereOthersWroteTheSameAnew)
{
    store({{"key", "one"}});
    read();
    // Another file of the same content.
    ASSERT_TRUE(QFile::rename(path(), path() + "-old"));
    store({{"key", "one"}});
    read();
    EXPECT_TRUE(flush());
    EXPECT_EQ(told(), QStringList());
}

TEST_F(SettingsChangeNotification, doesNotComeAgainWithAFlushThatSucceedsOnlyLater)
{
    read();
    failOnce(&SystemCalls::rename, 1, EIO);
    set("one");
    EXPECT_EQ(told(), QStringList("one"));
    EXPECT_FALSE(flush());
    EXPECT_EQ(log.lines().size(), 1);
    log.clear();
    EXPECT_TRUE(flush());
    EXPECT_EQ(stored().value("key"), "one");
    EXPECT_EQ(told(), QStringList());
}

TEST_F(SettingsChangeNotification, namesItsDomain)
{
    QObject observer;
    QVariantList domains;
    NSNotificationCenter::defaultCenter()->addObserverSelectorNameObject(
        &observer, [&](const NSNotification &notification) { domains += notification.object; },
        NSUserDefaultsDidChangeNotification);
    CFPreferencesSetAppValue("key", true, "com.example.other");
    EXPECT_EQ(domains, QVariantList{"com.example.other"});
    EXPECT_EQ(told(), QStringList());
}
