// Which presses of a grabbed key count, whatever falls between what the server does and what is asked of it.

#include "platform/foundation/hotkeys/internal/PressTracker.h"

#include <QList>
#include <QString>
#include <gtest/gtest.h>

namespace {

using Kind = KeyboardEvent::Kind;

constexpr quint8 A = 38;
constexpr quint16 control = 4;
const KeyGrab hotKey{A, control};

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

} // namespace

TEST(PressOrder, countsEachPressOnceHoweverFastTheKeyIs)
{
    Server server;
    Client client;
    client.haveGrab(server);
    server.hold(control);
    EXPECT_GT(expectEachPressOnce(server, client, {keyDown, keyUp, keyDown, keyUp, keyDown}), 1000);
}

TEST(PressOrder, countsNoRepeatOfAPress)
{
    Server server;
    Client client;
    client.haveGrab(server);
    server.hold(control);
    EXPECT_GT(expectEachPressOnce(server, client, {keyDown, repeat, repeat, keyUp, keyDown}), 1000);
}

TEST(PressOrder, losesNoPressWhenModifiersGoUpAndDownUnderAHeldKey)
{
    Server server;
    Client client;
    client.haveGrab(server);
    server.keyDown();
    EXPECT_GT(expectEachPressOnce(server, client, {controlDown, keyUp, keyDown, keyUp}), 100);
    EXPECT_GT(expectEachPressOnce(server, client, {controlDown, controlUp, controlDown, keyUp, keyDown}), 100);
}

TEST(PressOrder, losesNoPressWhileAKeyIsBeingGrabbed)
{
    Server server;
    Client client;
    server.keyDown();
    server.hold(control);
    client.beginToGrab();
    EXPECT_GT(expectEachPressOnce(server, client, {keyUp, keyDown, keyUp, keyDown}), 100);
}
