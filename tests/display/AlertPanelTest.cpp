// An alert that is one call, and says which of its three buttons ended it.

#include "OpenAlert.h"
#include "Wait.h"

#include "platform/appkit/alerts/NSAlert.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

class AlertPanel : public testing::Test
{
protected:
    /// Runs one, looks at it and clicks on a button.
    int run(const QStringList &titles, const QString &click, QWidget *window = nullptr)
    {
        const AtAlert look([&] {
            QTimer::singleShot(0, qApp, [&] {
                ASSERT_TRUE(alertComesUp());
                texts = textsOfAlert();
                parent = openAlert()->parentWidget();
                buttons.clear();
                QPushButton *clicked = nullptr;
                for (QPushButton *button : openAlert()->findChildren<QPushButton *>()) {
                    buttons += button->text();
                    clicked = button->text() == click ? button : clicked;
                }
                buttons.sort();
                clicked ? clicked->click() : openAlert()->reject();
            });
        });
        return NSRunAlertPanel("What happened", "And why", titles.value(0), titles.value(1), titles.value(2), window);
    }

    QStringList texts;
    QStringList buttons;
    QWidget *parent = nullptr;
};

} // namespace

TEST_F(AlertPanel, tellsWhichButtonEndedIt)
{
    const QStringList titles{"Default", "Alternate", "Other"};
    EXPECT_EQ(run(titles, "Default"), NSAlertDefaultReturn);
    EXPECT_EQ(texts, QStringList({"What happened", "And why"}));
    EXPECT_EQ(buttons, QStringList({"Alternate", "Default", "Other"}));
    EXPECT_EQ(run(titles, "Alternate"), NSAlertAlternateReturn);
    EXPECT_EQ(run(titles, "Other"), NSAlertOtherReturn);
}

TEST_F(AlertPanel, hasNoButtonWithoutATitle)
{
    EXPECT_EQ(run({"Alone", "", ""}, "Alone"), NSAlertDefaultReturn);
    EXPECT_EQ(buttons, QStringList("Alone"));
    EXPECT_EQ(run({"", "", "Other"}, "Other"), NSAlertOtherReturn);
    EXPECT_EQ(buttons, QStringList("Other"));
}

TEST_F(AlertPanel, withoutAnyTitleHasOneToReadIt)
{
    EXPECT_EQ(run({}, "OK"), NSAlertDefaultReturn);
    EXPECT_EQ(buttons, QStringList("OK"));
}

TEST_F(AlertPanel, standsInFrontOfTheWindowThatItIsGiven)
{
    QLabel one("one");
    QLabel other("other");
    one.show();
    other.show();
    other.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return other.isActiveWindow(); }));
    run({"OK"}, "OK", &one);
    EXPECT_EQ(parent, &one);
    run({"OK"}, "OK");
    EXPECT_NE(parent, &one);
}
