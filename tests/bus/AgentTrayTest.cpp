// The agent among the status icons of a desktop, which comes, goes, or does not answer.

#include "AgentSession.h"
#include "KTXConstants.h"
#include "TrayHost.h"
#include "Wait.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <gmock/gmock.h>
#include <optional>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

enum Line { OnOff = 1, Settings = 3, Tutorial = 4, Quit = 6 };

class AgentInTray : public AgentSessionAfterFirstLaunch
{
protected:
    void setShown(bool shown)
    {
        store({{KTXFirstLaunch, true}, {KTXShowInTray, shown}});
        paneAnnounces(KTXLMPrefsChanged);
    }
};

/// Takes icons up as a panel does that hangs.
class SilentTrayHost
{
public:
    SilentTrayHost()
    {
        EXPECT_TRUE(bus_.registerVirtualObject("/", &silence_, QDBusConnection::SubPath));
        EXPECT_TRUE(bus_.registerService("org.kde.StatusNotifierWatcher"));
    }
    ~SilentTrayHost() { QDBusConnection::disconnectFromBus("silent-tray"); }

    bool wasAsked() const { return silence_.wasAsked; }

private:
    class Silence : public QDBusVirtualObject
    {
    public:
        QString introspect(const QString &) const override { return {}; }
        bool handleMessage(const QDBusMessage &, const QDBusConnection &) override { return wasAsked = true; }
        bool wasAsked = false;
    };
    QDBusConnection bus_ = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "silent-tray");
    Silence silence_;
};

QStringList labelsOf(const QMap<int, TrayHost::Line> &menu)
{
    QStringList labels;
    for (const TrayHost::Line &line : menu)
        labels += line.label;
    return labels;
}

bool isAnError(const QDBusMessage &answer)
{
    return answer.type() == QDBusMessage::ErrorMessage
        && answer.errorName() == "org.freedesktop.DBus.Error.InvalidArgs";
}

QDBusVariant nothing()
{
    return QDBusVariant(QString());
}

} // namespace

TEST_F(AgentInTray, hasAnIconWithANameAndATooltip)
{
    const TrayHost host;
    AgentProgram agent;
    ASSERT_TRUE(host.hasIcon());
    EXPECT_EQ(host.property("Id"), "lumaroo");
    EXPECT_EQ(host.property("Title"), "Lumaroo");
    EXPECT_EQ(host.property("Category"), "ApplicationStatus");
    EXPECT_EQ(host.property("Status"), "Active");
    EXPECT_EQ(host.property("IconName"), "com.quorvane.LumarooSettings");
    EXPECT_EQ(host.property("OverlayIconName"), "");
    EXPECT_EQ(host.property("ItemIsMenu"), false);
    EXPECT_EQ(host.property("IconPixmap").value<QDBusArgument>().currentSignature(), "a(iiay)");
    EXPECT_EQ(host.property("ToolTip").value<QDBusArgument>().currentSignature(), "(sa(iiay)ss)");
    EXPECT_EQ(host.toolTip(), "Lumaroo|") << "without a display there is nothing to press";
}

TEST_F(AgentInTray, hasAFlatMenuWithLinesThatKeepTheirNumbers)
{
    const TrayHost host;
    AgentProgram agent;
    ASSERT_TRUE(host.hasIcon());
    const QMap<int, TrayHost::Line> menu = host.menu();
    EXPECT_THAT(menu.keys(), ElementsAre(1, 2, 3, 4, 5, 6));
    EXPECT_THAT(labelsOf(menu), ElementsAre(u"Lumaroo is on", u"", u"Settings", u"Tutorial", u"", u"Quit Lumaroo"));
    EXPECT_EQ(menu.value(OnOff).toggleState, 1);
    EXPECT_EQ(menu.value(2).type, "separator");
    EXPECT_EQ(menu.value(5).type, "separator");
    EXPECT_EQ(menu.value(Quit).toggleState, -1);
}

TEST_F(AgentInTray, speaksGerman)
{
    QProcessEnvironment german = QProcessEnvironment::systemEnvironment();
    german.insert("LANGUAGE", "de");
    german.insert("LC_ALL", "de_DE.UTF-8");
    const TrayHost host;
    AgentProgram agent({"--foreground"}, AgentProgram::builtExecutable(), german);
    ASSERT_TRUE(host.hasIcon());
    EXPECT_THAT(labelsOf(host.menu()),
        ElementsAre(u"Lumaroo ist an", u"", u"Einstellungen", u"Einführung", u"", u"Lumaroo beenden"));
    host.choose(OnOff);
    ASSERT_TRUE(agent.waitForLine("off for now"));
    EXPECT_EQ(host.toolTip(), "Lumaroo|Vorerst aus. Seine Tasten gehören so lange anderen Programmen.");
}

TEST_F(AgentInTray, comesUpWithATrayThatComesLater)
{
    AgentProgram agent;
    ASSERT_TRUE(waitForLaunchOf(agent));
    const TrayHost host;
    EXPECT_TRUE(host.hasIcon());
    EXPECT_EQ(agent.errors(), noDisplayForHotKeys) << "its absence is no fault";
}

TEST_F(AgentInTray, comesUpAgainWithATrayThatWasRestarted)
{
    std::optional<TrayHost> host(std::in_place);
    AgentProgram agent;
    ASSERT_TRUE(host->hasIcon());
    host->choose(OnOff);
    ASSERT_TRUE(agent.waitForLine("off for now"));
    for (int restart = 0; restart < 3; ++restart) {
        host.reset();
        host.emplace();
        ASSERT_TRUE(host->hasIcon());
        EXPECT_EQ(host->menu().value(OnOff).toggleState, 0) << "nothing is lost";
    }
    host->choose(OnOff);
    EXPECT_TRUE(agent.waitForLine("on again"));
}

TEST_F(AgentInTray, comesUpWithATrayThatTakesTheNameOver)
{
    std::optional<TrayHost> host(std::in_place);
    const TrayHost next("next tray");
    AgentProgram agent;
    ASSERT_TRUE(host->hasIcon());
    host.reset();
    EXPECT_TRUE(next.hasIcon());
}

TEST_F(AgentInTray, waitsForNoTrayThatDoesNotAnswer)
{
    const SilentTrayHost silent;
    AgentProgram agent;
    ASSERT_TRUE(waitUntil([&] { return silent.wasAsked(); }));
    EXPECT_TRUE(waitUntil([&] { return recorder.names().contains(KTXLMAgentLaunched); }, 5000));
    EXPECT_EQ(runningAgent().value("readings").toInt(), 1);
    EXPECT_EQ(runAgent({"--quit"}).status, 0);
}

TEST_F(AgentInTray, isNotThereForWhoDoesNotWantIt)
{
    store({{KTXFirstLaunch, true}, {KTXShowInTray, false}});
    const TrayHost host;
    AgentProgram agent;
    ASSERT_TRUE(waitForLaunchOf(agent));
    EXPECT_EQ(runningAgentsSetting(KTXShowInTray).toBool(), false);
    EXPECT_EQ(host.arrivals(), 0);
    setShown(true);
    EXPECT_TRUE(host.hasIcon());
    setShown(false);
    EXPECT_TRUE(waitUntil([&] { return host.icons().isEmpty(); }));
    setShown(true);
    EXPECT_TRUE(host.hasIcon());
    EXPECT_EQ(labelsOf(host.menu()).size(), 6);
}

TEST_F(AgentInTray, isThereForAValueThatIsNone)
{
    store({{KTXFirstLaunch, true}, {KTXShowInTray, "no"}});
    const TrayHost host;
    AgentProgram agent;
    EXPECT_TRUE(host.hasIcon());
}

TEST_F(AgentInTray, isSwitchedOffAndOnAndStoresNothing)
{
    TrayHost host;
    AgentProgram agent;
    ASSERT_TRUE(host.hasIcon());
    host.forgetHeard();
    host.choose(OnOff);
    ASSERT_TRUE(agent.waitForLine("off for now"));
    ASSERT_TRUE(waitUntil([&] { return host.heard().contains("LayoutUpdated"); }));
    EXPECT_TRUE(host.heard().contains("ItemsPropertiesUpdated"));
    EXPECT_TRUE(host.heard().contains("NewToolTip"));
    EXPECT_TRUE(host.heard().contains("NewIcon"));
    EXPECT_EQ(host.menu().value(OnOff).toggleState, 0);
    EXPECT_EQ(host.toolTip(), "Lumaroo|Off for now. Its keys are other programs' meanwhile.");
    EXPECT_EQ(host.property("OverlayIconName"), "media-playback-pause");
    host.choose(OnOff);
    ASSERT_TRUE(agent.waitForLine("on again"));
    EXPECT_EQ(host.menu().value(OnOff).toggleState, 1);
    EXPECT_EQ(stored(), QVariantMap({{KTXFirstLaunch, true}}));
    EXPECT_EQ(agent.errors(), noDisplayForHotKeys);
}

TEST_F(AgentInTray, isOnAgainWhereItsIconGoesThatWouldSwitchItOn)
{
    const TrayHost host;
    AgentProgram agent;
    ASSERT_TRUE(host.hasIcon());
    host.choose(OnOff);
    ASSERT_TRUE(agent.waitForLine("off for now"));
    setShown(false);
    EXPECT_TRUE(agent.waitForLine("on again"));
    EXPECT_TRUE(waitUntil([&] { return host.icons().isEmpty(); }));
}

TEST_F(AgentInTray, quitsFromTheMenu)
{
    const TrayHost host;
    AgentProgram agent;
    ASSERT_TRUE(waitForLaunchOf(agent));
    ASSERT_TRUE(host.hasIcon());
    host.choose(Quit);
    EXPECT_EQ(agent.exitStatus(), 0);
    EXPECT_TRUE(announces({terminating()}));
    EXPECT_TRUE(waitUntil([&] { return host.icons().isEmpty(); }));
}

TEST_F(AgentInTray, opensTheTutorialFromTheMenu)
{
    const TrayHost host;
    AgentProgram agent;
    ASSERT_TRUE(host.hasIcon());
    host.choose(OnOff);
    ASSERT_TRUE(agent.waitForLine("off for now"));
    host.choose(Tutorial);
    EXPECT_TRUE(agent.waitForLine("tutorial requested"));
    EXPECT_TRUE(agent.waitForLine("on again")) << "it is about the keys";
}

TEST_F(AgentInTray, answersWhatPanelsAskOfAMenu)
{
    const TrayHost host;
    AgentProgram agent;
    ASSERT_TRUE(host.hasIcon());
    EXPECT_THAT(host.callMenu("AboutToShow", {0}).arguments(), ElementsAre(QVariant(false)));
    EXPECT_EQ(host.callMenu("GetProperty", {int(OnOff), "label"}).arguments().value(0).value<QDBusVariant>().variant(),
        "Lumaroo is on");
    EXPECT_EQ(host.callMenu("GetLayout", {0, 0, QStringList("label")}).signature(), "u(ia{sv}av)");
    EXPECT_EQ(host.callMenu("GetLayout", {int(Quit), -1, QStringList()}).signature(), "u(ia{sv}av)");
    const QVariant some = QVariant::fromValue(QList<int>{OnOff, Quit});
    EXPECT_EQ(host.callMenu("GetGroupProperties", {some, QStringList("label")}).signature(), "a(ia{sv})");
    EXPECT_EQ(host.callMenu("AboutToShowGroup", {some}).signature(), "aiai");
    for (const char *event : {"opened", "hovered", "closed", "of no known meaning"})
        EXPECT_EQ(host.callMenu("Event", {int(Quit), event, QVariant::fromValue(nothing()), uint(0)}).type(),
            QDBusMessage::ReplyMessage);
    for (const char *method : {"SecondaryActivate", "ContextMenu"})
        EXPECT_EQ(host.call(method, {1, 2}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(host.call("Scroll", {1, "vertical"}).type(), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(agent.isRunning());
    EXPECT_FALSE(agent.lines().contains("off for now"));
}

TEST_F(AgentInTray, refusesLinesThatAreNone)
{
    const TrayHost host;
    AgentProgram agent;
    ASSERT_TRUE(host.hasIcon());
    for (const int id : {-1, 7, 2147483647}) {
        EXPECT_TRUE(isAnError(host.callMenu("GetLayout", {id, -1, QStringList()})));
        EXPECT_TRUE(isAnError(host.callMenu("GetProperty", {id, "label"})));
        EXPECT_TRUE(isAnError(host.callMenu("AboutToShow", {id})));
        EXPECT_TRUE(isAnError(host.callMenu("Event", {id, "clicked", QVariant::fromValue(nothing()), uint(0)})));
    }
    EXPECT_TRUE(isAnError(host.callMenu("GetProperty", {int(Quit), "toggle-state"})));
    EXPECT_EQ(host.callMenu("GetLayout", {"0", 1}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(runningAgent().value("readings").toInt(), 1) << "it goes on";
}
