// A check box as a row: text, and a switch at its end.

#include "platform/appkit/controls/SwitchRow.h"

#include <QAccessible>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class ASwitchRow : public testing::Test
{
protected:
    ASwitchRow()
    {
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::white);
        palette.setColor(QPalette::WindowText, Qt::black);
        palette.setColor(QPalette::Highlight, Qt::blue);
        row.setPalette(palette);
        row.setText("&Start at login");
        row.resize(400, 30);
        row.setChecked(true);
    }
    /// Whether the colour stands in the row between two places.
    bool has(const QColor &color, int from, int to)
    {
        const QImage picture = row.grab().toImage();
        for (int x = from; x < to; ++x) {
            for (int y = 0; y < picture.height(); ++y) {
                if (picture.pixelColor(x, y) == color)
                    return true;
            }
        }
        return false;
    }

    SwitchRow row;
};

} // namespace

TEST_F(ASwitchRow, hasItsTextAtTheStartAndItsSwitchAtTheEnd)
{
    EXPECT_TRUE(has(Qt::black, 0, 60));
    EXPECT_FALSE(has(Qt::blue, 0, 340));
    EXPECT_TRUE(has(Qt::blue, 350, 400));
}

TEST_F(ASwitchRow, isMirroredWithItsWindow)
{
    row.setLayoutDirection(Qt::RightToLeft);
    EXPECT_TRUE(has(Qt::blue, 0, 50));
    EXPECT_TRUE(has(Qt::black, 340, 400));
    EXPECT_FALSE(has(Qt::blue, 60, 400));
}

TEST_F(ASwitchRow, isHigherWhereItsTextTakesSeveralLines)
{
    row.setText("Wrap around at the left and right edges of the screen");
    EXPECT_EQ(row.heightForWidth(800), row.sizeHint().height());
    EXPECT_GE(row.heightForWidth(row.minimumSizeHint().width()), 3 * row.fontMetrics().height());
}

TEST_F(ASwitchRow, isSwitchedByAClickOnItsText)
{
    QTest::mouseClick(&row, Qt::LeftButton, {}, {5, 15});
    EXPECT_FALSE(row.isChecked());
}

TEST_F(ASwitchRow, isACheckBoxWithItsTextToAScreenReader)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&row);
    EXPECT_EQ(interface->role(), QAccessible::CheckBox);
    EXPECT_EQ(interface->text(QAccessible::Name), "Start at login");
}
