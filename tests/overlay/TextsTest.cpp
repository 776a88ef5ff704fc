// Strip, icon and digits, as they come onto the screen.

#include "MarkOnGround.h"
#include "WindowWithIcon.h"
#include "agent/overlay/OverlayLayout.h"

#include <QDeadlineTimer>

namespace {

constexpr OverlayInk ink{blue & 0xffffff, 0xffffff, 1};
constexpr quint32 red = 0xffff0000, green = 0xff00c000;
const QRect window(100, 80, 400, 300);

std::vector<quint32> iconData(quint32 side, quint32 color)
{
    std::vector<quint32> data{side, side};
    data.insert(data.end(), size_t(side) * side, color);
    return data;
}

OverlayView viewOf(const WindowWithIcon &owner, const QString &title)
{
    OverlayView view = viewOf(window);
    view.windowID = owner.id();
    view.title = title;
    return view;
}

/// As long as nothing of this process goes on.
void waitWithoutEvents(const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(20000);
    while (!condition() && !deadline.hasExpired()) { }
}

class Texts : public Mark
{
protected:
    /// A picture within what is otherwise expected.
    static std::function<QRgb(QPoint)> with(
        const OverlayPicture &picture, QPoint corner, const std::function<QRgb(QPoint)> &rest)
    {
        return [=](QPoint place) {
            const QPoint inside = place - corner;
            if (!QRect(QPoint(), picture.size).contains(inside))
                return rest(place);
            const QRgb pixel = picture.pixels[size_t(inside.y() * picture.size.width() + inside.x())];
            return pixel >> 24 ? pixel : rest(place);
        };
    }
    std::function<QRgb(QPoint)> withStrip(const OverlayView &view, const OverlayPicture &icon) const
    {
        const StripPlace place = stripPlaceOf(view);
        const OverlayPicture strip = overlayPictures()->strip(ink, icon, view.title, place.longest, place.corners);
        return with(strip, place.rectOf(strip.size, view.monitor.rect).topLeft(), expected(view.windowRect));
    }
    QRgb middle() const { return screenPicture().pixel(window.center()); }

    WindowWithIcon owner_;
};

} // namespace

TEST_P(Texts, ofTheStripAreIconAndTitle)
{
    const OverlayView view = viewOf(owner_, "A title");
    show(view);
    EXPECT_TRUE(showsOnScreen(withStrip(view, {}))) << "no icon: a sign";
    owner_.setIcon(iconData(32, red));
    show(view);
    EXPECT_TRUE(showsOnScreen(withStrip(view, {{32, 32}, std::vector<quint32>(1024, red)})));
}

TEST_P(Texts, comeAfterTheFrame)
{
    show(viewOf(owner_, "A title"));
    waitWithoutEvents([] { return screenPicture().pixel(103, 200) == blue; });
    const QPoint onStrip(window.center().x(), 100);
    EXPECT_EQ(screenPicture().pixel(onStrip), expected(window)(onStrip));
}

TEST_P(Texts, thatWouldBeWrongGoWithTheFrame)
{
    OverlayView view = viewOf(owner_, "A title");
    show(view);
    ASSERT_TRUE(showsOnScreen(withStrip(view, {})));
    view.windowRect.translate(30, 100);
    show(view);
    waitWithoutEvents([] { return screenPicture().pixel(133, 300) == blue; });
    EXPECT_EQ(screenPicture().pixel(window.center().x(), 100), GetParam());
}

TEST_P(Texts, aboutAnotherWindowGoWithTheFrame)
{
    OverlayView view = viewOf(owner_, "A title");
    show(view);
    ASSERT_TRUE(showsOnScreen(withStrip(view, {})));
    view.windowRect.translate(30, 100);
    show(view);
    EXPECT_TRUE(showsOnScreen(withStrip(view, {})));
    show(viewOf(view.windowRect));
    EXPECT_TRUE(showsOnScreen(expected(view.windowRect))) << "nothing to tell";
}

TEST_P(Texts, ofACoveredWindowHaveItsIconInTheMiddle)
{
    owner_.setIcon(iconData(128, red));
    OverlayView view = viewOf(owner_, "A title");
    view.isCovered = true;
    show(view);
    EXPECT_TRUE(waitUntil([this] { return middle() == red; }));
    view.isCovered = false;
    show(view);
    EXPECT_TRUE(waitUntil([this] { return middle() == GetParam(); }));
}

TEST_P(Texts, ofAWindowThatShowsNowhereStandInTheMonitorsMiddle)
{
    owner_.setIcon(iconData(128, red));
    show(viewOf(owner_, "A title"));
    OverlayView view = viewOf(owner_, "A title");
    view.windowRect = QRect();
    show(view);
    EXPECT_TRUE(waitUntil([&view] { return screenPicture().pixel(view.monitor.rect.center()) == red; }));
    EXPECT_EQ(screenPicture().pixel(103, 200), GetParam()) << "no frame";
}

TEST_P(Texts, takeTheIconThatIsSharpestThere)
{
    std::vector<quint32> icons = iconData(16, green);
    for (const auto &[side, color] : {std::pair(128u, red), std::pair(256u, green), std::pair(48u, green)}) {
        const std::vector<quint32> icon = iconData(side, color);
        icons.insert(icons.end(), icon.begin(), icon.end());
    }
    owner_.setIcon(icons);
    OverlayView view = viewOf(owner_, {});
    view.isCovered = true;
    show(view);
    EXPECT_TRUE(waitUntil([this] { return middle() == red; }));
}

TEST_P(Texts, ofAnIconThatIsNoneAreASign)
{
    const quint32 huge = 0xffffffff;
    const std::vector<std::vector<quint32>> attacks{{}, {1}, {16, 16}, {16, 16, red}, {0, 0}, {0, 16, red},
        {huge, huge, red}, {0x10000, 0x10000, red}, {0x8000, 0x20000, red}, {huge, 1, red}, {1025, 1, red},
        {1, 0, red}};
    OverlayView view = viewOf(owner_, {});
    view.isCovered = true;
    for (const auto &attack : attacks) {
        owner_.setIcon(iconData(128, red));
        show(view);
        ASSERT_TRUE(waitUntil([this] { return middle() == red; }));
        owner_.setIcon(attack);
        show(view);
        EXPECT_TRUE(waitUntil([this] { return middle() == blue; })) << attack.size();
    }
    owner_.setIconOfOtherKind();
    show(view);
    EXPECT_TRUE(waitUntil([this] { return middle() == blue; }));
}

TEST_P(Texts, ofABadIconBehindGoodOnesLeaveThese)
{
    std::vector<quint32> icons = iconData(64, red);
    icons.insert(icons.end(), {200, 200, green});
    owner_.setIcon(icons);
    OverlayView view = viewOf(owner_, {});
    view.isCovered = true;
    show(view);
    EXPECT_TRUE(waitUntil([this] { return middle() == red; }));
}

TEST_P(Texts, areDigitsOnTheLabelledWindows)
{
    OverlayView view = viewOf(window);
    view.labels = {{1, window}, {4, {300, 200, 300, 200}}, {9, {20, 400, 200, 70}}};
    show(view);
    std::function<QRgb(QPoint)> picture = expected(window);
    const QList<QRect> places = labelPlacesOf(view);
    for (qsizetype label = 0; label < places.size(); ++label)
        picture = with(overlayPictures()->digit(ink, view.labels.at(label).digit, places.at(label).height()),
            places.at(label).topLeft(), picture);
    EXPECT_TRUE(showsOnScreen(picture));
    view.labels.clear();
    show(view);
    EXPECT_TRUE(showsOnScreen(expected(window)));
}

TEST_P(Texts, takeTheColourOfTheNextShowing)
{
    OverlayView view = viewOf(window);
    view.labels = {{1, window}};
    const QPoint onLabel = labelPlacesOf(view).first().topLeft() + QPoint(4, 18);
    show(view);
    EXPECT_TRUE(waitUntil([&] { return screenPicture().pixel(onLabel) == blue; }));
    useColor(yellow);
    show(view);
    EXPECT_TRUE(waitUntil([&] { return screenPicture().pixel(onLabel) == yellow; }));
}

TEST_P(Texts, withNumbersThatAreNoDigitsAreNone)
{
    OverlayView view = viewOf(window);
    view.labels = {{0, window}, {-1, window}, {10, window}};
    show(view);
    runPendingEvents();
    EXPECT_TRUE(showsOnScreen(expected(window)));
}

INSTANTIATE_TEST_SUITE_P(Ground, Texts, testing::Values(lightGround, darkGround));
