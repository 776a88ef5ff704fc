// A pane's sheet in the host: it belongs to its pane, which cannot be left while it is up.

#include "DesktopWindows.h"
#include "KeyPress.h"
#include "OpenAlert.h"
#include "PaneBundle.h"
#include "Wait.h"
#include "host/SettingsApplication.h"

#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QWindow>
#include <gmock/gmock.h>
#include <linux/input-event-codes.h>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ASheetInTheHost : public testing::Test
{
protected:
    void SetUp() override
    {
        host.start(first.identifier());
        ASSERT_TRUE(waitUntil([&] { return first.calls().contains("didSelect shown"); }));
        ASSERT_TRUE(waitUntil([&] { return hasKeyboard(host.window()); }));
        alertButton = host.window()->findChild<QPushButton *>("alert");
        first.takeCalls();
    }
    void showSheet()
    {
        alertButton->click();
        ASSERT_TRUE(alertComesUp());
    }
    void showAgain(const PaneBundle &pane)
    {
        const qsizetype before = pane.calls().count("didSelect shown");
        host.open(pane.path(), QString());
        ASSERT_TRUE(waitUntil([&] { return pane.calls().count("didSelect shown") == before + 1; }));
    }
    void minimise()
    {
        host.window()->showMinimized();
        ASSERT_TRUE(waitUntil([&] { return !host.window()->windowHandle()->isExposed(); }));
        runPendingEvents();
    }
    bool comesToFront()
    {
        return waitUntil([&] { return host.window()->windowHandle()->isExposed(); });
    }
    bool staysOnScreen()
    {
        runPendingEvents();
        return openAlert() && openAlert()->isVisible() && host.window()->windowTitle() == "First";
    }
    void answer()
    {
        ASSERT_TRUE(alertComesUp());
        EXPECT_EQ(textsOfAlert().first(), "Warning");
        const QPointer<QDialog> sheet = openAlert();
        pressKey(KEY_ENTER);
        ASSERT_TRUE(waitUntil([&] { return !sheet; }));
    }
    bool windowComesToShow(const QString &page)
    {
        return waitUntil([&] { return host.window()->windowTitle() == page; });
    }

    PaneBundle first{"First"};
    PaneBundle second{"Second"};
    SettingsApplication host{{first.folder(), second.folder()}};
    QPushButton *alertButton = nullptr;
};

} // namespace

TEST_F(ASheetInTheHost, holdsUpEveryWayOfLeavingThePaneAndTheLastOneWishedIsGoneAfterwards)
{
    showSheet();
    for (const QList<int> &held : {QList<int>{KEY_LEFTALT}, QList<int>{KEY_LEFTCTRL}}) {
        for (const int key : {KEY_LEFT, KEY_F, KEY_Q, KEY_W})
            pressKey(key, held);
    }
    askToClose(quint32(host.window()->winId()));
    EXPECT_TRUE(staysOnScreen());
    host.showOverview();
    EXPECT_TRUE(staysOnScreen());
    host.open(second.path(), QString());
    EXPECT_TRUE(staysOnScreen());
    EXPECT_THAT(first.takeCalls(), IsEmpty());
    answer();
    ASSERT_TRUE(windowComesToShow("Second"));
    EXPECT_THAT(first.takeCalls(),
        ElementsAre("alert ended shown", "shouldUnselect shown", "willUnselect shown", "didUnselect hidden"));
}

TEST_F(ASheetInTheHost, holdsUpQuittingWhichGoesOnAfterwards)
{
    showSheet();
    QTimer::singleShot(0, &host, [this] {
        host.terminate();
        EXPECT_TRUE(staysOnScreen());
        pressKey(KEY_ENTER);
    });
    QTimer::singleShot(20000, &host, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    host.finish();
    EXPECT_THAT(first.takeCalls(),
        ElementsAre(
            "alert ended shown", "shouldUnselect shown", "willUnselect shown", "didUnselect hidden", "dealloc"));
}

TEST_F(ASheetInTheHost, holdsUpLeavingAlsoWhileTheWindowIsMinimised)
{
    showSheet();
    minimise();
    host.open(second.path(), QString());
    ASSERT_TRUE(comesToFront());
    EXPECT_TRUE(staysOnScreen());
    EXPECT_THAT(first.takeCalls(), IsEmpty());
    answer();
    EXPECT_TRUE(windowComesToShow("Second"));
}

TEST_F(ASheetInTheHost, begunWhileTheWindowIsMinimisedComesUpOnItsPaneOnly)
{
    minimise();
    alertButton->click();
    showAgain(second);
    ASSERT_TRUE(comesToFront());
    EXPECT_TRUE(noAlertComesUpOn(host.window())) << "the second pane is shown";
    host.showOverview();
    EXPECT_TRUE(noAlertComesUpOn(host.window())) << "the overview is shown";
    EXPECT_FALSE(first.calls().contains("alert ended shown"));
    showAgain(first);
    answer();
    EXPECT_THAT(first.calls(), Contains("alert ended shown"));
    EXPECT_EQ(host.window()->windowTitle(), "First");
}

TEST_F(ASheetInTheHost, begunByAPaneThatIsNotShownWaitsForIt)
{
    host.showOverview();
    alertButton->click();
    alertButton->click();
    EXPECT_TRUE(noAlertComesUpOn(host.window()));
    showAgain(second);
    EXPECT_TRUE(noAlertComesUpOn(host.window()));
    showAgain(first);
    ASSERT_TRUE(alertComesUp());
    host.showOverview();
    EXPECT_TRUE(staysOnScreen());
    answer();
    EXPECT_TRUE(staysOnScreen()) << "the second one";
    answer();
    EXPECT_TRUE(windowComesToShow("Settings"));
    EXPECT_EQ(first.calls().count("alert ended shown"), 2);
}

TEST_F(ASheetInTheHost, ofAPaneThatIsReleasedGoesUnanswered)
{
    showSheet();
    QTimer::singleShot(0, &host, [this] { host.terminateAtOnce(); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    host.finish();
    EXPECT_FALSE(openAlert());
    EXPECT_THAT(first.takeCalls(), ElementsAre("willUnselect shown", "didUnselect hidden", "dealloc"));
}
