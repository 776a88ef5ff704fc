// What the pane tells its updater, and what its controls about updates do. The updater is the real one; what it was
// told shows in what it asks a server on loopback for.

#include "PaneOnRealStore.h"
#include "SeenNotes.h"
#include "Wait.h"
#include "WebServer.h"

#include "KTXConstants.h"
#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/NSUserDefaults.h"
#include "platform/foundation/system/SystemCalls.h"
#include "updater/SUUpdater.h"
#include "updater/core/Signature.h"
#include "updater/core/UpdateRecord.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTest>
#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

const BusNotification changed{"Lumaroo Preferences Changed", "com.quorvane.Lumaroo", {}, true};

class PaneUpdates : public PaneOnRealStore
{
protected:
    PaneUpdates()
    {
        store().set(KTXFirstLaunch, QVariant(true));
        NSUserDefaults::standardUserDefaults()->setPersistentDomainForName({}, updaterDomain);
    }

    SUUpdater *updater() { return SUUpdater::updaterForBundle(NSBundle::bundleWithPath(bundle().path())); }
    QString feedAfterSetUp(const QVariant &feedOfBundle)
    {
        changeInfo({{"SUFeedURL", feedOfBundle}});
        paneWithoutView();
        return updater()->feedURL();
    }
    void click(const char *name) { QTest::mouseClick(control(name), Qt::LeftButton, {}, {8, 8}); }
};

/// With a feed on loopback, at the address for releases, that tells of nothing new.
class PaneAndItsFeed : public PaneUpdates
{
protected:
    PaneAndItsFeed()
    {
        letNotesBeSeen();
        QFile feed(folder_.filePath("appcast.xml"));
        EXPECT_TRUE(feed.open(QIODevice::WriteOnly));
        feed.write("<rss version=\"2.0\"><channel></channel></rss>");
        const SigningKey key = SigningKey::generated();
        changeInfo({{"SUFeedURL", server_.url("/appcast_beta.xml").toString()},
            {"SUPublicEDKey", QString::fromLatin1(key.publicKey())}});
    }
    ~PaneAndItsFeed() override
    {
        systemCalls().realTime = realTime_;
        updater()->setAutomaticallyChecksForUpdates(false);
        closeWindowOfTheUpdater();
    }

    void letAutomaticChecksBe(bool isOn) const { store().set(SUEnableAutomaticChecks, QVariant(isOn)); }
    /// As if the last check had been so long ago.
    void letLastCheckBe(std::chrono::hours ago)
    {
        systemCalls().realTime = [this, ago] { return realTime_() - ago; };
        UpdateRecord().noteSuccess();
        systemCalls().realTime = realTime_;
    }
    bool isAskedOnce() const
    {
        const bool isAsked = waitUntil([this] { return !server_.requests().isEmpty(); });
        return isAsked && server_.requests() == releasesAskedFor;
    }
    void expectNobodyAsksButTheUser()
    {
        showPane();
        askSomethingElse();
        EXPECT_EQ(server_.requests(), QStringList("GET /200")) << "what is due goes out before";
        click("checkForUpdatesButton");
        EXPECT_TRUE(waitUntil([this] { return server_.requests().size() > 1; }));
        EXPECT_EQ(server_.requests(), QStringList("GET /200") + releasesAskedFor);
        closeWindowOfTheUpdater();
    }

    const QStringList releasesAskedFor{"GET /appcast.xml"};

private:
    void askSomethingElse()
    {
        QNetworkAccessManager network;
        const std::unique_ptr<QNetworkReply> reply(network.get(QNetworkRequest(server_.url("/200"))));
        EXPECT_TRUE(waitUntil([&] { return reply->isFinished(); }));
    }
    static void closeWindowOfTheUpdater()
    {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->objectName() == "updateWindow")
                window->close();
        }
    }

    QTemporaryDir folder_;
    WebServer server_{std::nullopt, folder_.path()};
    std::function<std::chrono::nanoseconds()> realTime_ = systemCalls().realTime;
};

} // namespace

TEST_F(PaneUpdates, followTheReleasesWhereTheBundleNamesTheBetaFeed)
{
    EXPECT_EQ(feedAfterSetUp("https://lumaroo.example/appcast_beta.xml"), "https://lumaroo.example/appcast.xml");
}

TEST_F(PaneUpdates, ofTheBuiltBundleComeFromItsReleaseFeed)
{
    paneWithoutView();
    EXPECT_EQ(updater()->feedURL(), "https://lumaroo.example/appcast.xml");
}

TEST_F(PaneUpdates, loseTheBetaMarkerWhereverItStandsInTheAddress)
{
    EXPECT_EQ(feedAfterSetUp("https://web_beta.lumaroo.example/feeds_beta/appcast_beta.xml?of=_beta#_beta"),
        "https://web.lumaroo.example/feeds/appcast.xml?of=#");
}

TEST_F(PaneUpdates, keepWhatIsNotQuiteTheBetaMarker)
{
    const QString address = "https://web_BETA.lumaroo.example/of%5Fbeta/appcast_BETA.xml?and=_Beta&or=beta&or=_bet";
    EXPECT_EQ(feedAfterSetUp(address), address);
}

TEST_F(PaneUpdates, keepAnAddressWithoutTheMarker)
{
    const QString address = "https://lumaroo.example/a%20feed/appcast.xml?a=%26";
    EXPECT_EQ(feedAfterSetUp(address), address);
}

TEST_F(PaneUpdates, goByTheLettersOfTheAddress)
{
    EXPECT_EQ(feedAfterSetUp("https://WEB%5Fbeta_beta.Lumaroo.example/appcast.xml"),
        "https://WEB%5Fbeta.Lumaroo.example/appcast.xml");
}

TEST_F(PaneUpdates, haveNoFeedWhereTheBundleNamesNone)
{
    EXPECT_EQ(feedAfterSetUp({}), "");
}

TEST_F(PaneUpdates, areSetUpOnceForEachPaneAndBeforeItIsAnnounced)
{
    changeInfo({{"SUFeedURL", "https://lumaroo.example/appcast_beta.xml"}});
    paneWithoutView();
    EXPECT_EQ(bus().names(), QStringList{KTXLMPrefPaneLaunched});
    updater()->setFeedURL("https://other.example/other_beta.xml");
    pane();
    showPane();
    EXPECT_EQ(updater()->feedURL(), "https://other.example/other_beta.xml") << "at creation alone";
    destroyPane();
    paneWithoutView();
    EXPECT_EQ(updater()->feedURL(), "https://other.example/other.xml") << "what the updater uses currently";
}

TEST_F(PaneUpdates, thatAreAutomaticAreStoredAndAnnounced)
{
    showPane();
    bus().clear();
    for (const bool isOn : {true, false}) {
        click("autoUpdateButton");
        EXPECT_EQ(store().value(SUEnableAutomaticChecks), QVariant(isOn));
        EXPECT_EQ(store().value(SUEnableAutomaticChecks).typeId(), QMetaType::Bool);
        EXPECT_THAT(bus().notifications(), ElementsAre(changed));
        bus().clear();
    }
}

TEST_F(PaneAndItsFeed, withoutAStoredChoiceNothingIsCheckedAutomatically)
{
    expectNobodyAsksButTheUser();
    EXPECT_EQ(state(control("autoUpdateButton")), NSOffState);
    EXPECT_FALSE(store().domain().contains(SUEnableAutomaticChecks));
}

TEST_F(PaneAndItsFeed, nothingIsCheckedAutomaticallyWhereThatIsTurnedOff)
{
    letAutomaticChecksBe(false);
    expectNobodyAsksButTheUser();
}

TEST_F(PaneAndItsFeed, isAskedAutomaticallyWhereThatIsTurnedOnBeforeTheViewIsShown)
{
    letAutomaticChecksBe(true);
    paneWithoutView();
    EXPECT_TRUE(isAskedOnce());
    EXPECT_EQ(state(control("autoUpdateButton")), NSOnState);
}

TEST_F(PaneAndItsFeed, isAskedAgainADayAfterTheLastCheck)
{
    letAutomaticChecksBe(true);
    letLastCheckBe(std::chrono::hours(25));
    paneWithoutView();
    EXPECT_TRUE(isAskedOnce());
}

TEST_F(PaneAndItsFeed, isAskedOnceADayAlsoWhereTheUpdaterWasToldOtherwiseBefore)
{
    letAutomaticChecksBe(true);
    letLastCheckBe(std::chrono::hours(25));
    updater()->setUpdateCheckInterval(48 * 60 * 60);
    paneWithoutView();
    EXPECT_TRUE(isAskedOnce());
}

TEST_F(PaneAndItsFeed, isNotAskedMoreOftenThanADayWhereTheUpdaterWasToldOtherwiseBefore)
{
    letAutomaticChecksBe(true);
    letLastCheckBe(std::chrono::hours(23));
    updater()->setUpdateCheckInterval(60 * 60);
    expectNobodyAsksButTheUser();
}

TEST_F(PaneAndItsFeed, isNotAskedAgainWithinADay)
{
    letAutomaticChecksBe(true);
    letLastCheckBe(std::chrono::hours(23));
    expectNobodyAsksButTheUser();
}

TEST_F(PaneAndItsFeed, isAskedAsSoonAsTheCheckBoxIsTicked)
{
    showPane();
    click("autoUpdateButton");
    EXPECT_TRUE(isAskedOnce());
}

TEST_F(PaneAndItsFeed, isNotAskedOnceTheCheckBoxIsCleared)
{
    letAutomaticChecksBe(true);
    letLastCheckBe(std::chrono::hours(23));
    showPane();
    click("autoUpdateButton");
    letLastCheckBe(std::chrono::hours(48));
    updater()->resetUpdateCycle();
    expectNobodyAsksButTheUser();
}

TEST_F(PaneAndItsFeed, isAskedByEachPaneOfABundleThroughOneUpdater)
{
    SUUpdater *before = updater();
    pane();
    destroyPane();
    pane();
    EXPECT_EQ(updater(), before);
}
