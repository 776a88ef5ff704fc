// Reading without a window manager, where the test itself says what one would.

#include "WindowsOnDesktop.h"
#include "platform/foundation/system/X11.h"

using testing::HasSubstr;

namespace {

/// A window that says that a manager runs, and the properties of one on the root.
class UnmanagedWindows : public WindowsOnDesktop
{
protected:
    ~UnmanagedWindows() override
    {
        for (const char *property : {"_NET_SUPPORTING_WM_CHECK", "_NET_CLIENT_LIST", "_NET_CLIENT_LIST_STACKING",
                 "_NET_SUPPORTED", "_NET_CURRENT_DESKTOP", "_NET_ACTIVE_WINDOW"})
            removeFromRoot(property);
    }
    void manage(const QList<quint32> &windows)
    {
        manager.set("_NET_SUPPORTING_WM_CHECK", "WINDOW", {manager.id()});
        setOnRoot("_NET_SUPPORTING_WM_CHECK", "WINDOW", {manager.id()});
        setOnRoot("_NET_CLIENT_LIST_STACKING", "WINDOW", windows);
    }
    std::string failureOfReading()
    {
        WindowFailure failure{};
        EXPECT_FALSE(system->read({}, &failure));
        return clause(failure).toStdString();
    }

    WindowOfAnotherProgram manager{"Manager", {0, 0, 1, 1}};
};

} // namespace

TEST_F(UnmanagedWindows, areNotReadWithoutAManager)
{
    EXPECT_THAT(failureOfReading(), HasSubstr("no window manager runs"));
}

TEST_F(UnmanagedWindows, areNotReadWhereTheManagerHasEndedWithoutAWord)
{
    manage({});
    EXPECT_TRUE(world().windows.isEmpty());
    manager.destroy();
    EXPECT_THAT(failureOfReading(), HasSubstr("no window manager runs"));
}

TEST_F(UnmanagedWindows, areNotReadWhereTheManagerTellsNoList)
{
    manage({});
    removeFromRoot("_NET_CLIENT_LIST_STACKING");
    EXPECT_THAT(failureOfReading(), HasSubstr("does not tell which windows there are"));
}

TEST_F(UnmanagedWindows, areOrderedByTheServerWhereTheManagerTellsNoStack)
{
    WindowOfAnotherProgram lower("Lower"), middle("Middle"), upper("Upper");
    manage({});
    removeFromRoot("_NET_CLIENT_LIST_STACKING");
    setOnRoot("_NET_CLIENT_LIST", "WINDOW", {middle.id(), upper.id(), lower.id()});
    QStringList names;
    for (const WindowDescription &window : world().windows)
        names += window.windowName;
    EXPECT_EQ(names, QStringList({"Upper", "Middle", "Lower"}));
    removeFromRoot("_NET_CLIENT_LIST");
}

TEST_F(UnmanagedWindows, areAllReadWhereTheManagerHasNotYetWrittenItsStackAnew)
{
    WindowOfAnotherProgram before("Before"), added("Added");
    manage({before.id()});
    setOnRoot("_NET_CLIENT_LIST", "WINDOW", {before.id(), added.id()});
    QStringList names;
    for (const WindowDescription &window : world().windows)
        names += window.windowName;
    EXPECT_EQ(names, QStringList({"Added", "Before"}));
    removeFromRoot("_NET_CLIENT_LIST");
}

TEST_F(UnmanagedWindows, areEachReadOnceAndTheRootNever)
{
    WindowOfAnotherProgram window("Window");
    const quint32 root = xcb_setup_roots_iterator(xcb_get_setup(connectToXServer().get())).data->root;
    manage({window.id(), root, 0, window.id(), 0xffffffff});
    ASSERT_EQ(world().windows.size(), 1);
    EXPECT_EQ(world().windows.first().windowID, window.id());
}

TEST_F(UnmanagedWindows, areSeenWhereTheirHolderIsIfNobodyTellsMargins)
{
    WindowOfAnotherProgram window("Window", {200, 150, 300, 200});
    manage({window.id()});
    EXPECT_EQ(described(window.id()).windowRect, QRect(200, 150, 300, 200));
    window.set("_GTK_FRAME_EXTENTS", "CARDINAL", {20, 30, 10, 40});
    EXPECT_EQ(described(window.id()).windowRect, QRect(220, 160, 250, 150));
    window.set("_NET_FRAME_EXTENTS", "CARDINAL", {0, 0, 0, 0});
    EXPECT_EQ(described(window.id()).windowRect, QRect(220, 160, 250, 150));
    window.set("_NET_FRAME_EXTENTS", "CARDINAL", {1, 2, 3, 4});
    EXPECT_EQ(described(window.id()).windowRect, QRect(199, 147, 303, 207)) << "never both";
}

TEST_F(UnmanagedWindows, areSeenWithTheirHoldersBorders)
{
    WindowOfAnotherProgram window("Window", {200, 150, 300, 200});
    manage({window.id()});
    const XConnection connection = connectToXServer();
    const quint32 border = 3;
    xcb_configure_window(connection.get(), window.id(), XCB_CONFIG_WINDOW_BORDER_WIDTH, &border);
    fromServer(xcb_get_input_focus_reply(connection.get(), xcb_get_input_focus(connection.get()), nullptr));
    EXPECT_EQ(described(window.id()).windowRect, QRect(200, 150, 306, 206));
}

TEST_F(UnmanagedWindows, haveTheNameOfTheProgramOrOfItsInstance)
{
    WindowOfAnotherProgram window("Window");
    manage({window.id()});
    window.setClass("instance", "Program");
    EXPECT_EQ(described(window.id()).appName, "Program");
    window.setClass("instance", "");
    EXPECT_EQ(described(window.id()).appName, "instance");
}

TEST_F(UnmanagedWindows, thatSayNonsenseAreReadAsIfTheySaidNothing)
{
    WindowOfAnotherProgram window("Window", {200, 150, 300, 200});
    manage({window.id()});
    const WindowDescription plain = described(window.id());
    const char *const properties[]{"_NET_WM_WINDOW_TYPE", "_NET_WM_STATE", "_NET_WM_DESKTOP", "_NET_FRAME_EXTENTS",
        "_GTK_FRAME_EXTENTS", "_NET_WM_PID", "WM_CLASS", "WM_TRANSIENT_FOR"};
    for (const char *property : properties) {
        // Of another type, of other items, too short, too long, beyond all bounds.
        window.setBytes(property, "RUBBISH", 32, QByteArray(64, '\x01'));
        EXPECT_EQ(described(window.id()), plain) << property;
        window.setBytes(property, "CARDINAL", 8, QByteArray(3, '\x01'));
        EXPECT_EQ(described(window.id()), plain) << property;
        window.setBytes(property, "CARDINAL", 16, QByteArray(1 << 20, '\x01'));
        EXPECT_EQ(described(window.id()), plain) << property;
        window.setBytes(property, "ATOM", 32, QByteArray());
        EXPECT_EQ(described(window.id()), plain) << property;
        window.removeProperty(property);
    }
    for (const QList<quint32> &margins : {QList<quint32>{1, 2, 3}, {1, 2, 3, 4, 5}, {1, 2, 3, 0xffffffff}}) {
        window.set("_NET_FRAME_EXTENTS", "CARDINAL", margins);
        EXPECT_EQ(described(window.id()), plain);
    }
}

TEST_F(UnmanagedWindows, haveTitlesWithinBounds)
{
    WindowOfAnotherProgram window(QString(), {200, 150, 300, 200});
    manage({window.id()});
    const auto title = [&] { return described(window.id()).windowName; };
    EXPECT_EQ(title(), "");
    window.setText("WM_NAME", "STRING", "Caf\xe9");
    EXPECT_EQ(title(), QString::fromUtf8("Caf\xc3\xa9"));
    window.setBytes("_NET_WM_NAME", "UTF8_STRING", 32, QByteArray(64, 'x'));
    EXPECT_EQ(title(), QString::fromUtf8("Caf\xc3\xa9")) << "of the wrong form";
    window.setText("_NET_WM_NAME", "UTF8_STRING", "two\nlines\tand\x1b more");
    EXPECT_EQ(title(), "two lines and  more");
    window.setText("_NET_WM_NAME", "UTF8_STRING", "\xff\xfe\x80");
    EXPECT_EQ(title(), QString(3, QChar(0xfffd)));
    window.setText("_NET_WM_NAME", "UTF8_STRING", QByteArray("\xf0\x9f\x98\x80").repeated((1 << 20) / 4));
    EXPECT_EQ(title(), QString::fromUtf8(QByteArray("\xf0\x9f\x98\x80").repeated(512)));
}
