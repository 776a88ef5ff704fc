// The pressed key counts, in every layout and whatever is held or locked meanwhile.

#include "KeyPress.h"
#include "Keyboard.h"
#include "OpenAlert.h"
#include "PaneOnHotKeyPage.h"
#include "Wait.h"

#include "KTXActionKeys.h"
#include "KTXConstants.h"

#include <QShortcut>
#include <linux/input-event-codes.h>

namespace {

constexpr int codeOfNoKey = 1000;

struct Key
{
    int evdev;
    int code;
    QString label;
};

class HotKeyLayout : public PaneOnHotKeyPage
{
protected:
    HotKeyLayout() { storeNoKeys(); }
    ~HotKeyLayout() override { useLayout("us", "a"); }

    /// Waits until keys are named by the layout, as `letter` on the A key tells.
    static void useLayout(const QString &layout, const QString &letter)
    {
        setKeyboardLayout(layout);
        EXPECT_TRUE(waitUntil([&] { return translatedKey(0) == letter; })) << qPrintable(layout);
    }
    void expectTakenIn(int row, const QList<Key> &keys, const QList<int> &held = {})
    {
        for (const Key &key : keys) {
            pressIn(row, key.evdev, held);
            expectTaken(row, key.code, key.label);
        }
    }
};

/// Keys on which mnemonics, shortcuts and editing commands lie, one or more of every kind.
const QList<Key> &keysOfEveryKind()
{
    static const QList<Key> keys{{KEY_Q, 12, "Q"}, {KEY_W, 13, "W"}, {KEY_F, 3, "F"}, {KEY_A, 0, "A"}, {KEY_C, 8, "C"},
        {KEY_X, 7, "X"}, {KEY_V, 9, "V"}, {KEY_Z, 6, "Z"}, {KEY_1, 18, "1"}, {KEY_MINUS, 27, "-"},
        {KEY_SPACE, 49, "___"}, {KEY_102ND, 10, "<"}, {KEY_KP5, 87, "5"}, {KEY_KPDOT, 65, "."}, {KEY_KPENTER, 76, "⌅"},
        {KEY_LEFT, 123, "←"}, {KEY_RIGHT, 124, "→"}, {KEY_DOWN, 125, "↓"}, {KEY_UP, 126, "↑"}};
    return keys;
}

const QList<Key> &keysWithoutMnemonics()
{
    static const QList<Key> keys{{KEY_1, 18, "1"}, {KEY_MINUS, 27, "-"}, {KEY_SPACE, 49, "___"}, {KEY_102ND, 10, "<"},
        {KEY_KP5, 87, "5"}, {KEY_KPDOT, 65, "."}, {KEY_KPENTER, 76, "⌅"}, {KEY_LEFT, 123, "←"}, {KEY_UP, 126, "↑"}};
    return keys;
}

class RepeatCounter : public QObject
{
public:
    RepeatCounter() { qApp->installEventFilter(this); }
    int repeats = 0;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        repeats += object->isWindowType() && event->type() == QEvent::KeyPress
            && static_cast<QKeyEvent *>(event)->isAutoRepeat();
        return false;
    }
};

} // namespace

TEST_F(HotKeyLayout, german)
{
    useLayout("de", "a");
    EXPECT_TRUE(waitUntil([] { return translatedKey(6) == "y"; }));
    showPage();
    expectTakenIn(Screenshot,
        {{KEY_Y, 16, "Z"}, {KEY_Z, 6, "Y"}, {KEY_SEMICOLON, 41, "Ö"}, {KEY_MINUS, 27, "SS"}, {KEY_SLASH, 44, "-"},
            {KEY_KPDOT, 65, ","}, {KEY_RIGHTBRACE, 30, "+"}});
}

TEST_F(HotKeyLayout, aDeadKeyIsTakenAtOnceAndMakesNothingOfTheNext)
{
    useLayout("de", "a");
    EXPECT_TRUE(waitUntil([] { return translatedKey(50).isEmpty(); }));
    showPage();
    expectTakenIn(Screenshot, {{KEY_GRAVE, 50, ""}, {KEY_A, 0, "A"}, {KEY_EQUAL, 24, ""}, {KEY_E, 14, "E"}});
}

TEST_F(HotKeyLayout, french)
{
    useLayout("fr", "q");
    showPage();
    expectTakenIn(
        Screenshot, {{KEY_Q, 12, "A"}, {KEY_A, 0, "Q"}, {KEY_1, 18, "&"}, {KEY_2, 19, "É"}, {KEY_SEMICOLON, 41, "M"}});
}

TEST_F(HotKeyLayout, russian)
{
    useLayout("ru", "ф");
    showPage();
    expectTakenIn(Screenshot, {{KEY_A, 0, "Ф"}, {KEY_GRAVE, 50, "Ё"}, {KEY_SPACE, 49, "___"}, {KEY_UP, 126, "↑"}});
    expectTakenIn(Screenshot, {{KEY_Q, 12, "Й"}, {KEY_V, 9, "М"}}, {KEY_LEFTCTRL});
}

TEST_F(HotKeyLayout, aSwitchOfTheLayoutInBetweenCountsAtTheNextKey)
{
    useLayout("us,ru", "a");
    showPage();
    expectTakenIn(Screenshot, {{KEY_B, 11, "B"}});
    lockKeyboardGroup(1);
    EXPECT_TRUE(waitUntil([] { return translatedKey(0) == "ф"; }));
    expectTakenIn(Screenshot, {{KEY_A, 0, "Ф"}});
    lockKeyboardGroup(0);
    EXPECT_TRUE(waitUntil([] { return translatedKey(0) == "a"; }));
    expectTakenIn(Screenshot, {{KEY_B, 11, "B"}});
}

TEST_F(HotKeyLayout, anotherLayoutsNameOfAKeyInUseIsInTheAlert)
{
    useLayout("ru", "ф");
    storeKey(Up, 0);
    showPage();
    focus(Screenshot);
    pressKey(KEY_A);
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(textsOfAlert().first(), "Ф is already in use.");
    pressKey(KEY_ESC);
    ASSERT_TRUE(alertGoesBackTo(window()));
    expectNothingStored();
}

TEST_F(HotKeyLayout, noHeldModifierHindersAKey)
{
    showPage();
    for (const int modifier : {KEY_LEFTSHIFT, KEY_RIGHTSHIFT, KEY_LEFTCTRL, KEY_RIGHTCTRL, KEY_LEFTMETA, KEY_RIGHTMETA})
        expectTakenIn(Screenshot, keysOfEveryKind(), {modifier});
    for (const int alt : {KEY_LEFTALT, KEY_RIGHTALT})
        expectTakenIn(Screenshot, keysWithoutMnemonics(), {alt});
    expectTakenIn(Screenshot, keysOfEveryKind(), {KEY_LEFTCTRL, KEY_LEFTALT, KEY_LEFTSHIFT, KEY_LEFTMETA});
}

TEST_F(HotKeyLayout, noLockHindersAKey)
{
    showPage();
    for (const int lock : {KEY_CAPSLOCK, KEY_NUMLOCK, KEY_SCROLLLOCK}) {
        focus(Screenshot);
        press(lock);
        expectTakenIn(Screenshot, keysOfEveryKind());
        press(lock);
        expectTakenIn(Screenshot, keysOfEveryKind());
    }
}

TEST_F(HotKeyLayout, mnemonicsOfTheWindowComeBeforeTheField)
{
    showPage();
    focus(Screenshot);
    press(KEY_R, {KEY_LEFTALT});
    EXPECT_EQ(focusedRow(), Right);
    expectNothingStored();
    focus(Screenshot);
    press(KEY_G, {KEY_LEFTALT});
    EXPECT_EQ(selectedTabIndex(control("tabbedView")), 0);
    EXPECT_EQ(keyCode(Screenshot), codeOfNoKey + Screenshot);
}

TEST_F(HotKeyLayout, shortcutsOfTheWindowComeBeforeTheField)
{
    showPage();
    int triggered = 0;
    QShortcut shortcut(QKeySequence(QStringLiteral("Ctrl+Q")), window());
    QObject::connect(&shortcut, &QShortcut::activated, [&triggered] { ++triggered; });
    pressIn(Screenshot, KEY_Q, {KEY_LEFTCTRL});
    EXPECT_EQ(triggered, 1);
    expectNothingStored();
    expectTakenIn(Screenshot, {{KEY_Q, 12, "Q"}}, {KEY_LEFTCTRL, KEY_LEFTSHIFT});
    EXPECT_EQ(triggered, 1);
}

TEST_F(HotKeyLayout, withExactlyTheActivationModifiersTheKeyIsMeant)
{
    store().set(KTXModifierMask, 0x800);
    showPage();
    expectTakenIn(Screenshot, {{KEY_R, 15, "R"}, {KEY_G, 5, "G"}, {KEY_Q, 12, "Q"}}, {KEY_LEFTALT});
    store().set(KTXModifierMask, 0x1000);
    pane().readUserPrefs();
    rememberStore();
    pressIn(Screenshot, KEY_R, {KEY_LEFTALT});
    EXPECT_EQ(focusedRow(), Right);
    expectNothingStored();
}

TEST_F(HotKeyLayout, aKeyThatStaysDownLongerThanAModifierBecomesNoShortcut)
{
    store().set(KTXModifierMask, 0x1800);
    showPage();
    focus(Screenshot);
    RepeatCounter counter;
    keyDown(KEY_LEFTCTRL);
    keyDown(KEY_LEFTALT);
    keyDown(KEY_R);
    EXPECT_TRUE(waitUntil([&] { return counter.repeats >= 1; }));
    keyUp(KEY_LEFTCTRL);
    counter.repeats = 0;
    EXPECT_TRUE(waitUntil([&] { return counter.repeats >= 3; }));
    keyUp(KEY_R);
    keyUp(KEY_LEFTALT);
    EXPECT_EQ(focusedRow(), Screenshot);
    expectTaken(Screenshot, 15, "R");
}

TEST_F(HotKeyLayout, pagesAreTurnedFromAFieldAsFromAnywhere)
{
    showPage();
    focus(Screenshot);
    const QVariantMap before = store().domain();
    press(KEY_TAB, {KEY_LEFTCTRL});
    EXPECT_EQ(selectedTabIndex(control("tabbedView")), 2);
    press(KEY_PAGEUP, {KEY_LEFTCTRL});
    EXPECT_EQ(selectedTabIndex(control("tabbedView")), 1);
    EXPECT_EQ(store().domain(), before);
}

TEST_F(HotKeyLayout, aKeyThatStaysDownIsStoredOnce)
{
    showPage();
    focus(Screenshot);
    RepeatCounter counter;
    keyDown(KEY_B);
    EXPECT_TRUE(waitUntil([&] { return counter.repeats >= 3; }));
    expectTaken(Screenshot, 11, "B");
    // A field that comes into the focus meanwhile does not take it.
    focus(Cancel);
    counter.repeats = 0;
    EXPECT_TRUE(waitUntil([&] { return counter.repeats >= 3; }));
    keyUp(KEY_B);
    expectNothingStored();
    EXPECT_EQ(bell.rings(), 0);
    EXPECT_FALSE(openAlert());
}

TEST_F(HotKeyLayout, oneOf200KeysTypedFastIsNotLost)
{
    const QList<int> keys{KEY_A, KEY_S, KEY_D, KEY_F, KEY_LEFT, KEY_KPENTER, KEY_W};
    const QList<int> codes{0, 1, 2, 3, 123, 76, 13};
    storeKey(CloseWindow, 13);
    store().set(KTXSuppressHKeyTaken, true);
    showPage();
    focus(Screenshot);
    int stored = 0;
    int refused = 0;
    int current = codeOfNoKey + Screenshot;
    for (int number = 0; number < 200; ++number) {
        const int pick = number * 5 % int(keys.size());
        pressKey(keys[pick]);
        refused += codes[pick] == 13;
        stored += codes[pick] != 13 && codes[pick] != current;
        current = codes[pick] == 13 ? current : codes[pick];
    }
    EXPECT_TRUE(waitUntil([&] { return keyCode(Screenshot) == current && bell.rings() == refused; }));
    EXPECT_EQ(bus().notifications().size(), stored);
    EXPECT_EQ(store().value(KTXScreenshotPref), QVariant(QVariantMap{{KTXKeycode, QString::number(current)}}));
}

TEST_F(HotKeyLayout, theSameKeyTypedFastCountsEachTime)
{
    constexpr int presses = 200;
    storeKey(CloseWindow, 13);
    store().set(KTXSuppressHKeyTaken, true);
    showPage();
    focus(Screenshot);
    for (int number = 0; number < presses; ++number)
        pressKey(KEY_W);
    pressKey(KEY_A);
    EXPECT_TRUE(waitUntil([this] { return keyCode(Screenshot) == 0; }));
    EXPECT_EQ(bell.rings(), presses);
    expectTaken(Screenshot, 0, "A");
}
