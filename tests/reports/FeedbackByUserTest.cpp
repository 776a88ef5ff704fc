// The about page's button, in a process that is the host's.

#include "OpenAlert.h"
#include "PaneOnRealStore.h"
#include "Wait.h"

#include "crashreporter/LivingReporters.h"
#include "platform/appkit/controls/Controls.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QApplication>
#include <QPushButton>

namespace {

constexpr int aboutPage = 5;

class FeedbackByUser : public PaneOnRealStore
{
protected:
    FeedbackByUser() { NSBundle::bundleWithPath(bundle().path())->setLoaded(); }

    static QDialog *reportWindow()
    {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->objectName() == u"reportWindow" && window->isVisible())
                return qobject_cast<QDialog *>(window);
        }
        return nullptr;
    }
};

} // namespace

TEST_F(FeedbackByUser, theButtonOnTheAboutPageOpensAMessageAndLeavesThePaneUsable)
{
    pane();
    selectTabViewItemAtIndex(control("tabbedView"), aboutPage);
    showWindow();
    clickOn(control("messageButton"));
    ASSERT_TRUE(waitUntil([] { return reportWindow() != nullptr; }));
    EXPECT_TRUE(reportWindow()->findChild<QWidget *>("remindButton")->isHidden());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    // The pane's window takes a click while the other stands on top.
    clickOn(control("messageButton"));
    EXPECT_TRUE(waitUntil([] { return livingReporters() == 2; }));
    while (reportWindow())
        reportWindow()->close();
    EXPECT_TRUE(waitUntil([] { return livingReporters() == 0; }));
}

TEST_F(FeedbackByUser, itReadsDifferentlyFromTheButtonThatOpensTheWebPage)
{
    EXPECT_FALSE(text("messageButton").remove('&').startsWith(text("feedbackButton").remove('&')));
    EXPECT_EQ(text("messageButton").remove('&'), "Send feedback…");
    EXPECT_EQ(text("feedbackButton").remove('&'), "Feedback on the web");
}
