#include "platform/appkit/colors/NSColorWell.h"
#include "platform/appkit/colors/SystemColors.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class ColorWell : public testing::Test
{
protected:
    ColorWell() { well.setInitialColor(Qt::red); }

    bool drop(const QMimeData &data)
    {
        QDragEnterEvent enter({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.setAccepted(false);
        QCoreApplication::sendEvent(&well, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent event({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&well, &event);
        return true;
    }

    void pasteText(const QString &text)
    {
        QGuiApplication::clipboard()->setText(text);
        QTest::keySequence(&well, QKeySequence::Paste);
    }

    QColor shown() const { return liveColor(well.color()); }

    NSColorWell well;
    QSignalSpy picked{&well, &NSColorWell::colorPicked};
};

} // namespace

TEST_F(ColorWell, takesAColourThatIsDropped)
{
    QMimeData data;
    data.setColorData(QColor(10, 20, 30, 128));
    EXPECT_TRUE(drop(data));
    EXPECT_EQ(shown(), QColor(10, 20, 30, 128));
    EXPECT_EQ(picked.count(), 1);
}

TEST_F(ColorWell, refusesADropWithoutAColour)
{
    QMimeData data;
    data.setText(QStringLiteral("red wine"));
    EXPECT_FALSE(drop(data));
    EXPECT_EQ(shown(), QColor(Qt::red));
    EXPECT_EQ(picked.count(), 0);
}

TEST_F(ColorWell, takesAColoursNameThatIsPasted)
{
    pasteText(QStringLiteral(" #204060 "));
    EXPECT_EQ(shown(), QColor(0x20, 0x40, 0x60));
    pasteText(QStringLiteral("#80204061"));
    EXPECT_EQ(shown(), QColor(0x20, 0x40, 0x61, 0x80));
    EXPECT_EQ(picked.count(), 2);
    for (const QString &text : {QStringLiteral("#20406"), QStringLiteral("blue"), QString()})
        pasteText(text);
    EXPECT_EQ(picked.count(), 2);
}

TEST_F(ColorWell, whatIsCopiedFromOneCanBePastedIntoAnother)
{
    well.setColor(calibratedColor(QColor(1, 2, 3, 77)));
    QTest::keySequence(&well, QKeySequence::Copy);
    NSColorWell other;
    QTest::keySequence(&other, QKeySequence::Paste);
    EXPECT_EQ(liveColor(other.color()), QColor(1, 2, 3, 77));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("#4d010203"));
}

TEST_F(ColorWell, tellsAScreenReaderItsColourAndHowOpaqueItIs)
{
    well.setColor(calibratedColor(QColor(255, 0, 0, 127)));
    EXPECT_EQ(well.accessibleDescription(), QStringLiteral("#ff0000, 50 % opaque"));
}
