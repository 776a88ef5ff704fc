// What the check box that hides the notes of a build writes, and when that reaches the disk.

#include "PaneOnRealStore.h"
#include "SeenNotes.h"

#include "KTXConstants.h"
#include "platform/appkit/controls/FloatSlider.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"

namespace {

class PaneBuildNotes : public PaneOnRealStore
{
protected:
    PaneBuildNotes()
    {
        store().set(KTXFirstLaunch, QVariant(true));
        letNotesBeSeen();
    }
};

} // namespace

TEST_F(PaneBuildNotes, hidingTheNotesWritesTheBuildsKeyAndNeitherFlushesNorTells)
{
    changeInfo({{"CFBundleVersion", "57"}});
    showPane();
    bus().clear();
    const QVariantMap before = store().domain();
    performClick(control("hideBetaNotesButton"));
    EXPECT_EQ(CFPreferencesCopyAppValue("hideBetaNotes57", KTXLMAppID), QVariant(true));
    EXPECT_EQ(store().domain(), before);
    EXPECT_EQ(bus().names(), QStringList());
    performClick(control("hideBetaNotesButton"));
    EXPECT_EQ(CFPreferencesCopyAppValue("hideBetaNotes57", KTXLMAppID), QVariant(false));
    EXPECT_EQ(store().domain(), before);
}

TEST_F(PaneBuildNotes, hiddenNotesReachTheDiskWithASlidersWholeDomain)
{
    changeInfo({{"CFBundleVersion", "57"}});
    showPane();
    performClick(control("hideBetaNotesButton"));
    bus().clear();
    control<FloatSlider>("repeatDelaySlider")->chooseValue(1.25);
    EXPECT_EQ(store().value("hideBetaNotes57"), QVariant(true));
    EXPECT_EQ(store().value(KTXInitialDelay), QVariant(1.25f));
    EXPECT_EQ(bus().names(), QStringList()) << "a slider tells nobody";
}

TEST_F(PaneBuildNotes, hiddenNotesReachTheDiskWithTheNextFlush)
{
    changeInfo({{"CFBundleVersion", "57"}});
    showPane();
    performClick(control("hideBetaNotesButton"));
    pane().didUnselect();
    EXPECT_EQ(store().value("hideBetaNotes57"), QVariant(true));
}

TEST_F(PaneBuildNotes, theBuildsKeyGoesByTheVersionsLeadingDigits)
{
    const QList<std::pair<QString, QString>> keys{
        {"12b", "hideBetaNotes12"}, {"b12", "hideBetaNotes0"}, {"1.2.3", "hideBetaNotes1"}, {"", "hideBetaNotes0"}};
    for (const auto &[version, key] : keys) {
        store().clear();
        TestBundle other("Lumaroo.prefPane");
        other.writeInfo({{"CFBundleVersion", version}});
        RecordingPane hiding(&calls);
        ASSERT_TRUE(hiding.initWithBundle(NSBundle::bundleWithPath(other.path())));
        hiding.hideBetaNotes(control("hideBetaNotesButton"));
        EXPECT_EQ(CFPreferencesCopyAppValue(key, KTXLMAppID), QVariant(false)) << qPrintable(version);
    }
}
