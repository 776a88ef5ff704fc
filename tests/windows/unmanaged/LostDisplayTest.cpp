// Windows where there is no X server, or no longer.

#include "SecondDisplay.h"
#include "WindowsOnDesktop.h"
#include "platform/foundation/system/X11.h"

namespace {

/// An environment variable for the test's time.
class Variable
{
public:
    Variable(const char *name, const QByteArray &value) : name_(name), before_(qgetenv(name)) { qputenv(name, value); }
    ~Variable() { before_.isEmpty() ? qunsetenv(name_) : qputenv(name_, before_); }

private:
    const char *name_;
    QByteArray before_;
};

QString failureOf(WindowSystem &system)
{
    WindowFailure failure{};
    EXPECT_FALSE(system.read({}, &failure));
    return clause(failure);
}

bool isRefused(WindowSystem &system)
{
    bool isTold = false;
    const auto connection =
        QObject::connect(&system, &WindowSystem::notActivated, [&isTold](quint32 window) { isTold = window == 1; });
    system.activate(1, 1);
    const bool wasTold = waitUntil([&isTold] { return isTold; });
    QObject::disconnect(connection);
    return wasTold;
}

} // namespace

TEST(LostDisplay, endsReadingUntilTheNextOneWithAReason)
{
    SecondDisplay display;
    const Variable variable("DISPLAY", display.name());
    const auto system = windowSystem();
    EXPECT_EQ(failureOf(*system), "no window manager runs that tells which windows there are");
    display.end();
    for (int time = 0; time < 2; ++time)
        EXPECT_EQ(failureOf(*system), "the X server has gone");
    EXPECT_TRUE(isRefused(*system));
    system->open();
    EXPECT_EQ(failureOf(*system), "there is no X server");
    display.begin();
    system->open();
    EXPECT_EQ(failureOf(*system), "no window manager runs that tells which windows there are");
}

TEST(LostDisplay, endsAnActivation)
{
    SecondDisplay display;
    const Variable variable("DISPLAY", display.name());
    const auto system = windowSystem();
    const XConnection connection = connectToXServer();
    const quint32 root = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root;
    QList<quint32> refused;
    QObject::connect(system.get(), &WindowSystem::notActivated, [&refused](quint32 window) { refused += window; });
    system->activate(root, 1);
    display.end();
    EXPECT_TRUE(waitUntil([&refused] { return !refused.isEmpty(); }));
    EXPECT_EQ(refused, QList<quint32>{root});
}

TEST(LostDisplay, thatNeverWasIsToldToo)
{
    const Variable variable("DISPLAY", ":60000");
    const auto system = windowSystem();
    EXPECT_EQ(failureOf(*system), "there is no X server");
    EXPECT_TRUE(isRefused(*system));
}

TEST(LostDisplay, andAWaylandSessionShowNoWindows)
{
    const Variable variable("WAYLAND_DISPLAY", "wayland-0");
    const auto system = windowSystem();
    EXPECT_EQ(failureOf(*system), "a Wayland session does not let programs see other programs' windows");
    EXPECT_TRUE(isRefused(*system));
}
