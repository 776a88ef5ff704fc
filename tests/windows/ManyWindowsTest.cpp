// A desktop with very many windows, on each window manager.

#include "WindowsOnDesktop.h"

#include <algorithm>
#include <vector>

namespace {

using ManyWindows = WindowsOnDesktop;

constexpr int count = 1000;

/// Small and apart, so that managers and server have little to draw.
QRect placeOf(int number)
{
    return {number % 40 * 30, number / 40 * 30, 20, 20};
}

} // namespace

TEST_F(ManyWindows, areAllReadInTheirOrder)
{
    std::vector<std::unique_ptr<WindowOfAnotherProgram>> windows;
    windows.push_back(std::make_unique<WindowOfAnotherProgram>("0", placeOf(0)));
    for (int number = 1; number < count; ++number) {
        windows.push_back(
            std::make_unique<WindowOfAnotherProgram>(*windows.front(), QString::number(number), placeOf(number)));
    }
    for (const auto &window : windows) {
        window->setUndecorated();
        window->map();
    }
    ASSERT_TRUE(waitUntil([] { return listedWindows().size() == count && stackedWindows().size() == count; }, 200000));
    const WindowWorld now = world();
    ASSERT_EQ(now.windows.size(), count);
    for (int place = 0; place < count; ++place) {
        EXPECT_EQ(now.windows.at(place).windowOrder, place);
        EXPECT_TRUE(now.windows.at(place).isCandidate());
    }
    for (int number = 0; number < count; ++number)
        EXPECT_EQ(now.window(windows[size_t(number)]->id())->windowName, QString::number(number));
    QList<quint32> topmostFirst = stackedWindows();
    std::reverse(topmostFirst.begin(), topmostFirst.end());
    QList<quint32> read;
    for (const WindowDescription &window : now.windows)
        read += window.windowID;
    EXPECT_EQ(read, topmostFirst);
}
