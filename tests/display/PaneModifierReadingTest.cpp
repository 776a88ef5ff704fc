#include "PaneOnRealStore.h"

#include "KTXConstants.h"
#include "platform/foundation/propertylists/PropertyList.h"

namespace {

class PaneModifierReading : public PaneOnRealStore
{
protected:
    bool isShown(const char *name) { return state(control(name)) == NSOnState; }
};

} // namespace

TEST_F(PaneModifierReading, modifierBitsThatDoNotExistAreRemovedFromTheStore)
{
    store().set(KTXModifierMask, 0x1A01);
    pane().readUserPrefs();
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXModifierMask), qlonglong(0x1A00)));
    EXPECT_EQ(text("modifiersField"), QStringLiteral("⇧⌃⌥"));
}

TEST_F(PaneModifierReading, aMaskOfAllFourModifiersStaysUnchanged)
{
    store().set(KTXModifierMask, 0x1B00);
    pane().readUserPrefs();
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXModifierMask), qlonglong(0x1B00)));
    EXPECT_EQ(text("modifiersField"), QStringLiteral("⇧⌃⌥⌘"));
}

TEST_F(PaneModifierReading, aNegativeMaskKeepsItsModifierBits)
{
    store().set(KTXModifierMask, -1);
    pane().readUserPrefs();
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXModifierMask), qlonglong(0x1B00)));
}

TEST_F(PaneModifierReading, aMaskBeyond32BitsIsReplacedByTheDefault)
{
    store().set(KTXModifierMask, QVariant(qlonglong(0x100001800)));
    pane().readUserPrefs();
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXModifierMask), qlonglong(0x1800)));
}

TEST_F(PaneModifierReading, aMaskWithoutModifiersIsAcceptedAsItIs)
{
    store().set({{KTXModifierMask, 0}, {KTXSuppressModAlert, true}});
    showPane();
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXModifierMask), qlonglong(0)));
    EXPECT_EQ(text("modifiersField"), QString());
}

TEST_F(PaneModifierReading, eachModifierHasItsCheckBox)
{
    const QMap<int, const char *> boxes{
        {0x100, "commandCheckBox"}, {0x200, "shiftCheckBox"}, {0x800, "optionCheckBox"}, {0x1000, "controlCheckBox"}};
    for (const int mask : boxes.keys()) {
        store().set(KTXModifierMask, mask);
        pane().readUserPrefs();
        for (auto box = boxes.cbegin(); box != boxes.cend(); ++box)
            EXPECT_EQ(isShown(box.value()), box.key() == mask) << box.value();
    }
}
