// Windows of one size under each other, and a user who walks through them with the keyboard.

#include "ScreenPicture.h"
#include "SelectionSession.h"
#include "Wait.h"

#include <csignal>
#include <linux/input-event-codes.h>

namespace {

// Clear of the frame, the title, the icon in the middle and the digits.
const QRect stack(500, 450, 260, 260);
const QRect seen(520, 660, 220, 30);

class CoveredSelectionByUser : public SelectionSession
{
protected:
    /// Three on one place, red, green and blue; the last one is on top.
    void openStack()
    {
        open();
        for (const auto &[title, color] : {std::pair{"red", 0xff0000}, {"green", 0x00ff00}, {"blue", 0x0000ff}}) {
            stack_.push_back(std::make_unique<WindowOfAnotherProgram>(QString::fromLatin1(title), stack));
            stack_.back()->setUndecorated().setColor(quint32(color));
            ASSERT_TRUE(stack_.back()->show());
            ASSERT_TRUE(stack_.back()->takesFocus());
        }
        ASSERT_TRUE(shows("blue"));
    }
    /// The colour that is seen most, since a compositor lays the tint over it.
    static QString color()
    {
        const QImage screen = screenPicture();
        std::array<qint64, 3> sums{};
        for (int y = seen.top(); y <= seen.bottom(); ++y) {
            for (int x = seen.left(); x <= seen.right(); ++x) {
                const QRgb pixel = screen.pixel(x, y);
                sums[0] += qRed(pixel);
                sums[1] += qGreen(pixel);
                sums[2] += qBlue(pixel);
            }
        }
        return QStringList{"red", "green", "blue"}.at(std::max_element(sums.begin(), sums.end()) - sums.begin());
    }
    static bool shows(const QString &title)
    {
        return waitUntil([&] { return color() == title; });
    }

    std::vector<std::unique_ptr<WindowOfAnotherProgram>> stack_;
};

} // namespace

TEST_F(CoveredSelectionByUser, seesEachWindowOfAStack)
{
    openStack();
    holdModifiers();
    for (const char *title : {"green", "red"}) {
        pressKey(KEY_SLASH);
        EXPECT_TRUE(shows(title)) << title;
        EXPECT_EQ(activeWindowTitle(), u"blue") << "nothing changes before it is decided";
    }
    pressKey(KEY_ESC);
    EXPECT_TRUE(waitUntil([] { return marksOnScreen() == 0; }));
    EXPECT_TRUE(shows("blue"));
    releaseModifiers();
}

TEST_F(CoveredSelectionByUser, turnsToTheOneThatIsSeen)
{
    openStack();
    holdModifiers();
    pressKey(KEY_SLASH);
    EXPECT_TRUE(shows("green"));
    pressKey(KEY_SLASH);
    EXPECT_TRUE(shows("red"));
    releaseModifiers();
    EXPECT_TRUE(isActive("red"));
    EXPECT_TRUE(waitUntil([] { return marksOnScreen() == 0; }));
    EXPECT_TRUE(shows("red"));
}

TEST_F(CoveredSelectionByUser, hasItEnlargedInstead)
{
    openStack();
    holdModifiers();
    pressKey(KEY_SLASH);
    ASSERT_TRUE(shows("green"));
    ASSERT_EQ(marks().count(stack), 2) << "the frame and the picture";
    pressKey(KEY_SPACE);
    ASSERT_TRUE(agent.waitForLine("preview shown"));
    EXPECT_TRUE(waitUntil([] { return marks().count(stack) == 1; }));
    pressKey(KEY_SPACE);
    ASSERT_TRUE(agent.waitForLine("preview ended"));
    EXPECT_TRUE(waitUntil([] { return marks().count(stack) == 2; }));
    releaseModifiers();
    EXPECT_TRUE(waitUntil([] { return marksOnScreen() == 0; }));
}

TEST_F(CoveredSelectionByUser, isNotLeftWithThePictureOfAKilledAgent)
{
    openStack();
    holdModifiers();
    pressKey(KEY_SLASH);
    ASSERT_TRUE(shows("green"));
    agent.signal(SIGSTOP);
    agent.signal(SIGKILL);
    EXPECT_TRUE(shows("blue"));
    releaseModifiers();
}
