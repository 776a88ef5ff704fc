#include "PrivateSettings.h"
#include "SystemCallFaults.h"

// That a read sees the file as it is, and what it costs to know.

class SettingsChangedByOthers : public PrivateSettings
{
protected:
    /// From now on a file's times tell less, as on a file system that keeps whole seconds.
    template <typename Cut>
    static void cutFileTimes(Cut cut)
    {
        systemCalls().stat = [cut](const char *name, struct stat *status) {
            const int result = ::stat(name, status);
            cut(status);
            return result;
        };
        systemCalls().fstat = [cut](int file, struct stat *status) {
            const int result = ::fstat(file, status);
            cut(status);
            return result;
        };
    }
};

TEST_F(SettingsChangedByOthers, whatAnotherProcessWroteIsReadWithoutAFlush)
{
    store({{"key", 1}});
    EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain).toInt(), 1);
    store({{"key", 2}});
    EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain).toInt(), 2);
    ASSERT_TRUE(QFile::remove(path()));
    EXPECT_FALSE(CFPreferencesCopyAppValue("key", testDomain).isValid());
}

TEST_F(SettingsChangedByOthers, aChangeOfEqualSizeWithinTheSameInstantIsSeen)
{
    cutFileTimes([](struct stat *status) { status->st_mtim.tv_nsec = status->st_ctim.tv_nsec = 0; });
    for (int value = 0; value < 200; ++value) {
        putFile(writeBinaryPropertyList(QVariantMap{{"key", value}}));
        ASSERT_EQ(CFPreferencesCopyAppValue("key", testDomain).toInt(), value);
        ASSERT_EQ(wholeDomain().value("key").toInt(), value);
    }
}

TEST_F(SettingsChangedByOthers, aChangeInPlaceRightAfterAReadIsSeen)
{
    cutFileTimes([](struct stat *status) { status->st_mtim = status->st_ctim = {1'700'000'000, 0}; });
    systemCalls().realTime = [] { return std::chrono::nanoseconds(std::chrono::seconds(1'700'000'001)); };
    store({{"key", 1}});
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    for (int value = 2; value < 20; ++value) {
        ASSERT_EQ(CFPreferencesCopyAppValue("key", testDomain).toInt(), value - 1);
        ASSERT_TRUE(file.seek(0));
        const QByteArray bytes = writeBinaryPropertyList(QVariantMap{{"key", value}});
        ASSERT_EQ(bytes.size(), file.size());
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
}

TEST_F(SettingsChangedByOthers, aFileThatChangedAMomentAgoIsComparedWithOneReadForEachKey)
{
    store({{"key", 1}});
    EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain).toInt(), 1);
    int read = 0;
    int opened = 0;
    observe(&SystemCalls::pread, [&read] { ++read; });
    observe(&SystemCalls::open, [&opened] { ++opened; });
    systemCalls().realTime = [this] { return std::chrono::seconds(statusOf(path()).st_mtim.tv_sec + 1); };
    for (int round = 0; round < 10; ++round)
        EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain).toInt(), 1);
    EXPECT_EQ(read, 10);
    EXPECT_EQ(opened, 0);
}

TEST_F(SettingsChangedByOthers, aFileThatHasNotChangedForAWhileIsNotReadAgain)
{
    store({{"key", 1}});
    systemCalls().realTime = [original = systemCalls().realTime] { return original() + std::chrono::seconds(10); };
    EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain).toInt(), 1);
    int opened = 0;
    int read = 0;
    observe(&SystemCalls::open, [&opened] { ++opened; });
    observe(&SystemCalls::pread, [&read] { ++read; });
    for (int round = 0; round < 10; ++round)
        EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain).toInt(), 1);
    EXPECT_EQ(opened + read, 0);
    store({{"key", 2}});
    EXPECT_EQ(CFPreferencesCopyAppValue("key", testDomain).toInt(), 2);
    EXPECT_EQ(opened, 1);
}
