// A pane's view fills the window, and scrolls where it needs more room than there is.

#include "Wait.h"
#include "host/HostWindow.h"
#include "host/PanePage.h"

#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>
#include <gmock/gmock.h>

namespace {

class APanePage : public testing::Test
{
protected:
    APanePage() : view(new QWidget), text(new QLabel(QString("wrapped text ").repeated(200)))
    {
        text->setWordWrap(true);
        auto *layout = new QVBoxLayout(view);
        layout->addWidget(text);
        layout->addWidget(new QLabel("last line"));
    }
    void show(QSize size)
    {
        page.resize(size);
        page.takeView(view);
        page.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&page));
        runPendingEvents();
    }
    bool scrollsDown() const { return page.verticalScrollBar()->maximum() > 0; }
    bool scrollsAside() const { return page.horizontalScrollBar()->maximum() > 0; }

    QWidget *view;
    QLabel *text;
    PanePage page;
};

} // namespace

TEST_F(APanePage, givesTheViewAllTheRoom)
{
    show(QSize(900, 700));
    EXPECT_EQ(view->size(), page.viewport()->size());
    EXPECT_FALSE(scrollsDown());
    page.resize(1000, 800);
    EXPECT_TRUE(waitUntil([&] { return view->size() == page.viewport()->size(); }));
}

TEST_F(APanePage, scrollsDownOnlyWhereTheTextIsTooLong)
{
    show(QSize(300, 200));
    EXPECT_TRUE(scrollsDown());
    EXPECT_FALSE(scrollsAside());
    EXPECT_GE(text->height(), text->heightForWidth(text->width()));
    page.resize(1000, 800);
    EXPECT_TRUE(waitUntil([&] { return !scrollsDown(); }));
}

TEST_F(APanePage, growsWithWhatTheViewComesToHold)
{
    text->setText("short");
    show(QSize(300, 200));
    EXPECT_FALSE(scrollsDown());
    text->setText(QString("wrapped text ").repeated(200));
    EXPECT_TRUE(waitUntil([&] { return scrollsDown(); }));
    EXPECT_GE(text->height(), text->heightForWidth(text->width()));
}

TEST_F(APanePage, scrollsAsideWhereTheViewIsTooWide)
{
    view->setMinimumWidth(600);
    show(QSize(300, 700));
    EXPECT_TRUE(scrollsAside());
}

TEST(AHostWindow, letsGoOfAViewThatItsPaneTookAway)
{
    HostWindow window({});
    QWidget view;
    window.showView(&view, [] {});
    view.setParent(nullptr);
    window.hideView(&view);
    EXPECT_EQ(view.parentWidget(), nullptr);
    window.showView(&view, [] {});
    EXPECT_TRUE(window.isAncestorOf(&view));
    view.setParent(nullptr);
}
