// The overlay's colour, as a user picks and resets it in the real window.

#include "AgentProgram.h"
#include "ColorSamples.h"
#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/appkit/colors/NSColorPanel.h"
#include "platform/appkit/colors/SystemColors.h"
#include "platform/foundation/colors/NSArchiver.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QColorDialog>
#include <QTest>

namespace {

class PaneOverlayColor : public PaneOnRealStore
{
protected:
    ~PaneOverlayColor() override { NSColorPanel::sharedColorPanel()->window()->hide(); }

    void showPage()
    {
        store().set(KTXFirstLaunch, QVariant(true));
        showPane();
        selectTabViewItemAtIndex(control("tabbedView"), 2);
        runPendingEvents();
        bus().clear();
    }

    NSColorWell *well() { return control<NSColorWell>("overlayColorWell"); }
    bool canReset() { return isEnabled(control("defaultColorButton")); }
    void pick(const QColor &color)
    {
        QTest::mouseClick(well(), Qt::LeftButton);
        NSColorPanel::sharedColorPanel()->window()->setCurrentColor(color);
    }

    void expectStored(QVariantMap before, const QByteArray &archive)
    {
        before.insert(KTXOverlayColor, archive);
        EXPECT_TRUE(isEqualPropertyList(store().domain(), before));
        EXPECT_EQ(bus().notifications(), (QList<BusNotification>{{KTXLMPrefsChanged, KTXLMAppID, {}, true}}));
        bus().clear();
    }
};

} // namespace

TEST_F(PaneOverlayColor, aColourPickedInThePanelIsStoredAtOnceAndCanBeReset)
{
    showPage();
    setEnabled(control("defaultColorButton"), false);
    const QVariantMap before = store().domain();
    pick(QColor(168, 255, 96));
    expectStored(before, colorSample("S019"));
    EXPECT_TRUE(canReset());
}

TEST_F(PaneOverlayColor, resettingStoresTheSystemColourAnnouncesItOnceAndIsDone)
{
    showPage();
    pick(Qt::green);
    bus().clear();
    const QVariantMap before = store().domain();
    QTest::mouseClick(control("defaultColorButton"), Qt::LeftButton);
    expectStored(before, systemColorArchive());
    EXPECT_EQ(well()->color(), NSColor::selectedTextBackgroundColor());
    EXPECT_FALSE(canReset());
}

TEST_F(PaneOverlayColor, resettingIsDoneAlsoWithoutAWell)
{
    showPage();
    delete well();
    setEnabled(control("defaultColorButton"), true);
    QTest::mouseClick(control("defaultColorButton"), Qt::LeftButton);
    EXPECT_FALSE(canReset());
}

TEST_F(PaneOverlayColor, aColourThatOnlyLooksLikeTheSystemsCanBeReset)
{
    showPage();
    pick(Qt::green);
    setEnabled(control("defaultColorButton"), false);
    pick(liveColor(NSColor::selectedTextBackgroundColor()));
    EXPECT_TRUE(canReset());
}

TEST_F(PaneOverlayColor, theSystemsOwnColourCannotBeReset)
{
    showPage();
    setColor(well(), NSColor::selectedTextBackgroundColor());
    const QVariantMap before = store().domain();
    pane().updateColorInfo(well());
    EXPECT_FALSE(canReset());
    expectStored(before, systemColorArchive());
}

TEST_F(PaneOverlayColor, readingTheSettingsLeavesTheResetButtonAsItIs)
{
    showPage();
    for (const QVariant &stored : {QVariant(colorSample("S019")), QVariant(systemColorArchive()), QVariant()}) {
        for (const bool enabled : {true, false}) {
            store().set(KTXOverlayColor, stored);
            setEnabled(control("defaultColorButton"), enabled);
            pane().readUserPrefs();
            EXPECT_EQ(canReset(), enabled) << stored.toByteArray().toHex().constData();
        }
    }
}

TEST_F(PaneOverlayColor, everySampleReachesTheAgentAndComesBackFromIt)
{
    showPage();
    const AgentProgram agent;
    for (const ColorSample &sample : colorSamples()) {
        const QByteArray expected = sample.id == "S141" ? systemColorArchive() : sample.archive;
        setColor(well(), NSUnarchiver::unarchiveObjectWithData(sample.archive));
        pane().updateColorInfo(well());
        const QJsonValue text = QString::fromLatin1(expected.toBase64());
        EXPECT_TRUE(waitUntil([&] { return runningAgentsSetting(KTXOverlayColor) == text; })) << sample.id.constData();
    }
    for (const ColorSample &sample : colorSamples()) {
        if (!QList<QByteArray>{"S014", "S118", "S131"}.contains(sample.id))
            continue;
        runAgent({"--set", KTXOverlayColor, "-data", QString::fromLatin1(sample.archive.toHex())});
        EXPECT_TRUE(waitUntil([&] { return isColorOf(sample, well()->color()); })) << sample.id.constData();
    }
}

TEST_F(PaneOverlayColor, everySampleComesBackFromTheWellAsItWasStored)
{
    showPage();
    for (const ColorSample &sample : colorSamples()) {
        store().set(KTXOverlayColor, QVariant(sample.archive));
        pane().readUserPrefs();
        pane().updateColorInfo(well());
        const QByteArray stored = store().value(KTXOverlayColor).toByteArray();
        EXPECT_EQ(stored, sample.id == "S141" ? systemColorArchive() : sample.archive) << sample.id.constData();
    }
}
