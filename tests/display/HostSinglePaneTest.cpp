// The host where one pane is installed: it opens, is searched, and comes back on the page that was seen last.

#include "KeyPress.h"
#include "PaneBundle.h"
#include "Wait.h"
#include "host/SettingsApplication.h"
#include "platform/foundation/preferences/NSUserDefaults.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListView>
#include <QTabWidget>
#include <QToolButton>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace {

const QByteArray pages = R"(<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0">
 <class>TestView</class>
 <widget class="QWidget" name="testView">
  <layout class="QVBoxLayout">
   <item>
    <widget class="QTabWidget" name="tabs">
     <widget class="QWidget" name="first">
      <attribute name="title"><string>First</string></attribute>
      <property name="identifier" stdset="0"><string>first</string></property>
      <layout class="QVBoxLayout">
       <item><widget class="QPushButton" name="yes"><property name="text"><string>Leave</string></property></widget></item>
       <item><widget class="QPushButton" name="no"><property name="text"><string>Stay</string></property></widget></item>
       <item><widget class="QPushButton" name="alert"><property name="text"><string>Warn</string></property></widget></item>
      </layout>
     </widget>
     <widget class="QWidget" name="second">
      <attribute name="title"><string>Second</string></attribute>
      <property name="identifier" stdset="0"><string>second</string></property>
      <layout class="QVBoxLayout">
       <item><widget class="QCheckBox" name="other"><property name="text"><string>Another</string></property></widget></item>
       <item>
        <widget class="QCheckBox" name="paint">
         <property name="text"><string>&amp;Paint it</string></property>
         <property name="searchWords" stdset="0"><string>color colour</string></property>
        </widget>
       </item>
      </layout>
     </widget>
    </widget>
   </item>
  </layout>
 </widget>
</ui>
)";

class AHostWithOnePane : public testing::Test
{
protected:
    AHostWithOnePane() { pane.bundle().writeFile(QStringLiteral("Contents/Resources/Main.ui"), pages); }
    ~AHostWithOnePane() override
    {
        NSUserDefaults::standardUserDefaults()->setPersistentDomainForName({}, HostState::domain);
    }
    void start(const QStringList &folders)
    {
        host = std::make_unique<SettingsApplication>(folders);
        host->start(QString());
        ASSERT_TRUE(waitUntil([this] { return hasKeyboard(window()); }));
    }
    void start() { start({pane.folder()}); }
    HostWindow *window() { return host->window(); }
    QTabWidget *tabs() { return window()->findChild<QTabWidget *>("tabs"); }
    QLineEdit *search() { return window()->findChild<QLineEdit *>("controlSearchField"); }
    QCheckBox *paint() { return window()->findChild<QCheckBox *>("paint"); }
    static void typeColor()
    {
        for (const int key : {KEY_C, KEY_O, KEY_L, KEY_O, KEY_R})
            pressKey(key);
    }

    PaneBundle pane{"Sample", {{"NSPrefPaneSearchKeywords", "color"}}};
    PaneBundle other{"Other"};
    std::unique_ptr<SettingsApplication> host;
};

} // namespace

TEST_F(AHostWithOnePane, opensItAtOnceWithoutAWayToAnEmptyOverview)
{
    start();
    EXPECT_EQ(window()->windowTitle(), "Sample");
    EXPECT_FALSE(window()->findChild<QToolButton *>("backButton")->isVisible());
    EXPECT_TRUE(search()->isVisible());
    host->showOverview();
    runPendingEvents();
    EXPECT_EQ(window()->windowTitle(), "Sample");
    EXPECT_FALSE(pane.calls().contains("willUnselect shown"));
}

TEST_F(AHostWithOnePane, showsTheOverviewOnceThereIsAnother)
{
    start({pane.folder(), other.folder()});
    EXPECT_EQ(window()->windowTitle(), "Settings");
    host->open(other.identifier(), QString());
    ASSERT_TRUE(waitUntil([this] { return window()->windowTitle() == "Other"; }));
    EXPECT_TRUE(window()->findChild<QToolButton *>("backButton")->isVisible());
    EXPECT_FALSE(search()->isVisible());
}

TEST_F(AHostWithOnePane, searchesItsControlsAndShowsTheOneThatWasMeant)
{
    start();
    pressKey(KEY_F, {KEY_LEFTCTRL});
    ASSERT_TRUE(waitUntil([this] { return search()->hasFocus(); }));
    typeColor();
    ASSERT_TRUE(waitUntil([this] { return search()->text() == "color"; }));
    pressKey(KEY_ENTER);
    EXPECT_TRUE(waitUntil([this] { return paint()->hasFocus(); }));
    EXPECT_EQ(tabs()->currentIndex(), 1);
    EXPECT_TRUE(paint()->isVisible());
    EXPECT_TRUE(window()->findChild<QWidget *>("foundMark"));
    EXPECT_EQ(search()->text(), QString());
    EXPECT_FALSE(paint()->isChecked());
}

TEST_F(AHostWithOnePane, closesTheSearchWithEscapeAndStaysItself)
{
    start();
    tabs()->setCurrentIndex(1);
    paint()->setFocus();
    pressKey(KEY_F, {KEY_LEFTCTRL});
    typeColor();
    ASSERT_TRUE(waitUntil([this] { return search()->text() == "color"; }));
    pressKey(KEY_ESC);
    EXPECT_TRUE(waitUntil([this] { return paint()->hasFocus(); }));
    EXPECT_EQ(search()->text(), QString());
    pressKey(KEY_ESC);
    pressKey(KEY_SPACE);
    EXPECT_TRUE(waitUntil([this] { return paint()->isChecked(); })) << "the window has stayed";
    EXPECT_TRUE(window()->isVisible());
}

TEST_F(AHostWithOnePane, showsWhatTheOverviewsSearchMeant)
{
    start({pane.folder(), other.folder()});
    pressKey(KEY_F, {KEY_LEFTCTRL});
    typeColor();
    pressKey(KEY_ENTER);
    EXPECT_TRUE(waitUntil([this] { return paint() && paint()->hasFocus(); }));
    EXPECT_EQ(tabs()->currentIndex(), 1);
}

TEST_F(AHostWithOnePane, comesBackOnThePageThatWasSeenLast)
{
    start();
    EXPECT_EQ(tabs()->currentIndex(), 0);
    tabs()->setCurrentIndex(1);
    host.reset();
    start();
    EXPECT_EQ(tabs()->currentIndex(), 1);
    EXPECT_TRUE(paint()->isVisible());
}

TEST_F(AHostWithOnePane, startsWithItsFirstPageWhereTheLastOneIsGone)
{
    HostState().setLastPage(pane.identifier(), "gone");
    start();
    EXPECT_EQ(tabs()->currentIndex(), 0);
}
