// The view for local pages, as an interface file makes it.

#include "CapturedLog.h"
#include "LinkInPage.h"
#include "TestInterface.h"
#include "WebServer.h"

#include "platform/appkit/web/WebFrameLoadDelegate.h"
#include "platform/appkit/web/WebView.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <gtest/gtest.h>

namespace {

const QByteArray viewInFile = R"(<widget class="WebView" name="view">
    <property name="mainFrameFile" stdset="0"><string notr="true">Pages/First.html</string></property>
    <property name="delegate" stdset="0"><string notr="true">owner</string></property></widget>)";

bool showsColor(const QImage &picture, const QColor &color)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}

class WebViewInFile : public testing::Test, public WebFrameLoadDelegate
{
protected:
    WebViewInFile()
    {
        interface.owner.frameLoadDelegate = this;
        write("First.html", "<p>The first page</p><p><a href=\"Second.html\">second</a></p>");
        write("Second.html", "<p>The second page</p>");
    }

    void write(const char *name, const QByteArray &body) const
    {
        interface.bundle.writeFile(QStringLiteral("Contents/Resources/Pages/") + name,
            "<html><head><meta charset=\"utf-8\"></head><body>" + body + "</body></html>");
    }
    QUrl page(const char *name) const
    {
        return QUrl::fromLocalFile(interface.bundle.resourcePath() + QStringLiteral("/Pages/") + name);
    }
    WebView *view()
    {
        if (!interface.root) {
            interface.load(viewInFile);
            interface.root->resize(400, 300);
            interface.find("view")->resize(400, 300);
            interface.root->show();
            EXPECT_TRUE(QTest::qWaitForWindowActive(interface.root));
        }
        return interface.find<WebView>("view");
    }
    void clickOnLink(const QString &text)
    {
        const QPoint place = placeOfText(view(), text);
        ASSERT_FALSE(place.isNull());
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, place);
    }

    void webViewDidStartProvisionalLoadForFrame(WebView *webView, WebFrame *frame) override
    {
        EXPECT_EQ(webView, view());
        EXPECT_EQ(frame, webView->mainFrame());
        ASSERT_TRUE(frame->provisionalDataSource());
        told += frame->provisionalDataSource()->initialRequest().url();
        if (stops)
            frame->stopLoading();
    }

    CapturedLog log;
    TestInterface interface;
    QList<QUrl> told;
    bool stops = false;
};

} // namespace

TEST_F(WebViewInFile, showsItsFirstPageAndTellsNobodyOfThat)
{
    EXPECT_EQ(view()->source(), page("First.html"));
    EXPECT_TRUE(view()->toPlainText().startsWith("The first page"));
    EXPECT_TRUE(told.isEmpty());
    EXPECT_TRUE(log.lines().isEmpty()) << log.lines().join('\n').toStdString();
}

TEST_F(WebViewInFile, showsItsFirstPageInTheUsersLanguage)
{
    interface.bundle.writeFile(
        "Contents/Resources/de.lproj/Pages/First.html", "<meta charset=\"utf-8\"><p>Die erste Seite für Sie</p>");
    QLocale::setDefault(QLocale("de"));
    EXPECT_EQ(view()->toPlainText(), QStringLiteral("Die erste Seite für Sie"));
    QLocale::setDefault(QLocale::c());
}

TEST_F(WebViewInFile, aLinkToALocalPageIsFollowedAfterTheDelegateHasHeardOfIt)
{
    clickOnLink("second");
    EXPECT_EQ(told, QList<QUrl>{page("Second.html")});
    EXPECT_EQ(view()->toPlainText(), "The second page");
    EXPECT_EQ(view()->mainFrame()->provisionalDataSource(), nullptr);
}

TEST_F(WebViewInFile, aLinkIsFollowedByKeyboard)
{
    view()->setFocus();
    QTest::keyClick(view(), Qt::Key_Tab);
    QTest::keyClick(view(), Qt::Key_Return);
    EXPECT_EQ(told, QList<QUrl>{page("Second.html")});
    EXPECT_EQ(view()->source(), page("Second.html"));
}

TEST_F(WebViewInFile, theDelegateKeepsTheViewOnItsPage)
{
    stops = true;
    clickOnLink("second");
    EXPECT_EQ(told.size(), 1);
    EXPECT_EQ(view()->source(), page("First.html"));
    EXPECT_TRUE(view()->toPlainText().startsWith("The first page"));
    EXPECT_TRUE(log.lines().isEmpty());
    EXPECT_EQ(view()->mainFrame()->provisionalDataSource(), nullptr);
    stops = false;
    clickOnLink("second");
    EXPECT_EQ(view()->source(), page("Second.html"));
}

TEST_F(WebViewInFile, nothingRemoteIsLoadedWhateverTheDelegateDoes)
{
    const WebServer server;
    write("First.html", "<p>Here</p><p><a href=\"" + server.url("/200").toEncoded() + "\">away</a></p>");
    clickOnLink("away");
    EXPECT_EQ(told, QList<QUrl>{server.url("/200")});
    EXPECT_EQ(view()->source(), page("First.html"));
    EXPECT_TRUE(view()->toPlainText().startsWith("Here"));
    EXPECT_EQ(log.linesContaining("is no local page").size(), 1);
    EXPECT_EQ(server.requests(), QStringList());
}

TEST_F(WebViewInFile, noPictureIsLoadedButALocalOne)
{
    const WebServer server;
    QImage picture(30, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    write("First.html",
        "<p><img src=\"" + server.url("/200").toEncoded()
            + "\"><img src=\"data:image/png;base64,AAAA\"><img src=\"red.png\"></p>");
    ASSERT_TRUE(picture.save(QFileInfo(page("First.html").toLocalFile()).path() + "/red.png"));
    EXPECT_TRUE(showsColor(view()->grab().toImage(), Qt::red));
    EXPECT_EQ(server.requests(), QStringList());
}

TEST_F(WebViewInFile, aPageThatIsMissingLeavesTheOneBefore)
{
    QFile::remove(page("Second.html").toLocalFile());
    clickOnLink("second");
    EXPECT_EQ(view()->source(), page("First.html"));
    EXPECT_TRUE(view()->toPlainText().startsWith("The first page"));
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines().first().contains("Second.html is no local page"));
}

TEST_F(WebViewInFile, aFirstPageThatIsMissingIsOneLoggedLine)
{
    QFile::remove(page("First.html").toLocalFile());
    EXPECT_EQ(view()->toPlainText(), QString());
    EXPECT_EQ(log.lines(), QStringList("lumaroo: Test.ui: view: Pages/First.html is not in the bundle"));
}

TEST_F(WebViewInFile, anOwnerThatIsNoDelegateIsOneLoggedLine)
{
    interface.owner.frameLoadDelegate = nullptr;
    clickOnLink("second");
    EXPECT_EQ(log.lines(), QStringList("lumaroo: Test.ui: view: TestOwner is no delegate of a web view"));
    EXPECT_TRUE(told.isEmpty());
    EXPECT_EQ(view()->source(), page("Second.html"));
}

TEST_F(WebViewInFile, itsLinksFollowTheColoursOfTheTheme)
{
    const QPalette before = QGuiApplication::palette();
    view();
    QPalette theme = before;
    theme.setColor(QPalette::Link, QColor(1, 200, 3));
    QGuiApplication::setPalette(theme);
    QCoreApplication::sendPostedEvents();
    const QTextCursor link = view()->document()->find("second");
    EXPECT_EQ(link.charFormat().foreground().color(), QColor(1, 200, 3));
    EXPECT_TRUE(told.isEmpty()) << "it is the same page";
    EXPECT_FALSE(view()->isBackwardAvailable());
    QGuiApplication::setPalette(before);
}
