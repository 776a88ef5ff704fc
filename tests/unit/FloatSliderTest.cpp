#include "platform/appkit/controls/FloatSlider.h"
#include "platform/appkit/controls/Controls.h"

#include <QAccessible>
#include <QLocale>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>
#include <limits>

class ASlider : public testing::Test
{
protected:
    ASlider()
    {
        slider.setMinimum(0.1);
        slider.setMaximum(2.1);
        slider.setStep(0.1);
        slider.resize(300, 30);
        slider.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&slider));
    }

    QPoint handle() const
    {
        QStyleOptionSlider option;
        option.initFrom(&slider);
        option.orientation = Qt::Horizontal;
        option.maximum = 20;
        option.sliderPosition = option.sliderValue = qRound((slider.value() - 0.1) / 0.1);
        return slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider).center();
    }

    FloatSlider slider;
    QSignalSpy chosen{&slider, &FloatSlider::valueChosen};
};

TEST_F(ASlider, keepsExactlyWhatCodeSetsAndTellsNobody)
{
    setFloatValue(&slider, 0.333f);
    EXPECT_EQ(floatValue(&slider), 0.333f);
    EXPECT_EQ(chosen.size(), 0);
}

TEST_F(ASlider, staysWithinItsBounds)
{
    slider.setValue(7);
    EXPECT_EQ(slider.value(), 2.1);
    slider.setValue(-1);
    EXPECT_EQ(slider.value(), 0.1);
    slider.setValue(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(slider.value(), 0.1);
    slider.setValue(std::numeric_limits<double>::infinity());
    EXPECT_EQ(slider.value(), 2.1);
    EXPECT_EQ(chosen.size(), 0);
}

TEST_F(ASlider, takesItsValueBeforeItsBounds)
{
    FloatSlider early;
    early.setValue(5);
    early.setMaximum(10);
    EXPECT_EQ(early.value(), 5);
}

TEST_F(ASlider, movesByAStepAtEachKeyAndTellsOfEach)
{
    slider.setValue(0.5);
    QTest::keyClick(&slider, Qt::Key_Right);
    EXPECT_DOUBLE_EQ(slider.value(), 0.6);
    QTest::keyClick(&slider, Qt::Key_Left);
    QTest::keyClick(&slider, Qt::Key_Left);
    EXPECT_DOUBLE_EQ(slider.value(), 0.4);
    EXPECT_EQ(chosen.size(), 3);
    QTest::keyClick(&slider, Qt::Key_End);
    EXPECT_EQ(slider.value(), 2.1);
    QTest::keyClick(&slider, Qt::Key_Home);
    EXPECT_EQ(slider.value(), 0.1);
    EXPECT_EQ(chosen.size(), 5);
}

TEST_F(ASlider, movesWithTheWheelAndTells)
{
    slider.setValue(0.5);
    QWheelEvent turn(
        QPointF(10, 10), slider.mapToGlobal(QPointF(10, 10)), {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&slider, &turn);
    EXPECT_GT(slider.value(), 0.5);
    EXPECT_EQ(chosen.size(), 1);
}

TEST_F(ASlider, tellsOfADragOnceAtItsEnd)
{
    slider.setValue(0.1);
    const QPoint start = handle();
    QTest::mousePress(&slider, Qt::LeftButton, {}, start);
    QTest::mouseMove(&slider, start + QPoint(40, 0));
    QTest::mouseMove(&slider, start + QPoint(90, 0));
    EXPECT_GT(slider.value(), 0.3);
    EXPECT_EQ(chosen.size(), 0);
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, start + QPoint(90, 0));
    EXPECT_EQ(chosen.size(), 1);
}

TEST_F(ASlider, pressedAndLetGoWithoutMovingTellsNothing)
{
    slider.setValue(0.333);
    QTest::mouseClick(&slider, Qt::LeftButton, {}, handle());
    EXPECT_EQ(slider.value(), 0.333);
    EXPECT_EQ(chosen.size(), 0);
}

TEST_F(ASlider, reachesItsEndsFromAValueBetweenTheSteps)
{
    const QList<std::pair<double, Qt::Key>> cases{
        {0.13, Qt::Key_Home}, {0.13, Qt::Key_Left}, {2.08, Qt::Key_End}, {2.08, Qt::Key_Right}, {5.0, Qt::Key_End}};
    for (const auto &[value, key] : cases) {
        slider.setValue(value);
        chosen.clear();
        QTest::keyClick(&slider, key);
        EXPECT_EQ(slider.value(), value < 1 ? 0.1 : 2.1) << value;
        EXPECT_EQ(chosen.count(), 1) << value;
        QTest::keyClick(&slider, key);
        EXPECT_EQ(chosen.count(), 1) << "it is there already";
    }
}

TEST_F(ASlider, isNotPulledAwayByCodeDuringADrag)
{
    slider.setValue(0.1);
    const QPoint start = handle();
    QTest::mousePress(&slider, Qt::LeftButton, {}, start);
    QTest::mouseMove(&slider, start + QPoint(150, 0));
    const double dragged = slider.value();
    ASSERT_GT(dragged, 0.5);
    slider.setValue(0.1);
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, start + QPoint(150, 0));
    EXPECT_EQ(slider.value(), dragged);
    EXPECT_EQ(chosen.count(), 1);
}

class ASliderToAScreenReader : public ASlider
{
protected:
    QAccessibleInterface *told() { return QAccessible::queryAccessibleInterface(&slider); }
    QAccessibleValueInterface *value() { return told()->valueInterface(); }
};

TEST_F(ASliderToAScreenReader, isASliderWithItsValueBoundsAndStep)
{
    slider.setAccessibleName(QStringLiteral("Delay"));
    slider.setValue(0.333);
    ASSERT_TRUE(value());
    EXPECT_EQ(told()->role(), QAccessible::Slider);
    EXPECT_EQ(told()->text(QAccessible::Name), QStringLiteral("Delay"));
    EXPECT_EQ(value()->currentValue(), QVariant(0.333));
    EXPECT_EQ(value()->minimumValue(), QVariant(0.1));
    EXPECT_EQ(value()->maximumValue(), QVariant(2.1));
    EXPECT_EQ(value()->minimumStepSize(), QVariant(0.1));
}

TEST_F(ASliderToAScreenReader, saysItsValueInTheUsersNotationWithItsUnit)
{
    slider.setValue(0.3f);
    EXPECT_EQ(told()->text(QAccessible::Value), QStringLiteral("0.3"));
    slider.setStep(0.05);
    slider.setValueFormat(QStringLiteral("%1 seconds"));
    EXPECT_EQ(told()->text(QAccessible::Value), QStringLiteral("0.30 seconds"));
    slider.setStep(1);
    EXPECT_EQ(told()->text(QAccessible::Value), QStringLiteral("0 seconds"));
    slider.setStep(0.25);
    QLocale::setDefault(QLocale(QStringLiteral("de")));
    EXPECT_EQ(told()->text(QAccessible::Value), QStringLiteral("0,30 seconds"));
    QLocale::setDefault(QLocale::c());
}

TEST_F(ASliderToAScreenReader, isSetThroughItAsByItsUser)
{
    value()->setCurrentValue(1.234);
    EXPECT_EQ(slider.value(), 1.234);
    EXPECT_EQ(chosen.count(), 1);
    value()->setCurrentValue(1.234);
    slider.setEnabled(false);
    value()->setCurrentValue(0.5);
    slider.setEnabled(true);
    value()->setCurrentValue(std::numeric_limits<double>::quiet_NaN());
    value()->setCurrentValue(QStringLiteral("a lot"));
    EXPECT_EQ(slider.value(), 1.234);
    EXPECT_EQ(chosen.count(), 1);
    value()->setCurrentValue(99);
    EXPECT_EQ(slider.value(), 2.1);
    EXPECT_EQ(chosen.count(), 2);
    slider.setSliderDown(true);
    value()->setCurrentValue(1);
    slider.setSliderDown(false);
    EXPECT_EQ(slider.value(), 2.1);
    EXPECT_EQ(chosen.count(), 2);
}
