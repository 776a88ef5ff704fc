#include "SelectionSession.h"

#include "DisplayRoot.h"
#include "KTXConstants.h"
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

} // namespace

SelectionSession::SelectionSession(const QMap<QString, QString> &variables)
    : agent({QStringLiteral("--foreground")}, AgentProgram::builtExecutable(), environmentWith(variables))
{
}

void SelectionSession::open(const QVariantMap &settings)
{
    const QList<std::pair<const char *, QPoint>> places{
        {"left", {50, 50}}, {"middle", {400, 60}}, {"right", {800, 70}}, {"below", {60, 500}}};
    for (const auto &[title, place] : places) {
        windows_.emplace_back(QString::fromLatin1(title), QRect(place, QSize(250, 200)));
        ASSERT_TRUE(windows_.back().show());
    }
    turnToWindow(windows_.front().id());
    ASSERT_TRUE(isActive(QStringLiteral("left")));
    ASSERT_TRUE(waitForLaunchOf(agent));
    if (settings.isEmpty())
        return;
    QVariantMap all = stored();
    all.insert(settings);
    store(all);
    paneAnnounces(KTXLMPrefsChanged);
    ASSERT_TRUE(agent.waitForLine(QStringLiteral("settings read (2)")));
}

const QList<int> &SelectionSession::modifiers()
{
    static const QList<int> controlAndAlt{KEY_LEFTCTRL, KEY_LEFTALT};
    return controlAndAlt;
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

void SelectionSession::pressModifiersTwice()
{
    constexpr quint32 handsPace = 40; // milliseconds by the server's clock, which the agent goes by
    for (int i = 0; i < 2; ++i) {
        holdModifiers();
        const quint32 start = serverTime();
        EXPECT_TRUE(waitUntil([start] { return serverTime() - start >= handsPace; }));
        releaseModifiers();
    }
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

int SelectionSession::marksOnScreen()
{
    const XConnection connection = connectToXServer();
    xcb_connection_t *const server = connection.get();
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
    const auto tree = fromServer(xcb_query_tree_reply(server, xcb_query_tree(server, root), nullptr));
    int marks = 0;
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const xcb_window_t window = xcb_query_tree_children(tree.get())[i];
        const auto state =
            fromServer(xcb_get_window_attributes_reply(server, xcb_get_window_attributes(server, window), nullptr));
        // Window managers' own ones are outside the screen.
        const auto place = fromServer(xcb_get_geometry_reply(server, xcb_get_geometry(server, window), nullptr));
        const bool isShown = state && place && state->override_redirect && state->map_state == XCB_MAP_STATE_VIEWABLE;
        marks += isShown && place->x >= 0 && place->y >= 0 ? 1 : 0;
    }
    return marks;
}
