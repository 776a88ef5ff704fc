// What the tracker of presses makes of each event, and what it asks of the server then.

#include "platform/foundation/hotkeys/internal/PressTracker.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace {

using Kind = KeyboardEvent::Kind;

constexpr quint8 A = 38, B = 56;
constexpr quint16 control = 4, shift = 1;
const KeyGrab hotKey{A, control};

/// One event, and what the tracker tells and orders then.
struct Row
{
    KeyboardEvent event;
    const char *expected;
};

KeyboardEvent press(quint8 key, quint32 sequence = 0, quint16 modifiers = control)
{
    return {Kind::Press, {key, modifiers}, sequence, {}};
}

KeyboardEvent release(quint8 key, quint32 sequence = 0)
{
    return {Kind::Release, {key, 0}, sequence, {}};
}

KeyboardEvent modifiers(quint16 now, quint32 sequence = 0)
{
    return {Kind::ModifiersChanged, {0, now}, sequence, {}};
}

KeyboardEvent answer(std::initializer_list<quint8> held, quint32 sequence = 0)
{
    KeyboardEvent event{Kind::HeldKeysAnswered, {}, sequence, {}};
    for (const quint8 key : held)
        event.held.set(key);
    return event;
}

QString textOf(ServerOrder order)
{
    switch (order) {
    case ServerOrder::WatchReleases:
        return QStringLiteral("watch");
    case ServerOrder::IgnoreReleases:
        return QStringLiteral("ignore");
    case ServerOrder::LetKeyboardGo:
        return QStringLiteral("let go");
    case ServerOrder::AskHeldKeys:
        return QStringLiteral("ask");
    }
    return {};
}

QString textOf(const PressTracker::Step &step)
{
    QStringList parts;
    if (step.told)
        parts += step.told->kind == HotKeyInput::Kind::Press ? QString::number(step.told->press.keycode) : "changed";
    for (const ServerOrder order : step.orders)
        parts += textOf(order);
    return parts.join(QStringLiteral(", "));
}

struct Sequence
{
    const char *name;
    QList<Row> rows;
};
using PressTrackerFollows = testing::TestWithParam<Sequence>;

std::string nameOf(const testing::TestParamInfo<Sequence> &info)
{
    return info.param.name;
}

} // namespace

TEST_P(PressTrackerFollows, theServersOrder)
{
    PressTracker tracker;
    tracker.add({hotKey, {B, control}});
    for (const Row &row : GetParam().rows) {
        tracker.take(row.event);
        ASSERT_TRUE(tracker.hasEvents());
        EXPECT_EQ(textOf(tracker.handleNext()), row.expected);
    }
    EXPECT_FALSE(tracker.hasEvents());
}

INSTANTIATE_TEST_SUITE_P(Sequence, PressTrackerFollows,
    testing::Values(Sequence{"aPressAndItsRelease",
                        {{press(A), "38, watch, let go, ask"}, {answer({A}), ""}, {release(A), "ignore"},
                            {press(A), "38, watch, let go, ask"}}},
        Sequence{"aPressReleasedBeforeReleasesWereWatched",
            {{press(A), "38, watch, let go, ask"}, {answer({}), "ignore"}, {press(A), "38, watch, let go, ask"}}},
        Sequence{"repeats",
            {{press(A), "38, watch, let go, ask"}, {answer({A}), ""}, {press(A), "let go"}, {press(A), "let go"},
                {release(A), "ignore"}, {press(A), "38, watch, let go, ask"}}},
        Sequence{"twoKeysAtOnce",
            {{press(A), "38, watch, let go, ask"}, {answer({A}), ""}, {press(B), "56, let go, ask"},
                {answer({A, B}), ""}, {release(A), ""}, {press(A), "38, let go, ask"}, {answer({A, B}), ""},
                {release(B), ""}, {release(A), "ignore"}}},
        Sequence{"aReleaseToldTwice",
            {{press(A), "38, watch, let go, ask"}, {answer({A}), ""}, {release(A), "ignore"}, {release(A), ""}}},
        Sequence{"modifiersThatMakeNoHotKey", {{modifiers(shift), ""}, {modifiers(control | shift), ""}}},
        Sequence{"modifiersUnderAHeldKey",
            {{modifiers(control), "watch, ask"}, {answer({A}), ""}, {press(A), "let go"}, {release(A), "ignore"},
                {press(A), "38, watch, let go, ask"}}},
        Sequence{"modifiersWithoutAKey",
            {{modifiers(control), "watch, ask"}, {answer({}), "ignore"}, {press(A), "38, watch, let go, ask"}}},
        Sequence{"modifiersUnderAnotherKey", {{modifiers(control), "watch, ask"}, {answer({99}), "ignore"}}},
        Sequence{"aReleaseWhileTheAnswerIsOutstanding",
            {{modifiers(control), "watch, ask"}, {release(A), ""}, {answer({A}), ""}, {release(A), "ignore"}}},
        Sequence{"aChangeOfTheKeyboard", {{{Kind::KeyboardChanged, {}, 0, {}}, "changed"}}}),
    nameOf);

TEST(PressTracker, asksForReleasesBeforeItAsksWhichKeysAreDown)
{
    PressTracker tracker;
    EXPECT_EQ(tracker.prepareToGrab(), (std::vector{ServerOrder::WatchReleases, ServerOrder::AskHeldKeys}));
    EXPECT_EQ(tracker.prepareToGrab(), std::vector{ServerOrder::AskHeldKeys}) << "they are watched already";
}

TEST(PressTracker, putsAnAnswerWhereTheServerGaveIt)
{
    PressTracker tracker;
    tracker.add({hotKey});
    tracker.take(press(A, 6));
    tracker.take(release(A, 6));
    tracker.take(press(A, 7));
    EXPECT_FALSE(tracker.isAnswerNext());
    tracker.take(answer({}, 7));
    EXPECT_EQ(textOf(tracker.handleNext()), "38, watch, let go, ask");
    EXPECT_EQ(textOf(tracker.handleNext()), "");
    EXPECT_TRUE(tracker.isAnswerNext());
    EXPECT_EQ(textOf(tracker.handleNext()), "ignore");
    EXPECT_EQ(textOf(tracker.handleNext()), "38, watch, let go, ask");
}

TEST(PressTracker, countsRequestsPastTheGreatestNumber)
{
    PressTracker tracker;
    tracker.add({hotKey});
    tracker.take(press(A, 0xffffffff));
    tracker.take(answer({A}, 1));
    EXPECT_FALSE(tracker.isAnswerNext());
}

TEST(PressTracker, forgetsWhatIsNotGrabbedAnyMore)
{
    PressTracker tracker;
    tracker.add({hotKey});
    tracker.remove({hotKey});
    tracker.take(modifiers(control));
    EXPECT_TRUE(tracker.handleNext().orders.empty());
}

TEST(PressTracker, knowsOfAChangeOfTheKeyboardBeforeItIsTold)
{
    PressTracker tracker;
    EXPECT_FALSE(tracker.isKeyboardChangePending());
    tracker.take(press(A));
    tracker.take({Kind::KeyboardChanged, {}, 0, {}});
    EXPECT_TRUE(tracker.isKeyboardChangePending());
}
