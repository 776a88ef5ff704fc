// The help viewer: places, ways between them, looks.

#include "CapturedLog.h"
#include "HelpViewerOnDisplay.h"

#include <QLabel>
#include <QScrollBar>
#include <QToolButton>
#include <QTreeView>
#include <gmock/gmock.h>
#include <linux/input-event-codes.h>

TEST_F(TheHelpViewer, opensAtAnAnchor)
{
    openAt("landing", "gliding.html#landing");
    EXPECT_TRUE(waitUntil([] { return isInSight("Lower the wheel"); }));
    EXPECT_TRUE(waitUntil([] { return openHelp()->windowTitle() == "Gliding – Test Help"; }));
}

TEST_F(TheHelpViewer, opensAtTheStartForAnAnchorThatTheBookHasNot)
{
    openAt("nowhere", "index.html");
    openAt("gone", "index.html");
}

TEST_F(TheHelpViewer, isOneWindow)
{
    openAt("landing", "gliding.html#landing");
    const QWidget *window = openHelp();
    openAt("weather", "weather.html");
    EXPECT_EQ(openHelp(), window);
    closeHelp();
    openAt("landing", "gliding.html#landing");
    EXPECT_EQ(openHelp(), window);
    EXPECT_TRUE(isInSight("Lower the wheel"));
}

TEST_F(TheHelpViewer, goesBackAndForwardByKeysAndButtons)
{
    openAt("weather", "weather.html");
    EXPECT_FALSE(partOfHelp("helpForward")->isEnabled());
    clickOnLink("start");
    ASSERT_TRUE(helpShows("index.html"));
    pressKey(KEY_LEFT, {KEY_LEFTALT});
    ASSERT_TRUE(helpShows("weather.html"));
    pressKey(KEY_RIGHT, {KEY_LEFTALT});
    ASSERT_TRUE(helpShows("index.html"));
    clickOn(partOfHelp("helpBack"));
    ASSERT_TRUE(helpShows("weather.html"));
    clickOn(partOfHelp("helpForward"));
    ASSERT_TRUE(helpShows("index.html"));
}

TEST_F(TheHelpViewer, followsLinksByKeys)
{
    openAt("nowhere", "index.html");
    pressKey(KEY_TAB);
    pressKey(KEY_TAB);
    pressKey(KEY_ENTER);
    EXPECT_TRUE(helpShows("weather.html"));
}

TEST_F(TheHelpViewer, closesWithControlW)
{
    openAt("nowhere", "index.html");
    pressKey(KEY_W, {KEY_LEFTCTRL});
    EXPECT_TRUE(waitUntil([] { return !openHelp(); }));
}

TEST_F(TheHelpViewer, showsItsContentsAndWhereTheReaderIs)
{
    openAt("landing", "gliding.html#landing");
    const auto *contents = partOfHelp<QTreeView>("helpContents");
    EXPECT_TRUE(waitUntil([&] { return contents->currentIndex().data().toString() == "Landing"; }));
    pressKey(KEY_F6);
    ASSERT_TRUE(waitUntil([&] { return contents->hasFocus(); }));
    pressKey(KEY_DOWN);
    pressKey(KEY_ENTER);
    EXPECT_TRUE(helpShows("weather.html"));
    pressKey(KEY_F6);
    EXPECT_TRUE(waitUntil([] { return helpPage()->hasFocus(); }));
}

TEST_F(TheHelpViewer, zoomsByKeysAndButtons)
{
    openAt("nowhere", "index.html");
    const double before = helpPage()->document()->defaultFont().pointSizeF();
    const auto size = [] { return helpPage()->document()->defaultFont().pointSizeF(); };
    pressKey(KEY_EQUAL, {KEY_LEFTCTRL, KEY_LEFTSHIFT});
    ASSERT_TRUE(waitUntil([&] { return size() > before; }));
    pressKey(KEY_0, {KEY_LEFTCTRL});
    ASSERT_TRUE(waitUntil([&] { return qFuzzyCompare(size(), before); }));
    clickOn(partOfHelp("helpZoomOut"));
    ASSERT_TRUE(waitUntil([&] { return size() < before; }));
    clickOn(partOfHelp("helpZoomIn"));
    EXPECT_TRUE(waitUntil([&] { return qFuzzyCompare(size(), before); }));
    EXPECT_EQ(helpPlace(), "index.html");
}

TEST_F(TheHelpViewer, opensWebPagesInTheBrowserAndStays)
{
    openAt("weather", "weather.html");
    clickOnLink("forecast");
    EXPECT_TRUE(browser.waitForPages(1));
    EXPECT_EQ(browser.pages(), QStringList("https://www.example.org/forecast"));
    EXPECT_EQ(helpPlace(), "weather.html");
    EXPECT_FALSE(partOfHelp("helpNotice")->isVisible());
}

TEST_F(TheHelpViewer, saysWhenAWebPageCannotBeOpened)
{
    browser.remove();
    openAt("weather", "weather.html");
    clickOnLink("forecast");
    EXPECT_TRUE(waitUntil([] { return partOfHelp("helpNotice")->isVisible(); }));
    EXPECT_THAT(partOfHelp<QLabel>("helpNotice")->text().toStdString(), testing::HasSubstr("example.org/forecast"));
}

TEST_F(TheHelpViewer, followsNoLinkOutOfTheBookElsewhere)
{
    openAt("weather", "weather.html");
    for (const char *link : {"missing page", "a letter", "a file"}) {
        clickOnLink(link);
        runPendingEvents();
        EXPECT_EQ(helpPlace(), "weather.html") << link;
        EXPECT_FALSE(partOfHelp("helpNotice")->isVisible()) << link;
    }
    EXPECT_EQ(browser.pages(), QStringList());
}

TEST_F(TheHelpViewer, drawsPicturesWithTheTextAndNoWiderThanItsColumn)
{
    openAt("gallery", "gallery.html");
    const int natural = 640;
    openHelp()->resize(1200, 700);
    ASSERT_TRUE(waitUntil([&] { return widthOfGreen() == qMin(natural, columnWidth()); }));
    openHelp()->resize(600, 700);
    EXPECT_TRUE(waitUntil([&] { return openHelp()->width() == 600 && widthOfGreen() == columnWidth(); }));
    EXPECT_EQ(helpPage()->horizontalScrollBar()->maximum(), 0);
    openHelp()->resize(1200, 700);
    for (int step = 0; step < 5; ++step)
        pressKey(KEY_MINUS, {KEY_LEFTCTRL});
    EXPECT_TRUE(waitUntil([&] { return widthOfGreen() == natural * 60 / 100; })) << widthOfGreen();
    pressKey(KEY_0, {KEY_LEFTCTRL});
    EXPECT_TRUE(waitUntil([&] { return widthOfGreen() == qMin(natural, columnWidth()); }));
}

TEST_F(TheHelpViewer, loadsPicturesOfTheBookAndNoOthers)
{
    openAt("nowhere", "index.html");
    EXPECT_TRUE(waitUntil([] { return widthOfGreen() == 40; }));
    for (const char *address : {"http://127.0.0.1:9/remote.png", "file:///etc/passwd", "/etc/passwd",
             "../../etc/passwd", "qthelp://com.quorvane.other/lumaroo/index.html"})
        EXPECT_TRUE(helpPage()->loadResource(QTextDocument::ImageResource, QUrl(address)).toByteArray().isEmpty())
            << address;
}

TEST_F(TheHelpViewer, isGermanForAGermanUser)
{
    QLocale::setDefault(QLocale("de_AT"));
    openAt("landing", "gliding.html#landing");
    EXPECT_TRUE(isInSight("Fahren Sie vor der Piste"));
    EXPECT_TRUE(waitUntil([] { return openHelp()->windowTitle() == "Segelflug – Testhilfe"; }));
    QLocale::setDefault(QLocale("fr_FR"));
    openAt("landing", "gliding.html#landing");
    EXPECT_TRUE(isInSight("Lower the wheel")) << "English where the book has no language of the user's";
    QLocale::setDefault(QLocale::c());
}

TEST_F(TheHelpViewer, takesTheColoursOfTheTheme)
{
    openAt("weather", "weather.html");
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Link, Qt::yellow);
    QApplication::setPalette(dark);
    const auto linkColor = [] { return helpPage()->document()->find("forecast").charFormat().foreground().color(); };
    EXPECT_TRUE(waitUntil([&] { return linkColor() == Qt::yellow; }));
    EXPECT_EQ(helpPage()->palette().color(QPalette::Base), Qt::black);
    EXPECT_EQ(helpPlace(), "weather.html");
    EXPECT_FALSE(partOfHelp("helpBack")->isEnabled()) << "the same page is no step";
    QApplication::setPalette(before);
}

TEST_F(TheHelpViewer, saysWhatIsWrongWithABookThatIsMissing)
{
    const CapturedLog log;
    NSHelpManager::sharedHelpManager()->openHelpAnchorInBook("landing", "No Such Help");
    ASSERT_TRUE(helpComesUp());
    EXPECT_TRUE(isInSight("This help is not available"));
    EXPECT_FALSE(partOfHelp("helpSearch")->isEnabled());
    EXPECT_FALSE(partOfHelp("helpContents")->isVisible());
    EXPECT_EQ(log.linesContaining("No Such Help").size(), 1);
    openAt("landing", "gliding.html#landing");
    EXPECT_TRUE(partOfHelp("helpSearch")->isEnabled());
    EXPECT_TRUE(waitUntil([] { return partOfHelp("helpContents")->isVisible(); }));
}

TEST_F(TheHelpViewer, namesTheKeysOfItsButtons)
{
    openAt("nowhere", "index.html");
    EXPECT_EQ(partOfHelp("helpBack")->toolTip(), "Back (Alt+Left)");
    EXPECT_EQ(partOfHelp("helpForward")->toolTip(), "Forward (Alt+Right)");
    EXPECT_EQ(partOfHelp("helpZoomIn")->toolTip(), "Larger text (Ctrl++)");
    EXPECT_EQ(partOfHelp("helpSearch")->toolTip(), "Search the help (Ctrl+F)");
}
