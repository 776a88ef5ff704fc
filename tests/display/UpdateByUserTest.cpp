// What a user sees who asks for a new version.

#include "BrowserStandIn.h"
#include "ForeignWindow.h"
#include "KeyPress.h"
#include "UpdaterOnScreen.h"
#include "Wait.h"

#include <QPushButton>
#include <QTextBrowser>
#include <linux/input-event-codes.h>

namespace {

class UpdateByUser : public UpdaterOnScreen
{
protected:
    static QString notes() { return window()->findChild<QTextBrowser *>("notes")->toPlainText(); }
    qsizetype checks() const { return server.requests().count("GET /appcast.xml"); }
};

} // namespace

TEST_F(UpdateByUser, isToldThatNothingIsNewer)
{
    tell({publish(100)});
    checkForUser();
    EXPECT_EQ(page(), "checking") << "at once";
    ASSERT_TRUE(shows("upToDate"));
    EXPECT_EQ(text("heading"), "Lumaroo is up to date");
    EXPECT_EQ(text("text"), "Version 1.0 is the newest one.");
    pressWithKeyboard(KEY_ESC);
    EXPECT_TRUE(closes());
}

TEST_F(UpdateByUser, cancelsACheckWithEscape)
{
    updater()->setFeedURL(server.url("/hanging").toString());
    checkForUser();
    EXPECT_TRUE(wasAsked("GET /hanging"));
    pressWithKeyboard(KEY_ESC);
    EXPECT_TRUE(closes());
    EXPECT_FALSE(record.lastCheck().isValid()) << "nothing came of it";
    EXPECT_EQ(log.lines(), QStringList());
    updater()->setFeedURL(feed().toString());
    tell({publish(101)});
    checkBySchedule();
    EXPECT_TRUE(shows("offer")) << "it holds up no other";
}

TEST_F(UpdateByUser, isOfferedANewVersionWithItsNotes)
{
    tellWith(publish(101), "<description>&lt;p&gt;It is &lt;b&gt;fast&lt;/b&gt;.&lt;/p&gt;</description>");
    checkForUser();
    ASSERT_TRUE(shows("offer"));
    EXPECT_EQ(text("heading"), "There is a new version: Lumaroo 101");
    EXPECT_EQ(notes(), "It is fast.");
    EXPECT_TRUE(window()->findChild<QPushButton *>("install")->isDefault());
    EXPECT_TRUE(has("skip") && has("later"));
    pressWithKeyboard(KEY_L, {KEY_LEFTALT});
    EXPECT_TRUE(closes());
    EXPECT_EQ(record.skippedVersion(), QString());
    expectOldBundleAlone();
}

TEST_F(UpdateByUser, readsNotesFromTheirOwnFileOfWhichNothingElseIsLoaded)
{
    write(served("notes.html"),
        "<style>@import '/style.css';</style><p>Read <img src=\"" + server.url("/picture.png").toEncoded()
            + "\">this</p>");
    tellWith(publish(101),
        "<sparkle:releaseNotesLink>" + server.url("/notes.html").toEncoded() + "</sparkle:releaseNotesLink>");
    checkForUser();
    ASSERT_TRUE(shows("offer"));
    EXPECT_TRUE(waitUntil([] { return notes() == "Read this"; })) << notes().toStdString();
    EXPECT_EQ(server.requests(), (QStringList{"GET /appcast.xml", "GET /notes.html"}));
}

TEST_F(UpdateByUser, isOfferedAVersionWhoseNotesCannotBeRead)
{
    tellWith(
        publish(101), "<sparkle:releaseNotesLink>" + server.url("/404").toEncoded() + "</sparkle:releaseNotesLink>");
    checkForUser();
    ASSERT_TRUE(shows("offer"));
    EXPECT_TRUE(waitUntil([] { return notes() == "The release notes cannot be shown now."; }));
    EXPECT_TRUE(has("install"));
}

TEST_F(UpdateByUser, opensLinksOfTheNotesInTheBrowser)
{
    const BrowserStandIn browser;
    tellWith(publish(101), "<description>&lt;a href=\"http://127.0.0.1/page\"&gt;page&lt;/a&gt;</description>");
    checkForUser();
    ASSERT_TRUE(shows("offer"));
    auto *view = window()->findChild<QTextBrowser *>("notes");
    view->setFocus();
    pressWithKeyboard(KEY_TAB);
    pressWithKeyboard(KEY_ENTER);
    EXPECT_TRUE(browser.waitForPages(1));
    EXPECT_EQ(browser.pages(), QStringList("http://127.0.0.1/page"));
    EXPECT_EQ(page(), "offer");
}

TEST_F(UpdateByUser, skipsAVersionAndHearsOfItWhenAskingAgain)
{
    tell({publish(101)});
    checkForUser();
    ASSERT_TRUE(shows("offer"));
    pressWithKeyboard(KEY_S, {KEY_LEFTALT});
    EXPECT_TRUE(closes());
    EXPECT_EQ(record.skippedVersion(), "101");
    checkForUser();
    EXPECT_TRUE(shows("offer"));
}

TEST_F(UpdateByUser, cannotSkipWhatIsImportant)
{
    tellWith(publish(101), "<sparkle:criticalUpdate/>");
    checkForUser();
    ASSERT_TRUE(shows("offer"));
    EXPECT_EQ(text("heading"), "There is an important update: Lumaroo 101");
    EXPECT_FALSE(has("skip"));
    EXPECT_TRUE(has("later") && has("install"));
}

TEST_F(UpdateByUser, isLedToThePageOfWhatIsNotInstalledFromHere)
{
    const BrowserStandIn browser;
    tellWith(publish(101), "<sparkle:informationalUpdate/><link>http://127.0.0.1/new</link>");
    checkForUser();
    ASSERT_TRUE(shows("offer"));
    EXPECT_FALSE(has("install"));
    pressWithKeyboard(KEY_ENTER);
    EXPECT_TRUE(browser.waitForPages(1));
    EXPECT_EQ(browser.pages(), QStringList("http://127.0.0.1/new"));
    EXPECT_TRUE(closes());
    EXPECT_EQ(server.requests(), QStringList("GET /appcast.xml"));
}

TEST_F(UpdateByUser, isSentToWhereTheirVersionCameFromWhereThereIsNoPage)
{
    for (const QByteArray &link : {QByteArray(), QByteArray("<link>file:///etc/passwd</link>")}) {
        tellWith(publish(101), "<sparkle:informationalUpdate/>" + link);
        checkForUser();
        ASSERT_TRUE(shows("offer"));
        EXPECT_FALSE(has("openPage") || has("install"));
        EXPECT_TRUE(text("text").endsWith("Get it from where you got the version that you have."));
        press("later");
        EXPECT_TRUE(closes());
    }
}

TEST_F(UpdateByUser, isToldWhereAPageCannotBeOpened)
{
    const BrowserStandIn browser;
    tellWith(publish(101), "<sparkle:informationalUpdate/><link>http://127.0.0.1/new</link>");
    checkForUser();
    ASSERT_TRUE(shows("offer"));
    browser.remove();
    press("openPage");
    EXPECT_EQ(page(), "offer") << "it stays";
    EXPECT_EQ(text("text"), "The web page cannot be opened from here. Its address is: http://127.0.0.1/new");
}

TEST_F(UpdateByUser, isToldWhereALinkOfTheNotesCannotBeOpened)
{
    const BrowserStandIn browser;
    tellWith(publish(101), "<description>&lt;a href=\"http://127.0.0.1/page\"&gt;page&lt;/a&gt;</description>");
    checkForUser();
    ASSERT_TRUE(shows("offer"));
    browser.remove();
    Q_EMIT window()->findChild<QTextBrowser *>("notes")->anchorClicked(QUrl("http://127.0.0.1/page"));
    EXPECT_EQ(text("text"), "The web page cannot be opened from here. Its address is: http://127.0.0.1/page");
    EXPECT_TRUE(has("install"));
}

TEST_F(UpdateByUser, whoAsksAgainSeesTheWindowThatIsOpen)
{
    tell({publish(101)});
    checkForUser();
    ASSERT_TRUE(shows("offer"));
    ASSERT_TRUE(waitUntil([] { return hasKeyboard(window()); }));
    const ForeignWindow other("Other");
    ASSERT_TRUE(other.takesFocus());
    checkForUser();
    EXPECT_TRUE(waitUntil([] { return hasKeyboard(window()); }));
    EXPECT_EQ(page(), "offer");
    EXPECT_EQ(checks(), 1);
}

TEST_F(UpdateByUser, isToldThatThereIsNoKeyAndNothingIsAsked)
{
    changeInfo({{"SUPublicEDKey", QString()}});
    tell({publish(101)});
    checkForUser();
    EXPECT_EQ(page(), "failure");
    EXPECT_EQ(text("heading"), "This copy of Lumaroo cannot update itself");
    EXPECT_FALSE(text("text").isEmpty());
    press("close");
    EXPECT_EQ(server.requests(), QStringList());
    EXPECT_FALSE(record.lastCheck().isValid());
}

TEST_F(UpdateByUser, isSentToTheSystemWhereTheBundleBelongsToAll)
{
    ASSERT_TRUE(QFile::setPermissions(folder(), QFile::ReadOwner | QFile::ExeOwner));
    checkForUser();
    EXPECT_EQ(text("heading"), "Lumaroo is updated along with your system");
    EXPECT_EQ(server.requests(), QStringList());
    ASSERT_TRUE(QFile::setPermissions(folder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

TEST_F(UpdateByUser, isToldThatTheFeedCannotBeRead)
{
    for (const QUrl &address :
        {server.url("/404"), addressWithoutServer(), QUrl(), QUrl("http://192.0.2.1/feed.xml")}) {
        updater()->setFeedURL(address.toString());
        checkForUser();
        ASSERT_TRUE(shows("failure"));
        EXPECT_EQ(text("heading"), "New versions cannot be looked for now");
        press("close");
    }
}
