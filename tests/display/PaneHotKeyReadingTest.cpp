#include "Keyboard.h"
#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"

namespace {

class PaneHotKeyReading : public PaneOnRealStore
{
protected:
    void storeKey(const QString &name, const QVariant &keyCode) const
    {
        store().set(name, QVariantMap{{KTXKeycode, keyCode}});
    }
    QString shownKey(int row) { return stringValue(keyField(row)); }
};

} // namespace

TEST_F(PaneHotKeyReading, aStoredKeyIsShownByItsName)
{
    storeKey(KTXUpPref, QStringLiteral("53"));
    storeKey(KTXScreenshotPref, QStringLiteral("126"));
    pane().readUserPrefs();
    EXPECT_EQ(shownKey(0), QStringLiteral("Escape"));
    EXPECT_EQ(shownKey(6), QStringLiteral("↑"));
}

TEST_F(PaneHotKeyReading, theWorkingKeyCodesAndTheDefaultsAreOneTable)
{
    storeKey(KTXUpPref, QStringLiteral("126"));
    pane().readUserPrefs();
    EXPECT_EQ(pane().keyCodes(), pane().defaultKeyCodes());
    storeKey(KTXUpPref, QStringLiteral("12"));
    pane().readUserPrefs();
    EXPECT_EQ(pane().defaultKeyCodes()->at(0), 12);
}

TEST_F(PaneHotKeyReading, aKeyThatVanishesFromTheStoreKeepsItsLastCode)
{
    storeKey(KTXScreenshotPref, QStringLiteral("0"));
    pane().readUserPrefs();
    store().set(KTXScreenshotPref, QVariant());
    pane().readUserPrefs();
    EXPECT_EQ(pane().keyCodes()->at(6), 0);
    store().set(KTXScreenshotPref, QVariantMap{{KTXUnichar, QStringLiteral("s")}});
    pane().readUserPrefs();
    EXPECT_EQ(pane().keyCodes()->at(6), 0);
    EXPECT_EQ(shownKey(6), QStringLiteral("A"));
}

TEST_F(PaneHotKeyReading, ofAKeyCodeTextItsLeadingNumberCounts)
{
    storeKey(KTXUpPref, QStringLiteral("none"));
    storeKey(KTXRightPref, QStringLiteral("12b"));
    storeKey(KTXDownPref, qlonglong(13));
    storeKey(KTXLeftPref, QVariantList());
    pane().readUserPrefs();
    EXPECT_EQ(pane().keyCodes()->mid(0, 4), (QList<VirtualKeyCode>{0, 12, 13, 0}));
}

TEST_F(PaneHotKeyReading, aKeyIsNamedByTheLow16BitsOfItsCode)
{
    storeKey(KTXUpPref, QString::number(0x10000 + 53));
    pane().readUserPrefs();
    EXPECT_EQ(shownKey(0), QStringLiteral("Escape"));
    EXPECT_EQ(pane().keyCodes()->at(0), 0x10000 + 53);
}

TEST_F(PaneHotKeyReading, readingWritesNoHotKey)
{
    pane().readUserPrefs();
    for (const QString &name : pane().keyCodePrefNames())
        EXPECT_FALSE(store().domain().contains(name)) << qPrintable(name);
}

TEST_F(PaneHotKeyReading, aKeyUsedTwiceIsADuplicateInBothRows)
{
    EXPECT_FALSE(paneWithoutView().hotKeyIsDuplicateAtIndex(0)) << "there is no table before the first reading";
    storeKey(KTXOpenPrefPanePref, QStringLiteral("49"));
    pane().readUserPrefs();
    for (int row = 0; row < 11; ++row)
        EXPECT_EQ(pane().hotKeyIsDuplicateAtIndex(row), row == 5 || row == 8) << row;
}

TEST_F(PaneHotKeyReading, aLayoutSwitchedWhileThePaneIsOpenCountsAtTheNextReading)
{
    storeKey(KTXUpPref, QStringLiteral("6"));
    pane().readUserPrefs();
    EXPECT_EQ(shownKey(0), QStringLiteral("Z"));
    const auto showsAfterReading = [this](const QString &name) {
        return waitUntil([&] {
            pane().readUserPrefs();
            return shownKey(0) == name;
        });
    };
    setKeyboardLayout(QStringLiteral("de"));
    EXPECT_TRUE(showsAfterReading(QStringLiteral("Y")));
    setKeyboardLayout(QStringLiteral("us"));
    EXPECT_TRUE(showsAfterReading(QStringLiteral("Z")));
}
