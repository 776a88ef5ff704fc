#include "HelpBundle.h"
#include "KeyPress.h"
#include "OpenHelp.h"
#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"

#include <QBuffer>
#include <linux/input-event-codes.h>

namespace {

class PaneConflictAlert : public PaneOnRealStore
{
protected:
    /// A showing speaks of conflicts too; here it is about leaving.
    PaneConflictAlert() { store().set(KTXsuppressHKeysTaken, true); }

    void storeKey(const QString &name, int keyCode) const
    {
        store().set(name, QVariantMap{{KTXKeycode, QString::number(keyCode)}});
    }
    /// A showing in which the keys for up and for right are the same.
    void showConflict()
    {
        storeKey(KTXUpPref, 124);
        showPane();
        selectTabViewItemAtIndex(control("tabbedView"), 0);
    }
    /// Leaves the pane and does something with the alert once it is up; without an alert that is a failure.
    NSPreferencePaneUnselectReply leaveAnd(const std::function<void(QWidget *alert)> &answer)
    {
        bool isAnswered = false;
        QTimer::singleShot(0, pane().mainView(), [&] {
            ASSERT_TRUE(waitUntil([] { return alert() && hasKeyboard(alert()); }));
            answer(alert());
            isAnswered = waitUntil([] { return !alert(); });
            if (alert())
                QMetaObject::invokeMethod(alert(), "reject");
        });
        const NSPreferencePaneUnselectReply reply = pane().shouldUnselect();
        EXPECT_TRUE(isAnswered) << "there was no alert, or it stayed";
        return reply;
    }
    /// Leaves the pane where no alert is due; one that comes up all the same is a failure and is taken away.
    NSPreferencePaneUnselectReply leaveQuietly()
    {
        QObject untilLeft;
        QTimer::singleShot(0, &untilLeft, [] {
            ADD_FAILURE() << "there is an alert";
            QMetaObject::invokeMethod(alert(), "reject");
        });
        return pane().shouldUnselect();
    }
    NSPreferencePaneUnselectReply leaveAndPress(int key)
    {
        return leaveAnd([key](QWidget *) { pressKey(key); });
    }
    int shownPage() { return selectedTabIndex(control("tabbedView")); }

    static void clickOn(const QWidget *button)
    {
        ASSERT_NE(button, nullptr);
        clickAt(button->mapToGlobal(button->rect().center()));
    }
    static QWidget *alert() { return QApplication::activeModalWidget(); }
    static QStringList textsOf(QWidget *window)
    {
        QStringList texts;
        for (const QLabel *label : window->findChildren<QLabel *>())
            texts += label->text();
        return texts;
    }
};

} // namespace

TEST_F(PaneConflictAlert, withoutAConflictThePaneIsLeftWithoutADialog)
{
    showPane();
    EXPECT_EQ(leaveQuietly(), NSUnselectNow);
}

TEST_F(PaneConflictAlert, beforeTheFirstReadingThePaneIsLeftWithoutADialog)
{
    storeKey(KTXUpPref, 124);
    EXPECT_EQ(leaveQuietly(), NSUnselectNow);
}

TEST_F(PaneConflictAlert, aConflictAmongTheOtherKeysAloneIsNotAskedAbout)
{
    storeKey(KTXOpenPrefPanePref, 36);
    storeKey(KTXPreviewPref, 53);
    showPane();
    EXPECT_TRUE(pane().hotKeyIsDuplicateAtIndex(5));
    EXPECT_TRUE(pane().hotKeyIsDuplicateAtIndex(9));
    EXPECT_EQ(leaveQuietly(), NSUnselectNow);
}

TEST_F(PaneConflictAlert, aMovementKeyThatAnotherActionUsesIsAskedAbout)
{
    storeKey(KTXUnderPref, 36);
    showPane();
    EXPECT_EQ(leaveAndPress(KEY_ESC), NSUnselectCancel);
}

TEST_F(PaneConflictAlert, itSaysWhatIsWrong)
{
    showConflict();
    leaveAnd([](QWidget *window) {
        EXPECT_TRUE(textsOf(window).contains(QStringLiteral("Quit while key conflicts exist?")));
        EXPECT_TRUE(textsOf(window).contains(QStringLiteral("The marked keys have multiple actions assigned to them. "
                                                            "Quitting may cause unpredictable Lumaroo behavior.")));
        pressKey(KEY_ESC);
    });
}

TEST_F(PaneConflictAlert, qLeaves)
{
    showConflict();
    EXPECT_EQ(leaveAndPress(KEY_Q), NSUnselectNow);
    EXPECT_EQ(shownPage(), 0);
}

TEST_F(PaneConflictAlert, escapeStaysAndShowsTheHotKeys)
{
    showConflict();
    EXPECT_EQ(leaveAndPress(KEY_ESC), NSUnselectCancel);
    EXPECT_EQ(shownPage(), 1);
}

TEST_F(PaneConflictAlert, theFocusStartsOnCancel)
{
    showConflict();
    EXPECT_EQ(leaveAndPress(KEY_SPACE), NSUnselectCancel);
    EXPECT_EQ(shownPage(), 1);
}

TEST_F(PaneConflictAlert, aClickOnQuitLeaves)
{
    showConflict();
    const NSPreferencePaneUnselectReply reply = leaveAnd([](QWidget *window) {
        for (QAbstractButton *button : window->findChildren<QAbstractButton *>()) {
            if (button->text().remove(u'&') == QStringLiteral("Quit"))
                clickOn(button);
        }
    });
    EXPECT_EQ(reply, NSUnselectNow);
}

TEST_F(PaneConflictAlert, itsHelpButtonOpensThePanesHelpAboutIt)
{
    writeTestBook(bundle(), QStringLiteral("Lumaroo.help"));
    showConflict();
    leaveAnd([](QWidget *window) {
        clickOn(window->findChild<QAbstractButton *>(QStringLiteral("help")));
        EXPECT_TRUE(helpShows("anchors.html#closeDialog"));
        closeHelp();
        ASSERT_TRUE(waitUntil([window] { return hasKeyboard(window); }));
        pressKey(KEY_ESC);
    });
}

TEST_F(PaneConflictAlert, itShowsThePanesIcon)
{
    QImage picture(64, 64, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    picture.setPixelColor(10, 50, Qt::yellow);
    QBuffer file;
    ASSERT_TRUE(picture.save(&file, "PNG"));
    bundle().writeFile(QStringLiteral("Contents/Resources/Lumaroo.icns"), file.data());
    showConflict();
    leaveAnd([&picture](QWidget *window) {
        const auto *icon = window->findChild<QLabel *>(QStringLiteral("icon"));
        EXPECT_TRUE(icon && icon->pixmap().toImage().convertToFormat(picture.format()) == picture);
        pressKey(KEY_ESC);
    });
}

TEST_F(PaneConflictAlert, itIsGermanForAGermanUser)
{
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    showConflict();
    const NSPreferencePaneUnselectReply reply = leaveAnd([](QWidget *window) {
        EXPECT_TRUE(textsOf(window).contains(QStringLiteral("Trotz mehrfach belegter Tasten beenden?")));
        EXPECT_TRUE(textsOf(window).contains(
            QStringLiteral("Die markierten Tasten sind mit mehreren Aktionen belegt. Wenn Sie jetzt beenden, kann sich "
                           "Lumaroo unvorhersehbar verhalten.")));
        pressKey(KEY_SPACE);
    });
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(reply, NSUnselectCancel) << "the focus starts on Cancel";
    EXPECT_EQ(shownPage(), 1);
}

TEST_F(PaneConflictAlert, withoutItsIconItIsShownAllTheSame)
{
    QFile::remove(bundle().resourcePath() + QStringLiteral("/Lumaroo.icns"));
    showConflict();
    EXPECT_EQ(leaveAndPress(KEY_Q), NSUnselectNow);
}
