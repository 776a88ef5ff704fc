// Labels in the window's text styles.

#include "platform/appkit/controls/StyledLabel.h"

#include <QApplication>
#include <QVBoxLayout>
#include <functional>
#include <gtest/gtest.h>

namespace {

QPalette paletteOf(const QColor &window, const QColor &text)
{
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    return palette;
}

class ALabel : public testing::Test
{
protected:
    ALabel()
    {
        window.setPalette(paletteOf(Qt::white, Qt::black));
        label.setParent(&window);
    }

    QColor shownText() const { return label.palette().color(QPalette::Active, QPalette::WindowText); }

    QWidget window;
    StyledLabel label;
};

TEST(Contrast, goesFromOneToTwentyOne)
{
    EXPECT_NEAR(contrastRatio(Qt::white, Qt::white), 1, 1e-6);
    EXPECT_NEAR(contrastRatio(Qt::black, Qt::white), 21, 1e-6);
    EXPECT_NEAR(contrastRatio(Qt::white, Qt::black), 21, 1e-6);
    EXPECT_NEAR(contrastRatio(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
}

TEST_F(ALabel, isPalerButReadableWhenSecondary)
{
    label.setTextStyle(StyledLabel::Secondary);
    for (const auto &[ground, text] :
        {std::pair<QColor, QColor>{Qt::white, Qt::black}, {QColor(0x23, 0x25, 0x28), QColor(0xe8, 0xe9, 0xeb)},
            {QColor(0xef, 0xef, 0xef), Qt::black}, {QColor(0x80, 0x80, 0x80), Qt::black}}) {
        window.setPalette(paletteOf(ground, text));
        EXPECT_GE(contrastRatio(shownText(), ground), 4.5) << qPrintable(ground.name());
        EXPECT_LT(contrastRatio(shownText(), ground), contrastRatio(text, ground)) << qPrintable(ground.name());
    }
}

TEST_F(ALabel, isNeverPalerThanThePaletteAllows)
{
    label.setTextStyle(StyledLabel::Secondary);
    window.setPalette(paletteOf(QColor(0x90, 0x90, 0x90), QColor(0x30, 0x30, 0x30)));
    EXPECT_EQ(shownText(), QColor(0x30, 0x30, 0x30));
}

TEST_F(ALabel, followsTheFontOfItsWindow)
{
    QFont font = window.font();
    font.setPointSizeF(10);
    window.setFont(font);
    label.setTextStyle(StyledLabel::Secondary);
    EXPECT_NEAR(label.font().pointSizeF(), 9, 0.01);
    label.setTextStyle(StyledLabel::Title);
    EXPECT_NEAR(label.font().pointSizeF(), 15, 0.01);
    font.setFamily(QStringLiteral("Monospace"));
    font.setPointSizeF(20);
    window.setFont(font);
    EXPECT_NEAR(label.font().pointSizeF(), 30, 0.01);
}

TEST_F(ALabel, isBoldWhenAHeading)
{
    label.setTextStyle(StyledLabel::Heading);
    EXPECT_TRUE(label.font().bold());
    EXPECT_EQ(label.font().pointSizeF(), window.font().pointSizeF());
}

TEST_F(ALabel, keepsAColourThatItWasGivenWhenATitle)
{
    label.setTextStyle(StyledLabel::Title);
    label.setPalette(paletteOf(Qt::white, Qt::red));
    window.setPalette(paletteOf(Qt::black, Qt::white));
    EXPECT_EQ(shownText(), QColor(Qt::red));
}

TEST_F(ALabel, isMirroredWithItsWindow)
{
    label.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    window.show();
    EXPECT_TRUE(label.alignment() & Qt::AlignRight);
    window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_TRUE(label.alignment() & Qt::AlignLeft);
    EXPECT_TRUE(label.alignment() & Qt::AlignAbsolute);
    window.setLayoutDirection(Qt::LeftToRight);
    EXPECT_TRUE(label.alignment() & Qt::AlignRight);
}

} // namespace

TEST_F(ALabel, isAsHighAsItsTextOfThisMomentNeeds)
{
    label.setWordWrap(true);
    const auto heightOfAPlainOne = [this](int width) {
        QLabel plain(label.text(), &window);
        plain.setWordWrap(label.wordWrap());
        plain.setFont(label.font());
        plain.setMargin(label.margin());
        plain.setIndent(label.indent());
        plain.setContentsMargins(label.contentsMargins());
        return plain.heightForWidth(width);
    };
    QFont large = label.font();
    large.setPointSizeF(3 * large.pointSizeF());
    const QList<std::function<void()>> changes{[this] { label.setText("a text of some words"); },
        [this] { label.setText("a text of so many words that they take more lines than the ones before"); },
        [&] { label.setFont(large); }, [this] { label.setMargin(9); }, [this] { label.setIndent(20); },
        [this] { label.setContentsMargins(3, 4, 5, 6); }, [this] { label.setWordWrap(false); }};
    for (const auto &change : changes) {
        change();
        for (const int width : {300, 120, 300})
            EXPECT_EQ(label.heightForWidth(width), heightOfAPlainOne(width)) << width;
    }
}
