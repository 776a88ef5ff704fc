// Which panes the host finds, and how the overview is used with keys and mouse.

#include "KeyPress.h"
#include "PaneBundle.h"
#include "Wait.h"
#include "host/Overview.h"
#include "host/SettingsApplication.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSignalSpy>
#include <QToolButton>
#include <gmock/gmock.h>
#include <linux/input-event-codes.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

QStringList namesOf(const QList<InstalledPane> &panes)
{
    QStringList names;
    for (const InstalledPane &pane : panes)
        names += pane.name;
    return names;
}

class AnOverview : public testing::Test
{
protected:
    void SetUp() override
    {
        host.start(QString());
        ASSERT_TRUE(waitUntil([this] { return hasKeyboard(window()); }));
    }
    HostWindow *window() { return host.window(); }
    Overview *overview() { return window()->findChild<Overview *>("overview"); }
    QLineEdit *searchField() { return window()->findChild<QLineEdit *>("searchField"); }
    QListView *grid() { return window()->findChild<QListView *>("paneGrid"); }
    bool showsWindow(const QString &title)
    {
        return waitUntil([&] { return window()->windowTitle() == title; });
    }
    void type(std::initializer_list<int> keys)
    {
        for (const int key : keys)
            pressKey(key);
    }

    PaneBundle animals{"Animals", {{"NSPrefPaneSearchKeywords", QStringList{"cat", "Horse"}}}};
    PaneBundle plants{"Plants", {{"NSPrefPaneSearchKeywords", "oak tree, rose"}}};
    PaneBundle stones{"Stones", {{"CFBundleName", "Other"}, {"NSPrefPaneIconLabel", "Stones and sand"}}};
    SettingsApplication host{{stones.folder(), plants.folder(), animals.folder()}};
};

} // namespace

TEST(APaneCatalogue, takesTheFirstBundleOfAnIdentifier)
{
    const PaneBundle mine("Sample", {{"CFBundleName", "Mine"}});
    const PaneBundle systems("Sample", {{"CFBundleName", "System's"}});
    const QList<InstalledPane> panes = installedPanes({mine.folder(), systems.folder()});
    EXPECT_THAT(namesOf(panes), ElementsAre("Mine"));
    EXPECT_EQ(paneForRequest("test.Sample", panes), mine.path());
}

TEST(APaneCatalogue, opensAPathThatStandsElsewhereButNoUnknownIdentifier)
{
    const PaneBundle elsewhere("Elsewhere");
    EXPECT_EQ(paneForRequest(elsewhere.path() + "/", {}), elsewhere.path());
    EXPECT_EQ(paneForRequest("test.Elsewhere", {}), QString());
}

TEST(APaneCatalogue, looksInTheUsersFolderFirst)
{
    EXPECT_EQ(paneFolders().first(), qEnvironmentVariable("XDG_DATA_HOME") + "/PreferencePanes");
}

TEST(APaneCatalogue, namesABundleAfterItsFileWhereItStatesNoName)
{
    const PaneBundle nameless("Nameless", {{"CFBundleName", ""}});
    EXPECT_EQ(describePane(nameless.path()).name, "Nameless");
}

TEST(APaneCatalogue, drawsAnIconWhereThereIsNone)
{
    const PaneBundle plain("Plain", {{"NSPrefPaneIconFile", "absent.icns"}});
    const QIcon icon = paneIcon(describePane(plain.path()));
    EXPECT_FALSE(icon.pixmap(64).isNull());
}

TEST(APaneCatalogue, takesTheIconThatTheBundleNames)
{
    const PaneBundle painted("Painted", {{"NSPrefPaneIconFile", "red.png"}});
    QImage red(64, 64, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(painted.bundle().resourcePath() + "/red.png"));
    EXPECT_EQ(paneIcon(describePane(painted.path())).pixmap(64).toImage().pixelColor(32, 32), QColor(Qt::red));
}

TEST_F(AnOverview, givesTheWindowThePanesTitleAndIconAndTakesThemBack)
{
    const PaneBundle painted("Painted", {{"NSPrefPaneIconFile", "red.png"}});
    QImage red(64, 64, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(painted.bundle().resourcePath() + "/red.png"));
    const auto iconColor = [&] { return window()->windowIcon().pixmap(64).toImage().pixelColor(32, 32); };
    host.open(painted.path(), QString());
    ASSERT_TRUE(waitUntil([&] { return painted.calls().contains("didSelect shown"); }));
    EXPECT_EQ(window()->windowTitle(), "Painted");
    EXPECT_EQ(iconColor(), QColor(Qt::red));
    host.showOverview();
    EXPECT_EQ(window()->windowTitle(), "Settings");
    EXPECT_NE(iconColor(), QColor(Qt::red));
}

TEST_F(AnOverview, listsThePanesByName)
{
    EXPECT_THAT(overview()->shownNames(), ElementsAre("Animals", "Plants", "Stones and sand"));
    EXPECT_EQ(window()->windowTitle(), "Settings");
}

TEST_F(AnOverview, findsPanesByPartsOfTheirNamesAndKeywords)
{
    const std::pair<const char *, QStringList> searches[] = {{"ston", {"Stones and sand"}}, {"HORSE", {"Animals"}},
        {"oak", {"Plants"}}, {"rose plants", {"Plants"}}, {"cat rose", {}},
        {"  ", {"Animals", "Plants", "Stones and sand"}}};
    for (const auto &[search, found] : searches) {
        searchField()->setText(search);
        EXPECT_EQ(overview()->shownNames(), found) << search;
    }
}

TEST_F(AnOverview, saysThatNothingMatches)
{
    searchField()->setText("whale");
    auto *note = window()->findChild<QLabel *>("emptyNote");
    EXPECT_TRUE(note->isVisible());
    EXPECT_EQ(note->text(), QStringLiteral("Nothing matches “whale”."));
    searchField()->clear();
    EXPECT_FALSE(note->isVisible());
}

TEST_F(AnOverview, opensAPaneWithArrowsAndEnterAndComesBackWithAltLeft)
{
    type({KEY_RIGHT, KEY_ENTER});
    EXPECT_TRUE(showsWindow("Plants"));
    EXPECT_TRUE(waitUntil([&] { return plants.calls().contains("didSelect shown"); }));
    pressKey(KEY_LEFT, {KEY_LEFTALT});
    EXPECT_TRUE(showsWindow("Settings"));
    EXPECT_TRUE(grid()->hasFocus());
    EXPECT_EQ(grid()->currentIndex().data().toString(), "Plants");
}

TEST_F(AnOverview, opensWhatASearchFoundWithEnter)
{
    pressKey(KEY_F, {KEY_LEFTCTRL});
    ASSERT_TRUE(waitUntil([&] { return searchField()->hasFocus(); }));
    type({KEY_R, KEY_O, KEY_S, KEY_E, KEY_ENTER});
    EXPECT_TRUE(showsWindow("Plants"));
}

TEST_F(AnOverview, movesFromTheSearchToWhatItFoundAndClearsWithEscape)
{
    pressKey(KEY_F, {KEY_LEFTCTRL});
    type({KEY_S, KEY_T, KEY_O});
    ASSERT_TRUE(waitUntil([&] { return searchField()->text() == "sto"; }));
    type({KEY_DOWN, KEY_ENTER});
    EXPECT_TRUE(showsWindow("Stones and sand"));
    pressKey(KEY_F, {KEY_LEFTCTRL});
    ASSERT_TRUE(waitUntil([&] { return searchField()->hasFocus(); }));
    pressKey(KEY_ESC);
    EXPECT_TRUE(waitUntil([&] { return searchField()->text().isEmpty(); }));
    EXPECT_EQ(overview()->shownNames().size(), 3);
}

TEST_F(AnOverview, opensAPaneWithOneClickAndComesBackByButtonAndByTheMousesBackButton)
{
    const auto clickStones = [&] {
        const QPoint place = grid()->visualRect(grid()->model()->index(2, 0)).center();
        clickAt(grid()->viewport()->mapToGlobal(place));
    };
    clickStones();
    ASSERT_TRUE(showsWindow("Stones and sand"));
    auto *back = window()->findChild<QToolButton *>("backButton");
    ASSERT_TRUE(waitUntil([&] { return back->isVisible(); }));
    clickAt(back->mapToGlobal(back->rect().center()));
    ASSERT_TRUE(showsWindow("Settings"));
    clickStones();
    ASSERT_TRUE(showsWindow("Stones and sand"));
    QTest::mouseClick(window()->findChild<QLineEdit *>("field"), Qt::BackButton);
    EXPECT_EQ(window()->windowTitle(), "Settings");
    EXPECT_EQ(stones.calls().count("initWithBundle"), 1);
}

TEST_F(AnOverview, endsWithCtrlQAndCtrlW)
{
    const QSignalSpy ending(&host, &SettingsApplication::ending);
    QSignalSpy closing(window(), &HostWindow::closeRequested);
    pressKey(KEY_Q, {KEY_LEFTCTRL});
    ASSERT_TRUE(waitUntil([&] { return closing.size() == 1; }));
    EXPECT_EQ(ending.size(), 1);
    pressKey(KEY_W, {KEY_LEFTCTRL});
    EXPECT_TRUE(waitUntil([&] { return closing.size() == 2; }));
}

TEST_F(AnOverview, showsAPaneThatWasInstalledMeanwhile)
{
    host.open(plants.identifier(), QString());
    ASSERT_TRUE(showsWindow("Plants"));
    const PaneBundle late("Late");
    ASSERT_TRUE(QFile::link(late.path(), plants.folder() + "/Late.prefPane"));
    host.showOverview();
    EXPECT_TRUE(overview()->shownNames().contains("Late"));
}

TEST(AnEmptyOverview, saysThatNothingIsInstalled)
{
    QTemporaryDir empty;
    SettingsApplication host({empty.path()});
    host.start(QString());
    EXPECT_EQ(host.window()->findChild<QLabel *>("emptyNote")->text(), "No settings are installed.");
}

TEST_F(AnOverview, givesEveryControlANameForScreenReaders)
{
    host.open(animals.identifier(), QString());
    host.showOverview();
    for (const QWidget *widget : {static_cast<QWidget *>(searchField()), static_cast<QWidget *>(grid())})
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << qPrintable(widget->objectName());
    EXPECT_FALSE(window()->findChild<QToolButton *>("backButton")->text().isEmpty());
}

TEST(AHostWithTwins, showsOneByItsPathThatFindsItself)
{
    const QVariantMap twin{{"CFBundleIdentifier", "test.twin"}};
    const PaneBundle installed("Installed", twin), other("Other", twin);
    SettingsApplication host({installed.folder()});
    host.start(QString());
    EXPECT_EQ(NSBundle::bundleWithIdentifier("test.twin"), NSBundle::bundleWithPath(installed.path()))
        << "the overview has looked at it";
    host.open(other.path(), QString());
    ASSERT_TRUE(waitUntil([&] { return other.calls().contains("didSelect shown"); }));
    EXPECT_EQ(NSBundle::bundleWithIdentifier("test.twin"), NSBundle::bundleWithPath(other.path()));
}
