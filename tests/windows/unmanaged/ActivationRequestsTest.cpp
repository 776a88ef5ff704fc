// What a window manager is asked for to turn to a window, where the test itself hears it.

#include "WindowsOnDesktop.h"
#include "platform/appkit/linux/WindowManagerMessage.h"
#include "platform/foundation/system/X11.h"

using testing::ElementsAre;
using testing::StartsWith;

namespace {

constexpr quint32 pressTime = 4711, onAllDesktops = 0xffffffff;

const xcb_screen_t *screenOf(const XConnection &connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data;
}

void read(WindowSystem &system)
{
    WindowFailure failure{};
    system.read({}, &failure);
}

class ActivationRequests : public WindowsOnDesktop
{
protected:
    ActivationRequests()
    {
        const quint32 mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(manager_.get(), screenOf(manager_)->root, XCB_CW_EVENT_MASK, &mask);
        wait();
        setOnRoot("_NET_CURRENT_DESKTOP", "CARDINAL", {0});
    }
    ~ActivationRequests() override
    {
        for (const char *property : {"_NET_CURRENT_DESKTOP", "_NET_ACTIVE_WINDOW"})
            removeFromRoot(property);
    }
    /// All that has been asked for since this was called last, and with which numbers.
    QList<std::string> asked()
    {
        // An answer comes after all that was asked before, on each connection; the first reading may lead to more.
        read(*system);
        read(*system);
        wait();
        QList<std::string> all;
        while (const auto event = fromServer(xcb_poll_for_event(manager_.get()))) {
            if ((event->response_type & eventTypeMask) == XCB_CLIENT_MESSAGE)
                all += textOf(*reinterpret_cast<const xcb_client_message_event_t *>(event.get()));
        }
        return all;
    }
    QList<std::string> askedForWindowOn(quint32 desktop)
    {
        window.set("_NET_WM_DESKTOP", "CARDINAL", {desktop});
        system->activate(window.id(), pressTime);
        return asked();
    }
    static std::string focus() { return "focus 2 4711 0"; }

    WindowOfAnotherProgram window{"Window"}, other{"Other"};

private:
    void wait() { fromServer(xcb_get_input_focus_reply(manager_.get(), xcb_get_input_focus(manager_.get()), nullptr)); }
    std::string textOf(const xcb_client_message_event_t &message) const
    {
        const quint32 *numbers = message.data.data32;
        const auto text = [](quint32 number) { return ' ' + std::to_string(number); };
        if (message.type == displayAtom(manager_.get(), "_NET_CURRENT_DESKTOP"))
            return "desktop" + text(numbers[0]) + text(numbers[1]);
        if (message.type == displayAtom(manager_.get(), "_NET_ACTIVE_WINDOW") && message.window == window.id())
            return "focus" + text(numbers[0]) + text(numbers[1]) + text(numbers[2]);
        return "something else";
    }

    const XConnection manager_ = connectToXServer();
};

} // namespace

TEST_F(ActivationRequests, areForTheWindowsDesktopFirst)
{
    EXPECT_THAT(askedForWindowOn(1), ElementsAre("desktop 1 4711", focus()));
}

TEST_F(ActivationRequests, areForTheWindowAloneOnThisDesktopAndOnAll)
{
    EXPECT_THAT(askedForWindowOn(0), ElementsAre(focus()));
    EXPECT_THAT(askedForWindowOn(onAllDesktops), ElementsAre(focus()));
    removeFromRoot("_NET_CURRENT_DESKTOP");
    EXPECT_THAT(askedForWindowOn(1), ElementsAre(focus())) << "which desktop is seen is not told";
}

TEST_F(ActivationRequests, areRepeatedThreeTimesWhereTheManagerTurnsToAnotherWindow)
{
    askedForWindowOn(1);
    const quint32 before = serverTime();
    for (int change = 0; change < 3; ++change) {
        setOnRoot("_NET_ACTIVE_WINDOW", "WINDOW", {other.id()});
        const QList<std::string> again = asked();
        ASSERT_THAT(again, ElementsAre(StartsWith("focus 2 "))) << change;
        EXPECT_GE(std::stoul(again.first().substr(8)), before) << "the manager's change is newer than the press";
    }
    setOnRoot("_NET_ACTIVE_WINDOW", "WINDOW", {other.id()});
    EXPECT_THAT(asked(), ElementsAre());
}

TEST_F(ActivationRequests, areMadeOnceOnThisDesktop)
{
    askedForWindowOn(0);
    setOnRoot("_NET_ACTIVE_WINDOW", "WINDOW", {other.id()});
    EXPECT_THAT(asked(), ElementsAre());
}
