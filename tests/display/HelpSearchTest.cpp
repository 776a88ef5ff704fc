// Looking for words in the help.

#include "HelpViewerOnDisplay.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <linux/input-event-codes.h>

namespace {

class ASearchInHelp : public TheHelpViewer
{
protected:
    static void type(const QList<int> &keys)
    {
        for (const int key : keys)
            pressKey(key);
    }
    static void lookFor(const QList<int> &keys)
    {
        pressKey(KEY_F, {KEY_LEFTCTRL});
        ASSERT_TRUE(waitUntil([] { return partOfHelp("helpSearch")->hasFocus(); }));
        type(keys);
    }
    static QStringList found()
    {
        QStringList titles;
        const auto *results = partOfHelp<QListWidget>("helpResults");
        for (int row = 0; row < results->count(); ++row)
            titles += results->item(row)->text();
        return titles;
    }
};

} // namespace

TEST_F(ASearchInHelp, findsPagesByTheirWords)
{
    openAt("nowhere", "index.html");
    lookFor({KEY_T, KEY_H, KEY_E, KEY_R, KEY_M, KEY_A, KEY_L});
    ASSERT_TRUE(waitUntil([] { return found() == QStringList("Weather"); }));
    pressKey(KEY_ENTER);
    ASSERT_TRUE(waitUntil([] { return partOfHelp("helpResults")->hasFocus(); }));
    pressKey(KEY_ENTER);
    ASSERT_TRUE(helpShows("weather.html"));
    EXPECT_EQ(helpPage()->textCursor().selectedText(), "thermal");
    EXPECT_EQ(helpPage()->extraSelections().size(), 2);
    const int first = helpPage()->textCursor().position();
    pressKey(KEY_F3);
    ASSERT_TRUE(waitUntil([&] { return helpPage()->textCursor().position() > first; }));
    pressKey(KEY_F3, {KEY_LEFTSHIFT});
    EXPECT_TRUE(waitUntil([&] { return helpPage()->textCursor().position() == first; }));
}

TEST_F(ASearchInHelp, findsPagesThatHaveAllWordsOrTheirBeginnings)
{
    openAt("nowhere", "index.html");
    lookFor({KEY_G, KEY_L, KEY_I, KEY_D, KEY_E, KEY_R});
    ASSERT_TRUE(waitUntil([] { return found().size() == 2; }));
    type({KEY_SPACE, KEY_L, KEY_I, KEY_F});
    EXPECT_TRUE(waitUntil([] { return found() == QStringList("Weather"); }));
}

TEST_F(ASearchInHelp, saysWhenNoPageHasTheWords)
{
    openAt("nowhere", "index.html");
    lookFor({KEY_X, KEY_Y, KEY_X});
    const auto *title = partOfHelp<QLabel>("helpResultsTitle");
    EXPECT_TRUE(waitUntil([&] { return title->text() == "No page has all of these words."; }));
    EXPECT_EQ(found(), QStringList());
}

TEST_F(ASearchInHelp, takesSignsOfItsLanguageAsNothing)
{
    openAt("nowhere", "index.html");
    partOfHelp<QLineEdit>("helpSearch")->setText("\"(thermal* AND -^");
    EXPECT_TRUE(waitUntil([] { return found().isEmpty() && partOfHelp("helpResults")->isVisible(); }));
    partOfHelp<QLineEdit>("helpSearch")->setText("\"*thermal)'");
    EXPECT_TRUE(waitUntil([] { return found() == QStringList("Weather"); }));
}

TEST_F(ASearchInHelp, isLeftWithEscapeWhichThenCloses)
{
    openAt("nowhere", "index.html");
    lookFor({KEY_W, KEY_I, KEY_N, KEY_G});
    ASSERT_TRUE(waitUntil([] { return found() == QStringList("Gliding"); }));
    pressKey(KEY_ESC);
    ASSERT_TRUE(waitUntil([] { return openHelp() && partOfHelp("helpContents")->isVisible(); }));
    pressKey(KEY_ESC);
    EXPECT_TRUE(waitUntil([] { return !openHelp(); }));
}

TEST_F(ASearchInHelp, endsWhenAnotherPlaceIsAskedFor)
{
    openAt("nowhere", "index.html");
    lookFor({KEY_W, KEY_H, KEY_E, KEY_E, KEY_L});
    ASSERT_TRUE(waitUntil([] { return found() == QStringList("Gliding"); }));
    openAt("weather", "weather.html");
    EXPECT_EQ(partOfHelp<QLineEdit>("helpSearch")->text(), "");
    EXPECT_TRUE(partOfHelp("helpContents")->isVisible());
}
