// What the sliders of the key repeat come to: in words, and in the field to try it in.

#include "PaneOnRealStore.h"
#include "Wait.h"

#include "KTXConstants.h"
#include "platform/appkit/controls/KeyRepeatField.h"

#include <QAccessible>
#include <QTest>

namespace {

constexpr int behaviourPage = 2;

class PaneRepeatTrial : public PaneOnRealStore
{
protected:
    PaneRepeatTrial() { store().set(KTXFirstLaunch, QVariant(true)); }

    void showPage()
    {
        showPane();
        selectTabViewItemAtIndex(control("tabbedView"), behaviourPage);
        runPendingEvents();
    }
    KeyRepeatField *field() { return control<KeyRepeatField>("keyRepeatField"); }
};

} // namespace

TEST_F(PaneRepeatTrial, theSlidersTellWhatTheAgentMakesOfThem)
{
    showPage();
    EXPECT_EQ(text("delayValueField"), "0.25 s") << "the least";
    EXPECT_EQ(text("rateValueField"), "8.3 per second");
    setFloatValue(control("repeatDelaySlider"), 0.4f);
    setFloatValue(control("repeatRateSlider"), 0);
    EXPECT_EQ(text("delayValueField"), "0.4 s");
    EXPECT_EQ(text("rateValueField"), "1 per second");
}

TEST_F(PaneRepeatTrial, theyFollowTheUsersKeysToo)
{
    showPage();
    control("repeatRateSlider")->setFocus();
    QTest::keyClick(control("repeatRateSlider"), Qt::Key_Home);
    EXPECT_EQ(text("rateValueField"), "1 per second");
}

TEST_F(PaneRepeatTrial, aScreenReaderHearsThemAtTheSliders)
{
    showPage();
    const QAccessibleInterface *slider = QAccessible::queryAccessibleInterface(control("repeatRateSlider"));
    EXPECT_EQ(slider->text(QAccessible::Description), "8.3 per second");
}

TEST_F(PaneRepeatTrial, theFieldRepeatsOnlyWhileKeysDo)
{
    showPage();
    QTest::keyPress(field(), Qt::Key_Right);
    EXPECT_TRUE(field()->isRepeating());
    QTest::keyRelease(field(), Qt::Key_Right);
    QTest::mouseClick(control("keyRepeatButton"), Qt::LeftButton);
    QTest::keyPress(field(), Qt::Key_Right);
    EXPECT_FALSE(field()->isRepeating());
    QTest::keyRelease(field(), Qt::Key_Right);
    EXPECT_EQ(field()->place(), 2);
}

TEST_F(PaneRepeatTrial, tryingStoresAndAnnouncesNothing)
{
    showPage();
    const QVariantMap before = store().domain();
    bus().clear();
    QTest::keyClick(field(), Qt::Key_Right);
    EXPECT_EQ(store().domain(), before);
    EXPECT_EQ(bus().names(), QStringList());
}
