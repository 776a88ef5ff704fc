// Every key that a keyboard can send, pressed in a field.

#include "KeyCodes.h"
#include "KeyPress.h"
#include "Keyboard.h"
#include "OpenHelp.h"
#include "PaneOnHotKeyPage.h"

#include "KTXConstants.h"
#include "Wait.h"
#include "platform/foundation/keyboard/KeyboardLayout.h"

#include <QProcess>
#include <QScopeGuard>
#include <linux/input-event-codes.h>
#include <map>
#include <set>

namespace {

constexpr int lastKeycode = 255;

enum class Outcome { TakenAsTyped, TakenAsCommand, FocusMoved, Nothing };

class HotKeyFieldGets : public PaneOnHotKeyPage
{
protected:
    /// What becomes of a key in a field for a code that no key has.
    Outcome outcomeOf(int evdevCode, int code)
    {
        giveItNoKey();
        focus(Screenshot);
        pane().commands.clear();
        pressAndUndo(evdevCode);
        if (focusedRow() != Screenshot)
            return Outcome::FocusMoved;
        if (keyCode(Screenshot) != code)
            return Outcome::Nothing;
        return pane().commands.isEmpty() ? Outcome::TakenAsTyped : Outcome::TakenAsCommand;
    }
    /// Presses a key, and undoes what it does beside the field: a lock is taken off, the help or the menu is closed.
    void pressAndUndo(int evdevCode)
    {
        press(evdevCode);
        if (isLock(evdevCode))
            press(evdevCode);
        if (evdevCode == KEY_COMPOSE)
            closeMenu();
        if (evdevCode == KEY_F1) {
            EXPECT_TRUE(helpComesUp());
            closeHelp();
        }
        EXPECT_TRUE(waitUntil([this] { return hasKeyboard(window()); }));
    }
    static void closeMenu()
    {
        ASSERT_TRUE(waitUntil([] { return QApplication::activePopupWidget() != nullptr; }));
        QApplication::activePopupWidget()->close();
    }
    void giveItNoKey()
    {
        store().set(KTXScreenshotPref, QVariantMap{{KTXKeycode, "1006"}});
        pane().readUserPrefs();
        rememberStore();
    }
    static bool isLock(int evdevCode)
    {
        return evdevCode == KEY_CAPSLOCK || evdevCode == KEY_NUMLOCK || evdevCode == KEY_SCROLLLOCK;
    }
};

using Codes = std::set<int>;

/// What types; in the table's order, where Return (36) and Tab (48) lie in between.
const Codes typing{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27,
    28, 29, 30, 31, 32, 33, 34, 35, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46, 47, 49, 50, 65, 67, 69, 75, 78, 81, 82, 83,
    84, 85, 86, 87, 88, 89, 91, 92, 93, 94, 95};
/// The keypad's Enter and the arrows.
const Codes takenAsCommands{76, 123, 124, 125, 126};
const Codes movingTheFocus{36, 48};
/// Deleting, Escape, modifiers, locks, volume, functions, paging and the power key.
const Codes doingNothing{51, 53, 54, 55, 56, 57, 58, 59, 60, 61, 62, 64, 71, 72, 73, 74, 79, 80, 90, 96, 97, 98, 99,
    100, 101, 102, 103, 104, 105, 106, 107, 109, 110, 111, 113, 114, 115, 116, 117, 118, 119, 120, 121, 122, 127};

Codes taken()
{
    Codes codes = typing;
    codes.insert(takenAsCommands.cbegin(), takenAsCommands.cend());
    return codes;
}

QString labelOf(const KeyCodeRow &key)
{
    static const QHash<int, QString> signs{{49, "___"}, {76, "⌅"}, {123, "←"}, {124, "→"}, {125, "↓"}, {126, "↑"}};
    return signs.value(key.code, key.usCharacter.toUpper());
}

/// Has the keyboard number its keys in another way, and waits until a field knows.
void useKeycodes(const QString &keycodes)
{
    ASSERT_EQ(QProcess::execute("setxkbmap", {"-keycodes", keycodes, "-layout", "us"}), 0);
    const auto up = keycodeNamed(QStringLiteral("UP"));
    ASSERT_TRUE(up);
    EXPECT_TRUE(waitUntil([&] {
        const auto layout = TISCopyCurrentKeyboardLayoutInputSource();
        return LMVirtualKeyCodeOfKeycode(layout, quint32(*up)) == VirtualKeyCode(126);
    })) << keycodes.toStdString();
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

TEST_F(HotKeyFieldGets, everyKeyIsTypedIntoItOrACommandToItOrMovesTheFocusOrIsNothing)
{
    storeNoKeys();
    showPage();
    std::map<Outcome, Codes> codes;
    for (const SendableKey &key : sendableKeys())
        codes[outcomeOf(key.evdev, key.row.code)].insert(key.row.code);
    EXPECT_EQ(codes[Outcome::TakenAsTyped], typing);
    EXPECT_EQ(codes[Outcome::TakenAsCommand], takenAsCommands);
    EXPECT_EQ(codes[Outcome::FocusMoved], movingTheFocus);
    EXPECT_EQ(codes[Outcome::Nothing], doingNothing);
}

TEST_F(HotKeyFieldGets, everyKeyThatAFieldTakesIsStoredUnderItsCode)
{
    storeNoKeys();
    showPage();
    for (const SendableKey &key : sendableKeys()) {
        if (!taken().count(key.row.code))
            continue;
        pressIn(Screenshot, key.evdev);
        expectTaken(Screenshot, key.row.code, labelOf(key.row));
        EXPECT_EQ(focusedRow(), Screenshot) << key.row.code;
        giveItNoKey(); // some codes are those of two keys
    }
}

TEST_F(HotKeyFieldGets, theKeyOfItsNameOnAKeyboardThatNumbersKeysOtherwise)
{
    const auto restore = qScopeGuard([] { useKeycodes("evdev"); });
    useKeycodes("xfree86");
    storeNoKeys();
    showPage();
    int moved = 0;
    for (const KeyCodeRow &row : keyCodeRows()) {
        const std::optional<int> keycode = keycodeNamed(row.xkbName);
        if (!taken().count(row.code) || !keycode)
            continue;
        moved += *keycode != row.evdev + evdevToX11;
        pressIn(Screenshot, *keycode - evdevToX11);
        expectTaken(Screenshot, row.code, labelOf(row));
    }
    EXPECT_GE(moved, 6) << "the arrows, Enter and the divide sign of the keypad";
}

TEST_F(HotKeyFieldGets, everyOtherKeyLeavesTheFieldAsItWas)
{
    storeNoKeys();
    storeKey(Screenshot, 0);
    showPage();
    for (const SendableKey &key : sendableKeys()) {
        const int code = key.row.code;
        if (!doingNothing.count(code))
            continue;
        focus(Screenshot);
        const QPalette colors = field(Screenshot)->palette();
        pressAndUndo(key.evdev);
        EXPECT_EQ(focusedRow(), Screenshot) << code;
        EXPECT_EQ(shown(Screenshot), "A") << code;
        EXPECT_EQ(field(Screenshot)->palette(), colors) << code;
        EXPECT_EQ(keyCode(Screenshot), 0) << code;
        expectNothingStored();
    }
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
