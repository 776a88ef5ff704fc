#include "platform/appkit/alerts/NSAlert.h"
#include "HelpBundle.h"
#include "KeyPress.h"
#include "OpenHelp.h"
#include "TestBundle.h"
#include "Wait.h"
#include "platform/foundation/bundles/NSBundle.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <gtest/gtest.h>

namespace {

constexpr int keyEscape = 1;
constexpr int keyTab = 15;
constexpr int keyQ = 16;
constexpr int keyReturn = 28;
constexpr int keyLeftShift = 42;
constexpr int keySpace = 57;

QDialog *window()
{
    return qobject_cast<QDialog *>(QApplication::activeModalWidget());
}

QString focusedButton()
{
    const QWidget *focused = QApplication::focusWidget();
    return focused ? focused->accessibleName() : QString();
}

} // namespace

class AnAlert : public testing::Test
{
protected:
    AnAlert()
    {
        alert.setMessageText("Quit while key conflicts exist?");
        alert.setInformativeText("The marked keys have multiple actions.");
        alert.addButtonWithTitle("Quit");
        alert.addButtonWithTitle("Cancel");
        alert.setKeyEquivalent(0, "q");
    }

    /// Runs the alert; `meanwhile` is called once its window has the keyboard.
    static int run(NSAlert &alert, const std::function<void()> &meanwhile)
    {
        QTimer::singleShot(0, [&meanwhile] {
            EXPECT_TRUE(waitUntil([] { return window() && hasKeyboard(window()) && QApplication::focusWidget(); }));
            meanwhile();
        });
        return alert.runModal();
    }
    int run(const std::function<void()> &meanwhile) { return run(alert, meanwhile); }

    NSAlert alert;
};

TEST_F(AnAlert, bearsTheTitleOfTheWindowItAsksFor)
{
    QWidget asking;
    asking.setWindowTitle("Some settings");
    asking.show();
    ASSERT_TRUE(waitUntil([&] { return hasKeyboard(&asking); }));
    run([] {
        EXPECT_EQ(window()->windowTitle(), "Some settings");
        pressKey(keyEscape);
    });
}

TEST_F(AnAlert, startsOnCancelAndReturnPressesIt)
{
    EXPECT_EQ(run([] {
        EXPECT_EQ(focusedButton(), "Cancel");
        pressKey(keyReturn);
    }),
        NSAlertSecondButtonReturn);
}

TEST_F(AnAlert, isCancelledByEscape)
{
    EXPECT_EQ(run([] { pressKey(keyEscape); }), NSAlertSecondButtonReturn);
}

TEST_F(AnAlert, isCancelledByClosingItsWindow)
{
    EXPECT_EQ(run([] { window()->close(); }), NSAlertSecondButtonReturn);
}

TEST_F(AnAlert, takesThePlainKeyOfAButton)
{
    EXPECT_EQ(run([] { pressKey(keyQ); }), NSAlertFirstButtonReturn);
}

TEST_F(AnAlert, isWalkedThroughWithTabAndReturnPressesTheButtonReached)
{
    EXPECT_EQ(run([] {
        pressKey(keyTab, {keyLeftShift});
        EXPECT_TRUE(waitUntil([] { return focusedButton() == "Quit"; }));
        pressKey(keyReturn);
    }),
        NSAlertFirstButtonReturn);
}

TEST_F(AnAlert, spacePressesTheButtonReached)
{
    EXPECT_EQ(run([] { pressKey(keySpace); }), NSAlertSecondButtonReturn);
}

TEST_F(AnAlert, aClickPressesAButton)
{
    EXPECT_EQ(run([] {
        QPushButton *quit = window()->findChildren<QPushButton *>().constFirst();
        clickAt(quit->mapToGlobal(quit->rect().center()));
    }),
        NSAlertFirstButtonReturn);
}

TEST_F(AnAlert, showsItsTextsAndItsButtonsFromRightToLeft)
{
    run([] {
        const auto buttons = window()->findChildren<QPushButton *>();
        EXPECT_EQ(buttons.size(), 2);
        EXPECT_EQ(buttons[0]->text().remove('&'), "Quit");
        EXPECT_GT(buttons[0]->x(), buttons[1]->x());
        EXPECT_EQ(window()->findChild<QLabel *>("message")->text(), "Quit while key conflicts exist?");
        EXPECT_TRUE(window()->findChild<QLabel *>("message")->font().bold());
        EXPECT_EQ(window()->findChild<QLabel *>("information")->text(), "The marked keys have multiple actions.");
        EXPECT_EQ(window()->findChild<QLabel *>("icon"), nullptr);
        EXPECT_EQ(window()->windowModality(), Qt::ApplicationModal);
        EXPECT_EQ(window()->accessibleName(), "Quit while key conflicts exist?");
        EXPECT_EQ(QAccessible::queryAccessibleInterface(buttons[0])->text(QAccessible::Name), "Quit");
        pressKey(keyEscape);
    });
}

TEST_F(AnAlert, showsItsIconAndDoesWithoutOneThatIsMissingOrNoImage)
{
    TestBundle bundle("Test.prefPane");
    QImage image(128, 128, QImage::Format_ARGB32);
    image.fill(Qt::blue);
    const QString path = bundle.resourcePath() + "/Icon.icns";
    ASSERT_TRUE(image.save(path, "icns"));
    alert.setIconFile(path);
    run([] {
        const auto *icon = window()->findChild<QLabel *>("icon");
        EXPECT_EQ(icon ? icon->pixmap().toImage().pixelColor(32, 32) : QColor(), QColor(Qt::blue));
        pressKey(keyEscape);
    });
    bundle.writeFile("Contents/Resources/Icon.icns", "no image");
    for (const QString &useless : {path, bundle.resourcePath() + "/Missing.icns"}) {
        alert.setIconFile(useless);
        run([] {
            EXPECT_EQ(window()->findChild<QLabel *>("icon"), nullptr);
            pressKey(keyEscape);
        });
    }
}

TEST_F(AnAlert, opensHelpFromItsHelpButtonAndStays)
{
    const HelpBundle bundle;
    ASSERT_EQ(bundle.registerBook(), 0);
    alert.setShowsHelp(true);
    alert.setHelpAnchor("landing", NSBundle::bundleWithPath(bundle.path()));
    EXPECT_EQ(run([&] {
        EXPECT_EQ(window()->findChild<QToolButton *>("help")->accessibleName(), "Help");
        pressKey(keyTab);
        EXPECT_TRUE(waitUntil([] { return focusedButton() == "Help"; }));
        pressKey(keySpace);
        EXPECT_TRUE(helpShows("gliding.html#landing"));
        EXPECT_TRUE(window()->isVisible());
        pressKey(keyEscape);
        EXPECT_TRUE(waitUntil([] { return !openHelp() && hasKeyboard(window()); }));
        pressKey(keyEscape);
    }),
        NSAlertSecondButtonReturn);
}

TEST_F(AnAlert, withoutHelpHasNoHelpButton)
{
    run([] {
        EXPECT_EQ(window()->findChild<QToolButton *>("help"), nullptr);
        pressKey(keyEscape);
    });
}

TEST_F(AnAlert, knowsTheCancelButtonInTheUsersLanguage)
{
    TestBundle bundle("Test.prefPane");
    QLocale::setDefault(QLocale("de_DE"));
    bundle.writeStringTable("de", "Localizable", {{"Cancel", "Abbrechen"}});
    NSAlert german;
    german.addButtonWithTitle("Beenden");
    german.addButtonWithTitle("Abbrechen");
    german.setHelpAnchor("closeDialog", NSBundle::bundleWithPath(bundle.path()));
    EXPECT_EQ(run(german, [] { pressKey(keyEscape); }), NSAlertSecondButtonReturn);
    QLocale::setDefault(QLocale::c());
}

TEST_F(AnAlert, ofASingleButtonIsEndedByEscape)
{
    NSAlert single;
    single.addButtonWithTitle("Understood");
    EXPECT_EQ(run(single, [] { pressKey(keyEscape); }), NSAlertFirstButtonReturn);
}

TEST_F(AnAlert, withoutButtonsGetsOne)
{
    NSAlert bare;
    EXPECT_EQ(run(bare,
                  [] {
                      EXPECT_EQ(focusedButton(), "OK");
                      pressKey(keyReturn);
                  }),
        NSAlertFirstButtonReturn);
}

TEST_F(AnAlert, withoutACancelButtonStaysOnEscape)
{
    NSAlert choice;
    choice.addButtonWithTitle("Left");
    choice.addButtonWithTitle("Right");
    EXPECT_EQ(run(choice,
                  [] {
                      EXPECT_EQ(focusedButton(), "Left");
                      pressKey(keyEscape);
                      pressKey(keyTab);
                      EXPECT_TRUE(waitUntil([] { return focusedButton() == "Right"; }));
                      EXPECT_TRUE(window()->isVisible());
                      pressKey(keyReturn);
                  }),
        NSAlertSecondButtonReturn);
}

TEST_F(AnAlert, takesTheSafeAnswerWhenTheWindowItBelongsToGoes)
{
    auto *owner = new QWidget;
    owner->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(owner));
    EXPECT_EQ(run([owner] { delete owner; }), NSAlertSecondButtonReturn);
}
