#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/foundation/propertylists/PropertyList.h"

namespace {

class PaneNotifications : public PaneOnRealStore
{
protected:
    /// Lets another process post, and everything that comes of it happen.
    void postFromOutside(const QString &name, const QString &object, const QVariantMap &userInfo = {})
    {
        bus().post(name, object, userInfo);
        // What is posted next by another process arrives after it, so when the answer to that is there the first has
        // been dealt with.
        const qsizetype switches = calls.count(QStringLiteral("switchToTab: end"));
        bus().post(KTXPrefPaneToTab, QStringLiteral("end"));
        ASSERT_TRUE(waitUntil([&] { return calls.count(QStringLiteral("switchToTab: end")) > switches; }));
        calls.removeLast();
    }
};

/// Puts a file in place of the store's as another program would, past this process's own store.
void writeStoreFromOutside(const QVariantMap &domain)
{
    QSaveFile file(StoreOnDisk::path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(writeBinaryPropertyList(domain));
    ASSERT_TRUE(file.commit());
}

} // namespace

TEST_F(PaneNotifications, aChangeTheAgentAnnouncesShowsInTheControls)
{
    showPane();
    QVariantMap domain = store().domain();
    domain.insert({{KTXHWrap, false}, {KTXModifierMask, qlonglong(0x200)}});
    writeStoreFromOutside(domain);
    bus().post(KTXLMPrefsChanged, KTXLMAgentID);
    EXPECT_TRUE(waitUntil([this] { return state(control("enableHorizontalWrapButton")) == NSOffState; }));
    EXPECT_EQ(text("modifiersField"), QStringLiteral("⇧"));
    EXPECT_TRUE(isEqualPropertyList(store().domain(), domain));
}

TEST_F(PaneNotifications, theAgentsAnnouncementIsAnsweredByExactlyOneOfThePanes)
{
    showPane();
    bus().clear();
    postFromOutside(KTXLMPrefsChanged, KTXLMAgentID);
    QList<BusNotification> posted = bus().notifications();
    posted.removeIf([](const BusNotification &notification) { return notification.name == KTXPrefPaneToTab; });
    EXPECT_EQ(posted,
        (QList<BusNotification>{
            {KTXLMPrefsChanged, KTXLMAgentID, {}, true}, {KTXLMPrefsChanged, KTXLMAppID, {}, true}}));
}

TEST_F(PaneNotifications, thePaneIgnoresItsOwnAnnouncement)
{
    pane();
    calls.clear();
    pane().readUserPrefs();
    postFromOutside(KTXLMPrefsChanged, KTXLMAppID);
    EXPECT_TRUE(calls.isEmpty()) << calls.join(u' ').toStdString();
}

TEST_F(PaneNotifications, changesAnnouncedByAnybodyElseAreIgnored)
{
    pane();
    calls.clear();
    for (const QString &object :
        {QString(), QStringLiteral("com.quorvane.LumarooAgentX"), QStringLiteral("com.quorvane.lumarooagent")})
        postFromOutside(KTXLMPrefsChanged, object);
    EXPECT_TRUE(calls.isEmpty());
    postFromOutside(KTXLMPrefsChanged, KTXLMAgentID);
    EXPECT_EQ(calls, QStringList{"updatePreferences:"});
}

TEST_F(PaneNotifications, fourNotificationsAreBelievedFromAnySender)
{
    pane();
    for (const QString &object : {QString(), QStringLiteral("anybody"), KTXLMAgentID}) {
        calls.clear();
        postFromOutside(KTXLMAgentLaunched, object);
        postFromOutside(KTXLMPrefPaneLaunchAgent, object);
        postFromOutside(KTXLMAgentIsTerminating, object);
        postFromOutside(KTXPrefPaneToTab, object);
        EXPECT_EQ(
            calls, (QStringList{"setAgentVisualsOn:", "startAgent", "setAgentVisualsOff", "switchToTab: " + object}));
    }
}

TEST_F(PaneNotifications, notificationsThePaneDoesNotObserveChangeNothing)
{
    pane();
    calls.clear();
    for (const QString &name : {KTXLMAgentShouldTerminate, KTXLMRunTutorial, KTXLMPrefPaneLaunched,
             KTXLMAgenCloseCurrentApp, KTXLMAgentDisableAutoLaunch, KTXChangeColor})
        postFromOutside(name, KTXLMAgentID);
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(PaneNotifications, aChangeMayBeAnnouncedBeforeTheViewIsLoaded)
{
    paneWithoutView();
    store().set(KTXModifierMask, 0x1A01);
    postFromOutside(KTXLMPrefsChanged, KTXLMAgentID);
    EXPECT_EQ(calls, QStringList{"updatePreferences:"});
    EXPECT_TRUE(isEqualPropertyList(store().value(KTXModifierMask), qlonglong(0x1A00)));
    EXPECT_EQ(paneWithoutView().modifierGlyphs(), QStringLiteral("⇧⌃⌥"));
}

TEST_F(PaneNotifications, theSettingsFollowTheAgentAlsoWhileThePaneIsHidden)
{
    showPane();
    pane().mainView()->hide();
    pane().didUnselect();
    store().set(KTXAnimate, QVariant(true));
    postFromOutside(KTXLMPrefsChanged, KTXLMAgentID);
    EXPECT_EQ(state(control("animateButton")), NSOnState);
}

TEST_F(PaneNotifications, whatAChangeCarriesIsIgnored)
{
    pane();
    calls.clear();
    postFromOutside(KTXLMPrefsChanged, KTXLMAgentID, {{KTXHWrap, false}, {QStringLiteral("KTXLMAgentVersion"), 5}});
    EXPECT_EQ(calls, QStringList{"updatePreferences:"});
    EXPECT_EQ(store().value(KTXHWrap), QVariant(true));
}
