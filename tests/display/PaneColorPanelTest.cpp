#include "PaneOnRealStore.h"
#include "Wait.h"

#include "platform/appkit/colors/NSColorPanel.h"

#include <QColorDialog>

namespace {

class PaneColorPanel : public PaneOnRealStore
{
protected:
    ~PaneColorPanel() override { panel()->window()->hide(); }
    static NSColorPanel *panel() { return NSColorPanel::sharedColorPanel(); }
    /// Where the panel belongs: 10 beside the window, in the middle of its height, y upward.
    QPointF place()
    {
        const QRectF window = windowFrame(pane().mainView()->window());
        return {window.x() + window.width() + 10, window.y() + (window.height() - panel()->frame().height()) / 2};
    }
    bool panelIsInPlace()
    {
        const QPointF distance = panel()->frame().topLeft() - place();
        return std::abs(distance.x()) <= 1 && std::abs(distance.y()) <= 1;
    }
};

} // namespace

TEST_F(PaneColorPanel, whenHiddenItIsPutBesideTheWindow)
{
    const QSize size = panel()->window()->size();
    showWindow();
    pane().didSelect();
    EXPECT_TRUE(waitUntil([this] { return panelIsInPlace(); }));
    EXPECT_EQ(panel()->window()->size(), size);
    EXPECT_FALSE(panel()->window()->isVisible());
}

TEST_F(PaneColorPanel, whenShownItIsPutBesideTheWindow)
{
    panel()->window()->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(panel()->window()));
    panel()->setFrameOrigin({1, 1});
    showWindow();
    const QSize size = panel()->window()->size();
    pane().didSelect();
    EXPECT_TRUE(waitUntil([this] { return panelIsInPlace(); }));
    EXPECT_EQ(panel()->window()->size(), size);
}

TEST_F(PaneColorPanel, itFollowsTheWindowAtEachShowing)
{
    showWindow();
    pane().didSelect();
    pane().mainView()->move(pane().mainView()->pos() + QPoint(15, 20));
    runPendingEvents();
    pane().didSelect();
    EXPECT_TRUE(waitUntil([this] { return panelIsInPlace(); }));
}
