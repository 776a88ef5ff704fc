// Which presses of grabbed keys count, whatever happens between what the server does and what is asked of it.

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

/// An X server with a keyboard of one key and Control, as far as one client sees it.
class Server
{
public:
    bool isGrabbed = false; ///< by the client, the one combination
    QList<KeyboardEvent> sent;
    HeldKeys answer;
    int presses = 0; ///< of the combination

    quint32 sequence() const { return sequence_; }

    void keyDown()
    {
        isDown_ = true;
        if (!isGrabbed || modifiers_ != control)
            return;
        ++presses;
        hasKeyboard_ = true;
        send(Kind::Press);
    }
    void repeat()
    {
        if (!hasKeyboard_ && (!isGrabbed || modifiers_ != control))
            return;
        hasKeyboard_ = true;
        send(Kind::Press);
    }
    void keyUp()
    {
        isDown_ = false;
        if (isWatched_)
            send(Kind::Release);
        if (std::exchange(hasKeyboard_, false))
            send(Kind::Release);
    }
    void hold(quint16 modifiers)
    {
        modifiers_ = modifiers;
        send(Kind::ModifiersChanged);
    }
    void carryOut(ServerOrder order)
    {
        ++sequence_;
        switch (order) {
        case ServerOrder::WatchReleases:
        case ServerOrder::IgnoreReleases:
            isWatched_ = order == ServerOrder::WatchReleases;
            break;
        case ServerOrder::LetKeyboardGo:
            hasKeyboard_ = false;
            break;
        case ServerOrder::AskHeldKeys:
            answer.set(A, isDown_);
            break;
        }
    }

private:
    void send(Kind kind) { sent += KeyboardEvent{kind, {A, modifiers_}, sequence_, {}}; }

    bool isDown_ = false;
    bool hasKeyboard_ = false;
    bool isWatched_ = false;
    quint16 modifiers_ = 0;
    quint32 sequence_ = 0;
};

/// The program beside it, one step at a time.
class Client
{
public:
    int told = 0;

    /// The combination is the client's from the beginning.
    void haveGrab(Server &server)
    {
        tracker_.add({hotKey});
        server.isGrabbed = true;
    }
    void beginToGrab()
    {
        orders_ = tracker_.prepareToGrab();
        isGrabWanted_ = true;
    }
    /// False where there is nothing to do.
    bool step(Server &server)
    {
        if (!orders_.empty())
            carryOutFirst(server);
        else if (std::exchange(isGrabWanted_, false))
            haveGrab(server);
        else
            return handle(server);
        return true;
    }

private:
    void carryOutFirst(Server &server)
    {
        const ServerOrder order = orders_.front();
        orders_.erase(orders_.begin());
        server.carryOut(order);
        if (order == ServerOrder::AskHeldKeys)
            question_ = server.sequence();
    }
    bool handle(Server &server)
    {
        for (const KeyboardEvent &event : std::exchange(server.sent, {}))
            tracker_.take(event);
        if (question_)
            tracker_.take({Kind::HeldKeysAnswered, {}, *question_, server.answer});
        question_.reset();
        if (!tracker_.hasEvents())
            return false;
        const PressTracker::Step step = tracker_.handleNext();
        told += step.told.has_value();
        orders_ = step.orders;
        return true;
    }

    PressTracker tracker_;
    std::vector<ServerOrder> orders_;
    std::optional<quint32> question_;
    bool isGrabWanted_ = false;
};

using Move = void (*)(Server &);

const Move keyDown = [](Server &server) { server.keyDown(); };
const Move keyUp = [](Server &server) { server.keyUp(); };
const Move repeat = [](Server &server) { server.repeat(); };
const Move controlDown = [](Server &server) { server.hold(control); };
const Move controlUp = [](Server &server) { server.hold(0); };

/// Tries every way in which the moves may fall between the client's steps; how many there were.
int expectEachPressOnce(const Server &server, const Client &client, const QList<Move> &moves, const QString &way = {})
{
    Server afterStep = server;
    Client stepped = client;
    const bool isBusy = stepped.step(afterStep);
    if (moves.isEmpty() && !isBusy) {
        EXPECT_EQ(client.told, server.presses) << qPrintable(way);
        return 1;
    }
    int ways = 0;
    if (isBusy)
        ways += expectEachPressOnce(afterStep, stepped, moves, way + u's');
    if (!moves.isEmpty()) {
        Server moved = server;
        moves.first()(moved);
        ways += expectEachPressOnce(moved, client, moves.mid(1), way + u'm');
    }
    return ways;
}

struct Sequence
{
    const char *name;
    QList<Row> rows;
};

class PressTrackerFollows : public testing::TestWithParam<Sequence>
{
};

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
    EXPECT_EQ(textOf(tracker.handleNext()), "");
}

TEST(PressTracker, knowsOfAChangeOfTheKeyboardBeforeItIsTold)
{
    PressTracker tracker;
    EXPECT_FALSE(tracker.isKeyboardChangePending());
    tracker.take(press(A));
    tracker.take({Kind::KeyboardChanged, {}, 0, {}});
    EXPECT_TRUE(tracker.isKeyboardChangePending());
}

TEST(PressTracker, countsEachPressOnceHoweverFastTheKeyIs)
{
    Server server;
    Client client;
    client.haveGrab(server);
    server.hold(control);
    EXPECT_GT(expectEachPressOnce(server, client, {keyDown, keyUp, keyDown, keyUp, keyDown}), 1000);
}

TEST(PressTracker, countsNoRepeatOfAPress)
{
    Server server;
    Client client;
    client.haveGrab(server);
    server.hold(control);
    EXPECT_GT(expectEachPressOnce(server, client, {keyDown, repeat, repeat, keyUp, keyDown}), 1000);
}

TEST(PressTracker, losesNoPressWhenModifiersGoUpAndDownUnderAHeldKey)
{
    Server server;
    Client client;
    client.haveGrab(server);
    server.keyDown();
    EXPECT_GT(expectEachPressOnce(server, client, {controlDown, keyUp, keyDown, keyUp}), 100);
    EXPECT_GT(expectEachPressOnce(server, client, {controlDown, controlUp, controlDown, keyUp, keyDown}), 100);
}

TEST(PressTracker, losesNoPressWhileAKeyIsBeingGrabbed)
{
    Server server;
    Client client;
    server.keyDown();
    server.hold(control);
    client.beginToGrab();
    EXPECT_GT(expectEachPressOnce(server, client, {keyUp, keyDown, keyUp, keyDown}), 100);
}
