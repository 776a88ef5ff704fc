#include "PrivateSettings.h"
#include "SystemCallFaults.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

// Several processes on one domain, and processes that die.

class SettingsProcesses : public PrivateSettings
{
protected:
    /// Runs `work` in a process of its own, which ends with 0 if it returned true.
    static pid_t start(const std::function<bool()> &work)
    {
        const pid_t process = fork();
        if (process == 0)
            _exit(work() ? 0 : 1);
        return process;
    }
    static int waitFor(pid_t process)
    {
        int status = -1;
        while (waitpid(process, &status, 0) < 0 && errno == EINTR) { }
        return status;
    }
    static bool wasKilled(int status) { return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL; }

    static bool writeGeneration(int generation)
    {
        CFPreferencesSetAppValue("generation", generation, testDomain);
        CFPreferencesSetAppValue("filler", QString(generation % 5000, u'x'), testDomain);
        return CFPreferencesAppSynchronize(testDomain);
    }
    /// The generation that the file holds, whole; -1 where it is not.
    int storedGeneration() const
    {
        const QVariantMap values = stored();
        const int generation = values.value("generation", -1).toInt();
        return values.value("filler").toString().size() == generation % 5000 ? generation : -1;
    }
};

TEST_F(SettingsProcesses, twoWriteTwoThousandKeysEachAndNoneIsLost)
{
    constexpr int keys = 2000;
    constexpr int keysInAFlush = 8;
    constexpr int mostAttempts = 30;
    const auto writer = [](const QString &prefix) {
        return [prefix] {
            for (int number = 0; number < keys; ++number) {
                CFPreferencesSetAppValue(prefix + QString::number(number), number, testDomain);
                // One that finds no turn in time keeps its keys for the next flush.
                if (number % keysInAFlush == 0)
                    CFPreferencesAppSynchronize(testDomain);
            }
            int attempts = 0;
            while (!CFPreferencesAppSynchronize(testDomain) && attempts < mostAttempts)
                ++attempts;
            return attempts < mostAttempts;
        };
    };
    const pid_t first = start(writer("first"));
    const pid_t second = start(writer("second"));
    EXPECT_EQ(waitFor(first), 0);
    EXPECT_EQ(waitFor(second), 0);
    const QVariantMap values = stored();
    EXPECT_EQ(values.size(), 2 * keys);
    for (int number = 0; number < keys; ++number) {
        EXPECT_EQ(values.value("first" + QString::number(number), -1).toInt(), number);
        EXPECT_EQ(values.value("second" + QString::number(number), -1).toInt(), number);
    }
}

TEST_F(SettingsProcesses, oneKilledAtAnySystemCallLeavesTheOldOrTheNewFileWhole)
{
    int generation = 1000;
    ASSERT_TRUE(writeGeneration(generation));
    int killings = 0;
    for (int status = SIGKILL; status != 0; ++generation) {
        const pid_t process = start([generation, killings] {
            const auto callsLeft = std::make_shared<int>(killings + 1);
            const auto dieInTime = [callsLeft] {
                if (--*callsLeft == 0)
                    raise(SIGKILL);
            };
            observe(&SystemCalls::open, dieInTime);
            observe(&SystemCalls::close, dieInTime);
            observe(&SystemCalls::fsync, dieInTime);
            observe(&SystemCalls::rename, dieInTime);
            observe(&SystemCalls::flock, dieInTime);
            observe(&SystemCalls::write, dieInTime);
            systemCalls().write = [original = systemCalls().write](int descriptor, const void *bytes, size_t size) {
                return original(descriptor, bytes, std::min(size, size_t(200)));
            };
            return writeGeneration(generation + 1);
        });
        status = waitFor(process);
        ASSERT_TRUE(status == 0 || wasKilled(status));
        ASSERT_TRUE(storedGeneration() == generation || storedGeneration() == generation + 1)
            << "after call " << killings;
        killings += status != 0;
        ASSERT_TRUE(writeGeneration(generation + 1));
        ASSERT_FALSE(QFileInfo::exists(folder() + "/." + testDomain + ".plist.new"));
    }
    EXPECT_GT(killings, 12);
}

TEST_F(SettingsProcesses, twoHundredKilledAtAnyMomentLeaveTheOldOrTheNewFileWhole)
{
    ASSERT_TRUE(writeGeneration(0));
    for (int round = 0; round < 200; ++round) {
        int saved[2];
        ASSERT_EQ(pipe(saved), 0);
        const int first = storedGeneration() + 1;
        const pid_t process = start([first, &saved] {
            for (int generation = first;; ++generation) {
                if (!writeGeneration(generation) || write(saved[1], "", 1) != 1)
                    return false;
            }
        });
        close(saved[1]);
        char bytes[4];
        const ssize_t count = read(saved[0], bytes, size_t(round % 4 + 1));
        kill(process, SIGKILL);
        ASSERT_TRUE(wasKilled(waitFor(process)));
        close(saved[0]);
        ASSERT_GE(storedGeneration(), first + int(count) - 1) << "in round " << round;
    }
    EXPECT_FALSE(QFileInfo::exists(path() + "~1"));
}

TEST_F(SettingsProcesses, aLockDiesWithItsHolder)
{
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t process = start([&ready] {
        systemCalls().write = [&ready](int, const void *, size_t) -> ssize_t {
            if (::write(ready[1], "", 1) == 1)
                pause();
            return -1;
        };
        return writeGeneration(1);
    });
    char byte;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    kill(process, SIGKILL);
    ASSERT_TRUE(wasKilled(waitFor(process)));
    EXPECT_TRUE(writeGeneration(2));
    close(ready[0]);
    close(ready[1]);
}
