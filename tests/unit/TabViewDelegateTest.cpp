#include "CapturedLog.h"
#include "TestInterface.h"
#include "platform/appkit/controls/Controls.h"
#include "platform/foundation/NSException.h"

#include <QApplication>
#include <QComboBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace {

QByteArray tabView(const QByteArray &delegate = "owner")
{
    return R"(<widget class="QTabWidget" name="tabs"><property name="currentIndex"><number>1</number></property>
        <property name="delegate" stdset="0"><string>)"
        + delegate
        + R"(</string></property><widget class="QWidget" name="first"><attribute name="title"><string>First</string></attribute></widget>
        <widget class="QWidget" name="second"><attribute name="title"><string>Second</string></attribute></widget>
        <widget class="QWidget" name="third"><attribute name="title"><string>Third</string></attribute></widget></widget>)";
}

} // namespace

class TabView : public testing::Test
{
protected:
    CapturedLog log;
    TestInterface interface;
};

TEST_F(TabView, loadingTellsTheDelegateNothing)
{
    interface.load(tabView());
    EXPECT_EQ(selectedTabIndex(interface.find("tabs")), 1);
    EXPECT_TRUE(interface.sent.isEmpty());
}

TEST_F(TabView, thePageTheUserTurnsToReachesTheDelegate)
{
    interface.load(tabView());
    auto *bar = interface.find<QTabWidget>("tabs")->tabBar();
    interface.root->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(interface.root));
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(0).center());
    EXPECT_EQ(interface.sent, QStringList("selected first"));
    QTest::keyClick(bar, Qt::Key_Right);
    EXPECT_EQ(interface.sent, QStringList({"selected first", "selected second"}));
}

TEST_F(TabView, keysTurnThePagesRoundAndRoundFromAnyControl)
{
    interface.load(tabView());
    auto *tabs = interface.find<QTabWidget>("tabs");
    QList<QComboBox *> popUps;
    for (int page = 0; page < tabs->count(); ++page)
        popUps += new QComboBox(tabs->widget(page));
    interface.root->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(interface.root));
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        popUps[tabs->currentIndex()]->setFocus();
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        return tabs->currentIndex();
    };
    EXPECT_EQ(press(Qt::Key_Tab, Qt::ControlModifier), 2);
    EXPECT_EQ(press(Qt::Key_Tab, Qt::ControlModifier), 0);
    EXPECT_EQ(press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier), 2);
    EXPECT_EQ(press(Qt::Key_PageUp, Qt::ControlModifier), 1);
    EXPECT_EQ(press(Qt::Key_PageDown, Qt::ControlModifier), 2);
    tabs->setTabEnabled(0, false);
    EXPECT_EQ(press(Qt::Key_Tab, Qt::ControlModifier), 1) << "a disabled page is passed over";
    EXPECT_EQ(interface.sent.size(), 6);
}

TEST_F(TabView, thePageThatCodeSelectsReachesTheDelegate)
{
    interface.load(tabView());
    selectTabViewItemAtIndex(interface.find("tabs"), 2);
    EXPECT_EQ(interface.sent, QStringList("selected third"));
    selectTabViewItemAtIndex(interface.find("tabs"), 7);
    EXPECT_EQ(interface.sent.size(), 1);
    EXPECT_EQ(selectedTabIndex(interface.find("tabs")), 2);
}

TEST_F(TabView, tearingItDownTellsTheDelegateNothing)
{
    interface.load(tabView());
    selectTabViewItemAtIndex(interface.find("tabs"), 0);
    interface.sent.clear();
    delete interface.root;
    EXPECT_TRUE(interface.sent.isEmpty());
}

TEST_F(TabView, tearingItDownWhileItIsShownTellsTheDelegateNothing)
{
    interface.load(tabView());
    interface.root->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(interface.root));
    delete interface.root;
    EXPECT_TRUE(interface.sent.isEmpty());
}

TEST_F(TabView, whatTheDelegateThrowsIsLoggedAndThePageStays)
{
    struct Thrower : NSTabViewDelegate
    {
        void tabViewDidSelectTabViewItem(QTabWidget *, QWidget *) override { throw NSException("Name", "reason"); }
    } thrower;
    interface.owner.tabViewDelegate = &thrower;
    interface.load(tabView());
    selectTabViewItemAtIndex(interface.find("tabs"), 2);
    EXPECT_EQ(log.lines(), QStringList("lumaroo: Test.ui: tabView:didSelectTabViewItem:: Name: reason"));
    EXPECT_EQ(selectedTabIndex(interface.find("tabs")), 2);
}

TEST_F(TabView, anUnknownDelegateIsOneLoggedLine)
{
    interface.load(tabView("somebody"));
    EXPECT_EQ(log.lines(), QStringList("lumaroo: Test.ui: tabs: somebody is no delegate"));
}

TEST_F(TabView, anOwnerThatIsNoDelegateIsOneLoggedLine)
{
    interface.owner.tabViewDelegate = nullptr;
    interface.load(tabView());
    EXPECT_EQ(log.lines(), QStringList("lumaroo: Test.ui: tabs: TestOwner is no delegate of a tab view"));
}

TEST_F(TabView, aViewThatHasNoDelegateIsOneLoggedLine)
{
    interface.load(
        R"(<widget class="QCheckBox" name="box"><property name="delegate" stdset="0"><string>owner</string></property></widget>)");
    EXPECT_EQ(log.lines(), QStringList("lumaroo: Test.ui: box: a QCheckBox has no delegate"));
}
