#include "platform/appkit/controls/Controls.h"
#include "platform/appkit/controls/NSProgressIndicator.h"
#include "platform/appkit/controls/NSTextView.h"
#include "platform/appkit/controls/Outlet.h"

#include <QTest>
#include <gtest/gtest.h>

namespace {

QString readBack(const QString &text)
{
    NSTextView view;
    view.setString(text);
    return view.string();
}

} // namespace

TEST(TextView, everyCharacterReadsBackAsItWasSet)
{
    constexpr int inARow = 256;
    for (int row = 0; row <= 0xffff; row += inARow) {
        QString text;
        for (int code = row; code < row + inARow; ++code)
            text += QStringLiteral("a%1b").arg(QChar(code));
        EXPECT_EQ(readBack(text), text) << row;
    }
    EXPECT_EQ(readBack(QStringLiteral("\U0001F600")), QStringLiteral("\U0001F600"));
}

TEST(TextView, everyLineEndReadsBackAsItWasSet)
{
    for (const char *text : {"", "\n", "\r", "\r\n", "\n\r", "\r\r\n\n", "a\r\n\r\nb\rc\nd\r", "\r\n\r\n"})
        EXPECT_EQ(readBack(text), text);
    const QString separators = QStringLiteral("\u2028\u2029\n\u2029\u2028\r\n");
    EXPECT_EQ(readBack(separators), separators);
}

TEST(TextView, aTextReplacesTheOneBefore)
{
    NSTextView view;
    view.setString("a\r\nb\r\nc");
    view.setString("d\ne\nf");
    EXPECT_EQ(view.string(), "d\ne\nf");
}

TEST(TextView, lineEndsStayWhereTheUserChangesOthers)
{
    NSTextView view;
    view.setString("one\r\ntwo\rthree\r\nfour");
    ASSERT_TRUE(view.find("two"));
    QTest::keyClick(&view, Qt::Key_Backspace); // "two"
    QTest::keyClick(&view, Qt::Key_Backspace); // the line end before it
    EXPECT_EQ(view.string(), "one\rthree\r\nfour");
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(view.string(), "one\n\rthree\r\nfour");
    QTest::keyClicks(&view, "x");
    EXPECT_EQ(view.string(), "one\nx\rthree\r\nfour");
}

TEST(TextView, controlsWithoutTextHaveNone)
{
    QWidget other;
    setString(&other, "text");
    EXPECT_EQ(string(&other), QString());
    EXPECT_EQ(string(nullptr), QString());
    setString(nullptr, "text");
}

TEST(ProgressIndicator, isHiddenWithItsPlaceKeptUntilItIsStarted)
{
    QWidget window;
    auto *indicator = new NSProgressIndicator(&window);
    window.show();
    EXPECT_FALSE(indicator->isVisible());
    EXPECT_TRUE(indicator->sizePolicy().retainSizeWhenHidden());
    startAnimation(indicator);
    EXPECT_TRUE(indicator->isVisible());
    EXPECT_EQ(indicator->minimum(), indicator->maximum());
    startAnimation(nullptr);
}
