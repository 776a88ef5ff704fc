// The on/off switch.

#include "platform/appkit/controls/NSSwitch.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class ASwitch : public testing::Test
{
protected:
    ASwitch()
    {
        onOff.resize(onOff.sizeHint());
        onOff.setPalette(colors());
    }

    static QPalette colors()
    {
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::white);
        palette.setColor(QPalette::WindowText, Qt::black);
        palette.setColor(QPalette::Highlight, Qt::blue);
        palette.setColor(QPalette::HighlightedText, Qt::yellow);
        return palette;
    }
    QColor colorAt(int part) { return onOff.grab().toImage().pixelColor(onOff.width() * part / 4, onOff.height() / 2); }

    NSSwitch onOff;
};

TEST_F(ASwitch, hasItsKnobAtTheEndWhenOn)
{
    onOff.setChecked(true);
    EXPECT_EQ(colorAt(1), QColor(Qt::blue));
    EXPECT_EQ(colorAt(3), QColor(Qt::yellow));
}

TEST_F(ASwitch, hasItsKnobAtTheStartWhenOff)
{
    EXPECT_EQ(colorAt(1), QColor(Qt::white));
    EXPECT_NE(colorAt(3), QColor(Qt::blue));
}

TEST_F(ASwitch, isMirroredWithItsWindow)
{
    onOff.setLayoutDirection(Qt::RightToLeft);
    onOff.setChecked(true);
    EXPECT_EQ(colorAt(1), QColor(Qt::yellow));
    EXPECT_EQ(colorAt(3), QColor(Qt::blue));
}

TEST_F(ASwitch, hasItsKnobInTheMiddleWhenMixed)
{
    onOff.setTristate(true);
    onOff.setCheckState(Qt::PartiallyChecked);
    EXPECT_EQ(colorAt(1), colorAt(3));
    EXPECT_EQ(colorAt(2), QColor(Qt::white));
}

TEST_F(ASwitch, isSwitchedByAClickAnywhereAndByTheSpaceBar)
{
    const QSignalSpy clicked(&onOff, &QAbstractButton::clicked);
    QTest::mouseClick(&onOff, Qt::LeftButton, {}, {onOff.width() - 2, 2});
    EXPECT_TRUE(onOff.isChecked());
    QTest::keyClick(&onOff, Qt::Key_Space);
    EXPECT_FALSE(onOff.isChecked());
    EXPECT_EQ(clicked.count(), 2);
}

TEST_F(ASwitch, isACheckBoxToAScreenReader)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&onOff);
    EXPECT_EQ(interface->role(), QAccessible::CheckBox);
    onOff.setChecked(true);
    EXPECT_TRUE(interface->state().checked);
}

} // namespace
