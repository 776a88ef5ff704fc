// Help that is asked for from an alert of the whole application, used while the alert is up.

#include "HelpBundle.h"
#include "KeyPress.h"
#include "LinkInPage.h"
#include "OpenAlert.h"
#include "OpenHelp.h"
#include "Wait.h"

#include "platform/appkit/alerts/NSAlert.h"
#include "platform/appkit/help/NSHelpManager.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace {

class HelpInFrontOfAnAlert : public testing::Test
{
protected:
    HelpInFrontOfAnAlert()
    {
        EXPECT_EQ(bundle.registerBook(), 0);
        settings.setWindowTitle("Settings");
        settings.setGeometry(100, 100, 500, 300);
        settings.show();
        EXPECT_TRUE(waitUntil([this] { return hasKeyboard(&settings); }));
        alert.setMessageText("Quit while key conflicts exist?");
        alert.addButtonWithTitle("Quit");
        alert.addButtonWithTitle("Cancel");
        alert.setShowsHelp(true);
        alert.setHelpAnchor("landing", NSBundle::bundleWithPath(bundle.path()));
    }
    ~HelpInFrontOfAnAlert() override { closeHelp(); }

    static void ask(const QString &anchor)
    {
        NSHelpManager::sharedHelpManager()->openHelpAnchorInBook(anchor, "Test Help");
    }
    /// Runs the alert, does something once it is up, and then answers it with Escape.
    int runAnd(const std::function<void()> &meanwhile)
    {
        QTimer::singleShot(0, &settings, [&meanwhile] {
            EXPECT_TRUE(alertComesUp());
            meanwhile();
            if (!openAlert())
                return;
            EXPECT_TRUE(waitUntil([] {
                // The viewer may still be asking for the focus.
                openAlert()->activateWindow();
                return hasKeyboard(openAlert());
            }));
            pressKey(KEY_ESC);
            EXPECT_TRUE(waitUntil([] { return !openAlert(); }));
            if (openAlert())
                openAlert()->reject();
        });
        return alert.runModal();
    }
    static void clickInPage(const QString &text)
    {
        const QPoint place = placeOfText(helpPage(), text);
        ASSERT_FALSE(place.isNull());
        clickAt(helpPage()->viewport()->mapToGlobal(place));
    }
    static void askFromAlert()
    {
        clickOn(partOfAlert("help"));
        ASSERT_TRUE(helpShows("gliding.html#landing"));
    }
    static void useIt()
    {
        pressKey(KEY_HOME, {KEY_LEFTALT});
        ASSERT_TRUE(helpShows("index.html"));
        clickInPage("weather");
        ASSERT_TRUE(helpShows("weather.html"));
        pressKey(KEY_F, {KEY_LEFTCTRL});
        ASSERT_TRUE(waitUntil([] { return partOfHelp("helpSearch")->hasFocus(); }));
        for (const int key : {KEY_W, KEY_I, KEY_N, KEY_G})
            pressKey(key);
        ASSERT_TRUE(waitUntil([] { return partOfHelp<QLineEdit>("helpSearch")->text() == "wing"; }));
        ASSERT_TRUE(waitUntil([] { return partOfHelp<QListWidget>("helpResults")->count() == 1; }));
    }

    HelpBundle bundle;
    QWidget settings;
    NSAlert alert;
};

} // namespace

TEST_F(HelpInFrontOfAnAlert, isUsedByKeysAndClicksWhileTheAlertIsUp)
{
    const int answer = runAnd([] {
        askFromAlert();
        useIt();
        EXPECT_TRUE(openAlert());
    });
    EXPECT_EQ(answer, NSAlertSecondButtonReturn);
}

TEST_F(HelpInFrontOfAnAlert, isUsedThereWhenItWasOpenBefore)
{
    ask("weather");
    ASSERT_TRUE(helpShows("weather.html"));
    openHelp()->move(300, 200);
    ASSERT_TRUE(waitUntil([] { return openHelp()->pos() == QPoint(300, 200); }));
    settings.activateWindow();
    ASSERT_TRUE(waitUntil([this] { return hasKeyboard(&settings); }));
    const int answer = runAnd([] {
        askFromAlert();
        EXPECT_TRUE(waitUntil([] { return openHelp()->pos() == QPoint(300, 200); })) << "it stays where it was";
        useIt();
    });
    EXPECT_EQ(answer, NSAlertSecondButtonReturn);
}

TEST_F(HelpInFrontOfAnAlert, staysWhenTheAlertIsAnswered)
{
    runAnd([] { askFromAlert(); });
    ASSERT_FALSE(openAlert());
    ASSERT_TRUE(openHelp());
    ask("weather");
    ASSERT_TRUE(helpShows("weather.html"));
    useIt();
}

TEST_F(HelpInFrontOfAnAlert, isUsedAgainInFrontOfTheNextOne)
{
    for (int time = 0; time < 2; ++time) {
        const int answer = runAnd([] {
            askFromAlert();
            useIt();
        });
        EXPECT_EQ(answer, NSAlertSecondButtonReturn);
    }
}

TEST_F(HelpInFrontOfAnAlert, leavesTheRestOfTheApplicationToTheAlert)
{
    runAnd([this] {
        askFromAlert();
        auto *field = new QLineEdit(&settings);
        field->show();
        clickAt(field->mapToGlobal(field->rect().center()));
        EXPECT_TRUE(alertComesUp()) << "the alert takes the keyboard back";
        EXPECT_FALSE(field->hasFocus());
    });
}

TEST_F(HelpInFrontOfAnAlert, givesTheKeyboardBackToItWhenItIsClosed)
{
    runAnd([] {
        askFromAlert();
        pressKey(KEY_ESC);
        EXPECT_TRUE(waitUntil([] { return !openHelp(); }));
        EXPECT_TRUE(alertComesUp());
    });
}
