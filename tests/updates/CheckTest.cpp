#include "PublishedUpdates.h"
#include "Wait.h"
#include "updater/core/UpdateRecord.h"

#include "platform/foundation/preferences/CFPreferences.h"

// A check against a real server, and what is remembered of it.

using Kind = UpdateProblem::Kind;

namespace {

class Check : public PublishedUpdates
{
protected:
    void expectFeedRefused(const QString &detail)
    {
        const UpdateCheckResult result = check();
        EXPECT_EQ(result.problem, (UpdateProblem{Kind::Feed, detail}));
        EXPECT_FALSE(result.choice.item);
        EXPECT_EQ(log.linesContaining(detail).size(), 1);
        log.clear();
    }

    UpdateRecord record;
};

} // namespace

TEST_F(Check, findsANewerVersion)
{
    tell({publish(101), publish(102)});
    EXPECT_EQ(offered(), "102");
    EXPECT_EQ(server.requests(), QStringList("GET /appcast.xml"));
}

TEST_F(Check, findsNothingWhereTheInstalledVersionIsTheNewest)
{
    tell({publish(100), publish(99)});
    EXPECT_EQ(offered(), QString());
}

TEST_F(Check, ofItselfFindsNoSkippedVersion)
{
    tell({publish(101)});
    record.skip("101");
    EXPECT_EQ(offered(false), QString());
    EXPECT_EQ(offered(true), "101");
}

TEST_F(Check, findsVersionsOfTheChannelsThatAreFollowed)
{
    tell({publish(101)});
    QByteArray text = contentOf(served("appcast.xml"));
    tellText(text.replace("</item>", "<sparkle:channel>beta</sparkle:channel></item>"));
    EXPECT_EQ(offered(), QString());
    CFPreferencesSetAppValue("Channels", "nightly,beta", updaterDomain);
    EXPECT_EQ(offered(), "101");
    CFPreferencesSetAppValue("Channels", {}, updaterDomain);
}

TEST_F(Check, isRemembered)
{
    const QDateTime before = currentTime();
    tell({publish(101)});
    offered();
    EXPECT_GE(record.lastCheck(), before);
    EXPECT_EQ(record.lastSuccess(), record.lastCheck());
    EXPECT_EQ(record.highestVersionSeen(), "101");
}

TEST_F(Check, thatFailsIsRememberedAndChangesNothingElse)
{
    const UpdateCheckResult result = check(server.url("/404"));
    EXPECT_EQ(result.problem.kind, Kind::Feed);
    EXPECT_TRUE(record.lastCheck().isValid());
    EXPECT_FALSE(record.lastSuccess().isValid());
    EXPECT_EQ(record.highestVersionSeen(), QString());
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(Check, refusesABrokenFeed)
{
    tell({publish(101)});
    QByteArray feed = contentOf(served("appcast.xml"));
    tellText(feed.replace("</channel>", "</chanel>"));
    const UpdateCheckResult result = check();
    EXPECT_EQ(result.problem.kind, Kind::Feed);
    EXPECT_FALSE(result.choice.item);
    EXPECT_EQ(record.highestVersionSeen(), QString());
}

TEST_F(Check, refusesAFeedThatIsTooLarge)
{
    tellText("<rss version=\"2.0\"><channel/></rss>" + QByteArray(1 << 20, '\n'));
    expectFeedRefused("it would be larger than 1048576 bytes");
}

TEST_F(Check, refusesAFeedThatHasGoneBack)
{
    tell({publish(102)});
    EXPECT_EQ(offered(), "102");
    tell({publish(101)});
    expectFeedRefused("it ends before version 102, which it had before");
    EXPECT_EQ(record.highestVersionSeen(), "102");
    tell({publish(102), publish(101)});
    EXPECT_EQ(offered(), "102");
}

TEST_F(Check, refusesAFeedByPlainHttpFromAnotherMachine)
{
    const UpdateCheckResult result = check(QUrl("http://updates.example/appcast.xml"));
    EXPECT_EQ(result.problem.detail, "http://updates.example/appcast.xml is no address to fetch updates from");
}

TEST_F(Check, offersNoVersionWhoseSignatureIsWrapped)
{
    tell({publish(101), publish(102)});
    QByteArray feed = contentOf(served("appcast.xml"));
    const QByteArray signature = publish(102).signature.toBase64();
    tellText(feed.replace(signature, signature.left(76) + '\n' + signature.mid(76)));
    EXPECT_EQ(offered(), "101");
    EXPECT_EQ(log.linesContaining("its signature is no 64 bytes in base 64").size(), 1);
}

TEST_F(Check, offersNoVersionForPeopleInPlaceOfTheBundles)
{
    AppcastItem item = publish(101);
    item.version = "1.1";
    tell({item});
    EXPECT_EQ(offered(), QString());
    item.version = "Sample 1.1";
    tell({item, publish(102)});
    EXPECT_EQ(offered(), "102");
}

TEST_F(Check, saysNothingMoreWhenItIsCancelled)
{
    UpdateCheck checking(bundle(), server.url("/hanging"), true);
    QObject::connect(&checking, &UpdateCheck::finished, [] { ADD_FAILURE(); });
    checking.start();
    ASSERT_TRUE(waitUntil([&] { return !server.requests().isEmpty(); }));
    checking.cancel();
    runPendingEvents();
    EXPECT_FALSE(record.lastCheck().isValid());
}
