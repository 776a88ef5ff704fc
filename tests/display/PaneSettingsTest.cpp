#include "ColorSamples.h"
#include "PaneOnRealStore.h"
#include "SystemCallFaults.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "crashreporter/QBCrashReporter.h"
#include "platform/foundation/preferences/CFPreferences.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <sys/stat.h>

namespace {

const QString firstSelected = QStringLiteral("FirstSelected");

QVariantMap factoryDomain()
{
    return {
        {QStringLiteral("AnimateOverlay"), false},
        {QStringLiteral("autoRepeat"), true},
        {QStringLiteral("repeatRate"), 1.0f},
        {QStringLiteral("initialDelay"), 0.0f},
        {QStringLiteral("HorizontalSortOrder"), firstSelected},
        {QStringLiteral("VerticalSortOrder"), firstSelected},
        {QStringLiteral("EnableHorizontalWrap"), true},
        {QStringLiteral("EnableVerticalWrap"), true},
        {QStringLiteral("modifierKeyMask"), qlonglong(6144)},
        {QStringLiteral("overlayColor"), systemColorArchive()},
    };
}

/// What changes when a file is written anew: its number, its time and its content.
struct FileStamp
{
    explicit FileStamp(const QString &path)
    {
        struct stat status = {};
        EXPECT_EQ(stat(qPrintable(path), &status), 0);
        inode = status.st_ino;
        seconds = status.st_mtim.tv_sec;
        nanoseconds = status.st_mtim.tv_nsec;
    }
    bool operator==(const FileStamp &) const = default;

    ino_t inode;
    time_t seconds;
    long nanoseconds;
};

class PaneSettings : public PaneOnRealStore
{
protected:
    ~PaneSettings() override { systemCalls() = calls_; }

    bool isShown(const char *name) { return state(control(name)) == NSOnState; }
    int shownItem(const char *name) { return selectedItemTag(control(name)); }
    QString shownKey(int row) { return stringValue(keyField(row)); }
    /// Sets a sort order, reads, and gives the item that the pop-up shows then.
    int itemFor(const QString &key, const char *popUp, const QVariant &order)
    {
        store().set(key, order);
        pane().readUserPrefs();
        return shownItem(popUp);
    }

private:
    SystemCalls calls_ = systemCalls();
};

} // namespace

TEST_F(PaneSettings, anEmptyDomainGetsExactlyTheDefaults)
{
    pane().readUserPrefs();
    EXPECT_TRUE(isEqualPropertyList(store().domainBesideDateOfCheck(), factoryDomain()))
        << store().domain().keys().join(u' ').toStdString();
}

TEST_F(PaneSettings, anEmptyDomainShowsTheDefaults)
{
    pane().readUserPrefs();
    EXPECT_FALSE(isShown("animateButton"));
    EXPECT_TRUE(isShown("keyRepeatButton"));
    EXPECT_EQ(floatValue(control("repeatRateSlider")), 1);
    EXPECT_EQ(floatValue(control("repeatDelaySlider")), 0);
    EXPECT_EQ(shownItem("HorizontalPopup"), 54);
    EXPECT_EQ(shownItem("VerticalPopup"), 57);
    EXPECT_TRUE(isShown("enableHorizontalWrapButton"));
    EXPECT_TRUE(isShown("enableVerticalWrapButton"));
    EXPECT_EQ(text("modifiersField"), QStringLiteral("⌃⌥"));
    const QStringList keys{"↑", "→", "↓", "←", "/", ",", "S", "W", "Space", "Escape", "Enter"};
    for (int row = 0; row < keys.size(); ++row)
        EXPECT_EQ(shownKey(row), keys.at(row)) << row;
}

TEST_F(PaneSettings, theControlsShowWhatIsStored)
{
    store().set({{KTXAnimate, true}, {KTXAutoRepeat, false}, {KTXHWrap, false}, {KTXVWrap, false},
        {KTXHSort, QStringLiteral("LeftEdge")}, {KTXVSort, QStringLiteral("TopEdge")},
        {KTXModifierMask, qlonglong(0x300)}});
    pane().readUserPrefs();
    EXPECT_TRUE(isShown("animateButton"));
    EXPECT_FALSE(isShown("keyRepeatButton"));
    EXPECT_FALSE(isShown("enableHorizontalWrapButton"));
    EXPECT_FALSE(isShown("enableVerticalWrapButton"));
    EXPECT_EQ(shownItem("HorizontalPopup"), 53);
    EXPECT_EQ(shownItem("VerticalPopup"), 55);
    EXPECT_TRUE(isShown("shiftCheckBox"));
    EXPECT_TRUE(isShown("commandCheckBox"));
    EXPECT_FALSE(isShown("controlCheckBox"));
    EXPECT_FALSE(isShown("optionCheckBox"));
}

TEST_F(PaneSettings, sliderValuesAreShownAndKeptExactly)
{
    store().set(KTXRepeatRate, QVariant(0.5f));
    store().set(KTXInitialDelay, QVariant(0.25f));
    pane().readUserPrefs();
    EXPECT_EQ(floatValue(control("repeatRateSlider")), 0.5f);
    EXPECT_EQ(floatValue(control("repeatDelaySlider")), 0.25f);
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXRepeatRate), 0.5f));
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXInitialDelay), 0.25f));
}

TEST_F(PaneSettings, keysThePaneDoesNotKnowStayAsTheyAre)
{
    const QVariantMap foreign{{KTXFirstLaunch, true}, {KTXVisualMode, qlonglong(3)},
        {QStringLiteral("unknown"), QVariantList{1.5, QByteArray("x")}}};
    store().set(foreign);
    showPane();
    QVariantMap expected = factoryDomain();
    expected.insert(foreign);
    EXPECT_TRUE(isEqualPropertyList(store().domainBesideDateOfCheck(), expected));
}

TEST_F(PaneSettings, showingThePaneWhileTheFileCannotBeReadChangesNoneOfTheSettings)
{
    const QVariantMap chosen{{KTXFirstLaunch, true}, {KTXAnimate, true}, {KTXAutoRepeat, false}, {KTXRepeatRate, 0.5f},
        {KTXInitialDelay, 0.25f}, {KTXHSort, QStringLiteral("Center")}, {KTXVSort, QStringLiteral("LeadingEdge")},
        {KTXHWrap, false}, {KTXVWrap, false}, {KTXModifierMask, qlonglong(0x200)},
        {KTXOverlayColor, QByteArray("mine")}};
    store().set(chosen);
    ASSERT_TRUE(QFile::setPermissions(StoreOnDisk::path(), QFile::Permissions()));
    {
        const CapturedLog log;
        showPane();
        EXPECT_EQ(log.linesContaining(QStringLiteral("cannot be read")).size(), 1);
    }
    ASSERT_TRUE(QFile::setPermissions(StoreOnDisk::path(), QFile::ReadOwner | QFile::WriteOwner));
    const CapturedLog log;
    EXPECT_TRUE(CFPreferencesAppSynchronize(KTXLMAppID));
    EXPECT_TRUE(isEqualPropertyList(store().domainBesideDateOfCheck(), chosen));
    pane().willSelect();
    EXPECT_TRUE(isEqualPropertyList(store().domainBesideDateOfCheck(), chosen));
    EXPECT_TRUE(isShown("animateButton"));
    EXPECT_EQ(log.linesContaining(QStringLiteral("what is stored stays for")).size(), 1);
}

TEST_F(PaneSettings, aDomainOfNothingButWrongTypesIsRepairedWhereItIsCheckedAndElseUsedAsItComes)
{
    const QVariantMap wrong{{KTXShouldDebug, qlonglong(1)}, {KTXFirstLaunch, QVariantList()},
        {KTXModifierMask, QStringLiteral("256")}, {KTXOverlayColor, QStringLiteral("red")},
        {KTXUpPref, QStringLiteral("1")}, {KTXRightPref, qlonglong(1)},
        {KTXDownPref, QVariantList{QStringLiteral("keycode")}}, {KTXLeftPref, QByteArray("1")}, {KTXUnderPref, true},
        {SUEnableAutomaticChecks, QByteArray("1")}, {KTXAutoRepeat, QByteArray("1")},
        {KTXRepeatRate, QStringLiteral("0.5")}, {KTXInitialDelay, QVariantMap()}, {KTXAnimate, QStringLiteral("YES")},
        {KTXHWrap, qlonglong(0)}, {KTXVWrap, QStringLiteral("no")}, {KTXHSort, qlonglong(7)},
        {KTXVSort, QByteArray("TopEdge")}};
    store().set(wrong);
    const NSColorRef colorBefore = color(control("overlayColorWell"));
    const CapturedLog log;
    showPane();
    QVariantMap expected = wrong;
    expected.insert({{KTXModifierMask, qlonglong(0x1800)}, {KTXHWrap, true}, {KTXVWrap, true},
        {KTXHSort, firstSelected}, {KTXVSort, firstSelected}});
    EXPECT_TRUE(isEqualPropertyList(store().domainBesideDateOfCheck(), expected));
    EXPECT_EQ(*pane().keyCodes(), (QList<VirtualKeyCode>{126, 124, 125, 123, 44, 43, 1, 13, 49, 53, 36}));
    EXPECT_TRUE(isShown("animateButton"));
    EXPECT_FALSE(isShown("keyRepeatButton"));
    EXPECT_FALSE(isShown("autoUpdateButton"));
    EXPECT_TRUE(isShown("enableHorizontalWrapButton"));
    EXPECT_EQ(floatValue(control("repeatRateSlider")), 0.5f);
    EXPECT_EQ(floatValue(control("repeatDelaySlider")), 0);
    EXPECT_EQ(color(control("overlayColorWell")), colorBefore);
    EXPECT_TRUE(log.lines().isEmpty()) << log.lines().join(u'\n').toStdString();
}

TEST_F(PaneSettings, theHorizontalOrderSelectsItsItem)
{
    EXPECT_EQ(itemFor(KTXHSort, "HorizontalPopup", QStringLiteral("RightEdge")), 52);
    EXPECT_EQ(itemFor(KTXHSort, "HorizontalPopup", QStringLiteral("LeftEdge")), 53);
    EXPECT_EQ(itemFor(KTXHSort, "HorizontalPopup", firstSelected), 54);
}

TEST_F(PaneSettings, theVerticalOrderSelectsItsItem)
{
    EXPECT_EQ(itemFor(KTXVSort, "VerticalPopup", QStringLiteral("TopEdge")), 55);
    EXPECT_EQ(itemFor(KTXVSort, "VerticalPopup", QStringLiteral("BottomEdge")), 56);
    EXPECT_EQ(itemFor(KTXVSort, "VerticalPopup", firstSelected), 57);
}

TEST_F(PaneSettings, anOrderThePaneDoesNotShowIsKeptAndThePopUpStaysAsItWas)
{
    for (const char *order : {"Center", "LeadingEdge", "leftedge", "TopEdge", ""}) {
        itemFor(KTXHSort, "HorizontalPopup", QStringLiteral("RightEdge"));
        EXPECT_EQ(itemFor(KTXHSort, "HorizontalPopup", QString::fromLatin1(order)), 52) << order;
        EXPECT_EQ(store().value(KTXHSort), QVariant(QString::fromLatin1(order)));
    }
    itemFor(KTXVSort, "VerticalPopup", QStringLiteral("TopEdge"));
    EXPECT_EQ(itemFor(KTXVSort, "VerticalPopup", QStringLiteral("Center")), 55);
    EXPECT_EQ(store().value(KTXVSort), QVariant(QStringLiteral("Center")));
}

TEST_F(PaneSettings, aSortOrderStoredAsANumberIsReplacedByFirstSelected)
{
    EXPECT_EQ(itemFor(KTXHSort, "HorizontalPopup", qlonglong(7)), 54);
    EXPECT_EQ(store().value(KTXHSort), QVariant(firstSelected));
    EXPECT_EQ(itemFor(KTXVSort, "VerticalPopup", true), 57);
    EXPECT_EQ(store().value(KTXVSort), QVariant(firstSelected));
}

TEST_F(PaneSettings, withoutKeyRepeatItsFourControlsAreDisabled)
{
    for (const bool isRepeating : {false, true}) {
        store().set(KTXAutoRepeat, QVariant(isRepeating));
        pane().readUserPrefs();
        for (const char *name : {"repeatDelaySlider", "repeatRateSlider", "delayTextField", "repeatTextField"})
            EXPECT_EQ(isEnabled(control(name)), isRepeating) << name;
    }
}

TEST_F(PaneSettings, showingAnUnchangedStoreTouchesNoFile)
{
    showPane();
    const FileStamp before(StoreOnDisk::path());
    showPane();
    EXPECT_EQ(FileStamp(StoreOnDisk::path()), before);
}

TEST_F(PaneSettings, readingAnnouncesOnceAndAfterTheFileHoldsEverything)
{
    pane();
    bus().clear();
    QList<QStringList> announcedAtWriting;
    observe(&SystemCalls::rename, [&] { announcedAtWriting += bus().names(); });
    pane().readUserPrefs();
    EXPECT_EQ(announcedAtWriting, QList<QStringList>(2)) << "written twice, and not announced before";
    EXPECT_TRUE(isEqualPropertyList(store().domainBesideDateOfCheck(), factoryDomain()));
    EXPECT_EQ(bus().names(), QStringList{KTXLMPrefsChanged});
}

TEST_F(PaneSettings, defaultsThatCannotBeWrittenAreTriedAgainBeforeTheSortOrdersAreRead)
{
    pane();
    QList<QStringList> storedBeforeWriting;
    failOnce(&SystemCalls::rename, 1, EIO);
    observe(&SystemCalls::rename, [&] { storedBeforeWriting += store().domain().keys(); });
    const CapturedLog log;
    pane().readUserPrefs();
    const QStringList firstDefaults{
        KTXAnimate, QBCrashReporterLastCrashReportDate, KTXAutoRepeat, KTXInitialDelay, KTXRepeatRate};
    EXPECT_EQ(storedBeforeWriting, (QList<QStringList>{{}, {}, firstDefaults}));
    EXPECT_TRUE(isEqualPropertyList(store().domainBesideDateOfCheck(), factoryDomain()));
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(PaneSettings, aDomainThatAnotherProcessEmptiesIsFilledAgainAtTheNextShowing)
{
    showPane();
    QFile::remove(StoreOnDisk::path());
    showPane();
    EXPECT_TRUE(isEqualPropertyList(store().domain(), factoryDomain()));
}

TEST_F(PaneSettings, keysThePaneOnlyReadsOutlastAShowingWhileTheFileCannotBeRead)
{
    const QVariantMap onlyRead{{KTXFirstLaunch, true}, {SUEnableAutomaticChecks, true}, {KTXSuppressModAlert, true},
        {KTXUpPref, QVariantMap{{KTXKeycode, QStringLiteral("12")}}}};
    store().set(onlyRead);
    ASSERT_TRUE(QFile::setPermissions(StoreOnDisk::path(), QFile::Permissions()));
    {
        const CapturedLog log;
        showPane();
        EXPECT_FALSE(log.lines().isEmpty());
    }
    ASSERT_TRUE(QFile::setPermissions(StoreOnDisk::path(), QFile::ReadOwner | QFile::WriteOwner));
    showPane();
    QVariantMap expected = factoryDomain();
    expected.insert(onlyRead);
    EXPECT_TRUE(isEqualPropertyList(store().domainBesideDateOfCheck(), expected));
    EXPECT_EQ(shownKey(0), QStringLiteral("Q"));
}
