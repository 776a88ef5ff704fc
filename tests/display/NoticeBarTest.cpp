// The bar between the window's header and its page: what it tells, to the eye and to an assistive tool.

#include "host/NoticeBar.h"
#include "Wait.h"
#include "host/HostWindow.h"
#include "platform/appkit/controls/StyledLabel.h"

#include <QAccessible>
#include <QApplication>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace {

const Notice warning{Notice::Kind::Warning, QStringLiteral("Not saved"), QStringLiteral("The disk is full."),
    QStringLiteral("Try again"), {}};
const Notice information{Notice::Kind::Information, QStringLiteral("Damaged"), QStringLiteral("It is kept."),
    QStringLiteral("Show"), QStringLiteral("Dismiss")};

constexpr auto accessibilityBus = "/usr/libexec/at-spi-bus-launcher"; // of the package at-spi2-core

/// As soon as there is a bus for screen readers, the toolkit talks to whoever may be there.
const bool talksToAnyReader = qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");

int alertsHeard = 0;

void hear(QAccessibleEvent *event)
{
    const bool isOfBar = event->object() && event->object()->objectName() == QLatin1StringView("noticeBar");
    alertsHeard += isOfBar && event->type() == QAccessible::Alert;
}

class ANoticeBar : public testing::Test
{
protected:
    ANoticeBar()
    {
        launcher_.start(accessibilityBus, {"--launch-immediately"});
        EXPECT_TRUE(talksToAnyReader && waitUntil([] { return QAccessible::isActive(); }));
        QAccessible::installUpdateHandler(&hear);
        alertsHeard = 0;
        window.show();
        EXPECT_TRUE(waitUntil([this] { return window.isActiveWindow(); }));
    }
    ~ANoticeBar() override
    {
        QAccessible::installUpdateHandler(nullptr);
        QApplication::setPalette(palette);
        launcher_.terminate();
        launcher_.waitForFinished();
    }

    QAccessibleInterface *told() { return QAccessible::queryAccessibleInterface(bar); }
    template <typename Part = QPushButton>
    Part *part(const char *name)
    {
        return bar->findChild<Part *>(QLatin1StringView(name));
    }
    QColor groundAt(QPoint place) { return bar->grab().toImage().pixelColor(place); }

    const QPalette palette = QApplication::palette();
    HostWindow window{QSize(820, 640)};
    NoticeBar *bar = window.noticeBar();

private:
    QProcess launcher_;
};

} // namespace

TEST_F(ANoticeBar, isNotThereWithoutANotice)
{
    EXPECT_FALSE(bar->isVisible());
    bar->tell(warning);
    EXPECT_TRUE(bar->isVisible());
    bar->tell(std::nullopt);
    EXPECT_FALSE(bar->isVisible());
    EXPECT_EQ(part<QLabel>("noticeHeading")->text(), QString()) << "a tool reads what is hidden as well";
    EXPECT_EQ(told()->text(QAccessible::Name), QString());
}

TEST_F(ANoticeBar, isAnAlertThatIsAnnouncedOnce)
{
    bar->tell(warning);
    bar->tell(warning);
    EXPECT_EQ(alertsHeard, 1);
    EXPECT_EQ(told()->role(), QAccessible::AlertMessage);
    EXPECT_EQ(told()->text(QAccessible::Name), "Not saved");
    EXPECT_EQ(told()->text(QAccessible::Description), "The disk is full.");
    bar->tell(information);
    EXPECT_EQ(alertsHeard, 2);
}

TEST_F(ANoticeBar, hasTheButtonsOfItsNotice)
{
    QSignalSpy acted(bar, &NoticeBar::acted);
    QSignalSpy dismissed(bar, &NoticeBar::dismissed);
    bar->tell(warning);
    EXPECT_FALSE(part("noticeDismissal")->isVisible());
    part("noticeAction")->click();
    EXPECT_EQ(acted.size(), 1);
    bar->tell(information);
    EXPECT_EQ(part("noticeAction")->text(), "Show");
    part("noticeDismissal")->click();
    EXPECT_EQ(dismissed.size(), 1);
    EXPECT_EQ(acted.size(), 1);
}

TEST_F(ANoticeBar, comesAfterTheHeaderInTheTabOrder)
{
    bar->tell(information);
    window.focusSearch();
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(part("noticeAction")->hasFocus());
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(part("noticeDismissal")->hasFocus());
}

TEST_F(ANoticeBar, standsOutFromItsWindowAndReadsInEveryPalette)
{
    bar->tell(warning);
    for (const QColor &ground : {QColor(0xf4f4f6), QColor(0x232528)}) {
        QPalette other = palette;
        const bool isDark = ground.lightness() < 128;
        other.setColor(QPalette::Window, ground);
        other.setColor(QPalette::WindowText, isDark ? Qt::white : Qt::black);
        other.setColor(QPalette::Highlight, QColor(0x3a74c8));
        QApplication::setPalette(other);
        runPendingEvents();
        EXPECT_NE(groundAt({2, 2}), ground);
        const QPalette drawn = part<QLabel>("noticeText")->palette();
        EXPECT_EQ(groundAt({2, 2}).rgb(), drawn.color(QPalette::Window).rgb());
        EXPECT_GE(contrastRatio(drawn.color(QPalette::WindowText), groundAt({2, 2})), 4.5);
    }
}
