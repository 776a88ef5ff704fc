// The pane's web pages: asked for on a real server, opened in the browser or told of by an alert.

#include "BrowserStandIn.h"
#include "KeyPress.h"
#include "LinkInPage.h"
#include "OpenAlert.h"
#include "PaneOnRealStore.h"
#include "Wait.h"
#include "WebServer.h"

#include "platform/foundation/bundles/NSBundle.h"

#include <QPushButton>
#include <QScrollArea>
#include <linux/input-event-codes.h>

namespace {

const QString productPage = QStringLiteral("KTXProductPage");
const QString feedbackPage = QStringLiteral("KTXFeedbackPage");
const QStringList unavailable{QStringLiteral("The web page is unavailable"),
    QStringLiteral("Please make sure you are connected to the Internet and try again later.")};
constexpr int helpTab = 4;
constexpr int aboutTab = 5;

class PaneWebPages : public PaneOnRealStore
{
protected:
    void showTab(int index)
    {
        showPane();
        selectTabViewItemAtIndex(control("tabbedView"), index);
        runPendingEvents();
    }
    /// A page with these links in the embedded view, instead of the one in the bundle.
    void writeEmbeddedPage(const QByteArray &body)
    {
        bundle().writeFile(QStringLiteral("Contents/Resources/Pages/AtAGlance.html"), body);
    }
    /// The column around it is what scrolls, once it knows how high the page is.
    static bool comesIntoSight(QTextBrowser *page, QPoint place)
    {
        for (QWidget *around = page->parentWidget(); around; around = around->parentWidget()) {
            if (auto *column = qobject_cast<QScrollArea *>(around)) {
                const QPoint inColumn = page->viewport()->mapTo(column->widget(), place);
                column->ensureVisible(inColumn.x(), inColumn.y());
            }
        }
        return page->viewport()->visibleRegion().contains(place);
    }
    void clickOnLink(const char *viewName, const QString &text)
    {
        auto *page = control<QTextBrowser>(viewName);
        const QPoint place = placeOfText(page, text);
        ASSERT_FALSE(place.isNull());
        ASSERT_TRUE(waitUntil([&] { return comesIntoSight(page, place); }));
        clickAt(page->viewport()->mapToGlobal(place));
    }
    void expectOpened(const QUrl &page)
    {
        EXPECT_TRUE(browser.waitForPages(1));
        EXPECT_EQ(browser.pages(), QStringList(QString::fromLatin1(page.toEncoded())));
        EXPECT_FALSE(openAlert());
    }
    void expectUnavailable()
    {
        ASSERT_TRUE(alertComesUp());
        EXPECT_EQ(textsOfAlert(), unavailable);
        EXPECT_EQ(openAlert()->windowModality(), Qt::WindowModal);
        EXPECT_FALSE(partOfAlert("suppression"));
        EXPECT_FALSE(partOfAlert("help"));
        pressKey(KEY_ENTER);
        ASSERT_TRUE(alertGoesBackTo(pane().mainView()->window()));
        EXPECT_EQ(browser.pages(), QStringList());
    }

    WebServer server;
    BrowserStandIn browser;
};

} // namespace

TEST_F(PaneWebPages, theProductPageOpensInTheBrowser)
{
    changeInfo({{productPage, server.url("/200").toString()}});
    showTab(helpTab);
    clickOn(control("visitButton"));
    expectOpened(server.url("/200"));
    EXPECT_EQ(server.requests(), QStringList("HEAD /200"));
}

TEST_F(PaneWebPages, theFeedbackPageOpensInTheBrowser)
{
    changeInfo({{feedbackPage, server.url("/200").toString()}});
    showTab(helpTab);
    clickOn(control("feedbackButton"));
    expectOpened(server.url("/200"));
}

TEST_F(PaneWebPages, aRedirectedPageOpensAtTheAddressThatWasAskedFor)
{
    const QUrl redirected = server.redirection(302, server.url("/200"));
    changeInfo({{productPage, QString::fromLatin1(redirected.toEncoded())}});
    showTab(helpTab);
    clickOn(control("visitButton"));
    expectOpened(redirected);
}

TEST_F(PaneWebPages, aPageThatIsUnavailableIsToldOfAndNotOpened)
{
    showTab(helpTab);
    for (const QUrl &page : {server.url("/404"), server.url("/204"), server.url("/no-head"), server.url("/302"),
             server.url("/cut-off"), addressWithoutServer(), QUrl("file:///etc/passwd"), QUrl("mailto:a@b.example")}) {
        pane().launchURL(page);
        SCOPED_TRACE(page.toString().toStdString());
        expectUnavailable();
    }
}

TEST_F(PaneWebPages, withoutTheirAddressesTheyAreUnavailable)
{
    changeInfo({{productPage, QVariant()}, {feedbackPage, QVariant()}});
    showTab(helpTab);
    clickOn(control("visitButton"));
    expectUnavailable();
    clickOn(control("feedbackButton"));
    expectUnavailable();
}

TEST_F(PaneWebPages, anAddressThatIsNoneIsUnavailable)
{
    changeInfo({{productPage, QStringLiteral("http://a b/")}, {feedbackPage, qlonglong(7)}});
    showTab(helpTab);
    pane().visit(nullptr);
    expectUnavailable();
    pane().feedback(nullptr);
    expectUnavailable();
}

TEST_F(PaneWebPages, aLinkOfTheEmbeddedPageOpensInTheBrowserAndTheViewStays)
{
    writeEmbeddedPage("<p>Here</p><p><a href=\"" + server.url("/200").toEncoded() + "\">away</a></p>");
    showTab(helpTab);
    const QUrl page = control<QTextBrowser>("helpFileView")->source();
    const CapturedLog log;
    clickOnLink("helpFileView", QStringLiteral("away"));
    expectOpened(server.url("/200"));
    EXPECT_EQ(log.linesContaining("is no local page"), QStringList()) << "the view was to load it";
    EXPECT_EQ(control<QTextBrowser>("helpFileView")->source(), page);
    EXPECT_EQ(server.requests(), QStringList("HEAD /200"));
}

TEST_F(PaneWebPages, aDeadLinkOfTheEmbeddedPageIsToldOfAndTheViewStays)
{
    writeEmbeddedPage("<p>Here</p><p><a href=\"" + server.url("/404").toEncoded() + "\">away</a></p>");
    showTab(helpTab);
    const QUrl page = control<QTextBrowser>("helpFileView")->source();
    clickOnLink("helpFileView", QStringLiteral("away"));
    expectUnavailable();
    EXPECT_EQ(control<QTextBrowser>("helpFileView")->source(), page);
}

TEST_F(PaneWebPages, theEmbeddedPagesLeadToEachOther)
{
    showTab(helpTab);
    auto *view = control<QTextBrowser>("helpFileView");
    EXPECT_EQ(view->source().fileName(), "AtAGlance.html");
    clickOnLink("helpFileView", QStringLiteral("first steps"));
    EXPECT_TRUE(waitUntil([&] { return view->source().fileName() == "FirstSteps.html"; }));
    clickOnLink("helpFileView", QStringLiteral("Lumaroo at a glance"));
    EXPECT_TRUE(waitUntil([&] { return view->source().fileName() == "AtAGlance.html"; }));
    EXPECT_EQ(browser.pages(), QStringList());
    EXPECT_FALSE(openAlert());
}

TEST_F(PaneWebPages, aLinkOfTheCreditsOpensInTheBrowserWhenItIsAvailable)
{
    bundle().writeFile(QStringLiteral("Contents/Resources/Credits.rtfd/TXT.rtf"),
        "{\\rtf1\\ansi {\\field{\\*\\fldinst{HYPERLINK \"" + server.url("/404").toEncoded()
            + "\"}}{\\fldrslt dead}}\\par {\\field{\\*\\fldinst{HYPERLINK \"" + server.url("/200").toEncoded()
            + "\"}}{\\fldrslt alive}}\\par}");
    showTab(aboutTab);
    clickOnLink("creditsField", QStringLiteral("dead"));
    expectUnavailable();
    clickOnLink("creditsField", QStringLiteral("alive"));
    expectOpened(server.url("/200"));
    EXPECT_TRUE(control<QTextBrowser>("creditsField")->toPlainText().startsWith("dead"));
    EXPECT_EQ(server.requests(), (QStringList{"HEAD /404", "HEAD /200"}));
}

TEST_F(PaneWebPages, nothingReachesThePaneWhileItWaitsForTheAnswer)
{
    showTab(helpTab);
    calls.clear();
    store().set("modifierKeyMask", 0x100);
    const bool wasTold = QDBusConnection::sessionBus().send([] {
        QDBusMessage message = QDBusMessage::createSignal("/com/quorvane/DistributedNotificationCenter",
            "com.quorvane.DistributedNotificationCenter", "Notification");
        message << "Lumaroo PrefPane Switch to tab"
                << "help" << QVariantMap() << true;
        return message;
    }());
    ASSERT_TRUE(wasTold);
    pane().launchURL(server.url("/200"));
    EXPECT_EQ(calls, QStringList());
    EXPECT_TRUE(waitUntil([&] { return calls.contains("switchToTab: help"); }));
}
