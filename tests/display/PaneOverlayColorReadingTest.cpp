#include "PaneOnRealStore.h"

#include "KTXConstants.h"
#include "platform/foundation/colors/NSArchiver.h"
#include "platform/foundation/propertylists/PropertyList.h"

namespace {

QByteArray systemColorArchive()
{
    return NSArchiver::archivedDataWithRootObject(NSColor::selectedTextBackgroundColor());
}

class PaneOverlayColorReading : public PaneOnRealStore
{
};

} // namespace

TEST_F(PaneOverlayColorReading, theStoredOverlayColourIsShown)
{
    store().set(KTXOverlayColor,
        QVariant(NSArchiver::archivedDataWithRootObject(NSColor::colorWithCalibratedRGBA(1, 0.5f, 0, 1))));
    pane().readUserPrefs();
    EXPECT_EQ(color(control("overlayColorWell"))->rgba(), (std::array<float, 4>{1, 0.5f, 0, 1}));
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
