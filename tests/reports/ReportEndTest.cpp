// The ways in which a report window is closed, and how long its reporter lives.

#include "KeyPress.h"
#include "ReportServer.h"
#include "ReportWindow.h"
#include "Wait.h"

#include "crashreporter/LivingReporters.h"
#include "crashreporter/QBFeedbackProvider.h"

#include <QApplication>
#include <linux/input-event-codes.h>

namespace {

class ReportEnd : public ReportWindow
{
protected:
    /// Whether the window takes keys now.
    bool takesKeys() const
    {
        return waitUntil([this] {
            if (!hasKeyboard(window()))
                window()->activateWindow();
            return hasKeyboard(window());
        });
    }
};

} // namespace

TEST_F(ReportEnd, aReportThatIsPutOffChangesNothingAndItsReporterStays)
{
    ASSERT_TRUE(openCrash());
    click("remindButton");
    runPendingEvents();
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(store.domain().isEmpty());
    EXPECT_TRUE(reporter);
    EXPECT_EQ(livingReporters(), 1);
}

TEST_F(ReportEnd, aReportThatIsDiscardedMovesTheDateAndItsReporterStays)
{
    store.set("OtherKey", 7);
    const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-1);
    ASSERT_TRUE(openCrash());
    click("discardButton");
    runPendingEvents();
    EXPECT_FALSE(isOpen());
    EXPECT_GE(rememberedDate().toDateTime(), before);
    EXPECT_LE(rememberedDate().toDateTime(), QDateTime::currentDateTimeUtc().addSecs(1));
    EXPECT_EQ(store.domain().keys(), QStringList({"OtherKey", QBCrashReporterLastCrashReportDate}));
    EXPECT_EQ(livingReporters(), 1);
}

TEST_F(ReportEnd, aMessageThatIsDiscardedStoresNothingAndEndsItsReporter)
{
    ASSERT_TRUE(openFeedback());
    EXPECT_EQ(livingReporters(), 1);
    click("discardButton");
    EXPECT_TRUE(reporterGoes());
    EXPECT_TRUE(store.domain().isEmpty());
    EXPECT_EQ(livingReporters(), 0);
}

TEST_F(ReportEnd, escapePutsTheReportOffWhereverTheFocusIs)
{
    for (const char *focus : {"informationField", "sendButton"}) {
        ASSERT_TRUE(openCrash());
        ASSERT_TRUE(takesKeys());
        part(focus)->setFocus();
        pressKey(KEY_ESC);
        EXPECT_TRUE(waitUntil([this] { return !isOpen(); })) << focus;
        EXPECT_TRUE(store.domain().isEmpty());
        letGo(reporter);
        runPendingEvents();
    }
}

TEST_F(ReportEnd, theWindowsOwnCloseButtonPutsTheReportOff)
{
    ASSERT_TRUE(openCrash());
    window()->close();
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(store.domain().isEmpty());
    EXPECT_TRUE(reporter);
}

TEST_F(ReportEnd, aMessageWhoseWindowIsClosedEndsItsReporter)
{
    ASSERT_TRUE(openFeedback());
    window()->close();
    EXPECT_TRUE(reporterGoes());
}

TEST_F(ReportEnd, whileItIsSentNothingClosesTheWindow)
{
    ReportServer server({ReportServer::silence});
    setAddress(server.url());
    ASSERT_TRUE(openFeedback());
    ASSERT_TRUE(takesKeys());
    click("sendButton");
    ASSERT_TRUE(waitUntil([&] { return !server.requests.isEmpty(); }));
    window()->close();
    ASSERT_TRUE(isOpen());
    part("informationField")->setFocus();
    pressKey(KEY_ESC);
    // A key that comes later is there, so Escape was.
    pressKey(KEY_X);
    EXPECT_TRUE(waitUntil([this] { return text("informationField").contains('x'); }));
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(server.connectionsGone, 0);
}

TEST_F(ReportEnd, enterSendsNothingFromTheFieldsOrTheTabs)
{
    ReportServer server;
    setAddress(server.url());
    ASSERT_TRUE(openCrash());
    ASSERT_TRUE(takesKeys());
    auto *tabs = part<QTabWidget>("switchTabView");
    tabs->tabBar()->setFocus();
    pressKey(KEY_ENTER);
    pressKey(KEY_RIGHT);
    ASSERT_TRUE(waitUntil([tabs] { return tabs->currentIndex() == 1; }));
    tabs->setCurrentIndex(0);
    part("informationField")->setFocus();
    const QString before = text("informationField");
    pressKey(KEY_ENTER);
    EXPECT_TRUE(waitUntil([&] { return text("informationField").size() == before.size() + 1; }));
    EXPECT_TRUE(part("sendButton")->isEnabled());
    EXPECT_EQ(server.requests.size(), 0);
}

TEST_F(ReportEnd, aReporterThatGoesWhileItSendsEndsTheSending)
{
    ReportServer server({ReportServer::silence});
    setAddress(server.url());
    ASSERT_TRUE(openCrash());
    click("sendButton");
    ASSERT_TRUE(waitUntil([&] { return !server.requests.isEmpty(); }));
    letGo(reporter);
    EXPECT_TRUE(waitUntil([&] { return server.connectionsGone == 1; }));
    EXPECT_FALSE(reporter);
    EXPECT_TRUE(store.domain().isEmpty());
}

TEST_F(ReportEnd, theProviderOpensAMessageForEachOfItsCallsAndKeepsNone)
{
    {
        QBFeedbackProvider provider;
        provider.orderFrontFeedbackWindow(nullptr);
        provider.orderFrontBugReportWindow(nullptr);
    }
    EXPECT_EQ(livingReporters(), 2);
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() != u"reportWindow" || !window->isVisible())
            continue;
        EXPECT_TRUE(window->findChild<QWidget *>("remindButton")->isHidden());
        window->close();
    }
    EXPECT_TRUE(waitUntil([] { return livingReporters() == 0; }));
}
