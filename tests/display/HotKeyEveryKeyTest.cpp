// Every key that a keyboard can send, pressed in a field.

#include "KeyCodes.h"
#include "KeyPress.h"
#include "PaneOnHotKeyPage.h"

#include "KTXConstants.h"

#include <linux/input-event-codes.h>
#include <set>

namespace {

constexpr int Screenshot = 6;
constexpr int lastKeycode = 255;

class HotKeyFieldGets : public PaneOnHotKeyPage
{
};

/// The codes that a field takes.
bool isTaken(int code)
{
    static const std::set<int> others{
        10, 65, 67, 69, 75, 76, 78, 81, 82, 83, 84, 85, 86, 87, 88, 89, 91, 92, 93, 94, 95, 123, 124, 125, 126};
    return (code >= 0 && code <= 50 && code != 36 && code != 48) || others.count(code) != 0;
}

QString labelOf(const KeyCodeRow &key)
{
    static const QHash<int, QString> signs{{49, "___"}, {76, "⌅"}, {123, "←"}, {124, "→"}, {125, "↓"}, {126, "↑"}};
    return signs.value(key.code, key.usCharacter.toUpper());
}

bool isLock(int evdevCode)
{
    return evdevCode == KEY_CAPSLOCK || evdevCode == KEY_NUMLOCK || evdevCode == KEY_SCROLLLOCK;
}

struct SendableKey
{
    int evdev;
    KeyCodeRow row;
};

/// Every key of the table that a keyboard can send here, aliases included.
QList<SendableKey> sendableKeys()
{
    QList<SendableKey> keys;
    for (const KeyCodeRow &row : keyCodeRows()) {
        for (const int evdev : QList<int>{row.evdev} + row.aliases) {
            if (row.recordable && evdev != 0 && evdev + evdevToX11 <= lastKeycode)
                keys += {evdev, row};
        }
    }
    return keys;
}

} // namespace

TEST_F(HotKeyFieldGets, everyKeyThatAFieldTakesIsStoredUnderItsCode)
{
    storeNoKeys();
    showPage();
    int taken = 0;
    for (const SendableKey &key : sendableKeys()) {
        if (!isTaken(key.row.code))
            continue;
        ++taken;
        pressIn(Screenshot, key.evdev);
        expectTaken(Screenshot, key.row.code, labelOf(key.row));
        EXPECT_EQ(focusedRow(), Screenshot) << key.row.code;
        // Some codes are those of two keys.
        store().set(KTXScreenshotPref, QVariantMap{{KTXKeycode, "1006"}});
        pane().readUserPrefs();
        rememberStore();
    }
    EXPECT_GE(taken, 70);
}

TEST_F(HotKeyFieldGets, everyOtherKeyLeavesTheFieldAsItWas)
{
    storeNoKeys();
    storeKey(Screenshot, 0);
    showPage();
    int left = 0;
    for (const SendableKey &key : sendableKeys()) {
        const int code = key.row.code;
        if (isTaken(code) || code == 36 || code == 48)
            continue;
        ++left;
        focus(Screenshot);
        const QPalette colors = field(Screenshot)->palette();
        press(key.evdev);
        if (isLock(key.evdev))
            press(key.evdev);
        EXPECT_EQ(focusedRow(), Screenshot) << code;
        EXPECT_EQ(shown(Screenshot), "A") << code;
        EXPECT_EQ(field(Screenshot)->palette(), colors) << code;
        EXPECT_EQ(keyCode(Screenshot), 0) << code;
        expectNothingStored();
    }
    EXPECT_GE(left, 45);
}

TEST_F(HotKeyFieldGets, keysWithoutAVirtualKeyCodeChangeNothing)
{
    std::set<int> known;
    for (const KeyCodeRow &row : keyCodeRows()) {
        known.insert(row.evdev);
        known.insert(row.aliases.cbegin(), row.aliases.cend());
    }
    storeKey(Screenshot, 0);
    showPage();
    for (int evdev = 1; evdev + evdevToX11 <= lastKeycode; ++evdev) {
        if (known.count(evdev))
            continue;
        pressIn(Screenshot, evdev);
        EXPECT_EQ(shown(Screenshot), "A") << evdev;
    }
    expectNothingStored();
}
