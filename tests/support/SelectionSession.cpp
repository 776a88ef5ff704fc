#include "SelectionSession.h"

#include "DisplayRoot.h"
#include "KTXConstants.h"
#include "KTXModifiers.h"
#include "OtherClient.h"
#include "Wait.h"
#include "platform/foundation/system/X11.h"

#include <QRegularExpression>
#include <linux/input-event-codes.h>

namespace {

QProcessEnvironment environmentWith(const QMap<QString, QString> &variables)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto variable = variables.cbegin(); variable != variables.cend(); ++variable)
        environment.insert(variable.key(), variable.value());
    return environment;
}

/// As long as no agent runs it is the window manager who holds them.
bool managerHoldsArrows()
{
    static const bool areHeld = OtherClient().isHeldElsewhere(KEY_LEFT, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1);
    return areHeld;
}

QVariantMap chosenModifiers()
{
    if (!managerHoldsArrows())
        return {};
    return {{KTXModifierMask, KTXControlModifier | KTXCommandModifier}};
}

bool isAgents(xcb_connection_t *server, xcb_window_t window)
{
    constexpr QByteArrayView agent("LumarooAgent");
    const auto asked = xcb_get_property(server, 0, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 0, 64);
    const auto reply = fromServer(xcb_get_property_reply(server, asked, nullptr));
    return reply
        && QByteArrayView(
            static_cast<const char *>(xcb_get_property_value(reply.get())), xcb_get_property_value_length(reply.get()))
               .startsWith(agent);
}

} // namespace

SelectionSession::SelectionSession(const QMap<QString, QString> &variables)
    : AgentSessionAfterFirstLaunch(chosenModifiers()),
      agent({QStringLiteral("--foreground")}, AgentProgram::builtExecutable(), environmentWith(variables))
{
}

void SelectionSession::open(const QVariantMap &settings)
{
    const QList<std::pair<const char *, QPoint>> places{
        {"left", {50, 50}}, {"middle", {360, 60}}, {"right", {800, 70}}, {"below", {60, 500}}};
    for (const auto &[title, place] : places) {
        const QString name = QString::fromLatin1(title);
        windows_.try_emplace(name, name, QRect(place, QSize(250, 200)));
        ASSERT_TRUE(window(name).show());
    }
    ASSERT_TRUE(window(QStringLiteral("left")).takesFocus());
    ASSERT_TRUE(waitForLaunchOf(agent));
    if (settings.isEmpty())
        return;
    QVariantMap all = stored();
    all.insert(settings);
    store(all);
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(agent.waitForLine(QStringLiteral("settings read (2)")));
}

WindowOfAnotherProgram &SelectionSession::window(const QString &title)
{
    return windows_.at(title);
}

const QList<int> &SelectionSession::modifiers()
{
    static const QList<int> controlAndAlt{KEY_LEFTCTRL, KEY_LEFTALT}, controlAndSuper{KEY_LEFTCTRL, KEY_LEFTMETA};
    return managerHoldsArrows() ? controlAndSuper : controlAndAlt;
}

void SelectionSession::holdModifiers()
{
    for (const int key : modifiers())
        keyDown(key);
}

void SelectionSession::releaseModifiers()
{
    for (const int key : modifiers())
        keyUp(key);
}

void SelectionSession::pressModifiersOnce()
{
    constexpr quint32 handsPace = 40; // milliseconds by the server's clock, which the agent goes by
    holdModifiers();
    const quint32 start = serverTime();
    EXPECT_TRUE(waitUntil([start] { return serverTime() - start >= handsPace; }));
    releaseModifiers();
}

void SelectionSession::pressModifiersTwice()
{
    pressModifiersOnce();
    pressModifiersOnce();
}

bool SelectionSession::isActive(const QString &title)
{
    return waitUntil([&] { return activeWindowTitle() == title; });
}

QStringList SelectionSession::steps()
{
    static const QRegularExpression step(QStringLiteral("^(began|moved|accepted|cancelled|refused)"));
    return agent.lines().filter(step);
}

testing::AssertionResult SelectionSession::says(const QStringList &lines)
{
    if (waitUntil([&] { return steps() == lines; }))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << agent.lines().join(u'\n').toStdString() << agent.errors().toStdString();
}

QList<QRect> SelectionSession::marks()
{
    const XConnection connection = connectToXServer();
    xcb_connection_t *const server = connection.get();
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
    const auto tree = fromServer(xcb_query_tree_reply(server, xcb_query_tree(server, root), nullptr));
    QList<QRect> marks;
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const xcb_window_t window = xcb_query_tree_children(tree.get())[i];
        // Window managers and compositors have some like it.
        if (!isAgents(server, window))
            continue;
        const auto state =
            fromServer(xcb_get_window_attributes_reply(server, xcb_get_window_attributes(server, window), nullptr));
        const auto place = fromServer(xcb_get_geometry_reply(server, xcb_get_geometry(server, window), nullptr));
        if (state && place && state->map_state == XCB_MAP_STATE_VIEWABLE)
            marks += QRect(place->x, place->y, place->width, place->height);
    }
    return marks;
}
