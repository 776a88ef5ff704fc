#include "platform/appkit/colors/SystemColors.h"
#include "Wait.h"
#include "platform/appkit/colors/NSColorPanel.h"
#include "platform/appkit/colors/NSColorWell.h"

#include <QAccessible>
#include <QApplication>
#include <QColorDialog>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

NSColorRef systemColor(const QString &name, NSColorRef fallback = NSColor::redColor())
{
    return NSColor::colorWithCatalogNameFallback("System", name, std::move(fallback));
}

class Theme
{
public:
    Theme(QPalette::ColorRole role, const QColor &color)
    {
        QPalette palette = before_;
        palette.setColor(role, color);
        QApplication::setPalette(palette);
    }
    ~Theme() { QApplication::setPalette(before_); }

private:
    QPalette before_ = QApplication::palette();
};

} // namespace

TEST(SystemColors, theSelectedTextBackgroundFollowsTheTheme)
{
    for (const QColor &highlight : {QColor(1, 2, 3), QColor(200, 100, 50)}) {
        const Theme theme(QPalette::Highlight, highlight);
        EXPECT_EQ(liveColor(NSColor::selectedTextBackgroundColor()), highlight);
        EXPECT_EQ(liveColor(systemColor("selectedControlColor")), highlight);
    }
}

TEST(SystemColors, otherSystemColoursFollowTheTheme)
{
    const Theme text(QPalette::Text, QColor(11, 12, 13));
    EXPECT_EQ(liveColor(systemColor("textColor")), QColor(11, 12, 13));
    const Theme button(QPalette::Button, QColor(21, 22, 23));
    EXPECT_EQ(liveColor(systemColor("controlColor")), QColor(21, 22, 23));
}

TEST(SystemColors, unknownNamesAndOtherCataloguesShowTheirFallback)
{
    EXPECT_EQ(liveColor(systemColor("unheardColor")), QColor(255, 0, 0));
    EXPECT_EQ(liveColor(NSColor::colorWithCatalogNameFallback("Crayons", "textColor", NSColor::redColor())),
        QColor(255, 0, 0));
    EXPECT_EQ(liveColor(NSColor::colorWithCatalogNameFallback("Crayons", "x", systemColor("unheardColor"))),
        QColor(255, 0, 0));
}

TEST(SystemColors, coloursNestedWithoutEndAndNoColourAreBlack)
{
    NSColorRef nested = NSColor::redColor();
    for (int depth = 0; depth < 1000; ++depth)
        nested = NSColor::colorWithCatalogNameFallback("Crayons", "x", nested);
    EXPECT_EQ(liveColor(nested), QColor(Qt::black));
    EXPECT_EQ(liveColor(NSColor::colorWithCatalogNameFallback("Crayons", "x", nullptr)), QColor(Qt::black));
    EXPECT_EQ(liveColor(nullptr), QColor(Qt::black));
}

TEST(SystemColors, plainColoursShowTheirComponentsWithinBounds)
{
    EXPECT_EQ(liveColor(NSColor::colorWithCalibratedRGBA(1, 0, 0.5f, 0.25f)).rgba(),
        QColor::fromRgbF(1, 0, 0.5f, 0.25f).rgba());
    EXPECT_EQ(liveColor(NSColor::colorWithDeviceRGBA(7, -3, 0, 9)), QColor(255, 0, 0));
    EXPECT_EQ(liveColor(NSColor::colorWithDeviceRGBA(NAN, 0, 0, 1)), QColor(0, 0, 0));
}

TEST(SystemColors, aPickedColourIsCalibrated)
{
    const NSColorRef color = calibratedColor(QColor(255, 0, 51, 102));
    EXPECT_EQ(color->colorSpace(), NSColorSpace::CalibratedRGB);
    EXPECT_NEAR(color->components()[2], 0.2, 1e-4);
    EXPECT_NEAR(color->components()[3], 0.4, 1e-4);
}

class AColorWell : public testing::Test
{
protected:
    AColorWell()
    {
        well.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&well));
    }
    ~AColorWell() override { panel()->window()->close(); }
    static NSColorPanel *panel() { return NSColorPanel::sharedColorPanel(); }

    NSColorWell well;
    QSignalSpy picked{&well, &NSColorWell::colorPicked};
};

TEST_F(AColorWell, opensThePanelByClickSpaceAndReturn)
{
    QTest::mouseClick(&well, Qt::LeftButton);
    EXPECT_TRUE(panel()->window()->isVisible());
    EXPECT_EQ(panel()->activeWell(), &well);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        panel()->window()->close();
        EXPECT_EQ(panel()->activeWell(), nullptr);
        QTest::keyClick(&well, key);
        EXPECT_TRUE(panel()->window()->isVisible());
        EXPECT_EQ(panel()->activeWell(), &well);
    }
    EXPECT_EQ(picked.size(), 0);
}

TEST_F(AColorWell, takesWhatIsPickedInThePanelAtOnceWithItsOpacity)
{
    well.setColor(NSColor::redColor());
    well.click();
    EXPECT_EQ(panel()->window()->currentColor(), QColor(255, 0, 0));
    panel()->window()->setCurrentColor(QColor(0, 0, 255));
    EXPECT_EQ(picked.size(), 1);
    EXPECT_EQ(liveColor(well.color()), QColor(0, 0, 255));
    panel()->window()->setCurrentColor(QColor(0, 0, 255, 51));
    EXPECT_EQ(liveColor(well.color()).rgba(), QColor(0, 0, 255, 51).rgba());
}

TEST_F(AColorWell, setByCodeMovesThePanelAndTellsNobody)
{
    well.click();
    well.setColor(NSColor::redColor());
    EXPECT_EQ(panel()->window()->currentColor(), QColor(255, 0, 0));
    EXPECT_EQ(picked.size(), 0);
}

TEST_F(AColorWell, keepsTheSystemColourItself)
{
    well.setColor(NSColor::selectedTextBackgroundColor());
    well.click();
    EXPECT_EQ(well.color(), NSColor::selectedTextBackgroundColor());
}

TEST_F(AColorWell, takesNothingFromThePanelAfterAnotherWellWasClicked)
{
    NSColorWell other;
    well.click();
    other.click();
    panel()->window()->setCurrentColor(QColor(1, 2, 3));
    EXPECT_EQ(picked.size(), 0);
    EXPECT_EQ(liveColor(other.color()), QColor(1, 2, 3));
}

TEST_F(AColorWell, mayBeDestroyedWhileThePanelEditsIt)
{
    auto gone = std::make_unique<NSColorWell>();
    gone->click();
    gone.reset();
    panel()->window()->setCurrentColor(QColor(4, 5, 6));
    EXPECT_EQ(panel()->activeWell(), nullptr);
}

TEST_F(AColorWell, saysItsColourInWords)
{
    well.setColor(NSColor::colorWithCalibratedRGBA(1, 0, 0, 0.5f));
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&well);
    EXPECT_EQ(interface->text(QAccessible::Description), "#ff0000, 50 % opaque");
    well.setColor(NSColor::selectedTextBackgroundColor());
    const Theme theme(QPalette::Highlight, QColor(1, 2, 3));
    EXPECT_TRUE(waitUntil([=] { return interface->text(QAccessible::Description) == "#010203, 100 % opaque"; }));
}

TEST_F(AColorWell, paintsItsColourOverACheckerboard)
{
    well.resize(48, 24);
    well.setColor(NSColor::colorWithCalibratedRGBA(0, 0, 1, 0));
    const QImage clear = well.grab().toImage();
    QSet<QRgb> colors;
    for (int x = 8; x < 40; ++x)
        colors += clear.pixel(x, 12);
    EXPECT_EQ(colors, QSet<QRgb>({QColor(Qt::white).rgb(), QColor(Qt::lightGray).rgb()}));
    well.setColor(NSColor::colorWithCalibratedRGBA(0, 0, 1, 1));
    EXPECT_EQ(well.grab().toImage().pixel(20, 12), QColor(Qt::blue).rgb());
}

TEST_F(AColorWell, canNotBePlacedWithoutADisplay)
{
    const QRectF before = panel()->frame();
    panel()->setFrameOrigin({100, 100});
    EXPECT_EQ(panel()->frame(), before);
}
