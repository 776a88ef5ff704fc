#pragma once

#include "AgentProgram.h"
#include "AgentSession.h"
#include "DesktopWindows.h"
#include "KeyPress.h"
#include "WindowOfAnotherProgram.h"

#include <deque>
#include <map>

/// The real agent beside four windows, three in a row and one below the first, which has the focus; and a user at the
/// keyboard. The titles tell where each stands: "left", "middle", "right", "below".
class SelectionSession : public AgentSessionAfterFirstLaunch
{
public:
    /// The agent has these variables of the environment besides the test's own.
    explicit SelectionSession(const QMap<QString, QString> &variables = {});

    /// Opens the windows, and waits for the agent, which goes by these settings.
    void open(const QVariantMap &settings = {});

    /// One of the windows, by its title.
    WindowOfAnotherProgram &window(const QString &title);

    // The activation modifiers: Control and Alt, or what users choose where the window manager holds the arrows with
    // these, Control and Super.
    static const QList<int> &modifiers();
    static void holdModifiers();
    static void releaseModifiers();
    /// As a hand does: what goes faster is taken for a program's typing.
    static void pressModifiersOnce();
    static void pressModifiersTwice();

    /// Waits until a window has the focus.
    static bool isActive(const QString &title);
    /// What the agent has written of selections so far.
    QStringList steps();
    /// Waits until these are the steps.
    testing::AssertionResult says(const QStringList &lines);
    /// Where windows of the agent are on screen, and how many.
    static QList<QRect> marks();
    static int marksOnScreen() { return int(marks().size()); }

    AgentProgram agent;

private:
    std::map<QString, WindowOfAnotherProgram> windows_;
};
