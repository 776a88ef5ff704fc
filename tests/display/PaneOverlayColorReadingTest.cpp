#include "ColorSamples.h"
#include "PaneOnRealStore.h"

#include "KTXConstants.h"
#include "platform/foundation/propertylists/PropertyList.h"

namespace {

class PaneOverlayColorReading : public PaneOnRealStore
{
};

} // namespace

TEST_F(PaneOverlayColorReading, theStoredOverlayColourIsShown)
{
    for (const ColorSample &sample : colorSamples()) {
        store().set(KTXOverlayColor, QVariant(sample.archive));
        pane().readUserPrefs();
        EXPECT_TRUE(isColorOf(sample, color(control("overlayColorWell")))) << sample.id.constData();
    }
}

TEST_F(PaneOverlayColorReading, theStoredSystemColourIsTheSystemColourItself)
{
    store().set(KTXOverlayColor, QVariant(systemColorArchive()));
    pane().readUserPrefs();
    EXPECT_EQ(color(control("overlayColorWell")), NSColor::selectedTextBackgroundColor());
}

TEST_F(PaneOverlayColorReading, withoutAnOverlayColourTheSystemColourIsStoredAndTheWellStays)
{
    const NSColorRef before = color(control("overlayColorWell"));
    pane().readUserPrefs();
    EXPECT_EQ(store().value(KTXOverlayColor), QVariant(systemColorArchive()));
    EXPECT_EQ(color(control("overlayColorWell")), before);
}

TEST_F(PaneOverlayColorReading, anOverlayColourThatCannotBeReadLeavesTheWellAndTheData)
{
    for (const QByteArray &damaged : {QByteArray(), QByteArray("red"), systemColorArchive().chopped(1)}) {
        store().set(KTXOverlayColor, QVariant(damaged));
        const NSColorRef before = color(control("overlayColorWell"));
        pane().readUserPrefs();
        EXPECT_EQ(color(control("overlayColorWell")), before);
        EXPECT_TRUE(isEqualPropertyList(store().value(KTXOverlayColor), damaged));
    }
}
