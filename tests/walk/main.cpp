// Walks the main job once with the real programs, says each step, and leaves a screenshot of each page.
// Usage: walk BUILD-FOLDER SCREENSHOT-FOLDER [ARGUMENT...], inside a session with a bus, a display and a window
// manager. The arguments are the settings' own: --theme dark, -reverse.

#include "AgentProgram.h"
#include "KeyPress.h"
#include "SettingsProgram.h"
#include "Sheets.h"
#include "Steps.h"
#include "Wait.h"

#include <QApplication>
#include <QDir>
#include <linux/input-event-codes.h>

namespace {

const QStringList pages = {QStringLiteral("general"), QStringLiteral("hotkeys"), QStringLiteral("behaviour"),
    QStringLiteral("updates"), QStringLiteral("help"), QStringLiteral("about")};
constexpr int behaviourPage = 2;

void turnEveryPage(SettingsProgram &settings, const QString &folder)
{
    QImage shown = settings.settledPicture();
    for (int page = 0; page < pages.size(); ++page) {
        if (page > 0) {
            pressKey(KEY_TAB, {KEY_LEFTCTRL});
            shown = settings.pictureAfterChangeFrom(shown);
        }
        save(shown, folder, QStringLiteral("%1-%2").arg(page).arg(pages[page]));
    }
    say(QStringLiteral("- turned every page"));
}

void turnTheAgentOffAndOn(SettingsProgram &settings, const QString &folder)
{
    const auto pressSwitch = [] { pressKey(KEY_L, {KEY_LEFTALT}); };
    require(waitUntil([] { return !runningAgent().isEmpty(); }), QStringLiteral("the first opening started the agent"));
    const QImage whileOn = settings.settledPicture();
    pressSwitch();
    require(waitUntil([] { return runningAgent().isEmpty(); }), QStringLiteral("the switch turned the agent off"));
    const QImage whileOff = settings.pictureAfterChangeFrom(whileOn);
    save(whileOff, folder, QStringLiteral("agent-off"));
    pressSwitch();
    // Only then: asking the agent starts its program, which the settings would take for the agent.
    settings.pictureAfterChangeFrom(whileOff);
    require(
        waitUntil([] { return !runningAgent().isEmpty(); }), QStringLiteral("the switch turned the agent on again"));
}

void letAnOutsideChangeArrive(SettingsProgram &settings, const QString &folder)
{
    for (int page = int(pages.size()) - 1; page > behaviourPage; --page)
        pressKey(KEY_TAB, {KEY_LEFTCTRL, KEY_LEFTSHIFT});
    const QImage before = settings.settledPicture();
    runDefaults({QStringLiteral("--notify"), QStringLiteral("write"), QStringLiteral("EnableHorizontalWrap"),
        QStringLiteral("-bool"), QStringLiteral("false")});
    save(settings.pictureAfterChangeFrom(before), folder, QStringLiteral("outside-change"));
    say(QStringLiteral("- a change made outside (EnableHorizontalWrap off) arrived and shows"));
}

void changeAnOption()
{
    const auto agentReads = [](bool value) {
        return waitUntil(
            [value] { return runningAgentsSetting(QStringLiteral("EnableHorizontalWrap")) == QJsonValue(value); });
    };
    require(agentReads(false), QStringLiteral("the agent has read EnableHorizontalWrap as false"));
    pressKey(KEY_W, {KEY_LEFTALT});
    require(agentReads(true), QStringLiteral("changed in the window, the agent has read it as true"));
}

/// As the agent's side might leave it: right and down on one key, of which the user knows already.
void giveTwoActionsOneKey()
{
    storeOutside("<key>suppressHotkeysTakenAlert</key><true/><key>moveRightHotKey</key><dict><key>keycode</key>"
                 "<string>125</string></dict>");
}

QString agentsKeyForUp()
{
    const QJsonValue entry = runningAgentsSetting(QStringLiteral("moveUpHotKey"));
    return entry.toObject().value(QStringLiteral("keycode")).toString();
}

/// In settings just opened, where the tabs have the focus.
void giveAKeyByPressingIt(SettingsProgram &settings, const QString &folder)
{
    constexpr int tabsToKeyForUp = 5;
    constexpr int tabsFromUpToRight = 3;
    constexpr int tabsFromRightOutOfTheKeys = 2;
    QImage shown = settings.settledPicture();
    pressKey(KEY_TAB, {KEY_LEFTCTRL});
    settings.pictureAfterChangeFrom(shown);
    giveTwoActionsOneKey();
    shown = settings.settledPicture();
    for (int tab = 0; tab < tabsToKeyForUp; ++tab) {
        pressKey(KEY_TAB);
        shown = settings.pictureAfterChangeFrom(shown);
    }
    save(shown, folder, QStringLiteral("key-focused"));
    pressKey(KEY_B);
    save(settings.pictureAfterChangeFrom(shown), folder, QStringLiteral("key-conflict"));
    require(waitUntil([] { return agentsKeyForUp() == QStringLiteral("11"); }),
        QStringLiteral("a key pressed in its field is the key for up, and the agent has read it"));
    pressKey(KEY_SPACE);
    require(settings.waitForWindows(2), QStringLiteral("a key in use is refused"));
    save(settings.settledPicture(), folder, QStringLiteral("key-refused"));
    save(pictureOfWindow(settings.windows().first().id), folder, QStringLiteral("key-refused-window"));
    pressKey(KEY_ESC);
    require(settings.waitForWindows(1), QStringLiteral("Escape closes the alert about it"));
    for (int tab = 0; tab < tabsFromUpToRight; ++tab)
        pressKey(KEY_TAB);
    pressKey(KEY_RIGHT);
    for (int tab = 0; tab < tabsFromRightOutOfTheKeys; ++tab)
        pressKey(KEY_TAB);
}

void walk(const QString &folder, const QStringList &arguments)
{
    QDir().mkpath(folder);
    const QStringList withPane = arguments + QStringList{SettingsProgram::builtPane()};
    SettingsProgram settings(withPane);
    require(settings.waitForWindows(1), QStringLiteral("the settings open with the Lumaroo pane"));
    turnTheAgentOffAndOn(settings, folder);
    turnEveryPage(settings, folder);
    say(QStringLiteral("- what is stored now:\n") + runDefaults({QStringLiteral("read")}));
    letAnOutsideChangeArrive(settings, folder);
    changeAnOption();
    quit(settings);
    SettingsProgram::forgetWhatWasSeen();
    SettingsProgram again(withPane);
    require(again.waitForWindows(1), QStringLiteral("the settings open again"));
    giveAKeyByPressingIt(again, folder);
    quit(again);
    for (const QString &theme : {QStringLiteral("light"), QStringLiteral("dark")})
        showEverySheet(folder, arguments, theme);
    require(!runningAgent().isEmpty(), QStringLiteral("the agent is still there"));
    require(runAgent({QStringLiteral("--quit")}).status == 0 && runningAgent().isEmpty(), QStringLiteral("it quits"));
}

} // namespace

int main(int argumentCount, char **arguments)
{
    QStringList given;
    for (int index = 1; index < argumentCount; ++index)
        given += QFile::decodeName(arguments[index]);
    if (given.size() < 2)
        giveUp(QStringLiteral("usage: walk BUILD-FOLDER SCREENSHOT-FOLDER [ARGUMENT...]"));
    QApplication application(argumentCount, arguments);
    qputenv("LUMAROO_BUILD", QDir(given.takeFirst()).absolutePath().toUtf8());
    const QString folder = QDir(given.takeFirst()).absolutePath();
    walk(folder, given);
    say(QStringLiteral("Screenshots of the pages: ") + folder);
    return 0;
}
