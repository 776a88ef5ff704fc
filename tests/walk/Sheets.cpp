#include "Sheets.h"

#include "KeyPress.h"
#include "Steps.h"

#include <linux/input-event-codes.h>

namespace {

constexpr int tabsFromAltToKeyForUp = 2;

/// Right and down on one key, and Alt the only modifier, of which the user is to hear.
void storeWhatDoesNotGo()
{
    storeOutside("<key>suppressHotkeysTakenAlert</key><false/><key>moveRightHotKey</key><dict><key>keycode</key>"
                 "<string>125</string></dict><key>modifierKeyMask</key><integer>2048</integer>");
}

class Sheets
{
public:
    Sheets(const QString &folder, const QStringList &arguments, const QString &theme)
        : folder_(folder), theme_(theme), settings_(arguments)
    {
    }

    void show();

private:
    void expect(const QString &name);
    void close();

    QString folder_;
    QString theme_;
    SettingsProgram settings_;
};

void Sheets::expect(const QString &name)
{
    if (!settings_.waitForWindows(2))
        giveUp(QStringLiteral("the alert: ") + name);
    save(settings_.settledPicture(), folder_, QStringLiteral("sheet-%1-%2").arg(name, theme_));
}

void Sheets::close()
{
    pressKey(KEY_ESC);
    if (!settings_.waitForWindows(1))
        giveUp(QStringLiteral("Escape closes the alert"));
    settings_.settledPicture();
}

void Sheets::show()
{
    expect(QStringLiteral("conflict-at-opening"));
    close();
    pressKey(KEY_TAB, {KEY_LEFTCTRL});
    expect(QStringLiteral("conflict"));
    save(pictureOfWindow(settings_.windows().first().id), folder_, QStringLiteral("sheet-window-") + theme_);
    close();
    pressKey(KEY_L, {KEY_LEFTALT});
    expect(QStringLiteral("last-modifier"));
    close();
    for (int tab = 0; tab < tabsFromAltToKeyForUp; ++tab)
        pressKey(KEY_TAB);
    pressKey(KEY_SPACE);
    expect(QStringLiteral("key-in-use"));
    close();
    pressKey(KEY_TAB, {KEY_LEFTCTRL});
    settings_.settledPicture();
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    expect(QStringLiteral("quit-despite-conflicts"));
    pressKey(KEY_Q);
    if (settings_.exitStatus() != 0)
        giveUp(QStringLiteral("the settings quit despite conflicts"));
}

} // namespace

void showEverySheet(const QString &folder, const QStringList &arguments, const QString &theme)
{
    storeWhatDoesNotGo();
    Sheets(folder, arguments + QStringList{QStringLiteral("--theme"), theme, SettingsProgram::builtPane()}, theme)
        .show();
    say(QStringLiteral("- showed every alert in ") + theme);
}
