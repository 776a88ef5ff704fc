// A key that an action has already is refused, and what the user is told about it.

#include "KeyPress.h"
#include "OpenAlert.h"
#include "PaneOnHotKeyPage.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/appkit/colors/SystemColors.h"
#include "platform/appkit/textfields/FieldEditor.h"

#include <QLabel>
#include <linux/input-event-codes.h>

namespace {

class HotKeyRefusal : public PaneOnHotKeyPage
{
protected:
    QStringList textsFor(const QString &label)
    {
        return {label + " is already in use.",
            "Lumaroo already has an action associated with " + label + ". Please choose another key."};
    }
    /// The whole of a refusal: the alert with its texts, after which the field is as it was and nothing is stored.
    void expectRefused(int row, int evdevCode, const QString &label)
    {
        focus(row);
        pressKey(evdevCode);
        ASSERT_TRUE(alertComesUp()) << evdevCode;
        EXPECT_EQ(textsOfAlert(), textsFor(label));
        closeAlert();
        EXPECT_EQ(focusedRow(), row);
        expectNothingStored();
    }
    void closeAlert()
    {
        pressKey(KEY_ESC);
        ASSERT_TRUE(alertGoesBackTo(window()));
    }
    QColor background(int row) { return field(row)->palette().color(QPalette::Base); }
};

} // namespace

TEST_F(HotKeyRefusal, theSpaceBarOfThePreviewIsRefusedByItsSign)
{
    showPage();
    expectRefused(Up, KEY_SPACE, "___");
    EXPECT_EQ(shown(Up), "↑");
    EXPECT_EQ(bell.rings(), 0);
}

TEST_F(HotKeyRefusal, aKeyOfAnyOtherRowIsRefused)
{
    showPage();
    expectRefused(Snap, KEY_UP, "↑");
    expectRefused(Snap, KEY_RIGHT, "→");
    expectRefused(Snap, KEY_DOWN, "↓");
    expectRefused(Snap, KEY_LEFT, "←");
    expectRefused(Up, KEY_SLASH, "/");
    expectRefused(Up, KEY_COMMA, ",");
    expectRefused(Up, KEY_S, "S");
    expectRefused(Up, KEY_W, "W");
}

TEST_F(HotKeyRefusal, theKeypadsEnterIsRefusedByItsSign)
{
    storeKey(Cancel, 76);
    showPage();
    expectRefused(Under, KEY_KPENTER, "⌅");
}

TEST_F(HotKeyRefusal, theFieldShowsTheNameOfItsKeyInCapitals)
{
    storeKey(Cancel, 115);
    showPage();
    EXPECT_EQ(shown(Cancel), "Home");
    expectRefused(Cancel, KEY_S, "S");
    EXPECT_EQ(shown(Cancel), "HOME");
    expectRefused(Preview, KEY_S, "S");
    EXPECT_EQ(shown(Preview), "SPACE");
}

TEST_F(HotKeyRefusal, theAlertIsGermanForAGermanUser)
{
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    showPage();
    focus(Up);
    pressKey(KEY_SPACE);
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(textsOfAlert(),
        (QStringList{"___ ist bereits belegt.",
            "Lumaroo verwendet ___ schon für eine andere Aktion. Bitte wählen Sie eine andere Taste."}));
    closeAlert();
}

TEST_F(HotKeyRefusal, suppressedItOnlyBeeps)
{
    store().set(KTXSuppressHKeyTaken, true);
    showPage();
    pressIn(Up, KEY_SPACE);
    EXPECT_EQ(bell.rings(), 1);
    EXPECT_TRUE(noAlertComesUpOn(window()));
    EXPECT_EQ(shown(Up), "↑");
    EXPECT_EQ(focusedRow(), Up);
    expectNothingStored();
    press(KEY_SPACE);
    EXPECT_EQ(bell.rings(), 2);
}

TEST_F(HotKeyRefusal, aSuppressionOfTheWrongTypeDoesNotCount)
{
    for (const QVariant &value : {QVariant(1LL), QVariant("true"), QVariant(1.0), QVariant(false)}) {
        store().set(KTXSuppressHKeyTaken, value);
        showPage();
        expectRefused(Up, KEY_SPACE, "___");
        EXPECT_EQ(bell.rings(), 0);
    }
}

TEST_F(HotKeyRefusal, aTickedBoxSuppressesTheNextOnes)
{
    showPage();
    focus(Up);
    pressKey(KEY_SPACE);
    ASSERT_TRUE(alertComesUp());
    const auto *box = partOfAlert<QAbstractButton>("suppression");
    clickOn(box);
    ASSERT_TRUE(waitUntil([box] { return box->isChecked(); }));
    pressKey(KEY_ENTER);
    ASSERT_TRUE(alertGoesBackTo(window()));
    EXPECT_EQ(store().value(KTXSuppressHKeyTaken), QVariant(true));
    EXPECT_EQ(bus().names(), QStringList{KTXLMPrefsChanged});
    press(KEY_SPACE);
    EXPECT_EQ(bell.rings(), 1);
    EXPECT_FALSE(openAlert());
}

TEST_F(HotKeyRefusal, anotherKeyIsTakenRightAfterTheAlert)
{
    showPage();
    expectRefused(Up, KEY_SPACE, "___");
    press(KEY_B);
    expectTaken(Up, 11, "B");
}

TEST_F(HotKeyRefusal, aRefusedKeyThatStaysDownRaisesOneAlertAndPressesNothingInIt)
{
    storeKey(Cancel, 76);
    showPage();
    for (const int key : {KEY_SPACE, KEY_KPENTER}) {
        focus(Up);
        keyDown(key);
        ASSERT_TRUE(alertComesUp());
        const QPointer<QDialog> alert = openAlert();
        const KeyReleases releases;
        EXPECT_TRUE(waitUntil([&] { return releases.withRepeats() >= 3; })) << "it repeats";
        keyUp(key);
        runPendingEvents();
        EXPECT_TRUE(alert && alert->isVisible()) << key;
        pressKey(KEY_ENTER);
        EXPECT_TRUE(waitUntil([&] { return !alert && hasKeyboard(window()); })) << "its own keys answer it";
    }
    expectNothingStored();
}

TEST_F(HotKeyRefusal, theMarkersAreRefreshedAllTheSame)
{
    store().set(KTXsuppressHKeysTaken, true);
    store().set(KTXSuppressHKeyTaken, true);
    storeKey(Under, 123);
    showPage();
    for (int row = Up; row <= Under; ++row)
        setHidden(viewWithTag(pane().mainView(), row + 5), row != Up);
    pressIn(Up, KEY_SPACE);
    EXPECT_EQ(markedRows(), (QList<int>{Left, Under}));
}

TEST_F(HotKeyRefusal, theMarkersAreRefreshedWhileTheAlertIsOpen)
{
    store().set(KTXsuppressHKeysTaken, true);
    storeKey(Under, 123);
    showPage();
    for (int row = Up; row <= Under; ++row)
        setHidden(viewWithTag(pane().mainView(), row + 5), row != Up);
    focus(Up);
    pressKey(KEY_SPACE);
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(markedRows(), (QList<int>{Left, Under}));
    closeAlert();
}

TEST_F(HotKeyRefusal, whileTheAlertIsOpenTheFieldStaysMarkedWithItsTextSelected)
{
    showPage();
    focus(Up);
    pressKey(KEY_SPACE);
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(background(Up), liveColor(NSColor::selectedTextBackgroundColor()));
    EXPECT_EQ(field(Up)->selectedText(), "↑");
    EXPECT_EQ(FieldEditor::existingForWindow(window())->delegate(), field(Up));
    closeAlert();
    EXPECT_EQ(background(Up), liveColor(NSColor::selectedControlColor()));
}

TEST_F(HotKeyRefusal, theAlertComesUpOverAWhiteFieldWithNothingSelected)
{
    showPage();
    focus(Up);
    field(Up)->selectAll();
    ASSERT_NE(background(Up), QColor(Qt::white));
    int alerts = 0;
    const AtAlert look([&] {
        ++alerts;
        EXPECT_EQ(background(Up), QColor(Qt::white));
        EXPECT_EQ(field(Up)->selectedText(), QString());
    });
    pressKey(KEY_SPACE);
    ASSERT_TRUE(alertComesUp());
    EXPECT_EQ(alerts, 1);
    closeAlert();
}
