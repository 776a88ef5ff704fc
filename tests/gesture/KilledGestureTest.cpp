// A process that is killed while the keyboard is its own.

#include "OtherClient.h"
#include "Wait.h"

#include <QProcess>
#include <csignal>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace {

constexpr quint16 controlAndAlt = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1;

class KilledGesture : public testing::Test
{
public:
    KilledGesture()
    {
        program.start(qEnvironmentVariable("LUMAROO_BUILD") + QStringLiteral("/tests/programs/grabber"), QStringList());
        EXPECT_TRUE(waitUntil([this] { return program.canReadLine(); }));
        EXPECT_EQ(program.readLine(), "grabbed\n");
        EXPECT_FALSE(other.grabKeyboard());
        EXPECT_TRUE(other.isHeldElsewhere(KEY_1, controlAndAlt));
        EXPECT_TRUE(other.isHeldElsewhere(KEY_RIGHT, controlAndAlt));
    }
    ~KilledGesture() override
    {
        program.kill();
        program.waitForFinished();
    }

    void send(int signal) { EXPECT_EQ(kill(pid_t(program.processId()), signal), 0); }
    void expectNothingIsHeld()
    {
        EXPECT_TRUE(waitUntil([this] { return other.grabKeyboard(); }));
        for (const int key : {KEY_1, KEY_RIGHT})
            EXPECT_TRUE(waitUntil([&] { return !other.isHeldElsewhere(key, controlAndAlt); })) << key;
    }

    QProcess program;
    OtherClient other;
};

} // namespace

TEST_F(KilledGesture, leavesTheKeyboardFree)
{
    send(SIGKILL);
    expectNothingIsHeld();
}

TEST_F(KilledGesture, leavesTheKeyboardFreeAlsoWhenItWasStoppedBefore)
{
    send(SIGSTOP);
    EXPECT_FALSE(other.grabKeyboard());
    send(SIGKILL);
    expectNothingIsHeld();
}

TEST_F(KilledGesture, leavesTheKeyboardFreeWhenItIsToldToEnd)
{
    send(SIGTERM);
    expectNothingIsHeld();
}
